// SclApliListDialog, "スケジュール用アプリケーション選択".
#include "platform/dialog.h"
#include "schedule/applications/application_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/program.h"

namespace {

// The dialog ends with the chosen entry's number, behind those of its two buttons.
constexpr int kFirstEntry = kCancelButton;

void Show(WindowHandle dialog) {
  ListEditorShow(dialog, kApliEntries);
}

// settled: without a chosen application nothing is started, and the dialog stays.
void Start(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kApliEntries);
  if (row >= 0) MenuDialogEnd(dialog, kFirstEntry + row + 1);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Show}, {kOkButton, Start}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

std::int32_t SclApliListDialogRun() {
  ApliListRead();
  const int result =
      MenuDialogRun(MenuDialog::SclApliListDialog, IDD_SclApliListDialog, Program.hMainWnd, Handle);
  return result > kFirstEntry ? result - kFirstEntry : 0;
}
