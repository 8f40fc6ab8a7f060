// The groups and their file.
#include "filetools/open/open_groups.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <random>

#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "services/state.h"
#include "tests/filetools/open/open_fixture.h"
#include "tests/support/record_check.h"

namespace {

constexpr std::size_t kRecord = 36859;
constexpr std::size_t kWhole = 7371800;

class OpenGroupsTest : public OpenFixture {
 protected:
  void SetUp() override {
    OpenFixture::SetUp();
    FileResult.FileStatus = 0;
  }
  static void PutText(std::string& image, std::size_t at, const std::string& text) {
    image.replace(at, text.size(), text);
  }
  // A table with something in its first and last records, as it is and as a file.
  static void FillTable() {
    AddToGroup(0, "表紙.txt", "C:\\書類\\", "edit.exe", "C:\\道具\\");
    AddToGroup(0, "b.txt");
    OpnGroupSetComment(0, "朝の仕事");
    for (int i = 0; i < 30; ++i) AddToGroup(199, "f" + std::to_string(i), "D:\\");
    OpnGroups.OpnGroupTable[199].reserved[601] = 'r';
    OpnGroupSetComment(199, std::string(255, 'c').c_str());
  }
  static std::string FilledImage() {
    std::string image(kWhole, '\0');
    image[0] = 2;
    PutText(image, 1, "表紙.txt");
    PutText(image, 301, "b.txt");
    PutText(image, 9001, "C:\\書類\\");
    PutText(image, 9301, "C:\\data\\");
    PutText(image, 18001, "edit.exe");
    PutText(image, 27001, "C:\\道具\\");
    PutText(image, 36603, "朝の仕事");
    const std::size_t last = 199 * kRecord;
    image[last] = 30;
    for (std::size_t i = 0; i < 30; ++i) {
      PutText(image, last + 1 + 300 * i, "f" + std::to_string(i));
      PutText(image, last + 9001 + 300 * i, "D:\\");
    }
    image[last + 36602] = 'r';
    PutText(image, last + 36603, std::string(255, 'c'));
    return image;
  }
  static std::string TableBytes() {
    return {reinterpret_cast<const char*>(OpnGroups.OpnGroupTable), sizeof OpnGroups.OpnGroupTable};
  }
};

// --- The file

TEST_F(OpenGroupsTest, TheFileIsTheTableFieldByField) {
  FillTable();
  EXPECT_EQ(OpnGroupSave(), 0);
  EXPECT_TRUE(FileBytes(GroupPath()) == FilledImage());
}

TEST_F(OpenGroupsTest, WhatWasWrittenIsReadBack) {
  FillTable();
  const std::string table = TableBytes();
  SaveGroups();
  std::memset(OpnGroups.OpnGroupTable, 1, sizeof OpnGroups.OpnGroupTable);
  EXPECT_EQ(OpnGroupLoad(), 0);
  EXPECT_TRUE(TableBytes() == table);
}

TEST_F(OpenGroupsTest, AMissingGroupFileGivesSilentlyTheTableAsItWas) {
  FillTable();
  const std::string table = TableBytes();
  EXPECT_EQ(OpnGroupLoad(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_TRUE(TableBytes() == table);
}

TEST_F(OpenGroupsTest, AFileThatEndsInOrBehindAnyFieldLeavesTheTableAsItWas) {
  FillTable();
  SaveGroups();
  OpnGroupSetComment(5, "kept");
  const std::string table = TableBytes();
  const std::string path = PosixPath(GroupPath().c_str());
  constexpr std::size_t kFieldEnds[] = {0, 1, 9001, 18001, 27001, 36001, 36603};
  // From the end to the start: behind every field, or one byte less.
  ASSERT_EQ(truncate(path.c_str(), kWhole - 1), 0);
  EXPECT_EQ(OpnGroupLoad(), -1);
  for (std::size_t record = kOpnGroupMax; record-- > 0;) {
    for (std::size_t field = 7; field-- > 0;) {
      const std::size_t start = record * kRecord + kFieldEnds[field];
      const std::size_t end = (record + field) % 2 == 0 || start == 0 ? start : start - 1;
      ASSERT_EQ(truncate(path.c_str(), static_cast<off_t>(end)), 0);
      FileResult.FileStatus = 0;
      ASSERT_EQ(OpnGroupLoad(), -1) << end;
      ASSERT_EQ(FileResult.FileStatus, -2) << end;
    }
  }
  EXPECT_TRUE(TableBytes() == table);
}

TEST_F(OpenGroupsTest, ALongerFileIsReadAsFarAsTheTableGoes) {
  std::string image = FilledImage();
  ASSERT_TRUE(PutFile(GroupPath(), image + "more"));
  EXPECT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(OpnGroups.OpnGroupTable[199].fileCount, 30);
}

TEST_F(OpenGroupsTest, ACountBeyond30IsHeldAt30AndCostsNoOtherGroup) {
  FillTable();
  SaveGroups();
  std::string expected = TableBytes();
  const int file = open(PosixPath(GroupPath().c_str()).c_str(), O_RDWR);
  for (const std::size_t record : {0, 77, 199}) {
    expected[record * kRecord] = 30;
    for (const int count : {31, 32, 127, 128, 255}) {
      const auto byte = static_cast<unsigned char>(count);
      ASSERT_EQ(pwrite(file, &byte, 1, static_cast<off_t>(record * kRecord)), 1);
      StateReset(OpnGroups);
      EXPECT_EQ(OpnGroupLoad(), 0);
      EXPECT_EQ(FileResult.FileStatus, 0);
      ASSERT_TRUE(TableBytes() == expected) << count;
    }
  }
  close(file);
}

// Ends of a record's fields: count, names, folders, programs, their folders, what is
// reserved, comment.
constexpr std::size_t kFieldEnds[] = {1, 9001, 18001, 27001, 36001, 36603, 36859};

TEST_F(OpenGroupsTest, AFileThatEndsAroundAnyFieldsStartLeavesTheTableAsItWas) {
  FillTable();
  SaveGroups();
  OpnGroupSetComment(5, "kept");
  const std::string table = TableBytes();
  const std::string path = PosixPath(GroupPath().c_str());
  const int files = DiagnosticsLive().files;
  for (const std::size_t record : {199, 100, 1, 0}) {
    for (int field = 6; field >= -1; --field) {
      const std::size_t start = record * kRecord + (field < 0 ? 0 : kFieldEnds[field]);
      for (const std::size_t end : {start + 1, start, start - 1}) {
        if (end >= kWhole) continue;  // behind the last field, and before the first
        ASSERT_EQ(truncate(path.c_str(), static_cast<off_t>(end)), 0);
        FileResult.FileStatus = 0;
        ASSERT_EQ(OpnGroupLoad(), -1) << end;
        ASSERT_EQ(FileResult.FileStatus, -2) << end;
      }
    }
    ASSERT_TRUE(TableBytes() == table) << record;
  }
  EXPECT_EQ(DiagnosticsLive().files, files);
}

TEST_F(OpenGroupsTest, EveryWriteThatFailsGivesItsResult) {
  FillTable();
  const std::string table = TableBytes();
  const std::string path = PosixPath(GroupPath().c_str());
  const int files = DiagnosticsLive().files;
  // Two hundred records; the last round meets no fault.
  for (std::size_t nth = 1; nth <= 201; ++nth) {
    FaultArm(FaultKind::Write, static_cast<int>(nth));
    FileResult.FileStatus = 5;
    const int result = OpnGroupSave();
    const bool met = FaultWasMet();
    FaultClear();
    ASSERT_EQ(met, nth <= 200) << nth;
    ASSERT_EQ(result, met ? -1 : 0) << nth;
    ASSERT_EQ(FileResult.FileStatus, met ? -2 : 0) << nth;
    // Nothing is written behind the record that came a byte short.
    ASSERT_EQ(std::filesystem::file_size(path), met ? nth * kRecord - 1 : kWhole) << nth;
  }
  EXPECT_TRUE(TableBytes() == table);
  EXPECT_TRUE(FileBytes(GroupPath()) == FilledImage());
  EXPECT_EQ(DiagnosticsLive().files, files);
}

TEST_F(OpenGroupsTest, EveryOtherCallThatFailsGivesItsResult) {
  FillTable();
  const auto save = [](FaultKind kind, int nth) {
    PutFile(GroupPath(), std::string(8000000, 'o'));
    FileResult.FileStatus = 5;
    FaultArm(kind, nth);
    const int result = OpnGroupSave();
    EXPECT_TRUE(FaultWasMet());
    FaultClear();
    EXPECT_EQ(FileResult.FileStatus, result);
    return result;
  };
  EXPECT_EQ(save(FaultKind::Open, 1), 0) << "a file that does not open is made anew";
  EXPECT_TRUE(FileBytes(GroupPath()) == FilledImage());
  EXPECT_EQ(save(FaultKind::Delete, 1), 0) << "the create empties what could not be deleted";
  EXPECT_TRUE(FileBytes(GroupPath()) == FilledImage());
  EXPECT_EQ(save(FaultKind::Open, 2), -1);
  EXPECT_EQ(FileBytes(GroupPath()), "") << "the old file is gone by then";
  EXPECT_EQ(save(FaultKind::Create, 1), -1);
  EXPECT_FALSE(FileThere(GroupPath()));

  SaveGroups();
  const std::string table = TableBytes();
  FaultArm(FaultKind::Open, 1);
  EXPECT_EQ(OpnGroupLoad(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultArm(FaultKind::Read, 1);
  EXPECT_EQ(OpnGroupLoad(), -1);
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_TRUE(TableBytes() == table);
}

// Everything that can be done with a table of any bytes.
void UseEverything(std::mt19937& random) {
  const auto any = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  const int group = any(kOpnGroupMax);
  char text[kOpnGroupRowSize];
  OpnGroupRowText(group, text, sizeof text);
  OpnGroupFind(group);
  OpnGroupRemoveFile(group, any(31));
  OpnGroupAddFile(group);
  OpnGroupAddRecord(group);
  OpnGroupSetComment(group, text);
  OpnSearchNames("a 表 \x81 b");
  OpnSearchComments("a 表 \x81 b");
}

TEST_F(OpenGroupsTest, RandomChangesOfTheFileHarmNothing) {
  FillTable();
  SaveGroups();
  Select("x", "C:\\");
  OpnRecordAdd();
  std::mt19937 random(20261121);
  const int file = open(PosixPath(GroupPath().c_str()).c_str(), O_RDWR);
  int loaded = 0;
  const auto put = [&](std::size_t at, std::size_t value) {
    const auto byte = static_cast<unsigned char>(value);
    return pwrite(file, &byte, 1, static_cast<off_t>(at)) == 1;
  };
  // 100 rounds of 1000 changes; one round in two has a count of any value too.
  for (int round = 0; round < 100; ++round) {
    for (int change = 0; change < 1000; ++change) {
      const auto at = static_cast<std::size_t>(random() % kWhole);
      ASSERT_TRUE(put(at, at % kRecord == 0 ? random() % 31 : random()));
    }
    const std::size_t count = random() % 200 * kRecord;
    ASSERT_TRUE(put(count, round % 2 == 0 ? random() % 31 : random()));
    if (OpnGroupLoad() == 0) ++loaded;
    ASSERT_TRUE(put(count, random() % 31));
    for (int use = 0; use < 10; ++use) UseEverything(random);
    for (const OpnGroupRec& group : OpnGroups.OpnGroupTable) ASSERT_LE(group.fileCount, 30);
  }
  close(file);
  EXPECT_GE(loaded, 50);
}

// --- Groups

TEST_F(OpenGroupsTest, AGroupReadsWithItsNumberAndWithFilesItsComment) {
  OpnGroupSetComment(0, "朝");
  OpnGroupSetComment(1, "夜");
  AddToGroup(1, "a.txt");
  AddToGroup(199, "a.txt");
  char text[kOpnGroupRowSize];
  OpnGroupRowText(0, text, sizeof text);
  EXPECT_STREQ(text, "   1");
  OpnGroupRowText(1, text, sizeof text);
  EXPECT_STREQ(text, "*  2 (夜)");
  OpnGroupRowText(98, text, sizeof text);
  EXPECT_STREQ(text, "  99");
  OpnGroupRowText(199, text, sizeof text);
  EXPECT_STREQ(text, "* 200 ()");
}

TEST_F(OpenGroupsTest, FilesAreFoundByNameAndFolder) {
  AddToGroup(3, "a.txt", "C:\\");
  AddToGroup(3, "a.txt", "D:\\", "edit.exe", "C:\\");
  Select("a.txt", "D:\\");
  EXPECT_EQ(OpnGroupFind(3), 1);
  EXPECT_EQ(OpnGroupFind(4), -1);
  Select("A.txt", "D:\\");
  EXPECT_EQ(OpnGroupFind(3), -1);
}

TEST_F(OpenGroupsTest, AThirtyFirstFileIsRefused) {
  for (int i = 0; i < 30; ++i) AddToGroup(0, "f" + std::to_string(i));
  Select("more", "C:\\");
  EXPECT_EQ(OpnGroupAddFile(0), -1);
  EXPECT_EQ(OpnGroups.OpnGroupTable[0].fileCount, 30);
  EXPECT_STREQ(OpnGroups.OpnGroupTable[0].fileName[29], "f29");
}

TEST_F(OpenGroupsTest, RemovingAFileClosesTheRowsUp) {
  AddToGroup(0, "a", "C:\\", "pa", "C:\\1\\");
  AddToGroup(0, "b", "C:\\", "pb", "C:\\2\\");
  AddToGroup(0, "c", "D:\\", "pc", "C:\\3\\");
  OpnGroupRemoveFile(0, 1);
  EXPECT_EQ(GroupFiles(0), (Rows{"a [C:\\] pa", "c [D:\\] pc"}));
  EXPECT_STREQ(OpnGroups.OpnGroupTable[0].progPath[1], "C:\\3\\");
  for (const int row : {-1, 2, 30}) OpnGroupRemoveFile(0, row);
  EXPECT_EQ(OpnGroups.OpnGroupTable[0].fileCount, 2);
}

TEST_F(OpenGroupsTest, GroupsThatAreNotThereArePassedOver) {
  Select("a", "C:\\");
  for (const int group : {-1, 200}) {
    EXPECT_EQ(OpnGroupFind(group), -1);
    EXPECT_EQ(OpnGroupAddFile(group), -1);
    OpnGroupRemoveFile(group, 0);
    EXPECT_FALSE(OpnGroupSetComment(group, "x"));
    OpnGroupStart(group);
    EXPECT_EQ(GroupRun.OpnPendingGroup, nullptr);
  }
}

TEST_F(OpenGroupsTest, ACommentHas255Bytes) {
  EXPECT_TRUE(OpnGroupSetComment(0, std::string(300, 'c').c_str()));
  EXPECT_EQ(std::string(OpnGroups.OpnGroupTable[0].comment), std::string(255, 'c'));
  EXPECT_FALSE(OpnGroupSetComment(0, std::string(255, 'c').c_str()));
  EXPECT_TRUE(OpnGroupSetComment(0, "c"));
}

TEST_F(OpenGroupsTest, TheRecordIsAppendedWithoutATestForDoublesUntilTheGroupIsFull) {
  for (int i = 0; i < 28; ++i) AddToGroup(0, "f" + std::to_string(i));
  for (const char* name : {"r1", "f27", "r3"}) {
    Select(name, "C:\\data\\");
    OpnRecordAdd();
  }
  Select("kept", "C:\\");
  // The latest stands on top of the record.
  EXPECT_EQ(OpnGroupAddRecord(0), -1);
  const Rows files = GroupFiles(0);
  ASSERT_EQ(files.size(), 30U);
  EXPECT_EQ(files[27], "f27 [C:\\data\\]");
  EXPECT_EQ(files[28], "r3 [C:\\data\\]");
  EXPECT_EQ(files[29], "f27 [C:\\data\\]");
  EXPECT_STREQ(OpnSelection.fileName, "kept");
  EXPECT_EQ(OpnGroupAddRecord(1), 0);
  EXPECT_EQ(GroupFiles(1).size(), 3U);
}

TEST_F(OpenGroupsTest, TheWholeTableComesBackFromItsCopy) {
  FillTable();
  const std::string table = TableBytes();
  OpnGroupsKeep();
  std::memset(OpnGroups.OpnGroupTable, 7, sizeof OpnGroups.OpnGroupTable);
  OpnGroupsBack();
  EXPECT_TRUE(TableBytes() == table);
}

// --- Searching

std::vector<int> Found() {
  std::vector<int> groups;
  for (int row = 0; row < OpnSearchResult.count; ++row) groups.push_back(OpnSearchGroup(row));
  return groups;
}

TEST_F(OpenGroupsTest, AFileNameMatchesThatBeginsWithAWord) {
  AddToGroup(3, "Report.txt");
  AddToGroup(7, "my report.txt");
  AddToGroup(9, "報告書.txt");
  OpnSearchNames("report");
  EXPECT_EQ(Found(), std::vector<int>{3});
  OpnSearchNames("REPORT.TXT");
  EXPECT_EQ(Found(), std::vector<int>{3});
  OpnSearchNames("報告");
  EXPECT_EQ(Found(), std::vector<int>{9});
  OpnSearchNames("report.txtx");
  EXPECT_EQ(Found(), std::vector<int>{});
}

TEST_F(OpenGroupsTest, DoubleByteCharactersMatchExactly) {
  // "ア" is 0x83 0x41, "ャ" is 0x83 0x83; 0x83 0x61 is another character.
  AddToGroup(0, "ア.txt");
  AddToGroup(1, "\x83\x61.txt");
  OpnSearchNames("ア");
  EXPECT_EQ(Found(), std::vector<int>{0});
  OpnSearchNames("\x83\x61");
  EXPECT_EQ(Found(), std::vector<int>{1});
  // A letter is no beginning of a full-width one.
  OpnSearchNames("ａ");
  EXPECT_EQ(Found(), std::vector<int>{});
}

TEST_F(OpenGroupsTest, ADoubleByteBlankSeparatesNoWords) {
  AddToGroup(0, "ab.txt");
  AddToGroup(1, "a　b.txt");
  OpnSearchNames("a　b");
  EXPECT_EQ(Found(), std::vector<int>{1});
  // 0x83 0x20 is no character, but a pair is kept whole.
  AddToGroup(2, "\x83\x20x");
  OpnSearchNames("\x83\x20x");
  EXPECT_EQ(Found(), std::vector<int>{2});
}

TEST_F(OpenGroupsTest, AGroupStandsInTheResultOnceForEveryMatch) {
  AddToGroup(0, "a1");
  AddToGroup(0, "a2");
  AddToGroup(4, "a1");
  EXPECT_EQ(OpnSearchNames("  a  a1   zz "), 5);
  EXPECT_EQ(Found(), (std::vector<int>{0, 0, 0, 4, 4}));
}

TEST_F(OpenGroupsTest, NoWordsFindNothing) {
  AddToGroup(0, "a");
  OpnGroupSetComment(0, "a");
  for (const char* text : {"", " ", "     "}) {
    EXPECT_EQ(OpnSearchNames(text), 0);
    EXPECT_EQ(OpnSearchComments(text), 0);
  }
}

TEST_F(OpenGroupsTest, TheFullestTableIsSearchedWithAsManyWordsAsFit) {
  for (int group = 0; group < 200; ++group) {
    for (int i = 0; i < 30; ++i) AddToGroup(group, "a");
  }
  std::string text;
  for (int i = 0; i < 2600; ++i) text += "a ";
  EXPECT_EQ(OpnSearchNames(text.c_str()), 200 * 30 * 2560);
  EXPECT_EQ(OpnSearchGroup(0), 0);
  EXPECT_EQ(OpnSearchGroup(30 * 2560 - 1), 0);
  EXPECT_EQ(OpnSearchGroup(30 * 2560), 1);
  EXPECT_EQ(OpnSearchGroup(OpnSearchResult.count - 1), 199);
}

TEST_F(OpenGroupsTest, ACommentMatchesThatHoldsAWordWithRegardToCase) {
  OpnGroupSetComment(0, "Morning work");
  OpnGroupSetComment(1, "朝の仕事");
  OpnGroupSetComment(2, "Morning");
  AddToGroup(0, "a");
  AddToGroup(1, "a");
  EXPECT_EQ(OpnSearchComments("ning"), 1);  // group 3 has no files
  EXPECT_EQ(Found(), std::vector<int>{0});
  EXPECT_EQ(OpnSearchComments("morning"), 0);
  EXPECT_EQ(OpnSearchComments("仕事"), 1);
  EXPECT_EQ(Found(), std::vector<int>{1});
  EXPECT_EQ(OpnSearchComments("work ning 朝"), 3);
  EXPECT_EQ(Found(), (std::vector<int>{0, 0, 1}));
}

TEST_F(OpenGroupsTest, AWordAabIsNotFoundInACommentAaab) {
  AddToGroup(0, "x");
  OpnGroupSetComment(0, "aaab");
  EXPECT_EQ(OpnSearchComments("aab"), 0);
  EXPECT_EQ(OpnSearchComments("aaab"), 1);
  EXPECT_EQ(OpnSearchComments("ab"), 1);
  OpnGroupSetComment(0, "aab");
  EXPECT_EQ(OpnSearchComments("aab"), 1);
  EXPECT_EQ(OpnSearchComments("ab"), 0);  // the second a is the mismatch, and is not looked at again
  OpnGroupSetComment(0, "xaab");
  EXPECT_EQ(OpnSearchComments("aab"), 1);
}

TEST_F(OpenGroupsTest, TwentyWordsOfACommentSearchAreLookedAt) {
  AddToGroup(0, "x");
  OpnGroupSetComment(0, "word");
  std::string words;
  for (int i = 0; i < 19; ++i) words += "no ";
  EXPECT_EQ(OpnSearchComments((words + "word").c_str()), 1);
  EXPECT_EQ(OpnSearchComments((words + "no word").c_str()), 0);
}

TEST(OpenGroupRecord, LiesAsTold) {
  RecordCheck<OpnGroupRec>();
  EXPECT_EQ(RecordOffset<&OpnGroupRec::fileName>(), 1);
  EXPECT_EQ(RecordOffset<&OpnGroupRec::filePath>(), 9001);
  EXPECT_EQ(RecordOffset<&OpnGroupRec::progName>(), 18001);
  EXPECT_EQ(RecordOffset<&OpnGroupRec::progPath>(), 27001);
  EXPECT_EQ(RecordOffset<&OpnGroupRec::reserved>(), 36001);
  EXPECT_EQ(RecordOffset<&OpnGroupRec::comment>(), 36603);
}

// 20 words of 255 bytes with 19 blanks are 5119 bytes.
TEST_F(OpenGroupsTest, TwentyWordsOf255BytesFit) {
  AddToGroup(0, "x");
  OpnGroupSetComment(0, std::string(255, 'c').c_str());
  std::string words;
  for (int i = 0; i < 19; ++i) words += std::string(255, 'd') + ' ';
  EXPECT_EQ(OpnSearchComments((words + std::string(255, 'c')).c_str()), 1);
  EXPECT_EQ(OpnSearchComments((words + std::string(254, 'c') + 'd').c_str()), 0);
}

// A pair that does not fit whole is left out: of "表" only 0x95 would be looked for.
TEST_F(OpenGroupsTest, APairThatDoesNotFitIsNoPartOfItsWord) {
  AddToGroup(0, "n\x95\x5C");
  const std::string words(5117, ' ');
  EXPECT_EQ(OpnSearchNames((words + "n表").c_str()), 0 + 1);
  AddToGroup(1, "n\x95\x60");
  EXPECT_EQ(OpnSearchNames((words + "n表").c_str()), 2);
  EXPECT_EQ(OpnSearchNames((" " + std::string(5115, ' ') + "n表").c_str()), 1);
  OpnGroupSetComment(0, (std::string(254, 'c')).c_str());
  EXPECT_EQ(OpnSearchComments((std::string(254, 'c') + "表").c_str()), 1);
}

TEST_F(OpenGroupsTest, AWordOf255BytesIsFoundInAFullComment) {
  AddToGroup(0, "x");
  OpnGroupSetComment(0, std::string(255, 'c').c_str());
  EXPECT_EQ(OpnSearchComments(std::string(255, 'c').c_str()), 1);
  EXPECT_EQ(OpnSearchComments(std::string(298, 'c').c_str()), 1);  // cut at 255
  EXPECT_EQ(OpnSearchComments((std::string(254, 'c') + "d").c_str()), 0);
}

}  // namespace
