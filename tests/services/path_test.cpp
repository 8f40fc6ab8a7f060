#include "services/path.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "services/data_file.h"
#include "tests/support/desktop.h"

namespace {

class PathTest : public DesktopTest {};

TEST_F(PathTest, SplitsBehindTheLastBackslash) {
  PathSplit("C:\\data\\plan\\week.GPI");
  EXPECT_STREQ(PathParts.PathFolder, "C:\\data\\plan\\");
  EXPECT_STREQ(PathParts.PathName, "week.GPI");
}

TEST_F(PathTest, APathWithoutABackslashGivesAnEmptyName) {
  PathSplit("C:\\data\\week.GPI");
  PathSplit("week.GPI");
  EXPECT_STREQ(PathParts.PathFolder, "week.GPI");
  EXPECT_STREQ(PathParts.PathName, "");
  PathSplit("");
  EXPECT_STREQ(PathParts.PathFolder, "");
  EXPECT_STREQ(PathParts.PathName, "");
}

TEST_F(PathTest, APathThatEndsWithItsSeparatorGivesAnEmptyName) {
  PathSplit("C:\\data\\");
  EXPECT_STREQ(PathParts.PathFolder, "C:\\data\\");
  EXPECT_STREQ(PathParts.PathName, "");
  PathSplit("\\");
  EXPECT_STREQ(PathParts.PathFolder, "\\");
  EXPECT_STREQ(PathParts.PathName, "");
}

TEST_F(PathTest, ANameThatHoldsADoubleByteCharacterWhoseSecondByteIs5CIsNotSplitAtThatByte) {
  // Both characters end with the byte 0x5C.
  PathSplit("C:\\data\\\x95\x5C.GPI");
  EXPECT_STREQ(PathParts.PathFolder, "C:\\data\\");
  EXPECT_STREQ(PathParts.PathName, "\x95\x5C.GPI");
  PathSplit("C:\\\x94\x5C\x95\x5C\\x");
  EXPECT_STREQ(PathParts.PathFolder, "C:\\\x94\x5C\x95\x5C\\");
  EXPECT_STREQ(PathParts.PathName, "x");
  PathSplit("\x95\x5C");
  EXPECT_STREQ(PathParts.PathFolder, "\x95\x5C");
  EXPECT_STREQ(PathParts.PathName, "");
}

TEST_F(PathTest, ABareNameIsNotEmptyAndHoldsNoSeparator) {
  for (const char* name : {"a", "a.txt", "..", "\x95\x5C.txt", "\xFC\x5C", "\xB1\x83\x5C", "\x83\x83x"}) {
    EXPECT_TRUE(PathIsBareName(name)) << name;
  }
  for (const char* name : {"", "\\", "a\\", "\\a", "a\\b", "/", "a/b", "a:b", "C:", "\x95\x5C\\",
                           "\x83\x83\\", "\xB1\\", "\x80\\", "\xA0\\", "\xFD\\", "\x81/", "\x81:"}) {
    EXPECT_FALSE(PathIsBareName(name)) << name;
  }
}

TEST_F(PathTest, ADevicesNameIsNoBareNameWhateverItsExtension) {
  for (const char* name : {"NUL", "nul", "CON", "prn", "Aux", "COM1", "com9", "LPT1", "lpt9", "NUL.txt",
                           "com1.tar.gz", "nul.", "NUL .txt", "aux  "}) {
    EXPECT_FALSE(PathIsBareName(name)) << name;
  }
  for (const char* name :
       {"NULL", "CO", "CON1", "aNUL", "COM", "COM0", "COM10", "LPTx", "a.NUL", "NU", "con-1"}) {
    EXPECT_TRUE(PathIsBareName(name)) << name;
  }
}

TEST_F(PathTest, HalfWidthKatakanaStandAlone) {
  // 0xB1 is a character of one byte: the backslash behind it separates.
  PathSplit("C:\\\xB1\\x");
  EXPECT_STREQ(PathParts.PathFolder, "C:\\\xB1\\");
  EXPECT_STREQ(PathParts.PathName, "x");
}

TEST_F(PathTest, ALeadByteAtTheEndDoesNotRunPastTheText) {
  PathSplit("C:\\x\x95");
  EXPECT_STREQ(PathParts.PathFolder, "C:\\");
  EXPECT_STREQ(PathParts.PathName, "x\x95");
}

TEST_F(PathTest, Only512BytesCount) {
  const std::string folder = "C:\\" + std::string(499, 'a') + "\\";
  ASSERT_EQ(folder.size(), 503U);
  PathSplit((folder + "123456789ABC").c_str());
  EXPECT_EQ(PathParts.PathFolder, folder);
  EXPECT_STREQ(PathParts.PathName, "123456789");
  PathSplit((std::string(600, 'b') + "\\x").c_str());
  EXPECT_EQ(PathParts.PathFolder, std::string(512, 'b'));
  EXPECT_STREQ(PathParts.PathName, "");
  // A lead byte as the 512th.
  PathSplit((std::string(511, 'b') + "\x95\x5C").c_str());
  EXPECT_EQ(PathParts.PathFolder, std::string(511, 'b') + "\x95");
}

TEST_F(PathTest, TheBytesBehindTheFolderAreCleared) {
  PathSplit("C:\\secret");
  for (int i = 3; i < 9; ++i) EXPECT_EQ(PathParts.PathFolder[i], '\0') << i;
}

TEST_F(PathTest, FileExistsTellsWhetherItOpensAndClearsTheFileStatus) {
  PutFile("C:\\there.txt", "");
  FileResult.FileStatus = -2;
  EXPECT_EQ(FileExists("C:\\there.txt"), 1);
  EXPECT_EQ(FileResult.FileStatus, 0);
  FileResult.FileStatus = 1;
  EXPECT_EQ(FileExists("C:\\none.txt"), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  FaultArm(FaultKind::Open, 1);
  EXPECT_EQ(FileExists("C:\\there.txt"), 0);
}

TEST_F(PathTest, AsksBeforeAnExistingFileIsWrittenOver) {
  PutFile("C:\\there.txt", "");
  EXPECT_TRUE(OverwriteAllowed(nullptr, "C:\\none.txt"));
  EXPECT_TRUE(BoxesShown().empty());
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ", BoxAnswer::Ok);
  EXPECT_TRUE(OverwriteAllowed(nullptr, "C:\\there.txt"));
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ", BoxAnswer::Cancel);
  EXPECT_FALSE(OverwriteAllowed(nullptr, "C:\\there.txt"));
  ASSERT_EQ(BoxesShown().size(), 2U);
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::OkCancel);
  EXPECT_EQ(BoxesShown()[0].icon, BoxIcon::Question);
}

int GoUp(std::string& folder) {
  char text[64];
  std::snprintf(text, sizeof text, "%s", folder.c_str());
  const int result = PathGoUp(text);
  folder = text;
  return result;
}

TEST_F(PathTest, GoingUpCutsTheLastFolderAndKeepsTheBackslashOfADriveRoot) {
  std::string folder = "C:\\data\\plan";
  EXPECT_EQ(GoUp(folder), 0);
  EXPECT_EQ(folder, "C:\\data");
  EXPECT_EQ(GoUp(folder), 0);
  EXPECT_EQ(folder, "C:\\");
  EXPECT_EQ(GoUp(folder), -1);
  EXPECT_EQ(folder, "C:\\");
}

TEST_F(PathTest, GoingUpStepsOverDoubleByteCharacters) {
  std::string folder = "C:\\a\\\x95\x5C";
  EXPECT_EQ(GoUp(folder), 0);
  EXPECT_EQ(folder, "C:\\a");
}

TEST_F(PathTest, NothingIsAboveTextWithoutAPlaceToGo) {
  for (const char* text : {"", "\\", "\\data", "data", "C:\\data\\"}) {
    std::string folder = text;
    EXPECT_FALSE(PathCanGoUp(text)) << text;
    EXPECT_EQ(GoUp(folder), -1) << text;
    EXPECT_EQ(folder, text);
  }
  EXPECT_TRUE(PathCanGoUp("C:\\data"));
}

TEST_F(PathTest, GoingDownAddsAName) {
  char folder[12] = "C:\\";
  EXPECT_EQ(PathGoDown(folder, sizeof folder, "ab"), 0);
  EXPECT_STREQ(folder, "C:\\ab");
  EXPECT_EQ(PathGoDown(folder, sizeof folder, "123456"), -1);
  EXPECT_STREQ(folder, "C:\\ab");
  EXPECT_EQ(PathGoDown(folder, sizeof folder, "12345"), 0);
  EXPECT_STREQ(folder, "C:\\ab\\12345");
}

TEST_F(PathTest, GoingDownFromANameThatEndsWith5CAddsASeparator) {
  char folder[32] = "C:\\\x95\x5C";
  EXPECT_EQ(PathGoDown(folder, sizeof folder, "x"), 0);
  EXPECT_STREQ(folder, "C:\\\x95\x5C\\x");
}

}  // namespace
