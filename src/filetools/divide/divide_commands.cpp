#include "filetools/divide/divide_commands.h"

#include "filetools/divide/divide_dialogs.h"
#include "filetools/divide/file_divide.h"
#include "filetools/stepped_work.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/file_picker.h"
#include "services/folder_pick.h"
#include "services/program.h"
#include "services/text.h"

namespace {

WindowHandle Owner() {
  return Dialogs.hMenuDlg ? Dialogs.hMenuDlg : Program.hMainWnd;
}

// Runs an action unless another one of these is still running.
void Guarded(void (*action)()) {
  if (FileDivide.busy) return;
  FileDivide.busy = true;
  action();
  FileDivide.busy = false;
}

bool Pick(const char* mask) {
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForLoad(Owner(), mask, path) == 0) return false;
  TextCopy(FileDivide.sourcePath, sizeof FileDivide.sourcePath, path);
  return true;
}

void PickSource() {
  if (!Pick("*.*")) return;
  FileDivide.sourceSize = DivFileSize(FileDivide.sourcePath);
  DivideDialogShow();
  DivideDialogPaint();
}

void PickCof() {
  if (Pick("*.COF")) DivideDialogShow();
}

void PickFolder(ToolDialog dialogId, int templateId) {
  if (FolderPickRun(dialogId, templateId, Owner(), FileDivide.storeDir, sizeof FileDivide.storeDir) != 0) {
    DivideDialogShow();
  }
}

void PickDivideFolder() {
  PickFolder(ToolDialog::FileDivFileDlg, IDD_FileDivFileDlg);
}
void PickRestoreFolder() {
  PickFolder(ToolDialog::FileUDivFileDlg, IDD_FileUDivFileDlg);
}

void Tell(const char* text) {
  BoxTell(Owner(), text, "分割エラー");
}

// kept: a source or joining file that does not open, and a joining file that cannot be
// made, are told by two boxes in a row.
void TellStartFailed(int status, const char* general) {
  if (status == kDivCannotOpen) Tell("分割ソースファイルが開けません");
  if (status == kDivCofNotMade) Tell("合成用ファイルが開けません");
  Tell(general);
}

// The first step, with the banner up meanwhile.
int Start(int (*step)()) {
  FileDivide.banner = true;
  DivideDialogPaint();
  SteppedNext(1);
  const int status = step();
  FileDivide.banner = false;
  DivideDialogPaint();
  return status;
}

int RestoreStep() {
  return FileRestoreStep(FileDivide.sourcePath);
}

void Divide() {
  FileDivideSetDlg2Take();
  // settled: a source of 2 GiB and more is refused before anything is written; the sizes in
  // a joining file are signed numbers of 32 bits, and its pieces would be empty.
  if (DivSourceTooLarge()) {
    Tell("分割ソースファイルが大きすぎます(2GB未満のファイルを分割できます)");
    return;
  }
  if (FileDivide.encryptFlag != 0) {
    FileDivKeyWordDlgRun(Dialogs.hMenuDlg);
    if (FileDivide.keywordLength == 0) return;
  }
  const int status = Start(FileDivideStep);
  if (status != 0) {
    SteppedNext(0);
    TellStartFailed(status, "分割データファイルに書き込めません");
    return;
  }
  FileDivExeDlgRun(Dialogs.hMenuDlg);
}

void Restore() {
  if (CofReadFlag(FileDivide.sourcePath) != 0) {
    FileDivKeyWordDlg2Run(Dialogs.hMenuDlg);
    if (FileDivide.keywordLength == 0) return;
  }
  const int status = Start(RestoreStep);
  if (status != 0) TellStartFailed(status, "分割データファイルが読み込めません");
  // kept: after a failed first step of a restore the progress dialog opens all the same and
  // stands until it is stopped.
  FileUnDivExeDlgRun(Dialogs.hMenuDlg);
}

void RunOpenDialog() {
  if (SteppedBusy()) return;  // a search is running; no file is replaced for a run that cannot go on
  if (Dialogs.DlgIdMenu == MenuDialog::FileDivideSetDlg2) Divide();
  if (Dialogs.DlgIdMenu == MenuDialog::FileDivideSetDlg3) Restore();
}

}  // namespace

void DivideMenuCommand() {
  const int chosen = FeatureDialogRun(Feature::DivideChoice, FileDivideSetDlgRun);
  if (chosen == kChoseDivide) CommandSend(Command::Divide);
  if (chosen == kChoseRestore) CommandSend(Command::Restore);
}

void DivideCommand() {
  FeatureDialogRun(Feature::Divide, FileDivideSetDlg2Run);
}
void RestoreCommand() {
  FeatureDialogRun(Feature::Restore, FileDivideSetDlg3Run);
}
void DividePickCommand() {
  Guarded(PickSource);
}
void DivideFolderCommand() {
  Guarded(PickDivideFolder);
}
void DivideRunCommand() {
  Guarded(RunOpenDialog);
}
void RestorePickCommand() {
  Guarded(PickCof);
}
void RestoreFolderCommand() {
  Guarded(PickRestoreFolder);
}
