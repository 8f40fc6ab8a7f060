// A schedule application and the real program: it is registered and started, takes over
// with its schedule, and hands back.
#include <gtest/gtest.h>

#include <cstring>

#include "resources/schedule_applications_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kSelect = 2020;
constexpr unsigned kRun = 2366;
constexpr unsigned kRegister = 2367;
const std::wstring kSelectTitle = L"スケジュール用アプリケーション選択";
const std::wstring kRegisterTitle = L"スケジュール用アプリケーション登録";
const std::wstring kChanged = L"カレンダーが変更されました(ミルレール)";
constexpr int kStart = 1;
constexpr int kClose = 2;

// The list's file.
constexpr std::size_t kSelectedAt = 32;
constexpr std::size_t kEntryAt = 36;
constexpr std::size_t kPathSize = 600;
constexpr std::size_t kScheduleAt = kEntryAt + kPathSize;  // with one entry

// The hand-over file.
constexpr std::size_t kHandOffSize = 971047;
constexpr std::size_t kModeAt = 999;

std::string Cp932(const std::wstring& text) {
  std::string bytes(text.size() * 2 + 1, '\0');
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(932, 0, text.c_str(), static_cast<int>(text.size()), bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

bool IsThere(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

class ApplicationsTest : public testing::Test {
 protected:
  void SetUp() override {
    tools_ = companion_.Folder() + L"\\道具 表\\";
    CreateDirectoryW(tools_.c_str(), nullptr);
    wchar_t own[MAX_PATH * 2];
    GetModuleFileNameW(nullptr, own, MAX_PATH * 2);
    const std::wstring beside = std::wstring(own).substr(0, std::wstring(own).rfind(L'\\') + 1);
    ASSERT_TRUE(CopyFileW((beside + L"schedule_application.exe").c_str(), Program().c_str(), FALSE));
    schedule_ = companion_.File(L"スケジュール表\\見本の予定.GPI");
    ASSERT_TRUE(IsThere(schedule_));
  }
  // An application that still runs is asked to end.
  void TearDown() override {
    if (Runs()) Ask(L"end");
    EXPECT_TRUE(WaitFor([&] { return !Runs(); }));
  }

  std::wstring Program() const { return tools_ + L"予定表.exe"; }
  // A program that runs cannot be opened for writing.
  bool Runs() const {
    HANDLE file = CreateFileW(Program().c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return IsThere(Program());
    CloseHandle(file);
    return false;
  }

  void RegisterBeforeTheStart() const {
    std::vector<unsigned char> list(kScheduleAt + kPathSize);
    std::memcpy(list.data(), "Mirrell ApliCation List:", 24);
    PutBig(list, 24, 1);
    const std::string path = Cp932(Program());
    std::memcpy(list.data() + kEntryAt, path.data(), path.size());
    WriteWholeFile(companion_.File(L"mirrell_apli_list_file.ali"), list);
  }
  std::uint32_t Selected() const {
    const auto list = ReadWholeFile(companion_.File(L"mirrell_apli_list_file.ali"));
    return list.size() > kSelectedAt + 4 ? GetBig(list, kSelectedAt) : 99;
  }
  std::string SchedulePath() const {
    auto list = ReadWholeFile(companion_.File(L"mirrell_apli_list_file.ali"));
    list.resize(kScheduleAt + kPathSize);
    list.push_back(0);
    return reinterpret_cast<const char*>(list.data()) + kScheduleAt;
  }

  // The application is asked for an answer, which it gives by itself.
  void Ask(const std::wstring& what) const {
    const std::string path = Cp932(schedule_);
    WriteWholeFile(tools_ + L"part", std::vector<unsigned char>(path.begin(), path.end()));
    ASSERT_TRUE(MoveFileW((tools_ + L"part").c_str(), (tools_ + what).c_str()));
    EXPECT_TRUE(WaitFor([&] { return !IsThere(tools_ + what); })) << "no answer";
  }
  // What the application found when it started: its command line and the hand-over file.
  void ExpectSeen(const std::string& line, int mode) const {
    ASSERT_TRUE(WaitFor([&] { return IsThere(tools_ + L"seen"); }));
    const auto seen = ReadWholeFile(tools_ + L"seen");
    ASSERT_EQ(seen.size(), line.size() + 1 + kHandOffSize);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(seen.data())), line);
    const unsigned char* handOff = seen.data() + line.size() + 1;
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(handOff)), Cp932(companion_.Folder()));
    EXPECT_EQ(handOff[kModeAt - 1], 0);
    EXPECT_EQ(handOff[kModeAt], mode);
    ASSERT_TRUE(DeleteFileW((tools_ + L"seen").c_str()));
  }

  std::wstring RowShown() const {
    companion_.Post(kSelect);
    const HWND dialog = companion_.Dialog(kSelectTitle);
    const std::wstring row = ListRowText(dialog, IDC_APLI_LIST, 0);
    EXPECT_TRUE(EndBy(dialog, kClose));
    return row;
  }

  // Another program changes the selected calendar: what the user is told.
  std::wstring ToldOfChangedCalendar() {
    std::vector<unsigned char> file = ReadWholeFile(companion_.File(L"mirrell_calen_file.dcd"));
    // The first note of the first calendar's January.
    file.at(3986 + 34) = static_cast<unsigned char>(++note_);
    WriteWholeFile(companion_.File(L"mirrell_calen_file.dcd"), file);
    TickUntil(companion_, [&] { return companion_.FindDialog(kChanged) != nullptr; });
    return AnswerBox(companion_, kChanged);
  }

  Companion companion_;
  std::wstring tools_;
  std::wstring schedule_;
  int note_ = 'a';
};

}  // namespace

TEST_F(ApplicationsTest, AnApplicationTakesOverAndHandsBack) {
  RegisterBeforeTheStart();
  companion_.Start();
  companion_.Post(kSelect);
  HWND dialog = companion_.Dialog(kSelectTitle);
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowText(dialog, IDC_APLI_LIST, 0), L"予定表");
  SelectListRow(dialog, IDC_APLI_LIST, 0);
  ASSERT_TRUE(EndBy(dialog, kStart));
  ExpectSeen(Cp932(L"予定表.exe _0_0"), 0);

  Ask(L"execute");
  EXPECT_TRUE(WaitFor([&] { return Selected() == 1; }));
  EXPECT_EQ(SchedulePath(), Cp932(schedule_));
  EXPECT_EQ(RowShown(), L"予定表 (起動中)");
  companion_.Post(kRun);
  EXPECT_EQ(AnswerBox(companion_, L"アプリケーション起動中"), L"実行指定アプリケーションは起動中です");
  EXPECT_EQ(ToldOfChangedCalendar(), L"予定表の編集データセーブ後に予定表を閉じて再起動させてください");

  Ask(L"end");
  EXPECT_TRUE(WaitFor([&] { return !Runs(); }));
  EXPECT_TRUE(WaitFor([&] { return RowShown() == L"予定表 (実行指定)"; }));
  EXPECT_EQ(Selected(), 1U);
  EXPECT_EQ(ToldOfChangedCalendar(),
            L"予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります");

  // As the executing application it is told so; then it gives the schedule up.
  companion_.Post(kRun);
  ExpectSeen(Cp932(L"予定表.exe _1_1"), 1);
  Ask(L"clear");
  EXPECT_TRUE(WaitFor([&] { return Selected() == 0; }));
  EXPECT_EQ(SchedulePath(), Cp932(schedule_));
  Ask(L"end");
  EXPECT_TRUE(WaitFor([&] { return Selected() == 1; }));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(ApplicationsTest, AProgramIsRegisteredAndDeleted) {
  companion_.Start();
  companion_.Post(kRegister);
  const HWND dialog = companion_.Dialog(kRegisterTitle);
  ASSERT_TRUE(dialog);
  ASSERT_TRUE(PickFile(companion_, dialog, IDC_APLI_ADD, L"mirrell-send.exe"));
  EXPECT_TRUE(WaitFor([&] { return ListRowCount(dialog, IDC_APLI_LIST) == 1; }));
  EXPECT_EQ(ListRowText(dialog, IDC_APLI_LIST, 0), L"mirrell-send");
  SelectListRow(dialog, IDC_APLI_LIST, 0);
  PostButton(dialog, IDC_APLI_DELETE);
  EXPECT_EQ(AnswerBox(companion_, L"アプリケーション登録"),
            L"選択アプリケーションを登録リストから削除します");
  EXPECT_TRUE(WaitFor([&] { return ListRowCount(dialog, IDC_APLI_LIST) == 0; }));
  EXPECT_TRUE(EndBy(dialog, kClose));
  EXPECT_EQ(companion_.Close(), 0);
}
