#include "services/folder_pick.h"

#include "platform/posix/faults.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "tests/services/picker_fixture.h"

namespace {

struct PickDialog {
  int dlgId;
  int templateId;
  const char* title;
};
const PickDialog kDialogs[] = {
    {2008, IDD_FileBackUpDirDlg, "バックアップ先ディレクトリ指定"},
    {2012, IDD_FileDivFileDlg, "分割ファイル格納先ディレクトリ選択"},
    {2015, IDD_FileUDivFileDlg, "合成ファイル格納先ディレクトリ選択"},
};

class FolderPickTest : public PickerFixture {
 protected:
  void TearDown() override {
    EXPECT_EQ(Dialogs.hToolDlg, nullptr);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
    PickerFixture::TearDown();
  }
  int Run() {
    return FolderPickRun(ToolDialog::FileBackUpDirDlg, IDD_FileBackUpDirDlg, nullptr, folder, sizeof folder);
  }
  char folder[300] = "as it was";
};

TEST_F(FolderPickTest, EachDialogHasItsTitleAndNumber) {
  for (const PickDialog& dialog : kDialogs) {
    Then([&] {
      EXPECT_EQ(Dialogs.DlgIdTool, static_cast<ToolDialog>(dialog.dlgId));
      EXPECT_EQ(Dialogs.hToolDlg, TopDialog());
      EXPECT_EQ(WindowText(TopDialog()), dialog.title);
      EXPECT_EQ(ControlText(TopDialog(), 1), "   選 択   ");
      EXPECT_EQ(ControlText(TopDialog(), kFolderCancelId), " キャンセル");
      EXPECT_EQ(Folders(), (Rows{"[..]", "[sub]", "[\x95\x5C]", "[-c-]", "[-z-]"}));
      EXPECT_TRUE(TextStands(TopDialog(), "Path: C:\\start", 12, 42));
      Press(TopDialog(), 1);
    });
    EXPECT_EQ(FolderPickRun(static_cast<ToolDialog>(dialog.dlgId), dialog.templateId, nullptr, folder,
                            sizeof folder),
              1);
    EXPECT_STREQ(folder, "C:\\start");
  }
}

TEST_F(FolderPickTest, TakesTheFolderThatWasOpened) {
  Then([] { OpenFolderRow("[sub]"); });
  Then([] { OpenFolderRow("[deep]"); });
  Then([] { Press(TopDialog(), kFolderUpId); });
  Then([] { Press(TopDialog(), 1); });
  EXPECT_EQ(Run(), 1);
  EXPECT_STREQ(folder, "C:\\start\\sub");
}

TEST_F(FolderPickTest, ASelectedRowIsNotTheChoiceUntilItIsOpened) {
  Then([] { ChooseRow(TopDialog(), kFolderListId, 1); });
  Then([] { Press(TopDialog(), 1); });
  EXPECT_EQ(Run(), 1);
  EXPECT_STREQ(folder, "C:\\start");
}

TEST_F(FolderPickTest, ADriveRootComesWithoutItsBackslash) {
  Then([] { OpenFolderRow("[-c-]"); });
  Then([] { Press(TopDialog(), 1); });
  EXPECT_EQ(Run(), 1);
  EXPECT_STREQ(folder, "C:");
}

TEST_F(FolderPickTest, ADoubleByteFolderKeepsItsLastByte) {
  Then([] { OpenFolderRow("[\x95\x5C]"); });
  Then([] { Press(TopDialog(), 1); });
  EXPECT_EQ(Run(), 1);
  EXPECT_STREQ(folder, "C:\\start\\\x95\x5C");
}

TEST_F(FolderPickTest, CancelEscapeAndCloseChooseNothing) {
  Then([] { Press(TopDialog(), kFolderCancelId); });
  EXPECT_EQ(Run(), 0);
  Then(Escape);
  EXPECT_EQ(Run(), 0);
  Then([] { SendClose(TopDialog()); });
  EXPECT_EQ(Run(), 0);
  EXPECT_STREQ(folder, "as it was");
}

TEST_F(FolderPickTest, ADialogThatCannotBeMadeChoosesNothing) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(Run(), 0);
  EXPECT_STREQ(folder, "as it was");
}

TEST_F(FolderPickTest, NoneOpensOverAnotherAndTheOpenOneGoesOn) {
  Then([this] {
    const WindowHandle dialog = TopDialog();
    char other[300] = "as it was";
    EXPECT_EQ(FolderPickRun(ToolDialog::FileDivFileDlg, IDD_FileDivFileDlg, nullptr, other, sizeof other), 0);
    EXPECT_STREQ(other, "as it was");
    EXPECT_EQ(TopDialog(), dialog);
    OpenFolderRow("[sub]");
  });
  Then([] { Press(TopDialog(), 1); });
  EXPECT_EQ(Run(), 1);
  EXPECT_STREQ(folder, "C:\\start\\sub");
}

TEST_F(FolderPickTest, TheResultStaysInsideTheCallersBuffer) {
  char small[6] = "";
  Then([] { Press(TopDialog(), 1); });
  EXPECT_EQ(FolderPickRun(ToolDialog::FileBackUpDirDlg, IDD_FileBackUpDirDlg, nullptr, small, sizeof small),
            1);
  EXPECT_STREQ(small, "C:\\st");
}

}  // namespace
