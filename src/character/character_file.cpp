#include "character/character_file.h"

#include <cstring>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"

// The file, all numbers big-endian:
//   order  size     field
//     1    23       magic "Mirrell Character File:"
//     2    4        N, number of main characters
//     3    N * 740  main character records
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
// A main character record, 740 bytes:
//     0    4        CharaNo, kept as 16 bits
//     4    4        MenuFrame
//     8    4        BlinkFrame
//    12    20       Bored1Frames
//    32    20       Bored2Frames
//    52    4        BoredDelaySel
//    56    4        BoredSpeedSel
//    60    4        BoredRepeatSel
//    64    676      CharaSet
//
// Reader and writer go through one list of fields, Fields; what differs is the
// transfer that they hand to it.

namespace {

constexpr char kMagic[] = "Mirrell Character File:";
constexpr int kMagicSize = sizeof kMagic - 1;
static_assert(kMagicSize == 23);

// Everything that the file holds but the blink intervals.
struct Tables {
  std::int32_t mainCount;
  MainChara mains[kMainCharaMax];
  std::int32_t alarmCount;
  std::int32_t alarms[kAlarmCharaMax];
  std::int32_t walkCount;
  WalkChara walks[kWalkCharaMax];
  unsigned char walkFlags[kWalkCharaMax];
  std::int32_t designCount;
  ClockDesignRow designs[kClockDesignMax];
};

// A file is read into this copy first, so that a broken one changes nothing. Rows
// behind a file's counts keep what they held: a current character that is no longer
// listed stays as it was.
Tables staged;

void CopyIn(Tables& to) {
  to.mainCount = CharaTables.MainCharaCount;
  std::memcpy(to.mains, CharaTables.MainCharas, sizeof CharaTables.MainCharas);
  to.alarmCount = CharaTables.AlarmCharaCount;
  std::memcpy(to.alarms, CharaTables.AlarmCharas, sizeof CharaTables.AlarmCharas);
  to.walkCount = CharaTables.WalkCharaCount;
  std::memcpy(to.walks, CharaTables.WalkCharas, sizeof CharaTables.WalkCharas);
  std::memcpy(to.walkFlags, CharaTables.WalkFlags, sizeof CharaTables.WalkFlags);
  to.designCount = CharaTables.ClockDesignCount;
  std::memcpy(to.designs, CharaTables.ClockDesigns, sizeof CharaTables.ClockDesigns);
}

void CopyOut(const Tables& from) {
  CharaTables.MainCharaCount = from.mainCount;
  std::memcpy(CharaTables.MainCharas, from.mains, sizeof CharaTables.MainCharas);
  CharaTables.AlarmCharaCount = from.alarmCount;
  std::memcpy(CharaTables.AlarmCharas, from.alarms, sizeof CharaTables.AlarmCharas);
  CharaTables.WalkCharaCount = from.walkCount;
  std::memcpy(CharaTables.WalkCharas, from.walks, sizeof CharaTables.WalkCharas);
  std::memcpy(CharaTables.WalkFlags, from.walkFlags, sizeof CharaTables.WalkFlags);
  CharaTables.ClockDesignCount = from.designCount;
  std::memcpy(CharaTables.ClockDesigns, from.designs, sizeof CharaTables.ClockDesigns);
}

struct ReadTransfer {
  DataFile data;
  bool badCount = false;

  bool Block(void* block, int size) { return DataRead(data, block, size); }
  bool Number(std::int32_t& value) { return DataReadBE32(data, value); }
  bool Number32As16(std::uint16_t& value) {
    std::uint32_t wide = 0;
    if (DataReadBE32(data, wide)) value = static_cast<std::uint16_t>(wide);
    return !data.failed;
  }
  bool Number16(std::uint16_t& value) { return DataReadBE16(data, value); }
  // bounded: a count beyond its table is bad content; nothing behind it is read.
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
};

struct WriteTransfer {
  DataFile data;

  bool Block(const void* block, int size) { return DataWrite(data, block, size); }
  bool Number(std::int32_t value) { return DataWriteBE32(data, static_cast<std::uint32_t>(value)); }
  bool Number32As16(std::uint16_t value) { return DataWriteBE32(data, value); }
  bool Number16(std::uint16_t value) { return DataWriteBE16(data, value); }
  bool Count(std::int32_t count, int) { return Number(count); }
  bool CountByte(std::int32_t count, int) { return DataWriteByte(data, static_cast<std::uint8_t>(count)); }
};

template <class Transfer>
bool MainFields(Transfer& t, MainChara& m) {
  bool good = t.Number32As16(m.charaNo) && t.Number(m.menuFrame) && t.Number(m.blinkFrame);
  for (auto& frame : m.bored1Frames) good = good && t.Number(frame);
  for (auto& frame : m.bored2Frames) good = good && t.Number(frame);
  return good && t.Number(m.boredDelaySel) && t.Number(m.boredSpeedSel) && t.Number(m.boredRepeatSel) &&
         t.Block(m.charaSet, kCharaSetSize);
}

// Fields 2 to 13.
template <class Transfer>
bool Fields(Transfer& t, Tables& f) {
  bool good = t.Count(f.mainCount, kMainCharaMax);
  for (int i = 0; good && i < f.mainCount; ++i) good = MainFields(t, f.mains[i]);
  good = good && t.Count(f.alarmCount, kAlarmCharaMax);
  for (int i = 0; good && i < f.alarmCount; ++i) good = t.Number(f.alarms[i]);
  for (int i = 0; good && i < f.mainCount; ++i) good = t.Number(f.mains[i].secondNumber);
  good = good && t.CountByte(f.walkCount, kWalkCharaMax);
  for (int i = 0; good && i < f.walkCount; ++i) good = t.Number16(f.walks[i].number);
  for (int i = 0; good && i < f.walkCount; ++i) good = t.Block(f.walks[i].sound, kWalkSoundSize);
  good = good && t.CountByte(f.designCount, kClockDesignMax);
  for (int i = 0; good && i < f.designCount; ++i) good = t.Number16(f.designs[i].number);
  for (int i = 0; good && i < f.designCount; ++i) good = t.Block(f.designs[i].record, kClockDesignSize);
  return good && t.Block(f.walkFlags, kWalkCharaMax);
}

// Field 14, an interval at a time: those that are there are taken.
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
    unsigned char* set = CharaTables.MainCharas[i].charaSet;
    SetWalkStep(set, 0, -28, -24);
    SetWalkPeriod(set, 0, 4);
    SetWalkCount(set, 0, 24);
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
  CopyIn(staged);
  if (!known || !Fields(t, staged)) {
    const bool bad = !known || t.badCount;
    DataFailShort(t.data);
    return bad ? -2 : -1;
  }
  CopyOut(staged);
  const bool whole = ReadBlinkSpeeds(t.data);
  DataClose(t.data);
  if (whole) ClockDesignsTakeListValues();
  return 0;
}

int CharaFileWrite() {
  SetFixedValues();
  CopyIn(staged);
  char path[kCharaFilePathSize];
  CharaFilePath(path);
  FileResult.FileStatus = 0;
  WriteTransfer t;
  if (!DataReplace(t.data, path)) return -1;
  bool good = t.Block(kMagic, kMagicSize) && Fields(t, staged);
  for (int i = 0; good && i < CharaTables.MainCharaCount; ++i)
    good = t.Number(CharaTables.MainCharas[i].blinkSpeedSel);
  if (!good) return DataFailShort(t.data);
  DataClose(t.data);
  return 0;
}
