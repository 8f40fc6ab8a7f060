// Files, folders and drives of the native build.
#include "platform/file.h"

#include <algorithm>
#include <cstring>

#include "platform/posix/faults.h"
#include "platform/posix/files_opened.h"
#include "platform/posix/posix_paths.h"
#include "platform/time.h"
#include "tests/support/desktop.h"

namespace {

using Names = std::vector<std::string>;

class FileTest : public DesktopTest {};

std::vector<SearchEntry> FindAll(const char* pattern) {
  std::vector<SearchEntry> found;
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) found.push_back(entry);
  SearchClose(search);
  // Folders tell their entries in an order of their own.
  std::sort(found.begin(), found.end(),
            [](const SearchEntry& a, const SearchEntry& b) { return std::strcmp(a.name, b.name) < 0; });
  return found;
}

Names NamesOf(const char* pattern) {
  Names names;
  for (const SearchEntry& entry : FindAll(pattern)) names.emplace_back(entry.name);
  return names;
}

TEST_F(FileTest, WholeRoundOfAFile) {
  const int made = FileCreate("C:\\mirrell\\a.bin");
  ASSERT_NE(made, kNoFile);
  EXPECT_EQ(FileWrite(made, "hello", 5), 5);
  FileClose(made);
  const int file = FileOpen("a.bin", OpenMode::Read);
  ASSERT_NE(file, kNoFile);
  std::uint32_t high = 9;
  EXPECT_EQ(FileSize(file, &high), 5U);
  EXPECT_EQ(high, 0U);
  char buffer[8] = "";
  EXPECT_EQ(FileRead(file, buffer, 3), 3);
  EXPECT_EQ(FileRead(file, buffer + 3, 5), 2);
  EXPECT_STREQ(buffer, "hello");
  EXPECT_EQ(FileRead(file, buffer, 1), 0);
  EXPECT_EQ(FileWrite(file, "x", 1), -1);  // open for reading
  FileClose(file);
}

TEST_F(FileTest, CreateEmptiesAnExistingFile) {
  PutFile("C:\\mirrell\\a.bin", "12345");
  FileClose(FileCreate("a.bin"));
  EXPECT_TRUE(FileThere("a.bin"));
  EXPECT_EQ(FileBytes("a.bin"), "");
}

TEST_F(FileTest, ReadWriteGoesOnWhereItReads) {
  PutFile("a.bin", "12345");
  const int file = FileOpen("a.bin", OpenMode::ReadWrite);
  char buffer[2];
  EXPECT_EQ(FileRead(file, buffer, 2), 2);
  EXPECT_EQ(FileWrite(file, "xy", 2), 2);
  FileClose(file);
  EXPECT_EQ(FileBytes("a.bin"), "12xy5");
}

TEST_F(FileTest, HowFilesWereOpenedIsWrittenDown) {
  FileClose(FileCreate("a.bin"));
  FileClose(FileOpen("C:\\mirrell\\a.bin", OpenMode::ReadDenyWrite));
  EXPECT_EQ(FileOpen("none", OpenMode::Read), kNoFile);
  EXPECT_EQ(FilesOpened(), (std::vector<FileOpened>{{"a.bin", true, OpenMode::ReadWrite},
                                                    {"C:\\mirrell\\a.bin", false, OpenMode::ReadDenyWrite}}));
  FilesOpenedClear();
  EXPECT_TRUE(FilesOpened().empty());
}

TEST_F(FileTest, WhatIsNotThereCannotBeOpened) {
  EXPECT_EQ(FileOpen("C:\\mirrell\\none", OpenMode::Read), kNoFile);
  EXPECT_EQ(FileOpen("C:\\mirrell", OpenMode::Read), kNoFile);  // a folder
  EXPECT_EQ(FileCreate("C:\\none\\a"), kNoFile);
  EXPECT_EQ(FileOpen("Q:\\a", OpenMode::Read), kNoFile);
  FileClose(kNoFile);
  std::uint64_t time = 0;
  EXPECT_FALSE(FileWriteTime(kNoFile, &time));
  EXPECT_EQ(FileSize(kNoFile, nullptr), 0U);
  EXPECT_EQ(FileRead(kNoFile, nullptr, 1), -1);
  EXPECT_EQ(FileWrite(kNoFile, nullptr, 1), -1);
}

// "表" ends in 0x5C, the backslash; "ソ" and "予" too.
TEST_F(FileTest, TrailByteOfABackslashIsNoSeparator) {
  ASSERT_EQ(std::string("表").size(), 2U);
  ASSERT_EQ("表"[1], '\\');
  MakeFolder("C:\\mirrell\\予定表");
  FileClose(FileCreate("C:\\mirrell\\予定表\\ソ表.txt"));
  EXPECT_TRUE(FileThere("C:\\mirrell\\予定表\\ソ表.txt"));
  EXPECT_EQ(FolderNames("C:\\mirrell"), Names{"予定表"});
  EXPECT_EQ(NamesOf("C:\\mirrell\\予定表\\*.*"), (Names{".", "..", "ソ表.txt"}));
  EXPECT_EQ(NamesOf("C:\\mirrell\\予定表\\ソ表.txt"), Names{"ソ表.txt"});
  ASSERT_TRUE(FolderSetCurrent("C:\\mirrell\\予定表"));
  char folder[300];
  EXPECT_EQ(FolderGetCurrent(folder, sizeof folder), 17);
  EXPECT_STREQ(folder, "C:\\mirrell\\予定表");
  EXPECT_TRUE(FileMove("ソ表.txt", "C:\\mirrell\\噂.txt"));
  EXPECT_TRUE(FileThere("C:\\mirrell\\噂.txt"));
}

TEST_F(FileTest, DrivesAreFolders) {
  EXPECT_EQ(PosixDrives(), "CZ");
  MakeFolder("C:\\mirrell\\other");
  PosixDriveSet('D', Folder() + "/other");
  EXPECT_EQ(PosixDrives(), "CDZ");
  PutFile("D:\\x", "1");
  EXPECT_EQ(FileBytes("C:\\mirrell\\other\\x"), "1");
  // The innermost drive tells where we are.
  ASSERT_TRUE(FolderSetCurrent("D:\\"));
  char folder[300];
  EXPECT_EQ(FolderGetCurrent(folder, sizeof folder), 3);
  EXPECT_STREQ(folder, "D:\\");
  EXPECT_EQ(PosixPath("d:\\x"), Folder() + "/other/x");
  EXPECT_EQ(PosixPath("D:"), Folder() + "/other/");
  EXPECT_EQ(PosixPath("Z:\\tmp"), "/tmp");
}

TEST_F(FileTest, PathFromTheRootIsOnTheCurrentDrive) {
  PutFile("C:\\root.txt", "r");
  EXPECT_EQ(FileBytes("\\root.txt"), "r");
  ASSERT_TRUE(FolderSetCurrent("Z:\\"));
  EXPECT_EQ(PosixPath("\\tmp"), "/tmp");
  ASSERT_TRUE(FolderSetCurrent("C:\\mirrell"));
}

TEST_F(FileTest, FolderThatIsNotThereIsNotEntered) {
  EXPECT_FALSE(FolderSetCurrent("C:\\none"));
  EXPECT_FALSE(FolderSetCurrent("Q:\\"));
  EXPECT_FALSE(FolderSetCurrent(""));
  char folder[300];
  FolderGetCurrent(folder, sizeof folder);
  EXPECT_STREQ(folder, "C:\\mirrell");
  char small[10];
  EXPECT_EQ(FolderGetCurrent(small, sizeof small), 0);  // 10 bytes and a terminator
}

TEST_F(FileTest, CharactersOutsideTheCodePageBecomeALine) {
  EXPECT_EQ(PosixToCp932("a\xF0\x9F\x98\x80"
                         "b\xC3\xA9"
                         "c"),
            "a_b_c");
  EXPECT_EQ(PosixToCp932("\xE8\xA1\xA8"), "表");
  EXPECT_EQ(Cp932ToUtf8("表"), "\xE8\xA1\xA8");
  EXPECT_EQ(Cp932ToUtf8("～①㈱ｱ"), "\xEF\xBD\x9E\xE2\x91\xA0\xE3\x88\xB1\xEF\xBD\xB1");
  // A lead byte at the end has lost its partner.
  EXPECT_EQ(Cp932ToUtf8(std::string("a\x95")), "a_");
}

TEST_F(FileTest, SearchTellsFoldersSizesAndTimes) {
  MakeFolder("C:\\mirrell\\sub");
  PutFile("C:\\mirrell\\b.txt", "12345");
  PutFile("C:\\mirrell\\A.TXT", "1");
  SetFileTime("C:\\mirrell\\b.txt", 1000000000);  // 2001-09-09 01:46:40 UTC
  const std::vector<SearchEntry> found = FindAll("C:\\mirrell\\*.*");
  ASSERT_EQ(found.size(), 5U);
  EXPECT_STREQ(found[0].name, ".");
  EXPECT_STREQ(found[1].name, "..");
  EXPECT_STREQ(found[2].name, "A.TXT");
  EXPECT_STREQ(found[3].name, "b.txt");
  EXPECT_STREQ(found[4].name, "sub");
  EXPECT_EQ(found[4].attributes, kAttributeFolder);
  EXPECT_EQ(found[4].sizeLow, 0U);
  EXPECT_EQ(found[3].attributes, 0U);
  EXPECT_EQ(found[3].sizeLow, 5U);
  EXPECT_EQ(found[3].sizeHigh, 0U);
  // 116444736000000000 is 1970 in units of 100 ns since 1601.
  EXPECT_EQ(found[3].lastWriteTime, 116444736000000000ULL + 1000000000ULL * 10000000ULL);
  LocalTime local{};
  ASSERT_TRUE(TimeFromFileTime(found[3].lastWriteTime, &local));
  EXPECT_EQ(local.year, 2001);
  EXPECT_EQ(local.month, 9);
  EXPECT_EQ(local.day, 9);
  EXPECT_EQ(local.weekday, 0);
  EXPECT_EQ(local.hour, 10);  // nine hours east
  EXPECT_EQ(local.minute, 46);
  EXPECT_EQ(local.second, 40);
}

TEST_F(FileTest, SearchByMaskAndByName) {
  PutFile("C:\\mirrell\\a.BUP", "");
  PutFile("C:\\mirrell\\b.bup", "");
  PutFile("C:\\mirrell\\c.txt", "");
  EXPECT_EQ(NamesOf("C:\\mirrell\\*.BUP"), (Names{"a.BUP", "b.bup"}));
  EXPECT_EQ(NamesOf("*.txt"), Names{"c.txt"});
  EXPECT_EQ(NamesOf("C:\\mirrell"), Names{"mirrell"});
  EXPECT_EQ(NamesOf("C:\\mirrell\\none"), Names{});
  EXPECT_EQ(NamesOf("C:\\mirrell\\*.none"), Names{});
  EXPECT_EQ(NamesOf("C:\\none\\*.*"), Names{});
  EXPECT_EQ(NamesOf("C:\\mirrell\\"), Names{});
  SearchEntry entry;
  EXPECT_FALSE(SearchNext(kNoSearch, &entry));
  SearchClose(kNoSearch);
}

TEST_F(FileTest, CopyKeepsTheTime) {
  PutFile("a", "content");
  SetFileTime("a", 1234567890);
  EXPECT_TRUE(FileCopy("a", "b", true));
  EXPECT_EQ(FileBytes("b"), "content");
  const int file = FileOpen("b", OpenMode::Read);
  std::uint64_t time = 0;
  EXPECT_TRUE(FileWriteTime(file, &time));
  EXPECT_EQ(time, 116444736000000000ULL + 1234567890ULL * 10000000ULL);
  FileClose(file);
}

TEST_F(FileTest, TheTimeOfAPathNeedsNoOpenFile) {
  PutFile("a", "content");
  SetFileTime("a", 1234567890);
  std::uint64_t time = 0;
  EXPECT_TRUE(FileLastWrite("a", &time));
  EXPECT_EQ(time, 116444736000000000ULL + 1234567890ULL * 10000000ULL);
  time = 5;
  EXPECT_FALSE(FileLastWrite("b", &time));
  EXPECT_EQ(time, 5U);
  FaultArm(FaultKind::FileTime, 1);
  EXPECT_FALSE(FileLastWrite("a", &time));
  EXPECT_EQ(time, 5U);
}

TEST_F(FileTest, CopyOverAFileOnlyWhenAllowed) {
  PutFile("a", "new");
  PutFile("b", "older");
  EXPECT_FALSE(FileCopy("a", "b", true));
  EXPECT_EQ(FileBytes("b"), "older");
  EXPECT_TRUE(FileCopy("a", "b", false));
  EXPECT_EQ(FileBytes("b"), "new");
  EXPECT_FALSE(FileCopy("none", "c", false));
  EXPECT_FALSE(FileThere("c"));
  EXPECT_FALSE(FileCopy("C:\\mirrell", "c", false));
}

TEST_F(FileTest, MoveNeverReplaces) {
  PutFile("a", "1");
  PutFile("b", "2");
  EXPECT_FALSE(FileMove("a", "b"));
  EXPECT_EQ(FileBytes("b"), "2");
  EXPECT_TRUE(FileMove("a", "c"));
  EXPECT_FALSE(FileThere("a"));
  EXPECT_FALSE(FileMove("a", "d"));
}

TEST_F(FileTest, DeleteAndFolders) {
  PutFile("a", "1");
  EXPECT_TRUE(FileDelete("a"));
  EXPECT_FALSE(FileDelete("a"));
  EXPECT_TRUE(FolderCreate("sub"));
  EXPECT_FALSE(FolderCreate("sub"));
  EXPECT_FALSE(FolderCreate("none\\sub"));
  EXPECT_FALSE(FileDelete("sub"));
  EXPECT_TRUE(FolderThere("sub"));
}

TEST_F(FileTest, DesktopFolderIsToldWhenThereIsOne) {
  char folder[300];
  EXPECT_FALSE(FolderDesktop(folder, sizeof folder));
  PosixDesktopSet(Folder() + "/デスクトップ");
  PosixDesktopSet(Cp932ToUtf8(Folder() + "/デスクトップ"));
  ASSERT_TRUE(FolderDesktop(folder, sizeof folder));
  EXPECT_STREQ(folder, "C:\\mirrell\\デスクトップ");
}

TEST_F(FileTest, RoomOnADrive) {
  std::uint64_t total = 0;
  std::uint64_t free = 0;
  EXPECT_TRUE(DiskSpace("C:\\", &total, &free));
  EXPECT_GT(total, 0U);
  EXPECT_LE(free, total);
  total = 7;
  EXPECT_FALSE(DiskSpace("Q:\\", &total, &free));
  EXPECT_EQ(total, 0U);
  EXPECT_EQ(free, 0U);
}

// --- Faults

TEST_F(FileTest, NthCallFails) {
  PutFile("a", "12345");
  FaultArm(FaultKind::Open, 2);
  const int first = FileOpen("a", OpenMode::Read);
  EXPECT_NE(first, kNoFile);
  EXPECT_FALSE(FaultWasMet());
  EXPECT_EQ(FileOpen("a", OpenMode::Read), kNoFile);
  EXPECT_TRUE(FaultWasMet());
  const int third = FileOpen("a", OpenMode::Read);
  EXPECT_NE(third, kNoFile);
  EXPECT_EQ(FaultCalls(FaultKind::Open), 3);
  FileClose(first);
  FileClose(third);
}

TEST_F(FileTest, FaultFromTheNthCallOn) {
  PutFile("a", "1");
  FaultArmFrom(FaultKind::Delete, 2);
  PutFile("b", "1");
  EXPECT_TRUE(FileDelete("a"));
  EXPECT_FALSE(FileDelete("b"));
  EXPECT_FALSE(FileDelete("b"));
  FaultClear();
  EXPECT_EQ(FaultCalls(FaultKind::Delete), 0);
  EXPECT_TRUE(FileDelete("b"));
}

TEST_F(FileTest, TransfersThatFailAreOneByteShort) {
  PutFile("a", "12345");
  const int file = FileOpen("a", OpenMode::ReadWrite);
  char buffer[5];
  FaultArm(FaultKind::Read, 1);
  EXPECT_EQ(FileRead(file, buffer, 5), 4);
  FaultArm(FaultKind::Write, 1);
  EXPECT_EQ(FileWrite(file, "xyz", 3), 2);
  FileClose(file);
  EXPECT_EQ(FileBytes("a"), "1234xy");
}

TEST_F(FileTest, OtherCallsFailWithoutATrace) {
  PutFile("a", "1");
  for (const FaultKind kind : {FaultKind::Create, FaultKind::Move, FaultKind::Copy, FaultKind::Folder}) {
    FaultArm(kind, 1);
  }
  EXPECT_EQ(FileCreate("b"), kNoFile);
  EXPECT_FALSE(FileMove("a", "b"));
  EXPECT_FALSE(FileCopy("a", "b", false));
  EXPECT_FALSE(FolderCreate("b"));
  EXPECT_EQ(FolderNames("C:\\mirrell"), Names{"a"});
}

TEST_F(FileTest, CallsForFoldersSearchesRoomAndTimesFailOnceAndThenWork) {
  PutFile("a", "1");
  MakeFolder("C:\\mirrell\\sub");
  char folder[64] = "as it was";
  FaultArm(FaultKind::FolderGet, 1);
  EXPECT_EQ(FolderGetCurrent(folder, sizeof folder), 0);
  EXPECT_STREQ(folder, "as it was");
  EXPECT_GT(FolderGetCurrent(folder, sizeof folder), 0);
  FaultArm(FaultKind::FolderSet, 1);
  EXPECT_FALSE(FolderSetCurrent("sub"));
  EXPECT_TRUE(FileThere("a"));
  EXPECT_TRUE(FolderSetCurrent("sub"));
  EXPECT_TRUE(FolderSetCurrent(".."));

  SearchEntry entry;
  FaultArm(FaultKind::SearchFirst, 1);
  EXPECT_EQ(SearchFirst("*.*", &entry), kNoSearch);
  EXPECT_EQ(DiagnosticsLive().searches, 0);
  const SearchHandle search = SearchFirst("*.*", &entry);
  ASSERT_NE(search, kNoSearch);
  FaultArm(FaultKind::SearchNext, 1);
  EXPECT_FALSE(SearchNext(search, &entry));
  EXPECT_TRUE(SearchNext(search, &entry));
  SearchClose(search);

  std::uint64_t total = 1;
  std::uint64_t free = 1;
  FaultArm(FaultKind::DiskSpace, 1);
  EXPECT_FALSE(DiskSpace("C:\\", &total, &free));
  EXPECT_EQ(total, 0U);
  EXPECT_EQ(free, 0U);
  EXPECT_TRUE(DiskSpace("C:\\", &total, &free));
  std::uint64_t time = 1;
  const int file = FileOpen("a", OpenMode::Read);
  FaultArm(FaultKind::FileTime, 1);
  EXPECT_FALSE(FileWriteTime(file, &time));
  EXPECT_EQ(time, 1U);
  EXPECT_TRUE(FileWriteTime(file, &time));
  FileClose(file);
}

TEST_F(FileTest, RunWithoutMeetingTheFaultSaysSo) {
  PutFile("a", "1");
  FaultArm(FaultKind::Open, 5);
  FileClose(FileOpen("a", OpenMode::Read));
  EXPECT_FALSE(FaultWasMet());
}

}  // namespace
