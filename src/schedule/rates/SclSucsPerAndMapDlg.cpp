// SclSucsPerAndMapDlg: how far the schedule has come.

#include "platform/dialog.h"
#include "platform/time.h"
#include "resources/schedule_rates_ids.h"
#include "schedule/rates/rates_dialogs.h"
#include "schedule/rates/scl_rates.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

void ShowDate(WindowHandle dialog, int id, int year, int month, int day) {
  char text[64];
  SclRateDateText(year, month, day, text, sizeof text);
  ControlSetText(dialog, id, text);
}

void ShowRate(WindowHandle dialog, int id, float rate) {
  char text[64];
  SclRateText(rate, text, sizeof text);
  ControlSetText(dialog, id, text);
}

void Open(WindowHandle dialog) {
  LocalTime now;
  TimeGetLocal(&now);
  const SclDate today{now.year - 2000, now.month - 1, now.day - 1, 0};
  const SclRates rates = SclRatesOf(today.year, today.month, today.day);
  const SclDate& start = Schedule.SclHeader.start;
  ShowDate(dialog, IDC_RATE_START, start.year, start.month, start.day);
  ShowDate(dialog, IDC_RATE_TODAY, today.year, today.month, today.day);
  if (rates.any) ShowDate(dialog, IDC_RATE_END, rates.end.year, rates.end.month, rates.end.day);
  if (rates.reached) ShowRate(dialog, IDC_RATE_DONE, rates.done);
  if (rates.reached) ShowRate(dialog, IDC_RATE_DUE, rates.due);
  if (rates.measured) ShowRate(dialog, IDC_RATE_PROGRESS, rates.progress);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_RATE_MAP, DispCelSclMapPosDlgRun},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SclSucsPerAndMapDlgRun(WindowHandle owner) {
  PlainDialogRun(IDD_SclSucsPerAndMapDlg, owner, Handle);
}
