#include "filetools/back_up/back_up.h"

#include <fcntl.h>
#include <unistd.h>

#include <random>

#include "platform/posix/files_opened.h"
#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "tests/filetools/back_up/back_up_fixture.h"
#include "tests/support/record_check.h"

namespace {

class BackUpTest : public BackUpFixture {};

std::string Repeat(char c, std::size_t count) {
  return std::string(count, c);
}

// A settings file written down by its table.
std::string SettingsBytes(int count) {
  std::string bytes = "File BackUp Setting DATA for MIRRELL HOME:   ";
  bytes += {'\0', '\0', '\0', static_cast<char>(count)};
  std::string field = "C:\\copies";
  field.resize(300);
  bytes += field;
  for (const char* kind : {"to", "from"}) {
    for (int row = 0; row < 100; ++row) {
      field = std::string("C:\\") + kind + "\\" + std::to_string(row);
      field.resize(600);
      bytes += field;
    }
  }
  field = "毎週の控え";
  field.resize(256);
  return bytes + field;
}

// --- The list

TEST_F(BackUpTest, ASourceIsAddedWithItsCopyInTheFolder) {
  Set(BackUp.destDir, sizeof BackUp.destDir, "D:\\控え");
  EXPECT_EQ(BackUpAddSource("C:\\work\\表.txt"), 0);
  EXPECT_EQ(BackUp.fileCount, 1);
  EXPECT_STREQ(BackUp.sourcePath[0], "C:\\work\\表.txt");
  EXPECT_STREQ(BackUp.destPath[0], "D:\\控え\\表.txt");
  EXPECT_TRUE(BackUp.dirty);
}

TEST_F(BackUpTest, WithoutAFolderTheCopyStaysEmpty) {
  EXPECT_EQ(BackUpAddSource("C:\\a"), 0);
  EXPECT_STREQ(BackUp.destPath[0], "");
}

TEST_F(BackUpTest, AHundredAndFirstSourceIsRefused) {
  for (int i = 100; i < 200; ++i) EXPECT_EQ(BackUpAddSource(("C:\\" + std::to_string(i)).c_str()), 0);
  EXPECT_TRUE(BackUpIsFull());
  EXPECT_EQ(BackUpAddSource("C:\\200"), -1);
  EXPECT_EQ(BackUp.fileCount, 100);
}

TEST_F(BackUpTest, ANewPathOfWhichAListedPathIsAPrefixIsRefused) {
  EXPECT_EQ(BackUpAddSource("C:\\a.txt"), 0);
  EXPECT_EQ(BackUpAddSource("C:\\a.txt.bak"), 1);
  EXPECT_EQ(BackUpAddSource("C:\\a.txt"), 1);
  EXPECT_EQ(BackUp.fileCount, 1);
  EXPECT_EQ(BackUpAddSource("C:\\a.tx"), 0) << "the listed path goes on, so it is another one";
  EXPECT_EQ(BackUpAddSource("C:\\b.txt"), 0);
}

TEST_F(BackUpTest, PathsAreComparedAndKeptByTheirFirst512Bytes) {
  const std::string long600 = "C:\\" + Repeat('x', 596);
  EXPECT_EQ(BackUpAddSource(long600.c_str()), 0);
  EXPECT_EQ(std::string(BackUp.sourcePath[0]), long600.substr(0, 512));
  EXPECT_EQ(BackUpAddSource((long600.substr(0, 512) + "other").c_str()), 1);
  EXPECT_EQ(BackUpAddSource((long600.substr(0, 511) + "y").c_str()), 0);
}

TEST_F(BackUpTest, FolderAndNameOfACopyAreCutAt256BytesEach) {
  const std::string folder = "C:\\" + Repeat('f', 290);
  const std::string name = Repeat('n', 300);
  Set(BackUp.destDir, sizeof BackUp.destDir, folder);
  EXPECT_EQ(BackUpAddSource(("C:\\" + name).c_str()), 0);
  EXPECT_EQ(std::string(BackUp.destPath[0]), folder.substr(0, 256) + "\\" + name.substr(0, 256));
}

TEST_F(BackUpTest, TwoSourcesOfOneNameShareTheirCopy) {
  Set(BackUp.destDir, sizeof BackUp.destDir, "C:\\mirrell\\copies");
  MakeFolder("C:\\mirrell\\x");
  PutFile("C:\\mirrell\\a", "first");
  PutFile("C:\\mirrell\\x\\a", "second");
  EXPECT_EQ(BackUpAddSource("C:\\mirrell\\a"), 0);
  EXPECT_EQ(BackUpAddSource("C:\\mirrell\\x\\a"), 0);
  EXPECT_STREQ(BackUp.destPath[0], BackUp.destPath[1]);
  RunSteps();
  EXPECT_EQ(FileBytes("C:\\mirrell\\copies\\a"), "second");
}

TEST_F(BackUpTest, RemovingClosesBothTablesUpAndRebuildsNothing) {
  for (const char* path : {"C:\\a", "C:\\b", "C:\\c"}) EXPECT_EQ(BackUpAddSource(path), 0);
  for (int row = 0; row < 3; ++row) Set(BackUp.destPath[row], 600, "D:\\" + std::to_string(row));
  BackUpRemoveSource(1);
  EXPECT_EQ(BackUp.fileCount, 2);
  EXPECT_STREQ(BackUp.sourcePath[0], "C:\\a");
  EXPECT_STREQ(BackUp.sourcePath[1], "C:\\c");
  EXPECT_STREQ(BackUp.destPath[0], "D:\\0");
  EXPECT_STREQ(BackUp.destPath[1], "D:\\2");
}

TEST_F(BackUpTest, RemovingTheLastOfAFullListAndRowsThatAreNotThere) {
  for (int i = 100; i < 200; ++i) EXPECT_EQ(BackUpAddSource(("C:\\" + std::to_string(i)).c_str()), 0);
  BackUpRemoveSource(99);
  EXPECT_EQ(BackUp.fileCount, 99);
  EXPECT_STREQ(BackUp.sourcePath[98], "C:\\198");
  BackUpRemoveSource(99);
  BackUpRemoveSource(-1);
  EXPECT_EQ(BackUp.fileCount, 99);
}

TEST_F(BackUpTest, ClearingLeavesTheFolder) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "1");
  BackUpClearSources();
  EXPECT_EQ(BackUp.fileCount, 0);
  EXPECT_STREQ(BackUp.sourcePath[0], "");
  EXPECT_STREQ(BackUp.destPath[0], "");
  EXPECT_STREQ(BackUp.destDir, "C:\\mirrell\\copies");
}

// --- A run

TEST_F(BackUpTest, EveryFileIsCopiedOverAnOlderCopyOnePerStep) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  AddSource("b", "two");
  PutFile("C:\\mirrell\\copies\\b", "an older and longer copy");
  BackUp.fileCursor = 0;
  EXPECT_EQ(BackUpStep(), 0);
  EXPECT_FALSE(FileBytes("C:\\mirrell\\copies\\a").empty());
  EXPECT_EQ(FileBytes("C:\\mirrell\\copies\\b"), "an older and longer copy");
  EXPECT_EQ(BackUpStep(), 0);
  EXPECT_EQ(FileBytes("C:\\mirrell\\copies\\b"), "two");
  EXPECT_EQ(BackUpStep(), 1);
}

TEST_F(BackUpTest, ARunWithAMissingSourceStopsAtThatFile) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  EXPECT_EQ(BackUpAddSource("C:\\mirrell\\gone"), 0);
  AddSource("c", "three");
  BackUpRun.BackUpActive = true;
  BackUp.fileCursor = 0;
  EXPECT_EQ(BackUpStep(), 0);
  EXPECT_EQ(BackUpStep(), -1);
  EXPECT_FALSE(BackUpRun.BackUpActive);
  EXPECT_EQ(BackUp.fileCursor, 1);
  EXPECT_TRUE(FileThere("C:\\mirrell\\copies\\a"));
  EXPECT_FALSE(FileThere("C:\\mirrell\\copies\\c"));
}

TEST_F(BackUpTest, WithAnEmptyFolderTheFirstCopyFails) {
  AddSource("a", "one");
  BackUp.fileCursor = 0;
  EXPECT_EQ(BackUpStep(), -1);
}

TEST_F(BackUpTest, EachCopyFailingInTurnStopsTheRunThere) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b", "c"}) AddSource(name, name);
  for (int nth = 1; nth <= 3; ++nth) {
    FaultArm(FaultKind::Copy, nth);
    RunSteps();
    EXPECT_TRUE(FaultWasMet());
    EXPECT_EQ(BackUp.fileCursor, nth - 1);
  }
}

// --- Comparison by date

TEST_F(BackUpTest, EqualTimesAreNoDifference) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  RunSteps();
  EXPECT_EQ(BackUpCompareDate(), 0);
  char row[160];
  EXPECT_FALSE(BackUpListDate(0, row, sizeof row));
}

TEST_F(BackUpTest, ASourceChangedAndCopiedWithEqualTimesDiffersByContentButNotByDate) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  RunSteps();
  PutFile(InProgram("a"), "two");
  SetFileTime(InProgram("a"), 1700000000);
  EXPECT_EQ(BackUpCompareDate(), 0);
  EXPECT_EQ(BackUpCompareContent(), -3);
}

TEST_F(BackUpTest, TheFirstDifferenceOrMissingFileEndsTheComparisonByDate) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b", "c"}) AddSource(name, name);
  RunSteps();
  SetFileTime(InProgram("copies\\b"), 1700000001);
  RemoveFile(InProgram("c"));
  EXPECT_EQ(BackUpCompareDate(), 1) << "the difference comes before the missing source";
  SetFileTime(InProgram("copies\\b"), 1700000000);
  EXPECT_EQ(BackUpCompareDate(), -1);
  RemoveFile(InProgram("copies\\a"));
  EXPECT_EQ(BackUpCompareDate(), 1) << "the missing copy comes first";
}

TEST_F(BackUpTest, ADifferenceOfAHundredNanosecondsCounts) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  RunSteps();
  const timespec times[2] = {{1700000000, 100}, {1700000000, 100}};
  ASSERT_EQ(utimensat(AT_FDCWD, PosixPath(InProgram("a").c_str()).c_str(), times, 0), 0);
  EXPECT_EQ(BackUpCompareDate(), 1);
}

// --- Comparison by content

class ContentTest : public BackUpTest {
 protected:
  int Compare(const std::string& source, const std::string& copy) {
    CopyTo("C:\\mirrell\\copies");
    AddSource("a", source);
    PutFile(InProgram("copies\\a"), copy);
    return BackUpCompareContent();
  }
};

TEST_F(ContentTest, TwoEmptyFilesAreEqual) {
  EXPECT_EQ(Compare("", ""), 0);
  EXPECT_EQ(BackUp.differs[0], 0);
}

TEST_F(ContentTest, TheLastByteOfTheSecondBlockIsSeen) {
  std::string copy = Repeat('x', 20000);
  copy[19999] = 'y';
  EXPECT_EQ(Compare(Repeat('x', 20000), copy), -3);
  EXPECT_EQ(BackUp.differs[0], -3);
}

TEST_F(ContentTest, AFileABlockLongerDiffers) {
  EXPECT_EQ(Compare(Repeat('x', 20000), Repeat('x', 30000)), -3);
}

TEST_F(ContentTest, AFileAByteLongerOrShorterDiffersAtEveryBlockEdge) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "");
  for (const std::size_t size : {1U, 9999U, 10000U, 10001U, 65535U, 65536U, 65537U, 131072U, 200000U}) {
    PutFile(InProgram("a"), Repeat('x', size));
    PutFile(InProgram("copies\\a"), Repeat('x', size));
    EXPECT_EQ(BackUpCompareContent(), 0) << size;
    PutFile(InProgram("copies\\a"), Repeat('x', size + 1));
    EXPECT_EQ(BackUpCompareContent(), -3) << size;
    PutFile(InProgram("copies\\a"), Repeat('x', size - 1));
    EXPECT_EQ(BackUpCompareContent(), -3) << size;
    std::string other = Repeat('x', size);
    other[size - 1] = 'y';
    PutFile(InProgram("copies\\a"), other);
    EXPECT_EQ(BackUpCompareContent(), -3) << size;
  }
}

TEST_F(ContentTest, EveryRowIsMarkedAndAnyDifferenceCounts) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b", "c"}) AddSource(name, name);
  RunSteps();
  BackUp.differs[0] = -3;
  PutFile(InProgram("b"), "other");
  EXPECT_EQ(BackUpCompareContent(), -3);
  EXPECT_EQ(BackUp.differs[0], 0);
  EXPECT_EQ(BackUp.differs[1], -3);
  EXPECT_EQ(BackUp.differs[2], 0);
}

TEST_F(ContentTest, ASecondComparisonTakesTheMarksOfTheFirstBack) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b"}) AddSource(name, name);
  RunSteps();
  PutFile(InProgram("copies\\a"), "x");
  EXPECT_EQ(BackUpCompareContent(), -3);
  RunSteps();
  PutFile(InProgram("copies\\b"), "x");
  EXPECT_EQ(BackUpCompareContent(), -3);
  char row[160];
  EXPECT_FALSE(BackUpListContent(0, row, sizeof row));
  EXPECT_TRUE(BackUpListContent(1, row, sizeof row));
  RunSteps();
  EXPECT_EQ(BackUpCompareContent(), 0);
  EXPECT_FALSE(BackUpListContent(1, row, sizeof row));
}

TEST_F(ContentTest, TheComparisonByDateNeitherReadsNorWritesTheMarks) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b"}) AddSource(name, name);
  RunSteps();
  PutFile(InProgram("copies\\a"), "x");
  for (const char* copy : {"copies\\a", "copies\\b"}) SetFileTime(InProgram(copy), 1700000000);
  SetFileTime(InProgram("b"), 1700000001);
  EXPECT_EQ(BackUpCompareContent(), -3);
  EXPECT_EQ(BackUpCompareDate(), 1);
  EXPECT_EQ(BackUp.differs[0], -3);
  EXPECT_EQ(BackUp.differs[1], 0);
  char row[160];
  EXPECT_FALSE(BackUpListDate(0, row, sizeof row));
  EXPECT_TRUE(BackUpListDate(1, row, sizeof row));
  EXPECT_TRUE(BackUpListContent(0, row, sizeof row));
  EXPECT_FALSE(BackUpListContent(1, row, sizeof row));
}

TEST_F(ContentTest, AMissingSourceOrCopyEndsTheComparisonAtOnce) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b"}) AddSource(name, name);
  RunSteps();
  RemoveFile(InProgram("copies\\b"));
  EXPECT_EQ(BackUpCompareContent(), -2);
  RemoveFile(InProgram("b"));
  EXPECT_EQ(BackUpCompareContent(), -1) << "the source is looked at first";
}

TEST_F(ContentTest, EachReadComingShortMakesTheRowDiffer) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", Repeat('x', 131072));
  RunSteps();
  for (int nth = 1; nth <= 4; ++nth) {
    FaultArm(FaultKind::Read, nth);
    EXPECT_EQ(BackUpCompareContent(), -3) << nth;
    EXPECT_TRUE(FaultWasMet());
  }
  FaultClear();
  EXPECT_EQ(BackUpCompareContent(), 0);
}

// --- Rows of the comparisons

TEST_F(BackUpTest, ARowShowsBothTimesInLocalTime) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a.txt", "one");
  RunSteps();
  SetFileTime(InProgram("copies\\a.txt"), 1700000000 + 61);
  char row[160];
  ASSERT_TRUE(BackUpListDate(0, row, sizeof row));
  char expected[160];
  const std::time_t seconds[2] = {1700000000, 1700000061};
  std::tm source{};
  std::tm copy{};
  localtime_r(&seconds[0], &source);
  localtime_r(&seconds[1], &copy);
  std::snprintf(expected, sizeof expected, "a.txt (%d/%d/%d %d:%d:%d - %d/%d/%d %d:%d:%d)",
                source.tm_year + 1900, source.tm_mon + 1, source.tm_mday, source.tm_hour, source.tm_min,
                source.tm_sec, copy.tm_year + 1900, copy.tm_mon + 1, copy.tm_mday, copy.tm_hour, copy.tm_min,
                copy.tm_sec);
  EXPECT_STREQ(row, expected);
}

TEST_F(BackUpTest, EachFileTimeFailingInTurnIsADifference) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  AddSource("b", "two");
  RunSteps();
  for (int nth = 1; nth <= 5; ++nth) {
    FaultArm(FaultKind::FileTime, nth);
    EXPECT_EQ(BackUpCompareDate(), nth <= 4 ? 1 : 0) << nth;
    EXPECT_EQ(FaultWasMet(), nth <= 4) << nth;
  }
  char row[160];
  for (int nth = 1; nth <= 3; ++nth) {
    FaultArm(FaultKind::FileTime, nth);
    EXPECT_EQ(BackUpListDate(0, row, sizeof row), nth <= 2) << nth;
    EXPECT_EQ(std::string(row).substr(0, 3), "a (");
  }
  FaultClear();
  EXPECT_EQ(FileBytes(InProgram("copies\\a")), "one");
  EXPECT_EQ(FileBytes(InProgram("b")), "two");
}

TEST_F(BackUpTest, AMissingFileStandsAsStarsInItsRow) {
  CopyTo("C:\\mirrell\\copies");
  EXPECT_EQ(BackUpAddSource("C:\\mirrell\\gone"), 0);
  char row[160];
  ASSERT_TRUE(BackUpListDate(0, row, sizeof row));
  EXPECT_STREQ(row, "gone ( ******  -  ****** )");
}

TEST_F(BackUpTest, ANameIsCutAfter24BytesAndKeepsItsPairs) {
  CopyTo("C:\\mirrell\\copies");
  EXPECT_EQ(BackUpAddSource("C:\\x\\123456789012345678901234567"), 0);
  EXPECT_EQ(BackUpAddSource("C:\\x\\1二三四五六七八九十十二三四"), 0);
  char row[160];
  ASSERT_TRUE(BackUpListDate(0, row, sizeof row));
  EXPECT_STREQ(row, "123456789012345678901234 ( ******  -  ****** )");
  ASSERT_TRUE(BackUpListDate(1, row, sizeof row));
  EXPECT_STREQ(row, "1二三四五六七八九十十二 ( ******  -  ****** )")
      << "23 bytes: the next pair would be split";
}

TEST_F(BackUpTest, TheContentListHoldsTheMarkedRows) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  char row[160];
  EXPECT_FALSE(BackUpListContent(0, row, sizeof row));
  BackUp.differs[0] = -3;
  EXPECT_TRUE(BackUpListContent(0, row, sizeof row));
}

// --- The settings file

TEST_F(BackUpTest, TheTableOfTheSettingsFileIsRead) {
  const std::string bytes = SettingsBytes(3);
  ASSERT_EQ(bytes.size(), 120605U);
  PutFile(InProgram("a.BUP"), bytes);
  BackUp.dirty = true;
  EXPECT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_FALSE(BackUp.dirty);
  EXPECT_EQ(BackUp.fileCount, 3);
  EXPECT_STREQ(BackUp.destDir, "C:\\copies");
  EXPECT_STREQ(BackUp.destPath[0], "C:\\to\\0");
  EXPECT_STREQ(BackUp.destPath[99], "C:\\to\\99");
  EXPECT_STREQ(BackUp.sourcePath[0], "C:\\from\\0");
  EXPECT_STREQ(BackUp.sourcePath[99], "C:\\from\\99");
  EXPECT_STREQ(BackUp.comment, "毎週の控え");
}

TEST_F(BackUpTest, WhatWasReadIsWrittenAgainByteForByte) {
  const std::string bytes = SettingsBytes(100);
  PutFile(InProgram("a.BUP"), bytes);
  EXPECT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), 0);
  PutFile(InProgram("b.BUP"), Repeat('x', 200000));
  EXPECT_EQ(BackUpSave(InProgram("b.BUP").c_str()), 0);
  EXPECT_TRUE(FileBytes(InProgram("b.BUP")) == bytes);
}

TEST_F(BackUpTest, FilesAreReadWhileNobodyWritesThemAndTheSettingsAreShared) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "one");
  RunSteps();
  const std::string source = InProgram("a");
  const std::string copy = "C:\\mirrell\\copies\\a";
  const std::vector<FileOpened> both = {{source, false, OpenMode::ReadDenyWrite},
                                        {copy, false, OpenMode::ReadDenyWrite}};
  FilesOpenedClear();
  EXPECT_EQ(BackUpCompareContent(), 0);
  EXPECT_EQ(FilesOpened(), both);
  FilesOpenedClear();
  BackUpCompareDate();
  EXPECT_EQ(FilesOpened(), both);
  char row[160];
  FilesOpenedClear();
  BackUpListDate(0, row, sizeof row);
  EXPECT_EQ(FilesOpened(), both);
  const std::string settings = InProgram("a.BUP");
  FilesOpenedClear();
  EXPECT_EQ(BackUpSave(settings.c_str()), 0);
  EXPECT_EQ(BackUpLoad(settings.c_str()), 0);
  EXPECT_EQ(FilesOpened(), (std::vector<FileOpened>{{settings, true, OpenMode::ReadWrite},
                                                    {settings, false, OpenMode::ReadWrite},
                                                    {settings, false, OpenMode::ReadDenyWrite}}));
}

TEST(BackUpRecord, LiesAsTold) {
  RecordCheck<BackUpHead>();
  EXPECT_EQ(RecordOffset<&BackUpHead::fileCount>(), 45);
  RecordCheck<BackUpSet>();
  EXPECT_EQ(RecordSize<BackUpHead>() + RecordOffset<&BackUpSet::destDir>(), 49);
  EXPECT_EQ(RecordSize<BackUpHead>() + RecordOffset<&BackUpSet::destPath>(), 349);
  EXPECT_EQ(RecordSize<BackUpHead>() + RecordOffset<&BackUpSet::sourcePath>(), 60349);
  EXPECT_EQ(RecordSize<BackUpHead>() + RecordOffset<&BackUpSet::comment>(), 120349);
  EXPECT_EQ(RecordSize<BackUpHead>() + RecordSize<BackUpSet>(), 120605);
}

TEST_F(BackUpTest, ASettingsFileThatIsNotThereIsMinusOne) {
  EXPECT_EQ(BackUpLoad(InProgram("none.BUP").c_str()), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
}

TEST_F(BackUpTest, ASettingsFileOf120604BytesIsBad) {
  PutFile(InProgram("a.BUP"), SettingsBytes(3).substr(0, 120604));
  BackUp.dirty = true;
  EXPECT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), -2);
  EXPECT_TRUE(BackUp.dirty);
  EXPECT_EQ(BackUp.fileCount, 3) << "what came before the cut is in force";
  EXPECT_STREQ(BackUp.sourcePath[99], "C:\\from\\99");
}

TEST_F(BackUpTest, ASettingsFileCutAnywhereIsBadAndKeepsWhatCame) {
  const std::string bytes = SettingsBytes(7);
  const std::string path = PosixPath(InProgram("a.BUP").c_str());
  PutFile(InProgram("a.BUP"), bytes);
  for (int size = 120604; size >= 0;
       size = size > 400 && size < 120340 && size % 600 > 2 ? size - 97 : size - 1) {
    ASSERT_EQ(truncate(path.c_str(), size), 0);
    std::memset(&BackUp, 0, sizeof BackUp);
    BackUp.fileCount = 55;
    ASSERT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), -2) << size;
    ASSERT_EQ(BackUp.fileCount, size < 49 ? 55 : 7) << size;
    ASSERT_STREQ(BackUp.destPath[0],
                 size < 349 + 7 ? bytes.substr(349, std::max(0, size - 349)).c_str() : "C:\\to\\0")
        << size;
    ASSERT_STREQ(BackUp.sourcePath[99], size < 119749 + 10
                                            ? bytes.substr(119749, size > 119749 ? size - 119749 : 0).c_str()
                                            : "C:\\from\\99")
        << size;
  }
}

TEST_F(BackUpTest, ASettingsFileCutAtAnyFieldsEndKeepsTheBytesThatCame) {
  // Magic, count, folder, a hundred copies and a hundred sources, comment.
  std::vector<int> ends = {45, 49, 349};
  for (int path = 1; path <= 200; ++path) ends.push_back(349 + 600 * path);
  ends.push_back(120605);
  ASSERT_EQ(ends[202], 120349);
  std::string bytes = SettingsBytes(100);
  // No byte of a field is nought, so that each one tells whether it came.
  for (std::size_t at = 49; at < bytes.size(); ++at) {
    if (bytes[at] == '\0') bytes[at] = static_cast<char>('a' + at % 26);
  }
  const std::string path = PosixPath(InProgram("a.BUP").c_str());
  PutFile(InProgram("a.BUP"), bytes + "+");
  for (auto end = ends.rbegin(); end != ends.rend(); ++end) {
    for (const int size : {*end + 1, *end, *end - 1}) {
      ASSERT_EQ(truncate(path.c_str(), size), 0);
      std::memset(&BackUp, 0, sizeof BackUp);
      BackUp.fileCount = 55;
      const bool whole = size >= 120605;
      ASSERT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), whole ? 0 : -2) << size;
      ASSERT_EQ(FileResult.FileStatus, whole ? 0 : -2) << size;
      ASSERT_EQ(BackUp.fileCount, size < 49 ? 55 : 100) << size;
      std::string came = bytes.substr(49, static_cast<std::size_t>(std::max(0, size - 49)));
      came.resize(120605 - 49, '\0');
      // Every text ends inside its field.
      came[299] = '\0';
      for (std::size_t field = 1; field <= 200; ++field) came[300 + 600 * field - 1] = '\0';
      came.back() = '\0';
      ASSERT_EQ(std::memcmp(BackUp.destDir, came.data(), 300), 0) << size;
      ASSERT_EQ(std::memcmp(BackUp.destPath, came.data() + 300, 60000), 0) << size;
      ASSERT_EQ(std::memcmp(BackUp.sourcePath, came.data() + 60300, 60000), 0) << size;
      ASSERT_EQ(std::memcmp(BackUp.comment, came.data() + 120300, 256), 0) << size;
    }
  }
}

TEST_F(BackUpTest, AnotherMagicIsBadAtEveryByte) {
  const std::string bytes = SettingsBytes(1);
  for (std::size_t at = 0; at < 45; ++at) {
    std::string wrong = bytes.substr(0, 60);
    wrong[at] = static_cast<char>(wrong[at] ^ 1);
    PutFile(InProgram("a.BUP"), wrong);
    EXPECT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), -2);
    EXPECT_EQ(BackUp.fileCount, 0);
  }
}

TEST_F(BackUpTest, ACountBeyondTheTablesIsBadAndChangesNothing) {
  for (const std::uint32_t count : {101U, 256U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    std::string bytes = SettingsBytes(1);
    for (int i = 0; i < 4; ++i) bytes[45 + i] = static_cast<char>(count >> (24 - 8 * i));
    PutFile(InProgram("a.BUP"), bytes);
    EXPECT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), -2) << count;
    EXPECT_EQ(BackUp.fileCount, 0);
    EXPECT_STREQ(BackUp.destDir, "");
  }
}

TEST_F(BackUpTest, FieldsWithoutTerminatorsAreCut) {
  std::string bytes = SettingsBytes(100);
  for (std::size_t i = 49; i < bytes.size(); ++i) bytes[i] = 'x';
  PutFile(InProgram("a.BUP"), bytes);
  EXPECT_EQ(BackUpLoad(InProgram("a.BUP").c_str()), 0);
  EXPECT_EQ(std::string(BackUp.destDir), Repeat('x', 299));
  EXPECT_EQ(std::string(BackUp.destPath[0]), Repeat('x', 599));
  EXPECT_EQ(std::string(BackUp.sourcePath[99]), Repeat('x', 599));
  EXPECT_EQ(std::string(BackUp.comment), Repeat('x', 255));
  BackUpRebuildDest();
  EXPECT_EQ(std::string(BackUp.destPath[5]), Repeat('x', 256) + "\\");
  EXPECT_EQ(BackUpCompareContent(), -1);
  char row[160];
  EXPECT_TRUE(BackUpListDate(7, row, sizeof row));
  EXPECT_STREQ(row, " ( ******  -  ****** )") << "a path without a folder has no name";
}

TEST_F(BackUpTest, EachCallOfTheWriterFailingInTurn) {
  PutFile(InProgram("a.BUP"), "old");
  const auto save = [](FaultKind kind, int nth) {
    FaultArm(kind, nth);
    return BackUpSave(InProgram("a.BUP").c_str());
  };
  EXPECT_EQ(save(FaultKind::Open, 1), 0) << "a file that does not open is made anew";
  EXPECT_EQ(save(FaultKind::Open, 2), -1);
  EXPECT_EQ(save(FaultKind::Delete, 1), 0) << "the create empties what could not be deleted";
  EXPECT_EQ(FileBytes(InProgram("a.BUP")).size(), 120605U);
  EXPECT_EQ(save(FaultKind::Create, 1), -1);
  FaultClear();
  const std::size_t edges[] = {0, 49, 120605};
  for (int nth = 1; nth <= 2; ++nth) {
    EXPECT_EQ(save(FaultKind::Write, nth), -2) << nth;
    EXPECT_EQ(FileResult.FileStatus, -2);
    EXPECT_EQ(FileBytes(InProgram("a.BUP")).size(), edges[nth] - 1)
        << "nothing is written behind the short transfer";
    FaultClear();
  }
  EXPECT_EQ(save(FaultKind::Write, 3), 0);
  EXPECT_FALSE(FaultWasMet());
}

TEST_F(BackUpTest, EachReadOfTheReaderFailingInTurn) {
  PutFile(InProgram("a.BUP"), SettingsBytes(2));
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Read, nth);
    const int result = BackUpLoad(InProgram("a.BUP").c_str());
    if (!FaultWasMet()) {
      EXPECT_EQ(nth, 3);
      EXPECT_EQ(result, 0);
      break;
    }
    EXPECT_EQ(result, -2);
  }
}

TEST_F(BackUpTest, AHundredThousandMutatedSettingsFilesAreHarmless) {
  const std::string bytes = SettingsBytes(100);
  PutFile(InProgram("a.BUP"), bytes);
  const std::string file = PosixPath(InProgram("a.BUP").c_str());
  const int handle = open(file.c_str(), O_RDWR);
  ASSERT_GE(handle, 0);
  std::mt19937 random(20261121);
  const off_t places[] = {0, 45, 49, 349, 60349, 120349};
  int good = 0;
  for (int round = 0; round < 100000; ++round) {
    off_t at[3];
    const int changes = 1 + static_cast<int>(random() % 3);
    for (int i = 0; i < changes; ++i) {
      // Half of them near the beginnings of the fields.
      at[i] = random() % 2 == 0 ? static_cast<off_t>(random() % bytes.size())
                                : places[random() % 6] + static_cast<off_t>(random() % 8);
      const char byte = static_cast<char>(random());
      ASSERT_EQ(pwrite(handle, &byte, 1, at[i]), 1);
    }
    const int result = BackUpLoad("a.BUP");
    ASSERT_TRUE(result == 0 || result == -2);
    ASSERT_GE(BackUp.fileCount, 0);
    ASSERT_LE(BackUp.fileCount, 100);
    if (result == 0) {
      ++good;
      const int row = static_cast<int>(random() % 100);
      if (row < BackUp.fileCount) {
        ASSERT_LT(TextLength(BackUp.sourcePath[row], 600), 600U);
        ASSERT_LT(TextLength(BackUp.destPath[row], 600), 600U);
      }
      ASSERT_LT(TextLength(BackUp.destDir, 300), 300U);
      ASSERT_LT(TextLength(BackUp.comment, 256), 256U);
    }
    for (int i = 0; i < changes; ++i) ASSERT_EQ(pwrite(handle, &bytes[at[i]], 1, at[i]), 1);
  }
  close(handle);
  EXPECT_GT(good, 10000);
}

}  // namespace
