// The open record: DspListOpnFileRecDlg shows it, FileOpnDialog clears it, and
// SetGrpOpnFileRecDlg puts it into a group.
#include "filetools/open/open_groups.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

TEST_F(OpenDialogTest, TheRecordIsShownInItsColumns) {
  Select("表紙.txt", "C:\\書類\\");
  OpnRecordAdd();
  In(IDC_OPN_SHOW_RECORD, [] {
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspListOpnFileRecDlg);
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::DspListOpnFileRecDlg);
      EXPECT_EQ(RowsOf(IDC_OPN_RECORD),
                Rows{"表紙.txt" + std::string(28, ' ') + "関連プログラム" + std::string(56, ' ')});
    });
    ThenPress(kOk);
  });
}

TEST_F(OpenDialogTest, TheRecordIsClearedWhenTheUserAgrees) {
  Select("a", "C:\\");
  OpnRecordAdd();
  const char* const text = "オープン記録を全てクリアします。よろしいですか ?";
  ExpectBox(text, "オープン記録クリアの確認", BoxAnswer::Cancel);
  In(IDC_OPN_CLEAR_RECORD, [] {});
  EXPECT_EQ(OpnRecord.recCount, 1);
  ExpectBox(text, "オープン記録クリアの確認", BoxAnswer::Ok);
  In(IDC_OPN_CLEAR_RECORD, [] {});
  EXPECT_EQ(OpnRecord.recCount, 0);
  for (const Box& box : BoxesShown()) {
    EXPECT_EQ(box.buttons, BoxButtons::OkCancel);
    EXPECT_EQ(box.icon, BoxIcon::Question);
  }
}

class RecordToGroupTest : public OpenDialogTest {
 protected:
  static void Record(int count) {
    for (int i = 0; i < count; ++i) {
      Select("r" + std::to_string(i), "C:\\data\\");
      OpnRecordAdd();
    }
  }
};

TEST_F(RecordToGroupTest, TheRecordGoesIntoTheChosenGroupWithItsComment) {
  AddToGroup(1, "a");
  SaveGroups();
  Record(2);
  Select("kept", "C:\\");
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetGrpOpnFileRecDlg);
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SetGrpOpnFileRecDlg);
      EXPECT_EQ(RowsOf(IDC_OPN_RECORD).size(), 2U);
      EXPECT_EQ(RowsOf(IDC_OPN_RECORD)[0].substr(0, 3), "r1 ");
      ChooseRow(TopDialog(), IDC_OPN_GROUP, 1);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"a [C:\\data\\]"});
      Type(TopDialog(), IDC_OPN_COMMENT, "記録");
    });
    ExpectBox("オープン記録をグループ2に追加登録します", "グループへの登録", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenExpect([] { EXPECT_STREQ(OpnGroups.OpnGroupTable[1].comment, ""); });
    ExpectBox("オープン記録をグループ2に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), (Rows{"a [C:\\data\\]", "r1 [C:\\data\\]", "r0 [C:\\data\\]"}));
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[1], "*  2 (記録)");
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 1);
    });
    ThenPress(kCancel);
  });
  EXPECT_STREQ(OpnSelection.fileName, "kept");
  std::memset(OpnGroups.OpnGroupTable, 0, sizeof OpnGroups.OpnGroupTable);
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(1).size(), 3U);
  EXPECT_STREQ(OpnGroups.OpnGroupTable[1].comment, "記録");
}

TEST_F(RecordToGroupTest, AGroupOf30AndARecordOfMoreSavesTheFirstRowsThatFitWhenTheUserAgrees) {
  Record(31);
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ExpectBox("オープン記録をグループ1に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ExpectBox("1グループのファイル数=最大30個をオーバーしました。登録しますか?", "ファイル登録数オーバー",
              BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenPress(kCancel);
  });
  std::memset(OpnGroups.OpnGroupTable, 0, sizeof OpnGroups.OpnGroupTable);
  ASSERT_EQ(OpnGroupLoad(), 0);
  const Rows files = GroupFiles(0);
  ASSERT_EQ(files.size(), 30U);
  EXPECT_EQ(files[0], "r30 [C:\\data\\]");
  EXPECT_EQ(files[29], "r1 [C:\\data\\]");
}

TEST_F(RecordToGroupTest, ARefusedOverflowStaysInMemoryAndIsNotSaved) {
  Record(31);
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ExpectBox("オープン記録をグループ1に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ExpectBox("1グループのファイル数=最大30個をオーバーしました。登録しますか?", "ファイル登録数オーバー",
              BoxAnswer::Cancel);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenPress(kCancel);
  });
  EXPECT_EQ(OpnGroups.OpnGroupTable[0].fileCount, 30);
  EXPECT_FALSE(FileThere(GroupPath()));
}

TEST_F(RecordToGroupTest, ThirtyRowsFitWithoutAQuestion) {
  Record(30);
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ExpectBox("オープン記録をグループ1に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenPress(kCancel);
  });
  EXPECT_TRUE(FileThere(GroupPath()));
}

}  // namespace
