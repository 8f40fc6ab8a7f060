// SnryMainDelete: a scenario is taken out of the list.
#include "tests/scenario/storage/scenario_dialogs_fixture.h"

namespace {

using DeleteSnryMainTest = ScenarioDialogsTest;

TEST_F(DeleteSnryMainTest, ARowOfTheListIsDeletedWhenTheUserAgrees) {
  PutList({{"C:\\x", "x"}, {"C:\\y", "y"}, {"C:\\z", "z"}});
  ThenPress(IDC_SNRY_LIST_DELETE);  // no row, no word
  ThenChoose(IDC_SNRY_LIST, 1);
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Cancel);
  ThenPress(IDC_SNRY_LIST_DELETE);
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Ok);
  ThenPress(IDC_SNRY_LIST_DELETE);
  Then([] { EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_LIST), (ListTexts{"[x]-C:\\x", "[z]-C:\\z"})); });
  ThenPress(2);
  CommandSend(Command::ScenarioDelete);
  EXPECT_EQ(FileBytes(kListFile), ListImage({{"C:\\x", "x"}, {"C:\\z", "z"}}));
}

TEST_F(DeleteSnryMainTest, AListThatCannotBeRewrittenIsTold) {
  PutList({{"C:\\x", "x"}, {"C:\\y", "y"}, {"C:\\z", "z"}});
  ThenChoose(IDC_SNRY_LIST, 0);
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Ok);
  ExpectBox("シナリオリストファイルをセーブできません", "リストファイルのセーブ失敗");
  ThenPress(IDC_SNRY_LIST_DELETE);
  Then([] {
    FaultClear();
    EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_LIST), (ListTexts{"[y]-C:\\y", "[z]-C:\\z"}));
  });
  ThenChoose(IDC_SNRY_LIST, 0);
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Ok);
  ThenPress(IDC_SNRY_LIST_DELETE);
  ThenClose();
  CommandSend(Command::ScenarioDelete);
  EXPECT_EQ(FileBytes(kListFile), ListImage({{"C:\\z", "z"}})) << "the second deletion takes its own row";
}

}  // namespace
