// The layout of the desktop: its small image, its dialog, the default, and moving
// the windows.
#include "shell/layout.h"

#include "character/character.h"
#include "character/character_tables.h"
#include "character/stage.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_size.h"
#include "platform/posix/faults.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "resources/shell_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "shell/panel.h"
#include "shell/settings.h"
#include "tests/character/chara_files.h"
#include "tests/support/program.h"

namespace {

constexpr std::uint32_t kDialogCommand = 2283;
constexpr std::uint32_t kApplyCommand = 2374;
constexpr int kDefaultButton = 2292;

class LayoutTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    // A clock design of 60 x 40 pixels, on character 15.
    MakeFolder("C:\\mirrell\\キャラクタ");
    PutFile("C:\\mirrell\\キャラクタ\\Chara15_1.bmp", BmpFile(60, 40));
    CharaTables.ClockDesignCount = 1;
    CharaTables.ClockDesigns[0].number = 15;
    Clock.ClockDesign = 0;
    Clock.ClockShow = Calendar.CalenShow = 0;
    Calendar.CalenW = 200;
    Calendar.CalenH = 220;
    Layout.LayoutChange = 0;
    SetScreen(800, 600);
    SetStage(300, 150, 90, 120);
    Clock.ClockX = 30;
    Clock.ClockY = 60;
    Calendar.CalenX = 540;
    Calendar.CalenY = 12;
  }

  static void SetScreen(int width, int height) {
    Screen.ScreenWidth = width;
    Screen.ScreenHeight = height;
  }
  static void SetStage(int x, int y, int width, int height) {
    Character.StageX = x;
    Character.StageY = y;
    Stage.StageWidth = width;
    Stage.StageHeight = height;
  }
  // Runs the dialog; the steps run while it is open.
  static void RunDialog(std::vector<std::function<void()>> steps) {
    for (auto& step : steps) Then(std::move(step));
    SendCommand(Program.hMainWnd, kDialogCommand);
  }
  // A point of the image, in the dialog.
  static void At(EventKind kind, int x, int y, unsigned keys = kLeftHeld) {
    Mouse(TopDialog(), kind, 10 + x, 34 + y, keys);
  }
  static void Drag(int fromX, int fromY, int toX, int toY) {
    At(EventKind::LeftDown, fromX, fromY);
    At(EventKind::MouseMove, toX, toY);
    At(EventKind::LeftUp, toX, toY);
  }
  static void Ok() { Press(TopDialog(), 1); }
  static void Cancel() { Press(TopDialog(), 2); }
};

// --- Scale

TEST_F(LayoutTest, AScreenOf1600By1200GivesADivisorOf5OneOf1024By768Gives4AndOneOf800By600Gives3) {
  SetScreen(1600, 1200);
  LayoutTake();
  EXPECT_EQ(Layout.LayoutDiv, 5);
  EXPECT_EQ(Layout.LayoutScreen.width, 320);
  EXPECT_EQ(Layout.LayoutScreen.height, 240);
  SetScreen(1024, 768);
  LayoutTake();
  EXPECT_EQ(Layout.LayoutDiv, 4);
  EXPECT_EQ(Layout.LayoutScreen.width, 256);
  EXPECT_EQ(Layout.LayoutScreen.height, 192);
  SetScreen(800, 600);
  LayoutTake();
  EXPECT_EQ(Layout.LayoutDiv, 3);
  EXPECT_EQ(Layout.LayoutScreen.width, 266);
  EXPECT_EQ(Layout.LayoutScreen.height, 200);
}

TEST_F(LayoutTest, DivisorAtTheEdges) {
  const struct {
    int width, height, div;
  } rows[] = {
      {1202, 722, 3},  // 400 x 240
      {1203, 722, 4},  // 401
      {1202, 723, 4},  // 241
      {1603, 722, 4},  // 400 at 4
      {1604, 722, 5},  // 401 at 4
      {1202, 963, 4},  // 240 at 4
      {1202, 964, 5},  // 241 at 4
      {3840, 2160, 5},
  };
  for (const auto& row : rows) {
    SetScreen(row.width, row.height);
    LayoutTake();
    EXPECT_EQ(Layout.LayoutDiv, row.div) << row.width << " x " << row.height;
  }
}

TEST_F(LayoutTest, PlacesAndSizesAreTakenByIntegerDivision) {
  SetStage(301, 152, 91, 122);
  LayoutTake();
  EXPECT_EQ(Layout.LayoutPos[0].x, 100);
  EXPECT_EQ(Layout.LayoutPos[0].y, 50);
  EXPECT_EQ(Layout.LayoutSize[0].width, 30);
  EXPECT_EQ(Layout.LayoutSize[0].height, 40);
  EXPECT_EQ(Layout.LayoutPos[1].x, 10);
  EXPECT_EQ(Layout.LayoutPos[1].y, 20);
  EXPECT_EQ(Layout.LayoutSize[1].width, 20);
  EXPECT_EQ(Layout.LayoutSize[1].height, 13);
  EXPECT_EQ(Layout.LayoutPos[2].x, 180);
  EXPECT_EQ(Layout.LayoutPos[2].y, 4);
  EXPECT_EQ(Layout.LayoutSize[2].width, 66);
  EXPECT_EQ(Layout.LayoutSize[2].height, 73);
}

TEST_F(LayoutTest, TheClockHasTheWidthOfTheCurrentDesignAndTheHeightOfTheFirst) {
  PutFile("C:\\mirrell\\キャラクタ\\Chara16_1.bmp", BmpFile(80, 100));
  CharaTables.ClockDesignCount = 2;
  CharaTables.ClockDesigns[1].number = 16;
  Clock.ClockDesign = 1;
  EXPECT_EQ(ClockLayoutWidth(), 80);
  EXPECT_EQ(ClockLayoutHeight(), 40);
}

// As a new data set has it: the clock has the place that its first design would take.
TEST_F(LayoutTest, WithNoDesignChosenTheClockCountsAsTheFirst) {
  PutFile("C:\\mirrell\\キャラクタ\\Chara16_1.bmp", BmpFile(80, 100));
  CharaTables.ClockDesignCount = 2;
  CharaTables.ClockDesigns[1].number = 16;
  Clock.ClockDesign = kClockNone;
  LayoutTake();
  EXPECT_EQ(Layout.LayoutSize[1].width, 60 / 3);
  EXPECT_EQ(Layout.LayoutSize[1].height, 40 / 3);
  LayoutDefault();
  EXPECT_EQ(Clock.ClockX, 800 - 200 - 60 - 20) << "left of the calendar, and not under it";
}

TEST_F(LayoutTest, TheImageShowsTheChosenDesignsOwnHeightAndTheDefaultTheFirstOnes) {
  PutFile("C:\\mirrell\\キャラクタ\\Chara16_1.bmp", BmpFile(81, 100));
  CharaTables.ClockDesignCount = 2;
  CharaTables.ClockDesigns[1].number = 16;
  Clock.ClockDesign = 1;
  LayoutTake();
  EXPECT_EQ(Layout.LayoutSize[1].width, 81 / 3);
  EXPECT_EQ(Layout.LayoutSize[1].height, 100 / 3);
  Calendar.CalenW = 500;
  Stage.StageHeight = 330;  // 10 + 220 + 330 + 40 is exactly 600
  LayoutDefault();
  EXPECT_EQ(Clock.ClockY, 560);
}

TEST_F(LayoutTest, WithoutDesignsOrTheirPicturesTheClockHasNoSize) {
  RemoveFile("C:\\mirrell\\キャラクタ\\Chara15_1.bmp");
  EXPECT_EQ(ClockLayoutWidth(), 0);
  EXPECT_EQ(ClockLayoutHeight(), 0);
  EXPECT_EQ(ClockPictureHeight(), 0);
  CharaTables.ClockDesignCount = 0;
  EXPECT_EQ(ClockLayoutHeight(), 0);
  Clock.ClockDesign = 3;
  EXPECT_EQ(ClockLayoutWidth(), 0);
}

TEST_F(LayoutTest, ACalendarThatWasNeverOpenHasTheSizeOfItsPage) {
  Calendar.CalenW = Calendar.CalenH = 0;
  Calendar.CalenPageSize = 0;
  EXPECT_EQ(CalenLayoutWidth(), 150);
  EXPECT_EQ(CalenLayoutHeight(), 8 * 12 + 24 + 20);
  Calendar.CalenPageSize = 1;
  EXPECT_EQ(CalenLayoutWidth(), 200);
  EXPECT_EQ(CalenLayoutHeight(), 8 * 16 + 24 + 20);
  Calendar.CalenPageSize = 2;
  EXPECT_EQ(CalenLayoutWidth(), 250);
  EXPECT_EQ(CalenLayoutHeight(), 8 * 20 + 24 + 20);
  Calendar.CalenPageSize = 1;
}

// --- The dialog

TEST_F(LayoutTest, TheDialogHasItsLegendAndButtons) {
  RunDialog({[] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_OptionSelDlg3);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::OptionSelDlg3);
    EXPECT_EQ(Dialogs.hMenuDlg, TopDialog());
    EXPECT_EQ(ControlText(TopDialog(), kDefaultButton), "デフォルトに設定");
    Cancel();
  }});
  EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
}

TEST_F(LayoutTest, TheImageIsDrawnAtItsPlaceWithTheStageOnTop) {
  LayoutTake();
  RunDialog({[] {
    std::vector<DrawCall> drawn = Drawings(TopDialog());
    std::erase_if(drawn, [](const DrawCall& call) { return call.kind == DrawCall::Kind::Copy; });
    ASSERT_EQ(drawn.size(), 8U);
    const auto rectangle = [&](std::size_t at, int left, int top, int right, int bottom, bool filled) {
      EXPECT_EQ(drawn[at].kind, DrawCall::Kind::Rectangle);
      EXPECT_EQ(drawn[at].x, left) << at;
      EXPECT_EQ(drawn[at].y, top) << at;
      EXPECT_EQ(drawn[at].x2, right) << at;
      EXPECT_EQ(drawn[at].y2, bottom) << at;
      EXPECT_EQ(drawn[at].filled, filled) << at;
      EXPECT_TRUE(drawn[at].edged) << at;
      if (filled) {
        EXPECT_EQ(drawn[at].brush, 0xFFFFFFU) << at;
      }
    };
    const auto item = [&](std::size_t at, const char* text, int left, int top, int right, int bottom) {
      rectangle(at, left, top, right, bottom, true);
      EXPECT_EQ(drawn[at + 1].text, text);
      EXPECT_EQ(drawn[at + 1].x, left + 4);
      EXPECT_EQ(drawn[at + 1].y, top + 4);
      for (std::size_t i : {at, at + 1}) {
        EXPECT_TRUE(drawn[i].clipped);
        EXPECT_EQ(drawn[i].clip.left, 10);
        EXPECT_EQ(drawn[i].clip.top, 34);
        EXPECT_EQ(drawn[i].clip.right, 276);
        EXPECT_EQ(drawn[i].clip.bottom, 234);
      }
    };
    rectangle(0, 10, 34, 276, 234, true);
    item(1, "カ", 10 + 180, 34 + 4, 10 + 180 + 66, 34 + 4 + 73);
    item(3, "時", 10 + 10, 34 + 20, 10 + 10 + 20, 34 + 20 + 13);
    item(5, "サ", 10 + 100, 34 + 50, 10 + 100 + 30, 34 + 50 + 40);
    rectangle(7, 10, 34, 276, 234, false);
    EXPECT_FALSE(drawn[7].clipped);
    Cancel();
  }});
}

TEST_F(LayoutTest, WithoutMemoryForABitmapTheImageIsDrawnOnTheScreen) {
  FaultArmFrom(FaultKind::Bitmap, 1);
  RunDialog({[] {
    EXPECT_TRUE(FaultWasMet());
    EXPECT_TRUE(TextStands(TopDialog(), "サ", 10 + 100 + 4, 34 + 50 + 4));
    EXPECT_EQ(Drawings(TopDialog()).size(), 8U);
    Cancel();
  }});
  FaultClear();
}

TEST_F(LayoutTest, DraggingOnTopOfAnotherItemCatchesTheStageFirst) {
  Clock.ClockX = Character.StageX;
  Clock.ClockY = Character.StageY;
  RunDialog({[] {
    At(EventKind::LeftDown, 105, 55);
    EXPECT_TRUE(Layout.LayoutDrag[0]);
    EXPECT_FALSE(Layout.LayoutDrag[1]);
    EXPECT_FALSE(Layout.LayoutDrag[2]);
    At(EventKind::LeftUp, 105, 55);
    EXPECT_FALSE(Layout.LayoutDrag[0]);
    Cancel();
  }});
}

TEST_F(LayoutTest, AnItemIsHitUpToAndWithItsEdges) {
  RunDialog({[] {
    const auto hit = [](int x, int y) {
      At(EventKind::LeftDown, x, y);
      const int item = Layout.LayoutDrag[0] ? 0 : Layout.LayoutDrag[1] ? 1 : Layout.LayoutDrag[2] ? 2 : -1;
      At(EventKind::LeftUp, x, y);
      return item;
    };
    // The clock: from (10, 20), 20 by 13.
    EXPECT_EQ(hit(10, 20), 1);
    EXPECT_EQ(hit(30, 33), 1);
    EXPECT_EQ(hit(9, 20), -1);
    EXPECT_EQ(hit(10, 19), -1);
    EXPECT_EQ(hit(31, 33), -1);
    EXPECT_EQ(hit(30, 34), -1);
    EXPECT_EQ(hit(200, 30), 2);
    Cancel();
  }});
}

TEST_F(LayoutTest, WithShiftHeldNothingIsDragged) {
  RunDialog({[] {
    At(EventKind::LeftDown, 105, 55, kLeftHeld | kShiftHeld);
    EXPECT_FALSE(Layout.LayoutDrag[0]);
    At(EventKind::MouseMove, 150, 90);
    EXPECT_EQ(Layout.LayoutPos[0].x, 100);
    Cancel();
  }});
}

TEST_F(LayoutTest, ADraggedItemFollowsThePointerAndIsPaintedAgain) {
  RunDialog({[] {
    At(EventKind::LeftDown, 105, 55);
    DrawingClear();
    At(EventKind::MouseMove, 110, 50);
    EXPECT_EQ(Layout.LayoutPos[0].x, 105);
    EXPECT_EQ(Layout.LayoutPos[0].y, 45);
    EXPECT_TRUE(TextStands(TopDialog(), "サ", 10 + 105 + 4, 34 + 45 + 4));
    At(EventKind::MouseMove, 111, 52);
    EXPECT_EQ(Layout.LayoutPos[0].x, 106);
    EXPECT_EQ(Layout.LayoutPos[0].y, 47);
    At(EventKind::LeftUp, 111, 52);
    DrawingClear();
    At(EventKind::MouseMove, 200, 100, 0);
    EXPECT_EQ(Layout.LayoutPos[0].x, 106);
    EXPECT_TRUE(Drawings(TopDialog()).empty());
    Cancel();
  }});
}

// Beside the dialog too the pointer belongs to it, until the button is up.
TEST_F(LayoutTest, AnItemFollowsThePointerOutOfTheDialogAndIsLetGoThere) {
  RunDialog({[] {
    EXPECT_EQ(PointerCaptured(), nullptr);
    At(EventKind::LeftDown, 105, 55);
    EXPECT_EQ(PointerCaptured(), TopDialog());
    At(EventKind::MouseMove, 805, 655);
    EXPECT_EQ(Layout.LayoutPos[0].x, 800);
    EXPECT_EQ(Layout.LayoutPos[0].y, 650);
    At(EventKind::LeftUp, 805, 655, 0);
    EXPECT_EQ(PointerCaptured(), nullptr);
    EXPECT_FALSE(Layout.LayoutDrag[0]);
    At(EventKind::LeftDown, 260, 180);
    EXPECT_EQ(PointerCaptured(), nullptr) << "nothing is dragged";
    Cancel();
  }});
}

TEST_F(LayoutTest, AnItemCanBeDraggedOutsideTheImageAndItsPlaceGoesNegative) {
  RunDialog({[] {
    Drag(15, 25, -10, -34);  // the corner of the dialog
    EXPECT_EQ(Layout.LayoutPos[1].x, -15);
    EXPECT_EQ(Layout.LayoutPos[1].y, -39);
    Ok();
  }});
  EXPECT_EQ(Clock.ClockX, -45);
  EXPECT_EQ(Clock.ClockY, -117);
}

TEST_F(LayoutTest, OkStoresAndSavesWhatDiffersAndMovesTheStage) {
  RunDialog({[] {
    Drag(105, 55, 125, 65);
    Ok();
  }});
  EXPECT_EQ(Character.StageX, 360);
  EXPECT_EQ(Character.StageY, 180);
  EXPECT_EQ(Clock.ClockX, 30);
  EXPECT_EQ(Calendar.CalenX, 540);
  const Rect stage = WindowRect(Program.hMainWnd);
  EXPECT_EQ(stage.left, 360);
  EXPECT_EQ(stage.top, 180);
  EXPECT_EQ(stage.right, 450);
  EXPECT_EQ(stage.bottom, 300);
  EXPECT_EQ(Stage.StageAppliedWidth, 90);
  EXPECT_EQ(Stage.StageAppliedHeight, 120);
  EXPECT_EQ(Layout.LayoutChange, 0);
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(Panel.FuncNo, 0);
  Character.StageX = Character.StageY = 0;
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(Character.StageX, 360);
  EXPECT_EQ(Character.StageY, 180);
}

TEST_F(LayoutTest, EachItemHasItsBitAndOnlyWhatDiffersIsNamed) {
  LayoutTake();
  LayoutPut();
  EXPECT_EQ(Layout.LayoutChange, 0);
  Layout.LayoutPos[0].y += 1;
  LayoutPut();
  EXPECT_EQ(Layout.LayoutChange, 1);
  Layout.LayoutPos[1].x += 1;
  LayoutPut();
  EXPECT_EQ(Layout.LayoutChange, 2);
  Layout.LayoutPos[2].x += 1;
  Layout.LayoutPos[0].x += 1;
  LayoutPut();
  EXPECT_EQ(Layout.LayoutChange, 5);
}

TEST_F(LayoutTest, PlacesLoseTheRemainderOfTheDivisionEvenWithoutADrag) {
  SetStage(302, 151, 90, 120);
  RunDialog({Ok});
  EXPECT_EQ(Character.StageX, 300);
  EXPECT_EQ(Character.StageY, 150);
}

TEST_F(LayoutTest, WithNothingChangedNothingIsSaved) {
  RunDialog({Ok});
  EXPECT_FALSE(FileThere("C:\\mirrell\\mirrell_sys_file.svs"));
}

TEST_F(LayoutTest, WhenTheChangeIsAllTheDefaultTakesEffectAsComputedWithoutTheScalingLoss) {
  SetStage(300, 150, 91, 122);
  RunDialog({[] {
               Press(TopDialog(), kDefaultButton);
               EXPECT_EQ(Layout.LayoutChange, kLayoutAll);
               // Copied in afresh and painted: 800 - 91 - 10 and 10 + 220, over 3.
               EXPECT_EQ(Layout.LayoutPos[0].x, 233);
               EXPECT_EQ(Layout.LayoutPos[0].y, 76);
               EXPECT_TRUE(TextStands(TopDialog(), "サ", 10 + 233 + 4, 34 + 76 + 4));
               // A drag after it is lost.
               Drag(234, 80, 100, 20);
             },
             Ok});
  EXPECT_EQ(Character.StageX, 699);
  EXPECT_EQ(Character.StageY, 230);
  EXPECT_EQ(Calendar.CalenX, 590);
  EXPECT_EQ(Calendar.CalenY, 10);
  EXPECT_EQ(WindowRect(Program.hMainWnd).left, 699);
}

// The calendar's own file too: what a dialog changed in memory is gone.
TEST_F(LayoutTest, CancelAfterTheDefaultReadsTheCalendarFileAgain) {
  CalenStartDefaults();
  ASSERT_EQ(SysFileWrite(), 0);
  ASSERT_EQ(CalenFileWrite(), 0);
  Calendar.CalenSheets[0][0].notes[0][0] = 'b';  // a note of the first of January
  RunDialog({[] { Press(TopDialog(), kDefaultButton); }, Cancel});
  EXPECT_EQ(Calendar.CalenSheets[0][0].notes[0][0], 0);
}

TEST_F(LayoutTest, CancelAfterTheDefaultRollsBack) {
  ASSERT_EQ(SysFileWrite(), 0);
  CalenFileWrite();
  for (const bool byButton : {true, false}) {
    RunDialog({[] { Press(TopDialog(), kDefaultButton); },
               [byButton] {
                 if (byButton) {
                   Cancel();
                 } else {
                   SendClose(TopDialog());
                 }
               }});
    EXPECT_EQ(Layout.LayoutChange, 0);
    EXPECT_EQ(Character.StageX, 300);
    EXPECT_EQ(Character.StageY, 150);
    EXPECT_EQ(Clock.ClockX, 30);
    EXPECT_EQ(Clock.ClockY, 60);
    EXPECT_EQ(Calendar.CalenX, 540);
    EXPECT_EQ(Calendar.CalenY, 12);
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  }
}

TEST_F(LayoutTest, WhenTheProgramEndsWhileTheDialogIsUpNothingIsSaved) {
  RunDialog({[] {
    Press(TopDialog(), kDefaultButton);
    SendClose(Program.hMainWnd);
  }});
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_EQ(Layout.LayoutChange, 0);
  EXPECT_FALSE(FileThere("C:\\mirrell\\mirrell_sys_file.svs"));
}

TEST_F(LayoutTest, CancelAfterADragOnlyForgetsIt) {
  Character.StageX = 303;
  RunDialog({[] {
    Drag(105, 55, 125, 65);
    Cancel();
  }});
  // Nothing was read back: there is no settings file.
  EXPECT_EQ(Character.StageX, 303);
  EXPECT_EQ(Layout.LayoutChange, 0);
}

TEST_F(LayoutTest, OnAScreenWhoseImageIsLargerThanTheTemplateTheDialogGrows) {
  SetScreen(2560, 1440);  // 512 x 288 in the image
  RunDialog({[] {
    const Rect client = WindowClientRect(TopDialog());
    EXPECT_GE(client.right, 10 + 512);
    const Rect dialog = WindowRect(TopDialog());
    const int frameTop = RectHeight(dialog) - client.bottom;
    for (const int id : {1, 2, kDefaultButton}) {
      const Rect button = WindowRect(Control(TopDialog(), id));
      EXPECT_GT(button.top, dialog.top + 34 + 288);
      EXPECT_LE(button.bottom, dialog.top + frameTop + client.bottom);
    }
    Cancel();
  }});
}

// --- The default

TEST_F(LayoutTest, DefaultPutsTheStageUnderTheCalendarAndTheClockLeftOfIt) {
  LayoutDefault();  // 220 + 10 + 120 fits in 600; half of 800 is not more than 590
  EXPECT_EQ(Calendar.CalenX, 590);
  EXPECT_EQ(Calendar.CalenY, 10);
  EXPECT_EQ(Character.StageX, 700);
  EXPECT_EQ(Character.StageY, 230);
  EXPECT_EQ(Clock.ClockX, 800 - 200 - 60 - 20);
  EXPECT_EQ(Clock.ClockY, 10);
}

TEST_F(LayoutTest, DefaultPutsTheClockUnderTheStageWhenTheCalendarReachesOverTheMiddle) {
  Calendar.CalenW = 500;  // its x is 290, less than 400
  LayoutDefault();
  EXPECT_EQ(Calendar.CalenX, 290);
  EXPECT_EQ(Character.StageX, 700);
  EXPECT_EQ(Character.StageY, 230);
  EXPECT_EQ(Clock.ClockX, 730);
  EXPECT_EQ(Clock.ClockY, 350);
}

TEST_F(LayoutTest, DefaultPutsTheClockLeftWhenItDoesNotFitUnderTheStage) {
  Calendar.CalenW = 500;
  Stage.StageHeight = 340;  // 10 + 220 + 340 + 40 is more than 600
  LayoutDefault();
  EXPECT_EQ(Character.StageY, 230);
  EXPECT_EQ(Clock.ClockX, 800 - 500 - 60 - 20);
  EXPECT_EQ(Clock.ClockY, 10);
  Stage.StageHeight = 330;  // exactly 600 fits
  LayoutDefault();
  EXPECT_EQ(Clock.ClockX, 730);
  EXPECT_EQ(Clock.ClockY, 560);
}

TEST_F(LayoutTest, DefaultPutsTheStageBesideTheCalendarAndTheClockUnderItWhenTheStageIsTooHigh) {
  Stage.StageHeight = 371;  // 10 + 220 + 371 is more than 600
  LayoutDefault();
  EXPECT_EQ(Character.StageX, 590 - 90 - 10);
  EXPECT_EQ(Character.StageY, 10);
  EXPECT_EQ(Clock.ClockX, 730);
  EXPECT_EQ(Clock.ClockY, 230);
  Stage.StageHeight = 370;
  LayoutDefault();
  EXPECT_EQ(Character.StageX, 700);
  EXPECT_EQ(Character.StageY, 230);
}

// Half of the screen's width against the calendar's place: more is needed, not as much.
TEST_F(LayoutTest, DefaultLeavesTheClockBesideACalendarThatBeginsInTheMiddle) {
  Calendar.CalenW = 390;  // its x is 400
  LayoutDefault();
  EXPECT_EQ(Clock.ClockX, 800 - 390 - 60 - 20);
  EXPECT_EQ(Clock.ClockY, 10);
  Calendar.CalenW = 391;  // 399
  LayoutDefault();
  EXPECT_EQ(Clock.ClockX, 730);
  EXPECT_EQ(Clock.ClockY, 350);
}

TEST_F(LayoutTest, DefaultPutsTheClockUnderTheCalendarWhenItJustFits) {
  Stage.StageHeight = 400;
  Calendar.CalenH = 550;  // 10 + 550 + 40 is exactly 600
  LayoutDefault();
  EXPECT_EQ(Clock.ClockX, 730);
  EXPECT_EQ(Clock.ClockY, 560);
  Calendar.CalenH = 551;
  LayoutDefault();
  EXPECT_EQ(Clock.ClockX, 490 - 60 - 10);
  EXPECT_EQ(Clock.ClockY, 10);
}

TEST_F(LayoutTest, DefaultPutsAllThreeInARowWhenNothingFitsUnderTheCalendar) {
  Calendar.CalenH = 560;  // 10 + 560 + 40 is more than 600
  LayoutDefault();
  EXPECT_EQ(Character.StageX, 490);
  EXPECT_EQ(Character.StageY, 10);
  EXPECT_EQ(Clock.ClockX, 490 - 60 - 10);
  EXPECT_EQ(Clock.ClockY, 10);
}

// --- Applying

TEST_F(LayoutTest, ApplyingMovesOnlyWhatTheChangeNames) {
  Character.StageX = 123;
  Character.StageY = 45;
  SendCommand(Program.hMainWnd, kApplyCommand);
  EXPECT_NE(WindowRect(Program.hMainWnd).left, 123);
  Layout.LayoutChange = kLayoutStage;
  SendCommand(Program.hMainWnd, kApplyCommand);
  EXPECT_EQ(WindowRect(Program.hMainWnd).left, 123);
  EXPECT_EQ(WindowRect(Program.hMainWnd).top, 45);
  EXPECT_EQ(Layout.LayoutChange, 0);
}

TEST_F(LayoutTest, ApplyingClosesTheClockAndTheCalendar) {
  const WindowHandle clock = OpenListener();
  Clock.hClockWnd = clock;
  Layout.LayoutChange = kLayoutClock;
  SendCommand(Program.hMainWnd, kApplyCommand);
  EXPECT_EQ(TakeHeard().at(0), "close");
  Clock.hClockWnd = nullptr;
  Calendar.hCalenWnd = clock;
  Layout.LayoutChange = kLayoutCalendar;
  SendCommand(Program.hMainWnd, kApplyCommand);
  EXPECT_EQ(TakeHeard().at(0), "close");
  Calendar.hCalenWnd = nullptr;
  WindowDestroy(clock);
}

TEST_F(LayoutTest, ApplyingTheClockTakesTheTimeOfTheMoment) {
  TestClockSet({2026, 11, 21, 6, 15, 42, 0, 0});
  Clock.ClockMinute = 7;
  Layout.LayoutChange = kLayoutClock;
  SendCommand(Program.hMainWnd, kApplyCommand);
  EXPECT_EQ(Clock.ClockMinute, 7);  // the clock is switched off
  Clock.ClockShow = 1;
  Layout.LayoutChange = kLayoutClock;
  SendCommand(Program.hMainWnd, kApplyCommand);
  EXPECT_EQ(Clock.ClockHour12, 3);
  EXPECT_EQ(Clock.ClockMinute, 42);
}

TEST_F(LayoutTest, TheFirstRunLaysTheWindowsOut) {
  ProgramTest::TearDown();
  ProgramTest::SetUp();
  CharaTables.ClockDesignCount = 0;
  StartProgram("_1_");
  Screen.ScreenWidth = 800;
  Screen.ScreenHeight = 600;
  Calendar.CalenW = 200;
  Calendar.CalenH = 220;
  Stage.StageWidth = 90;
  Stage.StageHeight = 120;
  Ticks(1);
  EXPECT_EQ(WindowRect(Program.hMainWnd).left, 700);
  EXPECT_EQ(WindowRect(Program.hMainWnd).top, 230);
  EXPECT_EQ(Layout.LayoutChange, 0);
  EXPECT_TRUE(FileThere("C:\\mirrell\\mirrell_sys_file.svs"));
}

}  // namespace
