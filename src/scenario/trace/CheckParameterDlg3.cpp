// CheckParameterDlg3: what would start if the chosen parameter had a value.

#include "platform/dialog.h"
#include "resources/scenario_trace_ids.h"
#include "scenario/trace/trace_dialogs.h"
#include "services/decimal.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr int kRead = 7;       // characters of the field
constexpr int kConverted = 5;  // kept: of seven characters of a tried value five count

std::int32_t ValueOf(WindowHandle dialog) {
  char text[kRead + 1] = "";
  ControlGetText(dialog, IDC_TRACE_VALUE, text, sizeof text);
  text[kConverted] = '\0';
  return DecimalParse(text);
}

// kept: the list of what a parameter's value would start is not emptied between two starts, so
// what they find piles up.
void Start(WindowHandle dialog) {
  ListQuiet quiet(dialog, IDC_TRACE_LINES);
  SnryWalkProgress(SnryTrace.slot, ValueOf(dialog), TraceLines(dialog));
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, TraceNameShow},
    {IDC_TRACE_START, Start},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void CheckParameterDlg3Run(WindowHandle owner) {
  SubDialogRun(SubDialog::CheckParameterDlg3, IDD_CheckParameterDlg3, owner, Handle);
}
