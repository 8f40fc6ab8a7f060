// The alarms of the executing schedule: which of its lines are announced today, and when.
#pragma once

#include <cstdint>

#include "platform/time.h"
#include "schedule/model/schedule.h"

// An announcement of the day, in the order of the items.
struct SclAlarmEntry {
  std::int16_t item;  // from 0
  std::uint8_t startHour;
  std::uint8_t startMinute;
  std::uint8_t endHour;
  std::uint8_t endMinute;
  bool fired;
};

struct SclAlarmState {
  SclAlarmEntry entries[kSclItemMax] = {};
  std::int32_t count = 0;
  // The day that the list is of: the four-digit year, 0 for none, and month and day from 1.
  std::int32_t year = 0;
  std::int32_t month = 0;
  std::int32_t day = 0;
  SclWorkDayRow row = {};     // that day's work hours
  std::int32_t announce = 0;  // the item to announce, from 1; 0 for none
  // Nothing comes before this minute is over: day, hour and minute as one number, 0 for
  // none such.
  std::int64_t quietMinute = 0;
};
extern SclAlarmState SclAlarm;

// Where a day lies in an item's time.
enum class DaySpan { Outside = 0, Inside = 1, First = 2, Last = 3, Only = 4 };
DaySpan SclDaySpan(const SclItemRec& item, const SclDate& day);

// The times of an item on a day of which these are the work hours: those of its own start
// and end, and the day's begin and end for what lies outside. False when the item has no
// time on that day.
struct SclDayTimes {
  int startHour;
  int startMinute;
  int endHour;
  int endMinute;
};
bool SclDayTimesOf(const SclItemRec& item, const SclDate& day, const SclWorkDayRow& row, SclDayTimes& times);

// Looks whether an announcement is due at that local time. Returns 1 when there is one: the
// item is in SclAlarm.announce. Called on every tick while SclAlarmFlag is set.
int SclTickCheck(const LocalTime& now);

// Forgets the day, its list and what has been announced: another schedule is carried out.
void SclAlarmsForget();

// The minute of that time as one number.
std::int64_t SclMinuteOf(const LocalTime& now);
