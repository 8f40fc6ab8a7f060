// The whole data set: made once for all these tests, checked, and broken on
// purpose.
#include "newdata/data_set.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <stdexcept>

#include "character/character.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "newdata/cast.h"
#include "newdata/host_file.h"
#include "newdata/picture_files.h"
#include "newdata/sample_map.h"
#include "newdata/sample_scenario.h"
#include "newdata/sound.h"
#include "platform/file.h"
#include "platform/posix/posix_paths.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_list_file.h"
#include "scenario/storage/snry_main_file.h"
#include "scenario/storage/snry_paths.h"
#include "scenario/storage/snry_scene_file.h"
#include "scenario/storage/snry_tables.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/schedule_run.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/model/schedule.h"
#include "schedule/model/scl_file.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_file.h"
#include "schedule/rates/scl_map.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/state.h"
#include "services/text.h"
#include "services/work_blocks.h"
#include "shell/settings.h"
#include "tests/support/byte_order.h"
#include "world/world_list.h"

namespace fs = std::filesystem;

namespace {

constexpr DataSetDate kDate{2026, 11, 21};

fs::path TestFolder(const std::string& name) {
  return fs::temp_directory_path() / ("newdata_" + std::to_string(getpid()) + "_" + name);
}

class DataSetTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    made_ = TestFolder("set");
    MakeDataSet(made_, MIRRELL_ASSETS_DIR, kDate);
  }
  static void TearDownTestSuite() { fs::remove_all(made_); }

  void SetUp() override { UseProgramFolder(made_); }
  void TearDown() override {
    for (const auto& [file, content] : kept_) WriteHostFile(file, content);
  }

  static fs::path Made(const fs::path& name) { return made_ / name; }
  static fs::path MadePicture(const std::string& name) { return made_ / kCharacterFolder / name; }

  // Changes one byte of a file until the test's end.
  void Spoil(const fs::path& file, std::size_t place, int difference = 1) {
    Bytes content = Keep(file);
    ASSERT_LT(place, content.size());
    content[place] = static_cast<std::uint8_t>(content[place] + difference);
    WriteHostFile(file, content);
  }

  void Cut(const fs::path& file, std::size_t size) {
    Bytes content = Keep(file);
    content.resize(size);
    WriteHostFile(file, content);
  }

  void Remove(const fs::path& file) {
    Keep(file);
    fs::remove(file);
  }

  static bool HasFault(const std::string& fault) {
    const std::vector<std::string> faults = CheckDataSet(made_);
    return std::find(faults.begin(), faults.end(), fault) != faults.end();
  }

 private:
  Bytes Keep(const fs::path& file) {
    const Bytes content = ReadHostFile(file);
    kept_.emplace(file, content);
    return content;
  }

  static fs::path made_;
  std::map<fs::path, Bytes> kept_;
};

fs::path DataSetTest::made_;

std::map<std::string, Bytes> AllFiles(const fs::path& folder) {
  std::map<std::string, Bytes> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      files[fs::relative(entry.path(), folder).string()] = ReadHostFile(entry.path());
    }
  }
  return files;
}

// --- The samples of plans

TEST_F(DataSetTest, AStudyPlanAndATrainingPlanLieInTheFolderOfPlans) {
  ASSERT_EQ(ScpLoadFile(PosixToProgram((Made(kPlanFolder) / u8"学習計画.GPP").string()).c_str()), 0);
  EXPECT_EQ(Plan.head.ScpPlanKind, kScpStudy);
  EXPECT_STREQ(Plan.head.title, "学習計画の見本");
  EXPECT_EQ(Plan.head.start.year, 26);
  EXPECT_EQ(Plan.head.start.day, 20);
  EXPECT_EQ(Plan.head.start.hour, 8);
  EXPECT_STREQ(Plan.ScpPlanTable[0].text, "英単語 1～50");
  EXPECT_EQ(Plan.ScpPlanTable[5].hours, 5U);
  ASSERT_EQ(ScpLoadFile(PosixToProgram((Made(kPlanFolder) / u8"筋トレ計画.GPP").string()).c_str()), 0);
  EXPECT_EQ(Plan.head.ScpPlanKind, kScpTraining);
  EXPECT_EQ(Plan.head.start.hour, 17);
  EXPECT_EQ(Plan.ScpPlanTable[1].load, 2U);
  EXPECT_EQ(Plan.ScpPlanTable[1].repeat, 8);
}

TEST_F(DataSetTest, APlanThatIsCutIsAFault) {
  Cut(Made(kPlanFolder) / u8"学習計画.GPP", 1000);
  EXPECT_TRUE(HasFault(Cp932ToUtf8("学習計画.GPP is no plan")));
}

}  // namespace

TEST_F(DataSetTest, IsGood) {
  EXPECT_EQ(CheckDataSet(Made("")), std::vector<std::string>{});
}

// Saturday, 21 November 2026, has three hours of work; Sunday and Monday, a holiday, none.
TEST_F(DataSetTest, HoldsAScheduleThatBeginsOnItsDate) {
  char path[kRootPathSize];
  RootPath(path, sizeof path, "\\スケジュール表\\見本の予定.GPI");
  ASSERT_EQ(SclLoadFile(path), 0);
  EXPECT_STREQ(Schedule.SclHeader.title, "見本の予定");
  EXPECT_EQ(Schedule.SclHeader.count, 31);
  const SclItemRec* items = Schedule.SclItemTable;
  EXPECT_EQ(items[0].start, (SclItemDate{26, 10, 20, 9}));
  EXPECT_EQ(items[0].alarmOn, 1);
  EXPECT_EQ(items[0].doneState, 1);
  EXPECT_EQ(items[1].end, (SclItemDate{26, 10, 20, 12}));
  EXPECT_STREQ(items[11].text, "来月の予定を立てる");
  EXPECT_EQ(items[12].hours, 0U);
}

// As the start does: the list of applications, then the schedule that it names.
void StartExecution(const fs::path& folder) {
  UseProgramFolder(folder);
  StateReset(Schedule);
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  SclExecutionLoad();
}

TEST_F(DataSetTest, CarriesItsScheduleOutWhereverItsFolderStands) {
  const fs::path made = TestFolder("running");
  const fs::path moved = TestFolder("moved");
  MakeDataSet(made, MIRRELL_ASSETS_DIR, kDate);
  RunSampleSchedule(made);
  EXPECT_EQ(CheckDataSet(made), std::vector<std::string>{});
  fs::rename(made, moved);
  StartExecution(moved);
  EXPECT_TRUE(Schedule.SclExecActive);
  EXPECT_TRUE(SclIsRunning());
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_STREQ(Schedule.SclExecTable.title, "見本の予定");
  EXPECT_STREQ(Schedule.SclExecFile,
               PosixToProgram((moved / kScheduleFolder / u8"見本の予定.GPI").string()).c_str());
  EXPECT_STREQ(ApliPath(0),
               PosixToProgram((moved / kScheduleFolder / u8"予定表 千里万象.exe").string()).c_str());
  // On its first day, 21 November 2026, its second line is from 10 to 12.
  const LocalTime ten{2026, 11, 21, 6, 10, 0, 0, 0};
  SclAlarmsForget();
  EXPECT_EQ(SclTickCheck(ten), 1);
  EXPECT_EQ(SclAlarm.announce, 2);
  SclAlarmsForget();
  StateReset(Schedule);
  ApliListFree();
  StateReset(Applications);
  fs::remove_all(moved);
}

// The tables and the cast of a scenario, read as the program does.
class SampleScenarioTest : public DataSetTest {
 protected:
  void SetUp() override {
    DataSetTest::SetUp();
    StateReset(SnryList);
    StateReset(SnryMain);
    StateReset(SnryScene);
    WorkBlocksAllocate();
    char world[kRootPathSize];
    SnryWorldPath(world, sizeof world);
    ASSERT_TRUE(FolderSetCurrent(world));
    ASSERT_EQ(SnryListRead(), 0);
    ASSERT_EQ(SnryList.count, 1);
    TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, SnryList.rows[0].folder);
    ASSERT_EQ(SnryMainRead(), 0);
  }
  void TearDown() override {
    ScopeBlockFree();
    CastBlockFree();
    fs::current_path(before_);
    DataSetTest::TearDown();
  }

 private:
  fs::path before_ = fs::current_path();
};

TEST_F(SampleScenarioTest, HasTwoFoldersOfFiveScenesAndACast) {
  EXPECT_STREQ(SnryList.rows[0].title, "どんぐりの森");
  EXPECT_STREQ(SnryMain.title, "どんぐりの森");
  ASSERT_EQ(SnryMain.folderCount, 2);
  EXPECT_EQ(SnryMain.sceneCounts[0], 3);
  EXPECT_EQ(SnryMain.sceneCounts[1], 2);
  EXPECT_EQ(SnryMain.paraCount, 6);
  EXPECT_EQ(SnryMain.registeredCount, 7);
  EXPECT_STREQ(SnryMain.castNames[3].text, "月の使い");
  EXPECT_STREQ(SnryMain.charaNames[3].text, "月夜のトビネズミ ツキハ");
  EXPECT_STREQ(SnryMain.motionNames[9].text, "ランダム動作");
  EXPECT_STREQ(SnryMain.labels[6].text, "セーブ");
}

TEST_F(SampleScenarioTest, ItsScenesHaveBackdropsLinesMenusAndRandoms) {
  for (int folder = 0; folder < SnryMain.folderCount; ++folder) {
    for (int scene = 0; scene < SnryMain.sceneCounts[folder]; ++scene) {
      const SnrySceneRec& record = SnryMain.scenes[folder][scene];
      ASSERT_EQ(SnrySceneLoad(folder, scene), 0) << folder << " " << scene;
      EXPECT_GE(SnryCastCount(record), 2);
      EXPECT_EQ(SnryLineAt(0).used, 1);
      EXPECT_GE(SnryScene.menus[0].itemCount, 2);
      EXPECT_EQ(SnryScene.randoms[0].enabled, 1);
      for (const char* file :
           {SnryScene.backdrop.background, SnryScene.backdrop.door, SnryScene.backdrop.window})
        EXPECT_TRUE(fs::exists(Made(kSampleFolder) / u8"背景" / Cp932ToUtf8(file))) << Cp932ToUtf8(file);
    }
  }
  ASSERT_EQ(SnrySceneLoad(0, 0), 0);
  EXPECT_STREQ(SnryScene.backdrop.background, "広場.bmp");
  EXPECT_EQ(SnryScene.events[0].minutes, 3);
  EXPECT_STREQ(SnryScene.sounds[0].file, "小鳥.wav");
  // Two copies of the third member stand behind it.
  const SnrySceneRec& first = SnryMain.scenes[0][0];
  ASSERT_EQ(SnryCastCount(first), 5);
  EXPECT_EQ(first.cast[2], 12);
  EXPECT_EQ(first.cast[3], 513);
  EXPECT_EQ(SnryCastAt(512).master, 12);
}

// --- The sample's map

// The cells with marks: all lines of the market and of the store are done; at the library one
// is begun beside one that is done, at home one is put off beside a done and an open one, and
// the school has an open one only.
TEST_F(DataSetTest, TheSampleScheduleHasAMapWithLinesInAllStates) {
  char path[kRootPathSize];
  RootPath(path, sizeof path, "\\スケジュール表\\見本の予定.GPI");
  ASSERT_EQ(SclLoadFile(path), 0);
  SclMapRead();
  ASSERT_EQ(SclMapPositionCount(), 7);
  EXPECT_EQ(SclStatusCount(), 3);
  EXPECT_STREQ(Sef.stages[3].name, "図書館");
  std::string marks;
  SclMapMarks(
      [](const SclMapMark& mark, void* text) {
        *static_cast<std::string*>(text) += std::to_string(mark.column + 1) + "," +
                                            std::to_string(mark.row + 1) + " " + Sef.types.names[mark.type] +
                                            "; ";
      },
      &marks);
  EXPECT_EQ(marks,
            "5,2 できた; 8,1 とりかかり中; 4,4 とりかかり中; 2,2 あとまわし; 6,5 あとまわし; 9,4 できた; ");
  SclMapPicturesLoad();
  EXPECT_EQ(DibWidth(SclMap.picture), 800);
  EXPECT_EQ(DibHeight(SclMap.picture), 480);
  for (int type = 0; type < 3; ++type) {
    EXPECT_EQ(DibWidth(SclMap.marks[type]), Sef.grid.cellWidth);
    EXPECT_EQ(DibHeight(SclMap.masks[type]), Sef.grid.cellHeight);
  }
  SclMapPicturesFree();
}

TEST_F(DataSetTest, AScheduleThatIsCutIsAFault) {
  Cut(Made(kScheduleFolder) / u8"見本の予定.GPI", 1000);
  EXPECT_TRUE(HasFault(Cp932ToUtf8("見本の予定.GPI is no schedule")));
}

TEST_F(DataSetTest, AMapWithoutItsFilesIsAFault) {
  Cut(Made(kSampleMapFolder) / u8"どんぐり町_1_1.sef", 400);
  EXPECT_TRUE(HasFault(Cp932ToUtf8("見本の予定.GPI: the files of its map cannot be read")));
  EXPECT_TRUE(HasFault(Cp932ToUtf8("見本の予定.GPI: line 1 stands at no place of its map")));
  EXPECT_TRUE(HasFault(Cp932ToUtf8("見本の予定.GPI: line 1 has a status that its map does not know")));
}

TEST_F(DataSetTest, AMapWithoutItsPictureOrAMarkIsAFault) {
  Cut(Made(kSampleMapFolder) / kBackgroundFolder / u8"どんぐり町.bmp", 20);
  Cut(Made(kCharacterFolder) / u8"Chara26_2.bmp", 20);
  EXPECT_TRUE(HasFault(Cp932ToUtf8("見本の予定.GPI: its map has no picture")));
  EXPECT_TRUE(HasFault(Cp932ToUtf8("見本の予定.GPI: status 2 has no mark")));
}

TEST_F(DataSetTest, HoldsEveryFileByItsName) {
  const std::map<std::string, Bytes> files = AllFiles(Made(""));
  std::size_t expected = 4 + 2 + 2 + Sounds().size();  // data files, world list, plans
  for (const char* name : {"mirrell_sys_file.svs", "mirrell_chara_file.dcx", "mirrell_calen_file.dcd",
                           "mirrell_ClcAlmPerFile.clc"}) {
    EXPECT_TRUE(files.contains(name)) << name;
  }
  for (const char* name : {"スケジュール表/見本の予定.GPI", "どんぐり町/どんぐり町_1_1.sef",
                           "どんぐり町/どんぐり町.wef", "どんぐり町/背景/どんぐり町.bmp"}) {
    ++expected;
    EXPECT_TRUE(files.contains(Cp932ToUtf8(name))) << Cp932ToUtf8(name);
  }
  for (const char* name :
       {"ワールド/SNRYLIST.sli", "どんぐりの森/シナリオメイン.cff", "どんぐりの森/森の朝/広場.scd",
        "どんぐりの森/森の朝/川べり.scd", "どんぐりの森/森の朝/書庫.scd", "どんぐりの森/星の夜/丘.scd",
        "どんぐりの森/星の夜/星の広場.scd"}) {
    ++expected;
    EXPECT_TRUE(files.contains(Cp932ToUtf8(name))) << Cp932ToUtf8(name);
  }
  expected += std::size(kSamplePictures) + std::size(kSampleSounds);
  const std::string pictures = Cp932ToUtf8("キャラクタ/");
  for (const CastMember& member : Cast()) {
    const std::string stem = pictures + "Chara" + std::to_string(member.number);
    EXPECT_TRUE(files.contains(stem + ".dwc")) << stem;
    for (std::size_t frame = 1; frame <= member.frames.size(); ++frame) {
      EXPECT_TRUE(files.contains(stem + "_" + std::to_string(frame) + ".bmp")) << stem << frame;
      EXPECT_TRUE(files.contains(stem + "_" + std::to_string(frame) + "x.bmp")) << stem << frame;
    }
    expected += 1 + 2 * member.frames.size();
  }
  for (const char* name :
       {"旗印.wav", "foot1.wav", "foot2.wav", "ringout.wav", "kan.wav", "po2.wav", "nya.wav"}) {
    EXPECT_TRUE(files.contains(Cp932ToUtf8(std::string("サウンド/") + name))) << name;
  }
  for (const char* name : {"学習計画.GPP", "筋トレ計画.GPP"}) {
    EXPECT_TRUE(files.contains(Cp932ToUtf8(std::string("計画表/") + name))) << name;
  }
  for (const Background& background : Backgrounds())
    EXPECT_TRUE(files.contains(Cp932ToUtf8(std::string("背景/") + background.file))) << background.file;
  expected += Backgrounds().size();
  EXPECT_EQ(files.size(), expected);
}

TEST_F(DataSetTest, SameAssetsAndDateGiveTheSameFiles) {
  const fs::path again = TestFolder("again");
  MakeDataSet(again, MIRRELL_ASSETS_DIR, kDate);
  EXPECT_TRUE(AllFiles(Made("")) == AllFiles(again));
  fs::remove_all(again);
}

TEST_F(DataSetTest, CharacterFileHoldsTheFactoryCast) {
  ASSERT_EQ(CharaFileRead(), 0);
  ASSERT_EQ(CharaTables.MainCharaCount, 4);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(CharaTables.MainCharas[i].charaNo, i + 1);
    EXPECT_EQ(CharaTables.MainCharas[i].menuFrame, 1);
    EXPECT_EQ(CharaTables.MainCharas[i].blinkFrame, 2);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.CharaNo, i + 1);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.WalkStartPoint, 0);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.WalkUse[0], 3);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.EndWait[0], 30);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.WalkFrames[0][0], 1);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.WalkFrames[0][1], 2);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.WalkFrames[0][2], 0);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.EndFrames[0][0], 3);
    EXPECT_EQ(CharaTables.MainCharas[i].charaSet.WalkRow[0], i + 1);
  }
  EXPECT_EQ(CharaTables.MainCharas[0].charaSet.WalkStepX[0], -14);
  EXPECT_EQ(CharaTables.MainCharas[0].charaSet.WalkStepY[0], -12);
  EXPECT_EQ(CharaTables.MainCharas[1].charaSet.WalkPeriod[0], 3);
  EXPECT_EQ(CharaTables.MainCharas[1].charaSet.WalkCount[0], 49);
  EXPECT_EQ(CharaTables.MainCharas[3].charaSet.WalkStepX[0], -28);
  EXPECT_EQ(CharaTables.MainCharas[3].charaSet.WalkCount[0], 24);
  const std::vector<int> alarms(CharaTables.AlarmCharas,
                                CharaTables.AlarmCharas + CharaTables.AlarmCharaCount);
  EXPECT_EQ(alarms, (std::vector<int>{6, 8, 9}));
  ASSERT_EQ(CharaTables.WalkCharaCount, 4);
  ASSERT_EQ(CharaTables.ClockDesignCount, 4);
  const char* const walkSounds[4] = {"旗印.wav", "foot1.wav", "foot2.wav", "ringout.wav"};
  const char* const clockSounds[4] = {"kan.wav", "kan.wav", "po2.wav", "nya.wav"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(CharaTables.WalkCharas[i].number, 10 + i);
    EXPECT_STREQ(CharaTables.WalkCharas[i].sound, walkSounds[i]);
    EXPECT_EQ(CharaTables.WalkFlags[i], 0);
    EXPECT_EQ(CharaTables.ClockDesigns[i].number, 15 + i);
    const ClockDesignRecord& fields = CharaTables.ClockDesigns[i].record;
    EXPECT_STREQ(fields.sound, clockSounds[i]);
    EXPECT_EQ(fields.hourFigures[12][0], 2);
    EXPECT_EQ(fields.hourFigures[12][6], 8);
  }
  EXPECT_EQ(CharaTables.ClockDesigns[0].record.centreX, 72);
  EXPECT_EQ(CharaTables.ClockDesigns[3].record.hand, kHandAmPm);
}

TEST_F(DataSetTest, SettingsHoldTheFactorySettings) {
  ASSERT_EQ(SysFileRead(), 0);
  EXPECT_EQ(Character.CharaIndex, 0);
  EXPECT_EQ(Character.StageX, 500);
  EXPECT_EQ(Character.StageY, 300);
  EXPECT_EQ(Character.AlarmCharaSel[0], 1);
  EXPECT_EQ(Character.AlarmCharaSel[1], 1);
  EXPECT_EQ(Character.AlarmCharaSel[2], 0);
  EXPECT_EQ(Clock.ClockDesign, 255);
  EXPECT_EQ(Clock.ClockShow, 0);
  EXPECT_EQ(Clock.ClockStrikeMode, 1);
  EXPECT_EQ(Clock.ClockSoundOn, 1);
  EXPECT_EQ(Clock.ClockX, 700);
  EXPECT_EQ(Clock.ClockY, 20);
  EXPECT_EQ(Calendar.CalenSel, 0);
  EXPECT_EQ(Calendar.CalenYearCount, 1);
  EXPECT_EQ(Calendar.CalenFirstYear, 26);
  EXPECT_EQ(Calendar.CalenCount, 3);
  EXPECT_EQ(Calendar.CalenX, 700);
  EXPECT_EQ(Calendar.CalenY, 10);
  EXPECT_EQ(Calendar.CalenPageSize, 1);
  EXPECT_EQ(Calendar.CalenNoteMode, 1);
  EXPECT_EQ(Calendar.CalenNearNote, 1);
  EXPECT_EQ(Schedule.DefaultSclName[0], '\0');
  EXPECT_EQ(fs::file_size(Made("mirrell_sys_file.svs")), 172720U);
  // 1 January 2026 is a Thursday; the 1st of February a Sunday.
  EXPECT_EQ(Calendar.CalenMonths[0][0].firstWeekday, 3);
  EXPECT_EQ(Calendar.CalenMonths[0][1].firstWeekday, 6);
}

TEST_F(DataSetTest, CalendarFileHoldsThreeCalendars) {
  ASSERT_EQ(CalenFileRead(), 0);
  ASSERT_EQ(Calendar.CalenCount, 3);
  EXPECT_STREQ(Calendar.CalenNames[0], "月ごとカレンダー");
  EXPECT_STREQ(Calendar.CalenNames[1], "1週間カレンダー(日付縦)");
  EXPECT_STREQ(Calendar.CalenNames[2], "日めくりカレンダー");
  EXPECT_STREQ(Calendar.CalenNames[7], "ユーザー設定カレンダー5");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Calendar.CalenKinds[i], i);
  EXPECT_EQ(Clock.ClockListCount, 4);
  EXPECT_EQ(fs::file_size(Made("mirrell_calen_file.dcd")),
            3986U + 3U * 56064U + 3U * 120U + 3U * 26728U + 302U + 4U + 4U * 104U);
}

// Every month has a background, a fixed figure and two that move.
TEST_F(DataSetTest, EveryMonthOfEveryCalendarHasItsPicture) {
  ASSERT_EQ(CalenFileRead(), 0);
  const char* const kSeasons[] = {"冬.bmp", "冬.bmp", "春.bmp", "春.bmp", "春.bmp", "夏.bmp",
                                  "夏.bmp", "夏.bmp", "秋.bmp", "秋.bmp", "秋.bmp", "冬.bmp"};
  for (int i = 0; i < 3; ++i) {
    for (int month = 0; month < 12; ++month) {
      const CalenMonthPicture& picture = Calendar.CalenSheets[i][month].picture;
      EXPECT_EQ(picture.pictureOn, 1);
      EXPECT_STREQ(picture.background, kSeasons[month]);
      for (int place = 0; place < 3; ++place)
        EXPECT_NE(Calendar.CalenDefinitions[i].charas[month][place], 0) << i << " " << month << " " << place;
    }
  }
}

TEST_F(DataSetTest, CheckFindsAMissingBackground) {
  Remove(Made("") / u8"背景" / u8"春.bmp");
  EXPECT_TRUE(HasFault(Cp932ToUtf8("calendar 1, month 3: the background 春.bmp is not there")));
}

// The day page of the third calendar writes with the figures of character 23.
TEST_F(DataSetTest, CheckFindsAMissingDigit) {
  Remove(MadePicture("Chara23_5.bmp"));
  EXPECT_TRUE(HasFault("calendar 3, digit: character 23 has no frame 5"));
}

TEST_F(DataSetTest, CheckFindsASpoiltMaskOfADigit) {
  Spoil(MadePicture("Chara23_5x.bmp"), 54, 1);
  const std::vector<std::string> faults = CheckDataSet(Made(""));
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0].rfind("character 23 frame 5: the mask is neither black nor white at ", 0), 0U);
}

TEST_F(DataSetTest, ClockAlarmFileHoldsThreePerformances) {
  EXPECT_EQ(ClockAlarmFileRead(), 0);
  EXPECT_EQ(PerformanceTable.ClockPerformanceCount, 3);
  EXPECT_EQ(fs::file_size(Made("mirrell_ClcAlmPerFile.clc")), 29U + 3U * 2008U);
}

TEST_F(DataSetTest, WorldListNamesTheCast) {
  WorldListRead();
  EXPECT_EQ(World.WorldCharaCount, Cast().back().number);
  for (const CastMember& member : Cast()) {
    EXPECT_STREQ(WorldCharaName(member.number), member.name);
    for (std::size_t frame = 0; frame < member.frames.size(); ++frame) {
      EXPECT_STREQ(WorldFrameName(member.number, static_cast<int>(frame) + 1), member.frames[frame]);
    }
  }
  EXPECT_STREQ(WorldCharaName(5), "");
}

TEST_F(DataSetTest, FigureIdsFitTheByteOfAMotion) {
  WorldListRead();
  EXPECT_LE(World.WorldFigureCount, 255);
}

TEST_F(DataSetTest, BlinkKeepsTheOutlineOfTheStandingFrame) {
  for (int number = 1; number <= 4; ++number) {
    const Bytes file = ReadHostFile(MadePicture("Chara" + std::to_string(number) + ".dwc"));
    std::vector<Bytes> frames;
    for (std::size_t place = 1; place < file.size();) {
      const std::size_t size = 4 + 4 * std::size_t{GetBE32(&file[place])};
      frames.emplace_back(file.begin() + static_cast<std::ptrdiff_t>(place),
                          file.begin() + static_cast<std::ptrdiff_t>(place + size));
      place += size;
    }
    ASSERT_EQ(frames.size(), 20U);
    EXPECT_TRUE(frames[2] == frames[0]) << number;
  }
}

TEST_F(DataSetTest, SoundsDoNotClipAndEndSoftly) {
  for (const Sound& sound : Sounds()) {
    const Samples samples = MakeSoundOf(fs::path(MIRRELL_ASSETS_DIR) / "sounds" / sound.recipe);
    int peak = 0;
    for (const int sample : samples) peak = std::max(peak, std::abs(sample));
    EXPECT_GT(peak, 3000) << sound.recipe;
    EXPECT_LE(peak, kPeak) << sound.recipe;
    for (std::size_t i = samples.size() - 20; i < samples.size(); ++i) {
      EXPECT_LT(std::abs(samples[i]), 300) << sound.recipe;
    }
    EXPECT_LT(samples.size(), 3U * kSampleRate) << sound.recipe;
  }
}

TEST_F(DataSetTest, CheckFindsAChangedMask) {
  Spoil(MadePicture("Chara1_2x.bmp"), 54 + 600, 1);
  const std::vector<std::string> faults = CheckDataSet(Made(""));
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0].rfind("character 1 frame 2: the mask is neither black nor white at ", 0), 0U);
}

TEST_F(DataSetTest, CheckFindsAMissingPixelOfAMask) {
  // Three bytes of one white pixel in the lowest row turn black.
  for (std::size_t i = 0; i < 3; ++i) Spoil(MadePicture("Chara16_1x.bmp"), 54 + 30 + i, 1);
  EXPECT_TRUE(HasFault("character 16 frame 1: the outline is not that of the mask"));
}

TEST_F(DataSetTest, CheckFindsAMovedOutlinePoint) {
  Spoil(MadePicture("Chara10.dwc"), 1 + 4 + 1);
  EXPECT_TRUE(HasFault("character 10 frame 1: the outline is not that of the mask"));
}

TEST_F(DataSetTest, CheckFindsAWalkerUnderItsWindowsFrame) {
  // A black pixel in the lowest row of the mask, which the file begins with.
  const fs::path mask = MadePicture("Chara11_1x.bmp");
  for (std::size_t i = 0; i < 3; ++i) Spoil(mask, 54 + 30 + i, 1);
  EXPECT_TRUE(HasFault("character 11 frame 1: the window's frame covers a part of the figure"));
}

TEST_F(DataSetTest, CheckFindsAMissingPicture) {
  Remove(MadePicture("Chara3_3.bmp"));
  EXPECT_TRUE(HasFault("character 3 frame 3: no picture or no mask of 24 bits"));
  EXPECT_TRUE(HasFault("main character 3, blink: character 3 has no frame 3"));
}

TEST_F(DataSetTest, CheckFindsAMissingMask) {
  Remove(MadePicture("Chara9_5x.bmp"));
  EXPECT_TRUE(HasFault("character 9 frame 5: no picture or no mask of 24 bits"));
}

TEST_F(DataSetTest, CheckFindsAPictureOfAnotherSize) {
  // The width in the info header.
  Spoil(MadePicture("Chara6_1.bmp"), 18, -1);
  EXPECT_TRUE(HasFault("character 6 frame 1: picture and mask differ in size"));
}

TEST_F(DataSetTest, CheckFindsAShortOutlineFile) {
  Cut(MadePicture("Chara2.dwc"), 100);
  EXPECT_TRUE(HasFault("character 2: the outline file cannot be read"));
}

TEST_F(DataSetTest, CheckFindsAMissingSound) {
  Remove(Made(kSoundFolder) / "nya.wav");
  EXPECT_TRUE(HasFault("nya.wav: the sound is not there"));
}

TEST_F(DataSetTest, CheckFindsAShortSound) {
  Cut(Made(kSoundFolder) / "kan.wav", 1000);
  EXPECT_TRUE(HasFault("kan.wav: no whole sound"));
}

TEST_F(DataSetTest, CheckFindsEachMissingDataFile) {
  for (const char* name : {"mirrell_sys_file.svs", "mirrell_chara_file.dcx", "mirrell_calen_file.dcd",
                           "mirrell_ClcAlmPerFile.clc"}) {
    Remove(Made(name));
    EXPECT_TRUE(HasFault(std::string(name) + " cannot be read"));
    TearDown();
  }
  Remove(MadePicture("EDTCFLAG.edf"));
  EXPECT_TRUE(HasFault("EDTCFLAG.edf cannot be read"));
}

TEST_F(DataSetTest, CheckFindsAWrongMagicOfTheSettings) {
  Spoil(Made("mirrell_sys_file.svs"), 0);
  EXPECT_TRUE(HasFault("mirrell_sys_file.svs cannot be read"));
}

TEST_F(DataSetTest, CheckFindsSettingsOfAnotherCharacter) {
  Spoil(Made("mirrell_sys_file.svs"), 27);  // MenuFrame
  EXPECT_TRUE(HasFault("the settings hold another main character than its file"));
}

TEST_F(DataSetTest, CheckFindsAFrameThatIsNotThere) {
  // MenuFrame of the first main character: behind magic, count and number.
  Spoil(Made("mirrell_chara_file.dcx"), 23 + 4 + 4 + 3, 15);
  EXPECT_TRUE(HasFault("main character 1, menu: character 1 has no frame 17"));
}

TEST_F(DataSetTest, StickersAreTheFramesOfTheirCharacter) {
  ASSERT_EQ(CalenFileRead(), 0);
  ASSERT_EQ(CalenStickerCount(), 20);
  for (int i = 0; i < 20; ++i) {
    int chara = 0;
    int figure = 0;
    CalenSticker(i, &chara, &figure);
    EXPECT_EQ(chara, 20);
    EXPECT_EQ(figure, i);
  }
  EXPECT_EQ(ReadHostFile(MadePicture("Chara20.dwc")).size(), 1U + 20U * 4U);
}

TEST_F(DataSetTest, CheckFindsAMissingSticker) {
  Remove(MadePicture("Chara20_7.bmp"));
  EXPECT_TRUE(HasFault("sticker 7: character 20 has no frame 7"));
}

TEST_F(DataSetTest, CheckFindsAMonthOfAnotherYear) {
  Spoil(Made("mirrell_calen_file.dcd"), 3986 + 1);  // weekday of 1 January
  EXPECT_TRUE(HasFault("calendar 1: month 1 is not one of its year"));
}

TEST_F(DataSetTest, CheckFindsAFrameThatIsNotInUse) {
  // Figure id of frame 1 of character 1, low byte.
  const fs::path file = MadePicture("EDTCDATA.edf");
  Spoil(file, 1440, -1);
  EXPECT_TRUE(HasFault("character 1 frame 1: not in use"));
}

TEST_F(DataSetTest, MakingRefusesADrawingWithOtherFrames) {
  const fs::path folder = TestFolder("frames");
  fs::create_directories(folder);
  const CastMember member{77, Role::Main, "X", {"one", "two"}};
  WriteHostFile(folder / "x.svg", ReadHostFile(fs::path(MIRRELL_ASSETS_DIR) / "characters" / "chara10.svg"));
  try {
    WriteCharacter(member, folder / "x.svg", folder);
    ADD_FAILURE();
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), (folder / "x.svg").string() + ": has 3 frames, expected are 2");
  }
  fs::remove_all(folder);
}

TEST_F(DataSetTest, MakingNamesDrawingAndFrameOfABadFigure) {
  const fs::path folder = TestFolder("pieces");
  fs::create_directories(folder);
  const std::string drawing =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><g class=\"frame\" id=\"frame1\">"
      "<rect x=\"1\" y=\"1\" width=\"2\" height=\"2\"/><rect x=\"5\" y=\"5\" width=\"1\" "
      "height=\"1\"/></g></svg>";
  WriteHostFile(folder / "x.svg", Bytes(drawing.begin(), drawing.end()));
  try {
    WriteCharacter({77, Role::Main, "X", {"one"}}, folder / "x.svg", folder);
    ADD_FAILURE();
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), (folder / "x.svg").string() +
                                ": frame 1: the figure is in pieces: 4 pixels from 1,1, 1 pixels from 5,5");
  }
  fs::remove_all(folder);
}

TEST_F(DataSetTest, MakingFailsWithoutAssets) {
  const fs::path folder = TestFolder("none");
  EXPECT_THROW(MakeDataSet(folder, folder / "assets", kDate), std::runtime_error);
  fs::remove_all(folder);
}

TEST(UseProgramFolder, PathsBeyondTheRootBufferAreRefused) {
  EXPECT_THROW(UseProgramFolder("/tmp/" + std::string(400, 'x')), std::runtime_error);
}
