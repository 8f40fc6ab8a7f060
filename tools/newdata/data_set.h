// A complete new data set in a program folder.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

struct DataSetDate {
  int year;
  int month;
  int day;
};

// Makes the whole data set in `folder`, which is made if it is not there. Files
// of an older set are replaced. `assets` holds the folders "characters",
// "backgrounds", "map", "scenario" and "sounds"; the calendars begin with the year of `date`. The same assets
// and date give the same files. Throws std::runtime_error that says what went wrong.
void MakeDataSet(const std::filesystem::path& folder, const std::filesystem::path& assets,
                 const DataSetDate& date);

// Has the companion of a data set carry out its sample schedule, with its alarms, from the
// next start on; its own list of applications begins anew. Throws std::runtime_error.
void RunSampleSchedule(const std::filesystem::path& folder);

// Reads the data set of a folder back as the program does, and returns what is
// wrong with it, one line for each fault; nothing for a good set.
std::vector<std::string> CheckDataSet(const std::filesystem::path& folder);

// Makes the product's file functions work in a folder. Throws std::runtime_error
// when its path is too long for them.
void UseProgramFolder(const std::filesystem::path& folder);

// The folders of a data set, as names of this machine.
inline constexpr const char8_t* kCharacterFolder = u8"キャラクタ";
inline constexpr const char8_t* kSoundFolder = u8"サウンド";
inline constexpr const char8_t* kPlanFolder = u8"計画表";
inline constexpr const char8_t* kBackgroundFolder = u8"背景";
inline constexpr const char8_t* kScheduleFolder = u8"スケジュール表";
