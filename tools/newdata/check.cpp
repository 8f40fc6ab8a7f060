// Reads a data set back with the product's own readers and compares what belongs
// together.
#include <cstring>
#include <iterator>
#include <memory>
#include <set>

#include "character/character.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/outline.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "newdata/data_set.h"
#include "newdata/host_file.h"
#include "newdata/outline_file.h"
#include "newdata/polygon.h"
#include "platform/posix/posix_paths.h"
#include "schedule/model/scl_file.h"
#include "schedule/plan/plan_file.h"
#include "schedule/rates/scl_map.h"
#include "services/data_file.h"
#include "services/dib.h"
#include "services/record.h"
#include "shell/settings.h"
#include "world/wef_file.h"
#include "world/world_list.h"

namespace {

struct DibFreer {
  void operator()(unsigned char* image) const { DibFree(image); }
};
using Dib = std::unique_ptr<unsigned char, DibFreer>;

// In the info header of a picture.
struct BitCount {
  std::uint16_t bits;
};

template <class Io>
constexpr void Fields(Io& io, BitCount& count) {
  io.At(14);
  io.LE16(count.bits);
}

// The end of a sound's header.
struct SoundSize {
  std::uint32_t dataBytes;
};

template <class Io>
constexpr void Fields(Io& io, SoundSize& size) {
  io.At(40);
  io.LE32(size.dataBytes);
}

constexpr OutlineKind kStage = OutlineKind::Stage;
constexpr OutlineKind kWalker = OutlineKind::Walker;
constexpr OutlineKind kBare = OutlineKind::Bare;

class Checker {
 public:
  explicit Checker(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::vector<std::string> Run() {
    if (!ReadDataFiles()) return faults_;  // nothing to compare
    for (int i = 0; i < CharaTables.MainCharaCount; ++i)
      CheckCharacter(CharaTables.MainCharas[i].charaNo, &kStage);
    for (int i = 0; i < CharaTables.AlarmCharaCount; ++i) CheckCharacter(CharaTables.AlarmCharas[i], &kBare);
    for (int i = 0; i < CharaTables.WalkCharaCount; ++i)
      CheckCharacter(CharaTables.WalkCharas[i].number, &kWalker);
    for (int i = 0; i < CharaTables.ClockDesignCount; ++i)
      CheckCharacter(CharaTables.ClockDesigns[i].number, &kBare);
    CheckStickers();
    CheckMainCharacters();
    CheckDesigns();
    CheckSettings();
    CheckCalendars();
    CheckPlans();
    CheckSchedules();
    for (const std::string& sound : sounds_) CheckSound(sound);
    return faults_;
  }

 private:
  void Fault(const std::string& text) { faults_.push_back(text); }

  void Demand(bool good, const std::string& text) {
    if (!good) Fault(text);
  }

  bool ReadDataFiles() {
    // In the order of the program's start: the settings hold a count of the calendars too.
    SetDateDefaults();
    FileResult.FileStatus = 0;  // a wrong magic is told by it alone
    Demand(SysFileRead() == 0 && FileResult.FileStatus == 0, "mirrell_sys_file.svs cannot be read");
    Demand(CalenFileRead() == 0, "mirrell_calen_file.dcd cannot be read");
    Demand(CharaFileRead() == 0, "mirrell_chara_file.dcx cannot be read");
    Demand(ClockAlarmFileRead() == 0, "mirrell_ClcAlmPerFile.clc cannot be read");
    World.WorldCharaCount = 0;
    WorldListRead();
    Demand(World.WorldCharaCount > 0, "EDTCFLAG.edf cannot be read");
    return faults_.empty();
  }

  // The pixels of a mask; an empty set when it is no mask.
  PixelSet ReadMask(ImageHandle mask, const std::string& name) {
    PixelSet figure(DibWidth(mask), DibHeight(mask));
    const unsigned char* bits = DibBits(mask);
    const int rowBytes = (figure.width * 3 + 3) / 4 * 4;
    for (int y = 0; y < figure.height; ++y) {
      const unsigned char* row = bits + static_cast<std::ptrdiff_t>(rowBytes) * (figure.height - 1 - y);
      for (int x = 0; x < figure.width; ++x) {
        const int sum = row[3 * x] + row[3 * x + 1] + row[3 * x + 2];
        if (sum != 0 && sum != 3 * 255) {
          Fault(name + ": the mask is neither black nor white at " + std::to_string(x) + "," +
                std::to_string(y));
          return {};
        }
        figure.Set(x, y, sum == 0);
      }
    }
    return figure;
  }

  static bool Is24Bit(ImageHandle image) {
    BitCount count;
    return DibBits(image) != nullptr && RecordTake(count, image, RecordSize<BitCount>()) && count.bits == 24;
  }

  void CheckFrame(int number, int frame, const Outline& outline, const OutlineKind* kind) {
    const std::string name = "character " + std::to_string(number) + " frame " + std::to_string(frame + 1);
    const Dib picture(DibLoad(CharaBmpPath(number - 1, frame)));
    const Dib mask(DibLoad(CharaMaskPath(number - 1, frame)));
    const char* title = WorldFrameName(number, frame + 1);
    if (!picture && !mask && title[0] == '\0') {
      Demand(outline.count == 0, name + ": an outline without a picture");
      return;
    }
    Demand(title[0] != '\0', name + ": no name");
    Demand(number <= World.WorldCharaCount && World.WorldCharas[number - 1].figureIds[frame] != 0,
           name + ": not in use");
    if (!Is24Bit(picture.get()) || !Is24Bit(mask.get())) {
      Fault(name + ": no picture or no mask of 24 bits");
      return;
    }
    if (DibWidth(picture.get()) != DibWidth(mask.get()) ||
        DibHeight(picture.get()) != DibHeight(mask.get())) {
      Fault(name + ": picture and mask differ in size");
      return;
    }
    const PixelSet figure = ReadMask(mask.get(), name);
    if (figure.width == 0 || !kind) return;
    if (*kind == OutlineKind::Walker) CheckRoomForFrame(figure, name);
    Polygon polygon;
    for (int i = 0; i < outline.count; ++i) {
      polygon.push_back(CornerOfPoint(outline.points[i].x, outline.points[i].y, figure.height, *kind));
    }
    for (const Probe probe : {Probe::Corner, Probe::Middle}) {
      if (PolygonPixels(polygon, figure.width, figure.height, probe) != figure) {
        Fault(name + ": the outline is not that of the mask");
        return;
      }
    }
  }

  // A walker's window is as large as its picture and has its frame inside: what
  // stands in the last rows and columns would be frame, not figure.
  void CheckRoomForFrame(const PixelSet& figure, const std::string& name) {
    for (int y = 0; y < figure.height; ++y) {
      for (int x = 0; x < figure.width; ++x) {
        const bool hidden = x >= figure.width - 2 * kWalkerFrame || y >= figure.height - 2 * kWalkerFrame;
        if (!hidden || !figure.At(x, y)) continue;
        Fault(name + ": the window's frame covers a part of the figure");
        return;
      }
    }
  }

  // `kind` is null for a character without outlines.
  void CheckCharacter(int number, const OutlineKind* kind) {
    const std::string name = "character " + std::to_string(number);
    if (number < 1) {
      Fault("a character has the number " + std::to_string(number));
      return;
    }
    Demand(WorldCharaName(number)[0] != '\0', name + ": no name");
    static Outline outlines[kFrameMax];
    if (OutlineReadAll(number - 1, outlines) != 0) {
      Fault(name + ": the outline file cannot be read");
      return;
    }
    for (int frame = 0; frame < kFrameMax; ++frame) CheckFrame(number, frame, outlines[frame], kind);
    DemandFrame(number, 0, name);
  }

  // A frame, counted from 0, that something plays.
  void DemandFrame(int number, int frame, const std::string& what) {
    const Dib picture(frame >= 0 && frame < kFrameMax ? DibLoad(CharaBmpPath(number - 1, frame)) : nullptr);
    Demand(picture != nullptr,
           what + ": character " + std::to_string(number) + " has no frame " + std::to_string(frame + 1));
  }

  void CheckStickers() {
    std::set<int> charas;
    Demand(CalenStickerCount() > 0, "there is no sticker");
    for (int i = 0; i < CalenStickerCount(); ++i) {
      int chara = 0;
      int figure = 0;
      CalenSticker(i, &chara, &figure);
      charas.insert(chara);
      DemandFrame(chara, figure, "sticker " + std::to_string(i + 1));
    }
    for (const int chara : charas) CheckCharacter(chara, nullptr);
  }

  void CheckMainCharacters() {
    Demand(CharaTables.MainCharaCount > 0, "there is no main character");
    for (int i = 0; i < CharaTables.MainCharaCount; ++i) {
      const MainChara& main = CharaTables.MainCharas[i];
      const std::string name = "main character " + std::to_string(i + 1);
      DemandFrame(main.charaNo, main.menuFrame, name + ", menu");
      DemandFrame(main.charaNo, main.blinkFrame, name + ", blink");
      for (const auto* pattern : {&main.bored1Frames, &main.bored2Frames}) {
        for (const std::int32_t frame : *pattern) {
          if (frame < 0) break;
          DemandFrame(main.charaNo, frame, name + ", bored");
        }
      }
      Demand(main.charaSet.CharaNo == main.charaNo, name + ": its record has another number");
      CheckWalk(main.charaSet, i, name + ", walk");
    }
  }

  void CheckWalk(const CharaSetRecord& set, int place, const std::string& name) {
    const int row = set.WalkRow[0];
    if (row < 1 || row > CharaTables.WalkCharaCount || place >= CharaTables.WalkCharaCount) {
      Fault(name + ": there is no walking character");
      return;
    }
    for (int i = 0; i < kCharaSetFrames; ++i) {
      if (set.WalkFrames[0][i] != 0)
        DemandFrame(CharaTables.WalkCharas[place].number, set.WalkFrames[0][i] - 1, name);
      if (set.EndFrames[0][i] != 0)
        DemandFrame(CharaTables.WalkCharas[place].number, set.EndFrames[0][i] - 1, name);
    }
    Demand(set.WalkFrames[0][0] != 0 && set.EndFrames[0][0] != 0, name + ": no frames");
    for (int i = 0; i < CharaTables.WalkCharaCount; ++i) sounds_.insert(CharaTables.WalkCharas[i].sound);
  }

  void CheckDesigns() {
    Demand(CharaTables.ClockDesignCount > 0, "there is no clock design");
    Demand(Clock.ClockListCount == CharaTables.ClockDesignCount,
           "the calendar file lists other clock designs");
    for (int i = 0; i < CharaTables.ClockDesignCount; ++i) {
      const ClockDesignRecord& fields = CharaTables.ClockDesigns[i].record;
      for (const auto& hour : fields.hourFigures) {
        for (const unsigned char figure : hour) {
          if (figure != 0) DemandFrame(CharaTables.ClockDesigns[i].number, figure - 1, "clock design");
        }
      }
      sounds_.insert(fields.sound);
    }
    for (int i = 0; i < PerformanceTable.ClockPerformanceCount; ++i) {
      const char* sound = PerformanceTable.ClockPerformances[i].sound;
      if (sound[0] != '\0') sounds_.insert(sound);
    }
  }

  void CheckSettings() {
    if (Character.CharaIndex < 0 || Character.CharaIndex >= CharaTables.MainCharaCount) {
      Fault("the settings name no main character");
      return;
    }
    const MainChara& main = CharaTables.MainCharas[Character.CharaIndex];
    Demand(Character.MenuFrame == main.menuFrame && Character.BlinkFrame == main.blinkFrame &&
               Character.BlinkSpeedSel == main.blinkSpeedSel && Character.CharaSet == main.charaSet,
           "the settings hold another main character than its file");
    for (const std::int32_t row : Character.AlarmCharaSel) {
      Demand(row >= 0 && row <= CharaTables.AlarmCharaCount,
             "the settings name an alarm character that is not there");
    }
  }

  // The background and the figures that a month shows.
  void CheckMonthPicture(const CalenDefinition& definition, const CalenMonth& block, int month,
                         const std::string& name) {
    if (block.picture.pictureOn == 0) return;
    const std::string background = Cp932ToUtf8(block.picture.background);
    Demand(background.empty() || std::filesystem::is_regular_file(folder_ / kBackgroundFolder / background),
           name + ": the background " + background + " is not there");
    for (int place = 0; place < kDefinitionPlaces; ++place) {
      const int chara = definition.charas[month][place];
      if (chara == 0) continue;
      DemandFrame(chara, definition.figures[month][place], name);
      calendarCharas_.insert(chara);
    }
  }

  // The digits of a page that writes with figures.
  void CheckDigits(const CalenDefinition& definition, const std::string& name) {
    constexpr int kDesignOfFigures = 2;
    constexpr int kDigits = 10;
    if (definition.design < kDesignOfFigures) return;
    for (const int chara : {definition.figureSet1, definition.figureSet2}) {
      if (chara == 0) continue;
      for (int digit = 0; digit < kDigits; ++digit) DemandFrame(chara, digit, name + ", digit");
      calendarCharas_.insert(chara);
    }
  }

  void CheckCalendars() {
    Demand(Calendar.CalenCount > 0 && Calendar.CalenSel >= 0 && Calendar.CalenSel < Calendar.CalenCount,
           "there is no calendar");
    for (int i = 0; i < Calendar.CalenCount; ++i) {
      const std::string name = "calendar " + std::to_string(i + 1);
      Demand(Calendar.CalenNames[i][0] != '\0', name + ": no name");
      Demand(Calendar.CalenDefinitions[i].valid == 1, name + ": not valid");
      Demand(Calendar.CalenDefinitions[i].ruleKinds[0] != 0, name + ": no holiday rules");
      CheckDigits(Calendar.CalenDefinitions[i], name);
      for (int month = 0; month < kMonthsOfYear; ++month) {
        const CalenMonth& block = Calendar.CalenSheets[i][month];
        Demand(block.days == SclDaysInMonth(Calendar.CalenFirstYear, month) &&
                   block.firstWeekday == SclFirstWeekday(Calendar.CalenFirstYear, month),
               name + ": month " + std::to_string(month + 1) + " is not one of its year");
        CheckMonthPicture(Calendar.CalenDefinitions[i], block, month,
                          name + ", month " + std::to_string(month + 1));
      }
    }
    for (const int chara : calendarCharas_) CheckCharacter(chara, nullptr);
  }

  // The user's and the samples.
  void CheckPlans() {
    const std::filesystem::path plans = folder_ / kPlanFolder;
    if (!std::filesystem::is_directory(plans)) return;
    for (const auto& item : std::filesystem::directory_iterator(plans)) {
      const std::string path = PosixToProgram(std::filesystem::absolute(item.path()).string());
      Demand(ScpLoadFile(path.c_str()) == 0, item.path().filename().string() + " is no plan");
    }
  }

  void CheckSchedules() {
    const std::filesystem::path schedules = folder_ / kScheduleFolder;
    if (!std::filesystem::is_directory(schedules)) return;
    for (const auto& item : std::filesystem::directory_iterator(schedules)) {
      if (item.path().extension() != ".GPI") continue;
      const std::string path = PosixToProgram(std::filesystem::absolute(item.path()).string());
      const std::string name = item.path().filename().string();
      const bool read = SclLoadFile(path.c_str()) == 0;
      Demand(read, name + " is no schedule");
      if (read && Schedule.SclMapFile[0] != '\0') CheckMap(name);
    }
  }

  // The map that a schedule is tied to, and what its lines are on it.
  void CheckMap(const std::string& name) {
    SclMapRead();
    Demand(SclMapPositionCount() > 0 && SclStatusCount() > 0 && Wef.sceneCount > 0,
           name + ": the files of its map cannot be read");
    SclMapPicturesLoad();
    Demand(DibBits(SclMap.picture) != nullptr, name + ": its map has no picture");
    for (int type = 0; type < SefTypeCount(); ++type) {
      Demand(Sef.types.numbers[type] == 0 || (Is24Bit(SclMap.marks[type]) && Is24Bit(SclMap.masks[type])),
             name + ": status " + std::to_string(Sef.types.numbers[type]) + " has no mark");
    }
    SclMapPicturesFree();
    for (int line = 0; line < Schedule.SclHeader.count; ++line) CheckLine(name, line);
  }

  void CheckLine(const std::string& name, int line) {
    const int column = Schedule.SclMapColumn[line];
    const int row = Schedule.SclMapRow[line];
    const int status = Schedule.SclItemTable[line].doneState;
    const std::string text = name + ": line " + std::to_string(line + 1);
    Demand((column == 0 && row == 0) || SclMapPositionFind(column, row) >= 0,
           text + " stands at no place of its map");
    Demand(status == 0 || SclStatusRowOf(status) >= 0, text + " has a status that its map does not know");
  }

  void CheckSound(const std::string& cp932) {
    const std::string name = Cp932ToUtf8(cp932);
    const std::filesystem::path file = folder_ / kSoundFolder / name;
    if (!std::filesystem::is_regular_file(file)) {
      Fault(name + ": the sound is not there");
      return;
    }
    const Bytes content = ReadHostFile(file);
    constexpr std::size_t kHeader = RecordSize<SoundSize>();
    SoundSize size;
    const bool good = content.size() > kHeader && std::memcmp(content.data(), "RIFF", 4) == 0 &&
                      std::memcmp(content.data() + 8, "WAVEfmt ", 8) == 0 &&
                      RecordTake(size, content.data(), RecordSize<SoundSize>()) &&
                      size.dataBytes == content.size() - kHeader;
    Demand(good, name + ": no whole sound");
  }

  std::filesystem::path folder_;
  std::set<std::string> sounds_;
  std::set<int> calendarCharas_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> CheckDataSet(const std::filesystem::path& folder) {
  UseProgramFolder(folder);
  return Checker(folder).Run();
}
