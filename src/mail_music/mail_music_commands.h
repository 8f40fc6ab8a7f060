// Commands of the mail subsystem.
#pragma once

#include <cstdint>

void MailMusicCommand(std::uint32_t number);
