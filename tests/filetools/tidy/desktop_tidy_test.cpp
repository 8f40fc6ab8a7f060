// Desktop tidy: the run, its dialog, and the cover's dialog without logic.
#include "filetools/tidy/desktop_tidy.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <map>

#include "filetools/tidy/tidy_commands.h"
#include "platform/dialog.h"
#include "platform/file.h"
#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "shell/panel.h"
#include "tests/support/desktop.h"

namespace {

using Names = std::vector<std::string>;

constexpr char kDesktop[] = "C:\\desk";
constexpr char kTidy[] = "C:\\desk\\整理用フォルダー";
constexpr char kAsk[] = "Desktop整理";
constexpr char kError[] = "Desktop整理エラー";

class DesktopTidyTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    MakeFolder(kDesktop);
    PosixDesktopSet(PosixPath(kDesktop));
    TidyReset();
    Tidy.tidySplitByExt = 0;
    Tidy.desktopPath[0] = '\0';
  }
  void TearDown() override {
    Tidy.tidySplitByExt = 0;
    DesktopTest::TearDown();
  }

  static void Put(const std::string& name) { PutFile(std::string(kDesktop) + "\\" + name, name); }

  // The items in the order in which a run meets them.
  static Names Items() {
    Names items;
    SearchEntry entry;
    const SearchHandle search = SearchFirst("C:\\desk\\*.*", &entry);
    for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
      if (entry.name[0] != '.' && std::strcmp(entry.name, Tidy.tidyFolderName) != 0)
        items.emplace_back(entry.name);
    }
    SearchClose(search);
    return items;
  }
  static std::string Current() {
    char current[64] = "";
    FolderGetCurrent(current, sizeof current);
    return current;
  }
  static void ExpectAsk(const std::string& name, BoxAnswer answer) {
    ExpectBox((name + " を整理します").c_str(), kAsk, answer);
  }
  static void ExpectFailure(const std::string& name, BoxAnswer answer) {
    ExpectBox((name + " を移動できません。処理を中止しますか").c_str(), kError, answer);
  }
};

TEST_F(DesktopTidyTest, ADesktopWithNothingButTheTidyFolderAsksNoQuestion) {
  MakeFolder(kTidy);
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(DesktopTidyTest, AnEmptyDesktopGetsTheFolder) {
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_TRUE(FolderThere(kTidy));
  EXPECT_STREQ(Tidy.desktopPath, kDesktop);
  EXPECT_STREQ(Tidy.tidyBasePath, kTidy);
}

TEST_F(DesktopTidyTest, TheTidyFolderBecomesTheCurrentOneIfItWasThere) {
  MakeFolder(kTidy);
  TidyRun(nullptr);
  char folder[260];
  FolderGetCurrent(folder, sizeof folder);
  EXPECT_STREQ(folder, kTidy);
}

TEST_F(DesktopTidyTest, YesMovesFilesAndFoldersAsAWhole) {
  Put("a.txt");
  Put("b");
  MakeFolder("C:\\desk\\folder\\deep");
  PutFile("C:\\desk\\folder\\deep\\f", "content");
  for (const std::string& name : Items()) ExpectAsk(name, BoxAnswer::Yes);
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_EQ(FolderNames(kDesktop), Names{"整理用フォルダー"});
  EXPECT_EQ(FolderNames(kTidy), (Names{"a.txt", "b", "folder"}));
  EXPECT_EQ(FileBytes(std::string(kTidy) + "\\folder\\deep\\f"), "content");
  EXPECT_EQ(FileBytes(std::string(kTidy) + "\\a.txt"), "a.txt");
}

TEST_F(DesktopTidyTest, TheQuestionIsAQuestionWithYesAndNo) {
  Put("a.txt");
  ExpectAsk("a.txt", BoxAnswer::No);
  TidyRun(nullptr);
  ASSERT_EQ(BoxesShown().size(), 1U);
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::YesNo);
  EXPECT_EQ(BoxesShown()[0].icon, BoxIcon::Question);
}

TEST_F(DesktopTidyTest, NoForAllItemsMovesNothing) {
  Put("a.txt");
  Put("b.txt");
  MakeFolder("C:\\desk\\c");
  for (const std::string& name : Items()) ExpectAsk(name, BoxAnswer::No);
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_TRUE(FolderNames(kTidy).empty());
  EXPECT_EQ(FolderNames(kDesktop).size(), 4U);
}

TEST_F(DesktopTidyTest, YesAndNoByTurnsMeetEveryItemOnce) {
  for (int i = 0; i < 8; ++i) Put("item" + std::to_string(i));
  MakeFolder(kTidy);
  Names moved;
  bool yes = false;
  for (const std::string& name : Items()) {
    ExpectAsk(name, yes ? BoxAnswer::Yes : BoxAnswer::No);
    if (yes) moved.push_back(name);
    yes = !yes;
  }
  EXPECT_EQ(TidyRun(nullptr), 0);
  std::sort(moved.begin(), moved.end());
  EXPECT_EQ(FolderNames(kTidy), moved);
}

TEST_F(DesktopTidyTest, ANameThatExistsInTheTidyFolderOffersToStopAndYesStops) {
  Put("a.txt");
  MakeFolder(kTidy);
  PutFile(std::string(kTidy) + "\\a.txt", "old");
  ExpectAsk("a.txt", BoxAnswer::Yes);
  ExpectFailure("a.txt", BoxAnswer::Yes);
  EXPECT_EQ(TidyRun(nullptr), -2);
  EXPECT_EQ(BoxesShown()[1].buttons, BoxButtons::YesNo);
  EXPECT_EQ(FileBytes(std::string(kTidy) + "\\a.txt"), "old");
  EXPECT_TRUE(FileThere("C:\\desk\\a.txt"));
}

TEST_F(DesktopTidyTest, AFailedMoveAndNoGoOnWithTheNextItem) {
  Put("a.txt");
  Put("b.txt");
  Put("c.txt");
  MakeFolder(kTidy);
  PutFile(std::string(kTidy) + "\\b.txt", "old");
  for (const std::string& name : Items()) {
    ExpectAsk(name, BoxAnswer::Yes);
    if (name == "b.txt") ExpectFailure(name, BoxAnswer::No);
  }
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_EQ(FolderNames(kTidy), (Names{"a.txt", "b.txt", "c.txt"}));
  EXPECT_EQ(FolderNames(kDesktop), (Names{"b.txt", "整理用フォルダー"}));
}

TEST_F(DesktopTidyTest, EachMoveFailingInTurnLeavesThatItemOnly) {
  for (int nth = 1; nth <= 4; ++nth) {
    for (const char* name : {"a", "b", "c"}) Put(name);
    MakeFolder(kTidy);
    const Names items = Items();
    FaultArm(FaultKind::Move, nth);
    for (int i = 0; i < 3; ++i) {
      ExpectAsk(items[static_cast<std::size_t>(i)], BoxAnswer::Yes);
      if (i + 1 == nth) ExpectFailure(items[static_cast<std::size_t>(i)], BoxAnswer::No);
    }
    EXPECT_EQ(TidyRun(nullptr), 0);
    EXPECT_EQ(FaultWasMet(), nth < 4);
    EXPECT_EQ(FolderNames(kTidy).size(), nth < 4 ? 2U : 3U);
    for (const char* name : {"a", "b", "c"}) RemoveFile(std::string(kTidy) + "\\" + name);
  }
}

TEST_F(DesktopTidyTest, AFolderThatCannotBeMadeEndsTheRunWithoutAWord) {
  Put("a.txt");
  FaultArm(FaultKind::Folder, 1);
  EXPECT_EQ(TidyRun(nullptr), -1);
  EXPECT_TRUE(FaultWasMet());
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_TRUE(FileThere("C:\\desk\\a.txt"));
}

// Every call for folders and searches failing in turn: what was not asked about stays
// where it is, and nothing is anywhere else.
class TidyFaultsTest : public DesktopTidyTest {
 protected:
  // Four items on the desktop beside an empty tidy folder.
  static void Begin() {
    for (const char* name : {"a", "b", "c"}) {
      RemoveFile(std::string(kTidy) + "\\" + name);
      Put(name);
    }
    std::filesystem::remove_all(PosixPath((std::string(kTidy) + "\\box").c_str()));
    MakeFolder(kTidy);
    MakeFolder("C:\\desk\\box");
    PutFile("C:\\desk\\box\\inside", "inside");
    FolderSetCurrent("C:\\mirrell");
  }
  // The desktop in the order of the search, with what is left out.
  static Names Entries() {
    Names names;
    SearchEntry entry;
    const SearchHandle search = SearchFirst("C:\\desk\\*.*", &entry);
    for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
      names.emplace_back(entry.name);
    }
    SearchClose(search);
    return names;
  }

  // Runs with a fault; those in `moved` are asked about, in that order, and go. True
  // if the fault was met.
  static bool Run(FaultKind kind, int nth, const Names& moved, int result) {
    for (const std::string& name : moved) ExpectAsk(name, BoxAnswer::Yes);
    FaultArm(kind, nth);
    EXPECT_EQ(TidyRun(nullptr), result) << nth;
    const bool met = FaultWasMet();
    FaultClear();
    EXPECT_EQ(BoxesLeft(), 0) << nth;
    EXPECT_EQ(DiagnosticsLive().searches, 0);
    for (const char* name : {"a", "b", "box", "c"}) {
      const bool went = std::find(moved.begin(), moved.end(), name) != moved.end();
      const std::string place = std::string(went ? kTidy : kDesktop) + "\\" + name;
      const bool isBox = std::strcmp(name, "box") == 0;
      EXPECT_EQ(FileBytes(isBox ? place + "\\inside" : place), isBox ? "inside" : name) << nth;
    }
    return met;
  }
};

TEST_F(TidyFaultsTest, AFolderThatIsThereButCannotBeGoneToEndsTheRun) {
  Begin();
  EXPECT_TRUE(Run(FaultKind::FolderSet, 1, {}, -1));
  EXPECT_EQ(Current(), "C:\\mirrell");
  EXPECT_FALSE(Run(FaultKind::FolderSet, 2, Items(), 0));
  EXPECT_EQ(Current(), kTidy);
}

TEST_F(TidyFaultsTest, ASearchThatDoesNotBeginEndsTheRunThere) {
  bool met = true;
  for (int nth = 1; met; ++nth) {
    Begin();
    // Each search finds the next entry.
    Names moved;
    int searches = 0;
    for (const std::string& name : Entries()) {
      if (name[0] == '.') continue;
      if (++searches == nth) break;
      if (name != Tidy.tidyFolderName) moved.push_back(name);
    }
    met = Run(FaultKind::SearchFirst, nth, moved, 0);
    EXPECT_EQ(Current(), kTidy);
    EXPECT_EQ(met, nth <= 6) << "four items, their folder, and one that finds no more";
  }
}

TEST_F(TidyFaultsTest, ASearchThatBreaksOffEndsTheRunThere) {
  bool met = true;
  for (int nth = 1; met; ++nth) {
    Begin();
    Names entries = Entries();
    Names moved;
    int steps = 0;
    std::size_t leftOut = 0;
    // One search after the other, each to the first entry that is neither left out by
    // its name nor passed over before.
    for (bool found = true; found;) {
      found = false;
      std::size_t pass = leftOut;
      for (std::size_t at = 0; at < entries.size() && !found; ++at) {
        if (at > 0 && ++steps == nth) break;
        if (entries[at][0] == '.' || pass-- > 0) continue;
        found = true;
        if (entries[at] == Tidy.tidyFolderName) {
          ++leftOut;
        } else {
          moved.push_back(entries[at]);
          entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(at));
        }
      }
      if (steps == nth) break;
    }
    met = Run(FaultKind::SearchNext, nth, moved, 0);
    EXPECT_EQ(Current(), kTidy);
    EXPECT_TRUE(met || moved.size() == 4);
  }
}

TEST_F(DesktopTidyTest, ADesktopPathThatDoesNotFitIsNotCut) {
  const std::string deep = "C:\\" + std::string(180, 'd') + "\\" + std::string(180, 'e');
  MakeFolder(deep);
  PutFile(deep + "\\a", "a");
  PosixDesktopSet(PosixPath(deep.c_str()));
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_STREQ(Tidy.desktopPath, "");
  EXPECT_EQ(FolderNames(deep), Names{"a"});
}

TEST_F(DesktopTidyTest, AnItemWhoseNameBeginsWithADotIsSkippedWithoutAQuestion) {
  Put(".hidden");
  Put("shown");
  MakeFolder("C:\\desk\\.folder");
  ExpectAsk("shown", BoxAnswer::Yes);
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_EQ(FolderNames(kTidy), Names{"shown"});
}

TEST_F(DesktopTidyTest, AFileInTheTidyFoldersPlaceEndsTheRunAndStays) {
  Put("a.txt");
  PutFile(kTidy, "x");
  EXPECT_EQ(TidyRun(nullptr), -1);
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_EQ(FileBytes(kTidy), "x");
  EXPECT_EQ(FolderNames(kDesktop), (Names{"a.txt", "整理用フォルダー"}));
}

TEST_F(DesktopTidyTest, TheFolderThatWasMadeBecomesTheCurrentOne) {
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_EQ(Current(), kTidy);
}

TEST_F(DesktopTidyTest, ASecondNameLeavesTheFirstFolderFreeToBeMoved) {
  EXPECT_EQ(TidyRun(nullptr), 0);
  std::strcpy(Tidy.tidyFolderName, "新しい");
  ExpectAsk("整理用フォルダー", BoxAnswer::No);
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_EQ(Current(), "C:\\desk\\新しい");
}

TEST_F(DesktopTidyTest, AnotherNameMakesANewFolderAndTheOldOneIsAnyFolder) {
  MakeFolder(kTidy);
  PutFile(std::string(kTidy) + "\\x", "1");
  std::strcpy(Tidy.tidyFolderName, "新しい");
  ExpectAsk("整理用フォルダー", BoxAnswer::Yes);
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_EQ(FolderNames(kDesktop), Names{"新しい"});
  EXPECT_TRUE(FileThere("C:\\desk\\新しい\\整理用フォルダー\\x"));
}

TEST_F(DesktopTidyTest, AnEmptyNameFallsBackToTheDefault) {
  Tidy.tidyFolderName[0] = '\0';
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_STREQ(Tidy.tidyFolderName, "整理用フォルダー");
  EXPECT_TRUE(FolderThere(kTidy));
}

TEST_F(DesktopTidyTest, ADesktopThatCannotBeToldFindsNothing) {
  PosixDesktopSet("");
  std::strcpy(Tidy.desktopPath, "C:\\old");
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_STREQ(Tidy.desktopPath, "");
  char name[260];
  EXPECT_FALSE(TidyNthItem(0, name));
}

TEST_F(DesktopTidyTest, TheNthItemComesWithItsAttributes) {
  Put("file");
  MakeFolder("C:\\desk\\folder");
  Put(".dot");
  std::strcpy(Tidy.desktopPath, kDesktop);
  std::map<std::string, std::uint32_t> found;
  char name[260];
  for (int n = 0; n < 2; ++n) {
    ASSERT_TRUE(TidyNthItem(n, name));
    found[name] = Tidy.tidyFoundAttributes & kAttributeFolder;
  }
  EXPECT_EQ(found, (std::map<std::string, std::uint32_t>{{"file", 0}, {"folder", kAttributeFolder}}));
  EXPECT_FALSE(TidyNthItem(2, name));
}

TEST_F(DesktopTidyTest, ANameThatFillsItsBufferIsKeptInside) {
  std::memset(Tidy.tidyFolderName, 'n', kTidyNameSize - 1);
  Tidy.tidyFolderName[kTidyNameSize - 1] = '\0';
  const std::string item(250, 'i');
  Put(item);
  ExpectAsk(item, BoxAnswer::Yes);
  EXPECT_EQ(TidyRun(nullptr), 0);
  EXPECT_TRUE(FileThere(std::string(kDesktop) + "\\" + Tidy.tidyFolderName + "\\" + item));
}

// --- The run by extension, which nothing switches on.

TEST_F(DesktopTidyTest, AnItemsKindIsTheLengthOfItsExtensionAndOne) {
  const auto kind = [](const char* name, std::uint32_t attributes, const char* expected) {
    const char* extension = nullptr;
    const int result = TidyClassify(name, attributes, &extension);
    EXPECT_STREQ(extension, expected) << name;
    return result;
  };
  EXPECT_EQ(kind("folder.x", kAttributeFolder, ""), 1);
  EXPECT_EQ(kind("plain", 0, ""), 0);
  EXPECT_EQ(kind("ends.", 0, ""), 0);
  EXPECT_EQ(kind("a.c", 0, "c"), 2);
  EXPECT_EQ(kind("a.b.lnk", 0, "lnk"), 4);
  EXPECT_EQ(kind("a.b\\c", 0, ""), 0);
  EXPECT_EQ(kind("a.\x95\x5C", 0, "\x95\x5C"), 3);
}

TEST_F(DesktopTidyTest, OnlyExtensionsOfOneLetterGetAFolderOfTheirOwn) {
  std::strcpy(Tidy.tidyBasePath, "B");
  TidyTargetFolder(0, "");
  EXPECT_STREQ(Tidy.tidyTargetPath, "B\\拡張子なし");
  TidyTargetFolder(1, "");
  EXPECT_STREQ(Tidy.tidyTargetPath, "B\\フォルダー");
  TidyTargetFolder(2, "c");
  EXPECT_STREQ(Tidy.tidyTargetPath, "B\\c");
  TidyTargetFolder(2, "lnk");  // no item has this kind and this extension
  EXPECT_STREQ(Tidy.tidyTargetPath, "B\\ショートカット");
  TidyTargetFolder(4, "lnk");
  EXPECT_STREQ(Tidy.tidyTargetPath, "B");
}

TEST_F(DesktopTidyTest, TheDormantRunPutsItemsIntoFoldersByKind) {
  Tidy.tidySplitByExt = 1;
  Put("plain");
  Put("source.c");
  Put("link.lnk");
  MakeFolder("C:\\desk\\folder");
  for (const std::string& name : Items()) ExpectAsk(name, BoxAnswer::Yes);
  EXPECT_EQ(TidyRun(nullptr), 0);
  const std::string tidy = kTidy;
  EXPECT_TRUE(FileThere(tidy + "\\拡張子なし\\plain"));
  EXPECT_TRUE(FileThere(tidy + "\\c\\source.c"));
  EXPECT_TRUE(FileThere(tidy + "\\link.lnk"));
  EXPECT_TRUE(FolderThere(tidy + "\\フォルダー\\folder"));
}

// --- The dialogs.

TEST_F(DesktopTidyTest, TheCommandOpensTheDialogInItsFamilyAndTakesItsMarksBack) {
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileDesktopClrDlg);
    EXPECT_EQ(Panel.FuncNo, 12);
    EXPECT_EQ(Dialogs.hToolDlg, TopDialog());
    EXPECT_EQ(WindowText(TopDialog()), "デスクトップの整理");
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIDY_FOLDER), "整理用フォルダー");
    EXPECT_TRUE(ListRows(TopDialog(), IDC_TIDY_KIND).empty());
    Press(TopDialog(), 2);
  });
  DesktopTidyCommand();
  EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(Dialogs.hToolDlg, nullptr);
}

TEST_F(DesktopTidyTest, TheRunTakesTheNameFromTheField) {
  Put("a.txt");
  ExpectAsk("a.txt", BoxAnswer::Yes);
  Then([] {
    Type(TopDialog(), IDC_TIDY_FOLDER, "あれこれ");
    Press(TopDialog(), IDC_TIDY_RUN);
    EXPECT_EQ(BoxesShown()[0].owner, TopDialog());
    Press(TopDialog(), 2);
  });
  DesktopTidyCommand();
  EXPECT_EQ(FolderNames("C:\\desk\\あれこれ"), Names{"a.txt"});
  Then([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIDY_FOLDER), "あれこれ");
    Press(TopDialog(), 2);
  });
  DesktopTidyCommand();
}

TEST_F(DesktopTidyTest, WithAnotherNameInTheFieldTheOldFolderIsAnItemLikeAnyOther) {
  MakeFolder(kTidy);
  PutFile(std::string(kTidy) + "\\old", "old");
  Put("a.txt");
  Names asked;
  Then([&] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIDY_FOLDER), "整理用フォルダー");
    Type(TopDialog(), IDC_TIDY_FOLDER, "新しい");
    // The new folder is made by the run; then the search has its order.
    MakeFolder("C:\\desk\\新しい");
    std::strcpy(Tidy.tidyFolderName, "新しい");
    asked = Items();
    TidyReset();
    for (const std::string& name : asked) ExpectAsk(name, BoxAnswer::Yes);
    std::filesystem::remove(PosixPath("C:\\desk\\新しい"));
    Press(TopDialog(), IDC_TIDY_RUN);
    Press(TopDialog(), 2);
  });
  DesktopTidyCommand();
  EXPECT_EQ(asked.size(), 2U);
  EXPECT_EQ(FolderNames(kDesktop), Names{"新しい"});
  EXPECT_EQ(FolderNames("C:\\desk\\新しい"), (Names{"a.txt", "整理用フォルダー"}));
  EXPECT_EQ(FileBytes("C:\\desk\\新しい\\整理用フォルダー\\old"), "old");
}

TEST_F(DesktopTidyTest, TheNameIsReadUpTo255Bytes) {
  PosixDesktopSet("");
  Then([] {
    Type(TopDialog(), IDC_TIDY_FOLDER, std::string(300, 'x').c_str());
    Press(TopDialog(), IDC_TIDY_RUN);
    Press(TopDialog(), 2);
  });
  DesktopTidyCommand();
  EXPECT_EQ(std::string(Tidy.tidyFolderName), std::string(255, 'x'));
}

TEST_F(DesktopTidyTest, TheOtherControlsHaveNoFunction) {
  Put("a.txt");
  Then([] {
    for (const int id : {IDC_TIDY_OPEN, IDC_TIDY_BACK, IDC_TIDY_ALIGN, IDC_TIDY_SPLIT})
      Press(TopDialog(), id);
    EXPECT_EQ(Tidy.tidySplitByExt, 0);
    EXPECT_EQ(FolderNames(kDesktop), Names{"a.txt"});
    EXPECT_EQ(OpenWindowCount(), 1);
    SendClose(TopDialog());
  });
  DesktopTidyCommand();
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_TRUE(ProcessesStarted().empty());
}

TEST_F(DesktopTidyTest, OfTheCoverDialogOnlyTheLastButtonWorks) {
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::DesktopIconSetDlg);
    EXPECT_EQ(Panel.FuncNo, 15);
    EXPECT_EQ(WindowText(TopDialog()), "デスクトップ カバー設定");
    Press(TopDialog(), IDC_COVER_PUT);
    Press(TopDialog(), IDC_COVER_ENABLE);
    EXPECT_TRUE(ListRows(TopDialog(), IDC_COVER_LIST).empty());
    EXPECT_EQ(Dialogs.hMenuDlg, TopDialog());
    Press(TopDialog(), 2);
  });
  DesktopCoverCommand();
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
  EXPECT_EQ(Panel.FuncNo, 0);
}

}  // namespace
