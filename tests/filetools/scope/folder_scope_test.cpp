#include "filetools/scope/folder_scope.h"

#include <algorithm>
#include <cstring>

#include "platform/diagnostics.h"
#include "tests/support/byte_order.h"
#include "services/work_blocks.h"
#include "tests/filetools/scope/scope_fixture.h"

namespace {

using Names = std::vector<std::string>;

class FolderScopeTest : public ScopeFixture {
 protected:
  static float Total(const std::string& folder) {
    Scope.areaTotal = 0;
    ScopeFolderSize(folder.c_str());
    return Scope.areaTotal;
  }
  static void Split(const char* folder, const char* root, const char* first, const char* last) {
    Choose(folder);
    EXPECT_STREQ(Scope.driveRoot, root) << folder;
    EXPECT_STREQ(Scope.firstLevelName, first) << folder;
    EXPECT_STREQ(Scope.folderName, last) << folder;
  }
};

// --- Records.

TEST_F(FolderScopeTest, AnEntryLiesAtItsOffsetsInItsArea) {
  const ScopeEntry entry{
      0x01020304, {0x15161718, 0x11121314}, {0x25262728, 0x21222324}, 0x31323334, 0x41424344, "abc", {}};
  ScopeEntryPut(ScopeArea::Drive, 2, entry);
  const unsigned char* at = WorkBlocks.ScopeBlock + 2000000 + 2 * 644;
  EXPECT_EQ(GetLE32(at), 0x01020304U);
  EXPECT_EQ(GetLE32(at + 4), 0x15161718U);
  EXPECT_EQ(GetLE32(at + 8), 0x11121314U);
  EXPECT_EQ(GetLE32(at + 12), 0x25262728U);
  EXPECT_EQ(GetLE32(at + 16), 0x21222324U);
  EXPECT_EQ(GetLE32(at + 20), 0x31323334U);
  EXPECT_EQ(GetLE32(at + 24), 0x41424344U);
  EXPECT_STREQ(reinterpret_cast<const char*>(at + 28), "abc");
  const ScopeEntry back = ScopeEntryGet(ScopeArea::Drive, 2);
  EXPECT_EQ(back.creationTime[1], 0x11121314U);
  EXPECT_EQ(back.lastWriteTime[0], 0x25262728U);
  EXPECT_EQ(ScopeEntrySize(ScopeArea::Drive, 2), 0x3132333441424344U);
  EXPECT_EQ(ScopeEntrySize(ScopeArea::Folder, 2), 0U);
}

TEST_F(FolderScopeTest, TheLastEntryFitsAndTheOneBehindIsRefused) {
  const ScopeEntry entry{16, {1, 1}, {2, 2}, 3, 4, "last", {}};
  ScopeEntryPut(ScopeArea::Folder, kScopeLimit - 1, entry);
  EXPECT_STREQ(ScopeEntryGet(ScopeArea::Folder, kScopeLimit - 1).name, "last");
  const Names before(1, std::string(reinterpret_cast<char*>(WorkBlocks.ScopeBlock), kScopeBlockSize));
  ScopeEntryPut(ScopeArea::Folder, kScopeLimit, entry);
  ScopeEntryPut(ScopeArea::Folder, -1, entry);
  EXPECT_EQ(before[0], std::string(reinterpret_cast<char*>(WorkBlocks.ScopeBlock), kScopeBlockSize));
  EXPECT_STREQ(ScopeEntryGet(ScopeArea::Folder, kScopeLimit).name, "");
  EXPECT_EQ(ScopeEntrySize(ScopeArea::Folder, -1), 0U);
}

TEST_F(FolderScopeTest, AnOrderThatAnotherUseOfTheBlockHasOverwrittenIsNoEntry) {
  Scope.scopeFolderCount = 3;
  std::memset(WorkBlocks.CastBlock, 0xFF, kCastBlockSize);
  EXPECT_EQ(ScopeOrder(ScopeArea::Folder, 0, Scope.scopeFolderCount), -1);
  PutLE32(WorkBlocks.CastBlock, kScopeLimit);
  EXPECT_EQ(ScopeOrder(ScopeArea::Folder, 0, Scope.scopeFolderCount), -1);
  PutLE32(WorkBlocks.CastBlock, kScopeLimit - 1);
  EXPECT_EQ(ScopeOrder(ScopeArea::Folder, 0, Scope.scopeFolderCount), kScopeLimit - 1);
  EXPECT_EQ(ScopeOrder(ScopeArea::Folder, 3, Scope.scopeFolderCount), -1);
  EXPECT_EQ(ScopeOrder(ScopeArea::Folder, -1, Scope.scopeFolderCount), -1);
}

TEST_F(FolderScopeTest, BytesAreTheWholePartOfASize) {
  EXPECT_EQ(ScopeBytes(0.0F), 0U);
  EXPECT_EQ(ScopeBytes(-5.0F), 0U);
  EXPECT_EQ(ScopeBytes(1536.75F), 1536U);
  EXPECT_EQ(ScopeBytes(5368709120.0F), 5368709120U);
  EXPECT_EQ(ScopeBytes(18446744073709551616.0F), ~std::uint64_t{0});
}

// --- Paths.

TEST_F(FolderScopeTest, SplitsAPathIntoDriveFirstLevelAndFolder) {
  Split("C:\\", "C:\\", "", "");
  Split("C:\\data", "C:\\", "data", "");
  Split("C:\\data\\photos", "C:\\", "data", "photos");
  Split("C:\\data\\photos\\2026", "C:\\", "data", "2026");
  Split("C:\\a.b\\c.d.e", "C:\\", "a.b", "c.d.e");
}

TEST_F(FolderScopeTest, SplitsNoPathAtTheSecondHalfOfACharacter) {
  Split("C:\\\x95\x5C\\\x94\x5C\x95\x5C", "C:\\", "\x95\x5C", "\x94\x5C\x95\x5C");
  Split("C:\\\x95\x5C", "C:\\", "\x95\x5C", "");
}

TEST_F(FolderScopeTest, LooksForTheColonInTheFirstTenBytesOnly) {
  Split("abcdefghi:\\x", "abcdefghi:\\", "x", "");
  Split("abcdefghij:\\x", "\\", "x", "");
  Split("", "\\", "", "");
}

TEST_F(FolderScopeTest, SplitsAPathThatFillsItsBuffer) {
  const std::string longest = "C:\\" + std::string(200, 'a') + "\\" + std::string(51, 'b');
  ASSERT_EQ(longest.size(), 255U);
  Split(longest.c_str(), "C:\\", std::string(200, 'a').c_str(), std::string(51, 'b').c_str());
}

// --- The walk.

TEST_F(FolderScopeTest, AddsTheSizesOfAllFilesBelow) {
  MakeFolder("C:\\data\\a\\b");
  PutFile("C:\\data\\one", std::string(100, 'x'));
  PutFile("C:\\data\\a\\two.txt", std::string(20, 'x'));
  PutFile("C:\\data\\a\\b\\three.x.y", std::string(3, 'x'));
  EXPECT_EQ(Total("C:\\data"), 123.0F);
  EXPECT_EQ(Total("C:\\data\\a"), 23.0F);
  EXPECT_EQ(Total("C:\\nothing"), 0.0F);
}

TEST_F(FolderScopeTest, NamesThatBeginWithADotAreSkippedInEveryWalk) {
  MakeFolder("C:\\data\\.hidden");
  MakeFolder("C:\\data\\shown");
  PutFile("C:\\data\\.hidden\\big", std::string(1000, 'x'));
  PutFile("C:\\data\\.file", std::string(500, 'x'));
  PutFile("C:\\data\\shown\\.also", std::string(50, 'x'));
  PutFile("C:\\data\\shown\\f", std::string(5, 'x'));
  EXPECT_EQ(Total("C:\\data"), 5.0F);
  Choose("C:\\data");
  SearchFolder();
  EXPECT_EQ(Ranked(ScopeArea::Folder, Scope.scopeFolderCount), Names{"shown"});
  MakeFolder("C:\\.git\\x");
  SearchDrive();
  Names drive = Ranked(ScopeArea::Drive, Scope.scopeDriveCount);
  std::sort(drive.begin(), drive.end());
  EXPECT_EQ(drive, (Names{"data", "mirrell"}));
  Choose("C:\\data\\.hidden");
  ScopeFindFolder();
  EXPECT_EQ(Scope.folderIndex, -1);
}

TEST_F(FolderScopeTest, SizesOverFourGigabytesAddUpWithinThePrecisionOfAFloat) {
  MakeFolder("C:\\data\\big");
  MakeSized("C:\\data\\big\\five", 5368709120ULL);
  EXPECT_EQ(Total("C:\\data"), 5368709120.0F);
  MakeSized("C:\\data\\big\\small", 100);  // less than half of the float's last place, 512
  EXPECT_EQ(Total("C:\\data"), 5368709120.0F);
  MakeSized("C:\\data\\big\\small", 4096);
  EXPECT_EQ(Total("C:\\data"), 5368713216.0F);
  Choose("C:\\data");
  SearchFolder();
  const ScopeEntry big = ScopeEntryGet(ScopeArea::Folder, 0);
  EXPECT_EQ(big.sizeHigh, 1U);
  EXPECT_EQ(big.sizeLow, 1073745920U);
}

TEST_F(FolderScopeTest, AFileOverFourGigabytesKeepsBothHalvesOfItsSize) {
  MakeFolder("C:\\data");
  MakeSized("C:\\data\\file", 3 * 4294967296ULL + 17);
  Choose("C:\\data");
  SearchFolder();
  EXPECT_EQ(ScopeEntryGet(ScopeArea::Folder, 0).sizeHigh, 3U);
  EXPECT_EQ(ScopeEntryGet(ScopeArea::Folder, 0).sizeLow, 17U);
}

TEST_F(FolderScopeTest, ALargeTreeLosesItsSmallFiles) {
  MakeFolder("C:\\data");
  MakeSized("C:\\data\\large", 33554432);
  for (int i = 0; i < 50; ++i) PutFile("C:\\data\\" + std::to_string(i), "x");
  // Whichever comes first, single bytes behind 2^25 are lost; those before it are
  // at most 50.
  const float total = Total("C:\\data");
  EXPECT_GE(total, 33554432.0F);
  EXPECT_LE(total, 33554484.0F);
  // The sum is the one of single additions in the order of the search.
  float expected = 0;
  for (const std::string& name : SearchOrder("C:\\data")) expected += name == "large" ? 33554432.0F : 1.0F;
  EXPECT_EQ(total, expected);
}

TEST_F(FolderScopeTest, WalksTwoHundredLevels) {
  std::string path = "C:\\deep";
  for (int i = 0; i < 200; ++i) path += "\\d";
  MakeFolder(path);
  PutFile(path + "\\f", "12345");
  EXPECT_EQ(Total("C:\\deep"), 5.0F);
}

TEST_F(FolderScopeTest, APathLongerThanTheBufferIsNotFollowed) {
  const std::string first(240, 'n');
  const std::string second(240, 'm');
  MakeFolder(InProgram(first + "\\" + second));
  PutFile(InProgram(first + "\\g"), "123");
  PutFile(InProgram(first + "\\" + second + "\\f"), "12345");
  EXPECT_EQ(Total("C:\\mirrell"), 8.0F);
  // The same folder by a path that leaves room for the first name only.
  std::string path = "C:\\mirrell";
  while (path.size() < 3800) path += "\\.";
  EXPECT_EQ(Total(path), 3.0F);
  EXPECT_EQ(Total(std::string(4095, 'x')), 0.0F);
  EXPECT_EQ(Total(std::string(9000, 'x')), 0.0F);
}

TEST_F(FolderScopeTest, AMadeTreeOfThreeThousandEntriesHasItsKnownSize) {
  double expected = 0;
  for (int folder = 0; folder < 30; ++folder) {
    const std::string path = "C:\\tree\\f" + std::to_string(folder);
    MakeFolder(path);
    for (int file = 0; file < 99; ++file) {
      MakeSized(path + "\\" + std::to_string(file), static_cast<std::uintmax_t>(folder * 99 + file));
      expected += folder * 99 + file;
    }
  }
  // 30 folders, 2,970 files: the sum of 0 to 2,969, which a float holds.
  ASSERT_EQ(expected, 2970.0 * 2969.0 / 2.0);
  EXPECT_EQ(Total("C:\\tree"), 4408965.0F);
  Choose("C:\\tree");
  SearchFolder();
  ASSERT_EQ(Scope.scopeFolderCount, 30);
  // f29 holds 29 x 99 x 99 + (0 + ... + 98).
  EXPECT_STREQ(
      ScopeEntryGet(ScopeArea::Folder, ScopeOrder(ScopeArea::Folder, 0, Scope.scopeFolderCount)).name, "f29");
  EXPECT_EQ(ScopeEntrySize(ScopeArea::Folder, ScopeOrder(ScopeArea::Folder, 0, Scope.scopeFolderCount)),
            289080U);
  EXPECT_EQ(ScopeEntrySize(ScopeArea::Folder, ScopeOrder(ScopeArea::Folder, 29, Scope.scopeFolderCount)),
            4851U);
}

// --- Steps.

TEST_F(FolderScopeTest, TheFirstStepGoesToTheFolderAndTheLastComesBack) {
  MakeFolder("C:\\data");
  PutFile("C:\\data\\a", "1");
  PutFile("C:\\data\\b", "1");
  Choose("C:\\data");
  ScopeStepReset();
  EXPECT_EQ(CurrentOne(), "C:\\mirrell");
  EXPECT_EQ(ScopeFolderStep(), 0);
  EXPECT_EQ(CurrentOne(), "C:\\data");
  EXPECT_EQ(DiagnosticsLive().searches, 1);
  int steps = 1;
  int result = 0;
  while ((result = ScopeFolderStep()) == 0) ++steps;
  EXPECT_EQ(result, 3);
  EXPECT_EQ(steps, 4);  // ".", "..", "a" and "b", one a step
  EXPECT_EQ(CurrentOne(), "C:\\mirrell");
  EXPECT_EQ(DiagnosticsLive().searches, 0);
}

TEST_F(FolderScopeTest, StopClosesTheSearch) {
  MakeFolder("C:\\data");
  PutFile("C:\\data\\a", "1");
  Choose("C:\\data");
  ScopeStepReset();
  EXPECT_EQ(ScopeFolderStep(), 0);
  ScopeStepStop();
  EXPECT_EQ(DiagnosticsLive().searches, 0);
  EXPECT_EQ(CurrentOne(), "C:\\mirrell");
}

TEST_F(FolderScopeTest, AFolderThatCannotBeSearchedEndsWithACountOfZero) {
  Choose("C:\\nothing");
  ScopeStepReset();
  EXPECT_EQ(ScopeFolderStep(), 1);
  Choose("Q:\\x");
  ScopeStepReset();
  EXPECT_EQ(ScopeDriveStep(), 1);
  EXPECT_EQ(CurrentOne(), "C:\\mirrell");
}

TEST_F(FolderScopeTest, AFolderOf3104EntriesIsWhole) {
  MakeMany("C:\\many", 3104);
  Choose("C:\\many");
  ScopeStepReset();
  EXPECT_EQ(RunSteps(ScopeFolderStep), 3105);
  EXPECT_FALSE(Scope.scopeOverflow);
  Scope.scopeFolderCount = 3104;
  ScopeSortFolder();
  // All sizes are equal, so the order is that of the search.
  EXPECT_EQ(Ranked(ScopeArea::Folder, 3104), SearchOrder("C:\\many"));
}

TEST_F(FolderScopeTest, AFolderOf3105EntriesOrMoreIsRefused) {
  for (const int count : {3105, 3106, 4000}) {
    const std::string folder = "C:\\many" + std::to_string(count);
    MakeMany(folder, count);
    Choose(folder);
    Scope.scopeOverflow = false;
    ScopeStepReset();
    EXPECT_EQ(RunSteps(ScopeFolderStep), -1) << count;
    EXPECT_TRUE(Scope.scopeOverflow);
    EXPECT_EQ(DiagnosticsLive().searches, 0);
    EXPECT_EQ(CurrentOne(), "C:\\mirrell");
  }
}

TEST_F(FolderScopeTest, ADriveWith3105EntriesOrMoreOnItsFirstLevelIsRefused) {
  for (const int count : {3104, 3105, 3106, 4000}) {
    const std::string folder = "C:\\drive" + std::to_string(count);
    MakeMany(folder, count);
    PosixDriveSet('E', PosixPath(folder.c_str()));
    Choose("E:\\");
    Scope.scopeOverflow = false;
    ScopeStepReset();
    EXPECT_EQ(RunSteps(ScopeDriveStep), count == 3104 ? 3105 : -1) << count;
    EXPECT_EQ(Scope.scopeOverflow, count != 3104);
    EXPECT_EQ(DiagnosticsLive().searches, 0);
    EXPECT_EQ(CurrentOne(), "C:\\mirrell");
  }
}

TEST_F(FolderScopeTest, WithoutItsBlockASearchIsRefused) {
  unsigned char* block = WorkBlocks.ScopeBlock;
  WorkBlocks.ScopeBlock = nullptr;
  Choose("C:\\");
  ScopeStepReset();
  EXPECT_EQ(ScopeDriveStep(), -1);
  WorkBlocks.ScopeBlock = block;
}

TEST_F(FolderScopeTest, TheDriveSearchMarksTheFirstLevelFolderOnly) {
  MakeFolder("C:\\data\\x");
  PutFile("C:\\data\\x\\f", std::string(70, 'x'));
  PutFile("C:\\file", "12");
  Choose("C:\\data\\x");
  SearchDrive();
  ASSERT_EQ(Scope.scopeDriveCount, 3);
  ASSERT_GE(Scope.firstLevelIndex, 0);
  const ScopeEntry entry = ScopeEntryGet(ScopeArea::Drive, Scope.firstLevelIndex);
  EXPECT_STREQ(entry.name, "data");
  EXPECT_EQ(entry.attributes & kAttributeFolder, kAttributeFolder);
  EXPECT_EQ(entry.sizeLow, 70U);
  EXPECT_EQ(Ranked(ScopeArea::Drive, 3), (Names{"data", "file", "mirrell"}));
  // A file of that name is no folder.
  Scope.firstLevelIndex = -1;
  Choose("C:\\file");
  SearchDrive();
  EXPECT_EQ(Scope.firstLevelIndex, -1);
}

TEST_F(FolderScopeTest, WithABarChartTheFolderSearchAddsUp) {
  MakeFolder("C:\\data\\sub");
  PutFile("C:\\data\\sub\\f", std::string(300, 'x'));
  PutFile("C:\\data\\g", std::string(40, 'x'));
  Choose("C:\\data");
  Scope.folderTotal = 99;
  Scope.scopeBarChart = true;
  SearchFolder();
  EXPECT_EQ(Scope.folderTotal, 340.0F);
  for (int n = 0; n < 2; ++n) {
    const bool folder = std::strcmp(ScopeEntryGet(ScopeArea::Folder, n).name, "sub") == 0;
    EXPECT_EQ(ScopeBarGet(n + 1).size, folder ? 300.0F : 40.0F);
  }
  Scope.scopeBarChart = false;
  SearchFolder();
  EXPECT_EQ(Scope.folderTotal, 0.0F);
}

TEST_F(FolderScopeTest, FindsTheChosenFolderInItsParent) {
  MakeFolder("C:\\data\\photos");
  MakeFolder("C:\\data\\.photos");
  PutFile("C:\\data\\a", "");
  PutFile("C:\\data\\b", "");
  PutFile("C:\\data\\photos\\f", std::string(64, 'x'));
  Choose("C:\\data\\photos");
  ScopeFindFolder();
  const Names order = SearchOrder("C:\\data");
  ASSERT_GE(Scope.folderIndex, 0);
  EXPECT_EQ(order[static_cast<std::size_t>(Scope.folderIndex)], "photos");
  EXPECT_EQ(Scope.chosenTotal, 64.0F);
}

TEST_F(FolderScopeTest, FindsNoFolderWithFewerThanTwoLevelsOrOfAnotherName) {
  MakeFolder("C:\\data\\Photos");
  Choose("C:\\data");
  ScopeFindFolder();
  EXPECT_EQ(Scope.folderIndex, -1);
  Choose("C:\\data\\photos");
  ScopeFindFolder();
  EXPECT_EQ(Scope.folderIndex, -1);
  Choose("C:\\nothing\\here");
  ScopeFindFolder();
  EXPECT_EQ(Scope.folderIndex, -1);
}

TEST_F(FolderScopeTest, SortsByBothHalvesOfTheSizeWithoutASign) {
  const std::uint64_t sizes[] = {5, 0x8000000000000000U, 0xFFFFFFFF, 0x100000000, 5, 0x80000000};
  for (int n = 0; n < 6; ++n) {
    ScopeEntryPut(ScopeArea::Drive, n,
                  {0,
                   {},
                   {},
                   static_cast<std::uint32_t>(sizes[n] >> 32U),
                   static_cast<std::uint32_t>(sizes[n]),
                   "",
                   {}});
  }
  Scope.scopeDriveCount = 6;
  ScopeSortDrive();
  const int expected[] = {1, 3, 2, 5, 0, 4};
  for (int rank = 0; rank < 6; ++rank) {
    EXPECT_EQ(ScopeOrder(ScopeArea::Drive, rank, Scope.scopeDriveCount), expected[rank]) << rank;
    EXPECT_EQ(GetLE32(WorkBlocks.CastBlock + 500000 + rank * 4), static_cast<std::uint32_t>(expected[rank]));
  }
}

TEST_F(FolderScopeTest, EqualSizesKeepTheOrderOfTheSearch) {
  MakeFolder("C:\\same");
  for (const char* name : {"q", "c", "z", "a", "m", "b"}) PutFile(std::string("C:\\same\\") + name, "xyz");
  Choose("C:\\same");
  SearchFolder();
  EXPECT_EQ(Ranked(ScopeArea::Folder, 6), SearchOrder("C:\\same"));
}

TEST_F(FolderScopeTest, DiskSpaceIsToldInBytesAndAFailureLeavesZeros) {
  PosixDiskSpaceSet(6 * 1099511627776ULL, 5368709120ULL);
  Choose("C:\\");
  ScopeDiskSpace();
  EXPECT_EQ(Scope.driveTotal, 6597069766656.0F);
  EXPECT_EQ(Scope.driveFree, 5368709120.0F);
  Choose("Q:\\");
  ScopeDiskSpace();
  EXPECT_EQ(Scope.driveTotal, 0.0F);
  EXPECT_EQ(Scope.driveFree, 0.0F);
}

}  // namespace
