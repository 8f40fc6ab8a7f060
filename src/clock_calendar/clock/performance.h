// The performance that the clock notice plays: up to 20 figures of the clock's
// alarm character, one after the other, and a sound.
#pragma once

#include <cstdint>

#include "platform/time.h"

// What the wait between two steps counts.
enum class PerformanceWait { None, Ticks, Time };

struct PerformanceState {
  // The performance in force: a number of ClockPerformances from 1, 0 for none. An
  // alarm's slot sets it at the notice's opening; without a slot it is the one that
  // was chosen before.
  std::int32_t PerformanceActive = 0;
  std::int32_t PerformanceStep = 0;    // 0 to 19
  std::int32_t PerformancePasses = 0;  // that are over; counted without a slot only
  bool stepping = false;
  bool goesRound = false;
  PerformanceWait wait = PerformanceWait::None;
  std::int32_t ticksLeft = 0;
  LocalTime deadline = {};
};
extern PerformanceState Performance;

// Begins the active performance: frees the figures of an earlier run, plays the
// sound, and begins with the first figure if the record shows figures and a
// character is selected. `looping`: it was called by an alarm's slot and goes round
// until PerformanceEnd; else it ends by itself after five passes.
void PerformanceBegin(bool looping);

// The next step, and its wait.
void PerformanceNext();

// Ends the steps and frees the figures. The active performance stays.
void PerformanceEnd();

// True while figures are shown.
bool PerformanceShowsFigures();

// --- The wait between two steps

// Starts a wait of hundredths of a second: below 100 in ticks, else until a time of
// the day.
void PerformanceWaitStart(int hundredths, const LocalTime& now);

// One tick: true when the wait is over. False while nothing waits.
bool PerformanceWaitIsOver(const LocalTime& now);
