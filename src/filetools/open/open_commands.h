// Commands of the file tools.
#pragma once

#include <cstdint>

#include "services/commands.h"

// Opening files.
void CommandFileOpen(Command command);
void CommandOpenAddFile(Command command);
void CommandOpenAddProgram(Command command);
void CommandOpenGroupSet(Command command);
void CommandOpenWalk(Command command);    // 2004: the walk goes first if there is one
void CommandOpenLaunch(Command command);  // 2202
