// Who joins a cast and leaves it, how many copies there are, where each comes from.
#include <cstring>

#include "platform/window.h"
#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_copies.h"
#include "scenario/cast/cast_list.h"
#include "scenario/cast/cast_words.h"
#include "scenario/cast/snry_cast.h"
#include "tests/scenario/scenario_world.h"

namespace {

class CastDialogsTest : public ScenarioWorldTest {
 protected:
  void SetUp() override {
    ScenarioWorldTest::SetUp();
    Register(1, "郵便屋");
    Register(2, "博士");
    Register(4, "月の使い");
    Parameter(0, "鍵");
  }
  using Ids = std::vector<int>;
  // Opens a dialog about a row of the cast list.
  static void Run(void (*dialog)(WindowHandle), int row) {
    Scenario.castRow = row;
    dialog(Program.hMainWnd);
  }
};

// --- FileCharaAddDlg

TEST_F(CastDialogsTest, RegisteredCharactersThatTheSceneDoesNotHaveAreOffered) {
  Cast({2});
  Picture(4, 20, 10);
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_FileCharaAddDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::FileCharaAddDlg);
    EXPECT_EQ(RowsIn(IDC_CAST_LIST), (Rows{"1. ミル [登場名: 郵便屋]", "2. ツキハ [登場名: 月の使い]"}));
    EXPECT_EQ(TextIn(IDC_CAST_NAME), "");
    DrawingClear();
    ChooseRow(dialog, IDC_CAST_LIST, 1);
    EXPECT_EQ(TextIn(IDC_CAST_NAME), "ツキハ");
    EXPECT_EQ(TextIn(IDC_CAST_STAGE_NAME), "月の使い");
    int pictures = 0;
    for (const DrawCall& call : Drawings(dialog)) pictures += call.kind == DrawCall::Kind::Dib ? 1 : 0;
    EXPECT_EQ(pictures, 2);  // mask and picture
    Press(dialog, 1);
  });
  FileCharaAddDlgRun(Program.hMainWnd);
  EXPECT_EQ(CastIds(), (Ids{2, 4}));
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(CastDialogsTest, WithTheCount0NobodyIsOffered) {
  SnryMain.registeredCount = 0;
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows()); });
  ThenPress(1);
  FileCharaAddDlgRun(Program.hMainWnd);
  EXPECT_EQ(CastIds(), Ids());
}

TEST_F(CastDialogsTest, NobodyJoinsWithoutARowOrByACancel) {
  ThenPress(1);
  FileCharaAddDlgRun(Program.hMainWnd);
  for (void (*leave)(WindowHandle) : {PressEscape, PressClose}) {
    ThenChoose(IDC_CAST_LIST, 0);
    Then([leave] { leave(TopDialog()); });
    FileCharaAddDlgRun(Program.hMainWnd);
  }
  EXPECT_EQ(CastIds(), Ids());
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastDialogsTest, At256EntriesNobodyIsAddedAndNothingIsSaid) {
  Cast(Ids(256, 2));
  ThenChoose(IDC_CAST_LIST, 0);
  ThenPress(1);
  FileCharaAddDlgRun(Program.hMainWnd);
  EXPECT_EQ(CastIds(), Ids(256, 2));
}

// --- FileCharaDelDlg

TEST_F(CastDialogsTest, AMemberIsShownAndRemoved) {
  Cast({1, 0, 2, 4});  // the hole is no row
  Picture(2, 20, 10);
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_FileCharaDelDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::FileCharaDelDlg);
    EXPECT_EQ(TextIn(IDC_CAST_NAME), "ホーリオ");
    EXPECT_EQ(TextIn(IDC_CAST_STAGE_NAME), "博士");
    DrawingClear();
    SendPaint(dialog);
    EXPECT_FALSE(Drawings(dialog).empty());
    Press(dialog, 1);
  });
  Run(FileCharaDelDlgRun, 1);
  EXPECT_EQ(CastIds(), (Ids{1, 0, 0, 4}));
}

TEST_F(CastDialogsTest, ACancelKeepsTheMember) {
  Cast({1, 2});
  ThenPress(2);
  Run(FileCharaDelDlgRun, 1);
  EXPECT_EQ(CastIds(), (Ids{1, 2}));
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastDialogsTest, ACopyIsNeitherRemovedNorCopied) {
  Cast({1});
  CastCopiesSet(1, 1);
  Scenario.changed = false;
  ExpectBox("コピーキャラクタはコピー数の変更で調整できます", "キャラクタ削除の無効");
  Run(FileCharaDelDlgRun, 1);
  ExpectBox("コピーキャラクタはコピー出来ません", "キャラクタコピーの無効");
  Run(FileCharaCopyDlgRun, 1);
  EXPECT_EQ(BoxesLeft(), 0);
  EXPECT_EQ(CastIds(), (Ids{1, 513}));
  EXPECT_FALSE(Scenario.changed);
}

// --- FileCharaCopyDlg

TEST_F(CastDialogsTest, CopiesAreMadeAfterAQuestion) {
  Cast({1, 2});
  CastCopiesSet(2, 20);
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_FileCharaCopyDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::FileCharaCopyDlg);
    EXPECT_EQ(TextIn(IDC_CAST_NAME), "ミル");
    EXPECT_EQ(TextIn(IDC_CAST_COPIES), "0");
    EXPECT_EQ(TextIn(IDC_CAST_COPIES_MOST), "180");
    Type(dialog, IDC_CAST_COPIES, "3");
  });
  ExpectBox("設定数分のコピーを作成します", "コピーの作成");
  ThenPress(1);
  Run(FileCharaCopyDlgRun, 0);
  EXPECT_EQ(CastCopies(1), 3);
  EXPECT_EQ(CastIds().size(), 25U);
}

TEST_F(CastDialogsTest, ANumberAboveTheMaximumIsRefusedAndTheDialogStays) {
  Cast({1});
  ThenType(IDC_CAST_COPIES, "201");
  ExpectBox("コピー最大数を超えています。", "コピー数設定エラー");
  ThenPress(1);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileCharaCopyDlg); });
  ThenPress(2);
  Run(FileCharaCopyDlgRun, 0);
  EXPECT_EQ(CastCopies(1), 0);
}

TEST_F(CastDialogsTest, TheCurrentNumberOfCopiesChangesNothingAndAsksNothing) {
  Cast({1});
  CastCopiesSet(1, 4);
  Scenario.changed = false;
  ThenType(IDC_CAST_COPIES, " 4");
  ThenPress(1);
  Run(FileCharaCopyDlgRun, 0);
  EXPECT_EQ(CastCopies(1), 4);
  EXPECT_FALSE(Scenario.changed);
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(CastDialogsTest, ACancelledQuestionLeavesTheCopiesAndTheDialog) {
  Cast({1});
  CastCopiesSet(1, 4);
  ThenType(IDC_CAST_COPIES, "2");
  ExpectBox("設定数分のコピーを作成します", "コピーの作成", BoxAnswer::Cancel);
  ThenPress(1);
  Then([] { EXPECT_EQ(TextIn(IDC_CAST_COPIES), "2"); });
  ThenPress(2);
  Run(FileCharaCopyDlgRun, 0);
  EXPECT_EQ(CastCopies(1), 4);
}

TEST_F(CastDialogsTest, ANegativeNumberOfCopiesIsNone) {
  Cast({1});
  CastCopiesSet(1, 4);
  ThenType(IDC_CAST_COPIES, "-5");
  ExpectBox("設定数分のコピーを作成します", "コピーの作成");
  ThenPress(1);
  Run(FileCharaCopyDlgRun, 0);
  EXPECT_EQ(CastCopies(1), 0);
  EXPECT_EQ(CastIds(), Ids{1});
}

// --- SnryCharEntryDlg

TEST_F(CastDialogsTest, TheListsOfEntryAndExitHaveTheirWords) {
  Cast({1});
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryCharEntryDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::SnryCharEntryDlg);
    const Rows entries = RowsIn(IDC_CAST_ENTRY);
    ASSERT_EQ(entries.size(), 16U);
    EXPECT_EQ(entries[0], "中央からカットイン");
    EXPECT_EQ(entries[4], "ドアから登場");
    EXPECT_EQ(entries[15], "同期キャラクタ位置の-X,-Y");
    const Rows exits = RowsIn(IDC_CAST_EXIT);
    ASSERT_EQ(exits.size(), 12U);
    EXPECT_EQ(exits[0], "中央からカットアウト");
    EXPECT_EQ(exits[11], "現在位置で消える");
  });
  ThenPress(2);
  Run(SnryCharEntryDlgRun, 0);
}

TEST_F(CastDialogsTest, EntryAndExitAreStoredAndMarkNothingAsChanged) {
  Cast({1, 2, 0, 4});
  CastCopiesSet(1, 1);
  Scenario.changed = false;
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(RowsIn(IDC_CAST_SYNC), (Rows{"1. ミル [登場名: 郵便屋]", "2. ミルのコピー1 [登場名: 郵便屋]",
                                           "3. ホーリオ [登場名: 博士]", "4. ツキハ [登場名: 月の使い]"}));
    EXPECT_EQ(ListSelected(dialog, IDC_CAST_SYNC), -1);
    ChooseRow(dialog, IDC_CAST_START_PARA, 1);
    Type(dialog, IDC_CAST_START_VALUE, "12");
    ChooseRow(dialog, IDC_CAST_ENTRY, 13);
    Type(dialog, IDC_CAST_X, "1234");
    Type(dialog, IDC_CAST_Y, "-12");
    Press(dialog, IDC_CAST_SCROLL_SYNC);
    Press(dialog, IDC_CAST_SCORE);
    ChooseRow(dialog, IDC_CAST_SYNC, 1);
    ChooseRow(dialog, IDC_CAST_END_PARA, 1);
    Type(dialog, IDC_CAST_END_VALUE, "999");
    ChooseRow(dialog, IDC_CAST_EXIT, 11);
    Press(dialog, 1);
  });
  Run(SnryCharEntryDlgRun, 2);
  const SnryCastRec& member = SnryCastAt(1);
  EXPECT_EQ(member.entry.parameter, 1);
  EXPECT_EQ(member.entry.value, 12);
  EXPECT_EQ(member.entryPosition, 13);
  EXPECT_EQ(member.standX, 1234);
  EXPECT_EQ(member.standY, 65524);  // 65536 - 12
  EXPECT_EQ(member.scrollSync, 1);
  EXPECT_EQ(member.score, 1);
  EXPECT_EQ(member.syncCharacter, 513);
  EXPECT_EQ(member.exit.parameter, 1);
  EXPECT_EQ(member.exit.value, 999);
  EXPECT_EQ(member.exitPosition, 11);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastDialogsTest, AnEntryIsShownAgainAndACancelKeepsIt) {
  Cast({1, 2});
  SnryCastRec& member = SnryCastAt(0);
  member.entry = {1, 7};
  member.entryPosition = 5;
  member.exitPosition = 3;
  member.standX = 40;
  member.score = 1;
  member.syncCharacter = 2;
  const SnryCastRec before = member;
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(ListSelected(dialog, IDC_CAST_START_PARA), 1);
    EXPECT_EQ(TextIn(IDC_CAST_START_VALUE), "7");
    EXPECT_EQ(ListSelected(dialog, IDC_CAST_ENTRY), 5);
    EXPECT_EQ(ListSelected(dialog, IDC_CAST_EXIT), 3);
    EXPECT_EQ(TextIn(IDC_CAST_X), "40");
    EXPECT_TRUE(ControlIsChecked(dialog, IDC_CAST_SCORE));
    EXPECT_FALSE(ControlIsChecked(dialog, IDC_CAST_SCROLL_SYNC));
    EXPECT_EQ(ListSelected(dialog, IDC_CAST_SYNC), 1);
    ChooseRow(dialog, IDC_CAST_ENTRY, 0);
    Press(dialog, IDC_CAST_SCORE);
    PressEscape(dialog);
  });
  Run(SnryCharEntryDlgRun, 0);
  EXPECT_EQ(std::memcmp(&before, &member, sizeof before), 0);
}

TEST_F(CastDialogsTest, ASynchronisedCharacterThatHasLeftStaysUntilAnotherIsChosen) {
  Cast({1, 2});
  SnryCastAt(0).syncCharacter = 4;
  SnryCastAt(0).entryPosition = 900;  // no row either
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_CAST_SYNC), -1); });
  ThenPress(1);
  Run(SnryCharEntryDlgRun, 0);
  EXPECT_EQ(SnryCastAt(0).syncCharacter, 4);
  EXPECT_EQ(SnryCastAt(0).entryPosition, 900);
}

// --- SnryCharBariaDlg

TEST_F(CastDialogsTest, DepthAndCollisionAreStored) {
  Cast({1, 2});
  SnryCastAt(1).depth = 2;
  SnryCastAt(1).collision = 1;
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SnryCharBariaDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::SnryCharBariaDlg);
    EXPECT_EQ(RowsIn(IDC_CAST_DEPTH),
              (Rows{"レベル0 = 立ち位置に比例", "レベル1 = (後ろ)", "レベル2 = (中)", "レベル3 = (手前)"}));
    const Rows collisions = RowsIn(IDC_CAST_COLLISION);
    ASSERT_EQ(collisions.size(), 5U);
    EXPECT_EQ(collisions[4], "レベルが同じキャラクタ衝突で相手移動に同期");
    EXPECT_EQ(ListSelected(dialog, IDC_CAST_DEPTH), 2);
    EXPECT_EQ(ListSelected(dialog, IDC_CAST_COLLISION), 1);
    ChooseRow(dialog, IDC_CAST_DEPTH, 3);
    ChooseRow(dialog, IDC_CAST_COLLISION, 4);
    Press(dialog, 1);
  });
  Run(SnryCharBariaDlgRun, 1);
  EXPECT_EQ(SnryCastAt(1).depth, 3);
  EXPECT_EQ(SnryCastAt(1).collision, 4);
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(CastDialogsTest, ACancelKeepsDepthAndCollision) {
  Cast({1});
  ThenChoose(IDC_CAST_DEPTH, 3);
  ThenPress(2);
  Run(SnryCharBariaDlgRun, 0);
  EXPECT_EQ(SnryCastAt(0).depth, 0);
  EXPECT_FALSE(Scenario.changed);
}

TEST(CastWords, HaveAsManyRowsAsThereAreSettings) {
  EXPECT_EQ(std::size(kCastEntries), 16U);
  EXPECT_EQ(std::size(kCastExits), 12U);
  EXPECT_EQ(std::size(kCastLineEnds), 5U);
  EXPECT_EQ(std::size(kCastDepths), 4U);
  EXPECT_EQ(std::size(kCastCollisions), 5U);
}

}  // namespace
