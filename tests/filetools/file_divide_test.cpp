#include "filetools/file_divide.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <random>
#include <set>

#include "filetools/cof_record.h"
#include "filetools/div_key_block.h"
#include "filetools/div_scramble.h"
#include "shell/big_endian.h"
#include "tests/filetools/divide_fixture.h"

namespace {

class DivideTest : public DivideFixture {};

const char* const kKeywords[] = {"", "abcd", "abcde", "secret6", "abcdefgh", "かぎ", "秘密の鍵"};

// --- Against the model

void ExpectModel(const ModelDivision& division, const std::string& folder) {
  const ModelResult model = ModelDivide(division);
  std::set<std::string> names{"part0.cof"};
  EXPECT_TRUE(FileBytes(folder + "\\part0.cof") == model.cof);
  for (const auto& [name, bytes] : model.pieces) {
    EXPECT_TRUE(FileBytes(folder + "\\" + name) == bytes) << name;
    names.insert(name);
  }
  const std::vector<std::string> there = FolderNames(folder);
  EXPECT_EQ(std::set<std::string>(there.begin(), there.end()), names);
}

TEST_F(DivideTest, PiecesAndJoiningFileEqualTheModelAndComeBack) {
  std::uint32_t seed = 1;
  for (const char* keyword : kKeywords) {
    for (const int count : {1, 2, 3, 99}) {
      for (const std::size_t size : {0U, 1U, 10U, 5000U, 5001U}) {
        ModelDivision division = Simple(size, count, keyword);
        division.seed = seed++;
        for (const std::string& name : FolderNames(kPieces)) RemoveFile(std::string(kPieces) + "\\" + name);
        ASSERT_EQ(Divide(division), 0);
        ExpectModel(division, kPieces);
        FileDivide.encryptFlag = 0;
        std::memset(FileDivide.scrambleTable, 0xEE, sizeof FileDivide.scrambleTable);
        ASSERT_EQ(Restore(keyword), 0);
        ASSERT_TRUE(Target() == division.source) << keyword << " " << count << " " << size;
      }
    }
  }
}

TEST_F(DivideTest, AFileOfSeveralTransfersEqualsTheModelAndComesBack) {
  for (const char* keyword : {"", "abcdefg"}) {
    const ModelDivision division = Simple(2565001, 1, keyword);
    ASSERT_EQ(Divide(division), 0);
    const ModelResult model = ModelDivide(division);
    EXPECT_TRUE(FileBytes(kCof) == model.cof);
    for (const auto& [name, bytes] : model.pieces) EXPECT_TRUE(Piece(name) == bytes);
    ASSERT_EQ(Restore(keyword), 0);
    EXPECT_TRUE(Target() == division.source);
  }
}

TEST_F(DivideTest, JapaneseNamesArePartOfTheFormat) {
  ModelDivision division = Simple(100, 3, "かぎ");
  division.sourceName = "表計算ソ.txt";  // its trail bytes hold the code of a backslash
  division.baseName = "分割表";
  ASSERT_EQ(Divide(division), 0);
  const ModelResult model = ModelDivide(division);
  EXPECT_TRUE(Piece("分割表0.cof") == model.cof);
  ASSERT_EQ(Restore("かぎ", "C:\\mirrell\\pieces\\分割表0.cof"), 0);
  EXPECT_TRUE(Target("表計算ソ.txt") == division.source);
}

// --- Sizes and counts

TEST_F(DivideTest, ASourceSmallerThanTheCountIsWholeInTheLastPiece) {
  ASSERT_EQ(Divide(Simple(2, 5)), 0);
  EXPECT_EQ(FileDivide.pieceSize, 0U);
  for (int piece = 1; piece <= 4; ++piece) {
    EXPECT_TRUE(FileThere(std::string(kPieces) + "\\part" + std::to_string(piece) + ".div"));
    EXPECT_EQ(PieceNo(piece), "");
  }
  EXPECT_EQ(PieceNo(5), Bytes(2));
}

TEST_F(DivideTest, TenBytesInThreePiecesAreThreeThreeAndFour) {
  ASSERT_EQ(Divide(Simple(10, 3)), 0);
  EXPECT_EQ(PieceNo(1), Bytes(10).substr(0, 3));
  EXPECT_EQ(PieceNo(2), Bytes(10).substr(3, 3));
  EXPECT_EQ(PieceNo(3), Bytes(10).substr(6, 4));
}

TEST_F(DivideTest, AnEmptySourceGivesEmptyPiecesAndComesBackEmpty) {
  ASSERT_EQ(Divide(Simple(0, 3)), 0);
  const std::string cof = FileBytes(kCof);
  ASSERT_EQ(cof.size(), 101U + 4 * 308);
  for (int record = 1; record <= 3; ++record)
    EXPECT_EQ(cof.substr(101 + record * 308 + 4, 4), std::string(4, '\0'));
  PutFile("C:\\mirrell\\restored\\source.bin", "old");
  ASSERT_EQ(Restore(), 0);
  EXPECT_TRUE(FileThere("C:\\mirrell\\restored\\source.bin"));
  EXPECT_EQ(Target(), "");
}

TEST_F(DivideTest, ACountBelowOneIsTwoPiecesAndOneIsOne) {
  for (const int count : {0, -5}) {
    ASSERT_EQ(Divide(Simple(7, count)), 0);
    EXPECT_EQ(FileDivide.pieceTotal, 2);
    EXPECT_EQ(PieceNo(2), Bytes(7).substr(3));
  }
  ASSERT_EQ(Divide(Simple(7, 1)), 0);
  EXPECT_EQ(FileDivide.pieceTotal, 1);
  EXPECT_EQ(PieceNo(1), Bytes(7));
}

TEST_F(DivideTest, PieceSizesByTheirRule) {
  const auto size = [](std::uint32_t total, std::uint32_t nominal, std::int32_t pieces, std::int32_t index) {
    FileDivide.sourceSize = total;
    FileDivide.pieceSize = nominal;
    FileDivide.pieceTotal = pieces;
    return DivPieceSize(index);
  };
  EXPECT_EQ(size(10, 11, 3, 0), 10) << "a source below the nominal size";
  EXPECT_EQ(size(10, 4, 9, 2), 2) << "a rest below the nominal size";
  EXPECT_EQ(size(10, 3, 3, 2), 4) << "the last piece takes the rest";
  EXPECT_EQ(size(10, 3, 3, 1), 3);
  EXPECT_EQ(size(10, 3, 9, 5), -5);
  EXPECT_EQ(size(0x7FFFFFFF, 0x7FFFFFFF, 1, 0), 0x7FFFFFFF);
  EXPECT_LT(size(0x80000000U, 0x40000000U, 2, 0), 0) << "2 GiB is negative";
  EXPECT_LT(size(0xFFFFFFFFU, 0xFFFFFFFFU, 1, 0), 0);
}

TEST_F(DivideTest, ASourceOfTwoGigabytesGivesEmptyPiecesAndNoEndlessLoop) {
  Prepare(Simple(100, 2));
  FileDivide.sourceSize = 0xC0000000U;
  EXPECT_EQ(RunSteps(false), 0);
  EXPECT_EQ(FileDivide.pieceSize, 0x60000000U);
  EXPECT_EQ(PieceNo(1), "");
  EXPECT_EQ(PieceNo(2), "");
  EXPECT_EQ(Restore(), 0);
  EXPECT_EQ(Target(), "");
}

TEST_F(DivideTest, TheSizeOfAFileIsTakenWhenItIsAskedFor) {
  PutFile(InProgram("a"), Bytes(5001));
  EXPECT_EQ(DivFileSize("C:\\mirrell\\a"), 5001U);
  EXPECT_EQ(DivFileSize("C:\\mirrell\\none"), 0U);
}

TEST_F(DivideTest, AGrownSourceIsDividedByItsOldSizeAndAShrunkOneFails) {
  Prepare(Simple(10, 2));
  PutFile(InProgram("source.bin"), Bytes(20));
  EXPECT_EQ(RunSteps(false), 0);
  EXPECT_EQ(PieceNo(2), Bytes(20).substr(5, 5));
  Prepare(Simple(10, 2));
  PutFile(InProgram("source.bin"), Bytes(7));
  EXPECT_EQ(RunSteps(false), 2);
}

// --- The order of the pieces

TEST_F(DivideTest, NinetyNinePiecesWithAKeywordHaveDifferentNumbersInTrueOrder) {
  ASSERT_EQ(Divide(Simple(990, 99, "abcd")), 0);
  std::set<std::string> names;
  for (const std::string& name : FolderNames(kPieces)) names.insert(name);
  EXPECT_EQ(names.size(), 100U);
  // The joining file lists them as they follow each other.
  const std::string cof = FileBytes(kCof);
  const std::string table = ModelTable(cof.substr(1, 100));
  int cursor = 0;
  bool shuffled = false;
  for (std::size_t record = 0; record < 100; ++record) {
    const std::string raw = cof.substr(101 + record * 308, 308);
    const std::string number = ModelScramble(raw.substr(0, 4), "abcd", table, 0, cursor, true);
    ModelScramble(raw.substr(4, 4), "abcd", table, 4, cursor, true);
    const std::string name = ModelScramble(raw.substr(8), "abcd", table, 8, cursor, true).c_str();
    EXPECT_EQ(number, std::string(3, '\0') + static_cast<char>(record));
    if (record == 0) continue;
    EXPECT_EQ(names.count(name), 1U) << name;
    const int drawn = std::stoi(name.substr(4));
    EXPECT_GE(drawn, 1);
    EXPECT_LE(drawn, 100);
    shuffled = shuffled || drawn != static_cast<int>(record);
  }
  EXPECT_TRUE(shuffled);
}

TEST_F(DivideTest, WithTheFlagOffPiecesArePlainSlicesNumberedInOrder) {
  ASSERT_EQ(Divide(Simple(30, 3)), 0);
  EXPECT_EQ(PieceNo(1) + PieceNo(2) + PieceNo(3), Bytes(30));
  const std::string cof = FileBytes(kCof);
  EXPECT_EQ(cof[0], '\0');
  EXPECT_NE(cof.substr(1, 96), std::string(96, '\0')) << "the key block is random all the same";
  EXPECT_EQ(cof.substr(109, 11), std::string("source.bin\0", 11));
}

TEST_F(DivideTest, AFlagBeyondOneScramblesButDoesNotShuffle) {
  Prepare(Simple(30, 3, "abcd"));
  FileDivide.encryptFlag = 7;
  ASSERT_EQ(RunSteps(false), 0);
  EXPECT_EQ(FolderNames(kPieces), (Rows{"part0.cof", "part1.div", "part2.div", "part3.div"}));
  EXPECT_NE(PieceNo(1), Bytes(30).substr(0, 10));
  EXPECT_EQ(FileBytes(kCof)[0], '\7');
  ASSERT_EQ(Restore("abcd"), 0);
  EXPECT_EQ(Target(), Bytes(30));
}

TEST_F(DivideTest, AllHundredNumbersAreGivenOnceAndLargerOrdinalsAreKept) {
  std::set<int> numbers;
  for (int ordinal = 1; ordinal <= 100; ++ordinal) numbers.insert(DivNextPieceNumber(ordinal));
  EXPECT_EQ(numbers.size(), 100U);
  EXPECT_EQ(*numbers.begin(), 1);
  EXPECT_EQ(*numbers.rbegin(), 100);
  EXPECT_EQ(DivNextPieceNumber(101), 101);
  EXPECT_EQ(DivNextPieceNumber(5), 5) << "none is left";
}

TEST_F(DivideTest, TwoHundredPiecesWithAKeywordComeBack) {
  ASSERT_EQ(Divide(Simple(1000, 200, "abcdefgh")), 0);
  EXPECT_EQ(FolderNames(kPieces).size(), 201U);
  ASSERT_EQ(Restore("abcdefgh"), 0);
  EXPECT_EQ(Target(), Bytes(1000));
}

// --- Random numbers and the key block

TEST_F(DivideTest, RandomNumbersBelowTwoAreNought) {
  for (const int n : {-5, 0, 1}) EXPECT_EQ(DivRandom(n), 0);
  for (int i = 0; i < 1000; ++i) {
    const int value = DivRandom(255);
    ASSERT_GE(value, 0);
    ASSERT_LT(value, 255);
  }
}

TEST_F(DivideTest, TheKeyBlockNeverHoldsTheByte255AndKeepsItsTail) {
  std::memset(FileDivide.keyBlock, 0xFF, sizeof FileDivide.keyBlock);
  for (int i = 0; i < 200; ++i) {
    DivBuildKeyBlock();
    for (int at = 0; at < 96; ++at) ASSERT_NE(FileDivide.keyBlock[at], 255) << at;
    for (int at = 96; at < 100; ++at) ASSERT_EQ(FileDivide.keyBlock[at], 255);
  }
}

TEST_F(DivideTest, TheTableIsMadeAgainFromAnyKeyBlock) {
  std::mt19937 random(3);
  for (int i = 0; i < 300; ++i) {
    std::string block(100, '\0');
    for (char& byte : block) byte = static_cast<char>(i == 0 ? 0xFF : random());
    std::memcpy(FileDivide.keyBlock, block.data(), 100);
    DivLoadKeyBlock();
    const std::string table(reinterpret_cast<const char*>(FileDivide.scrambleTable), 160);
    ASSERT_TRUE(table == ModelTable(block));
  }
}

TEST_F(DivideTest, ANewTableIsTheOneOfItsKeyBlock) {
  for (int i = 0; i < 100; ++i) {
    DivBuildKeyBlock();
    std::uint8_t built[160];
    std::memcpy(built, FileDivide.scrambleTable, sizeof built);
    std::memset(FileDivide.scrambleTable, 0, sizeof built);
    DivLoadKeyBlock();
    ASSERT_EQ(std::memcmp(built, FileDivide.scrambleTable, sizeof built), 0);
  }
}

// --- Scrambling

class ScrambleTest : public DivideTest {
 protected:
  void SetUp() override {
    DivideTest::SetUp();
    FileDivide.encryptFlag = 1;
    RandomSeed(99);
    DivBuildKeyBlock();
    table_.assign(reinterpret_cast<const char*>(FileDivide.scrambleTable), 160);
  }
  static const std::uint8_t* In(const std::string& text) {
    return reinterpret_cast<const std::uint8_t*>(text.data());
  }
  static std::uint8_t* Out(std::string& text) { return reinterpret_cast<std::uint8_t*>(text.data()); }
  std::string table_;
};

TEST_F(ScrambleTest, EveryLengthPositionAndCursorAgreesWithTheModel) {
  const std::string bytes = Bytes(20000);
  for (const char* keyword : {"abcd", "abcde", "abcdef", "abcdefg", "abcdefgh", "秘密の鍵"}) {
    SetKeyword(keyword);
    for (const int length : {0,   1,    2,    3,    4,    7,    8,    95,   96,    97,    159,  160,
                             161, 3359, 3360, 3361, 5000, 6719, 6720, 6721, 10000, 13440, 13441}) {
      for (int keyPos = 0; keyPos <= 8; keyPos += 2) {
        for (const int start : {0, 1, 79, 158, 159}) {
          const std::string in = bytes.substr(0, static_cast<std::size_t>(length));
          std::string out(in.size(), '\0');
          std::int32_t cursor = start;
          int modelCursor = start;
          const std::int32_t end = DivScramble(keyPos, length, In(in), Out(out), cursor);
          ASSERT_TRUE(out == ModelScramble(in, keyword, table_, keyPos, modelCursor))
              << keyword << " " << length;
          ASSERT_EQ(cursor, modelCursor);
          // The position goes on where it ended.
          std::string next(1, 'x');
          std::int32_t nextCursor = cursor;
          DivScramble(end, 1, In("x"), Out(next), nextCursor);
          int wholeCursor = start;
          ASSERT_EQ(next[0], ModelScramble(in + "x", keyword, table_, keyPos, wholeCursor).back())
              << keyword << " " << length << " " << keyPos;
          cursor = start;
          EXPECT_EQ(DivUnscramble(keyPos, length, In(out), Out(out), cursor), end) << "in place";
          ASSERT_TRUE(out == in);
        }
      }
    }
  }
}

TEST_F(ScrambleTest, WithAKeywordOfFourTheFieldsAtFourAndEightBeginWithItsFirstByte) {
  SetKeyword("abcd");
  for (const int keyPos : {4, 8}) {
    std::string out(1, '\0');
    std::int32_t cursor = 0;
    DivScramble(keyPos, 1, In(std::string(1, '\0')), Out(out), cursor);
    EXPECT_EQ(out[0], static_cast<char>('a' - table_[0])) << keyPos;
  }
  SetKeyword("abcde");
  std::string out(1, '\0');
  std::int32_t cursor = 0;
  DivScramble(4, 1, In(std::string(1, '\0')), Out(out), cursor);
  EXPECT_EQ(out[0], static_cast<char>('e' - table_[0])) << "with five, 4 is a place of its own";
}

TEST_F(ScrambleTest, WithTheFlagOffBytesPassAndOnlyTheKeyPositionMoves) {
  FileDivide.encryptFlag = 0;
  SetKeyword("abcd");
  const std::string in = Bytes(10000);
  std::string out(in.size(), '\0');
  std::int32_t cursor = 17;
  EXPECT_EQ(DivScramble(3, 10000, In(in), Out(out), cursor), 10003);
  EXPECT_EQ(cursor, 17);
  EXPECT_TRUE(out == in);
}

TEST_F(ScrambleTest, AnEmptyKeywordCountsAsOneByteOfNought) {
  SetKeyword("");
  std::string out(3, '\0');
  std::int32_t cursor = 159;
  DivScramble(0, 3, In(std::string(3, '\0')), Out(out), cursor);
  EXPECT_EQ(out, (std::string{static_cast<char>(-table_[159]), static_cast<char>(-table_[0]),
                              static_cast<char>(-table_[1])}));
}

// --- Restoring

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
  EXPECT_EQ(FileStatus, 0);
  PutFile(kCof, "");
  EXPECT_EQ(CofReadFlag(kCof), 0);
  EXPECT_EQ(FileStatus, -2);
  EXPECT_EQ(CofReadFlag("C:\\none.cof"), 0);
  EXPECT_EQ(FileStatus, -1);
}

// --- Records

TEST_F(DivideTest, ARecordTakesTheNameWithoutItsFolder) {
  const int file = FileCreate("C:\\mirrell\\r");
  EXPECT_TRUE(DivWriteRecord(file, 3, -2, "C:\\表\\名前.div"));
  FileClose(file);
  const std::string bytes = FileBytes("C:\\mirrell\\r");
  ASSERT_EQ(bytes.size(), 308U);
  EXPECT_EQ(bytes.substr(0, 8), std::string("\0\0\0\3\xFF\xFF\xFF\xFE", 8));
  EXPECT_EQ(bytes.substr(8), "名前.div" + std::string(292, '\0'));
}

TEST_F(DivideTest, ANameWithoutAnEndIsCut) {
  PutFile("C:\\mirrell\\r", std::string(8, '\0') + std::string(300, 'x') + "yyyy");
  const int file = FileOpen("C:\\mirrell\\r", OpenMode::Read);
  CofRecord record;
  EXPECT_TRUE(DivReadRecord(file, record));
  EXPECT_EQ(std::string(record.name), std::string(299, 'x'));
  EXPECT_FALSE(DivReadRecord(file, record)) << "four bytes are no record";
  EXPECT_EQ(std::string(record.name), std::string(299, 'x')) << "and change nothing";
  FileClose(file);
}

// A joining file in the open, of any numbers and names.
std::string Record(std::uint32_t number, std::uint32_t value, std::string name) {
  std::string bytes;
  for (const std::uint32_t field : {number, value}) {
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(field >> shift);
  }
  name.resize(300, '\0');
  return bytes + name;
}
std::string Head() {
  return std::string(101, '\0');
}

TEST_F(DivideTest, ANegativeOrEmptyCountEndsAtOnceWithAnEmptyFile) {
  for (const std::uint32_t count : {0U, 0x80000000U, 0xFFFFFFFFU}) {
    PutFile(kCof, Head() + Record(0, count, "t"));
    EXPECT_EQ(Restore(), 0);
    EXPECT_TRUE(FileThere("C:\\mirrell\\restored\\t"));
  }
}

TEST_F(DivideTest, AHugeCountFailsAtTheFirstRecordThatIsNotThere) {
  PutFile("C:\\mirrell\\pieces\\p", "abc");
  PutFile(kCof, Head() + Record(0, 0x7FFFFFFF, "t") + Record(1, 3, "p"));
  EXPECT_EQ(Restore(), -11);
  EXPECT_EQ(Target("t"), "abc");
}

TEST_F(DivideTest, ANegativePieceSizeMovesNothingAndAHugeOneFails) {
  PutFile("C:\\mirrell\\pieces\\p", "abc");
  for (const std::uint32_t size : {0x80000000U, 0xFFFFFFFFU}) {
    PutFile(kCof, Head() + Record(0, 1, "t") + Record(1, size, "p"));
    EXPECT_EQ(Restore(), 0);
    EXPECT_EQ(Target("t"), "");
  }
  PutFile(kCof, Head() + Record(0, 1, "t") + Record(1, 0x7FFFFFFF, "p"));
  EXPECT_EQ(Restore(), -11);
}

TEST_F(DivideTest, LongNamesStayInsideTheirBuffers) {
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, std::string(299, 'd'));
  SetKeyword("");
  PutFile(kCof, Head() + Record(0, 1, std::string(300, 'x')) + Record(1, 0, std::string(300, 'y')));
  EXPECT_EQ(RunSteps(true), -101);
  PutFile(kCof, Head() + Record(0, 1, "t") + Record(1, 0, std::string(300, 'y')));
  EXPECT_EQ(Restore(), -1);
  EXPECT_EQ(std::string(FileDivide.baseName).size(), 299U);
  Prepare(Simple(10, 2));
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, std::string(299, 'd'));
  Set(FileDivide.baseName, sizeof FileDivide.baseName, std::string(299, 'b'));
  EXPECT_EQ(RunSteps(false), -100);
}

// --- Failures

TEST_F(DivideTest, AnUnchosenSourceFailsAtItsOpening) {
  Prepare(Simple(10, 2));
  FileDivide.sourcePath[0] = '\0';
  EXPECT_EQ(RunSteps(false), -1);
  EXPECT_EQ(FolderNames(kPieces), Rows());
}

TEST_F(DivideTest, AnEmptyBaseNameGivesFilesOfNumberAndExtension) {
  Prepare(Simple(10, 2));
  FileDivide.baseName[0] = '\0';
  EXPECT_EQ(RunSteps(false), 0);
  EXPECT_EQ(FolderNames(kPieces), (Rows{"0.cof", "1.div", "2.div"}));
}

TEST_F(DivideTest, AFolderThatIsNotThereFailsAtTheJoiningFile) {
  Prepare(Simple(10, 2));
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, "C:\\none");
  EXPECT_EQ(RunSteps(false), -100);
}

TEST_F(DivideTest, ATargetThatCannotBeWrittenFailsAtItsCreation) {
  ASSERT_EQ(Divide(Simple(10, 2)), 0);
  MakeFolder("C:\\mirrell\\restored\\source.bin");
  EXPECT_EQ(Restore(), -101);
}

// What each call that fails gives, and that nothing but a short source leaves
// files open.
struct Expected {
  FaultKind kind;
  std::vector<int> status;  // of the first, second, ... call
};

class FaultTest : public DivideTest {
 protected:
  // Each row's calls fail in turn. Every run finds the results of a whole one.
  static void Expect(const std::vector<Expected>& table, bool restore) {
    for (const Expected& expected : table) {
      for (std::size_t nth = 1; nth <= expected.status.size() + 1; ++nth) {
        Begin(restore);
        const int before = DiagnosticsLive().files;
        FaultArm(expected.kind, static_cast<int>(nth));
        const int status = RunSteps(restore);
        const bool met = FaultWasMet();
        FaultClear();
        const auto where = ::testing::Message()
                           << "call " << nth << " of kind " << static_cast<int>(expected.kind);
        EXPECT_EQ(met, nth <= expected.status.size()) << where;
        EXPECT_EQ(status, met ? expected.status[nth - 1] : 0) << where;
        EXPECT_EQ(DiagnosticsLive().files - before, status == 2 ? 2 : 0) << where;
      }
    }
  }

 private:
  static void Begin(bool restore) {
    DropFiles();
    ASSERT_EQ(Divide(Simple(10, 2)), 0);
    if (restore) {
      ASSERT_EQ(Restore(), 0);
    } else {
      Prepare(Simple(10, 2));
    }
  }
};

TEST_F(FaultTest, EachFileCallOfADivisionFailingInTurn) {
  Expect(
      {
          // The source; then each file is tested, and opened again after its creation.
          {FaultKind::Open, {-1, 0, -100, 0, -102, 0, -102}},
          {FaultKind::Create, {-100, -101, -101}},
          {FaultKind::Delete, {0, 0, 0}},
          {FaultKind::Read, {2, 2}},
          // Flag, key block, head record; then a piece and its record, twice.
          {FaultKind::Write, {-11, -11, -11, -10, -11, -10, -11}},
      },
      false);
}

TEST_F(FaultTest, EachFileCallOfARestoreFailingInTurn) {
  Expect(
      {
          // The joining file; the target twice; the pieces.
          {FaultKind::Open, {-1, 0, -102, -1, -1}},
          {FaultKind::Create, {-101}},
          {FaultKind::Delete, {0}},
          // Flag, key block, head record; then a record and its piece, twice.
          {FaultKind::Read, {-2, -2, -11, -11, -11, -11, -11}},
          {FaultKind::Write, {-11, -11}},
      },
      true);
}

TEST_F(FaultTest, AShortSourceLeavesItsWholeBlocksInThePiece) {
  for (const int size : {0, 1, 4999, 5000, 5001, 14999}) {
    Prepare(Simple(15000, 1));
    PutFile(InProgram("source.bin"), Bytes(static_cast<std::size_t>(size)));
    EXPECT_EQ(RunSteps(false), 2);
    EXPECT_TRUE(PieceNo(1) == Bytes(static_cast<std::size_t>(size / 5000 * 5000))) << size;
  }
}

TEST_F(FaultTest, FilesLeftOpenAreClosedByTheNextRun) {
  const int before = DiagnosticsLive().files;
  Prepare(Simple(10, 2));
  RemoveFile(InProgram("source.bin"));
  PutFile(InProgram("source.bin"), "short");
  FileDivide.sourceSize = 20;
  EXPECT_EQ(RunSteps(false), 2);
  EXPECT_EQ(DiagnosticsLive().files, before + 2);
  ASSERT_EQ(Divide(Simple(10, 2)), 0);
  EXPECT_EQ(DiagnosticsLive().files, before);
}

TEST_F(FaultTest, AStoppedRunKeepsWhatWasMadeAndClosesItsFiles) {
  const int before = DiagnosticsLive().files;
  Prepare(Simple(30, 3));
  stepCounter = 1;
  EXPECT_EQ(FileDivideStep(), 0);
  EXPECT_EQ(stepCounter, 2);
  EXPECT_EQ(FileDivideStep(), 0);
  EXPECT_EQ(stepCounter, 3);
  FileDivideStop();
  EXPECT_EQ(stepCounter, 0);
  EXPECT_EQ(DiagnosticsLive().files, before);
  EXPECT_EQ(FolderNames(kPieces), (Rows{"part0.cof", "part1.div"}));
  EXPECT_EQ(FileBytes(kCof).size(), 101U + 2 * 308) << "records that were never written are missing";
  EXPECT_EQ(FileDivideStep(), 0) << "an idle step does nothing";
}

// --- Under attack

// Thousands of joining files with a few bytes changed, each restored. `keyword`
// empty: the changes reach counts, sizes and names as they are.
class AttackTest : public DivideTest {
 protected:
  void Attack(const std::string& keyword, int rounds, std::uint32_t seed) {
    ASSERT_EQ(Divide(Simple(12, 1, keyword)), 0);
    const std::string cof = FileBytes(kCof);
    const int handle = open(PosixPath(kCof).c_str(), O_RDWR);
    ASSERT_GE(handle, 0);
    std::mt19937 random(seed);
    std::set<int> seen;
    const int files = DiagnosticsLive().files;
    SetKeyword(keyword);
    // Deep enough that no name made of a few changed bytes leads out of it.
    MakeFolder("C:\\mirrell\\1\\2\\3\\4\\5\\6\\7\\8");
    Set(FileDivide.storeDir, sizeof FileDivide.storeDir, "1\\2\\3\\4\\5\\6\\7\\8");
    for (int round = 0; round < rounds; ++round) {
      off_t at[4];
      const int changes = 1 + static_cast<int>(random() % 4);
      for (int i = 0; i < changes; ++i) {
        // Mostly the numbers and names of a record, now and then anything.
        const off_t record = 101 + 308 * static_cast<off_t>(random() % 2);
        at[i] = random() % 4 == 0 ? static_cast<off_t>(random() % cof.size())
                                  : record + static_cast<off_t>(random() % 20);
        const char byte = static_cast<char>(random() % 3 == 0 ? 0xFF * (random() % 2) : random());
        ASSERT_EQ(pwrite(handle, &byte, 1, at[i]), 1);
      }
      const int status = RunSteps(true, "pieces\\part0.cof");
      seen.insert(status);
      ASSERT_TRUE(status == 0 || status == -1 || status == -11 || status == -101) << status;
      ASSERT_EQ(DiagnosticsLive().files, files);
      ASSERT_LT(TextLength(FileDivide.baseName, sizeof FileDivide.baseName), sizeof FileDivide.baseName);
      for (int i = 0; i < changes; ++i)
        ASSERT_EQ(pwrite(handle, &cof[static_cast<std::size_t>(at[i])], 1, at[i]), 1);
    }
    close(handle);
    EXPECT_GE(seen.size(), 3U);  // so that the changes reach more than one way to fail
  }
};

TEST_F(AttackTest, TenThousandMutatedPlainJoiningFilesAreHarmless) {
  Attack("", 10000, 1);
}

TEST_F(AttackTest, TenThousandMutatedScrambledJoiningFilesAreHarmless) {
  Attack("abcde", 10000, 2);
}

// Flag, key block and one record, all of them anything, read a hundred thousand
// times: what comes is what the model says, and the name always ends.
TEST_F(AttackTest, AHundredThousandMutatedRecordsReadAsTheModelSays) {
  PutFile("C:\\mirrell\\r", std::string(308, '\0'));
  const int handle = open(PosixPath("C:\\mirrell\\r").c_str(), O_RDWR);
  const int file = FileOpen("C:\\mirrell\\r", OpenMode::Read);
  ASSERT_GE(handle, 0);
  ASSERT_GE(file, 0);
  std::mt19937 random(3);
  std::string bytes(408, '\0');
  SetKeyword("abcdefg");
  for (int round = 0; round < 100000; ++round) {
    for (int i = 0; i < 8; ++i) bytes[random() % bytes.size()] = static_cast<char>(random());
    std::memcpy(FileDivide.keyBlock, bytes.data(), 100);
    FileDivide.encryptFlag = static_cast<std::uint8_t>(random() % 2);
    FileDivide.recordTableCursor = static_cast<std::int32_t>(random() % 160);
    int cursor = FileDivide.recordTableCursor;
    DivLoadKeyBlock();
    const std::string raw = bytes.substr(100);
    ASSERT_EQ(pwrite(handle, raw.data(), 308, 0), 308);
    ASSERT_EQ(lseek(file, 0, SEEK_SET), 0);
    CofRecord record;
    ASSERT_TRUE(DivReadRecord(file, record));
    const std::string table = FileDivide.encryptFlag == 0 ? "" : ModelTable(bytes);
    const std::string number = ModelScramble(raw.substr(0, 4), "abcdefg", table, 0, cursor, true);
    const std::string value = ModelScramble(raw.substr(4, 4), "abcdefg", table, 4, cursor, true);
    const std::string name = ModelScramble(raw.substr(8), "abcdefg", table, 8, cursor, true);
    ASSERT_EQ(static_cast<std::uint32_t>(record.number), GetBE32(number.data()));
    ASSERT_EQ(static_cast<std::uint32_t>(record.value), GetBE32(value.data()));
    ASSERT_EQ(std::memcmp(record.name, name.data(), 299), 0);
    ASSERT_EQ(record.name[299], '\0');
    ASSERT_EQ(FileDivide.recordTableCursor, cursor);
  }
  FileClose(file);
  close(handle);
}

}  // namespace
