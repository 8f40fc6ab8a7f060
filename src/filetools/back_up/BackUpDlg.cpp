// BackUpDlg, "バックアップ実行中": a run, driven by the tick.

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/progress.h"

namespace {

void Begin() {
  BackUp.fileCursor = 0;
  BackUpRun.BackUpActive = true;
}

bool Step(int* completed) {
  const int result = BackUpStep();
  *completed = result > 0;
  return result != 0;
}

// kept: a back-up that is stopped ends without a word, and what was copied stays.
void End(bool /*stopped*/) {
  BackUpRun.BackUpActive = false;
}

void Tell(WindowHandle dialog, int completed) {
  if (!completed) BoxTell(dialog, "ファイルをコピーできません", "ファイルバックアップエラー");
}

constexpr Progress kRun{IDD_BackUpDlg, &BackUpRun.hBackUpDlg, Command::BackUpStep, Begin, Step, End, Tell, 0};

}  // namespace

bool BackUpDlgRun(WindowHandle owner) {
  return ProgressRun(kRun, owner) > 0;
}

void BackUpTick() {
  if (BackUpRun.BackUpActive) CommandSendTo(BackUpRun.hBackUpDlg, Command::BackUpStep);
}

int BackUpDue() {
  return TickDueIf(BackUpRun.BackUpActive || BackUpRun.hBackUpDlg);
}
