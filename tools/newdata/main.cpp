// mirrell-newdata: makes and checks a data set, and makes the program's icon.
#include <charconv>
#include <cstdio>
#include <ctime>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "newdata/data_set.h"
#include "newdata/holiday_list.h"
#include "newdata/host_file.h"
#include "newdata/ico.h"

namespace {

constexpr char kUsage[] =
    "usage: mirrell-newdata [--assets DIR] [--date YYYY-MM-DD] FOLDER   makes a data set in a program "
    "folder\n"
    "           [--run-schedule]                                        ... whose sample schedule is "
    "carried out\n"
    "       mirrell-newdata --check FOLDER                              reads one back and tells its faults\n"
    "       mirrell-newdata [--assets DIR] --icon FILE                  makes the program's icon\n"
    "       mirrell-newdata holidays FILE FOLDER                        sets the holidays of a list (date, "
    "name)\n";

enum class Job { Make, Check, Icon, Holidays };

struct Arguments {
  Job job = Job::Make;
  std::filesystem::path assets = MIRRELL_ASSETS_DIR;
  std::filesystem::path list;  // of holidays
  std::filesystem::path target;
  DataSetDate date{};
  bool runSchedule = false;
};

DataSetDate Today() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday};
}

// One number of a date, exactly `digits` long.
int DatePart(const std::string& text, std::size_t place, std::size_t digits) {
  int value = 0;
  const char* from = text.data() + place;
  const auto [end, error] = std::from_chars(from, from + digits, value);
  if (error != std::errc() || end != from + digits || value < 0) throw std::runtime_error("no date: " + text);
  return value;
}

DataSetDate ParseDate(const std::string& text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') throw std::runtime_error("no date: " + text);
  const DataSetDate date{DatePart(text, 0, 4), DatePart(text, 5, 2), DatePart(text, 8, 2)};
  if (date.month < 1 || date.month > 12 || date.day < 1 || date.day > 31) {
    throw std::runtime_error("no date: " + text);
  }
  return date;
}

Arguments Parse(const std::vector<std::string>& words) {
  Arguments arguments;
  arguments.date = Today();
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto value = [&]() -> const std::string& {
      if (++i == words.size()) throw std::runtime_error("nothing behind " + words[i - 1]);
      return words[i];
    };
    if (words[i] == "--assets") {
      arguments.assets = value();
    } else if (words[i] == "--date") {
      arguments.date = ParseDate(value());
    } else if (words[i] == "--run-schedule") {
      arguments.runSchedule = true;
    } else if (words[i] == "--check" || words[i] == "--icon") {
      arguments.job = words[i] == "--check" ? Job::Check : Job::Icon;
    } else if (words[i] == "holidays" && i == 0) {
      arguments.job = Job::Holidays;
      arguments.list = value();
    } else if (words[i].starts_with("--") || !arguments.target.empty()) {
      throw std::runtime_error("not understood: " + words[i]);
    } else {
      arguments.target = words[i];
    }
  }
  if (arguments.target.empty()) throw std::runtime_error("nothing to make or check");
  return arguments;
}

int Check(const std::filesystem::path& folder) {
  const std::vector<std::string> faults = CheckDataSet(folder);
  for (const std::string& fault : faults) std::fprintf(stderr, "%s\n", fault.c_str());
  return faults.empty() ? 0 : 1;
}

// 1 when a line of the list could not be taken.
int Holidays(const std::filesystem::path& file, const std::filesystem::path& folder) {
  const Bytes content = ReadHostFile(file);
  const HolidayList list = ReadHolidayList({reinterpret_cast<const char*>(content.data()), content.size()});
  for (const std::string& fault : list.faults)
    std::fprintf(stderr, "%s: %s\n", file.string().c_str(), fault.c_str());
  const HolidaysTaken taken = TakeHolidays(folder, list.days);
  std::printf("%d holidays set, %d with a note of their own, %d outside the calendars' years\n", taken.set,
              taken.withNote, taken.outside);
  if (taken.later > 0)
    std::printf(
        "%d of them lie behind the first year: a companion that runs takes these at its next start, if "
        "it had ended before\n",
        taken.later);
  return list.faults.empty() ? 0 : 1;
}

}  // namespace

int main(int count, char** words) {
  Arguments arguments;
  try {
    arguments = Parse({words + 1, words + count});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "mirrell-newdata: %s\n%s", error.what(), kUsage);
    return 2;
  }
  try {
    switch (arguments.job) {
      case Job::Make:
        MakeDataSet(arguments.target, arguments.assets, arguments.date);
        if (arguments.runSchedule) RunSampleSchedule(arguments.target);
        break;
      case Job::Check:
        return Check(arguments.target);
      case Job::Holidays:
        return Holidays(arguments.list, arguments.target);
      case Job::Icon:
        WriteHostFile(arguments.target, ProgramIcon(arguments.assets / "icon" / "mirrell.svg"));
        break;
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "mirrell-newdata: %s\n", error.what());
    return 1;
  }
  return 0;
}
