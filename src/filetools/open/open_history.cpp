#include "filetools/open/open_history.h"

#include <algorithm>
#include <cstring>

#include "services/program.h"
#include "services/record_file.h"
#include "services/text.h"

OpnHistoryRec OpnHistory;

namespace {

constexpr char kName[] = "\\OpnFileHis.lis";
constexpr int kWalkerSoundSize = 256;  // of a walking character
constexpr int kFileSize = RecordSize<OpnHistoryRec>();

constexpr char (*kColumns[])[kOpnTextSize] = {OpnHistory.fileName, OpnHistory.filePath, OpnHistory.progName,
                                              OpnHistory.progPath};

}  // namespace

int OpnHisLoad() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) {
    OpnHisReset();
    return 0;
  }
  // settled: a damaged history file changes nothing in memory.
  unsigned char image[kFileSize];
  if (RecordBytesRead(data, image, kFileSize) != kFileSize || image[0] > kOpnFileMax) {
    return DataFailShort(data);
  }
  DataClose(data);
  RecordTake(OpnHistory, image, kFileSize);
  OpnHisBrowsedDrop();
  return 0;
}

int OpnHisSave() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  if (!RecordWrite(data, OpnHistory)) return DataFailShort(data);
  DataClose(data);
  return 0;
}

void OpnHisReset() {
  OpnHistory.fileCount = 0;
  OpnHistory.workCount = 0;
  std::memset(OpnHistory.openCount, 0, sizeof OpnHistory.openCount);
  for (auto* column : kColumns) {
    for (int row = 0; row < kOpnFileRows; ++row) column[row][0] = '\0';
  }
  OpnHistory.animeOn = 1;
  OpnHistory.soundOn = 1;
  OpnHistory.soundName[0] = '\0';
}

bool OpnHisBrowse(const char* name, const char* folder) {
  const int row = OpnHistory.fileCount;
  OpnTextSet(OpnHistory.fileName[row], name);
  OpnTextSet(OpnHistory.filePath[row], folder);
  OpnTextSet(OpnHistory.progName[row], "");
  OpnTextSet(OpnHistory.progPath[row], "");
  if (row < kOpnFileMax) OpnHistory.openCount[row] = 0;
  OpnHistory.workCount = std::min(row + 1, kOpnFileMax);
  return row < kOpnFileMax;
}

void OpnHisBrowsedTake() {
  OpnHistory.fileCount = static_cast<std::uint8_t>(OpnHistory.workCount);
}

void OpnHisBrowsedDrop() {
  OpnHistory.workCount = OpnHistory.fileCount;
}

int OpnHisFind(const char* name, const char* folder) {
  for (int row = 0; row < OpnHistory.workCount; ++row) {
    if (OpnTextSame(OpnHistory.fileName[row], name) && OpnTextSame(OpnHistory.filePath[row], folder)) {
      return row;
    }
  }
  return -1;
}

bool OpnHisProgramSet(int row, const char* name, const char* folder) {
  if (OpnTextSame(OpnHistory.progName[row], name) && OpnTextSame(OpnHistory.progPath[row], folder)) {
    return false;
  }
  OpnTextSet(OpnHistory.progName[row], name);
  OpnTextSet(OpnHistory.progPath[row], folder);
  return true;
}

void OpnHisRemove(int row) {
  if (row < 0 || row >= OpnHistory.fileCount) return;
  for (auto* column : kColumns) OpnRowRemove(column, row, kOpnFileRows);
  std::memmove(OpnHistory.openCount + row, OpnHistory.openCount + row + 1,
               static_cast<std::size_t>(kOpnFileMax - row - 1));
  --OpnHistory.fileCount;
  --OpnHistory.workCount;
}

void OpnHisToTop(int row) {
  if (row < 0 || row >= kOpnFileMax) return;
  for (auto* column : kColumns) OpnRowToTop(column, row);
  const std::uint8_t kept = OpnHistory.openCount[row];
  std::memmove(OpnHistory.openCount + 1, OpnHistory.openCount, static_cast<std::size_t>(row));
  OpnHistory.openCount[0] = kept;
}

void OpnHisClear() {
  OpnHistory.fileCount = 0;
  OpnHistory.workCount = 0;
  std::memset(OpnHistory.openCount, 0, sizeof OpnHistory.openCount);
  for (auto* column : kColumns) std::memset(column, 0, sizeof OpnHistory.fileName);
}

void OpnHisWalkSet(bool animeOn, bool soundOn, const char (&soundName)[kOpnTextSize]) {
  OpnHistory.animeOn = animeOn ? 1 : 0;
  OpnHistory.soundOn = soundOn ? 1 : 0;
  std::memcpy(OpnHistory.soundName, soundName, sizeof soundName);
}

void OpnHisWalkerSet(std::uint8_t balloonFlags, const char* sound) {
  OpnHistory.balloonFlags = balloonFlags;
  if (sound[0] != '\0') TextCopy(OpnHistory.soundName, kWalkerSoundSize, sound);
}
