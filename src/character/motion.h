// How the stage's character lives by itself: it blinks, gets bored and plays a
// pattern, and turns to its menu frame while the panel is open. A step is every
// 17 ticks.
#pragma once

#include <cstdint>

#include "services/tick_step.h"

// States of CharaMotion.
inline constexpr std::int32_t kMotionIdle = 0;
inline constexpr std::int32_t kMotionBlink = 2;
inline constexpr std::int32_t kMotionBored = 3;
inline constexpr std::int32_t kMotionMenu = 4;

struct MotionState {
  std::int32_t CharaMotion = 0;
  std::int32_t CharaStepCount = 0;  // ticks since the last step
  std::int32_t BlinkCount = 0;      // steps until the next blink
  std::int32_t BoredSec = 0;        // the idle timer, in steps: three nested counts
  std::int32_t BoredMin = 0;
  std::int32_t BoredHour = 0;
  std::int32_t BoredPattern = 0;  // 0 or 1, the pattern in play
  std::int32_t BoredLen1 = 0;     // usable frames of each pattern
  std::int32_t BoredLen2 = 0;
  std::int32_t BoredLeft = 0;    // frames left in the pass; -1 in the menu state
  std::int32_t BoredHold = 0;    // steps to wait before the next frame
  std::int32_t BoredRepeat = 0;  // passes left; -1 never ends
  bool BlinkDone = false;        // the blink frame has been shown
};
extern MotionState Motion;

// One tick. Returns 1 when the stage should be redrawn (command 2293), else 0.
int CharaMotionTick();

// In how many ticks CharaMotionTick has more to do than to count, at least 1.
int CharaMotionDue();

// Into the menu state and back to idle; StageRedraw then tells what command 2293
// is to do.
void CharaMenuOn();
void CharaMenuOff();

// Loads the idle timer from BoredDelaySel: boredom is that far away again.
void BoredTimerReset();

// Counts the frames of both bored patterns, up to the first negative entry.
void BoredFramesCount();

// The character's step of the tick: a new frame sends command 2293.
void CharaMotionStep();
inline constexpr TickStep kMotionStep{CharaMotionStep, CharaMotionDue};
