#include "platform/time.h"

#include <sys/time.h>

#include <ctime>

#include "platform/posix/test_clock.h"

namespace {
bool fixed = false;
bool forbidden = false;
LocalTime fixedTime{};
std::uint64_t fixedMilliseconds = 0;

void FromTm(const tm& from, int millisecond, LocalTime* to) {
  *to = {from.tm_year + 1900, from.tm_mon + 1, from.tm_mday, from.tm_wday,
         from.tm_hour,        from.tm_min,     from.tm_sec,  millisecond};
}
}  // namespace

void TestClockSet(const LocalTime& time) {
  fixed = true;
  fixedTime = time;
}

void TestClockPass(unsigned milliseconds) {
  fixedMilliseconds += milliseconds;
}

void TestClockGo(unsigned milliseconds) {
  constexpr unsigned kSecond = 1000;
  fixedMilliseconds += milliseconds;
  const unsigned all = static_cast<unsigned>(fixedTime.millisecond) + milliseconds;
  tm at{};
  at.tm_year = fixedTime.year - 1900;
  at.tm_mon = fixedTime.month - 1;
  at.tm_mday = fixedTime.day;
  at.tm_hour = fixedTime.hour;
  at.tm_min = fixedTime.minute;
  at.tm_sec = fixedTime.second;
  const std::time_t seconds = timegm(&at) + static_cast<std::time_t>(all / kSecond);
  gmtime_r(&seconds, &at);
  FromTm(at, static_cast<int>(all % kSecond), &fixedTime);
}

void TestClockForbid(bool now) {
  forbidden = now;
}

void TestClockClear() {
  forbidden = false;
  fixed = false;
}

void TimeGetLocal(LocalTime* time) {
  if (fixed) {
    *time = fixedTime;
    return;
  }
  timeval now{};
  gettimeofday(&now, nullptr);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  FromTm(local, static_cast<int>(now.tv_usec / 1000), time);
}

// The native build never touches the machine's clock: only the one of the test.
bool TimeSetLocal(const LocalTime* time) {
  if (forbidden) return false;
  TestClockSet(*time);
  return true;
}

bool TimeFromFileTime(std::uint64_t fileTime, LocalTime* time) {
  constexpr std::uint64_t kEpochDifference = 116444736000000000ULL;
  if (fileTime < kEpochDifference) return false;
  const std::uint64_t since = fileTime - kEpochDifference;
  const auto seconds = static_cast<std::time_t>(since / 10000000ULL);
  tm local{};
  localtime_r(&seconds, &local);
  FromTm(local, static_cast<int>(since % 10000000ULL / 10000ULL), time);
  return true;
}

std::uint64_t TimeMilliseconds() {
  if (fixed) return fixedMilliseconds;
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint64_t>(now.tv_sec) * 1000U + static_cast<std::uint64_t>(now.tv_nsec) / 1000000U;
}

std::int64_t TimeSeconds() {
  return static_cast<std::int64_t>(std::time(nullptr));
}
