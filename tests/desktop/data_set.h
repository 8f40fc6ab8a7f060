// The data set of a test's program folder: where the values stand in its files, and
// its pictures.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/desktop/companion.h"

inline const std::wstring kSettings = L"mirrell_sys_file.svs";
// Offsets in the settings file.
inline constexpr std::size_t kCharaIndexAt = 20;
inline constexpr std::size_t kStageXAt = 84;
inline constexpr std::size_t kStageYAt = 88;
inline constexpr std::size_t kAlarmCharaSelAt = 92;  // three numbers
inline constexpr std::size_t kCharaSetAt = 104;      // its number comes first, low byte first
inline constexpr std::size_t kClockShowAt = 1092;
inline constexpr std::size_t kClockDesignAt = 1093;
inline constexpr std::size_t kClockXAt = 1094;
inline constexpr std::size_t kClockYAt = 1098;
inline constexpr std::size_t kCalenShowAt = 2169;
inline constexpr std::size_t kCalenXAt = 170382;
inline constexpr std::size_t kCalenYAt = 170386;

// Offsets in the record of a character's walk, from kCharaSetAt. The numbers of 16
// bits have their low byte first, the steps have 32 bits.
inline constexpr std::size_t kWalkStepXAt = 396;
inline constexpr std::size_t kWalkStepYAt = 436;
inline constexpr std::size_t kWalkPeriodAt = 476;
inline constexpr std::size_t kWalkCountAt = 496;
inline constexpr std::size_t kWalkFramesAt = 516;
inline constexpr std::size_t kEndFramesAt = 566;
inline constexpr std::size_t kEndWaitAt = 616;
inline constexpr std::size_t kWalkStartPointAt = 636;

// Changes the settings file before the companion starts.
class SettingsChange {
 public:
  explicit SettingsChange(const Companion& companion);
  ~SettingsChange();
  SettingsChange(const SettingsChange&) = delete;
  SettingsChange& operator=(const SettingsChange&) = delete;

  SettingsChange& Byte(std::size_t at, int value);
  SettingsChange& Number(std::size_t at, int value);  // 32 bits, high byte first
  SettingsChange& LowFirst16(std::size_t at, int value);
  SettingsChange& LowFirst32(std::size_t at, int value);

 private:
  std::wstring path_;
  std::vector<unsigned char> bytes_;
};

int SettingsNumber(const Companion& companion, std::size_t at);

// A mask or picture of the data set: 24 bits, rows from the bottom.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // 0xRRGGBB, row by row from the top
};
Picture LoadPicture(const Companion& companion, const std::wstring& name);

// How many pixels of a window's region differ from the black pixels of a mask that
// lies at (left, top) of the window. -1 without a region or a mask.
int RegionDifference(const Companion& companion, HWND window, const std::wstring& mask, int left, int top);

// A picture's place in the stage: behind the border of one pixel and the menu bar.
inline constexpr int kStageLeft = 1;
int StageTop();
int StageDifference(const Companion& companion, const std::wstring& mask);
