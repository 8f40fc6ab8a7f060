// The years of the working array: which they are, their month tables, and how a
// sheet gets into them.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "clock_calendar/calendar/calendar.h"
#include "platform/time.h"
#include "services/text.h"

namespace {

constexpr int kNoYear = 100;  // stands in the list for years the system does not know
constexpr int kFirstCalendars = 3;

constexpr const char* kDefaultNames[kCalenSettingsCount] = {
    "月ごとカレンダー",        "1週間カレンダー(日付縦)", "日めくりカレンダー",
    "ユーザー設定カレンダー1", "ユーザー設定カレンダー2", "ユーザー設定カレンダー3",
    "ユーザー設定カレンダー4", "ユーザー設定カレンダー5",
};
constexpr unsigned char kDefaultKinds[kCalenSettingsCount] = {kPageMonth, kPageWeek, kPageDay};

// The weekday of the first of a month as a month block keeps it.
// bounded: a month of a calendar that has no weekdays, from 2100 on, counts from Monday.
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
  Calendar.CalenCount = kFirstCalendars;
  CalenNameDefaults();
  CalenYearsSet(now.year - 2000);
  Calendar.CalenYearCount = 1;
  for (int i = 0; i < kCalenYearMax; ++i) CalenYearInit(i);
  for (int i = 0; i < kFirstCalendars; ++i) {
    std::memcpy(Calendar.CalenSheets[i], Calendar.CalenMonths[0], sizeof Calendar.CalenSheets[i]);
    Calendar.CalenDefinitions[i].valid = 1;
  }
}

void CalenNameDefaults() {
  for (int i = 0; i < kCalenSettingsCount; ++i) {
    if (Calendar.CalenNames[i][0] == '\0') TextCopy(Calendar.CalenNames[i], kCalenNameSize, kDefaultNames[i]);
    Calendar.CalenKinds[i] = kDefaultKinds[i];
  }
}

void CalenYearsSet(int firstYear) {
  Calendar.CalenFirstYear = firstYear;
  for (int i = 0; i < kCalenYearMax; ++i) {
    const int year = firstYear + i;
    Calendar.CalenYears[i] = static_cast<unsigned char>(year >= 0 && year < kNoYear ? year : kNoYear);
  }
}

int CalenSpanLength(int firstYear, int wanted) {
  return std::max(1, std::min({wanted, kCalenYearMax, kNoYear - firstYear}));
}

void CalenSpanSet(int firstYear, int length) {
  Calendar.CalenYearCount = CalenSpanLength(firstYear, length);
  CalenYearsSet(firstYear);
  CalenYearsRebuild();
  Calendar.CalenYearPos = 0;
}

void CalenYearInit(int yearIndex) {
  if (yearIndex < 0 || yearIndex >= kCalenYearMax) return;
  for (int month = 0; month < kMonthsOfYear; ++month) {
    CalenMonth& block = Calendar.CalenMonths[yearIndex][month];
    const int days = SclDaysInMonth(Calendar.CalenYears[yearIndex], month);
    const int first = FirstWeekday(Calendar.CalenYears[yearIndex], month);
    block.days = static_cast<std::uint8_t>(days);
    block.firstWeekday = static_cast<std::uint8_t>(first);
    std::memset(block.holidays, 0, sizeof block.holidays);
    std::memset(block.notes, 0, sizeof block.notes);
    for (int day = 0; day < days; ++day) block.holidays[day] = IsSunday(first, day) ? 1 : 0;
  }
}

void CalenYearsRebuild() {
  for (int i = 0; i < kCalenYearMax; ++i) {
    for (int month = 0; month < kMonthsOfYear; ++month) {
      CalenMonth& block = Calendar.CalenMonths[i][month];
      const int oldFirst = block.firstWeekday;
      const int oldDays = std::min<int>(block.days, kMonthDayMax);
      const int first = FirstWeekday(Calendar.CalenYears[i], month);
      const int days = SclDaysInMonth(Calendar.CalenYears[i], month);
      block.days = static_cast<std::uint8_t>(days);
      block.firstWeekday = static_cast<std::uint8_t>(first);
      if (first == oldFirst && days == oldDays) continue;
      for (int day = 0; day < kMonthDayMax; ++day) {
        const bool wasSunday = day < oldDays && IsSunday(oldFirst, day);
        const bool isSunday = day < days && IsSunday(first, day);
        if (wasSunday != isSunday) block.holidays[day] = isSunday ? 1 : 0;
      }
    }
  }
}

void CalenUseSheet() {
  const int sel = CalenSelected();
  for (auto& year : Calendar.CalenMonths) {
    for (int month = 0; month < kMonthsOfYear; ++month) {
      year[month].picture = Calendar.CalenSheets[sel][month].picture;
    }
  }
  CalenYearsRebuild();
  for (auto& year : Calendar.CalenMonthFlags) {
    std::copy(std::begin(Calendar.CalenSheetFlags[sel]), std::end(Calendar.CalenSheetFlags[sel]), year);
  }
  Calendar.CalenPictures[sel] = 1;
}

void CalenSelect(int place) {
  if (place < 0 || place >= kCalenMax || place >= Calendar.CalenCount) return;
  Calendar.CalenSel = place;
  Calendar.CalenKind = Calendar.CalenKinds[place];
  CalenUseSheet();
  Calendar.CalenPictureOn = Calendar.CalenPictures[place];
  CalenTakeDefinition();
}

void CalenSheetChangesTake(const CalenMonth (&before)[kMonthsOfYear]) {
  for (int month = 0; month < kMonthsOfYear; ++month) {
    const CalenMonth& sheet = Calendar.CalenSheets[CalenSelected()][month];
    CalenMonth& working = Calendar.CalenMonths[0][month];
    for (int day = 0; day < kMonthDayMax; ++day) {
      if (sheet.holidays[day] != before[month].holidays[day]) working.holidays[day] = sheet.holidays[day];
      if (std::strcmp(sheet.notes[day], before[month].notes[day]) != 0)
        std::memcpy(working.notes[day], sheet.notes[day], sizeof working.notes[day]);
    }
  }
}
