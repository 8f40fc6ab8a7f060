// The watch on the files that sibling programs write.
#include "shell/file_watch.h"

#include "character/alarm_images.h"
#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/stage.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "schedule/applications/application_list.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "shell/settings.h"
#include "shell/tick.h"
#include "tests/character/chara_files.h"
#include "tests/support/byte_order.h"
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
    Watch.FileWatchCount = 0;
  }
  static void MainTick1() { Ticks(1); }

  // The first note of January of the first calendar: names and switches take 3986
  // bytes, notes begin at 34 of the month block.
  static void ChangeNote() {
    std::string file = FileBytes(kCalendarFile);
    file.at(3986 + 34) = 'x';
    ASSERT_TRUE(PutFile(kCalendarFile, file));
  }

  // A sibling gives the first main character another number.
  static void ChangeCharacterFile(unsigned char number) {
    std::string file = FileBytes(kCharacterFile);
    file.at(kFirstNumber + 3) = static_cast<char>(number);
    ASSERT_TRUE(PutFile(kCharacterFile, file));
    SetFileTime(kCharacterFile, 2000000 + number);
  }
};

TEST_F(FileWatchTest, AChangedCharacterFileIsReadAt201Ticks) {
  ASSERT_EQ(CharaTables.MainCharas[0].charaNo, 1);
  ChangeCharacterFile(3);
  Ticks(200);
  EXPECT_EQ(CharaTables.MainCharas[0].charaNo, 1);
  Ticks(1);
  EXPECT_EQ(CharaTables.MainCharas[0].charaNo, 3);
  EXPECT_TRUE(FileThere(kSettingsFile)) << "the alarm reload saves the settings";
}

TEST_F(FileWatchTest, AFileChangedWhileItsDialogIsOpenIsPickedUp201TicksAfterTheDialogCloses) {
  for (const int dialog : {2013, 2014}) {
    Dialogs.DlgIdMenu = static_cast<MenuDialog>(dialog);
    const auto number = static_cast<unsigned char>(dialog == 2013 ? 2 : 4);
    ChangeCharacterFile(number);
    Ticks(201 * 3);
    EXPECT_NE(CharaTables.MainCharas[0].charaNo, number);
    Dialogs.DlgIdMenu = MenuDialog::None;
    ASSERT_EQ(Watch.FileWatchCount, 0);
    Ticks(200);
    EXPECT_NE(CharaTables.MainCharas[0].charaNo, number);
    Ticks(1);
    EXPECT_EQ(CharaTables.MainCharas[0].charaNo, number);
  }
}

TEST_F(FileWatchTest, AnEmptyDlgIdMenuDoesNotBlockTheWatch) {
  Dialogs.DlgIdMenu = MenuDialog::None;
  Dialogs.DlgIdTool = ToolDialog::FileDesktopClrDlg;
  ChangeCharacterFile(2);
  Ticks(201);
  EXPECT_EQ(CharaTables.MainCharas[0].charaNo, 2);
}

TEST_F(FileWatchTest, AStampThatCannotBeReadLeavesTheStoredStampAsItIs) {
  const std::string file = FileBytes(kCharacterFile);
  RemoveFile(kCharacterFile);
  Ticks(201);
  EXPECT_EQ(CharaTables.MainCharas[0].charaNo, 1);
  // The file comes back with the very time that is kept: no change.
  std::string changed = file;
  changed.at(kFirstNumber + 3) = 3;
  ASSERT_TRUE(PutFile(kCharacterFile, changed));
  SetFileTime(kCharacterFile, 1000000);
  Ticks(201);
  EXPECT_EQ(CharaTables.MainCharas[0].charaNo, 1);
  SetFileTime(kCharacterFile, 1000001);
  Ticks(201);
  EXPECT_EQ(CharaTables.MainCharas[0].charaNo, 3);
}

// The alarm numbers stand behind four records of 740 bytes and their own count.
constexpr std::size_t kFirstAlarm = kFirstNumber + 4 * 740 + 4;

TEST_F(FileWatchTest, AChangedAlarmCharacterIsLoaded) {
  MakeFolder("C:\\mirrell\\キャラクタ");
  ASSERT_TRUE(PutFile("C:\\mirrell\\キャラクタ\\Chara7_1.bmp", BmpFile(20, 20)));
  ASSERT_EQ(AlarmImages.AlarmRows[kAlarmMail].pictures[0], nullptr);
  std::string file = FileBytes(kCharacterFile);
  ASSERT_EQ(file.at(kFirstAlarm + 3), 6);
  file.at(kFirstAlarm + 3) = 7;
  ASSERT_TRUE(PutFile(kCharacterFile, file));
  SetFileTime(kCharacterFile, 2000000);
  Ticks(201);
  EXPECT_NE(AlarmImages.AlarmRows[kAlarmMail].pictures[0], nullptr);
}

std::uint32_t SavedNumber(std::size_t offset) {
  const std::string file = FileBytes(kSettingsFile);
  return GetBE32(file.data() + offset);
}

// The alarm characters' answer saves before the stage's takes the character's new
// settings: those are in the file only after the next save.
TEST_F(FileWatchTest, TheSettingsAreSavedBeforeTheCharacterIsTaken) {
  std::string file = FileBytes(kCharacterFile);
  file.at(kFirstNumber + 8 + 3) = 5;  // BlinkFrame of the first character
  ASSERT_TRUE(PutFile(kCharacterFile, file));
  SetFileTime(kCharacterFile, 2000000);
  Ticks(201);
  EXPECT_EQ(Character.BlinkFrame, 5);
  EXPECT_EQ(SavedNumber(28), 0U);
}

// The calendar is answered before the character file is looked at.
TEST_F(FileWatchTest, TwoChangesAreAnsweredOneAfterTheOther) {
  SetFileTime(kCalendarFile, 2000000);
  ChangeCharacterFile(3);
  ListenToEverything();
  Ticks(201);
  EXPECT_EQ(TakeHeard(), (Words{"main 2381", "main 2293", "main 2254"}));
}

TEST_F(FileWatchTest, ACharacterChangeLoadsTheStageAnewAndRestartsTheClock) {
  MakeFolder("C:\\mirrell\\キャラクタ");
  ASSERT_TRUE(PutFile("C:\\mirrell\\キャラクタ\\Chara3_1.bmp", BmpFile(40, 30)));
  ChangeCharacterFile(3);
  ListenToEverything();
  Ticks(200);
  EXPECT_EQ(TakeHeard(), Words{});
  Ticks(1);
  EXPECT_EQ(TakeHeard(), (Words{"main 2293", "main 2254"}));
  EXPECT_NE(FramePicture(kStageRow, 0), nullptr);
  EXPECT_EQ(Stage.StageRedraw, kRedrawNothing);
}

// Offsets in the history: 240503 the sound, 240803 the flags of the walk.
TEST_F(FileWatchTest, AnotherSelectedCharacterIsCarriedIntoTheOpenHistory) {
  const char history[] = "C:\\mirrell\\OpnFileHis.lis";
  ChangeCharacterFile(2);
  Ticks(201);
  EXPECT_FALSE(FileThere(history)) << "the selected character is the same one";
  Character.CharaSet.CharaNo = 2;
  std::string file = FileBytes(kCharacterFile);
  // The flags of the walking rows stand before the four blink intervals.
  file.at(file.size() - 16 - 50) = 5;
  // The first main character walks with row 1: 64 bytes of numbers, then its record.
  file.at(kFirstNumber + 64 + 324) = 1;
  ASSERT_TRUE(PutFile(kCharacterFile, file));
  SetFileTime(kCharacterFile, 3000000);
  Ticks(201);
  ASSERT_TRUE(FileThere(history));
  EXPECT_STREQ(FileBytes(history).c_str() + 240503, "旗印.wav");
  EXPECT_EQ(FileBytes(history).at(240803), 5);
  EXPECT_EQ(Character.CharaSet.CharaNo, 1);
}

TEST_F(FileWatchTest, ACalendarChangeIsAnsweredInItsOrder) {
  Applications.ApliCount = 1;
  Applications.ApliSelected = 1;
  Calendar.CalenShow = 1;
  Calendar.hCalenWnd = OpenListener("calendar");
  ChangeNote();
  SetFileTime(kCalendarFile, 2000000);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)");
  ListenToEverything();
  FileWatch();
  EXPECT_EQ(TakeHeard(), (Words{"main 2381", "calendar close", "main 2379", "calendar command 2295",
                                "main 2382", "main 2254"}));
  Calendar.CalenShow = 0;
  SetFileTime(kCalendarFile, 3000000);
  FileWatch();
  EXPECT_EQ(TakeHeard(), (Words{"main 2381", "calendar close", "main 2254"}));
  WindowDestroy(Calendar.hCalenWnd);
}

// A sibling writes twice; the second time while the first is being read.
TEST_F(FileWatchTest, AWriteWhileTheFileIsReadIsAChangeOfItsOwn) {
  ChangeCharacterFile(3);
  FaultMeanwhile(FaultKind::Read, 1, [] { SetFileTime(kCharacterFile, 5000000); });
  Ticks(201);
  ASSERT_TRUE(FaultWasMet());
  FaultClear();
  RemoveFile(kSettingsFile);
  ListenToEverything();
  Ticks(201);
  EXPECT_EQ(TakeHeard(), (Words{"main 2293", "main 2254"}));
  Ticks(201);
  EXPECT_EQ(TakeHeard(), Words{});
}

TEST_F(FileWatchTest, WhenTheProgramEndsInABoxOfTheWatchTheRestIsLeft) {
  Applications.ApliCount = 1;
  Applications.ApliSelected = 1;
  ChangeNote();
  SetFileTime(kCalendarFile, 2000000);
  ChangeCharacterFile(3);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)", BoxAnswer::Ok, [] { SendClose(Program.hMainWnd); });
  Ticks(201);
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_EQ(CharaTables.MainCharas[0].charaNo, 1);
}

TEST_F(FileWatchTest, AChangedCalendarTellsTheScheduleProgramOnlyWhenTheSelectedOneDiffers) {
  Applications.ApliCount = 1;
  Applications.ApliSelected = 1;
  SetFileTime(kCalendarFile, 2000000);
  Ticks(201);
  EXPECT_TRUE(BoxesShown().empty()) << "the same content under a new time";

  ChangeNote();
  SetFileTime(kCalendarFile, 3000000);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)");
  Ticks(201);
  EXPECT_EQ(BoxesShown().size(), 1U);
}

// What a sibling, or the list of the public holidays, has put into the selected calendar's
// sheet: the flag of 1 January lies at 2 of the month block, its note at 34.
TEST_F(FileWatchTest, ChangedHolidaysAndNotesOfTheSheetReachTheWorkingArray) {
  const bool before = CalenHolidayFlag(0, 0, 0);
  CalenNoteSet(0, 0, 1, "mine");
  std::string file = FileBytes(kCalendarFile);
  file.at(3986 + 2) = before ? 0 : 1;
  file.at(3986 + 34) = 'x';
  ASSERT_TRUE(PutFile(kCalendarFile, file));
  SetFileTime(kCalendarFile, 2000000);
  Ticks(201);
  EXPECT_EQ(CalenHolidayFlag(0, 0, 0), !before);
  char note[kNoteSize + 1];
  CalenNoteGet(0, 0, 0, note);
  EXPECT_STREQ(note, "x");
  CalenNoteGet(0, 0, 1, note);
  EXPECT_STREQ(note, "mine");
}

// Behind the sheets (12 blocks of 4672 bytes) and their marks (12 of 10) of all
// calendars stand the definitions.
TEST_F(FileWatchTest, AChangedDefinitionTellsTheScheduleProgram) {
  Applications.ApliCount = 1;
  Applications.ApliSelected = 1;
  std::string file = FileBytes(kCalendarFile);
  const std::size_t count = GetBE32(file.data() + 22);
  file.at(3986 + count * (12 * 4672 + 12 * 10) + 26727) ^= 1;
  ASSERT_TRUE(PutFile(kCalendarFile, file));
  SetFileTime(kCalendarFile, 2000000);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)");
  Ticks(201);
  EXPECT_EQ(BoxesShown().size(), 1U);
}

TEST_F(FileWatchTest, TheCalendarIsLeftAloneWhileItsDialogsAreOpen) {
  for (const int dialog : {2007, 2009}) {
    Dialogs.DlgIdMenu = static_cast<MenuDialog>(dialog);
    SetFileTime(kCalendarFile, 4000000 + dialog);
    RemoveFile(kSettingsFile);
    Ticks(201);
    EXPECT_FALSE(FileThere(kSettingsFile));
    Dialogs.DlgIdMenu = MenuDialog::None;
    ASSERT_EQ(Watch.FileWatchCount, 0);
    Ticks(200);
    EXPECT_FALSE(FileThere(kSettingsFile));
    Ticks(1);
    EXPECT_TRUE(FileThere(kSettingsFile)) << "rebuilding the years saves the settings";
  }
}

TEST_F(FileWatchTest, ACalendarNoticeIsNotShownTwiceAtOnce) {
  Applications.ApliCount = 1;
  Applications.ApliSelected = 1;
  Applications.ApliStarted = 1;
  ExpectBox("予定表の編集データセーブ後に予定表を閉じて再起動させてください",
            "カレンダーが変更されました(ミルレール)", BoxAnswer::Ok,
            [] { CommandSend(Command::CalendarChanged); });
  CommandSend(Command::CalendarChanged);
  EXPECT_EQ(BoxesShown().size(), 1U);
}

TEST_F(FileWatchTest, WithNoProgramMarkedACalendarChangeIsNotTold) {
  CommandSend(Command::CalendarChanged);
  EXPECT_TRUE(BoxesShown().empty());
}

}  // namespace
