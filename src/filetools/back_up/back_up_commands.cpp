#include "filetools/back_up/back_up_commands.h"

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/file_picker.h"
#include "services/folder_pick.h"
#include "services/path.h"
#include "services/program.h"

namespace {

constexpr char kSettingsMask[] = "*.BUP";

WindowHandle Owner() {
  return Dialogs.hMenuDlg ? Dialogs.hMenuDlg : Program.hMainWnd;
}

void Tell(const char* text, const char* caption) {
  BoxTell(Owner(), text, caption);
}

void Add() {
  if (BackUpIsFull()) {
    Tell("バックアップファイルの登録最大数は１００個です", "ファイル登録リミット");
    return;
  }
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForLoad(Owner(), "*.*", path) == 0) return;
  if (BackUpAddSource(path) == 0) FileBackUpSetDlgShowLists();
}

void Folder() {
  if (FolderPickRun(ToolDialog::FileBackUpDirDlg, IDD_FileBackUpDirDlg, Owner(), BackUp.destDir,
                    sizeof BackUp.destDir) == 0) {
    return;
  }
  BackUp.dirty = true;
  BackUpRebuildDest();
  FileBackUpSetDlgShowCopies();
}

void Load() {
  constexpr char kCaption[] = "バックアップ設定読み込みエラー";
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForLoad(Owner(), kSettingsMask, path) == 0) return;
  switch (BackUpLoad(path)) {
    case 0:
      FileBackUpSetDlgShowLists();
      FileBackUpSetDlgShowComment();
      break;
    case -1:
      Tell("ファイルを開けません", kCaption);
      break;
    default:
      Tell("データが正しく読み込めません", kCaption);
  }
}

void Save() {
  constexpr char kCaption[] = "セーブエラー";
  FileBackUpSetDlgTakeComment();
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForSave(Owner(), kSettingsMask, path) == 0 || !OverwriteAllowed(Owner(), path)) return;
  const int status = BackUpSave(path);
  if (status == -1) Tell("ファイルを開けません", kCaption);
  // kept: back-up settings that could not be written whole are told by no box: the writer
  // says -2, and only 2 would be told.
  if (status == 2) Tell("ファイルセーブできません", kCaption);
}

}  // namespace

void BackUpGuarded(void (*action)()) {
  if (BackUpRun.busy) return;
  BackUpRun.busy = true;
  action();
  BackUpRun.busy = false;
}

void BackUpCommand() {
  FeatureDialogRun(Feature::FileBackUp, FileBackUpSetDlgRun);
}
void BackUpAddCommand() {
  BackUpGuarded(Add);
}
void BackUpFolderCommand() {
  BackUpGuarded(Folder);
}
void BackUpLoadCommand() {
  BackUpGuarded(Load);
}
void BackUpSaveCommand() {
  BackUpGuarded(Save);
}
