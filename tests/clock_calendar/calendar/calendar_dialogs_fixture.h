// What the tests of the calendar's dialogs share: three calendars, and a user at the dialogs.
#pragma once

#include "services/file_picker.h"
#include "shell/settings.h"
#include "tests/clock_calendar/calendar/calendar_fixture.h"

using Rows = std::vector<std::string>;

inline const char kCalendarFile[] = "C:\\mirrell\\mirrell_calen_file.dcd";
inline const char kSettingsFile[] = "C:\\mirrell\\mirrell_sys_file.svs";

class CalendarDialogsTest : public CalendarFixture {
 protected:
  void SetUp() override {
    CalendarFixture::SetUp();
    Calendar.CalenCount = 3;
    CalenFileWrite();
    SysFileWrite();
  }
  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenType(int id, const std::string& text) {
    Then([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  static void ThenRow(int id, int row) {
    Then([id, row] { ChooseRow(TopDialog(), id, row); });
  }
  // Opens SelCalenderDlg and its editing dialog, runs the steps in between and leaves both.
  template <class Steps>
  static void Edit(Steps steps) {
    ThenPress(IDC_SEL_EDIT);
    steps();
    ThenPress(1);
    ThenPress(1);
    CommandSend(Command::CalendarSelect);
  }
  // A click on a day of the grid, whose first week begins at pixel (12, 144) with cells of
  // 58 by 26.
  static void ThenClickDay(int day) {
    Then([day] {
      const int column =
          (Calendar.CalenMonths[Calendar.CalenYearPos][CalendarEdit.month].firstWeekday + 1) % 7;
      const int place = column + day - 1;
      Mouse(TopDialog(), EventKind::LeftDown, 12 + place % 7 * 58 + 20, 144 + place / 7 * 26 + 10, kLeftHeld);
    });
  }
  static bool SavedNote(const std::string& note) {
    return FileBytes(kSettingsFile).find(note) != std::string::npos;
  }
};
