// A division: what it leaves against the model, sizes and counts, the order of the pieces.
#include "filetools/divide/file_divide.h"

#include <cstring>
#include <set>

#include "platform/posix/files_opened.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

const char* const kKeywords[] = {"", "abcd", "abcde", "secret6", "abcdefgh", "かぎ", "秘密の鍵"};

// --- Against the model

void ExpectModel(const ModelResult& model, const std::string& folder) {
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
        ExpectModel(Model(division), kPieces);
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
    const ModelResult model = Model(division);
    EXPECT_TRUE(FileBytes(kCof) == model.cof);
    for (const auto& [name, bytes] : model.pieces) EXPECT_TRUE(Piece(name) == bytes);
    ASSERT_EQ(Restore(keyword), 0);
    EXPECT_TRUE(Target() == division.source);
  }
}

TEST_F(DivideTest, AFileOf64MebibytesEqualsTheModelAndComesBack) {
  const std::pair<const char*, int> runs[] = {{"", 2}, {"秘密の鍵", 99}};
  ModelDivision division = Simple(std::size_t{64} << 20U, 0);
  for (const auto& [keyword, count] : runs) {
    for (const std::string& name : FolderNames(kPieces)) RemoveFile(std::string(kPieces) + "\\" + name);
    division.keyword = keyword;
    division.count = count;
    ASSERT_EQ(Divide(division), 0);
    ExpectModel(Model(division), kPieces);
    ASSERT_EQ(Restore(keyword), 0);
    ASSERT_TRUE(Target() == division.source) << keyword << " " << count;
  }
}

TEST_F(DivideTest, JapaneseNamesArePartOfTheFormat) {
  ModelDivision division = Simple(100, 3, "かぎ");
  division.sourceName = "表計算ソ.txt";  // its trail bytes hold the code of a backslash
  division.baseName = "分割表";
  ASSERT_EQ(Divide(division), 0);
  const ModelResult model = Model(division);
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

TEST_F(DivideTest, ASizeOfTwoGigabytesEndsInNoEmptyPiecesAndNoEndlessLoop) {
  Prepare(Simple(100, 2));
  FileDivide.sourceSize = 0xC0000000U;
  EXPECT_TRUE(DivSourceTooLarge());
  EXPECT_EQ(RunSteps(false), 2) << "a source that ends early";
  EXPECT_EQ(FileDivide.pieceSize, 0x60000000U);
  EXPECT_EQ(PieceNo(1), "");
  EXPECT_FALSE(FileThere("C:\\mirrell\\pieces\\part2.div"));
}

// --- Sharing

TEST_F(DivideTest, TheSourceIsReadWhileNobodyWritesItAndWhatIsMadeIsShared) {
  Prepare(Simple(4, 1));
  const std::string source = FileDivide.sourcePath;
  const std::string piece = "C:\\mirrell\\pieces\\part1.div";
  FilesOpenedClear();
  ASSERT_EQ(RunSteps(false), 0);
  EXPECT_EQ(FilesOpened(), (std::vector<FileOpened>{{source, false, OpenMode::ReadDenyWrite},
                                                    {kCof, true, OpenMode::ReadWrite},
                                                    {kCof, false, OpenMode::ReadWrite},
                                                    {piece, true, OpenMode::ReadWrite},
                                                    {piece, false, OpenMode::ReadWrite}}));
  const std::string target = "C:\\mirrell\\restored\\source.bin";
  FilesOpenedClear();
  ASSERT_EQ(Restore(), 0);
  EXPECT_EQ(FilesOpened(),
            (std::vector<FileOpened>{{kCof, false, OpenMode::ReadDenyWrite},
                                     {target, true, OpenMode::ReadWrite},
                                     {target, false, OpenMode::ReadWrite},
                                     {"C:\\mirrell\\pieces\\\\part1.div", false, OpenMode::ReadDenyWrite}}));
  FilesOpenedClear();
  CofReadFlag(kCof);
  DivFileSize(source.c_str());
  EXPECT_EQ(FilesOpened(), (std::vector<FileOpened>{{kCof, false, OpenMode::ReadDenyWrite},
                                                    {source, false, OpenMode::ReadDenyWrite}}));
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

}  // namespace
