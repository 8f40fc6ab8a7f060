// Commands of the file tools.
#pragma once

#include <cstdint>

// Opening files.
void CommandFileOpen(std::uint32_t number);
void CommandOpenAddFile(std::uint32_t number);
void CommandOpenAddProgram(std::uint32_t number);
void CommandOpenGroupSet(std::uint32_t number);
void CommandOpenLaunch(std::uint32_t number);

// Back-up.
void CommandBackUp(std::uint32_t number);
void CommandBackUpAdd(std::uint32_t number);
void CommandBackUpFolder(std::uint32_t number);
void CommandBackUpLoad(std::uint32_t number);
void CommandBackUpSave(std::uint32_t number);

// Divide and restore.
void CommandDivide(std::uint32_t number);
void CommandDivideStep(std::uint32_t number);

// Folder scope, desktop tidy and desktop cover.
void CommandFolderScope(std::uint32_t number);
void CommandDesktopTidy(std::uint32_t number);
void CommandDesktopCover(std::uint32_t number);
