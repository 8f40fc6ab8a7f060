// What the three pages show, in every month of three years.
#include <ctime>

#include "tests/clock_calendar/calendar/calendar_fixture.h"

namespace {

using Rows = std::vector<std::string>;

// The weeks of a month: seven columns, "." for none.
struct MonthByHand {
  int year;
  int month;
  Rows rows;
};
const std::vector<MonthByHand>& ByHand() {
  static const std::vector<MonthByHand> months = {
      {2026,
       1,
       {". . . . 1 2 3", "4 5 6 7 8 9 10", "11 12 13 14 15 16 17", "18 19 20 21 22 23 24",
        "25 26 27 28 29 30 31"}},
      {2026, 2, {"1 2 3 4 5 6 7", "8 9 10 11 12 13 14", "15 16 17 18 19 20 21", "22 23 24 25 26 27 28"}},
      {2026,
       8,
       {". . . . . . 1", "2 3 4 5 6 7 8", "9 10 11 12 13 14 15", "16 17 18 19 20 21 22",
        "23 24 25 26 27 28 29", "30 31 . . . . ."}},
      {2026,
       11,
       {"1 2 3 4 5 6 7", "8 9 10 11 12 13 14", "15 16 17 18 19 20 21", "22 23 24 25 26 27 28",
        "29 30 . . . . ."}},
      {2027,
       1,
       {". . . . . 1 2", "3 4 5 6 7 8 9", "10 11 12 13 14 15 16", "17 18 19 20 21 22 23",
        "24 25 26 27 28 29 30", "31 . . . . . ."}},
      {2028,
       2,
       {". . 1 2 3 4 5", "6 7 8 9 10 11 12", "13 14 15 16 17 18 19", "20 21 22 23 24 25 26",
        "27 28 29 . . . ."}},
      {2028,
       12,
       {". . . . . 1 2", "3 4 5 6 7 8 9", "10 11 12 13 14 15 16", "17 18 19 20 21 22 23",
        "24 25 26 27 28 29 30", "31 . . . . . ."}},
  };
  return months;
}

class CalendarPagesTest : public CalendarFixture {
 protected:
  // Shows a day's month on the desktop.
  static void Show(int year, int month, int day) {
    Date(year, month, day);
    CalenShowToday();
  }
  // The numbers of the month page, a text for each week: seven columns, "." for none. The
  // first cell stands at (2, 36), cells are 28 by 18 apart.
  static Rows MonthRows() {
    Rows rows;
    for (const DrawCall& text : PaintedTexts()) {
      if (text.y < 36) continue;
      const auto row = static_cast<std::size_t>((text.y - 37) / 18);
      const int column = (text.x - 2) / 28;
      if (rows.size() <= row) rows.resize(row + 1, ". . . . . . .");
      std::vector<std::string> cells;
      std::string cell;
      for (const char c : rows[row] + " ") {
        if (c == ' ') {
          cells.push_back(cell);
          cell.clear();
        } else {
          cell += c;
        }
      }
      cells.at(static_cast<std::size_t>(column)) = text.text.substr(text.text.find_first_not_of(' '));
      rows[row].clear();
      for (const std::string& part : cells) rows[row] += (rows[row].empty() ? "" : " ") + part;
    }
    return rows;
  }
  // The same by another reckoning.
  static Rows RowsReckoned(int year, int month) {
    std::tm first{};
    first.tm_year = year - 1900;
    first.tm_mon = month - 1;
    first.tm_mday = 1;
    std::tm next = first;
    ++next.tm_mon;
    const std::time_t begin = timegm(&first);
    const auto column = static_cast<unsigned>(first.tm_wday);
    const auto days = static_cast<unsigned>((timegm(&next) - begin) / 86400);
    Rows rows;
    for (unsigned place = 0; place < column + days; ++place) {
      if (place % 7 == 0) rows.emplace_back();
      rows.back() +=
          (place % 7 == 0 ? "" : " ") + (place < column ? "." : std::to_string(place - column + 1));
    }
    for (unsigned place = column + days; place % 7 != 0; ++place) rows.back() += " .";
    return rows;
  }
  // By hand where they are written so.
  static Rows RowsOf(int year, int month) {
    for (const MonthByHand& hand : ByHand()) {
      if (hand.year == year && hand.month == month) return hand.rows;
    }
    return RowsReckoned(year, month);
  }
};

TEST_F(CalendarPagesTest, TheReckoningGivesTheRowsWrittenByHand) {
  for (const auto& month : ByHand()) EXPECT_EQ(RowsReckoned(month.year, month.month), month.rows);
}

TEST_F(CalendarPagesTest, TheMonthPageOfEveryMonthOfThreeYearsHasItsRows) {
  Open();
  for (int year = 2026; year <= 2028; ++year) {
    for (int month = 1; month <= 12; ++month) {
      Show(year, month, 1);
      EXPECT_EQ(MonthRows(), RowsOf(year, month)) << year << "-" << month;
      EXPECT_TRUE(Says(std::to_string(year) + "年  " + std::to_string(month) + "月"));
    }
  }
}

// The week of a day, in every month: the rows are 18 apart from y 20 on, the numbers at
// x 2 + 28 + 10 + 1.
TEST_F(CalendarPagesTest, TheWeekPageShowsTheWeekOfTheDayInEveryMonth) {
  Open(kPageWeek);
  for (int year = 2026; year <= 2028; ++year) {
    for (int month = 1; month <= 12; ++month) {
      const Rows weeks = RowsOf(year, month);
      for (const std::string& week : weeks) {
        std::string expected;
        int day = 0;
        for (std::size_t from = 0, column = 0; column < 7; ++column) {
          const std::size_t to = std::min(week.find(' ', from), week.size());
          const std::string cell = week.substr(from, to - from);
          if (cell != ".") day = std::stoi(cell);
          expected += cell == "." ? "" : std::to_string(20 + 18 * column) + ":" + cell + " ";
          from = to + 1;
        }
        Show(year, month, day);
        std::string shown;
        for (const DrawCall& text : PaintedTexts()) {
          if (text.x != 41 || text.y < 20) continue;
          shown += std::to_string(text.y - 1) + ":" + std::to_string(std::stoi(text.text)) + " ";
        }
        EXPECT_EQ(shown, expected) << year << "-" << month << "-" << day;
      }
    }
  }
}

// The number, and below it the weekday.
TEST_F(CalendarPagesTest, TheDayPageShowsEveryDay) {
  Open(kPageDay);
  constexpr const char* kNames[] = {"日曜", "月曜", "火曜", "水曜", "木曜", "金曜", "土曜"};
  for (int year = 2026; year <= 2028; ++year) {
    for (int month = 1; month <= 12; ++month) {
      std::size_t column = 0;
      for (const std::string& week : RowsOf(year, month)) {
        std::size_t from = 0;
        for (column = 0; column < 7; ++column) {
          const std::size_t to = std::min(week.find(' ', from), week.size());
          const std::string cell = week.substr(from, to - from);
          from = to + 1;
          if (cell == ".") continue;
          Show(year, month, std::stoi(cell));
          const std::vector<DrawCall> texts = PaintedTexts();
          EXPECT_NE(Find(texts, cell + "日"), nullptr) << year << "-" << month << "-" << cell;
          EXPECT_NE(Find(texts, kNames[column]), nullptr) << year << "-" << month << "-" << cell;
          EXPECT_NE(Find(texts, "(本日)"), nullptr);
        }
      }
    }
  }
}

// --- Sizes

// The width of the page; the window is 20 higher than the page, whose text has eight rows
// and 24 pixels.
TEST_F(CalendarPagesTest, TheWindowHasTheSizeOfItsPage) {
  const int kSizes[][3] = {{0, 150, 8 * 12 + 24 + 20},
                           {1, 200, 8 * 16 + 24 + 20},
                           {2, 250, 8 * 20 + 24 + 20},
                           {7, 200, 8 * 16 + 24 + 20}};
  Calendar.CalenX = 700;
  Calendar.CalenY = 10;
  for (int kind = 0; kind < 3; ++kind) {
    for (const auto& size : kSizes) {
      Calendar.CalenPictureOn = 0;
      Open(kind, size[0]);
      const Rect plain = WindowRect(Calendar.hCalenWnd);
      EXPECT_EQ(plain.left, 700);
      EXPECT_EQ(plain.top, 10);
      EXPECT_EQ(RectWidth(plain), size[1]);
      EXPECT_EQ(RectHeight(plain), size[2]);
      EXPECT_EQ(Calendar.CalenW, size[1]);
      Calendar.CalenPictureOn = 1;
      Open(kind, size[0]);
      const int picture = size[0] == 0 ? 145 : size[0] == 2 ? 245 : 195;
      EXPECT_EQ(RectHeight(WindowRect(Calendar.hCalenWnd)), size[2] + picture);
    }
  }
}

// Value 0, the entry " 大", has the narrowest columns.
TEST_F(CalendarPagesTest, TheFirstSizeIsTheSmallest) {
  const int kSizes[][3] = {{0, 21, 12}, {1, 28, 16}, {2, 35, 20}, {3, 28, 16}};
  for (const auto& size : kSizes) {
    Open(kPageMonth, size[0]);
    SendPaint(Calendar.hCalenWnd);
    EXPECT_EQ(Calendar.CalenHitX[1] - Calendar.CalenHitX[0], size[1]);
    EXPECT_EQ(Calendar.CalenHitY[7] - Calendar.CalenHitY[0], size[2] + 2);
    Open(kPageWeek, size[0]);
    SendPaint(Calendar.hCalenWnd);
    EXPECT_EQ(Calendar.CalenHitX[20], 12 - (size[0] == 0 ? 7 : size[0] == 2 ? 12 : 10) + size[1] + 10);
    EXPECT_EQ(Calendar.CalenHitY[20] - Calendar.CalenHitY[19], size[2] + 2);
    EXPECT_EQ(Calendar.CalenHitX[0], -1) << "another week";
  }
}

// --- Words

TEST_F(CalendarPagesTest, TheWeekdaysStandSundayFirstAndSundayIsRed) {
  for (const int kind : {kPageMonth, kPageWeek}) {
    Open(kind);
    for (const bool english : {false, true}) {
      Calendar.CalenDefinitions[0].english = english ? 1 : 0;
      std::string names;
      for (const DrawCall& text : PaintedTexts()) {
        for (const char* name :
             {"日", "月", "火", "水", "木", "金", "土", "Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}) {
          if (text.text != name) continue;
          names += name;
          EXPECT_EQ(text.textColour, names == "日" || names == "Sun" ? 0x0000FFU : 0U) << name;
        }
      }
      EXPECT_EQ(names, english ? "SunMonTueWedThuFriSat" : "日月火水木金土");
    }
  }
}

TEST_F(CalendarPagesTest, TheHeadNamesYearAndMonthInBothLanguages) {
  constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                     "July",    "August",   "September", "October", "November", "December"};
  for (const int kind : {kPageMonth, kPageWeek, kPageDay}) {
    Open(kind);
    for (int month = 1; month <= 12; ++month) {
      Show(2027, month, 3);
      Calendar.CalenDefinitions[0].english = 0;
      EXPECT_TRUE(Says("2027年  " + std::to_string(month) + "月"));
      Calendar.CalenDefinitions[0].english = 1;
      EXPECT_TRUE(Says(std::string("2027  ") + kMonths[month - 1]));
    }
  }
}

TEST_F(CalendarPagesTest, TheDayPageTellsTheDistanceFromToday) {
  Open(kPageDay);
  const std::pair<int, const char*> kJapanese[] = {{0, "(本日)"},  {-1, "(昨日)"}, {1, "(明日)"},
                                                   {-2, "(-2日)"}, {2, "(+2日)"},  {-20, "(-20日)"}};
  for (const auto& [offset, text] : kJapanese) {
    Calendar.CalenDayOffset = offset;
    EXPECT_TRUE(Says(text)) << offset;
  }
  Calendar.CalenDefinitions[0].english = 1;
  const std::pair<int, std::vector<const char*>> kEnglish[] = {{0, {"(Today)"}},
                                                               {-1, {"(Yester-", " day)"}},
                                                               {1, {"(Tomo-", " rrow)"}},
                                                               {-2, {"(-2Day)"}},
                                                               {2, {"(+2Day)"}}};
  for (const auto& [offset, texts] : kEnglish) {
    Calendar.CalenDayOffset = offset;
    const std::vector<DrawCall> drawn = PaintedTexts();
    for (const char* text : texts) ASSERT_NE(Find(drawn, text), nullptr) << text;
    // The second text of a pair stands 12 under the first.
    if (texts.size() < 2) continue;
    EXPECT_EQ(Find(drawn, texts[1])->y - Find(drawn, texts[0])->y, 12);
  }
}

// "21日" and "土曜" at value 1 and 2; "21" and "土" at value 0; in English "21" and "Sat".
TEST_F(CalendarPagesTest, TheDayPageNamesTheDayByItsSize) {
  for (const int size : {0, 1, 2}) {
    Open(kPageDay, size);
    EXPECT_EQ(Says("21日"), size != 0);
    EXPECT_EQ(Says("土曜"), size != 0);
    EXPECT_EQ(Says("21"), size == 0);
    EXPECT_EQ(Says("土"), size == 0);
    Calendar.CalenDefinitions[0].english = 1;
    EXPECT_TRUE(Says("21"));
    EXPECT_TRUE(Says("Sat"));
    Calendar.CalenDefinitions[0].english = 0;
  }
}

TEST_F(CalendarPagesTest, ADayPagePastTheMonthsEndShowsTheLastDayAndCorrectsItsDistance) {
  Open(kPageDay);
  Calendar.CalenDayOffset = 11;  // 21 November, today counts as 20
  EXPECT_TRUE(Says("30日"));
  EXPECT_EQ(Calendar.CalenDayOffset, 30 - 20);
  Calendar.CalenDayOffset = -25;
  EXPECT_TRUE(Says("1日"));
  EXPECT_EQ(Calendar.CalenDayOffset, -25);
}

// --- Colours

TEST_F(CalendarPagesTest, DaysHaveTheColourOfTheirKind) {
  CalenDefinition& definition = Calendar.CalenDefinitions[0];
  definition.colour1[0] = 1, definition.colour1[1] = 2, definition.colour1[2] = 3;
  definition.colour2[0] = 4, definition.colour2[1] = 5, definition.colour2[2] = 6;
  definition.ruleKinds[0] = 1;  // 3 November
  definition.ruleParameters[0] = {11, 3};
  definition.ruleKinds[1] = 8;  // every Saturday
  CalenHolidayFlagSet(0, 10, 4, true);
  Open();
  std::map<std::string, Colour> colours;
  for (const DrawCall& text : PaintedTexts()) colours[text.text] = text.textColour;
  EXPECT_EQ(colours[" 1"], 0x0000FFU) << "a Sunday";
  EXPECT_EQ(colours[" 2"], 0U);
  EXPECT_EQ(colours[" 3"], 0x030201U) << "by date";
  EXPECT_EQ(colours[" 5"], 0x0000FFU) << "a flag";
  EXPECT_EQ(colours[" 7"], 0x060504U) << "by weekday";
  CalenHolidayFlagSet(0, 10, 2, true);
  EXPECT_EQ(Find(PaintedTexts(), " 3")->textColour, 0x0000FFU) << "the flag goes before the rule";
  Open(kPageWeek);
  EXPECT_EQ(Find(PaintedTexts(), "21")->textColour, 0x060504U);
  Open(kPageDay);
  EXPECT_EQ(Find(PaintedTexts(), "21日")->textColour, 0x060504U);
}

TEST_F(CalendarPagesTest, AFixedHolidayOnASundayMakesTheMondayAHolidayInTheDrawingButNotInTheSchedule) {
  CalenDefinition& definition = Calendar.CalenDefinitions[0];
  definition.colour1[0] = 9;
  definition.ruleKinds[0] = 1;
  definition.ruleParameters[0] = {11, 8};  // a Sunday
  Open();
  EXPECT_EQ(Find(PaintedTexts(), " 9")->textColour, 9U);
  EXPECT_EQ(CalenHolidayRule(0, 10, 8, HolidayUse::Schedule), 0);
  definition.ruleKinds[0] = 1 | 64;
  EXPECT_EQ(Find(PaintedTexts(), " 9")->textColour, 0U);
}

// --- Boxes, stickers, lines

TEST_F(CalendarPagesTest, TodayHasAFilledBoxAndTheClickedAndThePointedDayAFrame) {
  // The 21st is the seventh of the third week: its cell is at 2 + 6 * 28, 36 + 2 * 18.
  Open();
  const auto boxes = [](bool filled) {
    std::vector<std::string> places;
    for (const DrawCall& call : Painted()) {
      if (call.kind != DrawCall::Kind::Rectangle || call.x < 2) continue;
      const bool box = call.filled && call.brush == 0xC8C8C8;
      if (filled ? box : !call.filled && call.edged)
        places.push_back(std::to_string(call.x) + "," + std::to_string(call.y));
    }
    return places;
  };
  EXPECT_EQ(boxes(true), std::vector<std::string>{"170,72"});
  EXPECT_EQ(boxes(false), std::vector<std::string>{});
  CalenClickedDaySet(1);
  Calendar.CalenPointedDay = 30;
  EXPECT_EQ(boxes(false), (std::vector<std::string>{"2,36", "30,108"}));
}

TEST_F(CalendarPagesTest, TheBoxOfTheWeekPageIsAColumnLess6WideAndARowAnd2High) {
  Open(kPageWeek);
  Calendar.CalenClickedDay = 20;
  int found = 0;
  for (const DrawCall& call : Painted()) {
    if (call.kind != DrawCall::Kind::Rectangle) continue;
    if (call.filled && call.brush == 0xC8C8C8) {
      ++found;
      // The seventh row; without an edge the last row and column are one further.
      EXPECT_EQ(call.x, 40);
      EXPECT_EQ(call.y, 20 + 6 * 18);
      EXPECT_EQ(call.x2 - call.x - 1, 22);
      EXPECT_EQ(call.y2 - call.y - 1, 18);
    } else if (!call.filled && call.edged) {
      ++found;
      EXPECT_EQ(call.y, 20 + 5 * 18);
      EXPECT_EQ(call.x2 - call.x, 22);
    }
  }
  EXPECT_EQ(found, 2);
}

TEST_F(CalendarPagesTest, AStickerIsDrawnWithItsMaskUnderTheNumber) {
  MakeFolder(InProgram("キャラクタ"));
  PutFile(InProgram("キャラクタ\\Chara9_3.bmp"), BmpFile(24, 16));
  PutFile(InProgram("キャラクタ\\Chara9_3x.bmp"), BmpFile(24, 16, 0, 0, 0));
  Calendar.CalenStickers.count = 1;
  Calendar.CalenStickers.charas[0] = 9;
  Calendar.CalenStickers.figures[0] = 2;
  Calendar.CalenDefinitions[0].stickers[10][20] = 1;
  for (const int kind : {kPageMonth, kPageWeek, kPageDay}) {
    Open(kind);
    std::vector<RasterOp> ops;
    bool numberAfter = false;
    for (const DrawCall& call : Painted()) {
      if (call.kind == DrawCall::Kind::Dib) ops.push_back(call.op);
      if (call.kind == DrawCall::Kind::Text && call.text.starts_with("21")) numberAfter = ops.size() == 2;
    }
    EXPECT_EQ(ops, (std::vector<RasterOp>{RasterOp::And, RasterOp::Or})) << kind;
    EXPECT_TRUE(numberAfter) << kind;
  }
}

TEST_F(CalendarPagesTest, ADayWithANoteIsUnderlinedAcrossItsCell) {
  CalenNoteSet(0, 10, 0, "a");
  Open();
  int lines = 0;
  for (const DrawCall& call : Painted()) {
    if (call.kind != DrawCall::Kind::Line) continue;
    ++lines;
    EXPECT_EQ(call.x, 2);
    EXPECT_EQ(call.x2, 2 + 27);
    EXPECT_EQ(call.y, 36 + 16);
  }
  EXPECT_EQ(lines, 1);
}

// u - 4 long at the foot of the number, from x + m on: u is 24, m 1 and in English 14.
TEST_F(CalendarPagesTest, ADayPageWithANoteHasALineAtTheFootOfTheNumber) {
  CalenNoteSet(0, 10, 20, "a");
  Open(kPageDay);
  for (const bool english : {false, true}) {
    Calendar.CalenDefinitions[0].english = english ? 1 : 0;
    int lines = 0;
    for (const DrawCall& call : Painted()) {
      if (call.kind != DrawCall::Kind::Line) continue;
      ++lines;
      EXPECT_EQ(call.x, 2 + (english ? 14 : 1));
      EXPECT_EQ(call.x2 - call.x, 20);
      EXPECT_EQ(call.y, 2 * 16 + 8 + 12);
    }
    EXPECT_EQ(lines, 1);
  }
}

TEST_F(CalendarPagesTest, TheWeekPageWritesTheNoteOnTheLineOfItsDay) {
  CalenNoteSet(0, 10, 20, "忘年会");
  Open(kPageWeek);
  const std::vector<DrawCall> texts = PaintedTexts();
  ASSERT_NE(Find(texts, "忘年会"), nullptr);
  EXPECT_EQ(Find(texts, "忘年会")->x, 40 + 28 + 6);
  EXPECT_EQ(Find(texts, "忘年会")->y, Find(texts, "21")->y);
  EXPECT_TRUE(Find(texts, "忘年会")->clipped);
}

// Digits as figures: each is a frame of the figure set's character.
TEST_F(CalendarPagesTest, DigitsAreFiguresFromDesign2On) {
  MakeFolder(InProgram("キャラクタ"));
  for (int digit = 1; digit <= 10; ++digit)
    PutFile(InProgram("キャラクタ\\Chara7_" + std::to_string(digit) + ".bmp"), BmpFile(30 + digit, 40));
  CalenDefinition& definition = Calendar.CalenDefinitions[0];
  definition.design = 2;
  definition.figureSet1 = 7;
  Open(kPageDay);
  std::vector<int> widths;
  for (const DrawCall& call : Painted()) {
    if (call.kind == DrawCall::Kind::Dib && call.op == RasterOp::Or) widths.push_back(call.x);
  }
  // 2 is 33 wide, 1 is 32: 65 of 96, from 2 + 15 on.
  EXPECT_EQ(widths, (std::vector<int>{17, 50}));
  EXPECT_FALSE(Says("21日"));
  // With a digit missing the number is a text.
  RemoveFile(InProgram("キャラクタ\\Chara7_10.bmp"));
  CalenTakeDefinition();
  EXPECT_TRUE(Says("21日"));
}

// --- The notes to come

TEST_F(CalendarPagesTest, TheNotesFromTodayOnStandUnderThePage) {
  CalenNoteSet(0, 10, 19, "gone");
  CalenNoteSet(0, 10, 20, "a");
  CalenNoteSet(0, 10, 24, "b");
  CalenDefinition& definition = Calendar.CalenDefinitions[0];
  definition.tickerColour[0] = 7;
  for (const int kind : {kPageMonth, kPageWeek, kPageDay}) {
    Open(kind);
    Calendar.CalenNearNote = 1;
    const std::vector<DrawCall> texts = PaintedTexts();
    ASSERT_NE(Find(texts, "21日: a  "), nullptr);
    ASSERT_NE(Find(texts, "25日: b  "), nullptr);
    EXPECT_EQ(Find(texts, "20日: gone  "), nullptr);
    EXPECT_EQ(Find(texts, "21日: a  ")->textColour, 7U);
    EXPECT_EQ(Find(texts, "25日: b  ")->textColour, 0U);
    EXPECT_EQ(Find(texts, "21日: a  ")->y, CalenPageHeight());
    EXPECT_EQ(Find(texts, "25日: b  ")->x, 6 * 9) << "nine columns behind the first";
    EXPECT_EQ(Find(texts, "21日: a  ")->fontHeight, 8);
    Calendar.CalenNearNote = 0;
    EXPECT_FALSE(Says("21日: a  "));
  }
}

// One line of 200 pixels has room for 33 columns.
TEST_F(CalendarPagesTest, TheListOfNotesEndsWithItsLine) {
  CalenNoteSet(0, 10, 20, "0123456789");
  CalenNoteSet(0, 10, 21, "0123456789");
  CalenNoteSet(0, 10, 22, "c");
  Calendar.CalenNearNote = 1;
  Open();
  const std::vector<DrawCall> texts = PaintedTexts();
  EXPECT_NE(Find(texts, "21日: 0123456789  "), nullptr);
  EXPECT_EQ(Find(texts, "22日: 0123456789  "), nullptr);
  EXPECT_EQ(Find(texts, "23日: c  "), nullptr);
}

// --- The picture

TEST_F(CalendarPagesTest, ThePictureStandsAboveThePageWithItsFigures) {
  MakeFolder(InProgram("背景"));
  MakeFolder(InProgram("キャラクタ"));
  PutFile(InProgram("背景\\sea.bmp"), BmpFile(200, 195));
  PutFile(InProgram("キャラクタ\\Chara5_1.bmp"), BmpFile(10, 20));
  PutFile(InProgram("キャラクタ\\Chara6_1.bmp"), BmpFile(11, 21));
  PutFile(InProgram("キャラクタ\\Chara7_1.bmp"), BmpFile(12, 22));
  CalenMonthPicture& month = Calendar.CalenMonths[0][10].picture;
  month.pictureOn = 1;
  std::memcpy(month.background, "sea.bmp", 8);
  month.correctX[1] = 3;
  month.correctY[1] = -4;
  CalenDefinition& definition = Calendar.CalenDefinitions[0];
  for (int place = 0; place < 3; ++place) {
    definition.charas[10][place] = static_cast<std::uint16_t>(5 + place);
    definition.startX[10][place] = 10 * place;
    definition.startY[10][place] = 20 * place;
  }
  Calendar.CalenPictureOn = 1;
  Open();
  std::vector<std::string> places;
  for (const DrawCall& call : Painted()) {
    if (call.kind == DrawCall::Kind::Dib)
      places.push_back(std::to_string(call.x) + "," + std::to_string(call.y));
  }
  EXPECT_EQ(places, (std::vector<std::string>{"0,0", "20,40", "0,0", "13,16"}));
  EXPECT_EQ(Find(PaintedTexts(), "2026年  11月")->y, 195 + 1) << "the page begins below";
  // With the colour flag the month's colour stands there instead.
  month.colourOnly = 1;
  month.backColour[0] = 0x11;
  CalenTakeDefinition();
  bool ground = false;
  for (const DrawCall& call : Painted()) ground = ground || (call.filled && call.brush == 0x11U);
  EXPECT_TRUE(ground);
}

}  // namespace
