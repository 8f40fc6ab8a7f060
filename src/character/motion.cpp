#include "character/motion.h"

#include <algorithm>

#include "character/bored_frames.h"
#include "character/character.h"
#include "character/frames.h"
#include "character/selection_tables.h"
#include "character/stage.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/panel_entry.h"
#include "services/random.h"

MotionState Motion;

namespace {

constexpr std::int32_t kTicksBetweenSteps = 16;
// Steps of one count of the idle timer's next level.
// kept: the steps of the idle timer are no seconds, and the labels of the delays are nominal:
// "5分" is 365 steps.
constexpr std::int32_t kStepsOfCount = 60;

// What a step comes to.
enum class Step {
  Nothing,  // the tick ends with no new frame
  Redraw,   // the tick ends with a new frame
  GoOn,     // the tick goes on to its end
};

// Frame 0 is the idle frame and no blink; a frame with no picture is none either.
bool BlinkIsUsable() {
  return Character.BlinkFrame != 0 && FramePicture(kStageRow, Character.BlinkFrame) != nullptr;
}

void GoIdle() {
  StageShowFrame(0, kOutlineIdle);
  Motion.CharaMotion = kMotionIdle;
}

std::int32_t PatternLength() {
  return Motion.BoredPattern == 0 ? Motion.BoredLen1 : Motion.BoredLen2;
}

// The first frame of a pass is waited for like the others.
void BeginPass() {
  Motion.BoredLeft = PatternLength();
  Motion.BoredHold = BoredSpeedValue(Character.BoredSpeedSel);
}

void ChoosePattern() {
  if (Motion.BoredLen1 > 0 && Motion.BoredLen2 > 0) {
    Motion.BoredPattern = RandomBelow(2);
  } else {
    Motion.BoredPattern = Motion.BoredLen1 > 0 ? 0 : 1;
  }
  Motion.BoredRepeat = BoredRepeatValue(Character.BoredRepeatSel);
  BeginPass();
}

void EnterBlink() {
  Motion.BlinkCount = BlinkSpeedValue(Character.BlinkSpeedSel);
  Motion.BoredRepeat = 0;
  Motion.BoredHold = 0;
  Motion.BoredLeft = 2;
  Motion.BlinkDone = false;
  Motion.CharaMotion = kMotionBlink;
}

void StepIdle() {
  if (BlinkIsUsable()) {
    if (Motion.BlinkCount == 0) {
      EnterBlink();
      return;
    }
    --Motion.BlinkCount;
  }
  if (Motion.BoredLen1 == 0 && Motion.BoredLen2 == 0) return;
  if (Motion.BoredSec != 0) {
    --Motion.BoredSec;
  } else if (Motion.BoredMin != 0) {
    --Motion.BoredMin;
    Motion.BoredSec = kStepsOfCount;
  } else if (Motion.BoredHour != 0) {
    --Motion.BoredHour;
    Motion.BoredMin = kStepsOfCount;
    Motion.BoredSec = kStepsOfCount;
  } else {
    ChoosePattern();
    BoredTimerReset();
    Motion.CharaMotion = kMotionBored;
  }
}

void StepBlink() {
  if (Motion.BlinkDone) {
    GoIdle();
    return;
  }
  Motion.BlinkDone = true;
  StageShowFrame(Character.BlinkFrame, kOutlineBlink);
}

Step StepBored() {
  const bool first = Motion.BoredPattern == 0;
  if (Motion.BoredLeft == 0 && Motion.BoredRepeat != 0) {
    BeginPass();
    // kept: an endless repeat is a count below 0 that is counted down like any other.
    Motion.BoredRepeat = static_cast<std::int32_t>(static_cast<std::uint32_t>(Motion.BoredRepeat) - 1U);
    return Step::Nothing;
  }
  const std::int32_t place = PatternLength() - Motion.BoredLeft;
  // bounded: a bored pattern in play may have been cut short by another character; it ends.
  if (Motion.BoredLeft <= 0 || place < 0 || place >= kBoredLenMax) {
    GoIdle();
    return Step::Redraw;
  }
  --Motion.BoredLeft;
  StageShowFrame(first ? Character.Bored1Frames[place] : Character.Bored2Frames[place],
                 (first ? kOutlineBored1 : kOutlineBored2) + place);
  Motion.BoredHold = BoredSpeedValue(Character.BoredSpeedSel);
  return Step::Redraw;
}

// Steps from now that only count down, to the blink and to boredom.
std::int32_t QuietSteps() {
  if (Motion.CharaMotion != kMotionIdle) return 0;
  constexpr std::int32_t kMany = 1000;
  std::int32_t steps = kMany;
  if (BlinkIsUsable()) steps = std::min(steps, Motion.BlinkCount);
  if (Motion.BoredLen1 != 0 || Motion.BoredLen2 != 0) steps = std::min(steps, Motion.BoredSec);
  return std::max(steps, 0);
}

Step StepMotion() {
  if (Motion.CharaMotion == kMotionIdle) {
    StepIdle();
    return Step::Nothing;
  }
  if (Motion.BoredHold != 0) {
    --Motion.BoredHold;
    return Step::GoOn;
  }
  switch (Motion.CharaMotion) {
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
  if (Dialogs.DlgIdMenu == MenuDialog::OptionSelDlg1_2) return 0;
  if (++Motion.CharaStepCount > kTicksBetweenSteps) {
    Motion.CharaStepCount = 0;
    const Step step = StepMotion();
    if (step != Step::GoOn) return step == Step::Redraw ? 1 : 0;
  }
  if (Motion.CharaMotion != kMotionMenu || PanelIsOpen()) return 0;
  CharaMenuOff();
  return 1;
}

int CharaMotionDue() {
  // The end of the menu state is looked for in every tick.
  if (Motion.CharaMotion == kMotionMenu) return 1;
  constexpr std::int32_t kTicksOfStep = kTicksBetweenSteps + 1;
  return std::max(kTicksOfStep - Motion.CharaStepCount, 1) + QuietSteps() * kTicksOfStep;
}

void CharaMenuOn() {
  Motion.CharaMotion = kMotionMenu;
  Motion.BoredLeft = -1;
  StageShowFrame(Character.MenuFrame, kOutlineMenu);
}

void CharaMenuOff() {
  Motion.BoredLeft = 0;
  GoIdle();
}

void BoredTimerReset() {
  BoredDelayValue(Character.BoredDelaySel, &Motion.BoredHour, &Motion.BoredMin);
  Motion.BoredSec = kStepsOfCount;
}

void BoredFramesCount() {
  Motion.BoredLen1 = BoredLength(Character.Bored1Frames);
  Motion.BoredLen2 = BoredLength(Character.Bored2Frames);
}

void CharaMotionStep() {
  if (CharaMotionTick() != 0) CommandSend(Command::StageRedraw);
}
