// Joining files from anywhere: the names they hold reach no folder but the two of the
// restore.
#include "tests/filetools/divide/divide_fixture.h"

namespace {

// Names that lead elsewhere, to a device, or nowhere.
const Rows kBadNames = {
    "",         "..\\out", "\\out",   "C:\\mirrell\\out", "C:out",     "a:stream",  "../out",  "/out",
    "sub\\out", "sub/out", "表\\out", "\x83\x83\\out",    "\xA1\\out", "\x80\\out", "out\\",   "\x81/out",
    "\x81:out", "NUL",     "con",     "PRN.txt",          "aux",       "COM1",      "lpt9.bin"};
// Names that look so, but whose backslash is the second half of a character.
const Rows kGoodNames = {"out", "表", "十表.txt", "\xB1\x95\x5C", "a b", "..a", "NULL", "COM0"};

class RestoreNamesTest : public DivideFixture {
 protected:
  void SetUp() override {
    DivideFixture::SetUp();
    MakeFolder("C:\\mirrell\\restored\\sub");
    MakeFolder("C:\\mirrell\\pieces\\sub");
  }
  static std::string Record(char number, char value, const std::string& name) {
    std::string bytes = {0, 0, 0, number, 0, 0, 0, value};
    bytes += name;
    bytes.resize(308, '\0');
    return bytes;
  }
  static void PutCof(const std::string& target, const std::string& piece) {
    PutFile(kCof, std::string(101, '\0') + Record(0, 1, target) + Record(1, 3, piece));
  }
};

TEST_F(RestoreNamesTest, ATargetThatIsNoBareNameIsLikeOneThatCannotBeCreated) {
  PutFile("C:\\mirrell\\pieces\\p", "abc");
  const Rows around = FolderNames("C:\\mirrell");
  for (const std::string& name : kBadNames) {
    PutCof(name, "p");
    EXPECT_EQ(Restore(), -101) << name;
    EXPECT_EQ(FolderNames(kRestored), Rows{"sub"}) << name;
    EXPECT_EQ(FolderNames("C:\\mirrell\\restored\\sub"), Rows()) << name;
    EXPECT_EQ(FolderNames("C:\\mirrell"), around) << name;
  }
}

TEST_F(RestoreNamesTest, AFileOutsideIsNotReplacedByATarget) {
  PutFile("C:\\mirrell\\mine.txt", "mine");
  PutFile("C:\\mirrell\\pieces\\p", "abc");
  PutCof("..\\mine.txt", "p");
  EXPECT_EQ(Restore(), -101);
  EXPECT_EQ(FileBytes("C:\\mirrell\\mine.txt"), "mine");
}

TEST_F(RestoreNamesTest, APieceThatIsNoBareNameIsLikeOneThatCannotBeOpened) {
  for (const char* place : {"C:\\mirrell\\out", "C:\\out", "C:\\mirrell\\pieces\\sub\\out"}) {
    PutFile(place, "abc");
  }
  for (const std::string& name : kBadNames) {
    PutCof("t", name);
    EXPECT_EQ(Restore(), -1) << name;
    EXPECT_EQ(Target("t"), "") << name;
  }
}

TEST_F(RestoreNamesTest, ABackslashThatIsHalfOfACharacterIsPartOfAName) {
  for (const std::string& name : kGoodNames) {
    PutFile(std::string(kPieces) + "\\" + name, "abc");
    PutCof(name, name);
    EXPECT_EQ(Restore(), 0) << name;
    EXPECT_EQ(Target(name), "abc") << name;
  }
}

}  // namespace
