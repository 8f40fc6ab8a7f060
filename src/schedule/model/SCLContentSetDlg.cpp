// SCLContentSetDlg, "内容設定", and SCLTitleDlg, "表タイトル": one text each.
#include "platform/dialog.h"
#include "resources/schedule_model_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

// A text of a record in the dialog's one field.
template <int size>
struct Edited {
  using Text = char[size];

  static void Exchange(Form& form, Text& text) { form.Text(IDC_SCL_TEXT, text); }
  static Text& Of(const Event& event) { return *static_cast<Text*>(event.context); }

  static void Open(const Event& event) {
    FormShow(event.window, Of(event), Exchange);
    ControlSetLimit(event.window, IDC_SCL_TEXT, size - 1);
  }
  static void Confirm(const Event& event) {
    FormTake(event.window, Of(event), Exchange);
    ToolDialogEnd(event.window, kOkButton);
  }
  static bool Handle(const Event& event) {
    constexpr DialogAct kActs[] = {{EventKind::Init, Open}, {kOkButton, Confirm}};
    return DialogActRun(event, kActs);
  }
};

}  // namespace

bool SCLContentSetDlgRun(ToolDialog number, WindowHandle owner, char (&text)[kSclItemTextSize]) {
  return ToolDialogRun(number, IDD_SCLContentSetDlg, owner, Edited<kSclItemTextSize>::Handle, &text) ==
         kOkButton;
}

bool SCLTitleDlgRun(ToolDialog number, WindowHandle owner) {
  return ToolDialogRun(number, IDD_SCLTitleDlg, owner, Edited<kSclTitleSize>::Handle,
                       &Schedule.SclHeader.title) == kOkButton;
}
