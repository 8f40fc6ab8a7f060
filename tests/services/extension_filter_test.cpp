#include "services/extension_filter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/window.h"
#include "resources/services_ids.h"
#include "tests/services/folders.h"
#include "tests/support/desktop.h"

namespace {

const char* const kRows[16] = {
    "*.*",   "*.C",   "*.CPP", "*.H",   "*.INC", "*.RC",  "*.C *.CPP *.H *.INC *RC",
    "*.DOC", "*.TXT", "*.XCL", "*.BMP", "*.JPG", "*.WAV", "*.MP3",
    "*.INI", "*.BAT",
};
const char* const kExtensions[16] = {"",    "C",   "CPP", "H",   "INC", "RC",  "",    "DOC",
                                     "TXT", "XCL", "BMP", "JPG", "WAV", "MP3", "INI", "BAT"};

TEST(ExtensionFilter, HasSixteenRows) {
  for (int row = 0; row < 16; ++row) {
    EXPECT_STREQ(FilterText(row), kRows[row]);
    EXPECT_EQ(FilterFind(kRows[row]), row);
  }
  EXPECT_STREQ(FilterText(-1), "");
  EXPECT_STREQ(FilterText(16), "");
  EXPECT_EQ(FilterFind("*.BUP"), -1);
  EXPECT_EQ(FilterFind("*.bmp"), -1);
}

TEST(ExtensionFilter, RowZeroPassesEverything) {
  for (const char* name : {"a", "a.b", "", "x.y.z"}) EXPECT_TRUE(FilterMatch(0, "", name)) << name;
}

TEST(ExtensionFilter, EachRowPassesItsOwnExtensionOnly) {
  for (int row = 1; row < 16; ++row) {
    if (row == 6) continue;
    for (int other = 1; other < 16; ++other) {
      if (other == 6) continue;
      const std::string name = std::string("name.") + kExtensions[other];
      EXPECT_EQ(FilterMatch(row, "", name.c_str()), row == other) << row << " " << name;
    }
  }
}

TEST(ExtensionFilter, RowSixPassesFiveExtensions) {
  for (const char* name : {"a.C", "a.cpp", "a.h", "a.Inc", "a.rc"})
    EXPECT_TRUE(FilterMatch(6, "", name)) << name;
  for (const char* name : {"a.TXT", "a", "a.", "a.CP", "a.CPPP"})
    EXPECT_FALSE(FilterMatch(6, "", name)) << name;
}

TEST(ExtensionFilter, ComparesInCapitals) {
  EXPECT_TRUE(FilterMatch(8, "", "readme.txt"));
  EXPECT_TRUE(FilterMatch(8, "", "readme.TxT"));
}

TEST(ExtensionFilter, ANameWithTwoDotsIsOutSinceItsExtensionReadsFromTheFirst) {
  EXPECT_FALSE(FilterMatch(8, "", "a.b.TXT"));
  EXPECT_FALSE(FilterMatch(8, "", "a.TXT.bak"));
}

TEST(ExtensionFilter, ANameWithoutAFullStopFails) {
  EXPECT_FALSE(FilterMatch(8, "", "TXT"));
  EXPECT_FALSE(FilterMatch(8, "", ""));
}

TEST(ExtensionFilter, RowSixteenComparesWithTheCallersFilter) {
  EXPECT_TRUE(FilterMatch(16, "*.BUP", "a.bup"));
  EXPECT_TRUE(FilterMatch(16, "*.bup", "a.BUP"));
  EXPECT_FALSE(FilterMatch(16, "*.BUP", "a.BU"));
  EXPECT_FALSE(FilterMatch(16, "*.BUP", "BUP"));
  EXPECT_FALSE(FilterMatch(16, nullptr, "a.BUP"));
  EXPECT_FALSE(FilterMatch(16, "BUP", "a.BUP"));
}

TEST(ExtensionFilter, EightCharactersOfAnExtensionCount) {
  EXPECT_TRUE(FilterMatch(16, "*.ABCDEFGH", "x.abcdefghi"));
  EXPECT_FALSE(FilterMatch(16, "*.ABCDEFGH", "x.abcdefg"));
}

TEST(ExtensionFilter, RowsThatAreNotThereAdmitNothing) {
  EXPECT_FALSE(FilterMatch(-1, "*.BUP", "a.BUP"));
  EXPECT_FALSE(FilterMatch(17, "*.BUP", "a.BUP"));
}

class FilterListTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    window = DialogOpen(IDD_FileSelectForLoadDlg, nullptr, [](const Event&) { return true; });
    MakeFolder("C:\\d");
    for (const char* name : {"a.txt", "b.bmp", ".hidden.txt", "plain"})
      PutFile(std::string("C:\\d\\") + name, "");
    MakeFolder("C:\\d\\sub.txt");
  }
  void TearDown() override {
    WindowDestroy(window);
    DesktopTest::TearDown();
  }
  std::vector<std::string> List(const char* folder, int row, const char* caller = "") {
    FilterListFiles(window, 103, folder, row, caller);
    std::vector<std::string> rows = ListRows(window, 103);
    std::sort(rows.begin(), rows.end());
    return rows;
  }
  WindowHandle window = nullptr;
};

using Rows = std::vector<std::string>;

TEST_F(FilterListTest, ListsFilesButNoFoldersAndNoNamesThatBeginWithAFullStop) {
  EXPECT_EQ(List("C:\\d", 0), (Rows{"a.txt", "b.bmp", "plain"}));
  EXPECT_EQ(List("C:\\d", 8), (Rows{"a.txt"}));
  EXPECT_EQ(List("C:\\d", 16, "*.BMP"), (Rows{"b.bmp"}));
  EXPECT_EQ(List("C:\\d", 1), Rows{});
}

TEST_F(FilterListTest, MakesTheFolderCurrent) {
  List("C:\\d", 0);
  EXPECT_EQ(CurrentFolder(), "C:\\d");
}

TEST_F(FilterListTest, AFolderThatIsNotThereListsNothing) {
  EXPECT_EQ(List("C:\\none", 0), Rows{});
}

TEST_F(FilterListTest, FillsTheListOfRows) {
  FilterFill(window, 102);
  FilterFill(window, 102);
  const Rows rows = ListRows(window, 102);
  ASSERT_EQ(rows.size(), 16U);
  for (std::size_t row = 0; row < 16; ++row) EXPECT_EQ(rows[row], kRows[row]);
}

}  // namespace
