// The mail notification of the real program, with a server of its own: from the settings to
// the notice.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "resources/character_ids.h"
#include "resources/mail_music_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/pop_server.h"

namespace {

constexpr unsigned kMailSettings = 1918;
constexpr int kOk = 1;
const std::wstring kTitle = L"メール受信連絡";  // of the settings and of the notice

constexpr int kMailIdle = 0;
constexpr int kMailWalking = 2;
constexpr int kMailAlone = 3;

// Offsets in the settings file.
constexpr std::size_t kFileSize = 1083;
constexpr std::size_t kServerAt = 12;
constexpr std::size_t kUserAt = 268;
constexpr std::size_t kPasswordAt = 460;
constexpr std::size_t kCommentAt = 652;
constexpr std::size_t kAnimeOnAt = 781;
constexpr std::size_t kSoundOnAt = 782;
constexpr std::size_t kSoundNameAt = 783;

const std::vector<std::string> kOneMail = {"+OK ready\r\n", "+OK\r\n", "+OK 1 message\r\n"};

RECT RectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

class MailTest : public testing::Test {
 protected:
  // Nothing on the desktop but the companion; its walks go five short steps from the middle.
  void Start(const std::vector<std::string>& replies) {
    server_ = std::make_unique<PopServer>(replies);
    ASSERT_NE(server_->Address(), L"") << "port 110 cannot be bound";
    SettingsChange(companion_)
        .Byte(kClockShowAt, 0)
        .Byte(kCalenShowAt, 0)
        .LowFirst32(kCharaSetAt + kWalkStepXAt, kStepX)
        .LowFirst32(kCharaSetAt + kWalkStepYAt, kStepY)
        .LowFirst16(kCharaSetAt + kWalkPeriodAt, 5)
        .LowFirst16(kCharaSetAt + kWalkCountAt, kSteps)
        .LowFirst16(kCharaSetAt + kEndWaitAt, 50)
        .LowFirst16(kCharaSetAt + kWalkStartPointAt, kStartInTheMiddle);
    companion_.Start();
  }

  HWND OpenSettings() {
    companion_.Post(kMailSettings);
    return companion_.Dialog(kTitle);
  }
  bool SetAccount(HWND settings, const std::wstring& server, const std::wstring& user,
                  const std::wstring& password, int end = kOk) {
    const HWND account = OpenBy(companion_, settings, IDC_MAIL_ACCOUNT, L"メール通信設定");
    if (!account) return false;
    SetEdit(account, IDC_POP_SERVER, server);
    SetEdit(account, IDC_POP_USER, user);
    SetEdit(account, IDC_POP_PASSWORD, password);
    return EndBy(account, end);
  }
  // Opens the settings, sets them to this server, and confirms them switched on.
  bool SwitchOn() {
    const HWND settings = OpenSettings();
    if (!settings || !SetAccount(settings, server_->Address(), L"mirrell", L"secret")) return false;
    SetChecked(settings, IDC_MAIL_ENABLED, true);
    return EndBy(settings, kOk);
  }
  std::wstring Answer() { return AnswerBox(companion_, L"Server"); }
  std::vector<unsigned char> SettingsFile() const {
    return ReadWholeFile(companion_.File(L"MailSetting.mls"));
  }
  static std::string TextAt(const std::vector<unsigned char>& bytes, std::size_t at) {
    return reinterpret_cast<const char*>(bytes.data()) + at;
  }
  static std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }
  bool StateIs(int state) const {
    return WaitFor([&] { return companion_.Value(kShowMailState) == state; });
  }

  static constexpr int kStepX = -14;
  static constexpr int kStepY = -12;
  static constexpr int kSteps = 5;
  static constexpr int kStartInTheMiddle = 4;
  std::unique_ptr<PopServer> server_;
  Companion companion_;
};

}  // namespace

TEST_F(MailTest, ConfirmedSettingsCheckAtOnceAndAMailIsBroughtByTheCharacter) {
  Start(kOneMail);
  const HWND settings = OpenSettings();
  ASSERT_TRUE(settings);
  EXPECT_EQ(ListRowCount(settings, IDC_MAIL_INTERVAL), 10);
  const HWND animation = OpenBy(companion_, settings, IDC_MAIL_ANIMATION, L"メール受信時アニメーション設定");
  ASSERT_TRUE(animation);
  SetChecked(animation, IDC_WALK_ANIME, true);
  SetChecked(animation, IDC_WALK_SOUND, true);
  ASSERT_GT(ListRowCount(animation, IDC_WALK_SOUND_FILE), 0);
  SelectListRow(animation, IDC_WALK_SOUND_FILE, 0);
  ASSERT_TRUE(EndBy(animation, kOk));
  ASSERT_TRUE(WaitFor([&] { return SettingsFile().size() == kFileSize; }));
  EXPECT_EQ(SettingsFile()[kAnimeOnAt], 1);
  EXPECT_EQ(SettingsFile()[kSoundOnAt], 1);
  EXPECT_NE(TextAt(SettingsFile(), kSoundNameAt), "");
  ASSERT_TRUE(SetAccount(settings, server_->Address(), L"mirrell", L"secret"));
  SetChecked(settings, IDC_MAIL_ENABLED, true);
  SelectListRow(settings, IDC_MAIL_INTERVAL, 9);
  SetEdit(settings, IDC_MAIL_COMMENT, L"お便りです");
  ASSERT_TRUE(EndBy(settings, kOk));

  EXPECT_EQ(Answer(), L"+OK ready\r\n");
  EXPECT_EQ(Answer(), L"+OK\r\n");
  EXPECT_EQ(Answer(), L"+OK 1 message\r\n");
  EXPECT_EQ(server_->Lines(), (std::vector<std::string>{"USER mirrell", "PASS secret"}));
  EXPECT_TRUE(WaitFor([&] { return server_->Ended() == 1; })) << "the connection is closed without QUIT";
  const std::vector<unsigned char> file = SettingsFile();
  ASSERT_EQ(file.size(), kFileSize);
  EXPECT_EQ(GetBig(file, 0), 1U);
  EXPECT_EQ(GetBig(file, 8), 9U);
  EXPECT_EQ(TextAt(file, kServerAt), Narrow(server_->Address()));
  EXPECT_EQ(TextAt(file, kUserAt), "mirrell");
  EXPECT_EQ(TextAt(file, kPasswordAt), "secret");
  EXPECT_EQ(TextAt(file, kCommentAt), "お便りです");

  // The walk, and the notice under its end picture.
  EXPECT_TRUE(StateIs(kMailWalking));
  const HWND notice = companion_.Dialog(kTitle);
  ASSERT_TRUE(notice);
  const RECT place = RectOf(notice);
  const Picture end = LoadPicture(companion_, L"Chara10_3.bmp");
  EXPECT_EQ(place.left, GetSystemMetrics(SM_CXFULLSCREEN) / 2 + kSteps * kStepX);
  EXPECT_EQ(place.top, GetSystemMetrics(SM_CYFULLSCREEN) / 2 + kSteps * kStepY + end.height);
  EXPECT_EQ(place.right - place.left, 300);
  EXPECT_EQ(place.bottom - place.top, 200);
  EXPECT_TRUE(WaitFor([&] { return companion_.Value(kShowOpeningState) == 0; })) << "nothing is opened";
  EXPECT_TRUE(EndBy(notice, kOk));
  EXPECT_TRUE(StateIs(kMailIdle));
  companion_.Tick(20);
  EXPECT_EQ(companion_.Value(kShowMailState), kMailIdle);
  EXPECT_FALSE(companion_.FindDialog(kTitle));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(MailTest, NoMailIsQuitAndBringsNoNotice) {
  Start({"+OK ready\r\n", "+OK\r\n", "+OK 0 messages\r\n", "+OK bye\r\n"});
  ASSERT_TRUE(SwitchOn());
  for (int box = 0; box < 3; ++box) Answer();
  EXPECT_EQ(Answer(), L"+OK bye\r\n");
  EXPECT_EQ(server_->Lines(), (std::vector<std::string>{"USER mirrell", "PASS secret", "QUIT"}));
  companion_.Tick(20);
  EXPECT_EQ(companion_.Value(kShowMailState), kMailIdle);
  EXPECT_FALSE(companion_.FindDialog(kTitle));
  EXPECT_EQ(companion_.Close(), 0);
}

// The box of one check stands for a whole interval: the next one begins inside it.
TEST_F(MailTest, ACheckRunsWhileABoxOfTheLastOneIsUp) {
  Start(kOneMail);
  ASSERT_TRUE(SwitchOn());
  ASSERT_TRUE(companion_.Dialog(L"Server"));
  ASSERT_TRUE(TickUntil(
      companion_, [&] { return server_->Connections() == 2; }, 60000));
  for (int box = 0; box < 6; ++box) EXPECT_NE(Answer(), L"") << box;
  EXPECT_TRUE(WaitFor([&] { return server_->Ended() == 2; }));
  EXPECT_TRUE(StateIs(kMailAlone));
  const HWND notice = companion_.Dialog(kTitle);
  ASSERT_TRUE(notice);
  EXPECT_EQ(RectOf(notice).left, 0);
  EXPECT_EQ(RectOf(notice).top, 0);
  EXPECT_TRUE(EndBy(notice, kOk));
  EXPECT_TRUE(StateIs(kMailIdle));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(MailTest, NamesTooLongForEveryFieldAreCut) {
  Start(kOneMail);
  const HWND settings = OpenSettings();
  ASSERT_TRUE(settings);
  ASSERT_TRUE(
      SetAccount(settings, std::wstring(400, L's'), std::wstring(400, L'u'), std::wstring(400, L'p')));
  SetEdit(settings, IDC_MAIL_COMMENT, std::wstring(400, L'c'));
  ASSERT_TRUE(EndBy(settings, kOk));
  ASSERT_TRUE(WaitFor([&] { return SettingsFile().size() == kFileSize; }));
  const std::vector<unsigned char> file = SettingsFile();
  EXPECT_EQ(TextAt(file, kServerAt), std::string(255, 's'));
  EXPECT_EQ(TextAt(file, kUserAt), std::string(63, 'u'));
  EXPECT_EQ(TextAt(file, kPasswordAt), std::string(63, 'p'));
  EXPECT_EQ(TextAt(file, kCommentAt), std::string(128, 'c'));
  EXPECT_EQ(server_->Connections(), 0);

  // Such a server is not found, which is told by its name.
  const HWND again = OpenSettings();
  ASSERT_TRUE(again);
  SetChecked(again, IDC_MAIL_ENABLED, true);
  ASSERT_TRUE(EndBy(again, kOk));
  EXPECT_EQ(AnswerBox(companion_, L"メール受信連絡エラー"),
            L"POP3サーバ " + std::wstring(255, L's') + L"が見つかりません");
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(MailTest, EmptyFieldsAreToldOnce) {
  Start(kOneMail);
  const HWND settings = OpenSettings();
  ASSERT_TRUE(settings);
  SetChecked(settings, IDC_MAIL_ENABLED, true);
  ASSERT_TRUE(EndBy(settings, kOk));
  EXPECT_EQ(AnswerBox(companion_, L"通信設定エラー"), L"通信設定がされていません");
  companion_.Tick(6001);
  EXPECT_FALSE(companion_.FindDialog(L"通信設定エラー"));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(MailTest, AnyReplyCanBeAnswered) {
  std::string noise;
  for (int value = 255; value > 0; --value) noise += static_cast<char>(value);
  Start({std::string(60000, '\n'), std::string(60000, 'a'), noise + std::string("\0 0 message", 11)});
  ASSERT_TRUE(SwitchOn());
  const HWND first = companion_.Dialog(L"Server");
  ASSERT_TRUE(first);
  EXPECT_LE(RectOf(first).bottom, GetSystemMetrics(SM_CYSCREEN));
  for (int box = 0; box < 3; ++box) {
    const HWND up = companion_.Dialog(L"Server");
    ASSERT_TRUE(up) << box;
    EXPECT_LE(RectOf(up).right, GetSystemMetrics(SM_CXSCREEN));
    Answer();
  }
  EXPECT_TRUE(StateIs(kMailAlone));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(MailTest, TheProgramEndsInsideABox) {
  Start(kOneMail);
  ASSERT_TRUE(SwitchOn());
  Answer();
  ASSERT_TRUE(companion_.Dialog(L"Server"));
  EXPECT_EQ(companion_.Close(), 0);
  EXPECT_TRUE(WaitFor([&] { return server_->Ended() == 1; }));
}

TEST_F(MailTest, AServerThatIsNotThereIsTold) {
  Start(kOneMail);
  const std::wstring address = server_->Address();
  server_.reset();
  const HWND settings = OpenSettings();
  ASSERT_TRUE(settings);
  ASSERT_TRUE(SetAccount(settings, address, L"mirrell", L"secret"));
  SetChecked(settings, IDC_MAIL_ENABLED, true);
  ASSERT_TRUE(EndBy(settings, kOk));
  EXPECT_EQ(AnswerBox(companion_, L"メール受信連絡エラー"), L"サーバーソケットに接続失敗");
  EXPECT_EQ(companion_.Close(), 0);
}
