// What the music table asks for with the file picker.
#include "mail_music/music/music.h"
#include "mail_music/music/music_window.h"
#include "platform/window.h"
#include "services/boxes.h"
#include "services/data_file.h"
#include "services/file_picker.h"
#include "services/path.h"

namespace {

constexpr char kCannotOpen[] = "ファイルを開けません";
constexpr BoxWords kLoadCannotOpen{kCannotOpen, "BGM設定読み込みエラー"};
constexpr BoxWords kLoadBadContent{"データが正しく読み込めません", "BGM設定読み込みエラー"};
constexpr BoxWords kSaveCannotOpen{kCannotOpen, "セーブエラー"};
constexpr char kAnyFile[] = "*.*";

}  // namespace

void BgmLoadRun(WindowHandle owner) {
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForLoad(owner, kAnyFile, path) == 0) return;
  const int status = BgmLoad(path);
  SendPaint(Music.hBgmWnd);
  if (status != 0) {
    BoxTell(owner, status == -1 ? kLoadCannotOpen : kLoadBadContent);
  } else {
    BgmWindowOpen();
  }
}

void BgmSaveRun(WindowHandle owner) {
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForSave(owner, kAnyFile, path) == 0 || !OverwriteAllowed(owner, path)) return;
  // kept: a music table that could not be written whole is told by no box.
  if (BgmSave(path) == -1) BoxTell(owner, kSaveCannotOpen);
}

void BgmFileRun(WindowHandle owner, int row) {
  char path[kPickPathSize] = "";
  if (PickFileForLoad(owner, kAnyFile, path) != 0) BgmFileSet(row, path);
}
