#include "schedule/execution/execution_commands.h"

#include "clock_calendar/calendar/calendar.h"
#include "platform/window.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_exec.h"
#include "schedule/table/schedule_dialogs.h"
#include "schedule/table/schedule_table.h"
#include "services/boxes.h"
#include "services/modal.h"
#include "services/program.h"
#include "services/text.h"

namespace {

constexpr BoxWords kUnchooseAsked{"実行スケジュール指定を解除しますが、よろしいですか。",
                                  "実行スケジュール指定の解除"};
constexpr BoxWords kChooseAsked{"表示中スケジュールを実行指定します。(設定アラームが有効になります)",
                                "実行スケジュールの指定"};

bool IsMarked() {
  return Schedule.SclExecMark != SclMark::None;
}

// --- The lines of a day of the executing schedule

void LineShow(WindowHandle dialog, const SclDate& day, int index) {
  const SclItemRec& item = Schedule.SclExecTable.items[index];
  const SclWorkDayRow& row = SclRowOfDay(Schedule.SclExecTable.rows, day);
  SclDayTimes times{};
  if (item.hours == 0 || !SclDayTimesOf(item, day, row, times)) return;
  char text[100];
  TextFormat(text, sizeof text, "【 時間 】%d 時 %d 分 ～ %d 時 %d 分", times.startHour, times.startMinute,
             times.endHour, times.endMinute);
  DayLineAdd(dialog, text, index, item.text);
}

void LinesShow(WindowHandle dialog, const SclDate& day) {
  for (int item = 0; item < Schedule.SclExecTable.count; ++item) LineShow(dialog, day, item);
}

}  // namespace

void CommandScheduleExecute() {
  if (ModalIsUp()) return;
  const bool marked = IsMarked();
  if (!BoxAsk(ScheduleOwner(), marked ? kUnchooseAsked : kChooseAsked)) return;
  // The mark may have been turned by a second question while the first one stood.
  if (marked != IsMarked()) return;
  if (marked) {
    SclExecUnchoose();
  } else {
    SclExecChoose();
  }
  SclAlarmsForget();
  ScheduleTableShow();
}

void CommandCalendarDaySchedule() {
  if (ModalIsUp() || Calendar.CalenClickedDay == 0) return;
  const SclDate day{Calendar.CalenYears[CalenYearShown()], Calendar.CalenMonthPos,
                    Calendar.CalenClickedDay - 1, 0};
  const WindowHandle owner = Calendar.hCalenWnd ? Calendar.hCalenWnd : Program.hMainWnd;
  // settled: with no schedule carried out a day of the calendar has no lines.
  DspSclClickDayDataRun(
      SubDialog::DspSclClickDayDataSecond, owner, day,
      Schedule.SclExecActive ? LinesShow : [](WindowHandle, const SclDate&) {});
  CalenClickedDaySet(0);
  SendPaint(Calendar.hCalenWnd);
}
