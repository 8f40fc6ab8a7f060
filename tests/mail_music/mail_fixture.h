// The program, started without data files, and its mail client.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "character/walk_state.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "mail_music/mail/mail_talk.h"
#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "platform/posix/test_network.h"
#include "platform/window.h"
#include "resources/mail_music_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/tick.h"
#include "tests/support/program.h"

using Rows = std::vector<std::string>;

inline constexpr int kUnit = 6000;  // ticks

class MailTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    sockets_ = Sockets();
    StartProgram();
  }
  void TearDown() override {
    TestPortSet(110, 0);
    EXPECT_EQ(MailTalks.count, 0);
    EXPECT_EQ(Sockets(), sockets_) << "sockets are still open";
    SendClose(Mail.hMailNoticeWnd);
    ProgramTest::TearDown();
  }

  static std::string SettingsPath() { return InProgram("MailSetting.mls"); }

  // What MYPOPDLG would set.
  static void ConnectWith(const char* server, const char* user, const char* password) {
    TextCopy(MailLive.liveServer, sizeof MailLive.liveServer, server);
    TextCopy(MailLive.liveUser, sizeof MailLive.liveUser, user);
    TextCopy(MailLive.livePassword, sizeof MailLive.livePassword, password);
  }
  static void Check() { CommandSend(Command::MailCheck); }
  static void ExpectServer(const std::string& text, std::function<void()> meanwhile = nullptr) {
    ExpectBox(text.c_str(), "Server", BoxAnswer::Ok, std::move(meanwhile));
  }
  static void ExpectUnset() { ExpectBox("通信設定がされていません", "通信設定エラー"); }

  // Sockets of this process.
  static int Sockets() {
    int count = 0;
    for (const auto& item : std::filesystem::directory_iterator("/proc/self/fd")) {
      std::error_code error;
      if (std::filesystem::read_symlink(item, error).string().starts_with("socket:")) ++count;
    }
    return count;
  }

  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }

 private:
  int sockets_ = 0;
};
