#include "clock_calendar/clock.h"

#include <cstring>

#include "shell/text.h"

std::int32_t ClockStrikeMode;
std::int32_t ClockStrikeSel;
std::int32_t ClockSoundOn;
char ClockSoundName[kClockSoundSize];
std::int32_t ClockShow;
std::int32_t ClockDesign = kClockNone;
std::int32_t ClockX;
std::int32_t ClockY;
std::int32_t ClockReserved[kClockReservedCount];
std::int32_t ClockShowWanted;
std::int32_t ClockWanted = kClockNone;
unsigned char ClockEvents[kAlarmSlotCount][kAlarmSlotSize];

std::int32_t ClockPerformanceCount;
unsigned char ClockPerformances[kPerformanceMax][kPerformanceSize];

std::int32_t ClockListCount;
unsigned char ClockList[kClockDesignMax][kClockListSize];

AlarmSlot AlarmSlotGet(int slot) {
  const unsigned char* record = ClockEvents[slot];
  AlarmSlot value{record[kAlarmSlotEnabled] != 0,
                  record[kAlarmSlotHour],
                  record[kAlarmSlotMinute],
                  GetLE16(record + kAlarmSlotPerformance),
                  {}};
  std::memcpy(value.comment, record + kAlarmSlotComment, kAlarmCommentSize - 1);
  return value;
}

void AlarmSlotPut(int slot, const AlarmSlot& value) {
  unsigned char* record = ClockEvents[slot];
  record[kAlarmSlotEnabled] = value.enabled ? 1 : 0;
  record[kAlarmSlotHour] = static_cast<unsigned char>(value.hour);
  record[kAlarmSlotMinute] = static_cast<unsigned char>(value.minute);
  PutLE16(record + kAlarmSlotPerformance, static_cast<std::uint16_t>(value.performance));
  std::memset(record + kAlarmSlotComment, 0, kAlarmCommentSize);
  std::memcpy(record + kAlarmSlotComment, value.comment, TextLength(value.comment, kAlarmCommentSize - 1));
}
