// MailSettingMenuDlg and MYPOPDLG.
#include "platform/posix/files_opened.h"
#include "resources/character_ids.h"
#include "shell/panel.h"
#include "tests/mail_music/mail_fixture.h"

namespace {

constexpr int kOk = 1;
constexpr int kCancel = 2;

class MailDialogTest : public MailTest {
 protected:
  // Opens the dialog with the steps that wait.
  static void RunDialog() { CommandSend(Command::MailSettings); }
  static void ThenExpect(std::function<void()> step) { Then(std::move(step)); }
  static void ThenType(int id, const std::string& text) {
    Then([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  // In MailSettingMenuDlg: sets what the client connects with.
  static void ThenAccount(const std::string& server, const std::string& user, const std::string& password,
                          int end = kOk) {
    ThenPress(IDC_MAIL_ACCOUNT);
    ThenType(IDC_POP_SERVER, server);
    ThenType(IDC_POP_USER, user);
    ThenType(IDC_POP_PASSWORD, password);
    ThenPress(end);
  }
};

TEST_F(MailDialogTest, ItOpensFromItsCommandWithItsTexts) {
  Panel.MenuPanelState = 500;
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_MailSettingMenuDlg);
    EXPECT_EQ(WindowText(TopDialog()), "メール受信連絡");
    EXPECT_EQ(Dialogs.hToolDlg, TopDialog());
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::MailSettingMenuDlg);
    EXPECT_EQ(Panel.FuncNo, 11);
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAIL_ENABLED), "メール受信連絡機能を使う");
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAIL_ACCOUNT), "メール通信設定");
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAIL_ANIMATION), "アニメーション/サウンド");
    EXPECT_EQ(ControlText(TopDialog(), kOk), "設定する");
    EXPECT_FALSE(ControlIsChecked(TopDialog(), IDC_MAIL_ENABLED));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_MAIL_INTERVAL), 0);
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAIL_COMMENT), "");
  });
  ThenPress(kCancel);
  RunDialog();
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_FALSE(FileThere(SettingsPath()));
}

TEST_F(MailDialogTest, TheComboBoxHasTheFirstTenIntervalsSo4HoursCannotBeChosen) {
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_MAIL_INTERVAL),
              (Rows{" 1 分", " 3 分", " 5 分", " 10 分", " 15 分", " 20 分", " 30 分", " 40 分", " 1 時間",
                    " 2 時間"}));
  });
  ThenPress(kCancel);
  RunDialog();
}

TEST_F(MailDialogTest, AnIntervalWithoutARowStaysWhileNoneIsChosen) {
  MailSetting.intervalIndex = 10;
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_MAIL_INTERVAL), -1); });
  ThenPress(kOk);
  RunDialog();
  EXPECT_EQ(MailSetting.intervalIndex, 10);
}

TEST_F(MailDialogTest, ConfirmedSettingsAreCommittedAndStandInTheFile) {
  ThenAccount("pop.example", "user", "secret");
  Then([] {
    ChooseRow(TopDialog(), IDC_MAIL_INTERVAL, 8);
    Type(TopDialog(), IDC_MAIL_COMMENT, "お便りです");
  });
  ThenPress(kOk);
  RunDialog();
  EXPECT_EQ(MailSetting.enabled, 0);
  EXPECT_EQ(MailSetting.intervalIndex, 8);
  EXPECT_STREQ(MailSetting.server, "pop.example");
  EXPECT_STREQ(MailSetting.userName[0], "user");
  EXPECT_STREQ(MailSetting.password[0], "secret");
  EXPECT_STREQ(MailSetting.comment, "お便りです");
  const std::string bytes = FileBytes(SettingsPath());
  ASSERT_EQ(bytes.size(), 1083U);
  EXPECT_EQ(bytes.substr(0, 12), std::string("\0\0\0\0\0\0\0\0\0\0\0\x08", 12));
  EXPECT_STREQ(bytes.c_str() + 12, "pop.example");
  EXPECT_STREQ(bytes.c_str() + 268, "user");
  EXPECT_STREQ(bytes.c_str() + 460, "secret");
  EXPECT_STREQ(bytes.c_str() + 652, "お便りです");
  EXPECT_TRUE(BoxesShown().empty()) << "no check while it is off";
}

TEST_F(MailDialogTest, TheCommittedSettingsAreShownAgain) {
  MailSetting.enabled = 1;
  MailSetting.intervalIndex = 3;
  TextCopy(MailSetting.comment, sizeof MailSetting.comment, "お便り");
  TextCopy(MailSetting.server, sizeof MailSetting.server, "pop.example");
  TextCopy(MailSetting.userName[0], kMailAccountSize, "user");
  TextCopy(MailSetting.password[0], kMailAccountSize, "secret");
  Then([] {
    EXPECT_TRUE(ControlIsChecked(TopDialog(), IDC_MAIL_ENABLED));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_MAIL_INTERVAL), 3);
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAIL_COMMENT), "お便り");
    EXPECT_STREQ(MailLive.liveServer, "") << "the client has not been told yet";
  });
  ThenPress(IDC_MAIL_ACCOUNT);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_MYPOPDLG);
    EXPECT_EQ(WindowText(TopDialog()), "メール通信設定");
    EXPECT_EQ(ControlText(TopDialog(), kOk), "設定");
    EXPECT_EQ(ControlText(TopDialog(), IDC_POP_SERVER), "pop.example");
    EXPECT_EQ(ControlText(TopDialog(), IDC_POP_USER), "user");
    EXPECT_EQ(ControlText(TopDialog(), IDC_POP_PASSWORD), "secret");
  });
  ThenPress(kCancel);
  ThenPress(kCancel);
  RunDialog();
  EXPECT_STREQ(MailLive.liveServer, "pop.example");
}

TEST_F(MailDialogTest, CancelCommitsNothing) {
  for (const auto& leave : {+[] { Press(TopDialog(), kCancel); }, +[] { PressEscape(TopDialog()); },
                            +[] { PressClose(TopDialog()); }}) {
    Then([] {
      Press(TopDialog(), IDC_MAIL_ENABLED);
      ChooseRow(TopDialog(), IDC_MAIL_INTERVAL, 8);
      Type(TopDialog(), IDC_MAIL_COMMENT, "お便り");
    });
    Then(leave);
    RunDialog();
    EXPECT_EQ(MailSetting.enabled, 0);
    EXPECT_EQ(MailSetting.intervalIndex, 0);
    EXPECT_STREQ(MailSetting.comment, "");
    EXPECT_FALSE(FileThere(SettingsPath()));
  }
}

TEST_F(MailDialogTest, EnterConfirms) {
  Then([] { Type(TopDialog(), IDC_MAIL_COMMENT, "お便り"); });
  Then([] { PressEnter(TopDialog()); });
  RunDialog();
  EXPECT_STREQ(MailSetting.comment, "お便り");
}

TEST_F(MailDialogTest, WhatMypopdlgSetsIsLiveAtOnceAlsoWhenTheSettingsAreCancelled) {
  ThenAccount("pop.example", "user", "secret");
  Then([] { EXPECT_STREQ(MailDialog.server, "pop.example"); });
  ThenPress(kCancel);
  RunDialog();
  EXPECT_STREQ(MailSetting.server, "");
  EXPECT_STREQ(MailLive.liveServer, "pop.example");
  EXPECT_STREQ(MailLive.liveUser, "user");
  EXPECT_STREQ(MailLive.livePassword, "secret");
}

TEST_F(MailDialogTest, CancelledMypopdlgLeavesItsFields) {
  for (const auto& leave : {+[] { Press(TopDialog(), kCancel); }, +[] { PressEscape(TopDialog()); },
                            +[] { PressClose(TopDialog()); }}) {
    ThenPress(IDC_MAIL_ACCOUNT);
    Then([] { Type(TopDialog(), IDC_POP_SERVER, "pop.example"); });
    Then(leave);
    ThenPress(kOk);
    RunDialog();
    EXPECT_STREQ(MailLive.liveServer, "");
    EXPECT_STREQ(MailSetting.server, "");
  }
}

TEST_F(MailDialogTest, NamesTooLongForTheirFieldsAreCut) {
  ThenAccount(std::string(400, 's'), std::string(400, 'u'), std::string(400, 'p'));
  ThenType(IDC_MAIL_COMMENT, std::string(400, 'c'));
  ThenPress(kOk);
  RunDialog();
  EXPECT_EQ(std::string(MailLive.liveServer), std::string(255, 's'));
  EXPECT_EQ(std::string(MailLive.liveUser), std::string(63, 'u'));
  EXPECT_EQ(std::string(MailLive.livePassword), std::string(63, 'p'));
  EXPECT_EQ(std::string(MailSetting.server), std::string(255, 's'));
  EXPECT_EQ(std::string(MailSetting.userName[0]), std::string(63, 'u'));
  EXPECT_EQ(std::string(MailSetting.password[0]), std::string(63, 'p'));
  EXPECT_EQ(std::string(MailSetting.comment), std::string(128, 'c'));
  EXPECT_EQ(MailSetting.userName[1][0], '\0');
  EXPECT_EQ(MailSetting.animeOn, 0);
}

TEST_F(MailDialogTest, TheAnimationsSettingsAreSavedAtOnce) {
  MakeFolder("C:\\mirrell\\サウンド");
  PutFile("C:\\mirrell\\サウンド\\鐘.wav", "RIFF");
  ThenPress(IDC_MAIL_ANIMATION);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetMailAnimeDlg);
    Press(TopDialog(), IDC_WALK_ANIME);
    Press(TopDialog(), IDC_WALK_SOUND);
    ChooseRow(TopDialog(), IDC_WALK_SOUND_FILE, 0);
    Press(TopDialog(), kOk);
  });
  Then([] {
    const std::string bytes = FileBytes(SettingsPath());
    ASSERT_EQ(bytes.size(), 1083U);
    EXPECT_EQ(bytes.substr(781, 2), "\1\1");
    EXPECT_STREQ(bytes.c_str() + 783, "鐘.wav");
  });
  ThenPress(IDC_MAIL_ANIMATION);
  ThenPress(kCancel);
  ThenPress(kCancel);
  RunDialog();
  EXPECT_EQ(MailSetting.animeOn, 1);
}

TEST_F(MailDialogTest, ACancelledAnimationDialogSavesNothing) {
  ThenPress(IDC_MAIL_ANIMATION);
  ThenPress(kCancel);
  ThenPress(kCancel);
  RunDialog();
  EXPECT_FALSE(FileThere(SettingsPath()));
}

TEST_F(MailDialogTest, SwitchedOnItChecksAtOnceAndTheIntervalBegins) {
  Mail.mailStopped = true;
  Mail.MailTickCount = 77;
  Then([] {
    Press(TopDialog(), IDC_MAIL_ENABLED);
    ChooseRow(TopDialog(), IDC_MAIL_INTERVAL, 3);
    Press(TopDialog(), kOk);
  });
  ExpectBox("通信設定がされていません", "通信設定エラー", BoxAnswer::Ok, [] {
    EXPECT_EQ(FileBytes(SettingsPath()).size(), 1083U) << "saved before the check";
    EXPECT_EQ(Mail.MailMinuteCount, 10);
    EXPECT_EQ(Mail.MailTickCount, 0);
    EXPECT_EQ(TopDialog(), nullptr) << "the dialog has closed by then";
    EXPECT_EQ(Panel.FuncNo, 0) << "and the settings are not open any more";
  });
  RunDialog();
  EXPECT_TRUE(Mail.mailStopped);
}

TEST_F(MailDialogTest, AFileThatCannotBeWrittenIsToldByNoBox) {
  FaultArm(FaultKind::Write, 1);
  ThenPress(kOk);
  RunDialog();
  EXPECT_TRUE(FaultWasMet());
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(MailDialogTest, ADialogThatCannotBeMadeChangesNothing) {
  MailSetting.enabled = 1;
  FaultArm(FaultKind::Window, 1);
  RunDialog();
  FaultClear();
  EXPECT_FALSE(FileThere(SettingsPath()));
  EXPECT_TRUE(BoxesShown().empty());
}

}  // namespace
