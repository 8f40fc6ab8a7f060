// FileDivKeyWordDlg: the keyword of a division.
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

std::string Question(const std::string& keyword) {
  return "重要: キーワード \"" + keyword + "\" はファイル復元時にも必要です。 分割を開始します。";
}

TEST_F(DivideDialogTest, AScrambledDivisionAsksForItsKeywordFirst) {
  Prepare(Simple(10, 1));
  InPress(IDC_DIVIDE_ENCRYPT);
  In([] { EXPECT_EQ(FileDivide.encryptFlag, 1); });
  InPress(IDC_DIVIDE_RUN);
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivKeyWordDlg);
    EXPECT_EQ(WindowText(TopDialog()), "暗号化キーワード入力");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileDivKeyWordDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_KEYWORD), "");
  });
  ExpectBox(Question("abcd").c_str(), "ファイル分割の実行");
  InKeyword("abcd");
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivExeDlg);
    EXPECT_STREQ(FileDivide.keyword, "abcd");
    EXPECT_EQ(FileDivide.keywordLength, 4);
    Press(TopDialog(), 2);
  });
  RunDivide();
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::OkCancel);
}

TEST_F(DivideDialogTest, AKeywordBelowFourBytesIsRefusedAndTheDialogStays) {
  Prepare(Simple(10, 1, "abcd"));
  InPress(IDC_DIVIDE_RUN);
  for (const char* keyword : {"", "a", "abc", "か", "か1"}) {
    ExpectBox("キーワードは半角4文字以上8文字までで入力します。", "キーワード設定エラー");
    InKeyword(keyword);
    In([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivKeyWordDlg); });
  }
  InPress(2);
  In([] {
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg) << "without a keyword nothing begins";
    EXPECT_EQ(FolderNames(kPieces), Rows());
  });
  RunDivide();
}

TEST_F(DivideDialogTest, TwoFullWidthCharactersAreEnough) {
  Prepare(Simple(10, 1, "abcd"));
  InPress(IDC_DIVIDE_RUN);
  ExpectBox(Question("かぎ").c_str(), "ファイル分割の実行");
  InKeyword("かぎ");
  InPress(2);
  RunDivide();
  EXPECT_EQ(FileDivide.keywordLength, 4);
}

TEST_F(DivideDialogTest, OfNineTypedBytesEightCountAndTheQuestionShowsThem) {
  Prepare(Simple(10, 1, "abcd"));
  InPress(IDC_DIVIDE_RUN);
  ExpectBox(Question("12345678").c_str(), "ファイル分割の実行");
  InKeyword("123456789");
  InPress(2);
  RunDivide();
  EXPECT_STREQ(FileDivide.keyword, "12345678");
  EXPECT_EQ(FileDivide.keywordLength, 8);
}

TEST_F(DivideDialogTest, ATwoByteCharacterCutAtByteEightStaysCut) {
  Prepare(Simple(10, 1, "abcd"));
  const std::string cut = std::string("1234567") + std::string("か").substr(0, 1);
  InPress(IDC_DIVIDE_RUN);
  ExpectBox(Question(cut).c_str(), "ファイル分割の実行");
  InKeyword("1234567か");
  InPress(2);
  RunDivide();
  EXPECT_EQ(std::string(FileDivide.keyword), cut);
}

TEST_F(DivideDialogTest, AnythingButOkAtTheQuestionLeavesTheDialogOpen) {
  Prepare(Simple(10, 1, "abcd"));
  InPress(IDC_DIVIDE_RUN);
  ExpectBox(Question("wxyz").c_str(), "ファイル分割の実行", BoxAnswer::Cancel);
  InKeyword("wxyz");
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivKeyWordDlg);
    EXPECT_EQ(FileDivide.keywordLength, 0);
  });
  In([] { SendClose(TopDialog()); });
  RunDivide();
  EXPECT_STREQ(FileDivide.keyword, "") << "a cancel clears the keyword";
}

}  // namespace
