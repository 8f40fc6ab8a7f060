// A published list of public holidays, taken into the calendars of a program folder.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct ListedHoliday {
  int year;
  int month;  // from 1, like the day
  int day;
  std::string name;  // code page 932, 1 to 127 bytes
};

// What a list holds, and what is wrong with it: "line 7: there is no such day", a line for
// each line of the list that cannot be taken.
struct HolidayList {
  std::vector<ListedHoliday> days;
  std::vector<std::string> faults;
};

// Reads a list: a date and a name in each line with a comma in between, "2026/1/1,元日" or
// "2026-01-01,元日", in quotation marks or not, in UTF-8 or Shift-JIS. A first line without
// a date is the list's head; empty lines are passed over.
HolidayList ReadHolidayList(std::string_view content);

struct HolidaysTaken {
  int set = 0;       // days that are holidays now, with their names as notes
  int later = 0;     // of them, days of years behind the span's first
  int outside = 0;   // days outside the calendars' span
  int withNote = 0;  // days whose own note was left
};

// Sets the flags and notes of a list in the settings and the calendars of a program folder.
// Throws std::runtime_error when they cannot be read or written.
HolidaysTaken TakeHolidays(const std::filesystem::path& folder, const std::vector<ListedHoliday>& days);
