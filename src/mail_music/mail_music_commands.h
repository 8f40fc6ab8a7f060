// Commands of the mail subsystem.
#pragma once

#include <cstdint>

#include "services/commands.h"

void MailMusicCommand(Command command);
