#include "character/motion.h"

#include <algorithm>

#include "character/character.h"
#include "character/frames.h"
#include "character/stage.h"
#include "shell/random.h"
#include "shell/selection_tables.h"
#include "shell/shell.h"

std::int32_t CharaMotion;
std::int32_t CharaStepCount;
std::int32_t BlinkCount;
std::int32_t BoredSec;
std::int32_t BoredMin;
std::int32_t BoredHour;
std::int32_t BoredPattern;
std::int32_t BoredLen1;
std::int32_t BoredLen2;
std::int32_t BoredLeft;
std::int32_t BoredHold;
std::int32_t BoredRepeat;
bool BlinkDone;

namespace {

constexpr int kMainCharaDialog = 2013;  // OptionSelDlg1_2
constexpr std::int32_t kTicksBetweenSteps = 16;
// Steps of one count of the idle timer's next level.
// kept: they are no seconds, and the labels of the delays are nominal: "5分" is 365 steps.
constexpr std::int32_t kStepsOfCount = 60;

// What a step comes to.
enum class Step {
  Nothing,  // the tick ends with no new frame
  Redraw,   // the tick ends with a new frame
  GoOn,     // the tick goes on to its end
};

int CountFrames(const std::int32_t (&frames)[kBoredFrameCount]) {
  int count = 0;
  while (count < kBoredLenMax && frames[count] >= 0) ++count;
  return count;
}

// Frame 0 is the idle frame and no blink; a frame with no picture is none either.
bool BlinkIsUsable() {
  return BlinkFrame != 0 && FramePicture(kStageRow, BlinkFrame) != nullptr;
}

bool PanelIsClosed() {
  return hDiskMenu == nullptr;
}

void GoIdle() {
  StageShowFrame(0, kOutlineIdle);
  CharaMotion = kMotionIdle;
}

std::int32_t PatternLength() {
  return BoredPattern == 0 ? BoredLen1 : BoredLen2;
}

// The first frame of a pass is waited for like the others.
void BeginPass() {
  BoredLeft = PatternLength();
  BoredHold = BoredSpeedValue(BoredSpeedSel);
}

void ChoosePattern() {
  if (BoredLen1 > 0 && BoredLen2 > 0) {
    BoredPattern = RandomBelow(2);
  } else {
    BoredPattern = BoredLen1 > 0 ? 0 : 1;
  }
  BoredRepeat = BoredRepeatValue(BoredRepeatSel);
  BeginPass();
}

void EnterBlink() {
  BlinkCount = BlinkSpeedValue(BlinkSpeedSel);
  BoredRepeat = 0;
  BoredHold = 0;
  BoredLeft = 2;
  BlinkDone = false;
  CharaMotion = kMotionBlink;
}

void StepIdle() {
  if (BlinkIsUsable()) {
    if (BlinkCount == 0) {
      EnterBlink();
      return;
    }
    --BlinkCount;
  }
  if (BoredLen1 == 0 && BoredLen2 == 0) return;
  if (BoredSec != 0) {
    --BoredSec;
  } else if (BoredMin != 0) {
    --BoredMin;
    BoredSec = kStepsOfCount;
  } else if (BoredHour != 0) {
    --BoredHour;
    BoredMin = kStepsOfCount;
    BoredSec = kStepsOfCount;
  } else {
    ChoosePattern();
    BoredTimerReset();
    CharaMotion = kMotionBored;
  }
}

void StepBlink() {
  if (BlinkDone) {
    GoIdle();
    return;
  }
  BlinkDone = true;
  StageShowFrame(BlinkFrame, kOutlineBlink);
}

Step StepBored() {
  const bool first = BoredPattern == 0;
  if (BoredLeft == 0 && BoredRepeat != 0) {
    BeginPass();
    // kept: an endless repeat is a count below 0 that is counted down like any other.
    BoredRepeat = static_cast<std::int32_t>(static_cast<std::uint32_t>(BoredRepeat) - 1U);
    return Step::Nothing;
  }
  const std::int32_t place = PatternLength() - BoredLeft;
  // bounded: the pattern in play may have been cut short by another character.
  if (BoredLeft <= 0 || place < 0 || place >= kBoredLenMax) {
    GoIdle();
    return Step::Redraw;
  }
  --BoredLeft;
  StageShowFrame(first ? Bored1Frames[place] : Bored2Frames[place],
                 (first ? kOutlineBored1 : kOutlineBored2) + place);
  BoredHold = BoredSpeedValue(BoredSpeedSel);
  return Step::Redraw;
}

// Steps from now that only count down, to the blink and to boredom.
std::int32_t QuietSteps() {
  if (CharaMotion != kMotionIdle) return 0;
  constexpr std::int32_t kMany = 1000;
  std::int32_t steps = kMany;
  if (BlinkIsUsable()) steps = std::min(steps, BlinkCount);
  if (BoredLen1 != 0 || BoredLen2 != 0) steps = std::min(steps, BoredSec);
  return std::max(steps, 0);
}

Step StepMotion() {
  if (CharaMotion == kMotionIdle) {
    StepIdle();
    return Step::Nothing;
  }
  if (BoredHold != 0) {
    --BoredHold;
    return Step::GoOn;
  }
  switch (CharaMotion) {
    case kMotionBlink:
      StepBlink();
      return Step::Redraw;
    case kMotionBored:
      return StepBored();
    default:
      return Step::GoOn;  // the menu state is looked at in every tick
  }
}

}  // namespace

int CharaMotionTick() {
  if (DlgIdMenu == kMainCharaDialog) return 0;
  if (++CharaStepCount > kTicksBetweenSteps) {
    CharaStepCount = 0;
    const Step step = StepMotion();
    if (step != Step::GoOn) return step == Step::Redraw ? 1 : 0;
  }
  if (CharaMotion != kMotionMenu || !PanelIsClosed()) return 0;
  CharaMenuOff();
  return 1;
}

int CharaMotionDue() {
  // The end of the menu state is looked for in every tick.
  if (CharaMotion == kMotionMenu) return 1;
  constexpr std::int32_t kTicksOfStep = kTicksBetweenSteps + 1;
  return std::max(kTicksOfStep - CharaStepCount, 1) + QuietSteps() * kTicksOfStep;
}

void CharaMenuOn() {
  CharaMotion = kMotionMenu;
  BoredLeft = -1;
  StageShowFrame(MenuFrame, kOutlineMenu);
}

void CharaMenuOff() {
  BoredLeft = 0;
  GoIdle();
}

void BoredTimerReset() {
  BoredDelayValue(BoredDelaySel, &BoredHour, &BoredMin);
  BoredSec = kStepsOfCount;
}

void BoredFramesCount() {
  BoredLen1 = CountFrames(Bored1Frames);
  BoredLen2 = CountFrames(Bored2Frames);
}
