#include "clock_calendar/clock/clock.h"

#include <cstring>

#include "services/text.h"

ClockState Clock;

AlarmSlot AlarmSlotGet(int slot) {
  const unsigned char* record = Clock.ClockEvents[slot];
  AlarmSlot value{record[kAlarmSlotEnabled] != 0,
                  record[kAlarmSlotHour],
                  record[kAlarmSlotMinute],
                  GetLE16(record + kAlarmSlotPerformance),
                  {}};
  std::memcpy(value.comment, record + kAlarmSlotComment, kAlarmCommentSize - 1);
  return value;
}

void AlarmSlotPut(int slot, const AlarmSlot& value) {
  unsigned char* record = Clock.ClockEvents[slot];
  record[kAlarmSlotEnabled] = value.enabled ? 1 : 0;
  record[kAlarmSlotHour] = static_cast<unsigned char>(value.hour);
  record[kAlarmSlotMinute] = static_cast<unsigned char>(value.minute);
  PutLE16(record + kAlarmSlotPerformance, static_cast<std::uint16_t>(value.performance));
  std::memset(record + kAlarmSlotComment, 0, kAlarmCommentSize);
  std::memcpy(record + kAlarmSlotComment, value.comment, TextLength(value.comment, kAlarmCommentSize - 1));
}
