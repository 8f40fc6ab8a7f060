// Commands of the file tools.
#pragma once

#include <cstdint>

// Opening files.
void CommandFileOpen(std::uint32_t number);
void CommandOpenAddFile(std::uint32_t number);
void CommandOpenAddProgram(std::uint32_t number);
void CommandOpenGroupSet(std::uint32_t number);
void CommandOpenLaunch(std::uint32_t number);

// Folder scope, desktop tidy and desktop cover.
void CommandFolderScope(std::uint32_t number);
void CommandDesktopTidy(std::uint32_t number);
void CommandDesktopCover(std::uint32_t number);
