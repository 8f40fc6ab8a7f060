// Routing of numbered commands. Any window asks another feature for something
// by sending the main window a number; the main window alone routes it.
#pragma once

#include <cstdint>

// Carries out a command by its whole number. Unknown numbers are ignored.
// Returns whether the number is known.
bool CommandRoute(std::uint32_t number);

// Commands of the shell itself; each is told its own number.
void CommandOldData(std::uint32_t number);
void CommandCloseProgram(std::uint32_t number);
void CommandFocusStage(std::uint32_t number);
void CommandDropPopup(std::uint32_t number);
void CommandPanelLevel(std::uint32_t number);
void CommandExit(std::uint32_t number);
void CommandStartSibling(std::uint32_t number);
void CommandFirstRun(std::uint32_t number);
void CommandBat(std::uint32_t number);
void CommandSchedulePopup(std::uint32_t number);
void CommandCalendarPopup(std::uint32_t number);
void CommandClockPopup(std::uint32_t number);
void CommandCalendarChanged(std::uint32_t number);
