#include "character/options.h"

#include <gtest/gtest.h>

#include "character/alarm_images.h"
#include "character/chara_select.h"
#include "character/character.h"
#include "character/character_commands.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "character/stage.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "shell/panel.h"
#include "shell/shell_commands.h"
#include "tests/character/walk_fixture.h"
#include "world/world_list.h"

namespace {

constexpr char kSettings[] = "\\mirrell_sys_file.svs";
constexpr char kHistory[] = "\\OpnFileHis.lis";

// The world list that the commands read: characters 1 to 12 named by their numbers.
std::string WorldData() {
  std::string data;
  for (int number = 1; number <= 12; ++number) {
    std::string record(1520, '\0');
    const std::string name = "chara" + std::to_string(number);
    record.replace(1, name.size(), name);
    data += record;
  }
  return data;
}

// Three main characters: numbers 1, 2 and 99, the last one unknown to the world.
class OptionsTest : public WalkFixture {
 protected:
  void SetUp() override {
    WalkFixture::SetUp();
    Put("\\キャラクタ\\EDTCFLAG.edf", BE32(0) + BE32(12) + BE32(0));
    Put("\\キャラクタ\\EDTCDATA.edf", WorldData());
    CharaTables.MainCharaCount = 3;
    const int numbers[] = {1, 2, 99};
    for (int i = 0; i < 3; ++i) {
      MainChara& row = CharaTables.MainCharas[i];
      row = MainChara{};
      row.charaNo = static_cast<std::uint16_t>(numbers[i]);
      for (int k = 0; k < kBoredFrameCount; ++k) row.bored1Frames[k] = row.bored2Frames[k] = -1;
    }
    PutDwc(1, DwcFile({{{0, 0}, {9, 0}, {5, 9}}, {{0, 0}, {9, 0}, {5, 9}}, {}}));
    PutBmp(1, 1, BmpFile(10, 10));
    PutBmp(1, 2, BmpFile(11, 11));
    PutBmp(1, 3, BmpFile(12, 12));
    PutBmp(2, 1, BmpFile(20, 20));
    CharaSelect(0);
    Stage.StageRedraw = 0;
    Panel.MenuPanelState = 800;
    Panel.FuncNo = 5;
  }
  void TearDown() override {
    AlarmCheckFree();
    OptionPreviewsFree();
    for (AlarmRow& row : AlarmImages.AlarmRows) AlarmRowFree(&row);
    World.WorldCharaCount = 0;
    WalkFixture::TearDown();
  }
  static bool SettingsWritten() { return FileThere(InProgram("mirrell_sys_file.svs")); }
};

// --- The main character

TEST_F(OptionsTest, TheListShowsTheNamesAndTheCurrentCharacter) {
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::OptionSelDlg1_2);
    EXPECT_EQ(ListRows(Dialogs.hMenuDlg, 100), (std::vector<std::string>{"chara1", "chara2", ""}));
    EXPECT_EQ(ListSelected(Dialogs.hMenuDlg, 100), 0);
    EXPECT_EQ(ControlText(Dialogs.hMenuDlg, 101), "chara1");
    Press(Dialogs.hMenuDlg, 2);
  });
  CommandRoute(2281);
  EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_FALSE(SettingsWritten());
  EXPECT_TRUE(commands.empty());
}

TEST_F(OptionsTest, NamesAreEmptyForNumbersThatTheWorldListDoesNotHold) {
  Then([] {
    ChooseRow(Dialogs.hMenuDlg, 100, 2);
    EXPECT_EQ(ControlText(Dialogs.hMenuDlg, 101), "");
    Press(Dialogs.hMenuDlg, 2);
  });
  CommandRoute(2281);
}

// The client area is 600 by 368: the preview runs from 600 * 140 / 300 = 280 to 600
// and from 368 * 22 / 130 = 62 to 368 * 100 / 130 = 283.
TEST_F(OptionsTest, ASelectionShowsTheFirstFrameInThePreviewArea) {
  Then([] {
    DrawingClear();
    ChooseRow(Dialogs.hMenuDlg, 100, 1);
    EXPECT_EQ(ControlText(Dialogs.hMenuDlg, 101), "chara2");
    ASSERT_EQ(DibsDrawn(Dialogs.hMenuDlg).size(), 1U);
    const DrawCall call = DibsDrawn(Dialogs.hMenuDlg)[0];
    EXPECT_EQ(call.x, 280);
    EXPECT_EQ(call.y, 62);
    EXPECT_EQ(call.x2 - call.x, 20);
    EXPECT_TRUE(call.clipped);
    EXPECT_EQ(call.clip.right, 600);
    EXPECT_EQ(call.clip.bottom, 283);
    DrawingClear();
    ChooseRow(Dialogs.hMenuDlg, 100, 2);  // no picture: the area is cleared
    EXPECT_TRUE(DibsDrawn(Dialogs.hMenuDlg).empty());
    EXPECT_FALSE(Drawings(Dialogs.hMenuDlg).empty());
    DrawingClear();
    ChooseRow(Dialogs.hMenuDlg, 100, 0);
    SendPaint(Dialogs.hMenuDlg);
    EXPECT_EQ(DibsDrawn(Dialogs.hMenuDlg).size(), 2U);
    Press(Dialogs.hMenuDlg, 2);
  });
  const int blocks = DiagnosticsLive().blocks;
  CommandRoute(2281);
  EXPECT_EQ(DiagnosticsLive().blocks, blocks);
}

TEST_F(OptionsTest, OkTakesAnotherCharacterOverSavesItAndReloadsTheStage) {
  CharaTables.MainCharas[1].menuFrame = 7;
  CharaTables.MainCharas[1].charaSet.MotionF[1][16] = 55;
  Then([] {
    ChooseRow(Dialogs.hMenuDlg, 100, 1);
    Press(Dialogs.hMenuDlg, 1);
  });
  CommandRoute(2281);
  EXPECT_EQ(Character.CharaIndex, 1);
  EXPECT_EQ(Character.MenuFrame, 7);
  EXPECT_EQ(Character.CharaSet.MotionF[1][16], 55);
  EXPECT_EQ(Character.CharaSet.CharaNo, 2);
  EXPECT_TRUE(SettingsWritten());
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2293}));
  EXPECT_EQ(DibWidth(FramePicture(kStageRow, 0)), 20);
  EXPECT_FALSE(FileThere(InProgram("OpnFileHis.lis")));  // no walking row
}

TEST_F(OptionsTest, OkWithTheSameCharacterNeitherSavesNorReloads) {
  CharaTables.MainCharas[0].menuFrame = 7;
  Then([] { Press(Dialogs.hMenuDlg, 1); });
  const int blocks = DiagnosticsLive().blocks;
  CommandRoute(2281);
  EXPECT_EQ(DiagnosticsLive().blocks, blocks);  // the preview is gone
  EXPECT_EQ(Character.MenuFrame, 7);  // taken over all the same
  EXPECT_FALSE(SettingsWritten());
  EXPECT_TRUE(commands.empty());
}

TEST_F(OptionsTest, AWalkingRowHandsItsSoundAndFlagsOnToTheOpeningOfFiles) {
  CharaTables.MainCharas[1].charaSet.WalkRow[0] = 3;
  TextCopy(CharaTables.WalkCharas[2].sound, kWalkSoundSize, "foot2.wav");
  CharaTables.WalkFlags[2] = 5;
  Then([] {
    ChooseRow(Dialogs.hMenuDlg, 100, 1);
    Press(Dialogs.hMenuDlg, 1);
  });
  CommandRoute(2281);
  const std::string file = Get(kHistory);
  ASSERT_EQ(file.size(), 240804U);
  EXPECT_STREQ(file.c_str() + 240503, "foot2.wav");
  EXPECT_EQ(file[240803], 5);
  EXPECT_EQ(file[240201], 1);  // a history that was not there begins with the walk on
}

TEST_F(OptionsTest, CancelAndCloseLeaveTheCharacter) {
  for (const bool close : {false, true}) {
    Then([close] {
      ChooseRow(Dialogs.hMenuDlg, 100, 1);
      if (close) {
        SendClose(Dialogs.hMenuDlg);
      } else {
        Press(Dialogs.hMenuDlg, 2);
      }
    });
    CommandRoute(2281);
    EXPECT_EQ(Character.CharaIndex, 0);
    EXPECT_FALSE(SettingsWritten());
  }
}

TEST_F(OptionsTest, ForACharacterNumberOf0NoFileIsLookedFor) {
  CharaTables.MainCharas[1].charaNo = 0;
  CharaTables.MainCharas[1].menuFrame = 2;
  PutBmp(0, 1, BmpFile(20, 20));
  PutBmp(0, 3, BmpFile(20, 20));
  Then([] {
    FaultClear();
    ChooseRow(Dialogs.hMenuDlg, 100, 1);
    MotionPreviewRun(Dialogs.hMenuDlg, 1, Preview::Menu);
    EXPECT_EQ(FaultCalls(FaultKind::Open), 0);
    Press(Dialogs.hMenuDlg, 2);
  });
  Then([] { Press(Dialogs.hSubDlg, 2); });
  CommandRoute(2281);
}

TEST_F(OptionsTest, AnEmptyListTakesNothingOver) {
  CharaTables.MainCharaCount = 0;
  Then([] {
    Press(Dialogs.hMenuDlg, 2369);
    EXPECT_EQ(Dialogs.hToolDlg, nullptr);
    Press(Dialogs.hMenuDlg, 1);
  });
  CommandRoute(2281);
  EXPECT_EQ(Character.CharaIndex, 0);
  EXPECT_TRUE(commands.empty());
}

TEST_F(OptionsTest, ADialogThatCannotBeMadeChangesNothing) {
  FaultArm(FaultKind::Window, 1);
  CommandRoute(2281);
  FaultClear();
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_TRUE(commands.empty());
}

// --- The motions

class PreviewTest : public OptionsTest {
 protected:
  // Opens the preview of a motion of the character in row `row` and looks at it.
  static void WithPreview(int row, int button, std::function<void()> look) {
    Then([row, button] {
      ChooseRow(Dialogs.hMenuDlg, 100, row);
      Press(Dialogs.hMenuDlg, 2369);
    });
    Then([button] {
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::OptionSelDlg1_1);
      Press(Dialogs.hToolDlg, button);
    });
    Then([button, look] {
      EXPECT_EQ(static_cast<int>(Dialogs.DlgIdSub), 2021 + button - 2285);
      look();
      Press(Dialogs.hSubDlg, 2);
    });
    Then([] { Press(Dialogs.hToolDlg, 2); });
    Then([] { Press(Dialogs.hMenuDlg, 2); });
    CommandRoute(2281);
    EXPECT_EQ(MotionPreviewTick(), 0);
  }
  static std::vector<int> TicksWithFrame(int count) {
    std::vector<int> ticks;
    for (int tick = 1; tick <= count; ++tick) {
      if (MotionPreviewTick() == 1) ticks.push_back(tick);
    }
    return ticks;
  }
  static int WidthShown() {
    DrawingClear();
    SendPaint(Dialogs.hSubDlg);
    const auto dibs = DibsDrawn(Dialogs.hSubDlg);
    if (dibs.size() != 1) return -1;
    EXPECT_EQ(dibs[0].x, 10);
    EXPECT_EQ(dibs[0].y, 50);
    return dibs[0].x2 - dibs[0].x;
  }
};

TEST_F(PreviewTest, TheMenuMotionStandsStill) {
  CharaTables.MainCharas[0].menuFrame = 1;
  WithPreview(0, 2285, [] {
    EXPECT_EQ(WidthShown(), 11);
    EXPECT_TRUE(TextStands(Dialogs.hSubDlg, "ﾒﾆｭｰ動作", 10, 10));
    EXPECT_EQ(DrawnTexts(Dialogs.hSubDlg).size(), 1U);
    EXPECT_EQ(TicksWithFrame(50), std::vector<int>{});
  });
}

// The delay is 5: it is counted down in five ticks, the sixth moves on.
TEST_F(PreviewTest, TheBlinkTogglesBetweenFrame0AndTheBlinkFrameEverySixthTick) {
  CharaTables.MainCharas[0].blinkFrame = 1;
  WithPreview(0, 2286, [] {
    EXPECT_EQ(WidthShown(), 10);
    EXPECT_TRUE(TextStands(Dialogs.hSubDlg, "瞬き動作", 10, 10));
    EXPECT_EQ(TicksWithFrame(6), (std::vector<int>{6}));
    EXPECT_EQ(WidthShown(), 11);
    EXPECT_EQ(TicksWithFrame(12), (std::vector<int>{6, 12}));
    EXPECT_EQ(WidthShown(), 11);
  });
}

TEST_F(PreviewTest, BoredPatternsGoRoundAndAFrameWithoutOutlineIsToldInRed) {
  CharaTables.MainCharas[0].bored1Frames[0] = 0;
  CharaTables.MainCharas[0].bored1Frames[1] = 2;
  CharaTables.MainCharas[0].bored1Frames[2] = 1;
  WithPreview(0, 2287, [] {
    EXPECT_EQ(WidthShown(), 10);
    EXPECT_TRUE(TextStands(Dialogs.hSubDlg, "退屈動作1", 10, 10));
    EXPECT_EQ(DrawnTexts(Dialogs.hSubDlg).size(), 1U);
    TicksWithFrame(6);
    EXPECT_EQ(WidthShown(), 12);
    const auto texts = DrawnTexts(Dialogs.hSubDlg);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[1].text, "(枠取りなし)");
    EXPECT_EQ(texts[1].textColour, MakeColour(255, 0, 0));
    EXPECT_EQ(texts[1].y, 10);
    EXPECT_GT(texts[1].x, 10);
    TicksWithFrame(6);
    EXPECT_EQ(WidthShown(), 11);
    TicksWithFrame(6);
    EXPECT_EQ(WidthShown(), 10);
  });
}

TEST_F(PreviewTest, AMotionThatIsNotSetIsTold) {
  const char* const kNotSet[] = {"ﾒﾆｭｰ動作は設定されていません!", "瞬き動作は設定されていません!",
                                 "退屈動作1は設定されていません!", "退屈動作2は設定されていません!"};
  for (int i = 0; i < 4; ++i) {
    const char* text = kNotSet[i];
    WithPreview(1, 2285 + i, [text] {
      EXPECT_EQ(WidthShown(), -1);
      EXPECT_TRUE(TextStands(Dialogs.hSubDlg, text, 10, 10));
      EXPECT_EQ(TicksWithFrame(20), std::vector<int>{});
    });
  }
}

TEST_F(PreviewTest, FramesBeyondTheTableShowNothing) {
  CharaTables.MainCharas[0].bored2Frames[0] = 20;
  CharaTables.MainCharas[0].bored2Frames[1] = 2147483647;
  WithPreview(0, 2288, [] {
    EXPECT_EQ(WidthShown(), -1);
    EXPECT_TRUE(TextStands(Dialogs.hSubDlg, "退屈動作2", 10, 10));
    TicksWithFrame(6);
    EXPECT_EQ(WidthShown(), -1);
  });
}

TEST_F(PreviewTest, WithoutMemoryThePreviewIsDrawnStraight) {
  CharaTables.MainCharas[0].menuFrame = 1;
  WithPreview(0, 2285, [] {
    FaultArm(FaultKind::Bitmap, 1);
    EXPECT_EQ(WidthShown(), 11);
    EXPECT_TRUE(FaultWasMet());
    FaultClear();
  });
}

TEST_F(PreviewTest, CharactersBeyondTheListHaveNoPreview) {
  MotionPreviewRun(Program.hMainWnd, -1, Preview::Menu);
  MotionPreviewRun(Program.hMainWnd, 50, Preview::Menu);
  EXPECT_EQ(Dialogs.hSubDlg, nullptr);
}

// --- The alarm characters

class AlarmOptionsTest : public OptionsTest {
 protected:
  // The command reads the character file, so the tables must stand in it.
  void SetUp() override {
    OptionsTest::SetUp();
    ASSERT_EQ(CharaFileWrite(), 0);  // alarm characters 6, 8, 9; selections 1, 1, 0
    PutBmp(6, 1, BmpFile(60, 60));
    PutBmp(8, 1, BmpFile(80, 80));
    PutBmp(8, 2, BmpFile(82, 82));
    PutBmp(9, 1, BmpFile(90, 90));
  }
  static int WidthShown() {
    const auto dibs = DibsDrawn(Dialogs.hToolDlg);
    return dibs.empty() ? -1 : dibs.back().x2 - dibs.back().x;
  }
};

TEST_F(AlarmOptionsTest, BothComboBoxesShowTheAlarmCharactersAndTheSelections) {
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::OptionSelDlg2);
    const std::vector<std::string> rows = {"未設定", "chara6", "chara8", "chara9"};
    EXPECT_EQ(ListRows(Dialogs.hMenuDlg, 100), rows);
    EXPECT_EQ(ListRows(Dialogs.hMenuDlg, 101), rows);
    EXPECT_EQ(ListSelected(Dialogs.hMenuDlg, 100), 1);
    EXPECT_EQ(ListSelected(Dialogs.hMenuDlg, 101), 0);
    Press(Dialogs.hMenuDlg, 2);
  });
  CommandRoute(2282);
  EXPECT_FALSE(SettingsWritten());
  EXPECT_EQ(Panel.MenuPanelState, 0);
}

TEST_F(AlarmOptionsTest, OkStoresBothSelectionsLoadsTheRowsAndSaves) {
  Then([] {
    ChooseRow(Dialogs.hMenuDlg, 100, 2);
    ChooseRow(Dialogs.hMenuDlg, 101, 3);
    Press(Dialogs.hMenuDlg, 1);
  });
  CommandRoute(2282);
  EXPECT_EQ(Character.AlarmCharaSel[0], 1);
  EXPECT_EQ(Character.AlarmCharaSel[1], 2);
  EXPECT_EQ(Character.AlarmCharaSel[2], 3);
  EXPECT_EQ(DibWidth(AlarmImages.AlarmRows[1].pictures[0]), 80);
  EXPECT_EQ(DibWidth(AlarmImages.AlarmRows[2].pictures[0]), 90);
  EXPECT_TRUE(SettingsWritten());
}

TEST_F(AlarmOptionsTest, NumbersThatTheWorldListDoesNotHoldShowEmptyRows) {
  std::string file = Get("\\mirrell_chara_file.dcx");
  // Behind the magic, the count and the main characters: the alarm list, of which 6
  // becomes 0 and 9 becomes 13.
  const std::size_t alarms = 23 + 4 + 3 * 740 + 4;
  ASSERT_EQ(file.substr(alarms, 12), BE32(6) + BE32(8) + BE32(9));
  file.replace(alarms, 12, BE32(0) + BE32(8) + BE32(13));
  Put("\\mirrell_chara_file.dcx", file);
  Then([] {
    const std::vector<std::string> rows = {"未設定", "", "chara8", ""};
    EXPECT_EQ(ListRows(Dialogs.hMenuDlg, 100), rows);
    EXPECT_EQ(ListRows(Dialogs.hMenuDlg, 101), rows);
    EXPECT_EQ(ListSelected(Dialogs.hMenuDlg, 100), 1);
    Press(Dialogs.hMenuDlg, 2);
  });
  CommandRoute(2282);
}

TEST_F(AlarmOptionsTest, SelectionsBeyondTheListShowNobody) {
  Character.AlarmCharaSel[1] = 4;
  Character.AlarmCharaSel[2] = -1;
  Then([] {
    EXPECT_EQ(ListSelected(Dialogs.hMenuDlg, 100), 0);
    EXPECT_EQ(ListSelected(Dialogs.hMenuDlg, 101), 0);
    Press(Dialogs.hMenuDlg, 2);
  });
  CommandRoute(2282);
  EXPECT_EQ(Character.AlarmCharaSel[1], 4);
}

TEST_F(AlarmOptionsTest, TheChecksPlayTheSelectedRowsAndTheMailsRow) {
  const struct { int button, id, width; } kChecks[] = {{2289, 2047, 60}, {2290, 2048, 80}, {2291, 2050, 90}};
  const int blocks = DiagnosticsLive().blocks;
  for (const auto& check : kChecks) {
    Then([check] {
      ChooseRow(Dialogs.hMenuDlg, 100, 2);
      ChooseRow(Dialogs.hMenuDlg, 101, 3);
      Press(Dialogs.hMenuDlg, check.button);
    });
    Then([check] {
      EXPECT_EQ(static_cast<int>(Dialogs.DlgIdTool), check.id);
      EXPECT_EQ(WindowText(Dialogs.hToolDlg), "アラーム動作の確認");
      EXPECT_EQ(FiveTicks.FrameDivider, 1);
      DrawingClear();
      AlarmCheckFrameStep();
      EXPECT_EQ(WidthShown(), check.width);
      Press(Dialogs.hToolDlg, 2);
    });
    Then([] { Press(Dialogs.hMenuDlg, 2); });
    CommandRoute(2282);
  }
  EXPECT_EQ(Character.AlarmCharaSel[1], 1);
  EXPECT_EQ(DiagnosticsLive().blocks, blocks);  // the pictures of the checks are gone
}

TEST_F(AlarmOptionsTest, ACheckGoesRoundAndIsDrawnInMemoryAt1010) {
  Character.AlarmCharaSel[1] = 2;
  Then([] { Press(Dialogs.hMenuDlg, 2290); });
  Then([] {
    const int widths[] = {80, 82, 80, 82};
    for (const int width : widths) {
      DrawingClear();
      AlarmCheckFrameStep();
      EXPECT_EQ(WidthShown(), width);
      bool copied = false;
      for (const DrawCall& call : Drawings(Dialogs.hToolDlg)) {
        copied = copied || (call.kind == DrawCall::Kind::Copy && call.x == 10 && call.y == 10);
      }
      EXPECT_TRUE(copied);
    }
    DrawingClear();
    SendPaint(Dialogs.hToolDlg);
    EXPECT_EQ(WidthShown(), 82);
    Press(Dialogs.hToolDlg, 2);
  });
  Then([] {
    AlarmCheckFrameStep();  // closed: nothing
    Press(Dialogs.hMenuDlg, 2);
  });
  CommandRoute(2282);
}

TEST_F(AlarmOptionsTest, ACheckOfNobodyStaysEmpty) {
  Then([] {
    ChooseRow(Dialogs.hMenuDlg, 100, 0);
    Press(Dialogs.hMenuDlg, 2290);
  });
  Then([] {
    DrawingClear();
    AlarmCheckFrameStep();
    SendPaint(Dialogs.hToolDlg);
    EXPECT_TRUE(Drawings(Dialogs.hToolDlg).empty());
    Press(Dialogs.hToolDlg, 2);
  });
  Then([] { Press(Dialogs.hMenuDlg, 2); });
  CommandRoute(2282);
  AlarmCheckRun(Program.hMainWnd, 3, 1);
  AlarmCheckRun(Program.hMainWnd, -1, 1);
  EXPECT_EQ(Dialogs.hToolDlg, nullptr);
}

}  // namespace
