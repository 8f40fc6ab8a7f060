// A hundred files are backed up and compared through the real dialogs.
#include <gtest/gtest.h>

#include <cstring>

#include "resources/filetools_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kBackUpCommand = 1901;
constexpr int kClose = 2;
constexpr int kFileMax = 100;

// The settings file.
constexpr std::size_t kSetSize = 120605;
constexpr std::size_t kSetCount = 45;
constexpr std::size_t kSetFolder = 49;
constexpr std::size_t kSetSources = 60349;
constexpr std::size_t kSetText = 600;

void PutText(std::vector<unsigned char>& bytes, std::size_t at, const std::wstring& text) {
  char narrow[kSetText] = "";
  WideCharToMultiByte(932, 0, text.c_str(), -1, narrow, kSetText, nullptr, nullptr);
  std::memcpy(bytes.data() + at, narrow, std::strlen(narrow) + 1);
}

class BackUpTest : public testing::Test {
 protected:
  void SetUp() override {
    for (int i = 0; i < kFileMax; ++i) WriteWholeFile(Source(i), Content(i));
    CreateDirectoryW(companion_.File(L"copies").c_str(), nullptr);
    // All but the last source come from a settings file.
    std::vector<unsigned char> set(kSetSize);
    PutText(set, 0, L"File BackUp Setting DATA for MIRRELL HOME:   ");
    PutBig(set, kSetCount, kFileMax - 1);
    for (int i = 0; i < kFileMax - 1; ++i) {
      PutText(set, kSetSources + static_cast<std::size_t>(i) * kSetText, Source(i));
    }
    WriteWholeFile(companion_.File(L"all.BUP"), set);
    companion_.Start();
    companion_.Post(kBackUpCommand);
    dialog_ = companion_.Dialog(L"ファイル バックアップ");
    ASSERT_TRUE(dialog_);
    ASSERT_TRUE(PickFile(companion_, dialog_, IDC_BACKUP_LOAD, L"all.BUP"));
    ASSERT_TRUE(WaitFor([&] { return ListRowCount(dialog_, IDC_BACKUP_SOURCES) == kFileMax - 1; }));
    ASSERT_TRUE(PickFile(companion_, dialog_, IDC_BACKUP_ADD, L"source99.txt"));
    ASSERT_TRUE(WaitFor([&] { return ListRowCount(dialog_, IDC_BACKUP_SOURCES) == kFileMax; }));
    ASSERT_TRUE(PickFolder(companion_, dialog_, IDC_BACKUP_FOLDER, L"バックアップ先ディレクトリ指定",
                                  L"copies"));
    ASSERT_TRUE(WaitFor([&] { return ListRowCount(dialog_, IDC_BACKUP_COPIES) == kFileMax; }));
  }

  static std::wstring Name(int i) { return L"source" + std::to_wstring(i) + L".txt"; }
  std::wstring Source(int i) const { return companion_.File(Name(i)); }
  std::wstring Copy(int i) const { return companion_.File(L"copies\\" + Name(i)); }
  static std::vector<unsigned char> Content(int i) {
    return std::vector<unsigned char>(static_cast<std::size_t>(i) * 211, static_cast<unsigned char>(i));
  }
  static bool IsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
  }

  std::wstring Run(const std::wstring& box) {
    PostButton(dialog_, IDC_BACKUP_RUN);
    TickUntil(companion_, [&] { return companion_.FindDialog(box) != nullptr; });
    return AnswerBox(companion_, box);
  }

  Companion companion_;
  HWND dialog_ = nullptr;
};

}  // namespace

TEST_F(BackUpTest, AHundredFilesAreCopiedAndComparedByDateAndContent) {
  EXPECT_EQ(ListRowText(dialog_, IDC_BACKUP_COPIES, 99),
            L"source99.txt [" + companion_.File(L"copies") + L"\\]");
  PostButton(dialog_, IDC_BACKUP_ADD);
  EXPECT_EQ(AnswerBox(companion_, L"ファイル登録リミット"),
            L"バックアップファイルの登録最大数は１００個です");
  PostButton(dialog_, IDC_BACKUP_CONTENTS);
  EXPECT_EQ(AnswerBox(companion_, L"内容で比較エラー"), L"バックアップ先ファイルがありません");

  EXPECT_EQ(Run(L"ファイルバックアップ完了"), L"バックアップ先にファイルをコピーしました");
  for (int i = 0; i < kFileMax; ++i) EXPECT_EQ(ReadWholeFile(Copy(i)), Content(i)) << i;

  PostButton(dialog_, IDC_BACKUP_DATES);
  EXPECT_EQ(AnswerBox(companion_, L"日付で比較"), L"ファイルの日付に違いはありません");
  PostButton(dialog_, IDC_BACKUP_CONTENTS);
  EXPECT_EQ(AnswerBox(companion_, L"内容で比較"), L"ファイル内容に違いはありません");

  // The last byte of the second block differs.
  std::vector<unsigned char> changed = Content(99);
  ASSERT_GT(changed.size(), 20000U);
  changed[19999] = 0;
  WriteWholeFile(Copy(99), changed);
  const HWND contents = OpenBy(companion_, dialog_, IDC_BACKUP_CONTENTS, L"バックアップファイル内容比較");
  ASSERT_TRUE(contents);
  EXPECT_EQ(ListRowCount(contents, IDC_BACKUP_ROWS), 1);
  EXPECT_EQ(ListRowText(contents, IDC_BACKUP_ROWS, 0).substr(0, 14), L"source99.txt (");
  EXPECT_TRUE(EndBy(contents, kClose));

  ASSERT_TRUE(DeleteFileW(Copy(7).c_str()));
  const HWND dates = OpenBy(companion_, dialog_, IDC_BACKUP_DATES, L"バックアップファイル日付比較");
  ASSERT_TRUE(dates);
  const std::wstring row = ListRowText(dates, IDC_BACKUP_ROWS, 0);
  EXPECT_EQ(row.substr(0, 13), L"source7.txt (");
  EXPECT_EQ(row.substr(row.size() - 12), L" -  ****** )");
  EXPECT_TRUE(EndBy(dates, kClose));
  EXPECT_TRUE(EndBy(dialog_, kClose));
}

TEST_F(BackUpTest, ACopyThatFailsInTheMiddleStopsTheRunThere) {
  ASSERT_TRUE(DeleteFileW(Source(50).c_str()));
  EXPECT_EQ(Run(L"ファイルバックアップエラー"), L"ファイルをコピーできません");
  EXPECT_TRUE(IsThere(Copy(0)));
  EXPECT_TRUE(IsThere(Copy(49)));
  for (int i = 50; i < kFileMax; ++i) EXPECT_FALSE(IsThere(Copy(i))) << i;
  EXPECT_FALSE(companion_.FindDialog(L"ファイルバックアップ完了"));
  PostButton(dialog_, IDC_BACKUP_DATES);
  EXPECT_EQ(AnswerBox(companion_, L"日付で比較エラー", IDOK), L"バックアップ ソース ファイルがありません");
  EXPECT_TRUE(EndBy(dialog_, kClose));
}
