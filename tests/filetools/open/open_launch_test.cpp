// Starting programs: command lines, the launch command, groups from the tick.
#include "character/walk.h"
#include "services/commands.h"
#include "services/program.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

class OpenLaunchTest : public OpenFixture {
 protected:
  void SetUp() override {
    OpenFixture::SetUp();
    MakeFolder("C:\\書類\\表");
    MakeFolder("C:\\道具");
  }
};

// --- Command lines, byte for byte

TEST_F(OpenLaunchTest, AProgramGetsTheFileInDoubleQuotesBehindItsOwnPath) {
  Select("ソース.txt", "C:\\書類\\表\\", "編集 能.exe", "C:\\道具\\");
  OpnLaunch();
  // ソ is 0x83 0x5C, 表 0x95 0x5C, 能 0x94 0x5C.
  EXPECT_EQ(Started(), Rows{"C:\\\x93\xB9\x8B\xEF\\\x95\xD2\x8F\x57 \x94\x5C.exe "
                            "\"C:\\\x8F\x91\x97\xDE\\\x95\x5C\\\x83\x5C\x81\x5B\x83X.txt\""});
  EXPECT_EQ(ProcessesStarted()[0].folder, "C:\\道具");
}

TEST_F(OpenLaunchTest, TheProgramIsWaitedForAndItsHandleClosed) {
  Select("a.txt", "C:\\書類\\", "edit.exe", "C:\\道具\\");
  OpnLaunch();
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  EXPECT_EQ(ProcessesStarted()[0].waited, 5000U);
  EXPECT_TRUE(ProcessesStarted()[0].closed);
}

TEST_F(OpenLaunchTest, AProgramFolderThatIsNotThereLeavesTheFilesFolderCurrent) {
  Select("a.txt", "C:\\書類\\", "edit.exe", "C:\\gone\\");
  OpnLaunch();
  EXPECT_EQ(ProcessesStarted()[0].folder, "C:\\書類");
  EXPECT_EQ(Started(), Rows{"C:\\gone\\edit.exe \"C:\\書類\\a.txt\""});
}

TEST_F(OpenLaunchTest, WithoutAProgramTheAssociatedOneOpensTheFile) {
  PutFile("C:\\書類\\表\\ソ.txt", "x");
  AssociationSet(".txt", "C:\\道具\\編集.exe");
  Select("ソ.txt", "C:\\書類\\表\\");
  OpnLaunch();
  EXPECT_EQ(Started(), Rows{"C:\\道具\\編集.exe \"C:\\書類\\表\\ソ.txt\""});
  // The empty program folder is no folder to go to.
  EXPECT_EQ(ProcessesStarted()[0].folder, "C:\\mirrell");
}

TEST_F(OpenLaunchTest, WithoutAnAssociationTheLineBeginsWithABlank) {
  Select("a.xyz", "C:\\書類\\");
  OpnLaunch();
  EXPECT_EQ(Started(), Rows{" \"C:\\書類\\a.xyz\""});
}

TEST_F(OpenLaunchTest, TheLongestTextsFitTheLine) {
  const std::string name(256, 'n');
  const std::string folder(256, 'f');
  const std::string program(256, 'p');
  const std::string programFolder(256, 'q');
  Select(name, folder, program, programFolder);
  OpnLaunch();
  EXPECT_EQ(Started(), Rows{programFolder + program + " \"" + folder + name + "\""});
}

TEST_F(OpenLaunchTest, AProgramThatDoesNotStartIsSilent) {
  Select("a.txt", "C:\\書類\\", "edit.exe", "C:\\道具\\");
  FaultArm(FaultKind::Process, 1);
  OpnLaunch();
  FaultClear();
  EXPECT_EQ(Started(), Rows{});
  EXPECT_TRUE(BoxesShown().empty());
}

// --- The launch command

TEST_F(OpenLaunchTest, NothingChosenStartsNothing) {
  CommandSend(Command::OpenLaunch);
  EXPECT_EQ(Started(), Rows{});
  EXPECT_EQ(OpnRecord.recCount, 0);
  EXPECT_FALSE(FileThere(HistoryPath()));
}

TEST_F(OpenLaunchTest, AFailedStartIsRecordedAllTheSame) {
  AddHistories(1);
  OpnWorkReset();
  ASSERT_TRUE(OpnSelectionFill(0, 0));
  FaultArm(FaultKind::Process, 1);
  CommandSend(Command::OpenLaunch);
  FaultClear();
  EXPECT_EQ(OpnRecord.recCount, 1);
}

TEST_F(OpenLaunchTest, TheHistoryIsWrittenOnlyWhenItHasChanged) {
  AddHistories(2);
  OpnWorkReset();
  ASSERT_TRUE(OpnSelectionFill(0, 0));
  CommandSend(Command::OpenLaunch);
  EXPECT_FALSE(FileThere(HistoryPath()));
  OpnBrowseProgram("C:\\edit.exe");
  ASSERT_TRUE(OpnSelectionFill(0, 1));
  OpnWork.progSel = 1;
  CommandSend(Command::OpenLaunch);
  EXPECT_TRUE(FileThere(HistoryPath()));
  EXPECT_EQ(OpnRecord.recCount, 2);
}

TEST_F(OpenLaunchTest, AHistoryThatCannotBeWrittenIsSilent) {
  AddHistories(1);
  OpnWorkReset();
  OpnBrowseFile("C:\\new.txt");
  ASSERT_TRUE(OpnSelectionFill(1, 0));
  FaultArm(FaultKind::Create, 1);
  CommandSend(Command::OpenLaunch);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_EQ(HistoryFiles(), (Rows{"new.txt", "name0.txt"}));
}

// --- Groups from the tick

TEST_F(OpenLaunchTest, AGroupOpensOneFileEvery50Ticks) {
  for (const char* name : {"a", "b", "c"}) AddToGroup(4, name, "C:\\", "edit.exe", "C:\\道具\\");
  Select("kept", "C:\\");
  OpnGroupStart(4);
  Rows expected;
  for (const char* name : {"a", "b", "c"}) {
    expected.push_back(std::string("C:\\道具\\edit.exe \"C:\\") + name + "\"");
    OpnGroupTick();
    EXPECT_EQ(Started(), expected);
    EXPECT_EQ(GroupRun.GroupOpenDelay, 50);
    for (int i = 0; i < 50; ++i) OpnGroupTick();
    EXPECT_EQ(Started(), expected);
    EXPECT_EQ(GroupRun.GroupOpenDelay, 0);
    EXPECT_NE(GroupRun.OpnPendingGroup, nullptr);
  }
  OpnGroupTick();
  EXPECT_EQ(GroupRun.OpnPendingGroup, nullptr);
  EXPECT_EQ(Started(), expected);
  EXPECT_STREQ(OpnSelection.fileName, "kept");
}

TEST_F(OpenLaunchTest, AGroupWaitsForTheEndOfItsWalk) {
  AddToGroup(0, "a");
  OpnGroupStart(0);
  Walk.OpeningState = 2;
  for (int i = 0; i < 200; ++i) OpnGroupTick();
  EXPECT_EQ(Started(), Rows{});
  Walk.OpeningState = 0;
  OpnGroupTick();
  EXPECT_EQ(Started().size(), 1U);
  // A file that is being opened holds the next one up no more than a check run.
  for (const int state : {1, 3}) {
    OpnGroupStart(0);
    Walk.OpeningState = state;
    GroupRun.GroupOpenDelay = 0;
    OpnGroupTick();
  }
  Walk.OpeningState = 0;
  EXPECT_EQ(Started().size(), 3U);
}

TEST_F(OpenLaunchTest, GroupOpensTouchNeitherTheHistoryNorTheRecord) {
  AddToGroup(0, "a");
  OpnGroupStart(0);
  Ticks(60);
  EXPECT_EQ(Started().size(), 1U);
  EXPECT_EQ(OpnRecord.recCount, 0);
  EXPECT_EQ(OpnHistory.fileCount, 0);
  EXPECT_FALSE(FileThere(HistoryPath()));
}

TEST_F(OpenLaunchTest, AFileThatDoesNotStartDoesNotStopTheGroup) {
  AddToGroup(0, "a");
  AddToGroup(0, "b");
  OpnGroupStart(0);
  FaultArm(FaultKind::Process, 1);
  Ticks(52);
  FaultClear();
  EXPECT_EQ(Started(), Rows{" \"C:\\data\\b\""});
}

TEST_F(OpenLaunchTest, AGroupThatShrinksWhileItIsOpenedEndsEarlier) {
  AddToGroup(0, "a");
  AddToGroup(0, "b");
  OpnGroupStart(0);
  Ticks(1);
  OpnGroupRemoveFile(0, 1);
  Ticks(51);
  EXPECT_EQ(Started().size(), 1U);
  EXPECT_EQ(GroupRun.OpnPendingGroup, nullptr);
}

TEST_F(OpenLaunchTest, TheTickOfTheProgramOpensTheGroup) {
  for (const char* name : {"a", "b"}) AddToGroup(0, name);
  OpnGroupStart(0);
  Ticks(1);
  EXPECT_EQ(Started().size(), 1U);
  Ticks(50);
  EXPECT_EQ(Started().size(), 1U);
  Ticks(1);
  EXPECT_EQ(Started().size(), 2U);
}

}  // namespace
