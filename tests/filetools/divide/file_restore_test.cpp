// A restore: what it needs, what it leaves, and what stops it.
#include <unistd.h>

#include <filesystem>

#include "services/data_file.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

TEST_F(DivideTest, AMovedJoiningFileRestoresWithItsPieces) {
  ASSERT_EQ(Divide(Simple(5001, 3, "abcd")), 0);
  std::filesystem::rename(PosixPath(kPieces), PosixPath("C:\\moved"));
  ASSERT_EQ(Restore("abcd", "C:\\moved\\part0.cof"), 0);
  EXPECT_EQ(Target(), Bytes(5001));
}

TEST_F(DivideTest, AMissingPieceStopsThereAndTheTargetKeepsThePiecesBefore) {
  ASSERT_EQ(Divide(Simple(30, 3)), 0);
  RemoveFile("C:\\mirrell\\pieces\\part2.div");
  EXPECT_EQ(Restore(), -1);
  EXPECT_EQ(Target(), Bytes(30).substr(0, 10));
}

TEST_F(DivideTest, ACutPieceStopsThereAndTheTargetKeepsItsWholeBlocks) {
  ASSERT_EQ(Divide(Simple(24000, 2)), 0);
  for (const int size : {0, 1, 4999, 5000, 5001, 9999, 10000, 11999}) {
    ASSERT_EQ(truncate(PosixPath("C:\\mirrell\\pieces\\part2.div").c_str(), size), 0);
    EXPECT_EQ(Restore(), -11);
    EXPECT_EQ(Target().size(), 12000U + size / 5000 * 5000) << size;
    PutFile("C:\\mirrell\\pieces\\part2.div", Bytes(24000).substr(12000));
  }
}

TEST_F(DivideTest, APieceLongerThanItsRecordIsCutSilently) {
  ASSERT_EQ(Divide(Simple(20, 2)), 0);
  PutFile("C:\\mirrell\\pieces\\part1.div", PieceNo(1) + "more");
  EXPECT_EQ(Restore(), 0);
  EXPECT_EQ(Target(), Bytes(20));
}

TEST_F(DivideTest, AFileOfTheStoredNameIsReplacedWithoutAQuestion) {
  ASSERT_EQ(Divide(Simple(20, 2)), 0);
  PutFile("C:\\mirrell\\restored\\source.bin", Bytes(9000));
  EXPECT_EQ(Restore(), 0);
  EXPECT_EQ(Target(), Bytes(20));
}

TEST_F(DivideTest, TheJoiningFileCutAtEveryByteFailsInItsOwnWay) {
  for (const char* keyword : {"", "abcde"}) {
    ASSERT_EQ(Divide(Simple(20, 2, keyword)), 0);
    const std::string cof = FileBytes(kCof);
    ASSERT_EQ(cof.size(), 101U + 3 * 308);
    for (int size = static_cast<int>(cof.size()) - 1; size >= 0; --size) {
      ASSERT_EQ(truncate(PosixPath(kCof).c_str(), size), 0);
      ASSERT_EQ(Restore(keyword), size < 101 ? -2 : -11) << size;
      // The first piece is there as soon as its record is.
      if (size >= 101 + 308) {
        ASSERT_EQ(Target(), size < 101 + 2 * 308 ? "" : Bytes(20).substr(0, 10)) << size;
      }
    }
  }
}

TEST_F(DivideTest, AWrongKeywordFailsOrGivesAWrongFile) {
  ASSERT_EQ(Divide(Simple(50, 3, "abcd")), 0);
  EXPECT_NE(Restore("abce"), 0);
  EXPECT_FALSE(FileThere("C:\\mirrell\\restored\\source.bin"));
  EXPECT_EQ(Restore("abcd"), 0) << "nothing of the wrong try stays";
}

TEST_F(DivideTest, AFlagOfOneWithoutAKeywordIsReadWithoutHarm) {
  ASSERT_EQ(Divide(Simple(50, 3, "abcd")), 0);
  EXPECT_NE(Restore(""), 0);
}

TEST_F(DivideTest, ARestoreLeavesFlagAndPiecePathBehind) {
  ASSERT_EQ(Divide(Simple(50, 2)), 0);
  FileDivide.encryptFlag = 1;
  ASSERT_EQ(Restore(), 0);
  EXPECT_EQ(FileDivide.encryptFlag, 0);
  EXPECT_STREQ(FileDivide.cofDir, "C:\\mirrell\\pieces\\");
  EXPECT_STREQ(FileDivide.baseName, "C:\\mirrell\\pieces\\\\part2.div");
}

TEST_F(DivideTest, TheLastFourBytesOfAKeyBlockReadGoIntoTheNextDivision) {
  ASSERT_EQ(Divide(Simple(50, 2)), 0);
  std::string cof = FileBytes(kCof);
  cof.replace(97, 4, "tail");
  PutFile(kCof, cof);
  ASSERT_EQ(Restore(), 0);
  ASSERT_EQ(Divide(Simple(50, 2)), 0);
  EXPECT_EQ(FileBytes(kCof).substr(97, 4), "tail");
}

TEST_F(DivideTest, TheFlagOfAJoiningFile) {
  PutFile(kCof, std::string("\7rest"));
  EXPECT_EQ(CofReadFlag(kCof), 7);
  EXPECT_EQ(FileResult.FileStatus, 0);
  PutFile(kCof, "");
  EXPECT_EQ(CofReadFlag(kCof), 0);
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_EQ(CofReadFlag("C:\\none.cof"), 0);
  EXPECT_EQ(FileResult.FileStatus, -1);
}

}  // namespace
