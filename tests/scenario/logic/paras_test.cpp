// Parameters: how they are listed, added, changed and deleted; places of parameters.
#include "scenario/logic/snry_logic.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/logic/snry_places.h"
#include "tests/scenario/scenario_fixture.h"

namespace {

class SnryParasTest : public ScenarioTest {
 protected:
  // RoutSnrySetting, with the parameters that are there.
  static void RunRout() {
    ThenClose();
    RoutSnrySettingRun(Program.hMainWnd);
  }
  static ListTexts Paras() { return ListRows(Dialogs.hMenuDlg, IDC_SNRY_PARAS); }
  static ListTexts ComboRows() {
    ListTexts shown;
    char text[200];
    for (int row = 0; row < SnryParaRows().count; ++row) {
      if (RowText(SnryParaRows(), row, text, sizeof text)) shown.emplace_back(text);
    }
    return shown;
  }
};

// --- Rows and ids

TEST_F(SnryParasTest, RowsPassOverTheGaps) {
  for (const char* name : {"甲", "乙", "丙", "丁"}) MakePara(name);
  SnryMain.paras[1].used = 0;
  EXPECT_EQ(ComboRows(), (ListTexts{"未設定", "甲", "丙", "丁"}));
  EXPECT_EQ(SnryParaRowOf(1), 1);
  EXPECT_EQ(SnryParaRowOf(2), 0) << "an id whose slot is not used";
  EXPECT_EQ(SnryParaRowOf(4), 3);
  EXPECT_EQ(SnryParaRowOf(0), 0);
  EXPECT_EQ(SnryParaRowOf(2049), 0);
  EXPECT_EQ(SnryParaRowOf(65535), 0);
  EXPECT_EQ(SnryParaIdOf(0), 0);
  EXPECT_EQ(SnryParaIdOf(2), 3);
  EXPECT_EQ(SnryParaIdOf(3), 4);
  EXPECT_EQ(SnryParaIdOf(4), 0);
  EXPECT_EQ(SnryParaIdOf(-1), 0);
}

TEST_F(SnryParasTest, AllSlotsAreWalkedWhateverTheCountSays) {
  SnryMain.paras[2047].used = 1;
  EXPECT_EQ(SnryMain.paraCount, 0);
  EXPECT_EQ(SnryParaUsedCount(), 1);
  EXPECT_EQ(SnryParaIdOf(1), 2048);
  EXPECT_EQ(SnryParaRowOf(2048), 1);
}

TEST_F(SnryParasTest, TheListNumbersThemAndTellsWhatTheyDoForThePlayer) {
  for (const char* name : {"a", "b", "c", "d", "e"}) MakePara(name);
  SnryMain.paras[0].assignment = SnryAssignment::Load;
  SnryMain.paras[2].assignment = SnryAssignment::Save;
  SnryMain.paras[3].assignment = SnryAssignment::Exit;
  SnryMain.paras[1].used = 0;
  SnryMain.paras[4].assignment = static_cast<SnryAssignment>(9);
  Then([] { EXPECT_EQ(Paras(), (ListTexts{"1. a(&Load)", "2. c(&Save)", "3. d(&Exit)", "4. e"})); });
  RunRout();
  EXPECT_EQ(ComboRows()[1], "a(&Load)");
}

// --- Adding and deleting

TEST_F(SnryParasTest, AParameterIsAdded) {
  Then([] { EXPECT_EQ(Paras(), ListTexts()); });
  ThenPress(IDC_SNRY_PARA_ADD);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_AddSnryParaDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::AddSnryParaDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_PARA_NAME), "");
    EXPECT_EQ(ControlText(TopDialog(), IDC_PARA_COMMENT), "");
  });
  ThenType(IDC_PARA_NAME, "扉の鍵");
  ThenType(IDC_PARA_INITIAL, "1234");
  ThenType(IDC_PARA_COMMENT, "鍵を持つと1");
  ThenPress(IDC_PARA_LOAD);
  ThenPress(IDC_PARA_EXIT);
  Then([] {
    EXPECT_FALSE(ControlIsChecked(TopDialog(), IDC_PARA_LOAD));
    EXPECT_TRUE(ControlIsChecked(TopDialog(), IDC_PARA_EXIT));
  });
  ThenPress(IDC_PARA_STATUS);
  ThenPress(1);
  Then([] {
    EXPECT_EQ(Paras(), (ListTexts{"1. 扉の鍵(&Exit)"}));
    EXPECT_EQ(ListSelected(Dialogs.hMenuDlg, IDC_SNRY_PARAS), 0);
    EXPECT_TRUE(Scenario.changed);
  });
  RunRout();
  const SnryParaRec& para = SnryMain.paras[0];
  EXPECT_EQ(SnryMain.paraCount, 1);
  EXPECT_EQ(para.used, 1);
  EXPECT_STREQ(para.name, "扉の鍵");
  EXPECT_EQ(para.initial, 1234);
  EXPECT_STREQ(para.comment, "鍵を持つと1");
  EXPECT_EQ(para.assignment, SnryAssignment::Exit);
  EXPECT_EQ(para.statusBar, 1);
}

TEST_F(SnryParasTest, TheButtonOfTheActiveAssignmentClearsIt) {
  SnryMain.paras[MakePara("a") - 1].assignment = SnryAssignment::Save;
  ThenPress(IDC_SNRY_PARA_CHANGE);
  Then([] { EXPECT_TRUE(ControlIsChecked(TopDialog(), IDC_PARA_SAVE)); });
  ThenPress(IDC_PARA_SAVE);
  Then([] { EXPECT_FALSE(ControlIsChecked(TopDialog(), IDC_PARA_SAVE)); });
  ThenPress(1);
  RunRout();
  EXPECT_EQ(SnryMain.paras[0].assignment, SnryAssignment::None);
}

TEST_F(SnryParasTest, ANameThatIsThereIsRefused) {
  MakePara("鍵");
  ThenPress(IDC_SNRY_PARA_ADD);
  ThenType(IDC_PARA_NAME, "鍵");
  ExpectBox("既に同じ名称のパラメータが存在します", "パラメータ追加エラー");
  ThenPress(1);
  ThenType(IDC_PARA_NAME, "鍵2");
  ThenPress(2);
  RunRout();
  EXPECT_EQ(SnryMain.paraCount, 1);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(SnryParasTest, AChangeDoesNotLookAtTheNames) {
  MakePara("鍵");
  MakePara("扉");
  ThenChoose(IDC_SNRY_PARAS, 1);
  ThenPress(IDC_SNRY_PARA_CHANGE);
  Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_PARA_NAME), "扉"); });
  ThenType(IDC_PARA_NAME, "鍵");
  ThenPress(1);
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_SNRY_PARAS), 1); });
  RunRout();
  EXPECT_STREQ(SnryMain.paras[1].name, "鍵");
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(SnryParasTest, TextsAreCutAndTheRestOfTheRecordStays) {
  MakePara("x");
  SnryMain.paras[0].kept198[3] = 9;
  ThenPress(IDC_SNRY_PARA_CHANGE);
  ThenType(IDC_PARA_NAME, std::string(64, 'n').c_str());
  ThenType(IDC_PARA_COMMENT, std::string(128, 'c').c_str());
  ThenPress(1);
  RunRout();
  EXPECT_EQ(std::string(SnryMain.paras[0].name), std::string(63, 'n'));
  EXPECT_EQ(std::string(SnryMain.paras[0].comment), std::string(127, 'c'));
  EXPECT_EQ(SnryMain.paras[0].kept198[3], 9);
}

TEST_F(SnryParasTest, TheInitialValueIsReadByTheNumbersRule) {
  MakePara("x");
  const std::pair<const char*, int> rows[] = {
      {"12345", 1234}, {" 7", 7}, {"-5", 65531}, {"", 0}, {"zzzz", 65535}};
  for (const auto& [typed, stored] : rows) {
    ThenPress(IDC_SNRY_PARA_CHANGE);
    ThenType(IDC_PARA_INITIAL, typed);
    ThenPress(1);
    RunRout();
    EXPECT_EQ(SnryMain.paras[0].initial, stored) << typed;
  }
}

TEST_F(SnryParasTest, AParameterIsDeletedWhenTheUserAgrees) {
  MakePara("鍵");
  SnryMain.paras[0].assignment = SnryAssignment::Load;
  TextCopy(SnryMain.paras[0].comment, 129, "注");
  ThenPress(IDC_SNRY_PARA_DELETE);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_DelSnryParaDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_PARA_NAME), "鍵");
  });
  ExpectBox("このパラメータの使用項目はすべて無効になります。よろしいですか ?", "パラメータの削除",
            BoxAnswer::Cancel);
  ThenPress(1);
  Then([] { EXPECT_EQ(SnryMain.paras[0].used, 1); });
  ExpectBox("このパラメータの使用項目はすべて無効になります。よろしいですか ?", "パラメータの削除",
            BoxAnswer::Ok);
  ThenPress(1);
  Then([] { EXPECT_EQ(Paras(), ListTexts()); });
  RunRout();
  EXPECT_EQ(SnryMain.paras[0].used, 0);
  EXPECT_STREQ(SnryMain.paras[0].name, "");
  EXPECT_STREQ(SnryMain.paras[0].comment, "注");
  EXPECT_EQ(SnryMain.paras[0].assignment, SnryAssignment::None);
  EXPECT_EQ(SnryMain.paraCount, 0);
  EXPECT_TRUE(Scenario.changed);
}

// "Deleting the highest parameter lowers the count by one even if the slot below is also free."
TEST_F(SnryParasTest, DeletingTheHighestLowersTheCountByOneEvenIfTheSlotBelowIsFree) {
  for (const char* name : {"a", "b", "c"}) MakePara(name);
  SnryParaRemove(1);
  EXPECT_EQ(SnryMain.paraCount, 3);
  SnryParaRemove(2);
  EXPECT_EQ(SnryMain.paraCount, 2);
}

// "A new parameter then goes into slot count, so a free slot in the middle is never reused."
TEST_F(SnryParasTest, AFreeSlotInTheMiddleIsNeverReused) {
  for (const char* name : {"a", "b", "c"}) MakePara(name);
  SnryParaRemove(0);
  ThenPress(IDC_SNRY_PARA_ADD);
  ThenType(IDC_PARA_NAME, "d");
  ThenPress(1);
  Then([] { EXPECT_EQ(Paras(), (ListTexts{"1. b", "2. c", "3. d"})); });
  RunRout();
  EXPECT_EQ(SnryMain.paras[0].used, 0);
  EXPECT_STREQ(SnryMain.paras[3].name, "d");
}

TEST_F(SnryParasTest, BehindTheLastSlotTheAddButtonDoesNothing) {
  SnryMain.paraCount = 2048;
  ThenPress(IDC_SNRY_PARA_ADD);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_RoutSnrySetting); });
  RunRout();
  EXPECT_FALSE(SnryParaAdd({}));
}

TEST_F(SnryParasTest, WithoutAParameterNothingIsChangedOrDeleted) {
  ThenPress(IDC_SNRY_PARA_CHANGE);
  ThenPress(IDC_SNRY_PARA_DELETE);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_RoutSnrySetting); });
  RunRout();
}

TEST_F(SnryParasTest, TheChosenRowStaysOrIsTheFirst) {
  for (const char* name : {"a", "b", "c"}) MakePara(name);
  ThenChoose(IDC_SNRY_PARAS, 2);
  ExpectBox("このパラメータの使用項目はすべて無効になります。よろしいですか ?", "パラメータの削除",
            BoxAnswer::Ok);
  ThenPress(IDC_SNRY_PARA_DELETE);
  ThenPress(1);
  Then([] {
    EXPECT_EQ(Paras(), (ListTexts{"1. a", "2. b"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SNRY_PARAS), 0);
    EXPECT_EQ(Scenario.paraSlot, 0);
  });
  RunRout();
}

// --- Start conditions

TEST_F(SnryParasTest, TheStartOfAScenarioFolderIsSetAndSaved) {
  MakeTale();
  MakePara("a");
  MakePara("b");
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnrySelParaDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_START_PARA), (ListTexts{"未設定", "a", "b"}));
  });
  ThenChoose(IDC_START_PARA, 2);
  ThenType(IDC_START_VALUE, "-5");
  ThenPress(1);
  SnrySelParaDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.folders[0].start.parameter, 2);
  // "-5 in a value field stores 65531 in the u16 field."
  EXPECT_EQ(SnryMain.folders[0].start.value, 65531);
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(SnryParasTest, AStartOnADeletedParameterShowsAsNotSetAndBecomesNoneAtTheConfirm) {
  MakeTale();
  MakePara("a");
  MakePara("b");
  SnryMain.folders[0].start = {1, 7};
  SnryParaRemove(0);
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_START_PARA), 0);
    EXPECT_EQ(ControlText(TopDialog(), IDC_START_VALUE), "7");
  });
  ThenPress(2);
  SnrySelParaDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.folders[0].start.parameter, 1) << "a cancel leaves it";
  ThenPress(1);
  SnrySelParaDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.folders[0].start.parameter, 0);
  EXPECT_EQ(SnryMain.folders[0].start.value, 7);
}

TEST_F(SnryParasTest, ValuesTakeThreeCharacters) {
  MakeTale();
  ThenType(IDC_START_VALUE, "1234");
  ThenPress(1);
  SnrySelParaDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.folders[0].start.value, 123);
}

TEST_F(SnryParasTest, TheStartOfASceneIsSetBehindTheNameOfItsFieldAndMarksNoChange) {
  MakeTale();
  MakePara("a");
  PutFile(kScene, SceneImage());
  ThenType(IDC_SNRY_SCENE_NAME, "途中の名");
  ThenPress(IDC_SNRY_SCENE_START);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SceneSelParaDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::SceneSelParaDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_START_SCENE), "途中の名");
  });
  ThenType(IDC_START_SCENE, std::string(80, 's').c_str());
  ThenChoose(IDC_START_PARA, 1);
  ThenType(IDC_START_VALUE, "42");
  ThenPress(1);
  Then([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_NAME), std::string(79, 's'));
    EXPECT_FALSE(Scenario.changed);
  });
  ThenClose();
  SnryFileSettingRun(Program.hMainWnd);
  EXPECT_EQ(SnrySceneNow().start.parameter, 1);
  EXPECT_EQ(SnrySceneNow().start.value, 42);
  EXPECT_FALSE(Scenario.changed);
}

// --- Places

class SnryPlacesTest : public ScenarioTest {
 protected:
  static std::string Text(void (*text)(const SnryPlaces&, int, char*, int), const SnryPlaces& places,
                          int row) {
    char bytes[100];
    text(places, row, bytes, sizeof bytes);
    return bytes;
  }
};

TEST_F(SnryPlacesTest, APlaceReadsAsItsNumberOrAsThatOfItsRow) {
  const int day = MakePara("日");
  const SnryPlaces places = {0, static_cast<std::uint16_t>(day), 0, 9};
  EXPECT_EQ(Text(SnryPlaceText, places, 0), "2. 日");
  EXPECT_EQ(Text(SnryPlaceText, places, 1), "4. 未設定");
  EXPECT_EQ(Text(SnryPlaceRowText, places, 0), "1.日");
  EXPECT_EQ(Text(SnryPlaceRowText, places, 1), "2.未設定");
}

}  // namespace
