// Files are divided and restored through the real dialogs, and every byte on the disk
// is what the format says.
#include <gtest/gtest.h>

#include "resources/filetools_ids.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/divide_fixture.h"

namespace {

class DivideTest : public DivideFixture {
 protected:
  void RoundTrip(std::size_t size, int count, const std::wstring& keyword) {
    SCOPED_TRACE(testing::Message() << size << " bytes in " << count << " pieces, keyword of "
                                    << keyword.size());
    const FileBytes content = Content(size);
    Put(kSource, content);
    Divide(count, keyword);
    ExpectModel(Division(content, count, keyword));
    EXPECT_TRUE(keyBlocks_.insert(Part(Bytes(kCof), 1, 100)).second) << "the key block is a new one";
    Remove(kSource);
    EXPECT_EQ(Restore(keyword), L"ファイル復元を終了しました");
    EXPECT_TRUE(Exists(companion_.File(kSource)));
    EXPECT_TRUE(Bytes(kSource) == content);
    DeleteDivideFiles();
  }

 private:
  std::set<FileBytes> keyBlocks_;
};

}  // namespace

TEST_F(DivideTest, OnePieceEqualsTheFormatAndComesBack) {
  RoundTrip(5001, 1, L"");
  RoundTrip(0, 1, L"abcd");
  RoundTrip(1, 1, L"abcde");
  RoundTrip(10, 1, L"abcdefgh");
  RoundTrip(5000, 1, L"どんぐり");
}

TEST_F(DivideTest, TwoAndThreePiecesEqualTheFormatAndComeBack) {
  RoundTrip(0, 2, L"");
  RoundTrip(1, 2, L"どんぐり");
  RoundTrip(10, 3, L"abcde");
  RoundTrip(5000, 2, L"abcdefgh");
  RoundTrip(5001, 2, L"abcd");
}

TEST_F(DivideTest, NinetyNinePiecesEqualTheFormatAndComeBack) {
  RoundTrip(10, 99, L"");
  RoundTrip(5001, 99, L"abcd");
  RoundTrip(5000, 99, L"abcde");
  RoundTrip(1, 99, L"abcdefgh");
  RoundTrip(0, 99, L"かぎ");
}

TEST_F(DivideTest, AFileOf64MebibytesEqualsTheFormatAndComesBack) {
  RoundTrip(std::size_t{64} << 20U, 3, L"abcde");
}

TEST_F(DivideTest, TenBytesInThreePiecesArePlainSlicesOfThreeThreeAndFour) {
  const FileBytes content = Content(10);
  Put(kSource, content);
  Divide(3, L"");
  EXPECT_EQ(Bytes(Piece(1)), Part(content, 0, 3));
  EXPECT_EQ(Bytes(Piece(2)), Part(content, 3, 3));
  EXPECT_EQ(Bytes(Piece(3)), Part(content, 6, 4));
  const FileBytes cof = Bytes(kCof);
  ASSERT_EQ(cof.size(), kCofHead + 4 * kCofRecord);
  EXPECT_EQ(cof[0], 0);
  EXPECT_EQ(GetBig(cof, kCofHead), 0U);
  EXPECT_EQ(GetBig(cof, kCofHead + 4), 3U);
  EXPECT_EQ(Part(cof, kCofHead + 8, 11), (FileBytes{'l', 'e', 't', 't', 'e', 'r', '.', 'b', 'i', 'n', 0}));
  for (std::uint32_t piece = 1; piece <= 3; ++piece) {
    const std::size_t record = kCofHead + piece * kCofRecord;
    EXPECT_EQ(GetBig(cof, record), piece);
    EXPECT_EQ(GetBig(cof, record + 4), piece == 3 ? 4U : 3U);
    const auto digit = static_cast<unsigned char>('0' + piece);
    EXPECT_EQ(Part(cof, record + 8, 11), (FileBytes{'p', 'i', 'e', 'c', 'e', digit, '.', 'd', 'i', 'v', 0}));
  }
}

TEST_F(DivideTest, AnExistingTargetIsReplacedWithoutAQuestion) {
  Put(kSource, Content(300));
  Divide(2, L"abcd");
  Put(kSource, Content(9000));
  EXPECT_EQ(Restore(L"abcd"), L"ファイル復元を終了しました");
  EXPECT_EQ(Bytes(kSource), Content(300));
}

TEST_F(DivideTest, AKeywordOfThreeBytesIsRefused) {
  Put(kSource, Content(10));
  const HWND dialog = OpenDivide(2, true);
  PostButton(dialog, IDC_DIVIDE_RUN);
  TypeKeyword(L"abc");
  EXPECT_EQ(AnswerBox(companion_, L"キーワード設定エラー"),
            L"キーワードは半角4文字以上8文字までで入力します。");
  const HWND keyword = companion_.FindDialog(L"暗号化キーワード入力");
  ASSERT_TRUE(keyword) << "the dialog stays";
  EXPECT_TRUE(EndBy(keyword, kClose));
  ExpectIdle(dialog);
  EXPECT_EQ(DivideFiles(), std::set<std::wstring>());
  EXPECT_TRUE(EndBy(dialog, kClose));
}

TEST_F(DivideTest, OfAKeywordEightBytesCountAndACharacterCutThereStaysCut) {
  const FileBytes content = Content(300);
  Put(kSource, content);
  const HWND dialog = OpenDivide(3, true);
  PostButton(dialog, IDC_DIVIDE_RUN);
  TypeKeyword(L"123456789");
  EXPECT_EQ(AnswerBox(companion_, L"ファイル分割の実行"),
            L"重要: キーワード \"12345678\" はファイル復元時にも必要です。 分割を開始します。");
  EXPECT_EQ(Finish(kDivided), L"ファイル分割を終了しました");
  ExpectModel(Division(content, 3, L"12345678"));
  DeleteDivideFiles();

  PostButton(dialog, IDC_DIVIDE_RUN);
  TypeKeyword(L"1234567か");
  EXPECT_NE(AnswerBox(companion_, L"ファイル分割の実行"), L"");
  EXPECT_EQ(Finish(kDivided), L"ファイル分割を終了しました");
  ModelDivision division = Division(content, 3, L"");
  division.keyword = "1234567\x82";  // the first half of か
  ExpectModel(division);
  EXPECT_TRUE(EndBy(dialog, kClose));
  Remove(kSource);
  EXPECT_EQ(Restore(L"1234567か"), L"ファイル復元を終了しました");
  EXPECT_EQ(Bytes(kSource), content);
}
