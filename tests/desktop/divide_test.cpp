// Files are divided and restored through the real dialogs.
#include <gtest/gtest.h>

#include "resources/ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kChooseCommand = 1915;
constexpr int kOk = 1;
constexpr int kClose = 2;

const std::wstring kSource = L"letter.bin";

// Bytes without a pattern that a shifted block could hide in.
std::vector<unsigned char> Content(std::size_t size) {
  std::vector<unsigned char> bytes(size);
  std::uint32_t state = 12345;
  for (unsigned char& byte : bytes) {
    state = state * 1664525U + 1013904223U;
    byte = static_cast<unsigned char>(state >> 24U);
  }
  return bytes;
}

class DivideTest : public testing::Test {
 protected:
  void SetUp() override { companion_.Start(); }

  HWND Choose(int button, const std::wstring& title) {
    companion_.Post(kChooseCommand);
    const HWND choice = companion_.Dialog(L"ファイル 分割/復元選択");
    return choice ? OpenBy(companion_, choice, button, title) : nullptr;
  }

  void Keyword(const std::wstring& keyword) {
    const HWND dialog = companion_.Dialog(L"暗号化キーワード入力");
    ASSERT_TRUE(dialog);
    SetEdit(dialog, IDC_DIVIDE_KEYWORD, keyword);
    PostButton(dialog, kOk);
  }

  // Divides kSource beside itself into pieces "piece<n>.div".
  void Divide(int count, const std::wstring& keyword) {
    const HWND dialog = Choose(IDC_DIVIDE_CHOOSE_DIVIDE, L"ファイル 分割");
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(PickFile(companion_, dialog, IDC_DIVIDE_PICK, kSource));
    ASSERT_TRUE(
        PickFolder(companion_, dialog, IDC_DIVIDE_PICK_FOLDER, L"分割ファイル格納先ディレクトリ選択"));
    EXPECT_EQ(EditText(dialog, IDC_DIVIDE_FOLDER), companion_.Folder());
    SetEdit(dialog, IDC_DIVIDE_NAME, L"piece");
    SetEdit(dialog, IDC_DIVIDE_COUNT, std::to_wstring(count));
    SetChecked(dialog, IDC_DIVIDE_ENCRYPT, !keyword.empty());
    PostButton(dialog, IDC_DIVIDE_RUN);
    if (!keyword.empty()) {
      Keyword(keyword);
      EXPECT_EQ(AnswerBox(companion_, L"ファイル分割の実行"),
                L"重要: キーワード \"" + keyword + L"\" はファイル復元時にも必要です。 分割を開始します。");
    }
    EXPECT_EQ(Finish(L"分割を正常終了"), L"ファイル分割を終了しました");
    EXPECT_TRUE(EndBy(dialog, kClose));
  }

  // Restores into the same folder; the text of the box that ends the run.
  std::wstring Restore(const std::wstring& keyword, const std::wstring& box = L"復元を正常終了") {
    const HWND dialog = Choose(IDC_DIVIDE_CHOOSE_RESTORE, L"ファイル 復元");
    EXPECT_TRUE(PickFile(companion_, dialog, IDC_DIVIDE_PICK, L"piece0.cof"));
    EXPECT_TRUE(
        PickFolder(companion_, dialog, IDC_DIVIDE_PICK_FOLDER, L"合成ファイル格納先ディレクトリ選択"));
    PostButton(dialog, IDC_DIVIDE_RUN);
    if (!keyword.empty()) Keyword(keyword);
    const std::wstring text = Finish(box);
    EXPECT_TRUE(EndBy(dialog, kClose));
    return text;
  }

  std::wstring Finish(const std::wstring& box) {
    TickUntil(
        companion_, [&] { return companion_.FindDialog(box) != nullptr; }, 60000);
    const std::wstring text = AnswerBox(companion_, box);
    EXPECT_TRUE(WaitFor([&] { return companion_.Value(kShowProgressMode) == 0; }));
    return text;
  }

  std::wstring Piece(int number) const {
    return companion_.File(L"piece" + std::to_wstring(number) + L".div");
  }

  void RoundTrip(std::size_t size, int count, const std::wstring& keyword) {
    SCOPED_TRACE(testing::Message() << size << " bytes in " << count << " pieces, keyword of "
                                    << keyword.size());
    const std::vector<unsigned char> content = Content(size);
    WriteWholeFile(companion_.File(kSource), content);
    Divide(count, keyword);
    EXPECT_EQ(ReadWholeFile(companion_.File(L"piece0.cof")).size(),
              101 + 308 * (static_cast<std::size_t>(count) + 1));
    ASSERT_TRUE(DeleteFileW(companion_.File(kSource).c_str()));
    EXPECT_EQ(Restore(keyword), L"ファイル復元を終了しました");
    EXPECT_TRUE(GetFileAttributesW(companion_.File(kSource).c_str()) != INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(ReadWholeFile(companion_.File(kSource)) == content);
    for (int i = 1; i <= 100; ++i) DeleteFileW(Piece(i).c_str());
  }

  Companion companion_;
};

}  // namespace

TEST_F(DivideTest, RestoredFilesEqualWhatWasDivided) {
  RoundTrip(0, 3, L"");
  RoundTrip(1, 3, L"abcd");
  RoundTrip(10, 3, L"abcde");
  RoundTrip(5000, 2, L"abcdefgh");
  RoundTrip(5001, 1, L"どんぐり");
  RoundTrip(5001, 99, L"abcd");
}

TEST_F(DivideTest, AFileOf64MebibytesComesBackWhole) {
  RoundTrip(std::size_t{64} << 20U, 3, L"abcde");
}

TEST_F(DivideTest, TenBytesInThreePiecesArePlainSlicesOfThreeThreeAndFour) {
  const std::vector<unsigned char> content = Content(10);
  WriteWholeFile(companion_.File(kSource), content);
  Divide(3, L"");
  EXPECT_EQ(ReadWholeFile(Piece(1)), std::vector<unsigned char>(content.begin(), content.begin() + 3));
  EXPECT_EQ(ReadWholeFile(Piece(2)), std::vector<unsigned char>(content.begin() + 3, content.begin() + 6));
  EXPECT_EQ(ReadWholeFile(Piece(3)), std::vector<unsigned char>(content.begin() + 6, content.end()));
}

TEST_F(DivideTest, WithAWrongKeywordThePiecesCannotBeRead) {
  WriteWholeFile(companion_.File(kSource), Content(300));
  Divide(3, L"abcd");
  ASSERT_TRUE(DeleteFileW(companion_.File(kSource).c_str()));
  // Off by one in the last letter: every fourth byte of the names and numbers is.
  EXPECT_EQ(Restore(L"abce", L"分割エラー"), L"分割データファイルが読み込めません");
  EXPECT_EQ(GetFileAttributesW(companion_.File(kSource).c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(DivideTest, AMissingOrCutPieceStopsTheRunAndTheTargetKeepsWhatWasRead) {
  const std::vector<unsigned char> content = Content(300);
  WriteWholeFile(companion_.File(kSource), content);
  Divide(3, L"");
  const std::vector<unsigned char> first(content.begin(), content.begin() + 100);
  const std::vector<unsigned char> second = ReadWholeFile(Piece(2));
  ASSERT_EQ(second.size(), 100U);

  ASSERT_TRUE(DeleteFileW(Piece(2).c_str()));
  EXPECT_EQ(Restore(L"", L"分割エラー"), L"分割データファイルが読み込めません");
  EXPECT_EQ(ReadWholeFile(companion_.File(kSource)), first);

  WriteWholeFile(Piece(2), {second.begin(), second.end() - 1});
  EXPECT_EQ(Restore(L"", L"分割エラー"), L"分割データファイルが読み込めません");
  WriteWholeFile(Piece(2), second);
  EXPECT_EQ(Restore(L""), L"ファイル復元を終了しました");
  EXPECT_EQ(ReadWholeFile(companion_.File(kSource)), content);
}

TEST_F(DivideTest, AKeywordOfThreeBytesIsRefused) {
  WriteWholeFile(companion_.File(kSource), Content(10));
  const HWND dialog = Choose(IDC_DIVIDE_CHOOSE_DIVIDE, L"ファイル 分割");
  ASSERT_TRUE(dialog);
  ASSERT_TRUE(PickFile(companion_, dialog, IDC_DIVIDE_PICK, kSource));
  SetChecked(dialog, IDC_DIVIDE_ENCRYPT, true);
  PostButton(dialog, IDC_DIVIDE_RUN);
  Keyword(L"abc");
  EXPECT_EQ(AnswerBox(companion_, L"キーワード設定エラー"),
            L"キーワードは半角4文字以上8文字までで入力します。");
  const HWND keyword = companion_.FindDialog(L"暗号化キーワード入力");
  ASSERT_TRUE(keyword) << "the dialog stays";
  EXPECT_TRUE(EndBy(keyword, kClose));
  EXPECT_EQ(companion_.Value(kShowProgressMode), 0);
  EXPECT_TRUE(EndBy(dialog, kClose));
}
