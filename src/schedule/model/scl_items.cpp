#include "schedule/model/scl_items.h"

#include "schedule/model/scl_dates.h"
#include "services/text.h"

namespace {

SclDate StartOf(int index) {
  if (index == 0) return Schedule.SclHeader.start;
  return SclStartMoved(Schedule.SclHeader.rows, SclDateOf(Schedule.SclItemTable[index - 1].end));
}

// kept: in typed hours 'a' to 'f' count 10 to 15, and any other character that is no digit 1.
std::uint32_t DigitOf(char character) {
  if (character >= '0' && character <= '9') return static_cast<std::uint32_t>(character - '0');
  if (character >= 'a' && character <= 'f') return static_cast<std::uint32_t>(character - 'a') + 10U;
  return 1;
}

}  // namespace

void SclRecalcItem(int index) {
  if (index < 0 || index >= kSclItemMax) return;
  SclItemRec& item = Schedule.SclItemTable[index];
  const SclDate start = StartOf(index);
  item.start = SclItemDateOf(start);
  if (item.endFixed != 0) return;
  // settled: a line of no hours ends where it starts, also behind the end of a day's work.
  SclDate end = start;
  if (item.hours != 0) SclAddWorkHours(item.hours, start, end);
  item.end = SclItemDateOf(end);
}

void SclRecalcAll() {
  SclRowEndsRefresh(Schedule.SclHeader.rows);
  for (int i = 0; i < Schedule.SclHeader.count; ++i) SclRecalcItem(i);
}

SclDate SclShownStart(const SclItemRec& item) {
  return SclStartMoved(Schedule.SclHeader.rows, SclDateOf(item.start));
}

void SclHoursText(const SclItemRec& item, char* text, int size) {
  const auto room = static_cast<std::size_t>(size);
  const std::int64_t day = Schedule.SclHeader.dayLength;
  if (item.hours < 1) {
    TextCopy(text, room, "----");
    return;
  }
  // settled: a length in days of no hours cannot be counted; its hours are shown.
  if (item.showDays == 0 || day <= 0) {
    TextFormat(text, room, "%3uH", item.hours);
    return;
  }
  const auto days = static_cast<int>(item.hours / day);
  const std::int64_t rest = item.hours % day;
  if (rest == 0) {
    TextFormat(text, room, "%3dD", days);
  } else {
    // kept: the hundredths of a length in days are the day's length by the rest, not the rest by
    // the day's length: 25 hours of days of 10 read 2.200.
    TextFormat(text, room, "%3d.%2dD", days, static_cast<int>(day * 100 / rest));
  }
}

void SclYearText(int year, char* text, int size) {
  TextFormat(text, static_cast<std::size_t>(size), "%2d", year);
  if (text[0] == ' ') text[0] = '0';
}

std::uint32_t SclHoursParse(const char* text) {
  while (*text == ' ') ++text;
  if (*text == '-') return 0;
  std::uint32_t value = 0;
  for (; *text != '\0'; ++text) value = value * 10U + DigitOf(*text);
  return value;
}
