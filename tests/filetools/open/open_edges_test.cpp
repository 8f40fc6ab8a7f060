// Full groups and a group file that is not there, met through the dialogs.
#include "filetools/open/open_groups.h"
#include "resources/filetools_ids.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

class OpenEdgesTest : public OpenFixture {
 protected:
  static void Record(int count) {
    for (int i = 0; i < count; ++i) {
      Select("r" + std::to_string(i), "C:\\data\\");
      OpnRecordAdd();
    }
  }
  static Rows FillGroup() {
    for (int i = 0; i < 30; ++i) AddToGroup(0, "f" + std::to_string(i));
    return GroupFiles(0);
  }
  // Puts one more file into a full group by SetGrpOpnFileRecDlg.
  static void RegisterOneMore(BoxAnswer overflow) {
    ThenPress(IDC_OPN_RECORD_TO_GROUP);
    ThenType(IDC_OPN_COMMENT, "満員");
    ExpectBox("オープン記録をグループ1に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ExpectBox("1グループのファイル数=最大30個をオーバーしました。登録しますか?", "ファイル登録数オーバー",
              overflow);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetGrpOpnFileRecDlg);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES).size(), 30U);
    });
    ThenPress(kCancel);
    ThenPress(kCancel);
    OpenDialog();
  }
};

TEST_F(OpenEdgesTest, OneMoreFileForAFullGroupIsRefusedAndTheGroupSavedWhenTheUserAgrees) {
  const Rows full = FillGroup();
  SaveGroups();
  Record(1);
  RegisterOneMore(BoxAnswer::Ok);
  EXPECT_EQ(GroupFiles(0), full);
  std::memset(OpnGroups.OpnGroupTable, 0, sizeof OpnGroups.OpnGroupTable);
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(0), full);
  EXPECT_STREQ(OpnGroups.OpnGroupTable[0].comment, "満員");
}

TEST_F(OpenEdgesTest, OneMoreFileForAFullGroupIsNotSavedWhenTheUserRefuses) {
  const Rows full = FillGroup();
  SaveGroups();
  const std::string before = FileBytes(GroupPath());
  Record(1);
  RegisterOneMore(BoxAnswer::Cancel);
  EXPECT_EQ(GroupFiles(0), full);
  EXPECT_STREQ(OpnGroups.OpnGroupTable[0].comment, "満員");
  EXPECT_TRUE(FileBytes(GroupPath()) == before);
}

TEST_F(OpenEdgesTest, WithoutAGroupFileTheCommandLeavesTheTableSilentlyAsItWas) {
  const Rows full = FillGroup();
  AddToGroup(199, "last");
  OpnGroupSetComment(0, "残る");
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenExpect([full] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_TakeOpnGrpSetDlg);
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "*  1 (残る)");
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[1], "   2");
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[199], "* 200 ()");
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), full);
  });
  ThenPress(kCancel);
  ThenPress(kCancel);
  OpenDialog();
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_EQ(GroupFiles(0), full);
  EXPECT_EQ(GroupFiles(199), Rows{"last [C:\\data\\]"});
  EXPECT_FALSE(FileThere(GroupPath()));
}

}  // namespace
