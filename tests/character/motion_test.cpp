#include "character/motion.h"

#include <gtest/gtest.h>

#include <set>

#include "character/character.h"
#include "character/stage.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "services/random.h"
#include "shell/panel.h"
#include "tests/character/stage_fixture.h"

namespace {

constexpr int kTicksOfStep = 17;

class MotionTest : public StageFixture {
 protected:
  void SetUp() override {
    StageFixture::SetUp();
    PutMain(7, std::vector<FilePoints>(8, {{0, 0}, {39, 0}, {20, 29}}));
    ASSERT_EQ(CharaLoadStage(), 0);
  }

  // Bored patterns of those frames.
  static void Patterns(const std::vector<int>& first, const std::vector<int>& second = {}) {
    for (int i = 0; i < kBoredFrameCount; ++i) {
      const auto at = static_cast<std::size_t>(i);
      Character.Bored1Frames[i] = at < first.size() ? first[at] : -1;
      Character.Bored2Frames[i] = at < second.size() ? second[at] : -1;
    }
    BoredFramesCount();
  }

  // Runs steps; the numbers (from 1) of those that asked for a redraw. A tick that
  // is not the last of its step must not ask.
  static std::vector<int> Steps(int count) {
    std::vector<int> redraws;
    for (int step = 1; step <= count; ++step) {
      for (int tick = 1; tick < kTicksOfStep; ++tick) EXPECT_EQ(CharaMotionTick(), 0) << step;
      if (CharaMotionTick() == 1) redraws.push_back(step);
    }
    return redraws;
  }
  static int Step() { return static_cast<int>(Steps(1).size()); }
};

TEST_F(MotionTest, AStepIsEvery17Ticks) {
  Patterns({1});
  Motion.BoredSec = 5;
  for (int tick = 1; tick <= 16; ++tick) CharaMotionTick();
  EXPECT_EQ(Motion.BoredSec, 5);
  CharaMotionTick();
  EXPECT_EQ(Motion.BoredSec, 4);
  for (int tick = 18; tick <= 33; ++tick) CharaMotionTick();
  EXPECT_EQ(Motion.BoredSec, 4);
  CharaMotionTick();
  EXPECT_EQ(Motion.BoredSec, 3);
}

// "10秒": entered at step 1, shown at step 2, over at step 3; 20 steps count down
// to 0, and the next blink is entered at step 24.
TEST_F(MotionTest, ABlinkLastsOneStepAndComesAgainAfter20Steps) {
  Character.BlinkFrame = 5;
  Character.BlinkSpeedSel = 0;
  EXPECT_EQ(Step(), 0);
  EXPECT_EQ(Motion.CharaMotion, kMotionBlink);
  EXPECT_EQ(Motion.BlinkCount, 20);
  EXPECT_EQ(Motion.BoredLeft, 2);
  EXPECT_EQ(Stage.CharaFrame, 0);
  EXPECT_EQ(Step(), 1);
  EXPECT_EQ(Stage.CharaFrame, 5);
  EXPECT_EQ(Step(), 1);
  EXPECT_EQ(Stage.CharaFrame, 0);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
  EXPECT_EQ(Steps(20), std::vector<int>{});
  EXPECT_EQ(Motion.BlinkCount, 0);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
  EXPECT_EQ(Steps(3), (std::vector<int>{2, 3}));
}

TEST_F(MotionTest, EnteringABlinkClearsWhatAPatternLeft) {
  Character.BlinkFrame = 5;
  Motion.BoredRepeat = 7;
  Motion.BoredHold = 8;
  Motion.BlinkDone = true;
  Step();
  EXPECT_EQ(Motion.BoredRepeat, 0);
  EXPECT_EQ(Motion.BoredHold, 0);
  EXPECT_FALSE(Motion.BlinkDone);
}

TEST_F(MotionTest, WithBlinkFrame0TheBlinkCountNeitherRunsNorBlocksBoredom) {
  Patterns({1});
  Character.BlinkFrame = 0;
  Motion.BlinkCount = 9;
  Motion.BoredSec = 2;
  Steps(3);
  EXPECT_EQ(Motion.BlinkCount, 9);
  EXPECT_EQ(Motion.CharaMotion, kMotionBored);
}

TEST_F(MotionTest, ABlinkFrameOf0OrWithoutAPictureMeansNoBlink) {
  Character.BlinkSpeedSel = 0;
  for (const int frame : {0, 15, 20, -1, 1000}) {
    Character.BlinkFrame = frame;
    Motion.BlinkCount = 0;
    EXPECT_EQ(Steps(30), std::vector<int>{}) << frame;
    EXPECT_EQ(Motion.CharaMotion, kMotionIdle) << frame;
    EXPECT_EQ(Motion.BlinkCount, 0) << frame;
  }
}

TEST_F(MotionTest, WithNoBoredFramesInEitherPatternTheIdleTimersDoNotRun) {
  Patterns({}, {});
  Motion.BoredSec = 3;
  Motion.BoredMin = 4;
  Motion.BoredHour = 5;
  EXPECT_EQ(Steps(100), std::vector<int>{});
  EXPECT_EQ(Motion.BoredSec, 3);
  EXPECT_EQ(Motion.BoredMin, 4);
  EXPECT_EQ(Motion.BoredHour, 5);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
}

// 60 steps of the first count, then five times one step and 60: 365. Step 366
// finds all counts at 0.
TEST_F(MotionTest, FiveMinutesOfBoredomAre365StepsAndThePatternStartsAtThe366th) {
  Patterns({1, 2});
  Character.BoredDelaySel = 0;
  BoredTimerReset();
  EXPECT_EQ(Steps(365), std::vector<int>{});
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
  for (int tick = 1; tick <= 16; ++tick) CharaMotionTick();
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
  EXPECT_EQ(CharaMotionTick(), 0);
  EXPECT_EQ(Motion.CharaMotion, kMotionBored);
  EXPECT_EQ(Motion.BoredPattern, 0);
  EXPECT_EQ(Motion.BoredLeft, 2);
  EXPECT_EQ(Motion.BoredMin, 5);  // the timer begins anew
  EXPECT_EQ(Motion.BoredSec, 60);
}

// 60, one step that opens the hour, 60, and sixty times one step and 60.
TEST_F(MotionTest, AnHourOfBoredomIs3781Steps) {
  Patterns({1});
  Character.BoredDelaySel = 3;
  BoredTimerReset();
  Steps(60 + 1 + 60 + 60 * 61);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
  EXPECT_EQ(Motion.BoredHour, 0);
  EXPECT_EQ(Motion.BoredMin, 0);
  EXPECT_EQ(Motion.BoredSec, 0);
  Steps(1);
  EXPECT_EQ(Motion.CharaMotion, kMotionBored);
}

// Hold 1 before each frame, two passes more. With step 0 the choice: wait, frame,
// wait, frame, wait, frame, wait, new pass; a new pass begins as the first one did.
TEST_F(MotionTest, ABoredPatternHoldsEachFrameAndRunsItsPasses) {
  Patterns({3, 4, 5});
  Character.BoredSpeedSel = 1;
  Character.BoredRepeatSel = 1;
  Step();
  ASSERT_EQ(Motion.CharaMotion, kMotionBored);
  EXPECT_EQ(Motion.BoredRepeat, 2);
  EXPECT_EQ(Steps(1), std::vector<int>{});
  EXPECT_EQ(Step(), 1);
  EXPECT_EQ(Stage.CharaFrame, 3);
  EXPECT_EQ(Steps(1), std::vector<int>{});
  EXPECT_EQ(Step(), 1);
  EXPECT_EQ(Stage.CharaFrame, 4);
  Steps(1);
  EXPECT_EQ(Step(), 1);
  EXPECT_EQ(Stage.CharaFrame, 5);
  EXPECT_EQ(Motion.BoredLeft, 0);
  // Each pass from here: wait, new pass, and three times wait and frame. Then wait,
  // frame 0.
  EXPECT_EQ(Steps(18), (std::vector<int>{4, 6, 8, 12, 14, 16, 18}));
  EXPECT_EQ(Stage.CharaFrame, 0);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
}

TEST_F(MotionTest, WithoutAHoldEveryStepShowsAFrame) {
  Patterns({}, {1, 2, 3, 4, 5});
  Character.BoredSpeedSel = 0;
  Character.BoredRepeatSel = 0;
  Step();
  EXPECT_EQ(Motion.BoredPattern, 1);
  EXPECT_EQ(Steps(4), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(Stage.CharaFrame, 4);
  EXPECT_EQ(Step(), 1);
  EXPECT_EQ(Stage.CharaFrame, 0);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
}

TEST_F(MotionTest, APatternIsChosenAtRandomWhenBothHaveFrames) {
  RandomSeed(1);
  std::set<int> chosen;
  for (int i = 0; i < 60; ++i) {
    Patterns({1}, {2});
    Motion.CharaMotion = kMotionIdle;
    Motion.BoredSec = Motion.BoredMin = Motion.BoredHour = 0;
    Step();
    ASSERT_EQ(Motion.CharaMotion, kMotionBored);
    chosen.insert(Motion.BoredPattern);
  }
  EXPECT_EQ(chosen, (std::set<int>{0, 1}));
}

TEST_F(MotionTest, AnEndlessPatternGoesOnUntilThePointerTouchesTheStage) {
  Patterns({1, 2});
  Character.MenuFrame = 6;
  CharaLoadStage();
  Character.BoredRepeatSel = 9;
  Character.BoredSpeedSel = 0;
  Step();
  EXPECT_EQ(Motion.BoredRepeat, -1);
  Steps(3000);
  EXPECT_EQ(Motion.CharaMotion, kMotionBored);
  EXPECT_EQ(Motion.BoredRepeat, -1001);  // three steps a pass
  CharaMenuOn();
  EXPECT_EQ(Motion.CharaMotion, kMotionMenu);
  EXPECT_EQ(Stage.CharaFrame, 6);
  EXPECT_EQ(Motion.BoredLeft, -1);
}

TEST_F(MotionTest, WhileThePanelIsOpenTheCharacterStaysAndItsTimersDoNotRun) {
  Patterns({1});
  Character.BlinkFrame = 5;
  Motion.BlinkCount = 4;
  Character.MenuFrame = 6;
  CharaLoadStage();
  Motion.BoredSec = 9;
  CharaMenuOn();
  Panel.hDiskMenu = Program.hMainWnd;
  EXPECT_EQ(Steps(50), std::vector<int>{});
  EXPECT_EQ(Motion.CharaMotion, kMotionMenu);
  EXPECT_EQ(Stage.CharaFrame, 6);
  EXPECT_EQ(Motion.BlinkCount, 4);
  EXPECT_EQ(Motion.BoredSec, 9);
  Panel.hDiskMenu = nullptr;
  EXPECT_EQ(CharaMotionTick(), 1);  // in the very next tick
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
  EXPECT_EQ(Stage.CharaFrame, 0);
  EXPECT_EQ(Motion.BoredLeft, 0);
  EXPECT_EQ(CharaMotionTick(), 0);
}

TEST_F(MotionTest, APanelThatClosedIsSeenAtAStepToo) {
  Character.MenuFrame = 6;
  CharaMenuOn();
  Motion.CharaStepCount = 16;
  EXPECT_EQ(CharaMotionTick(), 1);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
}

TEST_F(MotionTest, WhileTheCharacterDialogIsOpenTheCharacterStandsStill) {
  Patterns({1});
  Motion.BoredSec = 9;
  CharaMenuOn();
  Dialogs.DlgIdMenu = MenuDialog::OptionSelDlg1_2;
  for (int i = 0; i < 100; ++i) EXPECT_EQ(CharaMotionTick(), 0);
  EXPECT_EQ(Motion.CharaStepCount, 0);
  EXPECT_EQ(Motion.CharaMotion, kMotionMenu);
  Dialogs.DlgIdMenu = MenuDialog::OptionSelDlg2;
  EXPECT_EQ(CharaMotionTick(), 1);
}

TEST_F(MotionTest, TheRandomDelayStaysBelowTwoHours) {
  RandomSeed(7);
  Character.BoredDelaySel = 9;
  std::set<int> hours;
  for (int i = 0; i < 200; ++i) {
    BoredTimerReset();
    hours.insert(Motion.BoredHour);
    EXPECT_TRUE(Motion.BoredMin >= 0 && Motion.BoredMin < 60);
    EXPECT_EQ(Motion.BoredSec, 60);
  }
  EXPECT_EQ(hours, (std::set<int>{0, 1}));
}

TEST_F(MotionTest, APatternThatWasCutShortMeanwhileEndsAtFrame0) {
  Patterns({1, 2, 3});
  Step();
  ASSERT_EQ(Motion.CharaMotion, kMotionBored);
  Patterns({1});
  EXPECT_EQ(Step(), 1);
  EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
  EXPECT_EQ(Stage.CharaFrame, 0);
}

TEST_F(MotionTest, FramesBeyondTheTableAreShownAsFrame0) {
  Patterns({1000000});
  Step();
  EXPECT_EQ(Step(), 1);
  CommandRedrawStage();
  DrawingClear();
  StagePaint();
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].dib, FramePicture(kStageRow, 0));
}

// The timer may leave out looking at the ticks before the one that is due.
TEST_F(MotionTest, UntilTheTickThatIsDueNothingIsShownAndNoStateChanges) {
  Character.BlinkFrame = 5;
  Character.BlinkSpeedSel = 0;
  Patterns({2, 3}, {4});
  Motion.BoredSec = 2;
  Motion.BoredMin = 1;
  Motion.BoredHour = 0;
  int waited = 0;
  for (int ticks = 0; ticks < 20000;) {
    const int due = CharaMotionDue();
    ASSERT_GE(due, 1);
    const std::int32_t state = Motion.CharaMotion;
    for (int tick = 1; tick < due; ++tick) {
      ASSERT_EQ(CharaMotionTick(), 0) << ticks + tick;
      ASSERT_EQ(Motion.CharaMotion, state) << ticks + tick;
    }
    CharaMotionTick();
    ticks += due;
    ++waited;
  }
  // 20,000 ticks are 1,176 steps; most of them only count.
  EXPECT_LT(waited, 600);
}

}  // namespace
