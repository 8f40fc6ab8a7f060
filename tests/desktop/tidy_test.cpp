// Desktop tidy of the real program, on the desktop of the tests' own user folder.
#include <gtest/gtest.h>
#include <shlobj.h>

#include <algorithm>

#include "resources/filetools_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kTidyCommand = 1920;
constexpr int kClose = 2;
const std::wstring kFolder = L"整理用フォルダー";
const std::wstring kAsk = L"Desktop整理";
const std::wstring kFailed = L"Desktop整理エラー";

class TidyTest : public testing::Test {
 protected:
  void SetUp() override {
    wchar_t path[MAX_PATH] = L"";
    ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, path, CSIDL_DESKTOPDIRECTORY, TRUE));
    desktop_ = path;
    // What else lies there is none of ours to move.
    ASSERT_TRUE(Entries().empty()) << "the desktop is not empty";
    owned_ = true;
    companion_.Start();
    companion_.Post(kTidyCommand);
    dialog_ = companion_.Dialog(L"デスクトップの整理");
    ASSERT_TRUE(dialog_);
  }

  void TearDown() override {
    if (!owned_) return;
    if (companion_.Runs()) companion_.Close();
    for (const wchar_t* name : {L"one.txt", L"two.txt", L".dot"}) {
      DeleteFileW((desktop_ + L"\\" + name).c_str());
      DeleteFileW((desktop_ + L"\\" + kFolder + L"\\" + name).c_str());
    }
    const std::wstring box = L"\\box";
    for (const std::wstring& at : {desktop_ + box, desktop_ + L"\\" + kFolder + box}) {
      DeleteFileW((at + L"\\inside.txt").c_str());
      RemoveDirectoryW(at.c_str());
    }
    RemoveDirectoryW((desktop_ + L"\\" + kFolder).c_str());
    EXPECT_TRUE(Entries().empty());
  }

  std::vector<std::wstring> Entries() const {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data{};
    HANDLE search = FindFirstFileW((desktop_ + L"\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
      if (data.cFileName[0] != L'.') names.push_back(data.cFileName);
    } while (FindNextFileW(search, &data));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
  }

  void Make(const std::wstring& name) { WriteWholeFile(desktop_ + L"\\" + name, {'x'}); }
  bool IsThere(const std::wstring& name) const {
    return GetFileAttributesW((desktop_ + L"\\" + name).c_str()) != INVALID_FILE_ATTRIBUTES;
  }

  // Runs and answers the questions: for each name whether it is to move. Returns the
  // names that were asked about.
  std::vector<std::wstring> Run(const std::function<bool(const std::wstring&)>& moves,
                                std::size_t questions) {
    PostButton(dialog_, IDC_TIDY_RUN);
    std::vector<std::wstring> names;
    while (names.size() < questions) {
      const HWND box = companion_.Dialog(kAsk, 3000);
      if (!box) break;
      const std::wstring text = TextOf(GetDlgItem(box, 0xFFFF));
      const std::wstring tail = L" を整理します";
      EXPECT_EQ(text.substr(text.size() - tail.size()), tail);
      names.push_back(text.substr(0, text.size() - tail.size()));
      PostButton(box, moves(names.back()) ? IDYES : IDNO);
      WaitFor([&] { return !IsWindow(box); });
      if (companion_.FindDialog(kFailed)) break;
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  bool Done() {
    return WaitFor([&] { return IsWindowEnabled(dialog_) && !companion_.FindDialog(kAsk); });
  }

  std::wstring desktop_;
  bool owned_ = false;
  Companion companion_;
  HWND dialog_ = nullptr;
};

}  // namespace

TEST_F(TidyTest, AsksAboutEachItemAndMovesThoseThatAreToMove) {
  Make(L"one.txt");
  Make(L"two.txt");
  Make(L".dot");
  CreateDirectoryW((desktop_ + L"\\box").c_str(), nullptr);
  Make(L"box\\inside.txt");
  EXPECT_EQ(EditText(dialog_, IDC_TIDY_FOLDER), kFolder);
  EXPECT_EQ(Run([](const std::wstring& name) { return name != L"two.txt"; }, 3),
            (std::vector<std::wstring>{L"box", L"one.txt", L"two.txt"}));
  EXPECT_TRUE(Done());
  EXPECT_EQ(Entries(), (std::vector<std::wstring>{L"two.txt", kFolder}));
  EXPECT_TRUE(IsThere(L".dot"));
  EXPECT_TRUE(IsThere(kFolder + L"\\one.txt"));
  EXPECT_TRUE(IsThere(kFolder + L"\\box\\inside.txt"));
  EXPECT_TRUE(EndBy(dialog_, kClose));
}

TEST_F(TidyTest, ADesktopWithNothingButTheTidyFolderAsksNothing) {
  CreateDirectoryW((desktop_ + L"\\" + kFolder).c_str(), nullptr);
  PressButton(dialog_, IDC_TIDY_RUN);
  EXPECT_FALSE(companion_.FindDialog(kAsk));
  EXPECT_EQ(Entries(), (std::vector<std::wstring>{kFolder}));
  EXPECT_TRUE(EndBy(dialog_, kClose));
}

TEST_F(TidyTest, AMoveThatFailsOffersToStop) {
  CreateDirectoryW((desktop_ + L"\\" + kFolder).c_str(), nullptr);
  Make(L"one.txt");
  Make(kFolder + L"\\one.txt");
  for (const int answer : {IDNO, IDYES}) {
    Run([](const std::wstring&) { return true; }, 1);
    EXPECT_EQ(AnswerBox(companion_, kFailed, answer), L"one.txt を移動できません。処理を中止しますか");
    EXPECT_TRUE(Done());
    EXPECT_TRUE(IsThere(L"one.txt"));
  }
  EXPECT_TRUE(EndBy(dialog_, kClose));
}
