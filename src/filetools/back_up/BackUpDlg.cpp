// BackUpDlg, "バックアップ実行中": a run, driven by the tick.

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/commands.h"

namespace {

void End(WindowHandle dialog) {
  if (BackUpRun.hBackUpDlg != dialog) return;
  BackUpRun.BackUpActive = false;
  BackUpRun.hBackUpDlg = nullptr;
  DialogEnd(dialog, 0);
}

void Step(WindowHandle dialog) {
  const int result = BackUpStep();
  if (result == 0) return;
  BackUpRun.completed = result > 0;
  if (!BackUpRun.completed) {
    BoxTell(dialog, "ファイルをコピーできません", "ファイルバックアップエラー");
  }
  End(dialog);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    BackUpRun.hBackUpDlg = event.window;
    BackUp.fileCursor = 0;
    BackUpRun.BackUpActive = true;
  } else if (CommandIs(event, Command::BackUpStep)) {
    Step(event.window);
  } else if (EndIsAsked(event)) {
    // kept: a back-up that is stopped ends without a word, and what was copied stays.
    End(event.window);
  } else {
    return false;
  }
  return true;
}

}  // namespace

bool BackUpDlgRun(WindowHandle owner) {
  BackUpRun.completed = false;
  DialogRun(IDD_BackUpDlg, owner, Handle);
  return BackUpRun.completed;
}

void BackUpTick() {
  if (BackUpRun.BackUpActive) CommandSendTo(BackUpRun.hBackUpDlg, Command::BackUpStep);
}

int BackUpDue() {
  return TickDueIf(BackUpRun.BackUpActive || BackUpRun.hBackUpDlg);
}
