// The mail's settings and their file.
#include "mail_music/mail/mail_setting.h"

#include <cstring>

#include "platform/posix/files_opened.h"
#include "shell/states.h"
#include "tests/mail_music/mail_fixture.h"
#include "tests/support/failing_writes.h"
#include "tests/support/record_check.h"

namespace {

class MailSettingTest : public MailTest {};

TEST(MailSettingRecord, LiesAsTold) {
  RecordCheck<MailSettingRec>();
  EXPECT_EQ(RecordOffset<&MailSettingRec::enabled>(), 0);
  EXPECT_EQ(RecordOffset<&MailSettingRec::reserved>(), 4);
  EXPECT_EQ(RecordOffset<&MailSettingRec::intervalIndex>(), 8);
  EXPECT_EQ(RecordOffset<&MailSettingRec::server>(), 12);
  EXPECT_EQ(RecordOffset<&MailSettingRec::userName>(), 268);
  EXPECT_EQ(RecordOffset<&MailSettingRec::password>(), 460);
  EXPECT_EQ(RecordOffset<&MailSettingRec::comment>(), 652);
  EXPECT_EQ(RecordOffset<&MailSettingRec::animeOn>(), 781);
  EXPECT_EQ(RecordOffset<&MailSettingRec::soundOn>(), 782);
  EXPECT_EQ(RecordOffset<&MailSettingRec::soundName>(), 783);
}

std::string Field(const std::string& text, std::size_t size) {
  std::string field = text;
  field.resize(size);
  return field;
}

TEST_F(MailSettingTest, TheFileHoldsTheFieldsInTheirOrderHighByteFirst) {
  MailSetting.enabled = 1;
  MailSetting.reserved = 0x01020304;
  MailSetting.intervalIndex = 9;
  TextCopy(MailSetting.server, sizeof MailSetting.server, "pop.example");
  for (int i = 0; i < 3; ++i) {
    TextFormat(MailSetting.userName[i], kMailAccountSize, "user%d", i);
    TextFormat(MailSetting.password[i], kMailAccountSize, "secret%d", i);
  }
  TextCopy(MailSetting.comment, sizeof MailSetting.comment, "お便り");
  MailSetting.animeOn = 1;
  MailSetting.soundOn = 2;
  TextCopy(MailSetting.soundName, sizeof MailSetting.soundName, "鐘.wav");
  EXPECT_EQ(MailSettingSave(), 0);
  std::string bytes("\0\0\0\1\1\2\3\4\0\0\0\x09", 12);
  bytes += Field("pop.example", 256);
  for (const char* name : {"user0", "user1", "user2"}) bytes += Field(name, 64);
  for (const char* name : {"secret0", "secret1", "secret2"}) bytes += Field(name, 64);
  bytes += Field("お便り", 129) + "\x01\x02" + Field("鐘.wav", 300);
  ASSERT_EQ(bytes.size(), 1083U);
  EXPECT_TRUE(FileBytes(SettingsPath()) == bytes);
}

TEST_F(MailSettingTest, AnOldFileIsReplaced) {
  PutFile(SettingsPath(), std::string(5000, 'x'));
  EXPECT_EQ(MailSettingSave(), 0);
  EXPECT_TRUE(FileBytes(SettingsPath()) == std::string(1083, '\0'));
}

TEST_F(MailSettingTest, AFileThatCannotBeWrittenIsToldToNobody) {
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(MailSettingSave(), -1);
  FaultArm(FaultKind::Open, 2);
  EXPECT_EQ(MailSettingSave(), -1);
  FaultClear();
  EXPECT_EQ(FailingWrites(MailSettingSave, -2), 1);
  EXPECT_TRUE(BoxesShown().empty());
}

// A restart: the feature is off, what the client connects with is empty, and the old file
// is not looked at.
TEST_F(MailSettingTest, AfterARestartTheFeatureIsOffAndTheOldFileIsNotLookedAt) {
  MailSetting.enabled = 1;
  TextCopy(MailSetting.server, sizeof MailSetting.server, "pop.example");
  ConnectWith("pop.example", "user", "secret");
  MailSettingSave();
  SendClose(Program.hMainWnd);
  MainWindowDrop();
  FilesOpenedClear();
  StartProgram();
  EXPECT_EQ(MailSetting.enabled, 0);
  EXPECT_STREQ(MailSetting.server, "");
  EXPECT_STREQ(MailLive.liveServer, "");
  EXPECT_STREQ(MailLive.liveUser, "");
  EXPECT_STREQ(MailLive.livePassword, "");
  for (const FileOpened& file : FilesOpened()) EXPECT_EQ(file.path.find("MailSetting"), std::string::npos);
  EXPECT_EQ(FileBytes(SettingsPath()).size(), 1083U);
}

}  // namespace
