// The main window, timers, the message loop, places and regions.
#include "platform/window.h"

#include "platform/posix/faults.h"
#include "platform/posix/live_counts.h"
#include "platform/screen.h"
#include "tests/platform/machinery.h"
#include "tests/support/places.h"
#include "tests/support/test_dialogs.h"

namespace {

class WindowTest : public MachineryTest {
 protected:
  static WindowHandle Open() {
    const WindowHandle window =
        MainWindowCreate({"class", "ミルレール", 0, 0, IDM_Test, Listen}, 100, 200, 300, 400);
    EXPECT_NE(window, nullptr);
    heard.clear();
    return window;
  }
};

TEST_F(WindowTest, MainWindowIsHiddenWithAThinBorderAndAMenuBar) {
  const WindowHandle window =
      MainWindowCreate({"class", "ミルレール", 0, 0, IDM_Test, Listen}, 100, 200, 300, 400);
  EXPECT_EQ(heard, Names{"init"});
  EXPECT_FALSE(IsVisible(window));
  EXPECT_EQ(WindowText(window), "ミルレール");
  const Rect client = WindowClientRect(window);
  EXPECT_EQ(client.left, 0);
  EXPECT_EQ(client.right, 298);
  EXPECT_EQ(client.bottom, 400 - 2 - 20);
  const Rect rect = WindowRect(window);
  EXPECT_EQ(rect.left, 100);
  EXPECT_EQ(rect.top, 200);
  EXPECT_EQ(rect.right, 400);
  EXPECT_EQ(rect.bottom, 600);
}

TEST_F(WindowTest, FirstShowTellsTheSizeAndPaintsAtOnce) {
  const WindowHandle window = Open();
  WindowShowFirst(window, 1);
  EXPECT_TRUE(IsVisible(window));
  EXPECT_EQ(heard, (Names{"size 298 378", "paint"}));
}

TEST_F(WindowTest, FirstShowWithModeZeroStaysHidden) {
  const WindowHandle window = Open();
  WindowShowFirst(window, 0);
  EXPECT_FALSE(IsVisible(window));
  EXPECT_TRUE(heard.empty());
}

TEST_F(WindowTest, SecondMainWindowIsAFailure) {
  Open();
  EXPECT_EQ(MainWindowCreate({"class", "t", 0, 0, 0, Listen}, 0, 0, 9, 9), nullptr);
  EXPECT_EQ(TheFailure(), "MainWindowCreate: there is a main window already");
}

TEST_F(WindowTest, MainWindowThatCannotBeMadeIsNull) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(MainWindowCreate({"class", "t", 0, 0, 0, Listen}, 0, 0, 9, 9), nullptr);
}

TEST_F(WindowTest, MainWindowCloseDestroysUnlessHandled) {
  const WindowHandle window = Open();
  reaction = [](const Event& event) { return event.kind == EventKind::Close; };
  SendClose(window);
  EXPECT_TRUE(WindowIsOpen(window));
  reaction = nullptr;
  SendClose(window);
  EXPECT_FALSE(WindowIsOpen(window));
  EXPECT_EQ(heard, (Names{"close", "close", "destroy"}));
}

TEST_F(WindowTest, SendDestroyOnlyTells) {
  const WindowHandle window = Open();
  SendDestroy(window);
  EXPECT_EQ(heard, Names{"destroy"});
  EXPECT_TRUE(WindowIsOpen(window));
}

TEST_F(WindowTest, MoveTellsTheSizeOnlyWhenItChanges) {
  const WindowHandle window = Open();
  WindowShowFirst(window, 1);
  heard.clear();
  WindowMove(window, 0, 0, 300, 400, true);
  EXPECT_TRUE(heard.empty());
  WindowMove(window, 0, 0, 302, 422, true);
  EXPECT_EQ(heard, Names{"size 300 400"});
}

TEST_F(WindowTest, TopmostShowsWithoutMoving) {
  const WindowHandle window = Open();
  WindowSetTopmost(window);
  EXPECT_TRUE(IsTopmost(window));
  EXPECT_TRUE(IsVisible(window));
  EXPECT_EQ(WindowRect(window).left, 100);
}

TEST_F(WindowTest, TextIsSetAndCut) {
  const WindowHandle window = Open();
  WindowSetText(window, "日本語");
  char buffer[6];
  EXPECT_EQ(WindowGetText(window, buffer, sizeof buffer), 5);
  EXPECT_EQ(buffer[5], '\0');
}

TEST_F(WindowTest, TimersFireAsOftenAsTicked) {
  const WindowHandle window = Open();
  EXPECT_TRUE(TimerStart(window, 1, 30));
  EXPECT_TRUE(TimerIsRunning(window, 1));
  EXPECT_TRUE(TimerStart(window, 1, 30));  // starts anew, not twice
  EXPECT_EQ(PosixLive().timers, 1);
  Tick(3);
  EXPECT_EQ(heard, (Names{"timer", "timer", "timer"}));
  TimerStop(window, 1);
  TimerStop(window, 1);
  Tick();
  EXPECT_EQ(heard.size(), 3U);
  EXPECT_EQ(PosixLive().timers, 0);
}

TEST_F(WindowTest, TimerStoppedByAnotherDoesNotFire) {
  const WindowHandle window = Open();
  TimerStart(window, 1, 30);
  TimerStart(window, 2, 30);
  reaction = [](const Event& event) {
    TimerStop(event.window, 1);
    TimerStop(event.window, 2);
    return true;
  };
  Tick();
  EXPECT_EQ(heard, Names{"timer"});
}

TEST_F(WindowTest, TimerMayOpenAModalDialogThatTicksOn) {
  const WindowHandle window = Open();
  TimerStart(window, 1, 30);
  int timers = 0;
  reaction = [&](const Event& event) {
    if (event.kind == EventKind::Timer && ++timers == 1) {
      EXPECT_EQ(DialogRun(IDD_TestPlain, event.window, Listen), 6);
    }
    return true;
  };
  Then([] { Tick(2); });
  Then([] { DialogEnd(TopDialog(), 6); });
  Tick();
  EXPECT_EQ(timers, 3);
  TimerStop(window, 1);
}

TEST_F(WindowTest, TimerThatIsNotToBeHadIsFalse) {
  const WindowHandle window = Open();
  FaultArm(FaultKind::Timer, 1);
  EXPECT_FALSE(TimerStart(window, 1, 30));
  EXPECT_FALSE(TimerIsRunning(window, 1));
}

TEST_F(WindowTest, TimersEndWithTheirWindow) {
  const WindowHandle window = DialogOpen(IDD_TestPanel, nullptr, Listen);
  TimerStart(window, 1, 30);
  WindowDestroy(window);
  EXPECT_EQ(PosixLive().timers, 0);
  Tick();
}

TEST_F(WindowTest, MessageLoopRunsTheScriptUntilQuit) {
  const WindowHandle window = Open();
  Then([window] { SendCommand(window, 40); });
  Then([] { MessageQuit(7); });
  Then([] { ADD_FAILURE() << "after the end"; });
  EXPECT_EQ(MessageLoop(window, IDA_Test), 7);
  EXPECT_EQ(heard, Names{"command 40"});
  EXPECT_EQ(StepsLeft(), 1);
  HeadlessReset();
  HeadlessResourceFile(kTestResourceFile);
}

TEST_F(WindowTest, MessageLoopWithoutAScriptIsAFailure) {
  MessageLoop(Open(), IDA_Test);
  EXPECT_EQ(TheFailure(), "the script is empty while the message loop runs");
}

TEST_F(WindowTest, MessageLoopWithoutItsAcceleratorsIsAFailure) {
  Then([] { MessageQuit(0); });
  MessageLoop(Open(), 999);
  EXPECT_EQ(TheFailure(), "MessageLoop: no accelerators 999 in the resources");
}

TEST_F(WindowTest, AcceleratorIsACommandOfTheMainWindow) {
  const WindowHandle window = Open();
  constexpr int kF4 = 0x73;
  constexpr int kReturn = 13;
  Then([] {
    PressAccelerator(kF4, 16);
    PressAccelerator(kReturn, 4 | 8);
    PressAccelerator(kF4, 0);
    EXPECT_EQ(TheFailure(), "PressAccelerator: no entry for the key 115");
    MessageQuit(0);
  });
  MessageLoop(window, IDA_Test);
  EXPECT_EQ(heard, (Names{"command 601", "command 602"}));
  PressAccelerator(kF4, 16);
  EXPECT_EQ(TheFailure(), "PressAccelerator: the main window's loop is not the one that runs");
}

TEST_F(WindowTest, MouseSetsThePointerAndReachesTheWindow) {
  const WindowHandle window = Open();
  WindowShowFirst(window, 1);
  heard.clear();
  Mouse(window, EventKind::MouseMove, 10, 20, kLeftHeld);
  EXPECT_EQ(heard, Names{"move 10 20"});
  EXPECT_EQ(PointerPosition().x, 100 + 1 + 10);
  EXPECT_EQ(PointerPosition().y, 200 + 1 + 20 + 20);
  SetPointer(3, 4);
  EXPECT_EQ(PointerPosition().x, 3);
  WindowShow(window, false);
  Mouse(window, EventKind::LeftDown, 0, 0);
  EXPECT_EQ(TheFailure(), "Mouse: the window is hidden");
}

TEST_F(WindowTest, KeyReachesTheWindow) {
  const WindowHandle window = Open();
  PressKey(window, 27);
  EXPECT_EQ(TheFailure(), "PressKey: the window takes no keys");
  WindowShowFirst(window, 1);
  heard.clear();
  PressKey(window, 27);
  EXPECT_EQ(heard, Names{"char 27"});
}

TEST_F(WindowTest, CommandsOneAndTwoOfTheMainWindowAreNoButtons) {
  const WindowHandle window = Open();
  SendCommand(window, 1);
  SendCommand(window, 2);
  EXPECT_EQ(heard, (Names{"command 1", "command 2"}));
}

TEST_F(WindowTest, TheUserClosesOnlyWhatIsShownAndEnabled) {
  const WindowHandle window = Open();
  PressClose(window);
  EXPECT_EQ(TheFailure(), "PressClose: the window cannot be closed");
  WindowShowFirst(window, 1);
  WindowEnable(window, false);
  PressClose(window);
  EXPECT_EQ(TheFailure(), "PressClose: the window cannot be closed");
  WindowEnable(window, true);
  PressClose(window);
  EXPECT_FALSE(WindowIsOpen(window));
  const WindowHandle bare = DialogOpen(IDD_TestPlain, nullptr, Listen);
  PressClose(bare);  // its caption has no sign to press
  EXPECT_EQ(TheFailure(), "PressClose: the window cannot be closed");
  WindowDestroy(bare);
}

TEST_F(WindowTest, RegionBelongsToTheWindowFromThenOn) {
  const WindowHandle window = Open();
  const Point points[] = {{0, 0}, {10, 0}, {10, 20}};
  const RegionHandle region = RegionPolygon(points, 3);
  EXPECT_EQ(PosixLive().regions, 1);
  WindowSetRegion(window, region, true);
  EXPECT_EQ(PosixLive().regions, 0);
  EXPECT_EQ(RegionOf(window), region);
  EXPECT_EQ(RegionKindOf(region), RegionKind::Polygon);
  ASSERT_EQ(RegionPoints(region).size(), 3U);
  EXPECT_EQ(RegionPoints(region)[2].y, 20);
  RegionDelete(region);
  EXPECT_EQ(TheFailure(), "RegionDelete: the region belongs to a window");
  WindowSetRegion(window, region, true);
  EXPECT_EQ(TheFailure(), "WindowSetRegion: the region belongs to a window already");
  WindowSetRegion(window, nullptr, true);
  EXPECT_EQ(RegionOf(window), nullptr);
  EXPECT_EQ(RegionSetCount(window), 2);
  EXPECT_TRUE(RegionPoints(region).empty());
}

TEST_F(WindowTest, RegionsThatCannotBeMadeAreNull) {
  const Point points[] = {{0, 0}};
  EXPECT_EQ(RegionPolygon(points, 0), nullptr);
  EXPECT_EQ(RegionPolygon(nullptr, 3), nullptr);
  FaultArmFrom(FaultKind::Region, 1);
  EXPECT_EQ(RegionPolygon(points, 1), nullptr);
  EXPECT_EQ(RegionRect({0, 0, 1, 1}), nullptr);
  EXPECT_EQ(RegionEllipse({0, 0, 1, 1}), nullptr);
  FaultClear();
  const RegionHandle ellipse = RegionEllipse({1, 2, 3, 4});
  EXPECT_EQ(RegionKindOf(ellipse), RegionKind::Ellipse);
  EXPECT_EQ(RegionPoints(ellipse)[1].x, 3);
  RegionDelete(ellipse);
  RegionDelete(nullptr);
  RegionDelete(ellipse);
  EXPECT_EQ(TheFailure(), "RegionDelete: the region is deleted");
}

TEST_F(WindowTest, ScreenFigures) {
  EXPECT_EQ(ScreenMetric(Metric::FullScreenWidth), 1024);
  EXPECT_EQ(ScreenMetric(Metric::FullScreenHeight), 768);
  EXPECT_EQ(ScreenMetric(Metric::MenuHeight), 20);
  EXPECT_EQ(ScreenMetric(Metric::SizeButtonWidth), 18);
  EXPECT_EQ(ScreenMetric(Metric::FrameWidth), 4);
  EXPECT_EQ(ScreenMetric(Metric::FrameHeight), 4);
  EXPECT_EQ(ScreenMetric(Metric::EdgeHeight), 2);
  EXPECT_EQ(ScreenMetric(Metric::CaptionHeight), 19);
  ScreenSet(800, 600);
  EXPECT_EQ(ScreenMetric(Metric::FullScreenWidth), 800);
  EXPECT_EQ(ScreenMetric(Metric::FullScreenHeight), 600);
}

}  // namespace
