// The dialogs of the schedule applications, and the commands that open them.
#include "platform/posix/faults.h"
#include "resources/schedule_applications_ids.h"
#include "schedule/applications/application_list.h"
#include "services/commands.h"
#include "shell/panel.h"
#include "tests/schedule/schedule_fixture.h"
#include "tests/support/byte_order.h"

namespace {

const std::string kFile = "C:\\mirrell\\mirrell_apli_list_file.ali";

class ApplicationDialogsTest : public ScheduleTest {
 protected:
  static void Select(int entry) {
    std::string bytes = FileBytes(kFile);
    PutBE32(bytes.data() + 32, static_cast<std::uint32_t>(entry));
    PutFile(kFile, bytes);
    ASSERT_EQ(ApliListRead(), 0);
  }
  static Rows List() { return ListRows(TopDialog(), IDC_APLI_LIST); }
  static void ThenList(const Rows& rows) {
    Then([rows] { EXPECT_EQ(List(), rows); });
  }
  static void Two() {
    ApliListAdd("C:\\道具\\予定 表.exe");
    ApliListAdd("C:\\b\\計画.v2.exe");
  }
};

// --- Choosing

TEST_F(ApplicationDialogsTest, TheListShowsNamesWithoutFolderAndExtension) {
  Two();
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SclApliListDialog);
    EXPECT_EQ(WindowText(TopDialog()), "スケジュール用アプリケーション選択");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::SclApliListDialog);
    EXPECT_EQ(Panel.FuncNo, 3);
  });
  ThenList({"予定 表", "計画.v2"});
  ThenPress(2);
  CommandSend(Command::ApplicationSelect);
  EXPECT_TRUE(ProcessesStarted().empty());
  EXPECT_EQ(Panel.FuncNo, 0);
}

TEST_F(ApplicationDialogsTest, StartedAndSelectedEntriesAreMarked) {
  Two();
  Select(1);
  ThenList({"予定 表 (実行指定)", "計画.v2"});
  ThenChoose(IDC_APLI_LIST, 1);
  ThenPress(1);
  MakeFolder("C:\\b");
  CommandSend(Command::ApplicationSelect);
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  EXPECT_EQ(ProcessesStarted()[0].commandLine, "計画.v2.exe _0_0");
  ThenList({"予定 表 (実行指定)", "計画.v2 (起動中)"});
  ThenPress(2);
  CommandSend(Command::ApplicationSelect);
}

TEST_F(ApplicationDialogsTest, WithoutAChosenRowTheDialogStays) {
  Two();
  ThenPress(1);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SclApliListDialog); });
  Then([] { PressEnter(TopDialog()); });
  Then([] { PressEscape(TopDialog()); });
  CommandSend(Command::ApplicationSelect);
  Then([] { PressClose(TopDialog()); });
  CommandSend(Command::ApplicationSelect);
  EXPECT_TRUE(ProcessesStarted().empty());
}

TEST_F(ApplicationDialogsTest, EnterStartsTheChosenEntry) {
  Two();
  MakeFolder("C:\\道具");
  ThenChoose(IDC_APLI_LIST, 0);
  Then([] { PressEnter(TopDialog()); });
  CommandSend(Command::ApplicationSelect);
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  EXPECT_EQ(ProcessesStarted()[0].commandLine, "予定 表.exe _0_0");
}

TEST_F(ApplicationDialogsTest, TheListIsReadAtEachOpening) {
  Two();
  std::string bytes = FileBytes(kFile);
  bytes.replace(36, 600, std::string(600, '\0'));
  bytes.replace(36, 8, "D:\\z.exe");
  PutFile(kFile, bytes);
  ThenList({"z", "計画.v2"});
  ThenPress(2);
  CommandSend(Command::ApplicationSelect);
}

// --- Registering

TEST_F(ApplicationDialogsTest, AProgramIsPickedAndRegisteredAtOnce) {
  PutFile("C:\\mirrell\\表.EXE", "MZ");
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SclRegiApliListDialog);
    EXPECT_EQ(WindowText(TopDialog()), "スケジュール用アプリケーション登録");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::SclRegiApliListDialog);
    EXPECT_EQ(ControlText(TopDialog(), IDC_APLI_ADD), "参照して登録");
    EXPECT_EQ(ControlText(TopDialog(), IDC_APLI_DELETE), "削除");
  });
  ThenPress(IDC_APLI_ADD);
  ThenPick("表.EXE");
  ThenList({"表"});
  Then([] {
    std::string path = "C:\\mirrell\\表.EXE";
    path.resize(600);
    EXPECT_EQ(FileBytes(kFile).substr(36, 600), path);
  });
  ThenPress(IDC_APLI_ADD);
  ThenCancelPicker();
  ThenList({"表"});
  ThenPress(2);
  CommandSend(Command::ApplicationRegister);
  EXPECT_EQ(Applications.ApliCount, 1);
}

TEST_F(ApplicationDialogsTest, AHundredAndFirstProgramIsRefused) {
  for (int i = 0; i < kApliMax; ++i) EXPECT_EQ(ApliListAdd("C:\\a.exe"), 0);
  EXPECT_EQ(ApliListAdd("C:\\a.exe"), -1);
  ExpectBox("登録最大数１００個を超えています。", "プログラム登録リミット");
  ThenPress(IDC_APLI_ADD);
  ThenPress(2);
  CommandSend(Command::ApplicationRegister);
  EXPECT_EQ(BoxesShown()[0].icon, BoxIcon::Exclamation);
  EXPECT_EQ(Applications.ApliCount, 100);
}

TEST_F(ApplicationDialogsTest, AnEntryIsDeletedAfterAQuestion) {
  Two();
  ThenPress(IDC_APLI_DELETE);  // no row is chosen
  ThenChoose(IDC_APLI_LIST, 0);
  ExpectBox("選択アプリケーションを登録リストから削除します", "アプリケーション登録", BoxAnswer::Cancel);
  ThenPress(IDC_APLI_DELETE);
  ThenList({"予定 表", "計画.v2"});
  ExpectBox("選択アプリケーションを登録リストから削除します", "アプリケーション登録");
  ThenPress(IDC_APLI_DELETE);
  ThenList({"計画.v2"});
  ThenPress(2);
  CommandSend(Command::ApplicationRegister);
  EXPECT_EQ(BoxesShown().size(), 2U);
  EXPECT_EQ(FileBytes(kFile).size(), 36U + 600 + 600);
}

TEST_F(ApplicationDialogsTest, WithoutMemoryTheListStaysAsItIs) {
  Two();
  FaultArm(FaultKind::Memory, 1);
  EXPECT_EQ(ApliListAdd("C:\\c.exe"), -1);
  FaultClear();
  EXPECT_EQ(Applications.ApliCount, 2);
  EXPECT_STREQ(ApliPath(1), "C:\\b\\計画.v2.exe");
}

TEST_F(ApplicationDialogsTest, RemovingTheSelectedEntryClearsTheSelectionAndKeepsTheSchedulePath) {
  Two();
  std::string bytes = FileBytes(kFile);
  bytes.replace(36 + 1200, 8, "C:\\x.GPI");
  PutFile(kFile, bytes);
  Select(2);
  ApliListRemove(1);
  EXPECT_EQ(Applications.ApliSelected, 0);
  EXPECT_STREQ(Applications.ApliSchedule.path, "C:\\x.GPI");
  EXPECT_EQ(FileBytes(kFile).substr(36 + 600, 8), "C:\\x.GPI");
}

TEST_F(ApplicationDialogsTest, RemovingALowerEntryMovesTheSelectionAndAHigherOneDoesNot) {
  Two();
  ApliListAdd("C:\\c.exe");
  Select(2);
  ApliListRemove(2);
  EXPECT_EQ(Applications.ApliSelected, 2);
  ApliListRemove(0);
  EXPECT_EQ(Applications.ApliSelected, 1);
  EXPECT_STREQ(ApliPath(0), "C:\\b\\計画.v2.exe");
  ApliListRemove(5);
  ApliListRemove(-1);
  EXPECT_EQ(Applications.ApliCount, 1);
}

TEST_F(ApplicationDialogsTest, AfterTheLastEntryIsRemovedARestartHasCount0) {
  ApliListAdd("C:\\a.exe");
  ApliListRemove(0);
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(Applications.ApliCount, 0);
  EXPECT_EQ(FileBytes(kFile).size(), 36U + 600);
  EXPECT_STREQ(ApliPath(0), "");
}

// --- The executing application

TEST_F(ApplicationDialogsTest, WithNoneSelectedTheRunDoesNothing) {
  Two();
  CommandSend(Command::ApplicationRun);
  EXPECT_TRUE(ProcessesStarted().empty());
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(ApplicationDialogsTest, TheSelectedApplicationStartsInMode1AndNotTwice) {
  Two();
  MakeFolder("C:\\道具");
  Select(1);
  CommandSend(Command::ApplicationRun);
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  EXPECT_EQ(ProcessesStarted()[0].commandLine, "予定 表.exe _1_1");
  EXPECT_EQ(FileBytes("C:\\道具\\SclApliStUp.svt")[999], 1);
  ExpectBox("実行指定アプリケーションは起動中です", "アプリケーション起動中");
  CommandSend(Command::ApplicationRun);
  EXPECT_EQ(ProcessesStarted().size(), 1U);
  EXPECT_EQ(BoxesShown()[0].icon, BoxIcon::Exclamation);
}

// --- The own applications

TEST_F(ApplicationDialogsTest, TheOwnApplicationsLeadToBothDialogs) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_MyAplicationDlg);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::MyAplicationDlg);
    EXPECT_EQ(Panel.FuncNo, 17);
  });
  ThenPress(IDC_APLI_SELECT);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SclApliListDialog); });
  ThenPress(2);
  CommandSend(Command::OwnApplications);
  ThenPress(IDC_APLI_REGISTER);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SclRegiApliListDialog); });
  ThenPress(2);
  CommandSend(Command::OwnApplications);
  for (const auto end : {+[] { Press(TopDialog(), 2); }, +[] { PressEscape(TopDialog()); },
                         +[] { PressClose(TopDialog()); }}) {
    Then(end);
    CommandSend(Command::OwnApplications);
    EXPECT_EQ(Panel.FuncNo, 0);
  }
}

// 2373, the first run: the sibling's program is an entry of the list.
TEST_F(ApplicationDialogsTest, TheFirstRunRegistersTheSchedulesProgram) {
  ApliListSetFirst("C:\\mirrell\\スケジュール表\\予定表 千里万象.exe");
  ApliListSave();
  ThenList({"予定表 千里万象"});
  ThenPress(2);
  CommandSend(Command::ApplicationSelect);
}

}  // namespace
