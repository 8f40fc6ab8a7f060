// FileDivExeDlg, "ファイル分割中", and FileUnDivExeDlg, "ファイル復元中": a run,
// driven by the tick.

#include "filetools/divide/divide_dialogs.h"
#include "filetools/divide/file_divide.h"
#include "filetools/stepped_work.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/data_file.h"
#include "services/dialog_acts.h"

namespace {

// Where the two dialogs differ.
struct Kind {
  SteppedWork work;
  int templateId;
  int (*step)();
  const char* failed;
  const char* finished;
  const char* finishedCaption;
};

int RestoreStep() {
  return FileRestoreStep(FileDivide.sourcePath);
}

constexpr Kind kDivide{kStepDivide,
                       IDD_FileDivExeDlg,
                       FileDivideStep,
                       "分割データファイルに書き込めません",
                       "ファイル分割を終了しました",
                       "分割を正常終了"};
constexpr Kind kRestore{kStepRestore,
                        IDD_FileUnDivExeDlg,
                        RestoreStep,
                        "分割データファイルが読み込めません",
                        "ファイル復元を終了しました",
                        "復元を正常終了"};

void End(WindowHandle dialog) {
  if (SteppedHidden(dialog)) DialogEnd(dialog, 0);
}

// kept: a step that comes while the last box of a division or restore is up ends the
// progress dialog under the box.
void Step(WindowHandle dialog) {
  if (Stepped.stepCounter > 1) {
    const Kind& kind = Stepped.progressMode == kDivide.work ? kDivide : kRestore;
    if (kind.step() != 0) SteppedNext(0);
    if (FileResult.FileStatus != 0) {
      BoxTell(dialog, kind.failed, "分割エラー");
    } else if (Stepped.stepCounter == 0) {
      BoxTell(dialog, kind.finished, kind.finishedCaption);
    }
  }
  if (Stepped.stepCounter == 0) {
    SteppedEnd();
    End(dialog);
  }
}

void Stop(WindowHandle dialog) {
  FileDivideStop();
  SteppedEnd();
  End(dialog);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, SteppedShown},
    {Command::WorkStep, Step},
    // kept: the Enter key ends the progress of a division or restore and leaves the run
    // where it is, its files open.
    {kOkButton, End},
    {kCancelButton, Stop},
    {EventKind::Close, Stop},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

void Run(const Kind& kind, WindowHandle owner) {
  // The tick drives one work at a time; a command from outside may ask for another.
  if (SteppedBusy()) {
    FileDivideStop();
    return;
  }
  SteppedBegin(kind.work);
  if (DialogRun(kind.templateId, owner, Handle) < 0) FileDivideStop();
  SteppedEnd();
}

}  // namespace

void FileDivExeDlgRun(WindowHandle owner) {
  Run(kDivide, owner);
}

void FileUnDivExeDlgRun(WindowHandle owner) {
  Run(kRestore, owner);
}
