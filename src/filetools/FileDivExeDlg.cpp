// FileDivExeDlg, "ファイル分割中", and FileUnDivExeDlg, "ファイル復元中": a run,
// driven by the tick.

#include "filetools/divide_dialogs.h"
#include "filetools/file_divide.h"
#include "platform/dialog.h"
#include "resources/ids.h"
#include "shell/boxes.h"
#include "shell/data_file.h"
#include "shell/shell.h"

namespace {

constexpr std::uint32_t kStepCommand = 2376;

// Where the two dialogs differ.
struct Kind {
  std::int32_t mode;  // progressMode
  int templateId;
  int (*step)();
  const char* failed;
  const char* finished;
  const char* finishedCaption;
};

int RestoreStep() {
  return FileRestoreStep(FileDivide.sourcePath);
}

constexpr Kind kDivide{3,
                       IDD_FileDivExeDlg,
                       FileDivideStep,
                       "分割データファイルに書き込めません",
                       "ファイル分割を終了しました",
                       "分割を正常終了"};
constexpr Kind kRestore{4,
                        IDD_FileUnDivExeDlg,
                        RestoreStep,
                        "分割データファイルが読み込めません",
                        "ファイル復元を終了しました",
                        "復元を正常終了"};

void End(WindowHandle dialog) {
  if (hSearchDlg != dialog) return;
  hSearchDlg = nullptr;
  DialogEnd(dialog, 0);
}

// A step command that comes while a box of the dialog is up finds stepCounter at
// 0 and ends the dialog under the box.
void Step(WindowHandle dialog) {
  if (stepCounter > 1) {
    const Kind& kind = progressMode == kDivide.mode ? kDivide : kRestore;
    if (kind.step() != 0) stepCounter = 0;
    if (FileStatus != 0) {
      BoxTell(dialog, kind.failed, "分割エラー");
    } else if (stepCounter == 0) {
      BoxTell(dialog, kind.finished, kind.finishedCaption);
    }
  }
  if (stepCounter == 0) {
    progressMode = 0;
    End(dialog);
  }
}

void Stop(WindowHandle dialog) {
  FileDivideStop();
  progressMode = 0;
  End(dialog);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    hSearchDlg = event.window;
    return true;
  }
  if (event.kind == EventKind::Close) {
    Stop(event.window);
    return true;
  }
  if (event.kind != EventKind::Command) return false;
  switch (event.command) {
    case kStepCommand:
      Step(event.window);
      return true;
    case 1:
      // kept: this way out leaves the run where it is, its files open.
      End(event.window);
      return true;
    case 2:
      Stop(event.window);
      return true;
    default:
      return false;
  }
}

void Run(const Kind& kind, WindowHandle owner) {
  // The tick drives one work at a time; a command from outside may ask for another.
  if (hSearchDlg) {
    FileDivideStop();
    return;
  }
  progressMode = kind.mode;
  if (DialogRun(kind.templateId, owner, Handle) < 0) FileDivideStop();
  progressMode = 0;
}

}  // namespace

void FileDivExeDlgRun(WindowHandle owner) {
  Run(kDivide, owner);
}

void FileUnDivExeDlgRun(WindowHandle owner) {
  Run(kRestore, owner);
}
