// The map of the sample schedule: "どんぐり町", the edit files of an application that the
// schedule is tied to, with the map's picture.
#pragma once

#include <filesystem>

// The application, as the sample schedule names it: a path in the program's folder.
inline constexpr char kSampleMapFile[] = "どんぐり町\\どんぐり町.exe";
inline constexpr const char8_t* kSampleMapFolder = u8"どんぐり町";

// A place of the map: its cell, from 1.
struct SampleSpot {
  const char* name;
  int column;
  int row;
};
enum SampleSpotRow { kHome, kMarket, kStudio, kLibrary, kSchool, kPost, kStore };
inline constexpr SampleSpot kSampleSpots[] = {
    {"うち", 2, 2}, {"市場", 5, 2},   {"写真館", 8, 1},     {"図書館", 4, 4},
    {"学校", 7, 3}, {"郵便局", 6, 5}, {"書庫のくら", 9, 4},
};

// What a line of the schedule can be: its code, and the frame of its mark, from 1. 1 is done
// in all schedules.
struct SampleStatus {
  int code;
  const char* name;
  int frame;
};
inline constexpr SampleStatus kSampleStatuses[] = {
    {1, "できた", 1}, {2, "とりかかり中", 2}, {3, "あとまわし", 3}};

// Makes the folder of the application in a program folder: its two edit files and its
// picture. Throws std::runtime_error when a file cannot be written.
void WriteSampleMap(const std::filesystem::path& folder, const std::filesystem::path& assets);
