#include "filetools/open/open_history.h"

#include <cstring>
#include <initializer_list>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "filetools/open/open_choice.h"
#include "filetools/open/open_state.h"
#include "filetools/open/open_text.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"

namespace {

constexpr char kName[] = "\\OpnFileHis.lis";

constexpr int kFileSize = 240804;

// The file's bytes, read in one go; a damaged file changes nothing.
unsigned char image[kFileSize];

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
  const bool whole = DataRead(data, image, kFileSize);
  if (!whole || image[0] > kOpnFileMax) return DataFailShort(data);
  DataClose(data);
  const unsigned char* at = image;
  Fields(OpnHistory, [&](void* to, int size) {
    std::memcpy(to, at, static_cast<std::size_t>(size));
    at += size;
    return true;
  });
  OpnWork.fileCount = OpnHistory.fileCount;
  return 0;
}

int OpnHisSave() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  FileResult.FileStatus = 0;
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
  OpnWork.fileCount = 0;
  std::memset(OpnHistory.openCount, 0, sizeof OpnHistory.openCount);
  for (int i = 0; i < kOpnFileRows; ++i) {
    OpnHistory.fileName[i][0] = OpnHistory.filePath[i][0] = '\0';
    OpnHistory.progName[i][0] = OpnHistory.progPath[i][0] = '\0';
  }
  OpnHistory.animeOn = 1;
  OpnHistory.soundOn = 1;
  OpnHistory.soundName[0] = '\0';
}

void OpnHisRemove(int row) {
  if (row < 0 || row >= OpnHistory.fileCount) return;
  for (auto* column : {OpnHistory.fileName, OpnHistory.filePath, OpnHistory.progName, OpnHistory.progPath}) {
    OpnRowRemove(column, row, kOpnFileRows);
  }
  std::memmove(OpnHistory.openCount + row, OpnHistory.openCount + row + 1,
               static_cast<std::size_t>(kOpnFileMax - row - 1));
  --OpnHistory.fileCount;
  --OpnWork.fileCount;
}

void OpnHisToTop(int row) {
  if (row < 0 || row >= kOpnFileMax) return;
  for (auto* column : {OpnHistory.fileName, OpnHistory.filePath, OpnHistory.progName, OpnHistory.progPath}) {
    OpnRowToTop(column, row);
  }
  const std::uint8_t kept = OpnHistory.openCount[row];
  std::memmove(OpnHistory.openCount + 1, OpnHistory.openCount, static_cast<std::size_t>(row));
  OpnHistory.openCount[0] = kept;
}

void OpnHisClear() {
  OpnHistory.fileCount = 0;
  OpnWork.fileCount = 0;
  std::memset(OpnHistory.openCount, 0, sizeof OpnHistory.openCount);
  for (auto* column : {OpnHistory.fileName, OpnHistory.filePath, OpnHistory.progName, OpnHistory.progPath}) {
    std::memset(column, 0, sizeof OpnHistory.fileName);
  }
}

void OpnHisTakeWalkSettings() {
  const int row = Character.CharaSet.WalkRow[0];
  if (row < 1 || row > kWalkCharaMax) return;  // bounded: walking rows end there
  // A browsed file that waits for its start stands in memory only: reading again
  // would lose it, and the rest of memory is what the file holds.
  const bool waits = OpnWork.fileCount != OpnHistory.fileCount;
  if (!waits && OpnHisLoad() != 0) return;
  OpnHistory.balloonFlags = CharaTables.WalkFlags[row - 1];
  const char* sound = CharaTables.WalkCharas[row - 1].sound;
  if (sound[0] != '\0') TextCopy(OpnHistory.soundName, kWalkSoundSize, sound);
  OpnHisSave();
}
