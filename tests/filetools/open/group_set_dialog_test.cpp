// FileOpnGrpSetDlg, which files belong to which group.
#include "filetools/open/open_groups.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

class GroupSetTest : public OpenDialogTest {
 protected:
  // Leaves FileOpnDialog for the groups and lets `steps` script what follows.
  static void Groups(const std::function<void()>& steps) {
    ThenPress(IDC_OPN_GROUP_SET);
    steps();
    OpenDialog();
  }
};

TEST_F(GroupSetTest, TheGroupsOpenWhenFileOpnDialogHasClosedAndKeepItsChoice) {
  AddHistories(2);
  SaveHistory();
  ThenChoose(IDC_OPN_FILE, 1);
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPick("new.txt");
  ThenPress(IDC_OPN_ADD_PROGRAM);
  ThenPick("edit.exe");
  Groups([] {
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnGrpSetDlg);
      EXPECT_EQ(FindDialog(IDD_FileOpnDialog), nullptr);
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileOpnGrpSetDlg);
      EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
      EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 3U);
      EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 2);
      EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP).size(), 200U);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "   1");
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 0);
      Press(TopDialog(), IDC_OPN_GROUP_ADD);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"new.txt [C:\\mirrell\\]"});
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "*  1 ()");
    });
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Ok);
    ThenPress(kOk);
  });
  std::memset(OpnGroups.OpnGroupTable, 0, sizeof OpnGroups.OpnGroupTable);
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(0), Rows{"new.txt [C:\\mirrell\\] edit.exe"});
  EXPECT_STREQ(OpnGroups.OpnGroupTable[0].progPath[0], "C:\\mirrell\\");
}

TEST_F(GroupSetTest, AddingAFileThatTheGroupHoldsMovesItToTheEnd) {
  AddHistories(3);
  SaveHistory();
  for (int i = 0; i < 3; ++i) AddToGroup(0, "name" + std::to_string(i) + ".txt");
  SaveGroups();
  Groups([] {
    ThenChoose(IDC_OPN_FILE, 1);
    ThenExpect([] {
      Press(TopDialog(), IDC_OPN_GROUP_ADD);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES),
                (Rows{"name0.txt [C:\\data\\]", "name2.txt [C:\\data\\]", "name1.txt [C:\\data\\]"}));
    });
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Ok);
    ThenPress(kOk);
  });
}

TEST_F(GroupSetTest, AFullGroupIsToldOf) {
  AddHistories(31);
  SaveHistory();
  for (int i = 0; i < 30; ++i) AddToGroup(0, "name" + std::to_string(i) + ".txt");
  SaveGroups();
  Groups([] {
    ThenChoose(IDC_OPN_FILE, 30);
    ExpectBox("グループにはファイルを３０個まで登録できます", "ファイル最大登録数をオーバー");
    ThenPress(IDC_OPN_GROUP_ADD);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES).size(), 30U);
      // One that it holds still moves to the end.
      ChooseRow(TopDialog(), IDC_OPN_FILE, 0);
      Press(TopDialog(), IDC_OPN_GROUP_ADD);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES).size(), 30U);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES)[29], "name0.txt [C:\\data\\]");
    });
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Ok);
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, WithoutAChosenFileNothingIsAdded) {
  Groups([] {
    ThenPress(IDC_OPN_GROUP_ADD);
    ThenPress(kCancel);  // nothing has changed: nobody asks
  });
  EXPECT_EQ(OpnGroups.OpnGroupTable[0].fileCount, 0);
}

TEST_F(GroupSetTest, AFileIsRemovedWhenTheUserAgrees) {
  AddToGroup(0, "a");
  AddToGroup(0, "b");
  SaveGroups();
  Groups([] {
    ThenPress(IDC_OPN_GROUP_REMOVE);  // no row is chosen
    ThenChoose(IDC_OPN_GROUP_FILES, 0);
    ExpectBox("グループから削除しますか?", "グループから削除", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_GROUP_REMOVE);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES).size(), 2U); });
    ThenChoose(IDC_OPN_GROUP_FILES, 0);
    ExpectBox("グループから削除しますか?", "グループから削除", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REMOVE);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"b [C:\\data\\]"}); });
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Cancel);
    ThenPress(kOk);
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Ok);
    ThenPress(kOk);
  });
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(0), Rows{"b [C:\\data\\]"});
}

TEST_F(GroupSetTest, ACancelTakesEverythingBack) {
  AddToGroup(0, "a");
  AddToGroup(1, "b");
  OpnGroupSetComment(0, "old");
  SaveGroups();
  const std::string file = FileBytes(GroupPath());
  Groups([] {
    ThenChoose(IDC_OPN_GROUP_FILES, 0);
    ExpectBox("グループから削除しますか?", "グループから削除", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REMOVE);
    ThenType(IDC_OPN_COMMENT, "new");
    ThenChoose(IDC_OPN_GROUP, 1);
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Cancel);
    ThenPress(kCancel);
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Ok);
    Then([] { SendClose(TopDialog()); });
  });
  EXPECT_EQ(GroupFiles(0), Rows{"a [C:\\data\\]"});
  EXPECT_STREQ(OpnGroups.OpnGroupTable[0].comment, "old");
  EXPECT_TRUE(FileBytes(GroupPath()) == file);
}

TEST_F(GroupSetTest, ChangingTheGroupStoresTheCommentThatWasShown) {
  AddToGroup(0, "a");
  AddToGroup(1, "b");
  OpnGroupSetComment(1, "second");
  SaveGroups();
  Groups([] {
    ThenType(IDC_OPN_COMMENT, "朝");
    ThenChoose(IDC_OPN_GROUP, 1);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "*  1 (朝)");
      EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT), "second");
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"b [C:\\data\\]"});
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 1);
    });
    ThenType(IDC_OPN_COMMENT, "夜");
    ThenPress(kOk);  // comments alone make nobody ask
  });
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_STREQ(OpnGroups.OpnGroupTable[0].comment, "朝");
  EXPECT_STREQ(OpnGroups.OpnGroupTable[1].comment, "夜");
}

TEST_F(GroupSetTest, ACommentTakes255Bytes) {
  Groups([] {
    ThenType(IDC_OPN_COMMENT, std::string(255, 'c'));
    ThenExpect([] { Type(TopDialog(), IDC_OPN_COMMENT, (std::string(254, 'a') + "表").c_str()); });
    ThenPress(kOk);
  });
  EXPECT_EQ(std::string(OpnGroups.OpnGroupTable[0].comment), std::string(254, 'a') + "\x95");
}

TEST_F(GroupSetTest, TheProgramFollowsTheChosenFile) {
  AddHistory("a", "C:\\");
  AddHistory("b", "C:\\", "edit.exe", "C:\\");
  SaveHistory();
  Groups([] {
    ThenChoose(IDC_OPN_FILE, 1);
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1); });
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, TheDetailsListTheHistory) {
  AddHistory("表紙.txt", "C:\\書類\\");
  AddHistory("b.txt", "C:\\data\\", "edit.exe", "C:\\道具\\");
  SaveHistory();
  Groups([] {
    ThenPress(IDC_OPN_DETAILS);
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspListOpnFileHisDlg);
      EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::DspListOpnFileHisDlg);
      EXPECT_EQ(RowsOf(IDC_OPN_LINES),
                (Rows{"--項目 No. 1--", "   ファイル名: 表紙.txt", "   ファイルパス: C:\\書類\\",
                      "--項目 No. 2--", "   ファイル名: b.txt", "   ファイルパス: C:\\data\\",
                      "   プログラム名: edit.exe", "   プログラムパス: C:\\道具\\"}));
    });
    ThenPress(kOk);
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, AGroupFileThatCannotBeWrittenIsSilent) {
  Groups([] {
    ThenType(IDC_OPN_COMMENT, "x");
    Then([] {
      FaultArm(FaultKind::Write, 1);
      Press(TopDialog(), kOk);
      EXPECT_TRUE(FaultWasMet());
      FaultClear();
    });
  });
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(GroupSetTest, AChoiceThatWaitsForItsWalkIsNotLostToAGroup) {
  AddHistories(1);
  SaveHistory();
  Groups([] {
    ThenExpect([] { Select("waiting", "C:\\"); });
    ThenPress(IDC_OPN_GROUP_ADD);
    ThenExpect([] { EXPECT_STREQ(OpnSelection.fileName, "waiting"); });
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Ok);
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, TheGroupsOpenByTheirCommandAloneWithTheirFiles) {
  AddToGroup(0, "a");
  SaveGroups();
  std::memset(OpnGroups.OpnGroupTable, 0, sizeof OpnGroups.OpnGroupTable);
  ThenExpect([] {
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "*  1 ()");
    CommandSend(Command::OpenGroupSet);  // is up already
    CommandSend(Command::FileOpen);      // would read the tables that are in work
    EXPECT_EQ(OpenWindowCount(), 2);
  });
  ThenPress(kOk);
  CommandSend(Command::OpenGroupSet);
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(0), Rows{"a [C:\\data\\]"});
}

}  // namespace
