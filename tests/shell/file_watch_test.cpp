// The watch on the files that sibling programs write.
#include "character/character.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "character/stage.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "schedule/application_list.h"
#include "shell/settings.h"
#include "shell/shell.h"
#include "tests/support/program.h"

namespace {

using Words = std::vector<std::string>;

const char kCharacterFile[] = "C:\\mirrell\\mirrell_chara_file.dcx";
const char kCalendarFile[] = "C:\\mirrell\\mirrell_calen_file.dcd";
const char kSettingsFile[] = "C:\\mirrell\\mirrell_sys_file.svs";

// Offset of the first main character's number: magic of 23 bytes, the count.
constexpr std::size_t kFirstNumber = 27;

class FileWatchTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    SetFactorySettings();
    ASSERT_EQ(CharaFileWrite(), 0);
    CalenStartDefaults();
    ASSERT_EQ(CalenFileWrite(), 0);
    SetFileTime(kCharacterFile, 1000000);
    SetFileTime(kCalendarFile, 1000000);
    StartProgram();
    MainTick1();
    FileWatchCount = 0;
  }
  static void MainTick1() { Ticks(1); }

  // A sibling gives the first main character another number.
  static void ChangeCharacterFile(unsigned char number) {
    std::string file = FileBytes(kCharacterFile);
    file.at(kFirstNumber + 3) = static_cast<char>(number);
    ASSERT_TRUE(PutFile(kCharacterFile, file));
    SetFileTime(kCharacterFile, 2000000 + number);
  }
};

TEST_F(FileWatchTest, AChangedCharacterFileIsReadAt201Ticks) {
  ASSERT_EQ(MainCharas[0].charaNo, 1);
  ChangeCharacterFile(3);
  Ticks(200);
  EXPECT_EQ(MainCharas[0].charaNo, 1);
  Ticks(1);
  EXPECT_EQ(MainCharas[0].charaNo, 3);
  EXPECT_TRUE(FileThere(kSettingsFile)) << "the alarm reload saves the settings";
}

TEST_F(FileWatchTest, AFileChangedWhileItsDialogIsOpenIsPickedUp201TicksAfterTheDialogCloses) {
  for (const int dialog : {2013, 2014}) {
    DlgIdMenu = dialog;
    const auto number = static_cast<unsigned char>(dialog == 2013 ? 2 : 4);
    ChangeCharacterFile(number);
    Ticks(201 * 3);
    EXPECT_NE(MainCharas[0].charaNo, number);
    DlgIdMenu = 0;
    ASSERT_EQ(FileWatchCount, 0);
    Ticks(200);
    EXPECT_NE(MainCharas[0].charaNo, number);
    Ticks(1);
    EXPECT_EQ(MainCharas[0].charaNo, number);
  }
}

TEST_F(FileWatchTest, AnEmptyDlgIdMenuDoesNotBlockTheWatch) {
  DlgIdMenu = 0;
  DlgIdTool = 2013;
  ChangeCharacterFile(2);
  Ticks(201);
  EXPECT_EQ(MainCharas[0].charaNo, 2);
}

TEST_F(FileWatchTest, AStampThatCannotBeReadLeavesTheStoredStampAsItIs) {
  const std::string file = FileBytes(kCharacterFile);
  RemoveFile(kCharacterFile);
  Ticks(201);
  EXPECT_EQ(MainCharas[0].charaNo, 1);
  // The file comes back with the very time that is kept: no change.
  std::string changed = file;
  changed.at(kFirstNumber + 3) = 3;
  ASSERT_TRUE(PutFile(kCharacterFile, changed));
  SetFileTime(kCharacterFile, 1000000);
  Ticks(201);
  EXPECT_EQ(MainCharas[0].charaNo, 1);
  SetFileTime(kCharacterFile, 1000001);
  Ticks(201);
  EXPECT_EQ(MainCharas[0].charaNo, 3);
}

TEST_F(FileWatchTest, ACharacterChangeMarksTheStageForAReload) {
  ChangeCharacterFile(3);
  Ticks(201);
  // Command 2293 has run by then and found nothing to draw for a set without
  // pictures.
  EXPECT_EQ(StageRedraw, kRedrawNothing);
}

TEST_F(FileWatchTest, AChangedCalendarTellsTheScheduleProgramOnlyWhenTheSelectedOneDiffers) {
  ApliCount = 1;
  ApliSelected = 1;
  SetFileTime(kCalendarFile, 2000000);
  Ticks(201);
  EXPECT_TRUE(BoxesShown().empty()) << "the same content under a new time";

  std::string file = FileBytes(kCalendarFile);
  // The first note of January of the first calendar: names and switches take 3986
  // bytes, notes begin at 34 of the month block.
  file.at(3986 + 34) = 'x';
  ASSERT_TRUE(PutFile(kCalendarFile, file));
  SetFileTime(kCalendarFile, 3000000);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)");
  Ticks(201);
  EXPECT_EQ(BoxesShown().size(), 1U);
}

TEST_F(FileWatchTest, TheCalendarIsLeftAloneWhileItsDialogsAreOpen) {
  for (const int dialog : {2007, 2009}) {
    DlgIdMenu = dialog;
    SetFileTime(kCalendarFile, 4000000 + dialog);
    RemoveFile(kSettingsFile);
    Ticks(201);
    EXPECT_FALSE(FileThere(kSettingsFile));
    DlgIdMenu = 0;
    Ticks(201);
    EXPECT_TRUE(FileThere(kSettingsFile)) << "rebuilding the years saves the settings";
  }
}

TEST_F(FileWatchTest, ACalendarNoticeIsNotShownTwiceAtOnce) {
  ApliCount = 1;
  ApliSelected = 1;
  ApliStarted = 1;
  ExpectBox("予定表の編集データセーブ後に予定表を閉じて再起動させてください",
            "カレンダーが変更されました(ミルレール)", BoxAnswer::Ok, [] { SendCommand(hMainWnd, 2382); });
  SendCommand(hMainWnd, 2382);
  EXPECT_EQ(BoxesShown().size(), 1U);
}

TEST_F(FileWatchTest, WithNoProgramMarkedACalendarChangeIsNotTold) {
  SendCommand(hMainWnd, 2382);
  EXPECT_TRUE(BoxesShown().empty());
}

}  // namespace
