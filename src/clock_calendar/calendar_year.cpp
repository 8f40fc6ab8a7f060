// The years of the working array: which they are, their month tables, and how a
// sheet gets into them.
#include <algorithm>
#include <cstring>

#include "clock_calendar/calendar.h"
#include "platform/time.h"
#include "shell/text.h"

namespace {

constexpr int kNoYear = 100;  // stands in the list for years the system does not know
constexpr int kFirstCalendars = 3;

constexpr const char* kDefaultNames[kCalenSettingsCount] = {
    "月ごとカレンダー",        "1週間カレンダー(日付縦)", "日めくりカレンダー",
    "ユーザー設定カレンダー1", "ユーザー設定カレンダー2", "ユーザー設定カレンダー3",
    "ユーザー設定カレンダー4", "ユーザー設定カレンダー5",
};
constexpr unsigned char kDefaultKinds[kCalenSettingsCount] = {kPageMonth, kPageWeek, kPageDay};

// The weekday of the first of a month as a month block keeps it. bounded: a year
// without weekdays counts from Monday.
int FirstWeekday(int year, int month) {
  return std::max(SclFirstWeekday(year, month), 0);
}

bool IsSunday(int firstWeekday, int day) {
  return (firstWeekday + day) % kDaysOfWeek == kSunday;
}

}  // namespace

void CalenStartDefaults() {
  LocalTime now;
  TimeGetLocal(&now);
  CalenCount = kFirstCalendars;
  CalenNameDefaults();
  CalenYearsSet(now.year - 2000);
  CalenYearCount = 1;
  for (int i = 0; i < kCalenYearMax; ++i) CalenYearInit(i);
  for (int i = 0; i < kFirstCalendars; ++i) {
    std::memcpy(CalenSheets[i], CalenMonths[0], sizeof CalenSheets[i]);
    CalenDefinitions[i][kDefinitionValid] = 1;
  }
}

void CalenNameDefaults() {
  for (int i = 0; i < kCalenSettingsCount; ++i) {
    if (CalenNames[i][0] == '\0') TextCopy(CalenNames[i], kCalenNameSize, kDefaultNames[i]);
    CalenKinds[i] = kDefaultKinds[i];
  }
}

void CalenYearsSet(int firstYear) {
  CalenFirstYear = firstYear;
  for (int i = 0; i < kCalenYearMax; ++i) {
    const int year = firstYear + i;
    CalenYears[i] = static_cast<unsigned char>(year >= 0 && year < kNoYear ? year : kNoYear);
  }
}

int CalenSpanLength(int firstYear, int wanted) {
  return std::max(1, std::min({wanted, kCalenYearMax, kNoYear - firstYear}));
}

void CalenSpanSet(int firstYear, int length) {
  CalenYearCount = CalenSpanLength(firstYear, length);
  CalenYearsSet(firstYear);
  CalenYearsRebuild();
  CalenYearPos = 0;
}

void CalenYearInit(int yearIndex) {
  if (yearIndex < 0 || yearIndex >= kCalenYearMax) return;
  for (int month = 0; month < kMonthsOfYear; ++month) {
    unsigned char* block = CalenMonths[yearIndex][month];
    const int days = SclDaysInMonth(CalenYears[yearIndex], month);
    const int first = FirstWeekday(CalenYears[yearIndex], month);
    block[kMonthDays] = static_cast<unsigned char>(days);
    block[kMonthFirstWeekday] = static_cast<unsigned char>(first);
    std::memset(block + kMonthHolidays, 0, kMonthPicture - kMonthHolidays);
    for (int day = 0; day < days; ++day) block[kMonthHolidays + day] = IsSunday(first, day) ? 1 : 0;
  }
}

void CalenYearsRebuild() {
  for (int i = 0; i < kCalenYearMax; ++i) {
    for (int month = 0; month < kMonthsOfYear; ++month) {
      unsigned char* block = CalenMonths[i][month];
      const int oldFirst = block[kMonthFirstWeekday];
      const int oldDays = std::min<int>(block[kMonthDays], kMonthDayMax);
      const int first = FirstWeekday(CalenYears[i], month);
      const int days = SclDaysInMonth(CalenYears[i], month);
      block[kMonthDays] = static_cast<unsigned char>(days);
      block[kMonthFirstWeekday] = static_cast<unsigned char>(first);
      if (first == oldFirst && days == oldDays) continue;
      for (int day = 0; day < kMonthDayMax; ++day) {
        const bool wasSunday = day < oldDays && IsSunday(oldFirst, day);
        const bool isSunday = day < days && IsSunday(first, day);
        if (wasSunday != isSunday) block[kMonthHolidays + day] = isSunday ? 1 : 0;
      }
    }
  }
}

void CalenUseSheet() {
  const int sel = CalenSelected();
  for (int i = 0; i < kCalenYearMax; ++i) {
    for (int month = 0; month < kMonthsOfYear; ++month) {
      std::memcpy(CalenMonths[i][month] + kMonthPicture, CalenSheets[sel][month] + kMonthPicture,
                  kMonthPictureSize);
    }
  }
  CalenYearsRebuild();
  for (int i = 0; i < kCalenYearMax; ++i) {
    std::memcpy(CalenMonthFlags[i], CalenSheetFlags[sel], sizeof CalenMonthFlags[i]);
  }
  CalenPictures[sel] = 1;
}
