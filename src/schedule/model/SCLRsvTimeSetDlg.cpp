// SCLRsvTimeSetDlg, "予想時間設定", and the forms of a plan that are like it.
#include "platform/dialog.h"
#include "resources/schedule_model_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/model/scl_items.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

constexpr int kDigits = 4;

std::uint32_t& Hours(const Event& event) {
  return *static_cast<std::uint32_t*>(event.context);
}

void Open(const Event& event) {
  char text[16];
  TextFormat(text, sizeof text, "%4d", static_cast<int>(Hours(event)));
  ControlSetText(event.window, IDC_SCL_HOURS, text);
  ControlSetLimit(event.window, IDC_SCL_HOURS, kDigits);
}

void Confirm(const Event& event) {
  char text[16];  // hours that were shown may have more digits than can be typed
  ControlGetText(event.window, IDC_SCL_HOURS, text, sizeof text);
  Hours(event) = SclHoursParse(text);
  ToolDialogEnd(event.window, kOkButton);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Open}, {kOkButton, Confirm}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

bool SclHoursDlgRun(ToolDialog number, int templateId, WindowHandle owner, std::uint32_t& hours) {
  return ToolDialogRun(number, templateId, owner, Handle, &hours) == kOkButton;
}

bool SCLRsvTimeSetDlgRun(WindowHandle owner, int item) {
  const bool confirmed =
      SclHoursDlgRun(ToolDialog::SCLRsvTimeSetDlg, IDD_SCLRsvTimeSetDlg, owner, SclItem(item).hours);
  // kept: a cancelled edit of an item's hours works all dates out again too.
  SclRecalcAll();
  return confirmed;
}
