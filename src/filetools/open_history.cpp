#include "filetools/open_history.h"

#include <cstring>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "filetools/open_state.h"
#include "shell/data_file.h"
#include "shell/shell.h"
#include "shell/text.h"

namespace {

constexpr char kName[] = "\\OpnFileHis.lis";

// A file is read into this copy first, so that a damaged one changes nothing.
OpnHistoryRec staged;

// Reader and writer go through the one list of fields; `field` moves a block.
template <class Field>
bool Fields(OpnHistoryRec& h, Field field) {
  bool good = field(&h.fileCount, 1) && field(h.openCount, kOpnFileMax);
  for (int i = 0; good && i < kOpnFileMax; ++i) {
    good = field(h.fileName[i], kOpnTextSize) && field(h.filePath[i], kOpnTextSize);
  }
  for (int i = 0; good && i < kOpnFileMax; ++i) {
    good = field(h.progName[i], kOpnTextSize) && field(h.progPath[i], kOpnTextSize);
  }
  return good && field(&h.animeOn, 1) && field(&h.soundOn, 1) && field(h.reservedText, kOpnTextSize) &&
         field(h.soundName, kOpnTextSize) && field(&h.balloonFlags, 1);
}

}  // namespace

int OpnHisLoad() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) {
    OpnHisReset();
    return 0;
  }
  const bool whole = Fields(staged, [&](void* to, int size) { return DataRead(data, to, size); });
  if (!whole || staged.fileCount > kOpnFileMax) return DataFailShort(data);
  DataClose(data);
  OpnHistory = staged;
  return 0;
}

int OpnHisSave() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  if (!Fields(OpnHistory, [&](const void* from, int size) { return DataWrite(data, from, size); })) {
    return DataFailShort(data);
  }
  DataClose(data);
  return 0;
}

void OpnHisReset() {
  OpnHistory.fileCount = 0;
  std::memset(OpnHistory.openCount, 0, sizeof OpnHistory.openCount);
  for (int i = 0; i < kOpnFileRows; ++i) {
    OpnHistory.fileName[i][0] = OpnHistory.filePath[i][0] = '\0';
    OpnHistory.progName[i][0] = OpnHistory.progPath[i][0] = '\0';
  }
  OpnHistory.animeOn = 1;
  OpnHistory.soundOn = 1;
  OpnHistory.soundName[0] = '\0';
}

void OpnHisTakeWalkSettings() {
  const int row = WalkRow(CharaSet);
  if (row < 1 || row > kWalkCharaMax) return;  // bounded: walking rows end there
  if (OpnHisLoad() != 0) return;
  OpnHistory.balloonFlags = WalkFlags[row - 1];
  const char* sound = WalkCharas[row - 1].sound;
  if (sound[0] != '\0') TextCopy(OpnHistory.soundName, kWalkSoundSize, sound);
  OpnHisSave();
}
