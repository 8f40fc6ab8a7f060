// The performance of an hour: up to seven figures of a design's character, each with its
// wait, as often as the hour counts, and a sound. The clock plays it, and so does the
// dialog that tries it out.
#pragma once

#include <cstdint>

#include "character/chara_records.h"

inline constexpr int kClockSoundSize = 300;

enum ClockStrike { kStrikeNever = 0, kStrikeEveryHour = 1, kStrikeAtTwelve = 2 };

// What the user sets of it.
struct ClockStrikeSettings {
  std::int32_t mode;    // ClockStrike, or what only a design can set
  std::int32_t repeat;  // 1: as often as the hour counts
  std::int32_t soundOn;
  char sound[kClockSoundSize];  // a file of the folder "\サウンド"

  bool operator==(const ClockStrikeSettings& other) const;
};

// A performance in play.
struct ClockStrikePlay {
  bool on = false;
  bool endsAtZero = false;   // at the first step without a figure
  std::int32_t step = 0;     // 0 to 6
  std::int32_t repeats = 0;  // passes left
  std::int32_t wait = 0;     // ticks left of the step
  int firstStep = 0;         // with a figure; -1 for none
  int lastStep = 0;
  std::uint16_t delay[kStrikeSteps] = {};
  std::uint8_t figures[kStrikeSteps] = {};
  char sound[kClockSoundSize] = {};  // empty: none is played
};

// Begins the performance of an hour, 0 to 12, with its sound and its first step. A design
// gives the ticks that each step stays, and the hour's figures, frame numbers from 1; 0 for
// none.
void StrikeBegin(ClockStrikePlay& play, const std::uint16_t (&delay)[kStrikeSteps],
                 const std::uint8_t (&figures)[kStrikeSteps], const ClockStrikeSettings& settings,
                 int hour12);

// One tick of a performance that is in play; it may be over then.
void StrikeTick(ClockStrikePlay& play);

// The frame number of the step in play, from 1; 0 for none.
int StrikeFigure(const ClockStrikePlay& play);
