// The rules of the house that look at the tree as a whole: first that each finds what it
// is there for, then that the tree keeps it.
#include "tests/support/house_rules.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/places.h"

namespace {

using Findings = std::vector<std::string>;

const SourceTree& Tree() {
  static const SourceTree tree = SourceTreeRead(SourcePath("src"));
  return tree;
}

std::string Lines(const Findings& findings) {
  std::string text;
  for (const std::string& finding : findings) text += finding + "\n";
  return text;
}

TEST(HouseRulesTest, ALowerFloorIncludesNoHigherOne) {
  const SourceTree tree = {
      {"services/a.h", ""},
      {"character/b.h", ""},
      {"filetools/open/c.cpp", "#include \"character/b.h\"\n#include \"services/a.h\"\n"},
      {"services/d.cpp", "#include \"character/b.h\"\n"}};
  EXPECT_EQ(LintFloors(tree), Findings{"services/d.cpp -> character/b.h"});
}

TEST(HouseRulesTest, RoomsOfAFloorSeeNeitherEachOtherNorTheFloorAboveThem) {
  const SourceTree tree = {{"filetools/open/a.h", ""},
                           {"filetools/shared.h", ""},
                           {"filetools/divide/b.cpp", "#include \"filetools/open/a.h\"\n"},
                           {"filetools/divide/c.cpp", "#include \"filetools/shared.h\"\n"},
                           {"mail_music/mail/d.cpp", "#include \"filetools/open/a.h\"\n"},
                           {"clock_calendar/clock/e.cpp", "#include \"clock_calendar/calendar/f.h\"\n"},
                           {"clock_calendar/calendar/f.h", "#include \"clock_calendar/clock/g.h\"\n"},
                           {"clock_calendar/clock/g.h", ""}};
  EXPECT_EQ(LintFloors(tree), (Findings{"clock_calendar/clock/e.cpp -> clock_calendar/calendar/f.h",
                                        "filetools/divide/b.cpp -> filetools/open/a.h",
                                        "mail_music/mail/d.cpp -> filetools/open/a.h"}));
}

TEST(HouseRulesTest, AFolderThatIsNoRoomIsFound) {
  EXPECT_EQ(LintFloors({{"attic/a.cpp", ""}}), Findings{"attic/a.cpp: lies in no room"});
}

TEST(HouseRulesTest, ACircleOfFilesIsFound) {
  const SourceTree tree = {{"services/a.h", "#include \"services/b.h\"\n"},
                           {"services/b.cpp", "#include \"services/c.h\"\n"},
                           {"services/b.h", ""},
                           {"services/c.h", "#include \"services/a.h\"\n"}};
  EXPECT_EQ(LintCircles(tree), Findings{"services/a -> services/b -> services/c -> services/a"});
}

TEST(HouseRulesTest, AHeaderAndItsSourceAreNoCircle) {
  EXPECT_EQ(LintCircles({{"services/a.h", ""}, {"services/a.cpp", "#include \"services/a.h\"\n"}}),
            Findings{});
}

TEST(HouseRulesTest, StateIsWrittenByItsOwnRoomOnly) {
  const SourceTree tree = {
      {"character/stage.h",
       "struct StageState {\n  int X = 0;\n  int Y[3] = {};\n};\nextern StageState Stage;\n"},
      {"character/stage.cpp", "StageState Stage;\nvoid F() { Stage.X = 1; }\n"},
      {"shell/a.cpp", "int F() { return Stage.X == 1; }\n// Stage.X = 2\n"},
      {"shell/b.cpp", "void F() { Stage.X = 2; }\n"},
      {"shell/c.cpp", "void F() { ++Stage.X; }\nvoid G() { Stage.Y[1]--; }\n"},
      {"shell/d.cpp", "void F() { Stage = {}; }\n"}};
  EXPECT_EQ(LintState(tree), (Findings{"shell/b.cpp:1: writes Stage.X, which is character/stage.h's",
                                       "shell/c.cpp:1: writes Stage.X, which is character/stage.h's",
                                       "shell/c.cpp:2: writes Stage.Y[1], which is character/stage.h's",
                                       "shell/d.cpp:1: writes Stage, which is character/stage.h's"}));
}

TEST(HouseRulesTest, AProcessWideVariableIsTheStateOfAFeature) {
  EXPECT_EQ(LintState({{"shell/a.h", "extern int Count;\nextern PanelState Panel;\n"}}),
            Findings{"shell/a.h:1: no state of a feature: extern int Count;"});
}

TEST(HouseRulesTest, AStateIsMadeNewFromTheListOrByItsOwnReset) {
  const SourceTree tree = {
      {"shell/a.h", "extern PanelState Panel;\nextern LayoutState Layout;\nextern WatchState Watch;\n"},
      {"shell/b.cpp", "void LayoutReset() { StateReset(Layout); }\n"},
      {"shell/states.cpp", "void StatesReset() { ResetAll(Panel); LayoutReset(); } // Watch\n"}};
  EXPECT_EQ(LintResets(tree), Findings{"shell/a.h: Watch is never made new"});
}

TEST(HouseRulesTest, NumbersHaveNames) {
  const SourceTree tree = {{"shell/a.cpp", "void F() { SendCommand(hMainWnd, 2293); }\n"},
                           {"shell/b.cpp", "bool F() { return event.command == 2293; }\n"},
                           {"shell/c.cpp", "void F() { CommandSend(Command::StageRedraw); }\n"},
                           {"shell/d.cpp", "int F() { return GetLE16(record + 4); }\n"}};
  EXPECT_EQ(LintNumbers(tree),
            (Findings{"shell/a.cpp:1: a bare number is sent: SendCommand(hMainWnd, 2293)",
                      "shell/b.cpp:1: a bare number is compared: .command == 2293",
                      "shell/d.cpp:1: bytes are put in order outside the codec: GetLE16"}));
}

// --- The tree

TEST(HouseRulesTest, TheTreeKeepsItsFloors) {
  EXPECT_EQ(Lines(LintFloors(Tree())), "");
}
TEST(HouseRulesTest, TheTreeHasNoCircles) {
  EXPECT_EQ(Lines(LintCircles(Tree())), "");
}
TEST(HouseRulesTest, TheTreesStateIsWrittenByItsOwners) {
  EXPECT_EQ(Lines(LintState(Tree())), "");
}
TEST(HouseRulesTest, TheTreesStateIsMadeNew) {
  EXPECT_EQ(Lines(LintResets(Tree())), "");
}
TEST(HouseRulesTest, TheTreesNumbersHaveNames) {
  EXPECT_EQ(Lines(LintNumbers(Tree())), "");
}

TEST(HouseRulesTest, ThePageOfFidelityIsWhatTheCommentsSay) {
  EXPECT_EQ(std::system(("python3 " + SourcePath("scripts/fidelity.py") + " --check").c_str()), 0)
      << "scripts/fidelity.py makes it anew";
}

}  // namespace
