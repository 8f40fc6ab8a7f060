// mirrell_sys_file.svs. Numbers are big-endian, 32 bits, two's complement; texts
// are fixed fields of code page 932 bytes, terminated inside.
//
//  offset    size  field
//       0      20  magic
//      20       4  CharaIndex
//      24       4  MenuFrame
//      28       4  BlinkFrame
//      32      20  Bored1Frames
//      52      20  Bored2Frames
//      72       4  BoredDelaySel
//      76       4  BoredSpeedSel
//      80       4  BoredRepeatSel
//      84       4  StageX
//      88       4  StageY
//      92      12  AlarmCharaSel
//     104     676  CharaSet
//     780       4  ClockStrikeMode
//     784       4  ClockStrikeSel
//     788       4  ClockSoundOn
//     792     300  ClockSoundName
//    1092       1  ClockShow
//    1093       1  ClockDesign
//    1094       8  ClockX, ClockY
//    1102      12  reserved
//    1114       4  CalenSel
//    1118    1032  CalenNames, of the first 8 calendars
//    2150       8  CalenKinds, the same
//    2158       8  CalenParts, the same
//    2166       3  CalenYears
//    2169       1  CalenShow
//    2170       4  CalenYearPos
//    2174       4  CalenFirstYear
//    2178       4  CalenYearCount
//    2182       4  CalenCount
//    2186       4  CalenKind
//    2190  168192  CalenMonths
//  170382       8  CalenX, CalenY
//  170390       4  CalenPageSize
//  170394       4  CalenNoteMode
//  170398       4  CalenNearNote
//  170402       4  CalenPictureOn
//  170406       4  CalenBackColour
//  170410      60  CalenFigPhase
//  170470       2  CalenFigCount
//  170472     240  CalenFigPos1
//  170712     240  CalenFigPos2
//  170952       8  CalenFigPeriod
//  170960       8  CalenFigStep
//  170968       8  CalenFigTurn
//  170976      60  CalenFigDir
//  171036     600  DefaultSclName
//  171636     360  CalenMonthFlags
//  171996     720  ClockEvents
//  172716       4  BlinkSpeedSel
#include "shell/settings.h"

#include <cstring>
#include <iterator>

#include "character/character.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "schedule/model/schedule.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/record_file.h"

namespace {

constexpr char kMagic[] = "Mirrell System File:";

enum class Kind {
  Number,  // 32 bits, big-endian, of an std::int32_t
  Byte,    // the low byte of an std::int32_t; read back as 0 to 255
  Block,   // bytes as they stand
  Text,    // the same, terminated after the reading
  Record,  // records, which tell themselves how they lie in the file
  Clock,   // nothing in the file: here the clock's design is activated
};

// One row of the file: `count` elements of `size` bytes, one transfer each.
struct Field {
  Kind kind;
  void* at;
  int size;
  int count;
  bool (*read)(DataFile& data, void* record) = nullptr;
  bool (*write)(DataFile& data, const void* record) = nullptr;
  int step = 0;  // bytes from a record to the next in memory
};

constexpr int kNumberSize = 4;

constexpr Field Number(void* at, int count = 1) {
  return {Kind::Number, at, kNumberSize, count};
}
constexpr Field Byte(void* at) {
  return {Kind::Byte, at, 1, 1};
}
constexpr Field Block(void* at, int size, int count = 1) {
  return {Kind::Block, at, size, count};
}
constexpr Field Text(void* at, int size, int count = 1) {
  return {Kind::Text, at, size, count};
}
template <class T>
constexpr Field Records(T* at, int count) {
  return {
      Kind::Record,
      at,
      RecordSize<T>(),
      count,
      [](DataFile& data, void* record) { return RecordRead(data, *static_cast<T*>(record)); },
      [](DataFile& data, const void* record) { return RecordWrite(data, *static_cast<const T*>(record)); },
      sizeof(T)};
}
// kept: in the middle of every save and load the clock takes its design afresh.
constexpr Field ActivateClock() {
  return {Kind::Clock, nullptr, 0, 0};
}

constexpr Field kFields[] = {
    Number(&Character.CharaIndex),
    Number(&Character.MenuFrame),
    Number(&Character.BlinkFrame),
    Number(Character.Bored1Frames, kBoredFrameCount),
    Number(Character.Bored2Frames, kBoredFrameCount),
    Number(&Character.BoredDelaySel),
    Number(&Character.BoredSpeedSel),
    Number(&Character.BoredRepeatSel),
    Number(&Character.StageX),
    Number(&Character.StageY),
    Number(Character.AlarmCharaSel, kAlarmRowCount),
    Records(&Character.CharaSet, 1),
    Number(&Clock.ClockStrikeMode),
    Number(&Clock.ClockStrikeSel),
    Number(&Clock.ClockSoundOn),
    Text(Clock.ClockSoundName, kClockSoundSize),
    Byte(&Clock.ClockShow),
    Byte(&Clock.ClockDesign),
    Number(&Clock.ClockX),
    Number(&Clock.ClockY),
    Number(Clock.ClockReserved, kClockReservedCount),
    ActivateClock(),
    Number(&Calendar.CalenSel),
    Text(Calendar.CalenNames, kCalenNameSize, kCalenSettingsCount),
    Block(Calendar.CalenKinds, 1, kCalenSettingsCount),
    Block(Calendar.CalenParts, 1, kCalenSettingsCount),
    Block(Calendar.CalenYears, 1, kCalenYearMax),
    Byte(&Calendar.CalenShow),
    Number(&Calendar.CalenYearPos),
    Number(&Calendar.CalenFirstYear),
    Number(&Calendar.CalenYearCount),
    Number(&Calendar.CalenCount),
    Number(&Calendar.CalenKind),
    Records(Calendar.CalenMonths[0], kCalenYearMax* kMonthsOfYear),
    Number(&Calendar.CalenX),
    Number(&Calendar.CalenY),
    Number(&Calendar.CalenPageSize),
    Number(&Calendar.CalenNoteMode),
    Number(&Calendar.CalenNearNote),
    Number(&Calendar.CalenPictureOn),
    Block(Calendar.CalenBackColour, sizeof Calendar.CalenBackColour),
    Block(Calendar.CalenFigPhase, kFigureCopies, kFigureCount),
    Block(Calendar.CalenFigCount, 1, kFigureCount),
    Number(Calendar.CalenFigPos1, 2 * kFigureCopies),
    Number(Calendar.CalenFigPos2, 2 * kFigureCopies),
    Number(Calendar.CalenFigPeriod, kFigureCount),
    Number(Calendar.CalenFigStep, kFigureCount),
    Number(Calendar.CalenFigTurn, kFigureCount),
    Block(Calendar.CalenFigDir, kFigureCopies, kFigureCount),
    Text(Schedule.DefaultSclName, kSclPathSize),
    Records(Calendar.CalenMonthFlags[0], kCalenYearMax* kMonthsOfYear),
    Records(Clock.ClockEvents, kAlarmSlotCount),
    Number(&Character.BlinkSpeedSel),  // older files end before it
};

constexpr int SizeOfFields() {
  int size = kSysFileMagicSize;
  for (const Field& field : kFields) size += field.size * field.count;
  return size;
}
static_assert(sizeof kMagic - 1 == kSysFileMagicSize);
static_assert(SizeOfFields() == kSysFileSize);

void ReadElement(DataFile& data, const Field& field, int index) {
  switch (field.kind) {
    case Kind::Number:
      DataReadBE32(data, static_cast<std::int32_t*>(field.at)[index]);
      break;
    case Kind::Byte: {
      std::uint8_t byte = 0;
      if (DataReadByte(data, byte)) *static_cast<std::int32_t*>(field.at) = byte;
      break;
    }
    case Kind::Block:
    case Kind::Text: {
      char* element = static_cast<char*>(field.at) + field.size * index;
      DataRead(data, element, field.size);
      // bounded: a file may hold a text that fills its field.
      if (field.kind == Kind::Text) element[field.size - 1] = '\0';
      break;
    }
    case Kind::Record:
      field.read(data, static_cast<char*>(field.at) + field.step * index);
      break;
    case Kind::Clock:
      break;
  }
}

void WriteElement(DataFile& data, const Field& field, int index) {
  switch (field.kind) {
    case Kind::Number:
      DataWriteBE32(data, static_cast<std::uint32_t>(static_cast<const std::int32_t*>(field.at)[index]));
      break;
    case Kind::Byte:
      DataWriteByte(data, static_cast<std::uint8_t>(*static_cast<const std::int32_t*>(field.at)));
      break;
    case Kind::Block:
    case Kind::Text:
      DataWrite(data, static_cast<const char*>(field.at) + field.size * index, field.size);
      break;
    case Kind::Record:
      field.write(data, static_cast<const char*>(field.at) + field.step * index);
      break;
    case Kind::Clock:
      break;
  }
}

}  // namespace

int SysFilePath(char* buffer) {
  return RootPath(buffer, kRootPathSize, "\\mirrell_sys_file.svs");
}

int SysFileMagic(char* buffer) {
  std::memcpy(buffer, kMagic, kSysFileMagicSize);
  return kSysFileMagicSize;
}

int SysFileRead() {
  char path[kRootPathSize];
  SysFilePath(path);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::ReadDenyWrite)) return -1;
  char magic[kSysFileMagicSize + 1] = {};
  if (!DataRead(data, magic, kSysFileMagicSize)) return DataFailShort(data);
  if (std::strcmp(magic, kMagic) != 0) {
    // kept: a file of something else counts as read, so that the start goes on
    // with the state as it was.
    DataClose(data);
    FileResult.FileStatus = -2;
    return 0;
  }
  for (const Field& field : kFields) {
    const bool last = &field == std::end(kFields) - 1;
    if (field.kind == Kind::Clock) {
      Clock.ClockShowWanted = Clock.ClockShow;
      ClockReactivate();
    }
    for (int i = 0; i < field.count && !data.failed; ++i) ReadElement(data, field, i);
    if (data.failed && !last) return DataFailShort(data);
  }
  // kept: a file with its last field shows the calendar's picture, whatever its
  // own switch says; an older file is believed.
  if (!data.failed) Calendar.CalenPictureOn = 1;
  DataClose(data);
  return 0;
}

int SysFileWrite() {
  char path[kRootPathSize];
  SysFilePath(path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  DataWrite(data, kMagic, kSysFileMagicSize);
  for (const Field& field : kFields) {
    if (field.kind == Kind::Clock) ClockReactivate();
    for (int i = 0; i < field.count && !data.failed; ++i) WriteElement(data, field, i);
    if (data.failed) return DataFailShort(data);
  }
  DataClose(data);
  return 0;
}
