// "場面進行方法設定", the sheet of menus, events and randoms.
#include "scenario/logic/snry_logic.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/logic/snry_sheet.h"
#include "tests/scenario/scenario_fixture.h"

namespace {

class SnrySheetTest : public ScenarioTest {
 protected:
  void SetUp() override {
    ScenarioTest::SetUp();
    MakeTale();
    SnrySceneReset();
    for (const char* name : {"甲", "乙", "丙", "丁"}) MakePara(name);
  }

  static WindowHandle Page() {
    for (const int page : {IDD_PSDialog1no1, IDD_PSDialog1no2, IDD_PSDialog1no2_2, IDD_PSDialog1no3}) {
      const WindowHandle window = FindDialog(page);
      if (window && IsVisible(window)) return window;
    }
    return nullptr;
  }
  static void ThenTo(int page) {
    Then([page] { SheetPageChoose(page); });
  }
  static void OnPress(int id) {
    Then([id] { Press(Page(), id); });
  }
  static void OnType(int id, const char* text) {
    Then([id, text = std::string(text)] { Type(Page(), id, text.c_str()); });
  }
  static void OnChoose(int id, int row) {
    Then([id, row] { ChooseRow(Page(), id, row); });
  }
  static void Expect(int id, const char* text) {
    Then([id, text = std::string(text)] { EXPECT_EQ(ControlText(Page(), id), text); });
  }
  static void ExpectRow(int id, int row) {
    Then([id, row] { EXPECT_EQ(ListSelected(Page(), id), row) << id; });
  }
  static void ExpectRows(int id, const ListTexts& rows) {
    Then([id, rows] { EXPECT_EQ(ListRows(Page(), id), rows); });
  }
  static void RunSheet(int end = 1) {
    ThenPress(end);
    SnryAdvanceSheetRun(Program.hMainWnd);
  }
  static void Ask(const char* text, const char* caption, BoxAnswer answer = BoxAnswer::Ok) {
    ExpectBox(text, caption, answer);
  }
  static void AskAddPara(BoxAnswer answer = BoxAnswer::Ok) {
    Ask("パラメータを追加します。", "パラメータの追加", answer);
  }
  static void AskChangePara() { Ask("パラメータを変更します。", "パラメータの変更"); }
  static void AddItem(const char* text) {
    OnType(IDC_MENU_TEXT, text);
    Then([] { Ask("メニューを追加します。", "メニューの追加"); });
    OnPress(IDC_MENU_ADD);
  }
  static SnryMenuRec& Menu() { return SnryScene.menus[0]; }
  static void FillItems(int count) {
    Menu().itemCount = static_cast<std::uint8_t>(count);
    for (int i = 0; i < 10; ++i) {
      TextFormat(Menu().itemTexts[i], 101, "項%d", i + 1);
      Menu().itemParameters[i][0] = static_cast<std::uint16_t>(i + 1);
      Menu().itemValues[i][0] = static_cast<std::uint16_t>(10 * i);
    }
  }
};

// --- The sheet

TEST_F(SnrySheetTest, ItHasThreePagesAndItsName) {
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "場面進行方法設定");
    EXPECT_EQ(TemplateOf(Page()), IDD_PSDialog1no1);
  });
  ThenTo(1);
  Then([] { EXPECT_EQ(TemplateOf(Page()), IDD_PSDialog1no2); });
  ThenTo(2);
  Then([] { EXPECT_EQ(TemplateOf(Page()), IDD_PSDialog1no3); });
  RunSheet();
}

TEST_F(SnrySheetTest, ASceneInTheFormOfATableHasAnotherEventPage) {
  SnrySceneNow().tableFlags = 6;
  ThenTo(1);
  Then([] { EXPECT_EQ(TemplateOf(Page()), IDD_PSDialog1no2); });
  RunSheet();
  SnrySceneNow().tableFlags = 1;
  ThenTo(1);
  Then([] { EXPECT_EQ(TemplateOf(Page()), IDD_PSDialog1no2_2); });
  RunSheet();
}

TEST_F(SnrySheetTest, TheScenesDialogOpensIt) {
  PutFile(kScene, SceneImage());
  ThenPress(IDC_SNRY_SCENE_ADVANCE);
  OnPress(IDC_PAGE_ENABLED);
  ThenPress(1);
  ThenPress(1);
  SnryFileSettingRun(Program.hMainWnd);
  EXPECT_EQ(FileBytes(kScene)[35], 1);
}

TEST_F(SnrySheetTest, ItMarksNoChange) {
  OnPress(IDC_PAGE_ENABLED);
  RunSheet();
  EXPECT_EQ(Menu().enabled, 1);
  EXPECT_FALSE(Scenario.changed);
}

// "Cancel on the sheet restores the first page's edits also if the user stepped through records,
// which stored them."
TEST_F(SnrySheetTest, ACancelRestoresTheFirstPagesEditsAlsoIfTheUserSteppedThroughRecords) {
  Menu().start = {2, 5};
  for (const bool apply : {false, true}) {
    OnChoose(IDC_PAGE_START_PARA, 4);
    OnType(IDC_PAGE_START_VALUE, "77");
    OnPress(IDC_PAGE_UP);
    Then([] { EXPECT_EQ(Menu().start.value, 77) << "the step has stored it"; });
    ThenTo(1);
    OnPress(IDC_EVENT_TEXT);
    ThenTo(2);
    OnType(IDC_RANDOM_INTERVAL, "9");
    OnPress(IDC_RANDOM_REPLACES);
    OnPress(IDC_PAGE_UP);
    if (apply) ThenPress(kSheetApplyButton);
    RunSheet(2);
    EXPECT_EQ(Menu().start.parameter, 2);
    EXPECT_EQ(Menu().start.value, 5);
    EXPECT_EQ(SnryScene.events[0].type, SnryEventType::Time);
    EXPECT_EQ(SnryScene.randoms[0].interval, 0);
    EXPECT_EQ(SnryScene.randomExs[0].replaces, 0);
  }
}

TEST_F(SnrySheetTest, EscapeAndCloseCancelToo) {
  for (const bool escape : {true, false}) {
    OnPress(IDC_PAGE_ENABLED);
    Then([escape] { escape ? PressEscape(TopDialog()) : PressClose(TopDialog()); });
    SnryAdvanceSheetRun(Program.hMainWnd);
    EXPECT_EQ(Menu().enabled, 0);
  }
}

// "Stepping down from record 1 shows record 100, and record 101 can't be reached."
TEST_F(SnrySheetTest, SteppingDownFromRecord1Shows100AndUpFrom100Shows1) {
  for (const int page : {0, 1, 2}) {
    ThenTo(page);
    Expect(IDC_PAGE_NUMBER, "1");
    OnPress(IDC_PAGE_DOWN);
    Expect(IDC_PAGE_NUMBER, "100");
    OnPress(IDC_PAGE_ENABLED);
    OnPress(IDC_PAGE_UP);
    Expect(IDC_PAGE_NUMBER, "1");
    OnPress(IDC_PAGE_UP);
    Expect(IDC_PAGE_NUMBER, "2");
    OnPress(IDC_PAGE_DOWN);
  }
  RunSheet();
  EXPECT_EQ(SnryScene.menus[99].enabled, 1);
  EXPECT_EQ(SnryScene.events[99].enabled, 1);
  EXPECT_EQ(SnryScene.randoms[99].enabled, 1);
  EXPECT_EQ(SnryScene.events[100].enabled + SnryScene.randoms[100].enabled, 0);
}

// --- Menus

TEST_F(SnrySheetTest, AMenusFieldsAreStored) {
  TextCopy(SnryMain.labels[1].text, 33, "戻る");
  ExpectRows(IDC_MENU_METHOD, {" マウス左ダブルクリック or Enterキー", " マウス左ダブルクリック",
                               " Enterキー", " マウス左クリック", " マウス左クリック or Enterキー"});
  Then([] {
    EXPECT_EQ(ListRows(Page(), IDC_MENU_LABEL1).size(), 11U);
    EXPECT_EQ(ListRows(Page(), IDC_MENU_LABEL1)[0], "使用しない");
    EXPECT_EQ(ListRows(Page(), IDC_MENU_LABEL2)[2], "戻る");
  });
  OnPress(IDC_PAGE_ENABLED);
  Then([] { EXPECT_EQ(Menu().enabled, 1) << "at once"; });
  OnChoose(IDC_PAGE_START_PARA, 1);
  OnType(IDC_PAGE_START_VALUE, "999");
  OnChoose(IDC_MENU_LABEL1, 2);
  OnChoose(IDC_MENU_PARA1, 2);
  OnType(IDC_MENU_VALUE1, "3");
  OnChoose(IDC_MENU_LABEL2, 10);
  OnChoose(IDC_MENU_PARA2, 4);
  OnType(IDC_MENU_VALUE2, "-5");
  OnChoose(IDC_MENU_METHOD, 4);
  RunSheet();
  std::string image(1818, '\0');
  image[0] = 1;
  At(image, 2, Little16(1) + Little16(999));
  At(image, 6, "\2\12");
  At(image, 8, Little16(2) + Little16(4) + Little16(3) + Little16(65531));
  image[16] = 4;
  EXPECT_EQ(RecordBytes(Menu()), image);
}

TEST_F(SnrySheetTest, ItemsAreAddedChangedAndDeleted) {
  AddItem("はい");
  ExpectRow(IDC_MENU_ITEMS, 0);
  AddItem(std::string(100, 'i').c_str());
  ExpectRows(IDC_MENU_ITEMS, {"はい", std::string(99, 'i')});
  OnChoose(IDC_MENU_ITEMS, 0);
  Expect(IDC_MENU_TEXT, "はい");
  OnType(IDC_MENU_TEXT, "いいえ");
  Then([] { Ask("メニューを変更します。", "メニューの変更", BoxAnswer::Cancel); });
  OnPress(IDC_MENU_CHANGE);
  ExpectRows(IDC_MENU_ITEMS, {"はい", std::string(99, 'i')});
  Then([] { Ask("メニューを変更します。", "メニューの変更"); });
  OnPress(IDC_MENU_CHANGE);
  ExpectRows(IDC_MENU_ITEMS, {"いいえ", std::string(99, 'i')});
  Then([] { Ask("メニューを削除します。", "メニューの削除", BoxAnswer::Cancel); });
  OnPress(IDC_MENU_DELETE);
  Then([] { Ask("メニューを削除します。", "メニューの削除"); });
  OnPress(IDC_MENU_DELETE);
  ExpectRows(IDC_MENU_ITEMS, {std::string(99, 'i')});
  OnPress(IDC_MENU_CHANGE);  // nothing is chosen, nothing is said
  OnPress(IDC_MENU_DELETE);
  RunSheet();
  EXPECT_EQ(Menu().itemCount, 1);
}

// "A menu item beyond the tenth is refused before any question is asked."
TEST_F(SnrySheetTest, AnItemBeyondTheTenthIsRefusedBeforeAnyQuestion) {
  FillItems(10);
  Then([] { ExpectBox("メニューの最大数10項目を超えました", "メニュー追加の中止"); });
  OnPress(IDC_MENU_ADD);
  RunSheet();
  EXPECT_EQ(BoxesShown().size(), 1U);
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::Ok);
}

TEST_F(SnrySheetTest, ADeletedItemsFollowersMoveUpWithTheirParametersAndTheTenthIsCleared) {
  FillItems(10);
  OnChoose(IDC_MENU_ITEMS, 8);
  Then([] { Ask("メニューを削除します。", "メニューの削除"); });
  OnPress(IDC_MENU_DELETE);
  RunSheet();
  EXPECT_EQ(Menu().itemCount, 9);
  EXPECT_STREQ(Menu().itemTexts[8], "項10");
  EXPECT_EQ(Menu().itemParameters[8][0], 10);
  EXPECT_EQ(Menu().itemValues[8][0], 90);
  EXPECT_EQ(Menu().itemTexts[9][0], '\0');
  EXPECT_NE(Menu().itemTexts[9][1], '\0') << "only the first byte goes";
  EXPECT_EQ(Menu().itemParameters[9][0] + Menu().itemValues[9][0], 0);
}

TEST_F(SnrySheetTest, WhenTheTenthItemIsDeletedNothingIsCleared) {
  FillItems(10);
  OnChoose(IDC_MENU_ITEMS, 9);
  Then([] { Ask("メニューを削除します。", "メニューの削除"); });
  OnPress(IDC_MENU_DELETE);
  RunSheet();
  EXPECT_EQ(Menu().itemCount, 9);
  EXPECT_STREQ(Menu().itemTexts[9], "項10");
  EXPECT_EQ(Menu().itemParameters[9][0], 10);
}

TEST_F(SnrySheetTest, AnAddedItemHasNoParametersWhateverStoodThere) {
  FillItems(3);
  AddItem("新");
  RunSheet();
  EXPECT_STREQ(Menu().itemTexts[3], "新");
  EXPECT_EQ(Menu().itemParameters[3][0], 0);
}

TEST_F(SnrySheetTest, AnItemsParametersAreAddedChangedAndDeleted) {
  AddItem("はい");
  OnChoose(IDC_PAGE_PARA, 2);
  OnType(IDC_PAGE_VALUE, "8");
  Then([] { AskAddPara(BoxAnswer::Cancel); });
  OnPress(IDC_PAGE_PARA_ADD);
  ExpectRows(IDC_PAGE_PLACES, {});
  Then([] { AskAddPara(); });
  OnPress(IDC_PAGE_PARA_ADD);
  OnChoose(IDC_PAGE_PARA, 4);
  OnType(IDC_PAGE_VALUE, "9");
  Then([] { AskAddPara(); });
  OnPress(IDC_PAGE_PARA_ADD);
  ExpectRows(IDC_PAGE_PLACES, {"1.乙", "2.丁"});
  OnPress(IDC_PAGE_PARA_CHANGE);  // no row, no word
  OnPress(IDC_PAGE_PARA_DELETE);
  OnChoose(IDC_PAGE_PLACES, 0);
  ExpectRow(IDC_PAGE_PARA, 2);
  Expect(IDC_PAGE_VALUE, "8");
  OnChoose(IDC_PAGE_PARA, 3);
  Then([] { AskChangePara(); });
  OnPress(IDC_PAGE_PARA_CHANGE);
  ExpectRows(IDC_PAGE_PLACES, {"1.丙", "2.丁"});
  OnChoose(IDC_PAGE_PLACES, 0);
  Then([] { Ask("パラメータを削除します。", "パラメータの変更"); });
  OnPress(IDC_PAGE_PARA_DELETE);
  ExpectRows(IDC_PAGE_PLACES, {"1.丁"});
  RunSheet();
  EXPECT_EQ(Menu().itemParameters[0][0], 4);
  EXPECT_EQ(Menu().itemValues[0][0], 9);
  EXPECT_EQ(Menu().itemParameters[0][1] + Menu().itemValues[0][1], 0);
}

TEST_F(SnrySheetTest, AMenusDeletedParametersShowAsNotSet) {
  FillItems(1);
  Menu().itemParameters[0][1] = 2000;
  SnryParaRemove(0);
  OnChoose(IDC_MENU_ITEMS, 0);
  ExpectRows(IDC_PAGE_PLACES, {"未設定", "未設定"});
  RunSheet();
}

TEST_F(SnrySheetTest, WithoutAnItemAMenusParametersAreRefused) {
  Then([] { ExpectBox("メニュー項目を追加または選択してください", "パラメータ追加の中止"); });
  OnPress(IDC_PAGE_PARA_ADD);
  Then([] { ExpectBox("メニュー項目を選択してください", "パラメータ変更の中止"); });
  OnPress(IDC_PAGE_PARA_CHANGE);
  Then([] { ExpectBox("メニュー項目を選択してください", "パラメータ削除の中止"); });
  OnPress(IDC_PAGE_PARA_DELETE);
  RunSheet();
}

TEST_F(SnrySheetTest, TwentyParametersAreAllOfEachKind) {
  FillItems(1);
  for (int i = 0; i < 20; ++i) {
    Menu().itemParameters[0][i] = 1;
    SnryScene.events[0].parameters[i] = 1;
    SnryScene.randoms[0].parameters[i] = 1;
  }
  OnChoose(IDC_MENU_ITEMS, 0);
  for (const int page : {0, 1, 2}) {
    ThenTo(page);
    Then([] {
      EXPECT_EQ(ListRows(Page(), IDC_PAGE_PLACES).size(), 20U);
      AskAddPara();
      ExpectBox("パラメータの最大個数20を超えました", "パラメータ追加の中止");
    });
    OnPress(IDC_PAGE_PARA_ADD);
  }
  RunSheet();
}

TEST_F(SnrySheetTest, AnItemCountThatNoMenuHasIsHeldInside) {
  FillItems(10);
  Menu().itemCount = 255;
  Then([] { EXPECT_EQ(ListRows(Page(), IDC_MENU_ITEMS).size(), 10U); });
  Then([] { ExpectBox("メニューの最大数10項目を超えました", "メニュー追加の中止"); });
  OnPress(IDC_MENU_ADD);
  OnChoose(IDC_MENU_ITEMS, 3);
  Then([] { Ask("メニューを削除します。", "メニューの削除"); });
  OnPress(IDC_MENU_DELETE);
  Then([] { EXPECT_EQ(ListRows(Page(), IDC_MENU_ITEMS).size(), 9U); });
  RunSheet();
}

TEST_F(SnrySheetTest, ADanglingStartShowsAsNotSetAndIsStoredAsNone) {
  Menu().start = {3, 4};
  SnryParaRemove(2);
  ExpectRow(IDC_PAGE_START_PARA, 0);
  OnPress(IDC_PAGE_UP);
  RunSheet();
  EXPECT_EQ(Menu().start.parameter, 0);
  EXPECT_EQ(Menu().start.value, 4);
}

// --- Events

class SnryEventPageTest : public SnrySheetTest {
 protected:
  static SnryEventRec& TheEvent() { return SnryScene.events[0]; }
};

TEST_F(SnryEventPageTest, AnEventsFieldsAreStored) {
  MakeChara(1, "ミル", "姫");
  MakeChara(4, "レル", "王");
  Cast({1, 513, 4});
  SnryCastAt(0).copies = 1;
  SnryCastAt(512).master = 1;
  ThenTo(1);
  ExpectRows(IDC_EVENT_FIRST,
             {"1. ミル [登場名: 姫]", "2. ミルのコピー1 [登場名: 姫]", "3. レル [登場名: 王]"});
  ExpectRows(IDC_EVENT_SECOND, {"1. ミル(コピー含む) [登場名: 姫]", "2. レル [登場名: 王]"});
  OnPress(IDC_PAGE_ENABLED);
  OnPress(IDC_EVENT_NAME_SHOWN);
  OnPress(IDC_EVENT_MEETING);
  Then([] {
    EXPECT_EQ(TheEvent().enabled, 1) << "these three at once";
    EXPECT_EQ(TheEvent().nameShown, 1);
    EXPECT_EQ(TheEvent().type, SnryEventType::Meeting);
    EXPECT_STREQ(TheEvent().name, "");
  });
  OnChoose(IDC_PAGE_START_PARA, 2);
  OnType(IDC_PAGE_START_VALUE, "7");
  OnType(IDC_EVENT_NAME, "出会い");
  OnType(IDC_EVENT_COMPARISON, std::string(33, 'c').c_str());
  OnType(IDC_EVENT_LOWEST, "3");
  OnType(IDC_EVENT_HIGHEST, "-5");
  OnType(IDC_EVENT_MINUTES, "4");
  OnType(IDC_EVENT_SECONDS, "59");
  OnChoose(IDC_EVENT_FIRST, 1);
  OnChoose(IDC_EVENT_SECOND, 1);
  RunSheet();
  std::string image(236, '\0');
  image[0] = 1;
  At(image, 2, Little16(2) + Little16(7));
  image[6] = 3;
  At(image, 7, std::string(32, 'c'));
  At(image, 40, Little16(3) + Little16(65531) + "\4\73");
  At(image, 46, Little16(513) + Little16(4));
  image[170] = 1;
  At(image, 171, "出会い");
  EXPECT_EQ(RecordBytes(TheEvent()), image);
}

TEST_F(SnryEventPageTest, AMemberThatIsNotInTheCastStaysWhileNoneIsChosen) {
  TheEvent().first = 77;
  TheEvent().second = 88;
  ThenTo(1);
  ExpectRow(IDC_EVENT_FIRST, -1);
  OnPress(IDC_PAGE_UP);
  RunSheet();
  EXPECT_EQ(TheEvent().first, 77);
  EXPECT_EQ(TheEvent().second, 88);
}

TEST_F(SnryEventPageTest, InATableItComparesAParameterAndRemembersTheText) {
  SnrySceneNow().tableFlags = 1;
  ThenTo(1);
  OnChoose(IDC_EVENT_FIRST, 3);
  OnType(IDC_EVENT_SECOND, "12");
  OnPress(IDC_EVENT_REMEMBER);
  Then([] { EXPECT_EQ(ListRows(Page(), IDC_EVENT_OPERATION).size(), 4U) << "no direction of characters"; });
  OnPress(IDC_PAGE_UP);
  Then([] { EXPECT_FALSE(ControlIsChecked(Page(), IDC_EVENT_REMEMBER)); });
  OnPress(IDC_PAGE_DOWN);
  Then([] { EXPECT_TRUE(ControlIsChecked(Page(), IDC_EVENT_REMEMBER)); });
  RunSheet();
  EXPECT_EQ(TheEvent().first, 3);
  EXPECT_EQ(TheEvent().second, 12);
  EXPECT_EQ(SnryScene.eventExs[0].remember, 1);
}

TEST_F(SnryEventPageTest, TheExtensionsAreNotAmongWhatACancelBringsBack) {
  SnrySceneNow().tableFlags = 1;
  ThenTo(1);
  OnPress(IDC_EVENT_REMEMBER);
  RunSheet(2);
  EXPECT_EQ(SnryScene.eventExs[0].remember, 1);
}

TEST_F(SnryEventPageTest, WhatItChangesIsListedByPlaceAndShownWhenChosen) {
  TheEvent().parameters[1] = 4;
  TheEvent().values[1] = 6;
  TheEvent().signs[1] = 1;
  TheEvent().operations[1] = 4;
  TheEvent().parameters[3] = 9;
  ThenTo(1);
  ExpectRows(IDC_PAGE_PLACES, {"2. 丁", "4. 未設定"});
  ExpectRows(IDC_EVENT_SIGN, {"＋", "－"});
  ExpectRows(IDC_EVENT_OPERATION, {"設定値に変更(符号は無視される)", "入力値掛ける設定値を＋/ー",
                                   "入力値割る設定値を＋/ー", "設定値を＋/ー", "④のキャラクタ間 方位を設定"});
  OnChoose(IDC_PAGE_PLACES, 0);
  ExpectRow(IDC_PAGE_PARA, 4);
  Expect(IDC_PAGE_VALUE, "6");
  ExpectRow(IDC_EVENT_SIGN, 1);
  ExpectRow(IDC_EVENT_OPERATION, 4);
  RunSheet();
}

TEST_F(SnryEventPageTest, WhatTheFieldsOfAnEntryCannotShowStaysWhenOthersChange) {
  TheEvent().parameters[0] = 1;
  TheEvent().values[0] = 65531;   // three characters can be typed
  TheEvent().operations[0] = 77;  // no row
  ThenTo(1);
  OnChoose(IDC_PAGE_PLACES, 0);
  OnChoose(IDC_EVENT_SIGN, 1);
  Then([] { AskChangePara(); });
  OnPress(IDC_PAGE_PARA_CHANGE);
  RunSheet();
  EXPECT_EQ(TheEvent().values[0], 65531);
  EXPECT_EQ(TheEvent().signs[0], 1);
  EXPECT_EQ(TheEvent().operations[0], 77);
}

// "With a gap in the parameter slots, an event parameter added through row 3 stores id 3, which
// isn't the parameter shown in that row; changing the same entry stores the right id."
TEST_F(SnryEventPageTest, WithAGapAnAddStoresTheRowAndAChangeTheId) {
  SnryParaRemove(1);  // rows are now 未設定, 甲, 丙, 丁
  ThenTo(1);
  OnChoose(IDC_PAGE_PARA, 3);
  OnType(IDC_PAGE_VALUE, "5");
  OnChoose(IDC_EVENT_SIGN, 1);
  OnChoose(IDC_EVENT_OPERATION, 2);
  Then([] { AskAddPara(); });
  OnPress(IDC_PAGE_PARA_ADD);
  ExpectRows(IDC_PAGE_PLACES, {"1. 丙"});
  Then([] {
    EXPECT_EQ(TheEvent().parameters[0], 3);
    EXPECT_EQ(TheEvent().values[0], 5);
    EXPECT_EQ(TheEvent().signs[0], 1);
    EXPECT_EQ(TheEvent().operations[0], 2);
  });
  OnChoose(IDC_PAGE_PLACES, 0);
  OnChoose(IDC_PAGE_PARA, 3);
  Then([] { AskChangePara(); });
  OnPress(IDC_PAGE_PARA_CHANGE);
  ExpectRows(IDC_PAGE_PLACES, {"1. 丁"});
  RunSheet();
  EXPECT_EQ(TheEvent().parameters[0], 4);
}

TEST_F(SnryEventPageTest, ADeletedEntrysFollowersMoveDownWithAllTheyHave) {
  for (int i = 0; i < 20; ++i) {
    TheEvent().parameters[i] = static_cast<std::uint16_t>(i + 1);
    TheEvent().values[i] = static_cast<std::uint16_t>(i + 101);
    TheEvent().signs[i] = static_cast<std::uint8_t>(i % 2);
    TheEvent().operations[i] = static_cast<std::uint8_t>(i % 5);
  }
  ThenTo(1);
  OnPress(IDC_PAGE_PARA_DELETE);  // no row
  OnPress(IDC_PAGE_PARA_CHANGE);
  OnChoose(IDC_PAGE_PLACES, 1);
  Then([] { Ask("パラメータを削除します。", "パラメータの変更", BoxAnswer::Cancel); });
  OnPress(IDC_PAGE_PARA_DELETE);
  Then([] { Ask("パラメータを削除します。", "パラメータの変更"); });
  OnPress(IDC_PAGE_PARA_DELETE);
  RunSheet();
  EXPECT_EQ(TheEvent().parameters[0], 1);
  EXPECT_EQ(TheEvent().parameters[1], 3);
  EXPECT_EQ(TheEvent().values[18], 120);
  EXPECT_EQ(TheEvent().signs[1], 0);
  EXPECT_EQ(TheEvent().operations[18], 4);
  EXPECT_EQ(
      TheEvent().parameters[19] + TheEvent().values[19] + TheEvent().signs[19] + TheEvent().operations[19],
      0);
}

// --- Randoms

class SnryRandomPageTest : public SnrySheetTest {
 protected:
  static SnryRandomRec& Random() { return SnryScene.randoms[0]; }
  static SnryRandomExRec& RandomEx() { return SnryScene.randomExs[0]; }
};

TEST_F(SnryRandomPageTest, ARandomsFieldsAreStored) {
  MakeChara(1, "ミル", "姫");
  MakeChara(4, "レル", "王");
  Cast({1, 513, 4});
  ThenTo(2);
  ExpectRows(IDC_RANDOM_REPLACED, {"1. ミル [登場名: 姫]", "2. レル [登場名: 王]"});
  OnPress(IDC_PAGE_ENABLED);
  OnPress(IDC_RANDOM_REPLACES);
  Then([] {
    EXPECT_EQ(Random().enabled, 1) << "both at once";
    EXPECT_EQ(RandomEx().replaces, 1);
  });
  OnChoose(IDC_PAGE_START_PARA, 1);
  OnType(IDC_PAGE_START_VALUE, "2");
  OnType(IDC_RANDOM_INTERVAL, "1000");
  OnChoose(IDC_RANDOM_REPLACED, 1);
  OnChoose(IDC_RANDOM_REPLACEMENT, 0);
  RunSheet();
  EXPECT_EQ(RecordBytes(Random()).substr(0, 8),
            std::string("\1\0", 2) + Little16(1) + Little16(2) + Little16(100));
  EXPECT_EQ(RecordBytes(RandomEx()).substr(0, 6), std::string("\1\0", 2) + Little16(4) + Little16(1));
}

TEST_F(SnryRandomPageTest, EntriesAreAddedAndChangedWithAllTheyHave) {
  SnryParaRemove(1);  // rows are now 未設定, 甲, 丙, 丁
  ThenTo(2);
  ExpectRows(IDC_RANDOM_OPERATION, {"=", "+", "-", "*", "/", "比較"});
  OnChoose(IDC_PAGE_PARA, 3);
  OnPress(IDC_RANDOM_MODE_SUM);
  OnType(IDC_RANDOM_LOWEST, "1");
  OnType(IDC_RANDOM_HIGHEST, "6");
  OnType(IDC_RANDOM_COUNT, "3");
  OnChoose(IDC_RANDOM_OPERATION, 5);
  OnChoose(IDC_RANDOM_OTHER, 2);
  Then([] { AskAddPara(); });
  OnPress(IDC_PAGE_PARA_ADD);
  ExpectRows(IDC_PAGE_PLACES, {"1. 丁"});
  Then([] {
    EXPECT_EQ(Random().parameters[0], 4) << "the id, not the row";
    EXPECT_EQ(Random().ranges[0][0], 1);
    EXPECT_EQ(Random().ranges[0][1], 6);
    EXPECT_EQ(Random().counts[0], 3);
    EXPECT_EQ(Random().modes[0], 2);
    EXPECT_EQ(RandomEx().operations[0], 6);
    EXPECT_EQ(RandomEx().others[0], 3);
  });
  OnChoose(IDC_PAGE_PLACES, 0);
  ExpectRow(IDC_RANDOM_OPERATION, 5);
  OnPress(IDC_RANDOM_MODE_COUNT);
  OnType(IDC_RANDOM_COUNT, "9");
  Then([] { AskChangePara(); });
  OnPress(IDC_PAGE_PARA_CHANGE);
  RunSheet();
  EXPECT_EQ(Random().modes[0], 1);
  EXPECT_EQ(Random().counts[0], 9);
}

TEST_F(SnryRandomPageTest, AfterADeleteModesAndOperationsNoLongerLineUp) {
  for (int i = 0; i < 20; ++i) {
    Random().parameters[i] = static_cast<std::uint16_t>(i + 1);
    Random().ranges[i][0] = static_cast<std::uint16_t>(i + 101);
    Random().ranges[i][1] = static_cast<std::uint16_t>(i + 201);
    Random().counts[i] = static_cast<std::uint16_t>(i + 301);
    Random().modes[i] = static_cast<std::uint8_t>(i % 3);
    RandomEx().operations[i] = static_cast<std::uint8_t>(i % 6 + 1);
    RandomEx().others[i] = static_cast<std::uint16_t>(i + 401);
  }
  ThenTo(2);
  OnPress(IDC_PAGE_PARA_DELETE);  // no row
  OnPress(IDC_PAGE_PARA_CHANGE);
  OnChoose(IDC_PAGE_PLACES, 1);
  Then([] { Ask("パラメータを削除します。", "パラメータの削除"); });
  OnPress(IDC_PAGE_PARA_DELETE);
  RunSheet();
  EXPECT_EQ(Random().parameters[1], 3);
  EXPECT_EQ(Random().ranges[1][0], 103);
  EXPECT_EQ(Random().ranges[18][1], 220);
  EXPECT_EQ(Random().counts[1], 303);
  EXPECT_EQ(Random().parameters[19] + Random().ranges[19][0] + Random().ranges[19][1] + Random().counts[19],
            0);
  EXPECT_EQ(Random().modes[1], 1);
  EXPECT_EQ(Random().modes[19], 1);
  EXPECT_EQ(RandomEx().operations[1], 2);
  EXPECT_EQ(RandomEx().others[19], 420);
}

TEST_F(SnryRandomPageTest, TheRadioButtonsActOnTheFieldsAndNotOnTheRecord) {
  Random().parameters[0] = 1;
  ThenTo(2);
  OnChoose(IDC_PAGE_PLACES, 0);
  OnPress(IDC_RANDOM_MODE_SUM);
  RunSheet();
  EXPECT_EQ(Random().modes[0], 0);
}

TEST_F(SnrySheetTest, RecordsOfAnyBytesDoNoHarm) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    RecordSet(SnryScene.menus, RecordNoise(181800, seed));
    RecordSet(SnryScene.events, RecordNoise(47200, seed));
    RecordSet(SnryScene.randoms, RecordNoise(37600, seed));
    RecordSet(SnryScene.randomExs, RecordNoise(15200, seed));
    Cast({1, 700, 65535});
    for (const int page : {0, 1, 2}) {
      ThenTo(page);
      if (page == 0) OnChoose(IDC_MENU_ITEMS, 0);
      OnChoose(IDC_PAGE_PLACES, 3);
      OnPress(IDC_PAGE_UP);
      OnPress(IDC_PAGE_DOWN);
    }
    RunSheet();
  }
}

}  // namespace
