#include "shell/settings.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <random>
#include <set>

#include "character/character.h"
#include "character/character_tables.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "platform/posix/faults.h"
#include "platform/posix/files_opened.h"
#include "platform/posix/posix_paths.h"
#include "schedule/model/schedule.h"
#include "tests/support/byte_order.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/record.h"
#include "services/text.h"
#include "tests/support/failing_writes.h"
#include "tests/support/records.h"

namespace {

constexpr int kTotal = 172720;
const std::string kMagic = "Mirrell System File:";

// The layout of the file, row by row with its offset.
enum class Kind { Number, Byte, Block, Text, Record };
struct Row {
  const char* name;
  int offset;
  Kind kind;
  void* at;
  int size;   // of one element in the file
  int count;  // elements
  void (*take)(const Row& row, const char* place) = nullptr;
  void (*put)(const Row& row, char* place) = nullptr;
};
// A table of records, which tell themselves how they lie.
template <class T>
Row Records(const char* name, int offset, T* at, int count) {
  const auto take = [](const Row& row, const char* place) {
    for (int i = 0; i < row.count; ++i)
      RecordTake(static_cast<T*>(row.at)[i], place + row.size * i, row.size);
  };
  const auto put = [](const Row& row, char* place) {
    for (int i = 0; i < row.count; ++i) RecordPut(static_cast<T*>(row.at)[i], place + row.size * i, row.size);
  };
  return {name, offset, Kind::Record, at, RecordSize<T>(), count, take, put};
}
const Row kRows[] = {
    {"CharaIndex", 20, Kind::Number, &Character.CharaIndex, 4, 1},
    {"MenuFrame", 24, Kind::Number, &Character.MenuFrame, 4, 1},
    {"BlinkFrame", 28, Kind::Number, &Character.BlinkFrame, 4, 1},
    {"Bored1Frames", 32, Kind::Number, Character.Bored1Frames, 4, 5},
    {"Bored2Frames", 52, Kind::Number, Character.Bored2Frames, 4, 5},
    {"BoredDelaySel", 72, Kind::Number, &Character.BoredDelaySel, 4, 1},
    {"BoredSpeedSel", 76, Kind::Number, &Character.BoredSpeedSel, 4, 1},
    {"BoredRepeatSel", 80, Kind::Number, &Character.BoredRepeatSel, 4, 1},
    {"StageX", 84, Kind::Number, &Character.StageX, 4, 1},
    {"StageY", 88, Kind::Number, &Character.StageY, 4, 1},
    {"AlarmCharaSel", 92, Kind::Number, Character.AlarmCharaSel, 4, 3},
    Records("CharaSet", 104, &Character.CharaSet, 1),
    {"ClockStrikeMode", 780, Kind::Number, &Clock.ClockStrikeMode, 4, 1},
    {"ClockStrikeSel", 784, Kind::Number, &Clock.ClockStrikeSel, 4, 1},
    {"ClockSoundOn", 788, Kind::Number, &Clock.ClockSoundOn, 4, 1},
    {"ClockSoundName", 792, Kind::Text, Clock.ClockSoundName, 300, 1},
    {"ClockShow", 1092, Kind::Byte, &Clock.ClockShow, 1, 1},
    {"ClockDesign", 1093, Kind::Byte, &Clock.ClockDesign, 1, 1},
    {"ClockX", 1094, Kind::Number, &Clock.ClockX, 4, 1},
    {"ClockY", 1098, Kind::Number, &Clock.ClockY, 4, 1},
    {"reserved", 1102, Kind::Number, Clock.ClockReserved, 4, 3},
    {"CalenSel", 1114, Kind::Number, &Calendar.CalenSel, 4, 1},
    {"CalenNames", 1118, Kind::Text, Calendar.CalenNames, 129, 8},
    {"CalenKinds", 2150, Kind::Block, Calendar.CalenKinds, 1, 8},
    {"CalenParts", 2158, Kind::Block, Calendar.CalenParts, 1, 8},
    {"CalenYears", 2166, Kind::Block, Calendar.CalenYears, 1, 3},
    {"CalenShow", 2169, Kind::Byte, &Calendar.CalenShow, 1, 1},
    {"CalenYearPos", 2170, Kind::Number, &Calendar.CalenYearPos, 4, 1},
    {"CalenFirstYear", 2174, Kind::Number, &Calendar.CalenFirstYear, 4, 1},
    {"CalenYearCount", 2178, Kind::Number, &Calendar.CalenYearCount, 4, 1},
    {"CalenCount", 2182, Kind::Number, &Calendar.CalenCount, 4, 1},
    {"CalenKind", 2186, Kind::Number, &Calendar.CalenKind, 4, 1},
    Records("CalenMonths", 2190, Calendar.CalenMonths[0], 36),
    {"CalenX", 170382, Kind::Number, &Calendar.CalenX, 4, 1},
    {"CalenY", 170386, Kind::Number, &Calendar.CalenY, 4, 1},
    {"CalenPageSize", 170390, Kind::Number, &Calendar.CalenPageSize, 4, 1},
    {"CalenNoteMode", 170394, Kind::Number, &Calendar.CalenNoteMode, 4, 1},
    {"CalenNearNote", 170398, Kind::Number, &Calendar.CalenNearNote, 4, 1},
    {"CalenPictureOn", 170402, Kind::Number, &Calendar.CalenPictureOn, 4, 1},
    {"CalenBackColour", 170406, Kind::Block, Calendar.CalenBackColour, 4, 1},
    {"CalenFigPhase", 170410, Kind::Block, Calendar.CalenFigPhase, 30, 2},
    {"CalenFigCount", 170470, Kind::Block, Calendar.CalenFigCount, 1, 2},
    {"CalenFigPos1", 170472, Kind::Number, Calendar.CalenFigPos1, 4, 60},
    {"CalenFigPos2", 170712, Kind::Number, Calendar.CalenFigPos2, 4, 60},
    {"CalenFigPeriod", 170952, Kind::Number, Calendar.CalenFigPeriod, 4, 2},
    {"CalenFigStep", 170960, Kind::Number, Calendar.CalenFigStep, 4, 2},
    {"CalenFigTurn", 170968, Kind::Number, Calendar.CalenFigTurn, 4, 2},
    {"CalenFigDir", 170976, Kind::Block, Calendar.CalenFigDir, 30, 2},
    {"DefaultSclName", 171036, Kind::Text, Schedule.DefaultSclName, 600, 1},
    Records("CalenMonthFlags", 171636, Calendar.CalenMonthFlags[0], 36),
    Records("ClockEvents", 171996, Clock.ClockEvents, 5),
    {"BlinkSpeedSel", 172716, Kind::Number, &Character.BlinkSpeedSel, 4, 1},
};

// Where the elements begin, and the end.
std::vector<int> Boundaries() {
  std::vector<int> all = {0};
  for (const Row& row : kRows) {
    for (int i = 0; i < row.count; ++i) all.push_back(row.offset + row.size * i);
  }
  all.push_back(kTotal);
  return all;
}

// Fills every variable with values of its own and keeps them as file bytes.
std::string FillDistinct(std::uint32_t seed) {
  std::mt19937 random(seed);
  std::string image(kTotal, '\0');
  image.replace(0, kMagic.size(), kMagic);
  for (const Row& row : kRows) {
    for (int i = 0; i < row.count; ++i) {
      char* place = image.data() + row.offset + row.size * i;
      if (row.kind == Kind::Number) {
        const auto value = static_cast<std::uint32_t>(random());
        static_cast<std::int32_t*>(row.at)[i] = static_cast<std::int32_t>(value);
        PutBE32(place, value);
      } else if (row.kind == Kind::Byte) {
        *place = static_cast<char>(random() % 256);
        *static_cast<std::int32_t*>(row.at) = static_cast<unsigned char>(*place);
      } else {
        for (int k = 0; k < row.size; ++k) place[k] = static_cast<char>(random() % 256);
        if (row.kind == Kind::Text) place[row.size - 1] = '\0';
        if (row.kind == Kind::Record) continue;
        std::memcpy(static_cast<char*>(row.at) + row.size * i, place, static_cast<std::size_t>(row.size));
      }
    }
    if (row.kind != Kind::Record) continue;
    row.take(row, image.data() + row.offset);
    row.put(row, image.data() + row.offset);  // the texts inside have an end
  }
  return image;
}

// Gives the variables the values of an image.
void TakeImage(const std::string& image) {
  for (const Row& row : kRows) {
    const char* place = image.data() + row.offset;
    switch (row.kind) {
      case Kind::Number:
        for (int i = 0; i < row.count; ++i) {
          static_cast<std::int32_t*>(row.at)[i] = static_cast<std::int32_t>(GetBE32(place + 4 * i));
        }
        break;
      case Kind::Byte:
        *static_cast<std::int32_t*>(row.at) = static_cast<unsigned char>(*place);
        break;
      case Kind::Record:
        row.take(row, place);
        break;
      default:
        std::memcpy(row.at, place, static_cast<std::size_t>(row.size) * static_cast<std::size_t>(row.count));
    }
  }
}

// The variables as file bytes.
void ImageNow(std::string& image) {
  image.assign(kTotal, '\0');
  image.replace(0, kMagic.size(), kMagic);
  for (const Row& row : kRows) {
    char* place = image.data() + row.offset;
    switch (row.kind) {
      case Kind::Number:
        for (int i = 0; i < row.count; ++i) {
          PutBE32(place + 4 * i, static_cast<std::uint32_t>(static_cast<std::int32_t*>(row.at)[i]));
        }
        break;
      case Kind::Byte:
        *place = static_cast<char>(*static_cast<std::int32_t*>(row.at));
        break;
      case Kind::Record:
        row.put(row, place);
        break;
      default:
        std::memcpy(place, row.at, static_cast<std::size_t>(row.size) * static_cast<std::size_t>(row.count));
    }
  }
}
std::string ImageNow() {
  std::string image;
  ImageNow(image);
  return image;
}

// Where two images differ first; -1 nowhere. Says less than a failed comparison
// of 172,720 bytes.
int FirstDifference(const std::string& a, const std::string& b, int from = 0, int to = kTotal) {
  if (to <= from || std::memcmp(a.data() + from, b.data() + from, static_cast<std::size_t>(to - from)) == 0) {
    return -1;
  }
  for (int i = from; i < to; ++i) {
    if (a[static_cast<std::size_t>(i)] != b[static_cast<std::size_t>(i)]) return i;
  }
  return -1;
}

class SettingsTest : public RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    char path[kRootPathSize];
    SysFilePath(path);
    path_ = path;
    native_ = PosixPath(path);
  }
  // A file with all fields; the variables hold its values too.
  std::string PutDistinct(std::uint32_t seed) {
    std::string image = FillDistinct(seed);
    EXPECT_TRUE(PutFile(path_, image));
    return image;
  }
  void Cut(int size) { ASSERT_EQ(truncate(native_.c_str(), size), 0) << size; }

  std::string path_;
  std::string native_;
};

TEST_F(SettingsTest, ThePathIsTheRootFolderAndTheName) {
  char path[kRootPathSize];
  EXPECT_EQ(SysFilePath(path), 10 + 21);
  EXPECT_STREQ(path, "C:\\mirrell\\mirrell_sys_file.svs");
}

TEST_F(SettingsTest, TheMagicHas20BytesAndNoTerminator) {
  char magic[21];
  std::memset(magic, 'x', sizeof magic);
  EXPECT_EQ(SysFileMagic(magic), 20);
  EXPECT_EQ(std::string(magic, 21), kMagic + "x");
}

TEST_F(SettingsTest, EveryFieldStandsAtItsOffsetAndTheFileHas172720Bytes) {
  const std::string expected = FillDistinct(1);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  const std::string written = FileBytes(path_);
  ASSERT_EQ(written.size(), static_cast<std::size_t>(kTotal));
  EXPECT_EQ(written.substr(0, 20), kMagic);
  int end = 20;
  for (const Row& row : kRows) {
    EXPECT_EQ(row.offset, end) << row.name;
    end = row.offset + row.size * row.count;
    EXPECT_EQ(FirstDifference(written, expected, row.offset, end), -1) << row.name;
  }
  EXPECT_EQ(end, kTotal);
}

TEST_F(SettingsTest, EveryFieldIsReadBackFromItsOffset) {
  const std::string image = PutDistinct(2);
  FillDistinct(3);
  EXPECT_EQ(SysFileRead(), 0);
  for (const Row& row : kRows) {
    if (row.at == &Calendar.CalenPictureOn) continue;
    EXPECT_EQ(FirstDifference(ImageNow(), image, row.offset, row.offset + row.size * row.count), -1)
        << row.name;
  }
}

TEST_F(SettingsTest, CalendarsBeyondTheEighthAreNotInTheFile) {
  PutDistinct(4);
  TextCopy(Calendar.CalenNames[8], kCalenNameSize, "ninth");
  Calendar.CalenKinds[8] = 2;
  Calendar.CalenParts[8] = 3;
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_STREQ(Calendar.CalenNames[8], "ninth");
  EXPECT_EQ(Calendar.CalenKinds[8], 2);
  EXPECT_EQ(Calendar.CalenParts[8], 3);
}

TEST_F(SettingsTest, AFileOf172716BytesReadsWithSuccessAndBlinkSpeedSelAndCalenPictureOnStayAsTheyWere) {
  std::string image = PutDistinct(5);
  PutBE32(image.data() + 170402, 0);  // the picture switch of the file
  PutFile(path_, image.substr(0, 172716));
  Calendar.CalenPictureOn = 0;
  Character.BlinkSpeedSel = 7;
  FileResult.FileStatus = 55;
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, 55);
  EXPECT_EQ(Character.BlinkSpeedSel, 7);
  EXPECT_EQ(Calendar.CalenPictureOn, 0);
  // The switch that the file holds is the one that stays.
  PutBE32(image.data() + 170402, 9);
  PutFile(path_, image.substr(0, 172716));
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(Calendar.CalenPictureOn, 9);
}

TEST_F(SettingsTest, AFileWithItsLastFieldForcesCalenPictureOnTo1) {
  std::string image = PutDistinct(6);
  PutBE32(image.data() + 170402, 0);
  PutFile(path_, image);
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(Calendar.CalenPictureOn, 1);
}

TEST_F(SettingsTest, AFileWithAnotherMagicLeavesAllVariablesAsTheyWereAndTheStartGoesOn) {
  std::string image = PutDistinct(7);
  for (const int at : {0, 10, 19}) {
    std::string other = image;
    other[static_cast<std::size_t>(at)] ^= 1;
    PutFile(path_, other);
    const std::string before = FillDistinct(8);
    FileResult.FileStatus = 0;
    EXPECT_EQ(SysFileRead(), 0);
    EXPECT_EQ(FileResult.FileStatus, -2);
    EXPECT_EQ(FirstDifference(ImageNow(), before), -1);
  }
}

TEST_F(SettingsTest, AMagicThatEndsEarlyInsideItsBytesIsAnotherMagic) {
  std::string image = PutDistinct(9);
  image[19] = '\0';
  PutFile(path_, image);
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, -2);
}

TEST_F(SettingsTest, AMissingFileGivesMinus1AndLeavesTheVariables) {
  const std::string before = FillDistinct(10);
  EXPECT_EQ(SysFileRead(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_EQ(FirstDifference(ImageNow(), before), -1);
}

TEST_F(SettingsTest, AClockDesignOf255InTheFileReadsAs255NotAsMinus1) {
  std::string image = PutDistinct(11);
  image[1093] = '\xFF';
  PutFile(path_, image);
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(Clock.ClockDesign, 255);
  EXPECT_EQ(Clock.ClockWanted, 255);
  image[1093] = '\x80';
  PutFile(path_, image);
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(Clock.ClockDesign, 128);
}

TEST_F(SettingsTest, SavingTwiceGivesByteIdenticalFilesIfNothingChanged) {
  FillDistinct(12);
  EXPECT_EQ(SysFileWrite(), 0);
  const std::string first = FileBytes(path_);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FirstDifference(FileBytes(path_), first), -1);
  EXPECT_EQ(SysFileRead(), 0);
  Calendar.CalenPictureOn = static_cast<std::int32_t>(GetBE32(first.data() + 170402));
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FirstDifference(FileBytes(path_), first), -1);
}

TEST_F(SettingsTest, TheReservedNumbersKeepTheirValues) {
  PutDistinct(13);
  std::memset(Clock.ClockReserved, 0, sizeof Clock.ClockReserved);
  const std::string before = FileBytes(path_);
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FileBytes(path_).substr(1102, 12), before.substr(1102, 12));
}

TEST_F(SettingsTest, PowerLossBetweenDeleteAndRewriteLosesTheFileAndTheNextStartFindsItMissing) {
  PutDistinct(14);
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(SysFileWrite(), -1);
  FaultClear();
  EXPECT_FALSE(FileThere(path_));
  EXPECT_EQ(SysFileRead(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
}

TEST_F(SettingsTest, ATextThatFillsItsFieldIsTerminatedAfterTheReading) {
  std::string image = PutDistinct(15);
  image.replace(792, 300, std::string(300, 'a'));
  image.replace(1118, 1032, std::string(1032, 'b'));
  image.replace(171036, 600, std::string(600, 'c'));
  PutFile(path_, image);
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_EQ(std::strlen(Clock.ClockSoundName), 299U);
  for (int i = 0; i < 8; ++i) EXPECT_EQ(std::strlen(Calendar.CalenNames[i]), 128U);
  EXPECT_EQ(std::strlen(Schedule.DefaultSclName), 599U);
}

// --- The clock's design is taken again between the reserved numbers and the
// calendar.

// The transfers before that place: the magic, the character's part and the clock's.
constexpr int kLastReservedCall = 3;

TEST_F(SettingsTest, EverySaveActivatesTheClockDesignAfterTheReservedNumbers) {
  CharaTables.ClockDesignCount = 3;
  CharaTables.ClockDesigns[2].record.hand = kHandBar;
  Clock.ClockDesign = 2;
  Clock.ClockWanted = 0;
  FaultArm(FaultKind::Write, kLastReservedCall);
  EXPECT_EQ(SysFileWrite(), -1);
  EXPECT_EQ(Clock.ClockHandKind, -1);
  EXPECT_EQ(Clock.ClockWanted, 0);
  FaultArm(FaultKind::Write, kLastReservedCall + 1);
  EXPECT_EQ(SysFileWrite(), -1);
  FaultClear();
  EXPECT_EQ(Clock.ClockHandKind, kHandBar);
  EXPECT_EQ(Clock.ClockWanted, 2);
  EXPECT_EQ(Clock.ClockDesign, 2);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FileBytes(path_)[1093], 2);
}

TEST_F(SettingsTest, EveryReadActivatesTheClockDesignAtTheSamePlaceAndTakesTheWantedCopies) {
  std::string image = FillDistinct(16);
  image[1092] = 1;
  image[1093] = 1;
  PutFile(path_, image);
  CharaTables.ClockDesignCount = 2;
  CharaTables.ClockDesigns[1].record.hand = kHandDot;
  Clock.ClockShowWanted = 0;
  Clock.ClockWanted = 0;
  FaultArm(FaultKind::Read, kLastReservedCall);
  EXPECT_EQ(SysFileRead(), -1);
  EXPECT_EQ(Clock.ClockShowWanted, 0);
  EXPECT_EQ(Clock.ClockHandKind, -1);
  FaultArm(FaultKind::Read, kLastReservedCall + 1);
  EXPECT_EQ(SysFileRead(), -1);
  FaultClear();
  EXPECT_EQ(Clock.ClockShowWanted, 1);
  EXPECT_EQ(Clock.ClockWanted, 1);
  EXPECT_EQ(Clock.ClockDesign, 1);
  EXPECT_EQ(Clock.ClockHandKind, kHandDot);
}

// --- Under attack.

TEST_F(SettingsTest, EveryTruncationIsToldAndKeepsWhatTheFileDidNotReach) {
  const std::string image = PutDistinct(17);
  std::set<int, std::greater<>> sizes;
  for (int size = 0; size < 2200; ++size) sizes.insert(size);
  for (const int boundary : Boundaries()) {
    for (const int size : {boundary - 1, boundary, boundary + 1, boundary + 2}) {
      if (size >= 0 && size < kTotal) sizes.insert(size);
    }
  }
  for (int i = 0; i < 36; ++i) sizes.insert(2190 + 4672 * i + 2336);
  const std::string before = FillDistinct(18);
  std::string now;
  for (const int size : sizes) {
    Cut(size);
    TakeImage(before);
    FileResult.FileStatus = 0;
    const int result = SysFileRead();
    ASSERT_EQ(result, size >= 172716 ? 0 : -1) << size;
    ASSERT_EQ(FileResult.FileStatus, size >= 172716 ? 0 : -2) << size;
    ImageNow(now);
    for (const Row& row : kRows) {
      const int whole = size <= row.offset ? 0 : std::min((size - row.offset) / row.size, row.count);
      const int reached = row.offset + row.size * whole;
      const int end = row.offset + row.size * row.count;
      ASSERT_EQ(FirstDifference(now, image, row.offset, reached), -1) << row.name << " at " << size;
      // Of a block or text that was cut, the bytes that arrived may stand.
      const bool broken = whole < row.count && size > reached && row.kind != Kind::Number;
      const int untouched = broken ? reached + row.size : reached;
      ASSERT_EQ(FirstDifference(now, before, untouched, end), -1) << row.name << " at " << size;
    }
  }
}

// Changes a few bytes of the file, reads it, and puts it back. Returns how many of the rounds read to the
// end.
int MutationRounds(const std::string& native, const std::string& image, int rounds, std::mt19937& random) {
  const int file = open(native.c_str(), O_RDWR | O_CLOEXEC);
  EXPECT_GE(file, 0);
  const auto length = static_cast<unsigned>(image.size());
  int whole = 0;
  for (int round = 0; round < rounds && !::testing::Test::HasFailure(); ++round) {
    unsigned places[4];
    for (unsigned& place : places) {
      place = static_cast<unsigned>(random()) % length;
      const char byte = static_cast<char>(random());
      EXPECT_EQ(pwrite(file, &byte, 1, place), 1);
    }
    // The magic is let through most of the time.
    if (round % 8 != 0) {
      EXPECT_EQ(pwrite(file, image.data(), 20, 0), 20);
    }
    FileResult.FileStatus = 0;
    const int result = SysFileRead();
    EXPECT_TRUE((result == 0 && (FileResult.FileStatus == 0 || FileResult.FileStatus == -2)) ||
                (result == -1 && FileResult.FileStatus == -2))
        << round;
    if (result == 0 && FileResult.FileStatus == 0) ++whole;
    EXPECT_EQ(Clock.ClockSoundName[299], '\0') << round;
    EXPECT_EQ(Schedule.DefaultSclName[599], '\0') << round;
    EXPECT_TRUE(Clock.ClockDesign >= 0 && Clock.ClockDesign <= 255) << round;
    for (const unsigned place : places) EXPECT_EQ(pwrite(file, &image[place], 1, place), 1);
  }
  close(file);
  return whole;
}

TEST_F(SettingsTest, RandomMutationsNeverLeaveTheVariables) {
  const std::string image = PutDistinct(19);
  std::mt19937 random(20);
  // Whole files are large, so most rounds are given to files that end at the months.
  EXPECT_GT(MutationRounds(native_, image, 5000, random), 4000);
  EXPECT_EQ(FirstDifference(FileBytes(path_), image), -1);
  const std::string head = image.substr(0, 2200);
  PutFile(path_, head);
  EXPECT_EQ(MutationRounds(native_, head, 95000, random), 0);
  EXPECT_EQ(FileBytes(path_), head);
}

// Read while nobody may write it; replaced and written with all rights to anybody.
TEST_F(SettingsTest, TheFileIsOpenedInItsModes) {
  PutDistinct(25);
  char path[kRootPathSize];
  SysFilePath(path);
  FilesOpenedClear();
  ASSERT_EQ(SysFileRead(), 0);
  EXPECT_EQ(FilesOpened(), (std::vector<FileOpened>{{path, false, OpenMode::ReadDenyWrite}}));
  FilesOpenedClear();
  ASSERT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FilesOpened(), (std::vector<FileOpened>{{path, false, OpenMode::ReadWrite},
                                                    {path, true, OpenMode::ReadWrite},
                                                    {path, false, OpenMode::ReadWrite}}));
}

// The magic, and one for each of the seven parts.
constexpr int kTransfers = 8;

TEST_F(SettingsTest, EveryWriteCallThatFailsGivesMinus1AndFileStatusMinus2) {
  FillDistinct(21);
  EXPECT_EQ(FailingWrites(SysFileWrite, -1), kTransfers);
}

TEST_F(SettingsTest, EveryReadCallThatFailsGivesMinus1ButTheLast) {
  PutDistinct(22);
  for (int nth = 1; nth <= kTransfers; ++nth) {
    FaultArm(FaultKind::Read, nth);
    FileResult.FileStatus = 0;
    EXPECT_EQ(SysFileRead(), nth == kTransfers ? 0 : -1) << nth;
    EXPECT_EQ(FileResult.FileStatus, nth == kTransfers ? 0 : -2) << nth;
    EXPECT_TRUE(FaultWasMet()) << nth;
  }
  FaultArm(FaultKind::Read, kTransfers + 1);
  EXPECT_EQ(SysFileRead(), 0);
  EXPECT_FALSE(FaultWasMet());
}

TEST_F(SettingsTest, AFileThatDoesNotOpenForTheTestIsMadeAnewAndOneThatDoesNotReopenGivesMinus1) {
  const std::string image = PutDistinct(23);
  FaultArm(FaultKind::Open, 1);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FirstDifference(FileBytes(path_), image), -1);
  FaultArm(FaultKind::Open, 2);
  EXPECT_EQ(SysFileWrite(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultArm(FaultKind::Open, 3);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_FALSE(FaultWasMet());
  FaultArm(FaultKind::Open, 1);
  EXPECT_EQ(SysFileRead(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
}

TEST_F(SettingsTest, AFileThatCannotBeCreatedGivesMinus1AndFileStatusMinus1) {
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(SysFileWrite(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultArm(FaultKind::Create, 2);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_FALSE(FaultWasMet());
}

TEST_F(SettingsTest, AFileThatCannotBeDeletedIsOverwritten) {
  const std::string image = PutDistinct(24);
  PutFile(path_, image + "tail");
  FaultArm(FaultKind::Delete, 1);
  EXPECT_EQ(SysFileWrite(), 0);
  EXPECT_EQ(FileBytes(path_).size(), static_cast<std::size_t>(kTotal));
}

}  // namespace
