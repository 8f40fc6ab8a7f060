#include "platform/file.h"
#include "scenario/storage/snry_list_file.h"
#include "scenario/storage/snry_paths.h"
#include "services/boxes.h"
#include "services/program.h"

namespace {

constexpr BoxWords kNoFolder{"シナリオメインフォルダーを作成できません", "シナリオセーブ失敗"};
constexpr BoxWords kNotMade{"シナリオメインリストファイルを作成できません", "シナリオセーブ失敗"};
constexpr BoxWords kWrong{"シナリオメインリストファイルが正しくありません。削除して新規作成しますか?",
                          "シナリオリスト読み込みエラー"};
constexpr BoxWords kNotRead{"シナリオメインリストファイルを開けません", "シナリオセーブ失敗"};

int Fail(WindowHandle owner, const BoxWords& words, int step) {
  BoxTell(owner, words);
  return step;
}

// Enters the folder of the world; makes it when it is not there.
bool EnterWorld() {
  char world[kRootPathSize];
  SnryWorldPath(world, sizeof world);
  if (FolderSetCurrent(world)) return true;
  return FolderCreate(world) && FolderSetCurrent(world);
}

int MakeEmpty() {
  SnryList.count = 0;
  return SnryListWrite();
}

}  // namespace

int SnryOpenList(WindowHandle owner) {
  if (!EnterWorld()) return Fail(owner, kNoFolder, -1);
  int result = SnryListRead();
  if (result == -1 && MakeEmpty() != 0) return Fail(owner, kNotMade, -2);
  if (result == -1) result = SnryListRead();
  if (result != 0 && BoxAsk(owner, kWrong) && MakeEmpty() != 0) return Fail(owner, kNotMade, -3);
  return SnryListRead() == 0 ? 0 : Fail(owner, kNotRead, -4);
}
