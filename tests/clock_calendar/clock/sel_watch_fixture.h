// SelWatchDlg, from the command that opens it.
#pragma once

#include "tests/clock_calendar/clock/clock_fixture.h"

class SelWatchTest : public ClockFixture {
 protected:
  static void Run() { CommandSend(Command::ClockSelect); }
};
