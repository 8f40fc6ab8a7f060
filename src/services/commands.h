// Numbered commands: how features ask each other for something. Any window sends the
// main window a number; the main window alone routes it.
#pragma once

#include <cstdint>

#include "platform/event.h"

enum class Command : std::uint32_t {
  None = 0,
#define COMMAND(number, name, shownName, handler) name = (number),
#include "services/command_table.inc"
#undef COMMAND
  // What is sent straight to a window of one's own, and not routed.
  NextStep = 2258,          // the next step of a walk, or of a performance
  CalendarClear = 2295,     // the calendar's window: cleared and painted anew
  CalendarDayBack = 2313,   // the buttons of the calendar's day page ...
  CalendarDayOn = 2314,
  CalendarWeekBack = 2315,  // ... and of its week page
  CalendarWeekOn = 2316,
  BackUpStep = 2375,  // the next file of a back-up
  WorkStep = 2376,    // the next piece of stepped work
};

// True for a window's event that is this command.
inline bool CommandIs(const Event& event, Command command) {
  return event.kind == EventKind::Command && event.command == static_cast<std::uint32_t>(command);
}

// Has the main window carry out a command; it is done when the call returns.
void CommandSend(Command command);

// Sends a command to a window; null is accepted and does nothing.
void CommandSendTo(WindowHandle window, Command command);
