// DelListOpnFileHisDlg: files are taken out of the history.
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

const char* const kAssociated = "関連づけプログラム";

TEST_F(OpenDialogTest, AHistoryRowIsShownAndRemovedWhenTheUserAgrees) {
  AddHistory("表紙.txt", "C:\\書類\\");
  AddHistory("b.txt", "C:\\data\\", "edit.exe", "C:\\道具\\");
  SaveHistory();
  In(IDC_OPN_DELETE_HISTORY, [] {
    ThenExpect([] {
      const WindowHandle dialog = TopDialog();
      EXPECT_EQ(TemplateOf(dialog), IDD_DelListOpnFileHisDlg);
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::DelListOpnFileHisDlg);
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), (Rows{"表紙.txt [C:\\書類\\]", "b.txt [C:\\data\\]"}));
      Press(dialog, IDC_OPN_REMOVE);  // no row is chosen
      ChooseRow(dialog, IDC_OPN_FILE, 1);
      EXPECT_EQ(ControlText(dialog, IDC_OPN_NAME), "b.txt");
      EXPECT_EQ(ControlText(dialog, IDC_OPN_FOLDER), "C:\\data\\");
      EXPECT_EQ(ControlText(dialog, IDC_OPN_PROGRAM_NAME), "edit.exe");
      ChooseRow(dialog, IDC_OPN_FILE, 0);
      EXPECT_EQ(ControlText(dialog, IDC_OPN_NAME), "表紙.txt");
      EXPECT_EQ(ControlText(dialog, IDC_OPN_PROGRAM_NAME), "関連プログラム");
    });
    ExpectBox("表紙.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_REMOVE);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 2U); });
    ExpectBox("表紙.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{"b.txt [C:\\data\\]"});
      EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_NAME), "");
    });
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{"b.txt [C:\\data\\]"});
      EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 0);
      EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1);
    });
  });
  OpnHisReset();
  ASSERT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(HistoryFiles(), Rows{"b.txt"});
}

TEST_F(OpenDialogTest, TheProgramOfARemovedFileStaysInItsList) {
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\道具\\");
  SaveHistory();
  In(IDC_OPN_DELETE_HISTORY, [] {
    ThenChoose(IDC_OPN_FILE, 0);
    ExpectBox("a.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE);
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{});
      EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM), (Rows{kAssociated, "edit.exe [C:\\道具\\]"}));
    });
  });
}

TEST_F(OpenDialogTest, ABrowsedFileOutlastsTheRemovalOfAnother) {
  AddHistories(2);
  SaveHistory();
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPick("new.txt");
  In(IDC_OPN_DELETE_HISTORY, [] {
    ThenChoose(IDC_OPN_FILE, 0);
    ExpectBox("name0.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE);
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), (Rows{"name1.txt [C:\\data\\]", "new.txt [C:\\mirrell\\]"}));
    });
  });
}

TEST_F(OpenDialogTest, TheWholeHistoryIsRemovedAndTheProgramListBuiltAnew) {
  for (int i = 0; i < 200; ++i) AddHistory("f" + std::to_string(i), "C:\\", "p" + std::to_string(i), "C:\\");
  SaveHistory();
  ClassValueSet("txtfile\\shell\\open\\command", "C:\\note.exe %1");
  const char* const text = "ファイルとプログラム全ての履歴登録を削除します";
  In(IDC_OPN_DELETE_HISTORY, [text] {
    ExpectBox(text, "全履歴削除の確認", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_REMOVE_ALL);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 200U); });
    ExpectBox(text, "全履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE_ALL);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{}); });
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{});
      EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM), (Rows{kAssociated, "note.exe [C:\\]"}));
      EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 0);
    });
  });
  std::string empty(240804, '\0');
  empty[240201] = empty[240202] = 1;
  EXPECT_TRUE(FileBytes(HistoryPath()) == empty);
}

TEST_F(OpenDialogTest, LookingAtTheHistoryWritesNothing) {
  AddHistories(1);
  SaveHistory();
  FaultArm(FaultKind::Create, 1);
  In(IDC_OPN_DELETE_HISTORY, [] { ThenPress(kCancel); });
  EXPECT_FALSE(FaultWasMet());
  FaultClear();
}

}  // namespace
