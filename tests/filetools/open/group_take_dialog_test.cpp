// TakeOpnGrpSetDlg: a group is looked for, called and opened.
#include "character/walk.h"
#include "filetools/open/open_groups.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

TEST_F(OpenDialogTest, ACalledGroupOpensOnTheNextTickWithNobodyToWalk) {
  AddToGroup(2, "a");
  AddToGroup(2, "b");
  OpnGroupSetComment(2, "朝");
  SaveGroups();
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenExpect([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_TakeOpnGrpSetDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::TakeOpnGrpSetDlg);
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{});
    ChooseRow(TopDialog(), IDC_OPN_GROUP, 2);
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), (Rows{"a [C:\\data\\]", "b [C:\\data\\]"}));
    EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT), "朝");
  });
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(GroupRun.OpnPendingGroup, &OpnGroups.OpnGroupTable[2]);
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_EQ(Started(), Rows{});
  Ticks(1);
  EXPECT_EQ(Started(), Rows{" \"C:\\data\\a\""});
  Ticks(51);
  EXPECT_EQ(Started(), (Rows{" \"C:\\data\\a\"", " \"C:\\data\\b\""}));
}

TEST_F(OpenDialogTest, AGroupWaitsForTheWalkAndThenOpens) {
  PutWalker();
  AddToGroup(0, "a");
  SaveGroups();
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Walk.OpeningState, 2);
  WalkThrough();
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_EQ(Started(), Rows{});
  Ticks(1);
  EXPECT_EQ(Started(), Rows{" \"C:\\data\\a\""});
}

TEST_F(OpenDialogTest, AGroupWithNoFilesCalledRunsTheAnimationOpensNothingAndEnds) {
  PutWalker();
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenPress(kOk);
  OpenDialog();
  EXPECT_TRUE(Walk.WalkActive);
  EXPECT_EQ(Walk.OpeningState, 2);
  EXPECT_NE(GroupRun.OpnPendingGroup, nullptr);
  WalkThrough();
  Ticks(1);
  EXPECT_EQ(GroupRun.OpnPendingGroup, nullptr);
  EXPECT_EQ(Started(), Rows{});
}

TEST_F(OpenDialogTest, ACancelledCallLeavesFileOpnDialogOpen) {
  In(IDC_OPN_TAKE_GROUP, [] { ThenPress(kCancel); });
  EXPECT_EQ(GroupRun.OpnPendingGroup, nullptr);
}

TEST_F(OpenDialogTest, ASearchByNameLeadsToTheChosenGroup) {
  AddToGroup(3, "Report1.txt");
  AddToGroup(8, "report2.txt");
  OpnGroupSetComment(8, "二");
  SaveGroups();
  In(IDC_OPN_TAKE_GROUP, [] {
    ThenType(IDC_OPN_NAME_WORDS, "report");
    ThenPress(IDC_OPN_SEARCH_NAMES);
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchOpnFileGrpSelDlg);
      EXPECT_EQ(WindowText(TopDialog()), "検索したグループの選択");
      EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SerchOpnFileGrpSelDlg);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP), (Rows{"*  4 ()", "*  9 (二)"}));
      ChooseRow(TopDialog(), IDC_OPN_GROUP, 1);
      Press(TopDialog(), kOk);
    });
    ThenExpect([] {
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 8);
      EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT), "二");
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"report2.txt [C:\\data\\]"});
    });
    // A cancelled choice leaves the group that was there.
    ThenPress(IDC_OPN_SEARCH_NAMES);
    ThenPress(kCancel);
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 8); });
    ThenPress(kCancel);
  });
}

TEST_F(OpenDialogTest, ASearchByCommentLeadsToTheChosenGroup) {
  AddToGroup(3, "a");
  OpnGroupSetComment(3, "朝の仕事");
  SaveGroups();
  In(IDC_OPN_TAKE_GROUP, [] {
    ThenType(IDC_OPN_COMMENT_WORDS, "仕事");
    ThenPress(IDC_OPN_SEARCH_COMMENTS);
    ThenPress(kOk);
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 3); });
    ThenPress(kCancel);
  });
}

TEST_F(OpenDialogTest, EnterInASearchFieldSearchesAndElsewhereCallsTheGroup) {
  AddToGroup(3, "report.txt");
  OpnGroupSetComment(3, "work");
  AddToGroup(8, "b.txt");
  OpnGroupSetComment(8, "other");
  SaveGroups();
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenType(IDC_OPN_NAME_WORDS, "report");
  Then([] { PressEnter(TopDialog()); });
  ThenExpect([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchOpnFileGrpSelDlg);
    EXPECT_EQ(GroupRun.OpnPendingGroup, nullptr);
    PressEnter(TopDialog());
  });
  ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 3); });
  ThenType(IDC_OPN_COMMENT_WORDS, "other");
  Then([] { PressEnter(TopDialog()); });
  Then([] { PressEnter(TopDialog()); });
  ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 8); });
  ThenChoose(IDC_OPN_GROUP, 3);
  Then([] { PressEnter(TopDialog()); });
  OpenDialog();
  EXPECT_EQ(GroupRun.OpnPendingGroup, &OpnGroups.OpnGroupTable[3]);
}

TEST_F(OpenDialogTest, TheSearchFieldsTake5119Bytes) {
  In(IDC_OPN_TAKE_GROUP, [] {
    ThenType(IDC_OPN_COMMENT_WORDS, std::string(5119, 'x'));
    ThenExpect([] { EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT_WORDS).size(), 5119U); });
    ThenPress(kCancel);
  });
}

TEST_F(OpenDialogTest, ListsOfPathsScrollSidewaysAsFarAsTheirLongestRow) {
  AddHistory(std::string(200, 'n'), "C:\\" + std::string(200, 'f') + "\\", std::string(200, 'p'), "C:\\");
  SaveHistory();
  AddToGroup(0, std::string(200, 'g'));
  SaveGroups();
  Select(std::string(200, 'r'), "C:\\");
  OpnRecordAdd();
  // A letter is 4 pixels wide at the least.
  const auto scrolls = [](int button, int list, int columns) {
    ThenPress(button);
    ThenExpect([list, columns] { EXPECT_GE(ListExtent(TopDialog(), list), columns * 4) << list; });
    Then([] { PressEscape(TopDialog()); });
  };
  scrolls(IDC_OPN_SHOW_RECORD, IDC_OPN_RECORD, 200);
  scrolls(IDC_OPN_RECORD_TO_GROUP, IDC_OPN_RECORD, 200);
  scrolls(IDC_OPN_RECORD_TO_GROUP, IDC_OPN_GROUP_FILES, 200);
  scrolls(IDC_OPN_DELETE_HISTORY, IDC_OPN_FILE, 400);
  scrolls(IDC_OPN_TAKE_GROUP, IDC_OPN_GROUP_FILES, 200);
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, SearchesThatFindNothingSaySo) {
  In(IDC_OPN_TAKE_GROUP, [] {
    ThenType(IDC_OPN_NAME_WORDS, "x");
    ExpectBox("一致するグループは見つかりませんでした", "ファイル名検索失敗");
    ThenPress(IDC_OPN_SEARCH_NAMES);
    ExpectBox("一致するグループは見つかりませんでした", "コメント検索失敗");
    ThenPress(IDC_OPN_SEARCH_COMMENTS);
    ThenPress(kCancel);
  });
}

}  // namespace
