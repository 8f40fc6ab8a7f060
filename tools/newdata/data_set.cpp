#include "newdata/data_set.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "character/character.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "newdata/host_file.h"
#include "newdata/picture_files.h"
#include "newdata/plan_samples.h"
#include "newdata/sample_map.h"
#include "newdata/sample_scenario.h"
#include "newdata/tables.h"
#include "newdata/world_list_file.h"
#include "platform/posix/posix_paths.h"
#include "platform/posix/test_clock.h"
#include "schedule/applications/application_list.h"
#include "schedule/model/scl_file.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/settings.h"

namespace {

constexpr int kFirstPerformance = 1;

void Demand(int result, const char* file) {
  if (result != 0) {
    throw std::runtime_error(std::string(file) + " cannot be written, result " +
                             std::to_string(FileResult.FileStatus));
  }
}

// The alarms are off; one that is switched on has a performance.
void FillAlarms() {
  for (AlarmSlot& slot : Clock.ClockEvents) {
    slot = AlarmSlot{};
    slot.hour = 7;
    slot.performance = kFirstPerformance;
  }
}

// What the settings file keeps of the current character.
void TakeFirstCharacter() {
  const MainChara& main = CharaTables.MainCharas[0];
  Character.CharaIndex = 0;
  Character.MenuFrame = main.menuFrame;
  Character.BlinkFrame = main.blinkFrame;
  std::copy_n(main.bored1Frames, kBoredFrameCount, Character.Bored1Frames);
  std::copy_n(main.bored2Frames, kBoredFrameCount, Character.Bored2Frames);
  Character.BoredDelaySel = main.boredDelaySel;
  Character.BoredSpeedSel = main.boredSpeedSel;
  Character.BoredRepeatSel = main.boredRepeatSel;
  Character.BlinkSpeedSel = main.blinkSpeedSel;
  Character.CharaSet = main.charaSet;
}

// Nothing has begun to move on the calendar; a data set that was read before would have
// left its figures.
void StillFigures() {
  const auto clear = [](auto&... tables) { (std::memset(tables, 0, sizeof tables), ...); };
  clear(Calendar.CalenFigPhase, Calendar.CalenFigCount, Calendar.CalenFigPos1, Calendar.CalenFigPos2,
        Calendar.CalenFigPeriod, Calendar.CalenFigStep, Calendar.CalenFigTurn, Calendar.CalenFigDir);
}

constexpr char kSampleSchedule[] = "\\スケジュール表\\見本の予定.GPI";

// The samples that a user finds when a file is to be loaded.
void WriteSamples(const DataSetDate& date) {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kSampleSchedule);
  FillSchedule(date.year, date.month, date.day);
  Demand(SclSaveFile(path), "見本の予定.GPI");
}

void WriteDataFiles(const DataSetDate& date) {
  TestClockSet(LocalTime{date.year, date.month, date.day, 0, 0, 0, 0, 0});
  SetDateDefaults();
  CalenStartDefaults();
  SetFactorySettings();
  StillFigures();
  WritePlanSamples();
  TestClockClear();
  FillCharacters();
  FillClocks();
  FillCalendars(date.year);
  FillAlarms();
  // In this order: the writer of the character file sets values that the settings
  // file takes over. The settings file comes last: where it is, the set is whole.
  Demand(CharaFileWrite(), "mirrell_chara_file.dcx");
  TakeFirstCharacter();
  Demand(CalenFileWrite(), "mirrell_calen_file.dcd");
  Demand(ClockAlarmFileWrite(), "mirrell_ClcAlmPerFile.clc");
  WriteSamples(date);
  Demand(SysFileWrite(), "mirrell_sys_file.svs");
}

}  // namespace

void UseProgramFolder(const std::filesystem::path& folder) {
  const std::string path = PosixToProgram(std::filesystem::absolute(folder).lexically_normal().string());
  if (path.size() >= kRootSize) throw std::runtime_error(folder.string() + ": the path is too long");
  TextCopy(Program.RootFolder, kRootSize, path.c_str());
  // A folder that is written with a slash at its end.
  if (path.size() > 3 && path.back() == '\\') Program.RootFolder[path.size() - 1] = '\0';
}

// Whatever carries a schedule out is in the list of applications; its paths lie below the
// program folder, wherever that is going to stand.
void RunSampleSchedule(const std::filesystem::path& folder) {
  UseProgramFolder(folder);
  ApliListFree();
  Applications = {};
  Demand(ApliListSetFirst("スケジュール表\\予定表 千里万象.exe"), "mirrell_apli_list_file.ali");
  Applications.ApliSelected = 1;
  TextCopy(Applications.ApliSchedule.path, kApliPathSize, kSampleSchedule + 1);
  Demand(ApliListSave(), "mirrell_apli_list_file.ali");
}

void MakeDataSet(const std::filesystem::path& folder, const std::filesystem::path& assets,
                 const DataSetDate& date) {
  const std::filesystem::path characters = folder / kCharacterFolder;
  const std::filesystem::path sounds = folder / kSoundFolder;
  std::filesystem::create_directories(characters);
  std::filesystem::create_directories(sounds);
  std::filesystem::create_directories(folder / kPlanFolder);
  std::filesystem::create_directories(folder / kScheduleFolder);
  WriteCharacters(assets / "characters", characters);
  WriteHostFile(characters / "EDTCFLAG.edf", WorldFlagFile(Cast()));
  WriteHostFile(characters / "EDTCDATA.edf", WorldDataFile(Cast()));
  WriteSounds(assets / "sounds", sounds);
  const std::filesystem::path backgrounds = folder / kBackgroundFolder;
  std::filesystem::create_directories(backgrounds);
  WriteBackgrounds(assets / "backgrounds", backgrounds);
  WriteSampleScenario(std::filesystem::absolute(folder), assets);
  WriteSampleMap(folder, assets);
  UseProgramFolder(folder);
  WriteDataFiles(date);
}
