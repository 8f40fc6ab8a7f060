// SCLSttTimeSetDlg, "開始年月日設定".
#include <algorithm>

#include "platform/dialog.h"
#include "resources/schedule_model_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/model/scl_items.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/rows.h"

namespace {

constexpr int kYearDigits = 2;
constexpr int kYearLast = 99;
constexpr int kFebruary = 1;

SclDate& Start(const Event& event) {
  return *static_cast<SclDate*>(event.context);
}

int YearShown(WindowHandle dialog) {
  char text[16];  // a year that was shown may have more digits than can be typed
  ControlGetText(dialog, IDC_SCL_YEAR, text, sizeof text);
  return static_cast<int>(std::min<std::uint32_t>(SclHoursParse(text), kYearLast));
}

void DaysShow(WindowHandle dialog, int year, int month, int day) {
  RowsShow(dialog, IDC_SCL_DAY, RowsOfNumbers(1, SclDaysInMonth(year, month)), day);
}

void Open(const Event& event) {
  const SclDate& start = Start(event);
  char year[16];
  SclYearText(start.year, year, sizeof year);
  ControlSetText(event.window, IDC_SCL_YEAR, year);
  ControlSetLimit(event.window, IDC_SCL_YEAR, kYearDigits);
  RowsShow(event.window, IDC_SCL_MONTH, RowsOfNumbers(1, kMonthsOfYear), start.month);
  // kept: in the dialog of a start the days of February are first those of the year in which
  // the schedule starts, also when the start of a plan is edited.
  DaysShow(event.window, Schedule.SclHeader.start.year, start.month, start.day);
  RowsShow(event.window, IDC_SCL_HOUR, kHourRows, start.hour);
}

// The days of the month on show, with the chosen one pulled back to the last of them.
void DaysShowAgain(WindowHandle dialog) {
  const int year = YearShown(dialog);
  const int month = ListSelected(dialog, IDC_SCL_MONTH);
  const int day = ListSelected(dialog, IDC_SCL_DAY);
  DaysShow(dialog, year, month, std::min(day, SclDaysInMonth(year, month) - 1));
}

void YearChanged(WindowHandle dialog) {
  if (ListSelected(dialog, IDC_SCL_MONTH) == kFebruary) DaysShowAgain(dialog);
}

// A list in which nothing is chosen leaves its field as it is.
void Take(WindowHandle dialog, int list, std::int32_t& field) {
  const int row = ListSelected(dialog, list);
  if (row >= 0) field = row;
}

void Confirm(const Event& event) {
  SclDate& start = Start(event);
  start.year = YearShown(event.window);
  Take(event.window, IDC_SCL_MONTH, start.month);
  Take(event.window, IDC_SCL_DAY, start.day);
  Take(event.window, IDC_SCL_HOUR, start.hour);
  start.day = std::min(start.day, SclDaysInMonth(start.year, start.month) - 1);
  ToolDialogEnd(event.window, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_SCL_YEAR, EventKind::Edited, YearChanged},
    {IDC_SCL_MONTH, EventKind::Chosen, DaysShowAgain},
    {kOkButton, Confirm},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

bool SCLSttTimeSetDlgRun(ToolDialog number, WindowHandle owner, SclDate& start) {
  return ToolDialogRun(number, IDD_SCLSttTimeSetDlg, owner, Handle, &start) == kOkButton;
}
