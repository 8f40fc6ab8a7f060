// Routing of numbered commands. Any window asks another feature for something
// by sending the main window a number; the main window alone routes it.
#pragma once

#include <cstdint>

#include "services/commands.h"

// Carries out a command by its whole number. Unknown numbers are ignored.
// Returns whether the number is known.
bool CommandRoute(std::uint32_t number);

// Commands of the shell itself; each is told its own number.
void CommandOldData(Command command);
void CommandCloseProgram(Command command);
void CommandFocusStage(Command command);
void CommandDropPopup(Command command);
void CommandPanelLevel(Command command);
void CommandExit(Command command);
void CommandStartSibling(Command command);
void CommandFirstRun(Command command);
void CommandBat(Command command);
void CommandSchedulePopup(Command command);
void CommandCalendarPopup(Command command);
void CommandClockPopup(Command command);
void CommandCalendarChanged(Command command);
