// The one timer, which fires the ticks.
//
// settled: ticks in which there is nothing to do but to count run together when the next
// one that matters is due; their number and their counts are the same.
//
// A companion that only stands there has nothing to do in most of its ticks but to
// count. Then the timer rests: it fires once for all ticks up to the next one that
// has something to do, and these run one after the other. A person sees the same; the
// machine is woken every few seconds instead of 33 times a second. Whatever happens
// to the main window ends the rest first, so that its handlers find all counts as
// they are at that time.
#pragma once

#include <cstdint>

inline constexpr int kTickTimer = 1;  // its number

struct TickTimerState {
  bool running = false;
  bool resting = false;
  int ticksOfPeriod = 1;
  std::uint64_t periodBegan = 0;  // TimeMilliseconds
  int ticksOwed = 0;              // ticks that have passed and are still to run
};
extern TickTimerState TickTimer;

// Starts the timer on the main window. False when no timer is to be had.
bool TickTimerStart();
void TickTimerStop();

// The timer has fired: runs the ticks that are due and rests if it may.
void TickTimerFired();

// Something other than the timer reaches the main window: runs the ticks that have
// passed in a rest and goes on tick by tick.
void TickTimerWake();
