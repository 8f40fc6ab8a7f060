// The running program with calendars of 2026 to 2028, the window of the first on the
// desktop. Today is Saturday 21 November 2026.
#pragma once

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_edit.h"
#include "clock_calendar/calendar/calendar_hits.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "platform/diagnostics.h"
#include "platform/posix/faults.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "resources/calendar_ids.h"
#include "resources/clock_calendar_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "services/text.h"
#include "services/today.h"
#include "shell/tick.h"
#include "tests/character/chara_files.h"
#include "tests/support/program.h"
#include "world/world_list.h"

class CalendarFixture : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    CalenYearsSet(26);
    Calendar.CalenYearCount = 3;
    for (int i = 0; i < kCalenYearMax; ++i) CalenYearInit(i);
    Calendar.CalenPageSize = 1;
    CalenDefinition& definition = Calendar.CalenDefinitions[0];
    definition.design = 1;
    definition.font.height = 12;
    definition.font.width = 6;
    definition.font.weight = 400;
    Date(2026, 11, 21);
  }

  static void Date(int year, int month, int day, int hour = 9, int minute = 30) {
    TestClockSet({static_cast<std::uint16_t>(year), static_cast<std::uint16_t>(month),
                  static_cast<std::uint16_t>(day), 0, static_cast<std::uint16_t>(hour),
                  static_cast<std::uint16_t>(minute), 15, 0});
    LocalTime now;
    TimeGetLocal(&now);
    TodaySet(now);
    CalenTodayTake();
  }
  // Opens the window afresh with a kind of page.
  static WindowHandle Open(int kind = kPageMonth, int size = 1) {
    SendClose(Calendar.hCalenWnd);
    Calendar.CalenKind = kind;
    Calendar.CalenPageSize = size;
    CalenTakeDefinition();
    CalenWindowOpen();
    return Calendar.hCalenWnd;
  }
  static std::vector<DrawCall> Painted() {
    DrawingClear();
    SendPaint(Calendar.hCalenWnd);
    return Drawings(Calendar.hCalenWnd);
  }
  static std::vector<DrawCall> PaintedTexts() {
    DrawingClear();
    SendPaint(Calendar.hCalenWnd);
    return DrawnTexts(Calendar.hCalenWnd);
  }
  // The first of the texts that reads so; null if there is none.
  static std::shared_ptr<DrawCall> Find(const std::vector<DrawCall>& calls, const std::string& text) {
    for (const DrawCall& call : calls) {
      if (call.kind == DrawCall::Kind::Text && call.text == text) return std::make_shared<DrawCall>(call);
    }
    return nullptr;
  }
  static bool Says(const std::string& text) { return Find(PaintedTexts(), text) != nullptr; }
  static std::string Note(int year, int month, int day) {
    char note[kNoteSize + 1];
    CalenNoteGet(year, month, day, note);
    return note;
  }
};
