// "背景を追加": a bitmap file for the scenario's folder of backgrounds.

#include "platform/dialog.h"
#include "platform/file.h"
#include "scenario/cast/cast_backdrop.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/storage/snry_paths.h"
#include "services/boxes.h"
#include "services/path.h"
#include "services/text.h"

namespace {

constexpr BoxWords kReplace{"同じ名前のファイルがあります。コピーしますか?", "背景ファイルコピーの確認"};
// kept: a background that cannot be copied is told under the caption of the file back-up.
constexpr BoxWords kNotCopied{"ファイルをコピーできません", "ファイルバックアップエラー"};

// Where the file goes: its name, in the folder.
void Target(char* path, int size) {
  PathSplit(CastBackdrop.source);
  const auto room = static_cast<std::size_t>(size);
  SnryMainPart(path, size, kSnryBackFolder);
  TextAppend(path, room, "\\");
  TextAppend(path, room, PathParts.PathName);
}

bool Copy() {
  char path[kSnryLongPath];
  Target(path, sizeof path);
  return FileCopy(CastBackdrop.source, path, false);
}

bool TargetIsThere() {
  char path[kSnryLongPath];
  Target(path, sizeof path);
  return FileExists(path) != 0;
}

}  // namespace

void SnryBackgroundAdd(WindowHandle owner) {
  CastBackdrop.source[0] = '\0';
  if (!FileDialogLoad(owner, "背景を追加", "BitMap Files (*.BMP)", "*.BMP", "", CastBackdrop.source,
                      sizeof CastBackdrop.source))
    return;
  if (TargetIsThere() && !BoxAsk(owner, kReplace)) return;
  if (!Copy()) BoxTell(owner, kNotCopied);
}
