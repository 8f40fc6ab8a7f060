// Loading and saving schedules, as the user asks for it.
#include "schedule/model/schedule_dialogs.h"
#include "schedule/model/scl_exec.h"
#include "schedule/model/scl_file.h"
#include "services/boxes.h"
#include "services/data_file.h"
#include "services/file_picker.h"
#include "services/path.h"

namespace {

constexpr char kCannotOpen[] = "ファイルを開けません";
constexpr BoxWords kLoadCannotOpen{kCannotOpen, "スケジュール表読み込みエラー"};
constexpr BoxWords kLoadBadContent{"データが正しく読み込めません", "スケジュール表読み込みエラー"};
constexpr BoxWords kSaveCannotOpen{kCannotOpen, "セーブエラー"};
constexpr BoxWords kSaveCannotWrite{"ファイルセーブできません", "セーブエラー"};

void SaveTo(WindowHandle owner, const char* path) {
  const int status = SclSaveFile(path);
  if (status == -1) BoxTell(owner, kSaveCannotOpen);
  // kept: a schedule that could not be written whole is told by no box: the writer says -2,
  // and only 2 would be told.
  if (status == 2) BoxTell(owner, kSaveCannotWrite);
  if (status != 0) return;
  SclDirtyClear(kSclTableChanged);
  SclExecSaved();
}

}  // namespace

bool SclLoadTell(WindowHandle owner, int status) {
  if (status != 0) BoxTell(owner, status == -1 ? kLoadCannotOpen : kLoadBadContent);
  return status == 0;
}

bool SclLoadRun(WindowHandle owner) {
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForLoad(owner, kSclMask, path) == 0) return false;
  if (!SclLoadTell(owner, SclLoadFile(path))) return false;
  SclExecLoaded();
  return true;
}

void SclSaveRun(WindowHandle owner) {
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForSave(owner, kSclMask, path) == 0 || !OverwriteAllowed(owner, path)) return;
  SaveTo(owner, path);
}

void SclOverwriteRun(WindowHandle owner) {
  if (Schedule.SclCurrentFile[0] == '\0') SclSaveRun(owner);
  // kept: a schedule that has no name yet is saved under none, which fails and is told, when the
  // choice of a name was cancelled.
  SaveTo(owner, Schedule.SclCurrentFile);
}
