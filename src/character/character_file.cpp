#include "character/character_file.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "character/character.h"
#include "character/character_tables.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/record_file.h"
#include "services/text.h"

// The file, all numbers big-endian:
//   order  size     field
//     1    23       magic "Mirrell Character File:"
//     2    4        N, number of main characters
//     3    740 * N  main character records
//     4    4        A, number of alarm characters
//     5    4 * A    their character numbers
//     6    4 * N    second number list of the main characters
//     7    1        W, number of walking characters
//     8    2 * W    their character numbers
//     9    256 * W  their sound file names
//    10    1        C, number of clock designs
//    11    2 * C    their character numbers
//    12    464 * C  clock design records
//    13    50       WalkFlags, always all of them
//    14    4 * N    BlinkSpeedSel of the main characters; older files end here
//
// Reader and writer go through one list of parts, Parts; what differs is the
// transfer that they hand to it.

namespace {

constexpr char kMagic[] = "Mirrell Character File:";
constexpr int kMagicSize = sizeof kMagic - 1;
static_assert(kMagicSize == 23);

// A file is read into this copy first, so that a broken one changes nothing. Rows
// behind a file's counts keep what they held: a current character that is no longer
// listed stays as it was.
CharaTablesState staged;

struct ReadTransfer {
  DataFile data;
  bool badCount = false;

  bool Block(void* block, int size) { return DataRead(data, block, size); }
  bool Number(std::int32_t& value) { return DataReadBE32(data, value); }
  bool Number16(std::uint16_t& value) { return DataReadBE16(data, value); }
  template <class T>
  bool Records(T* records, int count) {
    return RecordsRead(data, records, count);
  }
  // bounded: a count of the character file that its table cannot hold makes the file bad
  // content.
  bool Count(std::int32_t& count, int most) {
    if (!DataReadBE32(data, count)) return false;
    badCount = count < 0 || count > most;
    return !badCount;
  }
  bool CountByte(std::int32_t& count, int most) {
    std::uint8_t narrow = 0;
    if (!DataReadByte(data, narrow)) return false;
    count = narrow;
    badCount = count > most;
    return !badCount;
  }
  // A count and its numbers. settled: alarm characters that the table has no room for are
  // passed over, so that what stands behind them is not lost with them.
  bool NumberList(std::int32_t& count, std::int32_t* numbers, int most) {
    if (!Count(count, std::numeric_limits<std::int32_t>::max())) return false;
    const std::int32_t listed = count;
    count = std::min(count, most);
    for (int i = 0; i < count && !data.failed; ++i) Number(numbers[i]);
    for (std::int32_t i = count, passedOver = 0; i < listed && !data.failed; ++i) Number(passedOver);
    return !data.failed;
  }
};

struct WriteTransfer {
  DataFile data;

  bool Block(const void* block, int size) { return DataWrite(data, block, size); }
  bool Number(std::int32_t value) { return DataWriteBE32(data, static_cast<std::uint32_t>(value)); }
  bool Number16(std::uint16_t value) { return DataWriteBE16(data, value); }
  template <class T>
  bool Records(const T* records, int count) {
    return RecordsWrite(data, records, count);
  }
  bool Count(std::int32_t count, int) { return Number(count); }
  bool CountByte(std::int32_t count, int) { return DataWriteByte(data, static_cast<std::uint8_t>(count)); }
  bool NumberList(std::int32_t count, const std::int32_t* numbers, int) {
    Number(count);
    for (int i = 0; i < count; ++i) Number(numbers[i]);
    return !data.failed;
  }
};

// All that follows the magic, but for the blink intervals.
template <class Transfer>
bool Parts(Transfer& t, CharaTablesState& f) {
  bool good = t.Count(f.MainCharaCount, kMainCharaMax) && t.Records(f.MainCharas, f.MainCharaCount) &&
              t.NumberList(f.AlarmCharaCount, f.AlarmCharas, kAlarmCharaMax);
  for (int i = 0; good && i < f.MainCharaCount; ++i) good = t.Number(f.MainCharas[i].secondNumber);
  good = good && t.CountByte(f.WalkCharaCount, kWalkCharaMax);
  for (int i = 0; good && i < f.WalkCharaCount; ++i) good = t.Number16(f.WalkCharas[i].number);
  for (int i = 0; good && i < f.WalkCharaCount; ++i) good = t.Block(f.WalkCharas[i].sound, kWalkSoundSize);
  good = good && t.CountByte(f.ClockDesignCount, kClockDesignMax);
  for (int i = 0; good && i < f.ClockDesignCount; ++i) good = t.Number16(f.ClockDesigns[i].number);
  for (int i = 0; good && i < f.ClockDesignCount; ++i) good = t.Records(&f.ClockDesigns[i].record, 1);
  return good && t.Block(f.WalkFlags, kWalkCharaMax);
}

// Part 14, an interval at a time: those that are there are taken.
bool ReadBlinkSpeeds(DataFile& data) {
  for (int i = 0; i < CharaTables.MainCharaCount; ++i) {
    if (!DataReadBE32(data, CharaTables.MainCharas[i].blinkSpeedSel)) return false;
  }
  return true;
}

// What a new data set holds whatever the tables say.
void SetFixedValues() {
  constexpr std::int32_t kAlarms[] = {6, 8, 9};
  constexpr std::int32_t kAlarmSelections[kAlarmRowCount] = {1, 1, 0};
  CharaTables.AlarmCharaCount = 3;
  std::memcpy(CharaTables.AlarmCharas, kAlarms, sizeof kAlarms);
  std::memcpy(Character.AlarmCharaSel, kAlarmSelections, sizeof kAlarmSelections);
  CharaTables.MainCharas[3].secondNumber = 4;
  for (int i = 2; i <= 3; ++i) {
    CharaSetRecord& set = CharaTables.MainCharas[i].charaSet;
    set.WalkStepX[0] = -28;
    set.WalkStepY[0] = -24;
    set.WalkPeriod[0] = 4;
    set.WalkCount[0] = 24;
  }
  for (int row = 0; row <= 3; ++row) CharaTables.WalkFlags[row] = 0;
  TextCopy(CharaTables.WalkCharas[1].sound, kWalkSoundSize, "foot1.wav");
  TextCopy(CharaTables.WalkCharas[2].sound, kWalkSoundSize, "foot2.wav");
}

}  // namespace

int CharaFilePath(char* buffer) {
  return RootPath(buffer, kCharaFilePathSize, "\\mirrell_chara_file.dcx");
}

int CharaFileRead() {
  char path[kCharaFilePathSize];
  CharaFilePath(path);
  ReadTransfer t;
  if (!DataOpenRead(t.data, path, OpenMode::Read)) return -1;
  char magic[kMagicSize];
  if (!t.Block(magic, kMagicSize)) return DataFailShort(t.data);
  const bool known = std::memcmp(magic, kMagic, kMagicSize) == 0;
  staged = CharaTables;
  if (!known || !Parts(t, staged)) {
    const bool bad = !known || t.badCount;
    DataFailShort(t.data);
    return bad ? -2 : -1;
  }
  CharaTables = staged;
  const bool whole = ReadBlinkSpeeds(t.data);
  DataClose(t.data);
  if (whole) ClockDesignsTakeListValues();
  return 0;
}

int CharaFileWrite() {
  SetFixedValues();
  staged = CharaTables;
  char path[kCharaFilePathSize];
  CharaFilePath(path);
  FileResult.FileStatus = 0;
  WriteTransfer t;
  if (!DataReplace(t.data, path)) return -1;
  bool good = t.Block(kMagic, kMagicSize) && Parts(t, staged);
  for (int i = 0; good && i < CharaTables.MainCharaCount; ++i)
    good = t.Number(CharaTables.MainCharas[i].blinkSpeedSel);
  if (!good) return DataFailShort(t.data);
  DataClose(t.data);
  return 0;
}
