// The pictures of the month on show, the figures that move over it, and the
// announcement of notes.
#include <cstring>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "platform/diagnostics.h"
#include "platform/posix/test_clock.h"
#include "services/random.h"
#include "services/today.h"
#include "tests/character/chara_files.h"
#include "tests/support/records.h"
#include "world/world_list.h"

namespace {

int TickCheck() {
  SharedTimeTake();
  return CalenTickCheck();
}

int NoteCheck() {
  SharedTimeTake();
  return CalenNoteCheck();
}

class CalendarFiguresTest : public CharaFiles {
 protected:
  void SetUp() override {
    CharaFiles::SetUp();
    ClearRecords();
    Today.TodayYear = 26;
    Today.TodayMonth = 10;
    Calendar.CalenMonthPos = 10;
    Calendar.CalenPictureOn = 1;
    Calendar.CalenPageSize = 1;  // the page is 200 wide, its picture 195 high
    CalenYearsSet(26);
    Calendar.CalenYearCount = 1;
    for (int month = 0; month < 12; ++month) Picture(month).pictureOn = 1;
  }
  void TearDown() override {
    CalenStickersFree();
    ClearRecords();
    CharaFiles::TearDown();
  }
  static CalenMonthPicture& Picture(int month) { return Calendar.CalenMonths[0][month].picture; }
  // Gives a place of a month a figure: frame 0 of a character, start 50, 60.
  static void Figure(int place, int chara, int frame = 0, int mode = 0, int month = 10) {
    CalenDefinition& definition = Calendar.CalenDefinitions[0];
    definition.charas[month][place] = static_cast<std::uint16_t>(chara);
    definition.figures[month][place] = static_cast<std::uint8_t>(frame);
    definition.figureModes[month][place] = static_cast<std::uint8_t>(mode);
    definition.startX[month][place] = 50;
    definition.startY[month][place] = 60;
  }
  // Figure 0 is 20 pixels high and takes a step of its height every 50 ticks.
  void Walker(int direction, int stepCode = 5) {
    Put("\\キャラクタ\\Chara5_1.bmp", BmpFile(10, 20));
    Figure(0, 5);
    Picture(10).directions[0] = static_cast<std::uint8_t>(direction);
    Picture(10).steps[0] = static_cast<std::uint8_t>(stepCode);
    CalenPrepareMonth();
  }
  // Ticks until the figure's next move; returns whether it moved.
  static bool Move() {
    for (int tick = 1; tick < 50; ++tick) {
      if (CalenFiguresMove()) ADD_FAILURE() << "moved at tick " << tick;
    }
    return CalenFiguresMove();
  }
  static std::string Place() {
    return std::to_string(Calendar.CalenFigPos1[0][0]) + "," + std::to_string(Calendar.CalenFigPos1[0][1]);
  }
};

TEST_F(CalendarFiguresTest, BackgroundAndFiguresOfTheMonthAreLoaded) {
  MakeFolder(InProgram("背景"));
  Put("\\背景\\sea.bmp", BmpFile(30, 40));
  Put("\\キャラクタ\\Chara5_3.bmp", BmpFile(10, 20));
  Put("\\キャラクタ\\Chara5_3x.bmp", BmpFile(10, 20, 255, 255, 255));
  Put("\\キャラクタ\\Chara6_1.bmp", BmpFile(11, 21));
  std::memcpy(Picture(10).background, "sea.bmp", 8);
  Figure(0, 5, 2);
  Figure(2, 6);
  CalenPrepareMonth();
  EXPECT_EQ(DibWidth(CalendarPictures.CalenBackground), 30);
  EXPECT_EQ(DibHeight(CalendarPictures.CalenFigures[0].picture), 20);
  EXPECT_NE(CalendarPictures.CalenFigures[0].mask, nullptr);
  EXPECT_EQ(DibBits(CalendarPictures.CalenFigures[0].picture)[0], 0);  // the white mask has blackened it
  EXPECT_EQ(CalendarPictures.CalenFigures[1].picture, nullptr);
  EXPECT_EQ(DibHeight(CalendarPictures.CalenFigures[2].picture), 21);
  Calendar.CalenMonthPos = 3;
  CalenPrepareMonth();
  EXPECT_EQ(CalendarPictures.CalenBackground, nullptr);
  EXPECT_EQ(CalendarPictures.CalenFigures[0].picture, nullptr);
}

TEST_F(CalendarFiguresTest, ABackgroundIsTakenByItsFullPathAndNotAtAllWithTheColourFlag) {
  Put("\\own.bmp", BmpFile(30, 40));
  std::memcpy(Picture(10).background, "C:\\mirrell\\own.bmp", 19);
  CalenPrepareMonth();
  EXPECT_EQ(DibHeight(CalendarPictures.CalenBackground), 40);
  Picture(10).colourOnly = 1;
  CalenPrepareMonth();
  EXPECT_EQ(CalendarPictures.CalenBackground, nullptr);
  Picture(10).colourOnly = 0;
  Picture(10).pictureOn = 0;
  CalenPrepareMonth();
  EXPECT_EQ(CalendarPictures.CalenBackground, nullptr);
  // A field without a terminator names no file.
  Picture(10).pictureOn = 1;
  std::memset(Picture(10).background, 'x', kMonthBackgroundSize);
  CalenPrepareMonth();
  EXPECT_EQ(CalendarPictures.CalenBackground, nullptr);
}

// Of the drive in force, and of a drive that is named.
TEST_F(CalendarFiguresTest, APathFromTheRootIsAFullPathToo) {
  Put("\\own.bmp", BmpFile(30, 40));
  std::memcpy(Picture(10).background, "\\mirrell\\own.bmp", 17);
  CalenPrepareMonth();
  EXPECT_EQ(DibHeight(CalendarPictures.CalenBackground), 40);
  // A name that only looks like one is a file of the folder.
  MakeFolder(InProgram("背景"));
  Put("\\背景\\own.bmp", BmpFile(30, 41));
  std::memcpy(Picture(10).background, "own.bmp", 8);
  CalenPrepareMonth();
  EXPECT_EQ(DibHeight(CalendarPictures.CalenBackground), 41);
}

// What has been taken away meanwhile is still shown; another month is loaded.
TEST_F(CalendarFiguresTest, WhatTheReadingOfTheFileHasLoadedIsNotLoadedAgainByTheWindow) {
  Put("\\キャラクタ\\Chara5_1.bmp", BmpFile(10, 20));
  Put("\\キャラクタ\\Chara6_1.bmp", BmpFile(11, 21));
  Figure(0, 5);
  Figure(0, 6, 0, 0, 11);
  CalenTakeDefinition();
  RemoveFile("C:\\mirrell\\キャラクタ\\Chara5_1.bmp");
  CalenShowToday();
  EXPECT_EQ(DibHeight(CalendarPictures.CalenFigures[0].picture), 20);
  Today.TodayMonth = 11;
  CalenShowToday();
  EXPECT_EQ(DibHeight(CalendarPictures.CalenFigures[0].picture), 21);
  CalenStickersFree();
  CalenShowToday();
  EXPECT_EQ(DibHeight(CalendarPictures.CalenFigures[0].picture), 21);
}

TEST_F(CalendarFiguresTest, ThePicturesOfTheNewMonthAreShownAfterTheMonthsEnd) {
  Put("\\キャラクタ\\Chara5_1.bmp", BmpFile(10, 20));
  Put("\\キャラクタ\\Chara6_1.bmp", BmpFile(11, 21));
  Put("\\キャラクタ\\Chara9_1.bmp", BmpFile(12, 22));
  Figure(0, 5);
  Figure(0, 6, 0, 0, 11);
  Calendar.CalenStickers.count = 1;
  Calendar.CalenStickers.charas[0] = 9;
  Calendar.CalenDefinitions[0].stickers[11][3] = 1;
  CalenPrepareMonth();
  EXPECT_EQ(DibHeight(CalendarPictures.CalenFigures[0].picture), 20);
  Calendar.CalenFigPos1[0][0] = 99;  // where it has got to
  Today.TodayDay = 29;
  TestClockSet({2026, 12, 1, 2, 0, 0, 0, 0});
  EXPECT_EQ(TickCheck(), 1);
  EXPECT_EQ(Calendar.CalenMonthPos, 11);
  EXPECT_EQ(DibHeight(CalendarPictures.CalenFigures[0].picture), 21);
  EXPECT_EQ(DibHeight(CalendarPictures.CalenDayStickers[3].picture), 22);
  EXPECT_EQ(Place(), "50,60");
}

// Background, two figures with their masks, a sticker with its mask.
TEST_F(CalendarFiguresTest, PicturesAreFreedWhenOthersComeAndAtTheEnd) {
  MakeFolder(InProgram("背景"));
  Put("\\背景\\sea.bmp", BmpFile(30, 40));
  for (const char* name : {"5_1", "5_1x", "6_1", "6_1x", "9_1", "9_1x"}) {
    Put(("\\キャラクタ\\Chara" + std::string(name) + ".bmp").c_str(), BmpFile(10, 20));
  }
  std::memcpy(Picture(10).background, "sea.bmp", 8);
  Figure(0, 5);
  Figure(2, 6);
  Calendar.CalenStickers.count = 1;
  Calendar.CalenStickers.charas[0] = 9;
  Calendar.CalenDefinitions[0].stickers[10][0] = 1;
  const int blocks = DiagnosticsLive().blocks;
  CalenPrepareMonth();
  EXPECT_EQ(DiagnosticsLive().blocks, blocks + 7);
  CalenPrepareMonth();
  EXPECT_EQ(DiagnosticsLive().blocks, blocks + 7);
  Calendar.CalenMonthPos = 3;  // a month without pictures
  CalenPrepareMonth();
  EXPECT_EQ(DiagnosticsLive().blocks, blocks);
  Calendar.CalenMonthPos = 10;
  CalenPrepareMonth();
  CalenStickersFree();
  EXPECT_EQ(DiagnosticsLive().blocks, blocks);
  EXPECT_EQ(CalendarPictures.CalenBackground, nullptr);
  EXPECT_EQ(CalendarPictures.CalenFigures[0].picture, nullptr);
  EXPECT_EQ(CalendarPictures.CalenDayStickers[0].picture, nullptr);
}

TEST_F(CalendarFiguresTest, StickersOfTheMonthAreLoadedByTheirDays) {
  Put("\\キャラクタ\\Chara9_4.bmp", BmpFile(12, 13));
  Calendar.CalenStickers.count = 2;
  Calendar.CalenStickers.charas[1] = 9;
  Calendar.CalenStickers.figures[1] = 3;
  std::uint8_t(&days)[32] = Calendar.CalenDefinitions[0].stickers[10];
  days[0] = 2;
  days[30] = 2;
  days[5] = 3;  // beyond the list
  CalenStickersPrepare();
  EXPECT_EQ(DibWidth(CalendarPictures.CalenDayStickers[0].picture), 12);
  EXPECT_EQ(DibWidth(CalendarPictures.CalenDayStickers[30].picture), 12);
  EXPECT_EQ(CalendarPictures.CalenDayStickers[1].picture, nullptr);
  EXPECT_EQ(CalendarPictures.CalenDayStickers[5].picture, nullptr);
}

TEST_F(CalendarFiguresTest, ThePictureHeightFollowsThePageSizeAndIs0WithNoPicture) {
  const int kHeights[] = {145, 195, 245, 195};
  for (int size = 0; size < 4; ++size) {
    Calendar.CalenPageSize = size;
    EXPECT_EQ(CalenPictureHeight(), kHeights[size]) << size;
  }
  Calendar.CalenPictureOn = 0;
  EXPECT_EQ(CalenPictureHeight(), 0);
}

TEST_F(CalendarFiguresTest, PeriodAndStepCodesHaveTheirValues) {
  const int kPeriods[] = {50, 100, 1000, 3000, 6000, 18000, 30000, 50};
  for (int code = 0; code < 8; ++code) EXPECT_EQ(CalenPeriodOf(code), kPeriods[code]) << code;
  EXPECT_EQ(CalenPeriodOf(255), 50);
  const int kSteps[] = {0, 10, 30, 50, 70, 100, 200, 300, 400, 500, 1000, 0};
  for (int code = 0; code < 12; ++code) EXPECT_EQ(CalenStepOf(code, 100), kSteps[code]) << code;
}

TEST_F(CalendarFiguresTest, EachDirectionMovesItsWayAndAsksForARepaint) {
  const char* const kPlaces[] = {"50,60", "30,60", "70,60", "50,40", "50,80",
                                 "30,40", "70,40", "30,80", "70,80"};
  for (int direction = 1; direction <= 8; ++direction) {
    Walker(direction);
    EXPECT_EQ(Place(), "50,60");
    EXPECT_TRUE(Move()) << direction;
    EXPECT_EQ(Place(), kPlaces[direction]) << direction;
    EXPECT_EQ(Calendar.CalenFigPhase[0][0], 1);
    EXPECT_TRUE(Move()) << direction;
    EXPECT_EQ(Calendar.CalenFigPhase[0][0], 0);
  }
}

TEST_F(CalendarFiguresTest, WithoutADirectionAStepAPictureOrTheSwitchNothingMoves) {
  Walker(0);
  EXPECT_FALSE(Move());
  Walker(2, 0);
  EXPECT_FALSE(Move());
  Walker(2);
  Calendar.CalenPictureOn = 0;
  EXPECT_FALSE(Move());
  Calendar.CalenPictureOn = 1;
  RemoveFile(InProgram("キャラクタ\\Chara5_1.bmp"));
  CalenPrepareMonth();
  EXPECT_FALSE(Move());
  EXPECT_EQ(Place(), "50,60");
}

TEST_F(CalendarFiguresTest, ThePeriodOfTheMonthIsWaitedFor) {
  Picture(10).periods[0] = 1;
  Walker(2);
  for (int tick = 1; tick < 100; ++tick) EXPECT_FALSE(CalenFiguresMove()) << tick;
  EXPECT_TRUE(CalenFiguresMove());
}

TEST_F(CalendarFiguresTest, AFigureThatWouldLeaveJumpsToMinus300WithoutItsTurnFlag) {
  Walker(2);
  Calendar.CalenFigPos1[0][0] = 180;
  EXPECT_TRUE(Move());
  EXPECT_EQ(Place(), "200,60");
  EXPECT_TRUE(Move());
  EXPECT_EQ(Place(), "-300,60");
  EXPECT_TRUE(Move());
  EXPECT_EQ(Place(), "-280,60");
  Walker(1);
  Calendar.CalenFigPos1[0][0] = 20;
  EXPECT_TRUE(Move());
  EXPECT_EQ(Place(), "0,60");
  EXPECT_TRUE(Move());
  EXPECT_EQ(Place(), "-300,60");
  Walker(4);
  Calendar.CalenFigPos1[0][1] = 176;
  EXPECT_TRUE(Move());
  EXPECT_EQ(Place(), "50,-300");
}

TEST_F(CalendarFiguresTest, AFigureThatWouldLeaveTurnsBackWithItsTurnFlag) {
  const struct {
    int direction, x, y, opposite;
    const char* place;
  } kCases[] = {{1, 10, 60, 2, "30,60"},   {2, 190, 60, 1, "170,60"},  {3, 50, 10, 4, "50,30"},
                {4, 50, 190, 3, "50,170"}, {5, 50, 10, 8, "70,30"},    {6, 190, 60, 7, "170,80"},
                {7, 10, 60, 6, "30,40"},   {8, 190, 190, 5, "170,170"}};
  for (const auto& item : kCases) {
    Walker(item.direction);
    Calendar.CalenFigTurn[0] = 1;
    Calendar.CalenFigPos1[0][0] = item.x;
    Calendar.CalenFigPos1[0][1] = item.y;
    EXPECT_TRUE(Move()) << item.direction;
    EXPECT_EQ(Calendar.CalenFigDir[0][0], item.opposite) << item.direction;
    EXPECT_EQ(Place(), item.place) << item.direction;
  }
}

TEST_F(CalendarFiguresTest, ARandomFigureDrawsADirectionBelow9AtSetupAndOneOf8AtEachStep) {
  RandomSeed(3);
  bool still = false;
  for (int i = 0; i < 200; ++i) {
    Walker(9);
    EXPECT_LT(Calendar.CalenFigDir[0][0], 9);
    still = still || Calendar.CalenFigDir[0][0] == 0;
  }
  EXPECT_TRUE(still);
  bool seen[9] = {};
  for (int i = 0; i < 500; ++i) {
    Calendar.CalenFigPos1[0][0] = Calendar.CalenFigPos1[0][1] = 100;
    EXPECT_TRUE(Move());
    ASSERT_TRUE(Calendar.CalenFigDir[0][0] >= 1 && Calendar.CalenFigDir[0][0] <= 8);
    seen[Calendar.CalenFigDir[0][0]] = true;
  }
  for (int direction = 1; direction <= 8; ++direction) EXPECT_TRUE(seen[direction]) << direction;
}

TEST_F(CalendarFiguresTest, AFigureGoesOnFromWhereItStoodWhenThePicturesAreLoadedAgain) {
  Walker(2);
  EXPECT_TRUE(Move());
  Calendar.CalenFigDir[0][0] = 1;  // it has turned back
  CalenTakeDefinition();
  EXPECT_EQ(Place(), "70,60");
  EXPECT_EQ(Calendar.CalenFigDir[0][0], 1);
  // A direction that the month does not give is not believed.
  Calendar.CalenFigDir[0][0] = 3;
  CalenTakeDefinition();
  EXPECT_EQ(Calendar.CalenFigDir[0][0], 2);
  Calendar.CalenFigDir[0][0] = 250;
  CalenTakeDefinition();
  EXPECT_EQ(Calendar.CalenFigDir[0][0], 2);
  // Another month begins at the start.
  CalenPrepareMonth();
  EXPECT_EQ(Place(), "50,60");
}

TEST_F(CalendarFiguresTest, NumbersOutOfTheSettingsFileStayInsideTheTables) {
  Walker(2);
  Calendar.CalenFigCount[0] = Calendar.CalenFigCount[1] = 255;
  for (auto& position : Calendar.CalenFigPos1) position[0] = position[1] = 2147483647;
  Calendar.CalenFigStep[0] = 2147483647;
  EXPECT_TRUE(Move());
  for (auto& position : Calendar.CalenFigPos1) position[0] = position[1] = -2147483647 - 1;
  for (auto& direction : Calendar.CalenFigDir[0]) direction = 1;
  Calendar.CalenFigTurn[0] = 1;
  EXPECT_TRUE(Move());
  Calendar.CalenFigStep[0] = -2147483647 - 1;
  Calendar.CalenFigPeriod[0] = -5;
  for (int i = 0; i < 100; ++i) EXPECT_FALSE(CalenFiguresMove());
}

// --- The figure that follows the year

class FigureChoiceTest : public CalendarFiguresTest {
 protected:
  // Character 2 with so many named frames, every second one of the 20 first.
  static void Names(int count) {
    World.WorldCharaCount = 2;
    std::memset(static_cast<void*>(&World.WorldCharas[1]), 0, sizeof World.WorldCharas[1]);
    for (int i = 0; i < count; ++i) {
      const int frame = i < 10 ? 2 * i : 2 * (i - 10) + 1;
      World.WorldCharas[1].frameNames[frame][0] = 'n';
    }
  }
};

TEST_F(FigureChoiceTest, Mode0IsTheStoredFigure) {
  Names(12);
  EXPECT_EQ(CalenFigureChoice(2, 7, 0), 7);
  EXPECT_EQ(CalenFigureChoice(2, 7, 3), 7);
}

TEST_F(FigureChoiceTest, Mode1WithTenFramesTakesTheYearIndexTheFirstYearHavingNoPart) {
  Names(10);
  for (const int first : {26, 27, 99}) {
    Calendar.CalenFirstYear = first;
    for (int index = 0; index < 3; ++index) {
      Calendar.CalenYearPos = index;
      EXPECT_EQ(CalenFigureChoice(2, 7, 1), 2 * index) << first << " " << index;
    }
  }
  Names(9);
  EXPECT_EQ(CalenFigureChoice(2, 7, 1), 7);
  EXPECT_EQ(CalenFigureChoice(99, 7, 1), 7);
  Calendar.CalenFirstYear = -2147483647 - 1;
  Names(10);
  EXPECT_GE(CalenFigureChoice(2, 7, 1), 0);
}

TEST_F(FigureChoiceTest, Mode2WithTwelveFramesTurnsThroughTwelveYears) {
  Names(12);
  // The named frames in their order: 0, 1, 2, 3, 4, 6, 8, ...
  const int kFrames[] = {0, 1, 2, 3, 4, 6, 8, 10, 12, 14, 16, 18};
  const struct {
    int year;
    int entry;
  } kYears[] = {{8, 0}, {9, 1}, {19, 11}, {20, 0}, {26, 6}, {7, 11}, {6, 10}, {0, 4}};
  for (const auto& item : kYears) {
    Calendar.CalenYears[0] = static_cast<unsigned char>(item.year);
    EXPECT_EQ(CalenFigureChoice(2, 5, 2), kFrames[item.entry]) << item.year;
  }
  Names(11);
  EXPECT_EQ(CalenFigureChoice(2, 5, 2), 5);
}

// --- Notes

class CalendarNotesTest : public CalendarFiguresTest {
 protected:
  void SetUp() override {
    CalendarFiguresTest::SetUp();
    Calendar.CalenYearCount = 2;
    for (int i = 0; i < 3; ++i) CalenYearInit(i);
    Calendar.CalenNoteMode = 3;
    Date(2027, 6, 15);  // another date: the marks begin afresh
    NoteCheck();
    for (CalenNote& note : Calendar.CalenNotes) note = CalenNote{};
  }
  static void Date(int year, int month, int day) { TestClockSet({year, month, day, 0, 12, 0, 0, 0}); }
  // Announces until nothing comes: "slot:text:day " each.
  static std::string Announced() {
    std::string text;
    for (int i = 0; i < 10 && NoteCheck() != 0; ++i) {
      const int slot = CalenNoteTake();
      if (slot < 0) return text + "lost";
      text += std::to_string(slot) + ":" + Calendar.CalenNotes[slot].text + " ";
    }
    return text;
  }
};

TEST_F(CalendarNotesTest, TheSettingSaysHowManyDaysBefore) {
  CalenNoteSet(0, 3, 9, "a");
  CalenNoteSet(0, 3, 10, "b");
  CalenNoteSet(0, 3, 11, "c");
  CalenNoteSet(0, 3, 12, "d");
  const char* const kAnnounced[] = {"", "0:a ", "0:a 1:b ", "0:a 1:b 2:c "};
  for (int mode = 0; mode <= 3; ++mode) {
    Date(2026, 5, 1);
    NoteCheck();
    Calendar.CalenNoteMode = mode;
    Date(2026, 4, 10);
    EXPECT_EQ(Announced(), kAnnounced[mode]) << mode;
    EXPECT_EQ(NoteCheck(), 0);
    Calendar.CalenNoteMode = 3;
  }
}

TEST_F(CalendarNotesTest, TheFirstStepTestsTodaysNoteUntilItHasBeenTaken) {
  CalenNoteSet(0, 3, 9, "a");
  Date(2026, 4, 10);
  EXPECT_EQ(NoteCheck(), 1);
  EXPECT_EQ(NoteCheck(), 1);
  CalenNoteSet(0, 3, 9, "changed");
  EXPECT_EQ(NoteCheck(), 1);
  EXPECT_EQ(CalenNoteTake(), 0);
  EXPECT_STREQ(Calendar.CalenNotes[0].text, "changed");
  EXPECT_EQ(CalenNoteTake(), -1);
  EXPECT_EQ(NoteCheck(), 0);
}

// The third mark is set with the first look, taken or not.
TEST_F(CalendarNotesTest, TheNoteOfTheDayAfterTomorrowIsLookedForOnce) {
  CalenNoteSet(0, 3, 11, "c");
  Date(2026, 4, 10);
  EXPECT_EQ(NoteCheck(), 1);
  EXPECT_EQ(NoteCheck(), 0);
  EXPECT_EQ(CalenNoteTake(), 2);
  CalenNoteSet(0, 3, 11, "another");
  EXPECT_EQ(Announced(), "");
  Date(2026, 4, 11);
  EXPECT_EQ(Announced(), "1:another ");
}

TEST_F(CalendarNotesTest, AClosedAnnouncementComesBackOnlyOnANewDay) {
  CalenNoteSet(0, 3, 10, "b");
  Date(2026, 4, 9);
  EXPECT_EQ(Announced(), "2:b ");
  EXPECT_EQ(Announced(), "");
  Date(2026, 4, 10);
  EXPECT_EQ(Announced(), "1:b ");
  Date(2026, 4, 11);
  EXPECT_EQ(Announced(), "0:b ");
  EXPECT_EQ(Announced(), "");
}

TEST_F(CalendarNotesTest, TheNoteOfDecember31IsFoundFromDecember30AndJanuary1InTheNextIndexIfItIsInTheSpan) {
  CalenNoteSet(0, 11, 30, "eve");
  CalenNoteSet(1, 0, 0, "new");
  Date(2026, 12, 30);
  EXPECT_EQ(Announced(), "1:eve 2:new ");
  EXPECT_EQ(Calendar.CalenNotes[1].year, 26);
  EXPECT_EQ(Calendar.CalenNotes[2].year, 27);
  Date(2026, 12, 31);
  EXPECT_EQ(Announced(), "0:eve 1:new ");
  Calendar.CalenYearCount = 1;
  Date(2026, 12, 30);
  EXPECT_EQ(Announced(), "1:eve ");
}

TEST_F(CalendarNotesTest, ANoteOfTheNextMonthIsFoundByTheMonthsLength) {
  CalenNoteSet(0, 2, 0, "march");
  Date(2026, 2, 27);
  EXPECT_EQ(Announced(), "2:march ");
  Date(2026, 2, 28);
  EXPECT_EQ(Announced(), "1:march ");
}

TEST_F(CalendarNotesTest, TodayOutOfTheSpanIsNoAnnouncement) {
  CalenNoteSet(0, 3, 9, "a");
  for (const int year : {2025, 2028, 1999}) {
    Date(year, 4, 10);
    EXPECT_EQ(NoteCheck(), 0) << year;
  }
}

TEST_F(CalendarNotesTest, TheDayStandsOverTheMonthInTheDate) {
  CalenNoteSet(0, 3, 9, "a");
  Date(2026, 4, 10);
  EXPECT_EQ(NoteCheck(), 1);
  EXPECT_EQ(Calendar.CalenNotes[0].monthAndDay, 9);
  EXPECT_EQ(Calendar.CalenNotes[0].year, 26);
}

}  // namespace
