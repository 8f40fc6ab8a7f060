// Runs of dividing and restoring that fail or are stopped, through the real dialogs.
#include <gtest/gtest.h>

#include "resources/filetools_ids.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/divide_fixture.h"

namespace {

const FileBytes kOld{'o', 'l', 'd'};

// Makes a file that no program can write, until it goes.
class ReadOnlyFile {
 public:
  explicit ReadOnlyFile(const std::wstring& path) : path_(path) {
    WriteWholeFile(path_, kOld);
    SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_READONLY);
    // Where the attribute means nothing to an administrator, another program that
    // reads the file keeps it from being written.
    guard_ = CreateFileW(path_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(guard_, INVALID_HANDLE_VALUE);
  }
  ~ReadOnlyFile() {
    CloseHandle(guard_);
    SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
  }
  ReadOnlyFile(const ReadOnlyFile&) = delete;
  ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

 private:
  std::wstring path_;
  HANDLE guard_;
};

class DivideFailuresTest : public DivideFixture {
 protected:
  std::wstring Path(const std::wstring& name) const { return companion_.File(name); }
};

}  // namespace

// --- Dividing

TEST_F(DivideFailuresTest, ASourceThatIsGoneGivesTwoBoxesAndNoProgress) {
  Put(kSource, Content(10));
  const HWND dialog = OpenDivide(3, false);
  Remove(kSource);
  PostButton(dialog, IDC_DIVIDE_RUN);
  ExpectBoxes({kCannotOpen, kCannotWrite});
  ExpectIdle(dialog);
  EXPECT_EQ(DivideFiles(), std::set<std::wstring>());
  EXPECT_TRUE(EndBy(dialog, kClose));
}

TEST_F(DivideFailuresTest, AReadOnlyJoiningFileGivesTwoBoxesAndStaysAsItIs) {
  Put(kSource, Content(10));
  const HWND dialog = OpenDivide(3, false);
  {
    const ReadOnlyFile old(Path(kCof));
    PostButton(dialog, IDC_DIVIDE_RUN);
    ExpectBoxes({kCannotMakeCof, kCannotWrite});
    ExpectIdle(dialog);
    EXPECT_EQ(DivideFiles(), std::set<std::wstring>{kCof});
    EXPECT_TRUE(OpensAlone(Path(kSource)));
  }
  EXPECT_EQ(Bytes(kCof), kOld);
  PostButton(dialog, IDC_DIVIDE_RUN);
  EXPECT_EQ(Finish(kDivided), L"ファイル分割を終了しました");
  ExpectModel(Division(Content(10), 3, L""));
  EXPECT_TRUE(EndBy(dialog, kClose));
}

TEST_F(DivideFailuresTest, AReadOnlyPieceStopsTheRunThere) {
  const FileBytes content = Content(10);
  Put(kSource, content);
  const HWND dialog = OpenDivide(3, false);
  {
    const ReadOnlyFile old(Path(Piece(2)));
    PostButton(dialog, IDC_DIVIDE_RUN);
    EXPECT_EQ(Finish(kFailed), kCannotWrite);
    ExpectIdle(dialog);
    EXPECT_EQ(DivideFiles(), (std::set<std::wstring>{kCof, Piece(1), Piece(2)}));
  }
  EXPECT_EQ(Bytes(Piece(2)), kOld);
  Remove(Piece(2));
  ExpectModel(Division(content, 3, L""));  // as far as it came
  EXPECT_EQ(Bytes(kCof).size(), kCofHead + 2 * kCofRecord);
  for (const std::wstring& name : {kSource, kCof, Piece(1)}) EXPECT_TRUE(OpensAlone(Path(name)));
  EXPECT_TRUE(EndBy(dialog, kClose));
}

TEST_F(DivideFailuresTest, ASourceThatHasShrunkLeavesItsPieceOpenUntilTheNextRun) {
  const FileBytes content = Content(300);
  Put(kSource, content);
  const HWND dialog = OpenDivide(3, false);
  Put(kSource, Part(content, 0, 150));
  PostButton(dialog, IDC_DIVIDE_RUN);
  EXPECT_EQ(Finish(kFailed), kCannotWrite);
  ExpectIdle(dialog);
  EXPECT_EQ(DivideFiles(), (std::set<std::wstring>{kCof, Piece(1), Piece(2)}));
  EXPECT_EQ(Bytes(kCof).size(), kCofHead + 2 * kCofRecord);
  EXPECT_EQ(Bytes(Piece(1)), Part(content, 0, 100));
  EXPECT_EQ(Bytes(Piece(2)), FileBytes()) << "no whole block has come";
  EXPECT_TRUE(OpensAlone(Path(kSource)));
  EXPECT_TRUE(OpensAlone(Path(Piece(1))));
  EXPECT_FALSE(OpensAlone(Path(kCof)));
  EXPECT_FALSE(OpensAlone(Path(Piece(2))));

  Put(kSource, content);
  PostButton(dialog, IDC_DIVIDE_RUN);
  EXPECT_EQ(Finish(kDivided), L"ファイル分割を終了しました");
  ExpectModel(Division(content, 3, L""));
  for (const std::wstring& name : DivideFiles()) EXPECT_TRUE(OpensAlone(Path(name)));
  EXPECT_TRUE(EndBy(dialog, kClose));
}

TEST_F(DivideFailuresTest, AStoppedDivisionKeepsItsWholePieces) {
  const FileBytes content = Content(5001);
  Put(kSource, content);
  for (const std::wstring keyword : {L"", L"abcde"}) {
    const HWND dialog = OpenDivide(99, !keyword.empty());
    PostButton(dialog, IDC_DIVIDE_RUN);
    if (!keyword.empty()) ConfirmKeyword(keyword);
    StopInTheMiddle(dialog, kDivideProgress);
    ExpectModel(Division(content, 99, keyword));
    const std::size_t records = (Bytes(kCof).size() - kCofHead) / kCofRecord;
    EXPECT_GE(records, 4U);
    EXPECT_LT(records, 100U);
    EXPECT_TRUE(OpensAlone(Path(kSource)));
    for (const std::wstring& name : DivideFiles()) EXPECT_TRUE(OpensAlone(Path(name)));
    EXPECT_TRUE(EndBy(dialog, kClose));
    DeleteDivideFiles();
  }
}

// --- Restoring

TEST_F(DivideFailuresTest, AReadOnlyTargetGivesOneBoxAndTheProgressStays) {
  const FileBytes content = Content(10);
  Put(kSource, content);
  Divide(3, L"abcdefgh");
  const HWND dialog = OpenRestore();
  {
    const ReadOnlyFile old(Path(kSource));
    PostButton(dialog, IDC_DIVIDE_RUN);
    TypeKeyword(L"abcdefgh");
    ExpectBoxes({kCannotRead});
    ExpectProgressUntilStopped(dialog);
    for (const std::wstring& name : DivideFiles()) EXPECT_TRUE(OpensAlone(Path(name)));
  }
  EXPECT_EQ(Bytes(kSource), kOld);
  PostButton(dialog, IDC_DIVIDE_RUN);
  TypeKeyword(L"abcdefgh");
  EXPECT_EQ(Finish(kRestored), L"ファイル復元を終了しました");
  EXPECT_EQ(Bytes(kSource), content);
  EXPECT_TRUE(EndBy(dialog, kClose));
}

TEST_F(DivideFailuresTest, AStoppedRestoreKeepsTheWholePiecesThatItRead) {
  const FileBytes content = Content(5001);  // 98 pieces of 50 bytes and one of 101
  Put(kSource, content);
  for (const std::wstring keyword : {L"", L"どんぐり"}) {
    Divide(99, keyword);
    Remove(kSource);
    const HWND dialog = OpenRestore();
    PostButton(dialog, IDC_DIVIDE_RUN);
    if (!keyword.empty()) TypeKeyword(keyword);
    StopInTheMiddle(dialog, kRestoreProgress);
    const FileBytes target = Bytes(kSource);
    EXPECT_GE(target.size(), 150U);
    EXPECT_LT(target.size(), content.size());
    EXPECT_EQ(target.size() % 50, 0U);
    EXPECT_EQ(target, Part(content, 0, target.size()));
    ExpectModel(Division(content, 99, keyword));
    EXPECT_TRUE(OpensAlone(Path(kSource)));
    for (const std::wstring& name : DivideFiles()) EXPECT_TRUE(OpensAlone(Path(name)));
    EXPECT_TRUE(EndBy(dialog, kClose));
    DeleteDivideFiles();
    Put(kSource, content);
  }
}

TEST_F(DivideFailuresTest, WithAWrongKeywordThePiecesCannotBeRead) {
  Put(kSource, Content(300));
  Divide(3, L"abcd");
  Remove(kSource);
  // Off by one in the last letter: every fourth byte of the names and numbers is, so
  // that "letter.bin" is made by another name and no "pie?e" is there.
  EXPECT_EQ(Restore(L"abce", kFailed), kCannotRead);
  EXPECT_FALSE(Exists(Path(kSource)));
  EXPECT_TRUE(Exists(Path(L"letser.ain")));
  EXPECT_EQ(Bytes(L"letser.ain"), FileBytes());
}

TEST_F(DivideFailuresTest, AMissingOrCutPieceStopsTheRunAndTheTargetKeepsWhatWasRead) {
  const FileBytes content = Content(300);
  Put(kSource, content);
  Divide(3, L"");
  const FileBytes first = Part(content, 0, 100);
  const FileBytes second = Bytes(Piece(2));
  ASSERT_EQ(second.size(), 100U);

  Remove(Piece(2));
  EXPECT_EQ(Restore(L"", kFailed), kCannotRead);
  EXPECT_EQ(Bytes(kSource), first);

  Put(Piece(2), Part(second, 0, 99));
  EXPECT_EQ(Restore(L"", kFailed), kCannotRead);
  EXPECT_EQ(Bytes(kSource), first);
  Put(Piece(2), second);
  EXPECT_EQ(Restore(L""), L"ファイル復元を終了しました");
  EXPECT_EQ(Bytes(kSource), content);
}
