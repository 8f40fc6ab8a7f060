// The plan window, opened in the running program, and its user.
#pragma once

#include "platform/window.h"
#include "resources/schedule_ids.h"
#include "resources/schedule_model_ids.h"
#include "resources/schedule_plan_ids.h"
#include "resources/schedule_table_ids.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_convert.h"
#include "schedule/plan/plan_file.h"
#include "schedule/table/row_selection.h"
#include "services/commands.h"
#include "tests/schedule/plan/plan_fixture.h"
#include "tests/schedule/schedule_fixture.h"

class PlanWindowTest : public ScheduleTest {
 protected:
  static WindowHandle Window() { return SclTable.hPlanWnd; }
  static void Open() {
    CommandSend(Command::SchedulePlan);
    ASSERT_NE(Window(), nullptr);
  }
  static void OpenTraining() {
    CommandSend(Command::PlanTraining);
    ASSERT_NE(Window(), nullptr);
  }

  // Places in the window as it opens, 720 by 530: the columns, and a row from 1.
  static constexpr int kNumber = 30;
  static constexpr int kContent = 200;
  static constexpr int kHours = 540;
  static constexpr int kRepeat = 640;
  static constexpr int Down(int row) { return 240 + 20 * (row - 1) + 10; }

  static void Click(int x, int y, unsigned keys = 0) {
    Mouse(Window(), EventKind::LeftDown, x, y, keys);
    Mouse(Window(), EventKind::LeftUp, x, y, keys);
  }
  static void DoubleClick(int x, int y) {
    Click(x, y);
    Mouse(Window(), EventKind::LeftDouble, x, y);
    if (Window()) Mouse(Window(), EventKind::LeftUp, x, y);
  }
  // The popup menu of a row's number, and what is chosen there.
  static void ChooseInMenu(int row, Command command) {
    ExpectMenu(IDM_SCHEDULE_LINE, static_cast<std::uint32_t>(command));
    Mouse(Window(), EventKind::RightDown, kNumber, Down(row));
  }
  static bool Shows(const char* text, int x, int row) {
    return TextStands(Window(), text, x + 2, 240 + 20 * (row - 1) + 2);
  }
  static bool Heads(const char* third, const char* fourth) {
    return TextStands(Window(), third, 496, 222) && TextStands(Window(), fourth, 596, 222);
  }
  static void SetLine(int line, std::uint32_t hours, int repeat, const char* text) {
    ScpPlanRec& plan = Plan.ScpPlanTable[line];
    plan.hours = hours;
    plan.repeat = static_cast<std::uint8_t>(repeat);
    TextCopy(plan.text, sizeof plan.text, text);
  }
  static void DirtySet(bool dirty) { Plan.dirty = dirty; }
};
