// StsBarSettingDlg, "ステータスバー設定": the status bar of the scenario, and after what time
// it goes on to the next of several parameters.

#include <iterator>

#include "resources/scenario_looks_ids.h"
#include "scenario/looks/snry_looks.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/text.h"

namespace {

constexpr const char* kTimes[] = {"10秒", "20秒",    "30秒", "40秒",    "50秒",
                                  "1分",  "1分30秒", "2分",  "2分30秒", "3分"};
constexpr int kTimeRows = static_cast<int>(std::size(kTimes));

void TimeText(int row, char* text, int size) {
  TextCopy(text, static_cast<std::size_t>(size), row < kTimeRows ? kTimes[row] : "----");
}

// A time that is none of the list has a row of its own, and stays as it is while that is
// chosen.
void ExchangeTime(Form& form, std::uint8_t& time) {
  const bool listed = time < kTimeRows;
  int row = listed ? time : kTimeRows;
  form.Choice(IDC_STATUS_TIME, row, RowsOf(listed ? kTimeRows : kTimeRows + 1, TimeText));
  if (form.Takes() && row < kTimeRows) time = static_cast<std::uint8_t>(row);
}

void Exchange(Form& form, SnryOptionRec& options) {
  form.Check(IDC_STATUS_SHOWN, options.statusBar);
  ExchangeTime(form, options.statusTime);
}

void Open(WindowHandle dialog) {
  FormShow(dialog, SnryMain.options, Exchange);
}

void Accept(WindowHandle dialog) {
  FormTake(dialog, SnryMain.options, Exchange);
  SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void StsBarSettingDlgRun(WindowHandle owner) {
  SubDialogRun(SubDialog::StsBarSettingDlg, IDD_StsBarSettingDlg, owner, Handle);
}
