// The performance that the clock notice plays: its steps, passes, sound and waits.
#include "clock_calendar/clock/performance.h"

#include <cstring>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/performance_figures.h"
#include "clock_calendar/clock/clock.h"
#include "tests/character/chara_files.h"
#include "tests/support/desktop.h"

namespace {

constexpr int kCharacter = 9;

class PerformanceTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    ASSERT_EQ(ClockAlarmFileLoad(), 0);  // the three default records
    MakeFolder("C:\\mirrell\\キャラクタ");
    for (int frame = 1; frame <= 3; ++frame) PutFrame(frame);
    CharaTables.AlarmCharaCount = 1;
    CharaTables.AlarmCharas[0] = kCharacter;
    Character.AlarmCharaSel[2] = 1;
    Performance.PerformanceActive = 0;
  }
  void TearDown() override {
    PerformanceEnd();
    CharaTables.AlarmCharaCount = 0;
    Character.AlarmCharaSel[2] = 0;
    DesktopTest::TearDown();
  }

  static std::string FrameName(int frame, bool mask) {
    return "C:\\mirrell\\キャラクタ\\Chara" + std::to_string(kCharacter) + "_" + std::to_string(frame) +
           (mask ? "x.bmp" : ".bmp");
  }
  static void PutFrame(int frame) {
    PutFile(FrameName(frame, false), BmpFile(20, 10));
    PutFile(FrameName(frame, true), BmpFile(20, 10, 0, 0, 0));
  }
  static void Begin(int performance, bool looping) {
    Performance.PerformanceActive = performance;
    PerformanceBegin(looping);
  }
  // The steps after so many moves.
  static std::vector<int> Steps(int moves) {
    std::vector<int> steps;
    for (int i = 0; i < moves; ++i) {
      PerformanceNext();
      steps.push_back(Performance.PerformanceStep);
    }
    return steps;
  }
  static bool Over() {
    LocalTime now;
    TimeGetLocal(&now);
    return PerformanceWaitIsOver(now);
  }
};

const std::string kKan = "C:\\mirrell\\サウンド\\kan.wav";

TEST_F(PerformanceTest, FiguresAndSoundOfTheFirstRecord) {
  Begin(1, true);
  EXPECT_TRUE(PerformanceShowsFigures());
  EXPECT_EQ(Performance.PerformanceStep, 0);
  EXPECT_EQ(SoundsPlayed(), std::vector<std::string>{kKan});
}

TEST_F(PerformanceTest, FiguresWithoutASoundOfTheSecond) {
  Begin(2, true);
  EXPECT_TRUE(PerformanceShowsFigures());
  EXPECT_TRUE(SoundsPlayed().empty());
}

TEST_F(PerformanceTest, OnlyTheSoundOfTheThird) {
  Begin(3, true);
  EXPECT_FALSE(PerformanceShowsFigures());
  EXPECT_EQ(SoundsPlayed().size(), 1U);
  for (int i = 0; i < 20; ++i) EXPECT_FALSE(Over());
}

TEST_F(PerformanceTest, APerformanceWithNoSoundAndFigureNumber0HasNothing) {
  PerformanceTable.ClockPerformances[2].sound[0] = '\0';
  Begin(3, true);
  EXPECT_FALSE(PerformanceShowsFigures());
  EXPECT_TRUE(SoundsPlayed().empty());
}

TEST_F(PerformanceTest, WithoutTheFlagThereAreNoFigures) {
  PerformanceTable.ClockPerformances[0].flags = 2;
  Begin(1, true);
  EXPECT_FALSE(PerformanceShowsFigures());
}

TEST_F(PerformanceTest, WithoutASelectedCharacterOnlyTheSoundPlays) {
  for (const int selection : {0, -1, 2, 51}) {
    Character.AlarmCharaSel[2] = selection;
    Begin(1, true);
    EXPECT_FALSE(PerformanceShowsFigures()) << selection;
  }
  EXPECT_EQ(SoundsPlayed().size(), 4U);
}

TEST_F(PerformanceTest, NumbersOutsideTheTableAreNone) {
  for (const int number : {0, -1, 4, 51, 70000}) {
    Begin(number, true);
    EXPECT_FALSE(PerformanceShowsFigures()) << number;
  }
  EXPECT_TRUE(SoundsPlayed().empty());
}

// --- Steps

TEST_F(PerformanceTest, WithASlotItGoesRoundAtTheFirstStepWithoutAPicture) {
  Begin(1, true);
  EXPECT_EQ(Steps(7), (std::vector<int>{1, 2, 0, 1, 2, 0, 1}));
  EXPECT_EQ(Performance.PerformanceActive, 1);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
}

TEST_F(PerformanceTest, WithASlotItGoesRoundAfterTwentySteps) {
  for (int frame = 4; frame <= 20; ++frame) PutFrame(frame);
  Begin(1, true);
  const std::vector<int> steps = Steps(21);
  EXPECT_EQ(steps[18], 19);
  EXPECT_EQ(steps[19], 0);
  EXPECT_EQ(steps[20], 1);
}

TEST_F(PerformanceTest, WithASlotItRepeatsUntilItIsEnded) {
  Begin(1, true);
  Steps(1000);
  EXPECT_TRUE(PerformanceShowsFigures());
  PerformanceEnd();
  EXPECT_FALSE(PerformanceShowsFigures());
  EXPECT_EQ(Performance.PerformanceActive, 1);
}

TEST_F(PerformanceTest, WithoutASlotEachPassHasTwentyStepsAndPlaysTheSoundAgain) {
  Begin(1, false);
  const std::vector<int> steps = Steps(20);
  for (int i = 0; i < 19; ++i) EXPECT_EQ(steps[static_cast<std::size_t>(i)], i + 1);
  EXPECT_EQ(steps[19], 0);
  EXPECT_EQ(Performance.PerformancePasses, 1);
  EXPECT_EQ(SoundsPlayed().size(), 2U);
}

TEST_F(PerformanceTest, WithoutASlotItIsOverAfterFivePasses) {
  Begin(1, false);
  Steps(99);
  EXPECT_EQ(Performance.PerformanceActive, 1);
  EXPECT_TRUE(PerformanceShowsFigures());
  EXPECT_EQ(SoundsPlayed().size(), 5U);
  Steps(1);
  EXPECT_EQ(Performance.PerformanceActive, 0);
  EXPECT_FALSE(PerformanceShowsFigures());
  EXPECT_EQ(SoundsPlayed().size(), 5U);
  Steps(50);
  EXPECT_EQ(Performance.PerformanceStep, 0);
  EXPECT_EQ(SoundsPlayed().size(), 5U);
}

TEST_F(PerformanceTest, ANewRunBeginsAnew) {
  Begin(1, false);
  Steps(45);
  Begin(1, false);
  EXPECT_EQ(Performance.PerformanceStep, 0);
  EXPECT_EQ(Performance.PerformancePasses, 0);
}

// --- Figures

TEST_F(PerformanceTest, AFigureIsLoadedWhenItIsFirstNeededAndKept) {
  Begin(1, true);
  EXPECT_EQ(DiagnosticsLive().blocks, 0);
  const MaskedFrame first = PerformanceFigure(0);
  EXPECT_NE(first.picture, nullptr);
  EXPECT_NE(first.mask, nullptr);
  EXPECT_EQ(DiagnosticsLive().blocks, 2);
  RemoveFile(FrameName(1, false));
  EXPECT_EQ(PerformanceFigure(0).picture, first.picture);
  PerformanceEnd();
  EXPECT_EQ(DiagnosticsLive().blocks, 0);
  EXPECT_EQ(PerformanceFigure(0).picture, nullptr);
}

TEST_F(PerformanceTest, AFigureThatCannotBeLoadedIsNotTriedAgain) {
  Begin(1, true);
  EXPECT_EQ(PerformanceFigure(3).picture, nullptr);
  PutFrame(4);
  EXPECT_EQ(PerformanceFigure(3).picture, nullptr);
}

TEST_F(PerformanceTest, StepsOutsideTheTableHaveNoFigure) {
  EXPECT_EQ(PerformanceFigure(-1).picture, nullptr);
  EXPECT_EQ(PerformanceFigure(20).picture, nullptr);
}

TEST_F(PerformanceTest, TheMaskIsAppliedToThePicture) {
  // Where the mask is white the picture becomes black.
  PutFile(FrameName(1, true), BmpFile(20, 10, 255, 255, 255));
  Begin(1, true);
  const unsigned char* pixels = DibBits(PerformanceFigure(0).picture);
  ASSERT_NE(pixels, nullptr);
  EXPECT_EQ(pixels[0], 0);
  EXPECT_EQ(DibBits(PerformanceFigure(1).picture)[0], 10);
}

// --- Waits

TEST_F(PerformanceTest, AStepLastsFourTicks) {
  Begin(1, true);
  for (int round = 0; round < 3; ++round) {
    EXPECT_FALSE(Over());
    EXPECT_FALSE(Over());
    EXPECT_FALSE(Over());
    EXPECT_TRUE(Over());
    EXPECT_FALSE(Over()) << "nothing waits until the next step";
    PerformanceNext();
  }
}

int TicksOf(int hundredths) {
  PerformanceWaitStart(hundredths, {});
  int ticks = 1;
  while (!PerformanceWaitIsOver({})) ++ticks;
  return ticks;
}

TEST_F(PerformanceTest, BelowAHundredHundredthsAWaitIsAThirdOfThemInTicksPlusOne) {
  EXPECT_EQ(TicksOf(0), 1);
  EXPECT_EQ(TicksOf(2), 1);
  EXPECT_EQ(TicksOf(3), 2);
  EXPECT_EQ(TicksOf(10), 4);
  EXPECT_EQ(TicksOf(99), 34);
}

LocalTime TimeOf(int hour, int minute, int second, int millisecond) {
  return {2026, 11, 21, 6, hour, minute, second, millisecond};
}

TEST_F(PerformanceTest, ALongerWaitEndsAtATimeOfTheDay) {
  PerformanceWaitStart(150, TimeOf(10, 20, 30, 400));  // until 10:20:31.90
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(10, 20, 31, 899)));
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(10, 20, 30, 950)));
  EXPECT_TRUE(PerformanceWaitIsOver(TimeOf(10, 20, 31, 900)));
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(10, 20, 40, 990)));
}

TEST_F(PerformanceTest, ALongerWaitCarriesIntoMinutesAndHoursModulo24) {
  PerformanceWaitStart(100, TimeOf(23, 59, 59, 500));  // until 0:00:00.50
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(0, 0, 0, 490)));
  EXPECT_TRUE(PerformanceWaitIsOver(TimeOf(0, 0, 0, 500)));
  PerformanceWaitStart(360000 + 6000 + 123, TimeOf(1, 2, 3, 0));  // an hour, a minute, 1.23 s
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(2, 3, 4, 229)));
  EXPECT_TRUE(PerformanceWaitIsOver(TimeOf(2, 3, 4, 230)));
}

TEST_F(PerformanceTest, EachNumberOfTheTimeMustHaveBeenReached) {
  PerformanceWaitStart(100, TimeOf(10, 20, 30, 900));            // until 10:20:31.90
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(10, 21, 0, 950)));   // the second has not
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(11, 0, 45, 950)));   // the minute has not
  EXPECT_FALSE(PerformanceWaitIsOver(TimeOf(10, 20, 45, 100)));  // the millisecond has not
  EXPECT_TRUE(PerformanceWaitIsOver(TimeOf(11, 20, 31, 900)));
}

TEST_F(PerformanceTest, NothingWaitsAfterTheEnd) {
  Begin(1, true);
  PerformanceEnd();
  for (int i = 0; i < 10; ++i) EXPECT_FALSE(Over());
}

}  // namespace
