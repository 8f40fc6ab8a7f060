// Commands of the file tools.
#pragma once

#include <cstdint>

// Opening files.
void CommandFileOpen(std::uint32_t number);
void CommandOpenAddFile(std::uint32_t number);
void CommandOpenAddProgram(std::uint32_t number);
void CommandOpenGroupSet(std::uint32_t number);
void CommandOpenLaunch(std::uint32_t number);
