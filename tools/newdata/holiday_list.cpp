#include "newdata/holiday_list.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>
#include <stdexcept>

#include "clock_calendar/calendar/calendar.h"
#include "newdata/data_set.h"
#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "shell/settings.h"

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// --- Letters

// The bytes of a character of UTF-8 by its first byte; 0 for none.
std::size_t Utf8Length(unsigned char first) {
  return first < 0x80                    ? 1
         : first >= 0xC2 && first < 0xE0 ? 2
         : first >= 0xE0 && first < 0xF0 ? 3
         : first >= 0xF0 && first < 0xF5 ? 4
                                         : 0;
}

bool IsUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = Utf8Length(static_cast<unsigned char>(text[i]));
    if (length == 0 || i + length > text.size()) return false;
    for (std::size_t k = 1; k < length; ++k) {
      if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return false;
    }
    i += length;
  }
  return true;
}

// A text of the list as code page 932; none for letters that it has not.
std::optional<std::string> Cp932Of(const std::string& text, bool utf8) {
  const std::string bytes = utf8 ? PosixToCp932(text) : text;
  const std::string back = Cp932ToUtf8(bytes);
  if (utf8 ? back != text : PosixToCp932(back) != text) return std::nullopt;
  return bytes;
}

// --- A line

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t from = text.find_first_not_of(kBlanks);
  if (from == std::string_view::npos) return {};
  text = text.substr(from, text.find_last_not_of(kBlanks) - from + 1);
  if (text.size() >= 2 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
  return text;
}

// Takes a number off the front, with the mark behind it if there is to be one.
bool TakeNumber(std::string_view& text, int& number, bool marked) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number < 0) return false;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  if (!marked) return text.empty();
  if (text.empty() || (text.front() != '/' && text.front() != '-')) return false;
  text.remove_prefix(1);
  return true;
}

bool ReadDate(std::string_view text, ListedHoliday& day) {
  return TakeNumber(text, day.year, true) && TakeNumber(text, day.month, true) &&
         TakeNumber(text, day.day, false);
}

bool IsLeap(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

bool DayExists(const ListedHoliday& day) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (day.month < 1 || day.month > 12 || day.day < 1) return false;
  return day.day <= kDays[day.month - 1] + (day.month == 2 && IsLeap(day.year) ? 1 : 0);
}

// Reads a line; what is wrong with it, or nothing.
std::string ReadLine(std::string_view line, bool utf8, ListedHoliday& day) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos) return "there is no comma between a date and a name";
  if (!ReadDate(Trimmed(line.substr(0, comma)), day)) return "the date is not understood";
  if (!DayExists(day)) return "there is no such day";
  const std::string name(Trimmed(line.substr(comma + 1)));
  if (name.empty()) return "there is no name";
  const std::optional<std::string> bytes = Cp932Of(name, utf8);
  if (!bytes) return "the name has letters that Shift-JIS has not";
  if (bytes->size() >= kNoteSize) return "the name is longer than a note, 127 bytes";
  day.name = *bytes;
  return "";
}

bool BeginsWithDigit(std::string_view line) {
  const std::string_view text = Trimmed(line.substr(0, line.find(',')));
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

}  // namespace

HolidayList ReadHolidayList(std::string_view content) {
  HolidayList list;
  if (content.starts_with(kUtf8Mark)) content.remove_prefix(kUtf8Mark.size());
  const bool utf8 = IsUtf8(content);
  for (int number = 1; !content.empty(); ++number) {
    const std::size_t end = std::min(content.find('\n'), content.size());
    const std::string_view line = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
    if (Trimmed(line).empty() || (number == 1 && !BeginsWithDigit(line))) continue;
    ListedHoliday day{};
    const std::string fault = ReadLine(line, utf8, day);
    if (fault.empty()) {
      list.days.push_back(day);
    } else {
      list.faults.push_back("line " + std::to_string(number) + ": " + fault);
    }
  }
  return list;
}

namespace {

// Puts a holiday into a month; false when the day's own note is left.
bool PutInto(CalenMonth& month, const ListedHoliday& holiday) {
  const int day = holiday.day - 1;
  month.holidays[day] = 1;
  char(&note)[kNoteSize + 1] = month.notes[day];
  if (note[0] != '\0' && holiday.name != note) return false;
  std::memset(note, 0, sizeof note);
  std::memcpy(note, holiday.name.data(), holiday.name.size());
  return true;
}

void Take(const ListedHoliday& holiday, HolidaysTaken& taken) {
  const int year = CalenSpanIndex(holiday.year - 2000);
  if (year < 0) {
    ++taken.outside;
    return;
  }
  const int month = holiday.month - 1;
  if (!PutInto(Calendar.CalenMonths[year][month], holiday)) ++taken.withNote;
  if (year == 0) {
    for (int i = 0; i < Calendar.CalenCount; ++i) PutInto(Calendar.CalenSheets[i][month], holiday);
  } else {
    ++taken.later;
  }
  ++taken.set;
}

void Demand(bool good, const char* what) {
  if (!good) throw std::runtime_error(what);
}

}  // namespace

HolidaysTaken TakeHolidays(const std::filesystem::path& folder, const std::vector<ListedHoliday>& days) {
  UseProgramFolder(folder);
  // In the order of the program's start: the settings hold a count of the calendars too.
  SetDateDefaults();
  FileResult.FileStatus = 0;
  Demand(SysFileRead() == 0 && FileResult.FileStatus == 0, "mirrell_sys_file.svs cannot be read");
  Demand(CalenFileRead() == 0, "mirrell_calen_file.dcd cannot be read");
  HolidaysTaken taken;
  for (const ListedHoliday& day : days) Take(day, taken);
  Demand(SysFileWrite() == 0, "mirrell_sys_file.svs cannot be written");
  Demand(CalenFileWrite() == 0, "mirrell_calen_file.dcd cannot be written");
  return taken;
}
