// A restore from a joining file that ends too early, through the real dialogs.
#include <gtest/gtest.h>

#include "resources/filetools_ids.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/divide_fixture.h"

namespace {

constexpr int kPieces = 3;
constexpr std::size_t kSize = 10;  // pieces of 3, 3 and 4 bytes
constexpr std::size_t kFirstPiece = kCofHead + kCofRecord;

const FileBytes kOldTarget{'o', 'l', 'd'};

class DivideCutTest : public DivideFixture {
 protected:
  // Divides, and opens the restore with an older file in the target's place.
  void Begin(const std::wstring& keyword) {
    keyword_ = keyword;
    content_ = Content(kSize);
    Put(kSource, content_);
    Divide(kPieces, keyword);
    cof_ = Bytes(kCof);
    ASSERT_EQ(cof_.size(), kCofHead + (kPieces + 1) * kCofRecord);
    files_ = DivideFiles();
    dialog_ = OpenRestore();
  }

  // Starts a restore from the first bytes of the joining file.
  void RunCut(std::size_t size) {
    Put(kSource, kOldTarget);
    Put(kCof, Part(cof_, 0, size));
    PostButton(dialog_, IDC_DIVIDE_RUN);
    if (!keyword_.empty() && size > 0) TypeKeyword(keyword_);
  }

  void ExpectFailedStart(std::size_t size) {
    SCOPED_TRACE(size);
    RunCut(size);
    ExpectBoxes({kCannotRead});
    ExpectProgressUntilStopped(dialog_);
    EXPECT_EQ(Bytes(kSource), kOldTarget);
    ExpectFilesFree();
  }

  // The target keeps `whole` pieces.
  void ExpectFailedPiece(std::size_t size, std::size_t whole) {
    SCOPED_TRACE(size);
    RunCut(size);
    EXPECT_EQ(Finish(kFailed), kCannotRead);
    ExpectIdle(dialog_);
    EXPECT_EQ(Bytes(kSource), Part(content_, 0, whole * 3));
    ExpectFilesFree();
  }

  void ExpectFilesFree() {
    EXPECT_EQ(DivideFiles(), files_);
    EXPECT_TRUE(OpensAlone(companion_.File(kSource)));
    for (const std::wstring& name : files_) EXPECT_TRUE(OpensAlone(companion_.File(name)));
  }

  void CutEverywhere() {
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, std::size_t{50}, kCofHead, kCofHead + 6, kFirstPiece - 1}) {
      ExpectFailedStart(size);
    }
    for (std::size_t piece = 0; piece < kPieces; ++piece) {
      const std::size_t record = kFirstPiece + piece * kCofRecord;
      ExpectFailedPiece(record, piece);
      ExpectFailedPiece(record + kCofRecord - 1, piece);
    }
    RunCut(cof_.size());
    EXPECT_EQ(Finish(kRestored), L"ファイル復元を終了しました");
    EXPECT_EQ(Bytes(kSource), content_);
    EXPECT_TRUE(EndBy(dialog_, kClose));
  }

  HWND dialog_ = nullptr;
  std::wstring keyword_;
  FileBytes content_;
  FileBytes cof_;
  std::set<std::wstring> files_;
};

}  // namespace

TEST_F(DivideCutTest, APlainJoiningFileFailsAtEveryRecordInItsWay) {
  Begin(L"");
  CutEverywhere();
}

TEST_F(DivideCutTest, AScrambledJoiningFileFailsAtEveryRecordInItsWay) {
  Begin(L"どんぐり");
  CutEverywhere();
}

TEST_F(DivideCutTest, AJoiningFileThatIsGoneGivesTwoBoxesAndTheProgressStays) {
  Begin(L"");
  Put(kSource, kOldTarget);
  Remove(kCof);
  files_.erase(kCof);
  PostButton(dialog_, IDC_DIVIDE_RUN);
  ExpectBoxes({kCannotOpen, kCannotRead});
  ExpectProgressUntilStopped(dialog_);
  EXPECT_EQ(Bytes(kSource), kOldTarget);
  ExpectFilesFree();
  EXPECT_TRUE(EndBy(dialog_, kClose));
}
