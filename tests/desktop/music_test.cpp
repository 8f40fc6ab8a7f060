// The music table of the real program.
#include <gtest/gtest.h>

#include "resources/mail_music_ids.h"
#include "resources/schedule_model_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kMusicTable = 1921;
constexpr int kOk = 1;
constexpr int kClose = 2;
constexpr int kPickName = 100;
constexpr std::size_t kFileSize = 122604;
constexpr std::size_t kRowSize = 613;
constexpr std::size_t kRowsAt = 4;
constexpr std::size_t kPathAt = 13;

// Places in the window, whose client area is 808 wide.
constexpr int kTitleX = 100, kTitleY = 20;
constexpr int kFileX = 100;
constexpr int kTimeX = 600;
constexpr int RowY(int row) {
  return 60 + 20 * (row - 1);
}

class MusicTest : public testing::Test {
 protected:
  void SetUp() override {
    SettingsChange(companion_).Byte(kClockShowAt, 0).Byte(kCalenShowAt, 0);
    companion_.Start();
    live_ = companion_.Live();
    companion_.Post(kMusicTable);
    window_ = companion_.Dialog(L"BGM 設定");
    ASSERT_TRUE(window_);
  }
  void Double(int x, int y) const {
    PostMessageW(window_, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(window_, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    PostMessageW(window_, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
  }
  bool Save(const std::wstring& name) const {
    const HWND picker = OpenBy(companion_, window_, IDC_BGM_SAVE, L"ファイルの保存");
    if (!picker) return false;
    SetEdit(picker, kPickName, name);
    return EndBy(picker, kOk);
  }
  std::vector<unsigned char> File(const std::wstring& name) const {
    return ReadWholeFile(companion_.File(name));
  }

  Companion companion_;
  std::vector<int> live_;
  HWND window_ = nullptr;
};

}  // namespace

TEST_F(MusicTest, AFileComesBackByteForByte) {
  std::vector<unsigned char> bytes(kFileSize);
  unsigned seed = 5;
  for (unsigned char& value : bytes) {
    seed = seed * 1664525U + 1013904223U;
    value = static_cast<unsigned char>(seed >> 24);
  }
  WriteWholeFile(companion_.File(L"one.bgm"), bytes);
  ASSERT_TRUE(PickFile(companion_, window_, IDC_BGM_LOAD, L"one.bgm"));
  ASSERT_TRUE(Save(L"two.bgm"));
  EXPECT_TRUE(WaitFor([&] { return File(L"two.bgm") == bytes; }));
  PressButton(window_, IDC_BGM_START);
  PressButton(window_, IDC_BGM_END);
  EXPECT_TRUE(EndBy(window_, kClose));
  EXPECT_EQ(companion_.Live(), live_);
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(MusicTest, AShortFileIsTold) {
  WriteWholeFile(companion_.File(L"short.bgm"), std::vector<unsigned char>(kFileSize - 1));
  ASSERT_TRUE(PickFile(companion_, window_, IDC_BGM_LOAD, L"short.bgm"));
  EXPECT_EQ(AnswerBox(companion_, L"BGM設定読み込みエラー"), L"データが正しく読み込めません");
  ASSERT_TRUE(PickFile(companion_, window_, IDC_BGM_LOAD, L"none.bgm"));
  EXPECT_EQ(AnswerBox(companion_, L"BGM設定読み込みエラー"), L"ファイルを開けません");
}

TEST_F(MusicTest, DoubleClicksOpenWhatBelongsToTheirCells) {
  WriteWholeFile(companion_.File(L"song.wav"), {'R', 'I', 'F', 'F'});
  Double(kFileX, RowY(3));
  const HWND picker = companion_.Dialog(L"ファイルのロード");
  ASSERT_TRUE(picker);
  SetEdit(picker, kPickName, L"song.wav");
  ASSERT_TRUE(EndBy(picker, kOk));
  Double(kTimeX, RowY(3));
  const HWND time = companion_.Dialog(L"時間設定");
  ASSERT_TRUE(time);
  EXPECT_EQ(ListRowCount(time, IDC_BGM_HOUR), 0);
  ASSERT_TRUE(EndBy(time, kOk));
  Double(kTitleX, kTitleY);
  const HWND title = companion_.Dialog(L"表タイトル");
  ASSERT_TRUE(title);
  SetEdit(title, IDC_SCL_TEXT, L"夕方の曲");
  ASSERT_TRUE(EndBy(title, kOk));
  ASSERT_TRUE(Save(L"saved.bgm"));
  ASSERT_TRUE(WaitFor([&] { return File(L"saved.bgm").size() == kFileSize; }));
  const std::vector<unsigned char> bytes = File(L"saved.bgm");
  const std::string path = reinterpret_cast<const char*>(bytes.data()) + kRowsAt + 2 * kRowSize + kPathAt;
  EXPECT_NE(path.find("\\song.wav"), std::string::npos) << path;
  // The same name again is asked about.
  ASSERT_TRUE(Save(L"saved.bgm"));
  EXPECT_EQ(AnswerBox(companion_, L"ﾌｧｲﾙｾｰﾌﾞ", IDCANCEL), L"同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?");
  EXPECT_TRUE(EndBy(window_, kClose));
  EXPECT_EQ(companion_.Close(), 0);
}
