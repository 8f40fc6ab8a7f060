// mirrell_sys_file.svs. Numbers are big-endian, 32 bits, two's complement; texts
// are fixed fields of code page 932 bytes, terminated inside. Each feature tells its own
// part of the file.
//
//  offset    size  part
//       0      20  magic
//      20     760  character, character/character_settings.h
//     780     334  clock, clock_calendar/clock/clock_settings.h
//    1114  169922  calendars, clock_calendar/calendar/calendar_settings.h
//  171036     600  schedule, schedule/model/schedule_settings.h
//  171636     360  the calendars' months
//  171996     720  the clock's alarms
//  172716       4  the character's blinking; older files end before it
#include "shell/settings.h"

#include <cstring>

#include "character/character_settings.h"
#include "clock_calendar/calendar/calendar_settings.h"
#include "clock_calendar/clock/clock_settings.h"
#include "schedule/model/schedule_settings.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/record_file.h"

namespace {

constexpr char kMagic[] = "Mirrell System File:";
static_assert(sizeof kMagic - 1 == kSysFileMagicSize);

template <class... Part>
constexpr int kSizeOf = (RecordSize<Part>() + ...);
static_assert(kSysFileMagicSize +
                  kSizeOf<CharacterSettings, ClockSettings, CalendarSettings, ScheduleSettings,
                          CalendarMonthSettings, ClockAlarmSettings, CharacterLateSettings> ==
              kSysFileSize);

struct Reading {
  DataFile data;

  template <class Settings>
  bool Part() {
    Settings settings;
    return RecordRead(data, settings);
  }
  bool ClockIsThrough() {
    ClockSettingsTaken();
    return true;
  }
};

struct Writing {
  DataFile data;

  template <class Settings>
  bool Part() {
    return RecordWrite(data, Settings{});
  }
  bool ClockIsThrough() {
    ClockReactivate();
    return true;
  }
};

// All of the file but what older ones lack.
// kept: in the middle of every save and load the clock takes its design afresh.
template <class Transfer>
bool Parts(Transfer& t) {
  return t.template Part<CharacterSettings>() && t.template Part<ClockSettings>() && t.ClockIsThrough() &&
         t.template Part<CalendarSettings>() && t.template Part<ScheduleSettings>() &&
         t.template Part<CalendarMonthSettings>() && t.template Part<ClockAlarmSettings>();
}

// The rest.
template <class Transfer>
bool LatePart(Transfer& t) {
  return t.template Part<CharacterLateSettings>();
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
  Reading file;
  if (!DataOpenRead(file.data, path, OpenMode::ReadDenyWrite)) return -1;
  char magic[kSysFileMagicSize + 1] = {};
  if (!DataRead(file.data, magic, kSysFileMagicSize)) return DataFailShort(file.data);
  if (std::strcmp(magic, kMagic) != 0) {
    // kept: a settings file that is something else counts as read, so that the start goes
    // on with the state as it was.
    DataClose(file.data);
    FileResult.FileStatus = -2;
    return 0;
  }
  if (!Parts(file)) return DataFailShort(file.data);
  if (LatePart(file)) CalendarSettingsTaken();
  DataClose(file.data);
  return 0;
}

int SysFileWrite() {
  char path[kRootPathSize];
  SysFilePath(path);
  FileResult.FileStatus = 0;
  Writing file;
  if (!DataReplace(file.data, path)) return -1;
  DataWrite(file.data, kMagic, kSysFileMagicSize);
  if (file.data.failed || !Parts(file) || !LatePart(file)) return DataFailShort(file.data);
  DataClose(file.data);
  return 0;
}
