// FileDivideSetDlg3, a restore, with its keyword and its progress.
#include <cstring>

#include "filetools/stepped_work.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

constexpr char kErrorCaption[] = "分割エラー";
constexpr char kCannotRead[] = "分割データファイルが読み込めません";

TEST_F(DivideDialogTest, ARestoreRunsAPieceATickAndTellsTheEnd) {
  ASSERT_EQ(Divide(Simple(10, 2)), 0);
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, kRestored);
  In([] { FolderSetCurrent(kPieces); });
  InPress(IDC_DIVIDE_PICK);
  InPick("part0.cof");
  In([] { EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_SOURCE), "part0.cof [C:\\mirrell\\pieces\\]"); });
  InPress(IDC_DIVIDE_RUN);
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileUnDivExeDlg);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル復元中");
    EXPECT_EQ(Stepped.progressMode, 4);
    EXPECT_EQ(Stepped.stepCounter, 2);
  });
  InTicks(2);
  ExpectBox("ファイル復元を終了しました", "復元を正常終了");
  InTicks(1);
  In([] { EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg); });
  RunRestore();
  EXPECT_EQ(Target(), Bytes(10));
  // The divide dialog's base name made room for the last piece's path.
  In([] { EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_NAME), "C:\\mirrell\\pieces\\\\part2.div"); });
  RunDivide();
}

class RestoreDialogTest : public DivideDialogTest {
 protected:
  // A division that stands on the disk, chosen for the restore; no keyword yet.
  static void Stand(const std::string& keyword, int count = 2) {
    ASSERT_EQ(Divide(Simple(10, count, keyword)), 0);
    Set(FileDivide.sourcePath, sizeof FileDivide.sourcePath, kCof);
    Set(FileDivide.storeDir, sizeof FileDivide.storeDir, kRestored);
    FileDivide.encryptFlag = 0;
    FileDivide.keywordLength = 0;
    std::memset(FileDivide.keyword, 0, sizeof FileDivide.keyword);
  }
};

TEST_F(RestoreDialogTest, AScrambledFileAsksForItsKeywordWithoutAQuestion) {
  Stand("abcd");
  InPress(IDC_DIVIDE_RUN);
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivKeyWordDlg2);
    EXPECT_EQ(WindowText(TopDialog()), "暗号化キーワード入力");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileDivKeyWordDlg2);
  });
  InKeyword("abcd");
  InTicks(2);
  ExpectBox("ファイル復元を終了しました", "復元を正常終了");
  InTicks(1);
  RunRestore();
  EXPECT_EQ(Target(), Bytes(10));
  In([] {
    EXPECT_TRUE(ControlIsChecked(TopDialog(), IDC_DIVIDE_ENCRYPT)) << "the flag stays as it was read";
  });
  RunDivide();
}

TEST_F(RestoreDialogTest, ACancelWithoutAnyKeywordStopsThere) {
  Stand("abcd");
  InPress(IDC_DIVIDE_RUN);
  InPress(2);
  In([] { EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg); });
  RunRestore();
  EXPECT_FALSE(FileThere("C:\\mirrell\\restored\\source.bin"));
}

TEST_F(RestoreDialogTest, ACancelLeavesAnEarlierKeywordInForce) {
  Stand("abcd");
  SetKeyword("abcd");
  InPress(IDC_DIVIDE_RUN);
  ExpectBox("キーワードは半角4文字以上8文字までで入力します。", "キーワード設定エラー");
  InKeyword("abc");
  InPress(2);
  In([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileUnDivExeDlg); });
  InTicks(2);
  ExpectBox("ファイル復元を終了しました", "復元を正常終了");
  InTicks(1);
  RunRestore();
  EXPECT_EQ(Target(), Bytes(10));
}

TEST_F(RestoreDialogTest, AWrongKeywordNeverShowsAKeywordMessage) {
  Stand("abcd");
  InPress(IDC_DIVIDE_RUN);
  InKeyword("abce");
  ExpectBox(kCannotRead, kErrorCaption);
  InTicks(1);
  In([] { EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg); });
  RunRestore();
}

TEST_F(RestoreDialogTest, AMissingPieceStopsTheRunWithItsBox) {
  Stand("");
  RemoveFile("C:\\mirrell\\pieces\\part2.div");
  InPress(IDC_DIVIDE_RUN);
  InTicks(1);
  ExpectBox(kCannotRead, kErrorCaption);
  InTicks(1);
  In([] {
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
  });
  RunRestore();
  EXPECT_EQ(Target(), Bytes(10).substr(0, 5));
}

TEST_F(RestoreDialogTest, AFailedStartShowsItsBoxesAndTheProgressStandsUntilItIsStopped) {
  Stand("");
  RemoveFile(kCof);
  ExpectBox("分割ソースファイルが開けません", kErrorCaption);
  ExpectBox(kCannotRead, kErrorCaption);
  InPress(IDC_DIVIDE_RUN);
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileUnDivExeDlg);
    EXPECT_EQ(Stepped.stepCounter, 1);
  });
  InTicks(5);
  In([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileUnDivExeDlg) << "the ticks do nothing"; });
  InPress(2);
  In([] {
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
    EXPECT_EQ(Stepped.stepCounter, 0);
  });
  RunRestore();
}

TEST_F(RestoreDialogTest, ATargetThatCannotBeMadeShowsTheGeneralBoxAlone) {
  Stand("");
  MakeFolder("C:\\mirrell\\restored\\source.bin");
  ExpectBox(kCannotRead, kErrorCaption);
  InPress(IDC_DIVIDE_RUN);
  InPress(2);
  RunRestore();
}

TEST_F(RestoreDialogTest, AStoppedRestoreKeepsWhatWasRead) {
  Stand("");
  InPress(IDC_DIVIDE_RUN);
  InTicks(1);
  InPress(2);
  RunRestore();
  EXPECT_EQ(Target(), Bytes(10).substr(0, 5));
}

TEST_F(RestoreDialogTest, AnEmptyJoiningFileIsToldByTheGeneralBox) {
  Stand("");
  PutFile(kCof, "");
  ExpectBox(kCannotRead, kErrorCaption);
  InPress(IDC_DIVIDE_RUN);
  InPress(2);
  RunRestore();
}

}  // namespace
