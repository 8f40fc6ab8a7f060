// FileDivExeDlg, "ファイル分割中", and FileUnDivExeDlg, "ファイル復元中": a run,
// driven by the tick.

#include "filetools/divide/divide_dialogs.h"
#include "filetools/divide/file_divide.h"
#include "filetools/stepped_work.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/data_file.h"

namespace {

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
  if (Stepped.hSearchDlg != dialog) return;
  Stepped.hSearchDlg = nullptr;
  DialogEnd(dialog, 0);
}

// A step command that comes while a box of the dialog is up finds stepCounter at
// 0 and ends the dialog under the box.
void Step(WindowHandle dialog) {
  if (Stepped.stepCounter > 1) {
    const Kind& kind = Stepped.progressMode == kDivide.mode ? kDivide : kRestore;
    if (kind.step() != 0) Stepped.stepCounter = 0;
    if (FileResult.FileStatus != 0) {
      BoxTell(dialog, kind.failed, "分割エラー");
    } else if (Stepped.stepCounter == 0) {
      BoxTell(dialog, kind.finished, kind.finishedCaption);
    }
  }
  if (Stepped.stepCounter == 0) {
    Stepped.progressMode = 0;
    End(dialog);
  }
}

void Stop(WindowHandle dialog) {
  FileDivideStop();
  Stepped.progressMode = 0;
  End(dialog);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    Stepped.hSearchDlg = event.window;
    return true;
  }
  if (event.kind == EventKind::Close) {
    Stop(event.window);
    return true;
  }
  if (CommandIs(event, Command::WorkStep)) {
    Step(event.window);
    return true;
  }
  if (event.kind != EventKind::Pressed) return false;
  switch (event.id) {
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
  if (Stepped.hSearchDlg) {
    FileDivideStop();
    return;
  }
  Stepped.progressMode = kind.mode;
  if (DialogRun(kind.templateId, owner, Handle) < 0) FileDivideStop();
  Stepped.progressMode = 0;
}

}  // namespace

void FileDivExeDlgRun(WindowHandle owner) {
  Run(kDivide, owner);
}

void FileUnDivExeDlgRun(WindowHandle owner) {
  Run(kRestore, owner);
}
