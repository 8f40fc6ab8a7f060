// The characters of the world are registered for a scenario.
#include "scenario/characters/chara_regi.h"

#include "platform/window.h"
#include "resources/scenario_characters_ids.h"
#include "scenario/storage/snry_main_file.h"
#include "tests/scenario/scenario_world.h"

namespace {

using CharaRegiTest = ScenarioWorldTest;

SnryNameRec Name(const char* text) {
  SnryNameRec name{};
  std::string(text).copy(name.text, sizeof name.text - 1);
  return name;
}

// --- The tables

TEST_F(CharaRegiTest, ARegistrationStoresTheCastNameAndCountsOnce) {
  CharaRegister(1, Name("博士"));
  EXPECT_EQ(SnryMain.registered[1], 1);
  EXPECT_STREQ(SnryMain.castNames[1].text, "博士");
  EXPECT_EQ(SnryMain.registeredCount, 1);
  EXPECT_TRUE(Scenario.changed);
  EXPECT_TRUE(Scenario.castNamesChanged);
  CharaRegister(1, Name("先生"));  // another name for a registered one
  EXPECT_STREQ(SnryMain.castNames[1].text, "先生");
  EXPECT_EQ(SnryMain.registeredCount, 1);
}

TEST_F(CharaRegiTest, Registering3AndUnregistering1LeavesTheCountAt3UnlessTheCurrentParameterSlotIs2) {
  for (int slot = 0; slot < 5; ++slot) {
    SnryMain.registeredCount = 0;
    Scenario.paraSlot = slot;
    for (int chara = 0; chara < 3; ++chara) {
      SnryMain.registered[chara] = 0;
      CharaRegister(chara, Name("a"));
    }
    CharaUnregister(1);
    EXPECT_EQ(SnryMain.registered[1], 0);
    EXPECT_EQ(SnryMain.registeredCount, slot == 2 ? 2 : 3) << slot;
  }
}

TEST_F(CharaRegiTest, ACountOfNothingDoesNotFall) {
  Scenario.paraSlot = -1;
  CharaUnregister(0);
  EXPECT_EQ(SnryMain.registeredCount, 0);
}

TEST_F(CharaRegiTest, ACharacterThatThereIsNotIsNeitherRegisteredNorUnregistered) {
  for (const int chara : {-1, 512, 2147483647}) {
    CharaRegister(chara, Name("x"));
    CharaUnregister(chara);
  }
  EXPECT_EQ(SnryMain.registeredCount, 0);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CharaRegiTest, UnregisteringKeepsTheCastNameInTheMainFileAndANewRegistrationShowsItAgain) {
  CharaRegister(2, Name("ちび竜"));
  CharaUnregister(2);
  ASSERT_EQ(SnrySaveMain(), 0);
  const std::string file = FileBytes("C:\\work\\シナリオメイン.cff");
  ASSERT_EQ(file.size(), 2371558U);
  EXPECT_EQ(file[2288164 + 2], 0);
  EXPECT_STREQ(file.c_str() + 2321444 + 2 * 64, "ちび竜");
  Then([] {
    ChooseRow(TopDialog(), IDC_CHARA_REGI_LIST, 2);
    Press(TopDialog(), IDC_CHARA_REGI_SET);
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetOrChkCharRegiDlg);
    EXPECT_EQ(TextIn(IDC_CHARA_REGI_CAST_NAME), "ちび竜");
  });
  ThenPress(2);
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
}

TEST_F(CharaRegiTest, RowsHaveTheNumberTheNameAndTheCastNameOfThoseThatAreRegistered) {
  Register(2, "博士");
  char text[200];
  CharaRegiRowText(0, text, sizeof text);
  EXPECT_STREQ(text, "1. ミル");
  CharaRegiRowText(1, text, sizeof text);
  EXPECT_STREQ(text, "2. ホーリオ [登場名: 博士]");
}

// --- CharaRegiDlg

TEST_F(CharaRegiTest, TheListShowsEveryCharacterOfTheWorld) {
  Register(2, "博士");
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_CharaRegiDlg);
    EXPECT_EQ(WindowText(dialog), "登場キャラクタ登録(キャスティング)");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::CharaRegiDlg);
    EXPECT_EQ(RowsIn(IDC_CHARA_REGI_LIST), (Rows{"1. ミル", "2. ホーリオ [登場名: 博士]", "3. メンティ",
                                                 "4. ツキハ", "5. ピチュ", "6. コロモン"}));
  });
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CharaRegiTest, AnUnregisteredRowIsRegisteredUnderTheNameThatIsTyped) {
  ThenChoose(IDC_CHARA_REGI_LIST, 3);
  ThenPress(IDC_CHARA_REGI_SET);
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SetOrChkCharRegiDlg);
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SetOrChkCharRegiDlg);
    EXPECT_EQ(ControlText(dialog, IDC_CHARA_REGI_NAME), "ツキハ");
    EXPECT_EQ(ControlText(dialog, IDC_CHARA_REGI_CAST_NAME), "");
    EXPECT_EQ(ControlText(dialog, 1), "登録する");
    Type(dialog, IDC_CHARA_REGI_CAST_NAME, "月の使い");
    Press(dialog, 1);
  });
  Then([] {
    EXPECT_EQ(RowsIn(IDC_CHARA_REGI_LIST)[3], "4. ツキハ [登場名: 月の使い]");
    EXPECT_EQ(ListSelected(TopDialog(), IDC_CHARA_REGI_LIST), 3);
  });
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.registered[3], 1);
  EXPECT_EQ(SnryMain.registeredCount, 1);
}

TEST_F(CharaRegiTest, ARegisteredRowGetsAnotherCastNameOf63BytesAtMost) {
  Register(1, "郵便屋");
  ThenChoose(IDC_CHARA_REGI_LIST, 0);
  ThenPress(IDC_CHARA_REGI_SET);
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SetOrChkCharRegiDlg2);
    EXPECT_EQ(ControlText(dialog, IDC_CHARA_REGI_CAST_NAME), "郵便屋");
    EXPECT_EQ(ControlText(dialog, 1), "登場名を変更");
    Type(dialog, IDC_CHARA_REGI_CAST_NAME, std::string(80, 'n').c_str());
  });
  ThenPress(1);
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.castNames[0].text, std::string(63, 'n'));
  EXPECT_EQ(SnryMain.registeredCount, 1);
}

TEST_F(CharaRegiTest, CancelEscapeAndTheSignInTheCaptionChangeNothing) {
  Register(1, "郵便屋");
  for (int row = 0; row < 2; ++row) {
    for (void (*leave)(WindowHandle) : {PressEscape, PressClose}) {
      ThenChoose(IDC_CHARA_REGI_LIST, row);
      ThenPress(IDC_CHARA_REGI_SET);
      ThenType(IDC_CHARA_REGI_CAST_NAME, "x");
      Then([leave] { leave(TopDialog()); });
      Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_CharaRegiDlg); });
      Then([leave] { leave(TopDialog()); });
      CharaRegiDlgRun(Program.hMainWnd);
    }
  }
  EXPECT_STREQ(SnryMain.castNames[0].text, "郵便屋");
  EXPECT_EQ(SnryMain.registered[1], 0);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CharaRegiTest, EnterConfirmsTheNameThatWasTyped) {
  ThenChoose(IDC_CHARA_REGI_LIST, 0);
  ThenPress(IDC_CHARA_REGI_SET);
  ThenType(IDC_CHARA_REGI_CAST_NAME, "郵便屋");
  Then([] { PressEnter(TopDialog()); });
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_STREQ(SnryMain.castNames[0].text, "郵便屋");
}

TEST_F(CharaRegiTest, ARegistrationIsTakenBackAndTheCountIsNot) {
  Register(1, "郵便屋");
  Register(2, "博士");
  ThenChoose(IDC_CHARA_REGI_LIST, 1);
  ThenPress(IDC_CHARA_REGI_DELETE);
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_DelCharRegiDlg);
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::DelCharRegiDlg);
    EXPECT_EQ(ControlText(dialog, IDC_CHARA_REGI_NAME), "ホーリオ");
    EXPECT_EQ(ControlText(dialog, IDC_CHARA_REGI_CAST_NAME), "博士");
    Press(dialog, 1);
  });
  Then([] { EXPECT_EQ(RowsIn(IDC_CHARA_REGI_LIST)[1], "2. ホーリオ"); });
  ThenPress(2);
  Scenario.paraSlot = 0;
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.registered[1], 0);
  EXPECT_STREQ(SnryMain.castNames[1].text, "博士");
  EXPECT_EQ(SnryMain.registeredCount, 2);
}

TEST_F(CharaRegiTest, ACancelKeepsTheRegistration) {
  Register(1, "郵便屋");
  ThenChoose(IDC_CHARA_REGI_LIST, 0);
  ThenPress(IDC_CHARA_REGI_DELETE);
  ThenPress(2);
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.registered[0], 1);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CharaRegiTest, WithoutARowAndOnAnUnregisteredRowNothingIsDeletedAndNothingIsSaid) {
  ThenPress(IDC_CHARA_REGI_SET);
  ThenPress(IDC_CHARA_REGI_DELETE);
  ThenChoose(IDC_CHARA_REGI_LIST, 0);
  ThenPress(IDC_CHARA_REGI_DELETE);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_CharaRegiDlg); });
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CharaRegiTest, TheButtonsForAllAndForCharactersFromElsewhereDoNothing) {
  Register(1, "郵便屋");
  ThenChoose(IDC_CHARA_REGI_LIST, 0);
  for (const int id : {IDC_CHARA_REGI_SET_ALL, IDC_CHARA_REGI_DELETE_ALL, IDC_CHARA_REGI_LOAD}) ThenPress(id);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_CharaRegiDlg); });
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.registeredCount, 1);
  EXPECT_EQ(SnryMain.registered[1], 0);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CharaRegiTest, TheRegistrationShowsThePictureOfTheCharacterAndTheMaskUnderIt) {
  Picture(1, 120, 90);
  ThenChoose(IDC_CHARA_REGI_LIST, 0);
  ThenPress(IDC_CHARA_REGI_SET);
  Then([] {
    DrawingClear();
    SendPaint(TopDialog());
    std::vector<RasterOp> ops;
    for (const DrawCall& call : Drawings(TopDialog())) {
      if (call.kind == DrawCall::Kind::Dib) ops.push_back(call.op);
    }
    EXPECT_EQ(ops, (std::vector<RasterOp>{RasterOp::And, RasterOp::Or}));
  });
  ThenPress(2);
  ThenPress(2);
  CharaRegiDlgRun(Program.hMainWnd);
}

}  // namespace
