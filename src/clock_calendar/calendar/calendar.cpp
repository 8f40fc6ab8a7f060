#include "clock_calendar/calendar/calendar.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "services/text.h"

CalendarState Calendar;

namespace {

// The month block of a day; null outside the tables.
CalenMonth* MonthAt(int yearIndex, int month, int day) {
  const bool inside = yearIndex >= 0 && yearIndex < kCalenYearMax && month >= 0 && month < kMonthsOfYear &&
                      day >= 0 && day < kMonthDayMax;
  return inside ? &Calendar.CalenMonths[yearIndex][month] : nullptr;
}

}  // namespace

int CalenStickerCount() {
  return std::min<int>(Calendar.CalenStickers.count, kStickerMax);
}

void CalenSticker(int place, int* chara, int* figure) {
  const bool inside = place >= 0 && place < CalenStickerCount();
  *chara = inside ? Calendar.CalenStickers.charas[place] : 0;
  *figure = inside ? Calendar.CalenStickers.figures[place] : 0;
}

int CalenSelected() {
  return Calendar.CalenSel >= 0 && Calendar.CalenSel < kCalenMax ? Calendar.CalenSel : 0;
}

CalenDefinition& CalenSelectedDefinition() {
  return Calendar.CalenDefinitions[CalenSelected()];
}

int CalenYearShown() {
  return Calendar.CalenYearPos >= 0 && Calendar.CalenYearPos < kCalenYearMax ? Calendar.CalenYearPos : 0;
}

int CalenSpanIndex(int year) {
  const std::int64_t index = std::int64_t{year} - Calendar.CalenFirstYear;
  return index >= 0 && index < std::min<std::int32_t>(Calendar.CalenYearCount, kCalenYearMax)
             ? static_cast<int>(index)
             : -1;
}

bool CalenHolidayFlag(int yearIndex, int month, int day) {
  const CalenMonth* block = MonthAt(yearIndex, month, day);
  return block && block->holidays[day] != 0;
}

void CalenHolidayFlagSet(int yearIndex, int month, int day, bool holiday) {
  CalenMonth* block = MonthAt(yearIndex, month, day);
  if (block) block->holidays[day] = holiday ? 1 : 0;
}

void CalenNoteGet(int yearIndex, int month, int day, char (&to)[kNoteSize + 1]) {
  const CalenMonth* block = MonthAt(yearIndex, month, day);
  TextCopy(to, sizeof to, block ? block->notes[day] : "");
}

bool CalenNoteSet(int yearIndex, int month, int day, const char* note) {
  CalenMonth* block = MonthAt(yearIndex, month, day);
  if (!block) return false;
  char(&field)[kNoteSize + 1] = block->notes[day];
  const std::string_view text(note, TextPrefix(note, kNoteSize - 1));
  if (text == std::string_view(field, TextPrefix(field, kNoteSize - 1))) return false;
  std::memset(field, 0, sizeof field);
  std::memcpy(field, text.data(), text.size());
  return true;
}

void CalenPlaceSet(std::int32_t x, std::int32_t y) {
  Calendar.CalenX = x;
  Calendar.CalenY = y;
}

void CalenClickedDaySet(std::int32_t day) {
  Calendar.CalenClickedDay = day;
}
