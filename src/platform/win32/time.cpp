#include "platform/time.h"

#include <ctime>

#include "platform/win32/border.h"
#include "platform/win32/report.h"

namespace {
void FromSystemTime(const SYSTEMTIME& from, LocalTime* to) {
  *to = {from.wYear, from.wMonth,  from.wDay,    from.wDayOfWeek,
         from.wHour, from.wMinute, from.wSecond, from.wMilliseconds};
}
}  // namespace

void TimeGetLocal(LocalTime* time) {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  ReportTimeShift(&now);
  FromSystemTime(now, time);
}

bool TimeSetLocal(const LocalTime* time) {
  SYSTEMTIME value{};
  value.wYear = static_cast<WORD>(time->year);
  value.wMonth = static_cast<WORD>(time->month);
  value.wDay = static_cast<WORD>(time->day);
  value.wDayOfWeek = static_cast<WORD>(time->weekday);
  value.wHour = static_cast<WORD>(time->hour);
  value.wMinute = static_cast<WORD>(time->minute);
  value.wSecond = static_cast<WORD>(time->second);
  value.wMilliseconds = static_cast<WORD>(time->millisecond);
  return ReportTimeTake(value) || SetLocalTime(&value) != FALSE;
}

bool TimeFromFileTime(std::uint64_t fileTime, LocalTime* time) {
  const FILETIME raw{static_cast<DWORD>(fileTime), static_cast<DWORD>(fileTime >> 32U)};
  SYSTEMTIME utc{};
  SYSTEMTIME local{};
  if (!FileTimeToSystemTime(&raw, &utc) || !SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local)) {
    return false;
  }
  FromSystemTime(local, time);
  return true;
}

std::uint64_t TimeMilliseconds() {
  return GetTickCount64();
}

std::int64_t TimeSeconds() {
  return static_cast<std::int64_t>(std::time(nullptr));
}
