// SetClockAlarmDlg, "時計アラーム設定": the five alarms.
#include <algorithm>

#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_commands.h"
#include "clock_calendar/clock/comment_field.h"
#include "clock_calendar/clock/performance_rows.h"
#include "resources/clock_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/form.h"
#include "services/program.h"
#include "services/rows.h"
#include "services/settings_save.h"
#include "services/text.h"

namespace {

struct Alarms {
  AlarmSlot slots[kAlarmSlotCount];
};

void PerformanceRow(int row, char* text, int size) {
  if (row == 0) {
    TextCopy(text, static_cast<std::size_t>(size), "未設定");
  } else {
    PerformanceTitle(row - 1, text, size);
  }
}

// Row 0 is for none, the others for the performances in use.
void ExchangePerformance(Form& form, int id, std::uint16_t& number) {
  int row = number == 0 ? 0 : PerformancePlace(number) + 1;
  // bounded: a performance of an alarm that there is not stays unless one is chosen.
  if (row == 0 && number != 0) row = -1;
  form.Choice(id, row, RowsOf(PerformancesInUse() + 1, PerformanceRow));
  if (form.Takes() && row >= 0) number = static_cast<std::uint16_t>(row == 0 ? 0 : PerformanceAt(row - 1));
}

void Exchange(Form& form, Alarms& alarms) {
  for (int i = 0; i < kAlarmSlotCount; ++i) {
    AlarmSlot& slot = alarms.slots[i];
    form.Check(IDC_ALARM_ENABLE + i, slot.enabled);
    form.Choice(IDC_ALARM_HOUR + i, slot.hour, kHourRows);
    form.Choice(IDC_ALARM_MINUTE + i, slot.minute, kMinuteRows);
    ExchangePerformance(form, IDC_ALARM_PERFORMANCE + i, slot.performance);
    CommentExchange(form, IDC_ALARM_COMMENT + i, slot.comment, sizeof slot.comment);
  }
}

Alarms AlarmsNow() {
  Alarms alarms;
  std::copy_n(Clock.ClockEvents, kAlarmSlotCount, alarms.slots);
  return alarms;
}

void Open(WindowHandle dialog) {
  Alarms alarms = AlarmsNow();
  FormShow(dialog, alarms, Exchange);
}

void Accept(WindowHandle dialog) {
  Alarms alarms = AlarmsNow();
  FormTake(dialog, alarms, Exchange);
  ClockAlarmsSet(alarms.slots);
  SaveTold(dialog, SysFileWrite() == 0, "時計アラーム設定");
  SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Open}, {kOkButton, Accept}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int Run() {
  return SubDialogRun(SubDialog::SetClockAlarmDlg, IDD_SetClockAlarmDlg, Program.hMainWnd, Handle);
}

}  // namespace

void CommandClockAlarms() {
  FeatureDialogRun(Feature::ClockDisplay, Run);
}
