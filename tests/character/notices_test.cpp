// The notices of the schedule, of calendar notes and of clock alarms.
#include <algorithm>
#include <cstring>

#include "character/alarm_images.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/clock_notice.h"
#include "character/performance_figures.h"
#include "character/scl_notice.h"
#include "clock_calendar/clock.h"
#include "clock_calendar/performance.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "shell/shared_time.h"
#include "shell/shell.h"
#include "shell/text.h"
#include "tests/character/chara_files.h"
#include "tests/support/program.h"

namespace {

constexpr std::uint32_t kSclNotice = 2265;
constexpr std::uint32_t kNoteNotice = 2294;
constexpr std::uint32_t kClockNotice = 2336;
constexpr std::uint32_t kNextStep = 2258;

constexpr int kSclCharacter = 8;
constexpr int kClockCharacter = 9;

class NoticesTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    MakeFolder("C:\\mirrell\\キャラクタ");
    AlarmCharaCount = 2;
    AlarmCharas[0] = kSclCharacter;
    AlarmCharas[1] = kClockCharacter;
    TodayYear = 26;
    TodayMonth = 10;
    TodayDay = 20;
    NoticeX = 400;
    NoticeY = 100;
    NoticeW = 480;
    NoticeH = 300;
    SclNotice = SclNoticeItem{};
    for (NoteNoticeItem& note : NoteNotices) note = NoteNoticeItem{};
    ClockAlarmSlot = -1;
    PerformanceActive = 0;
    std::memset(ClockEvents, 0, sizeof ClockEvents);
  }
  void TearDown() override {
    SendClose(hSclNoticeWnd);
    SendClose(hClockNoticeWnd);
    std::fill_n(AlarmCharaSel, kAlarmRowCount, 0);
    AlarmCharaLoad();
    AlarmCharaCount = 0;
    ClockAlarmSlot = -1;
    ProgramTest::TearDown();
  }

  static void PutFrame(int character, int frame, int width, int height, bool mask = true) {
    const std::string name =
        "C:\\mirrell\\キャラクタ\\Chara" + std::to_string(character) + "_" + std::to_string(frame);
    PutFile(name + ".bmp", BmpFile(width, height));
    if (mask) PutFile(name + "x.bmp", BmpFile(width, height, 0, 0, 0));
  }
  // Rows 1 and 2 with so many frames of 40 by 30 pixels.
  static void LoadRows(int sclFrames, int clockFrames) {
    for (int frame = 1; frame <= sclFrames; ++frame) PutFrame(kSclCharacter, frame, 40, 30);
    for (int frame = 1; frame <= clockFrames; ++frame) PutFrame(kClockCharacter, frame, 40, 30);
    AlarmCharaSel[1] = 1;
    AlarmCharaSel[2] = 2;
    AlarmCharaLoad();
  }
  static void ItemDue(const char* text) {
    SclNotice.due = true;
    SclNotice.start = {26, 10, 20, 9};
    SclNotice.startMinute = 30;
    SclNotice.end = {26, 10, 20, 12};
    SclNotice.endMinute = 5;
    SclNotice.tableStartHour = 8;
    SclNotice.tableEndHour = 18;
    TextCopy(SclNotice.text, sizeof SclNotice.text, text);
  }
  static void NoteDue(int note, const char* text) {
    NoteNotices[note].due = true;
    NoteNotices[note].year = 26;
    NoteNotices[note].monthAndDay = 20;
    TextCopy(NoteNotices[note].text, sizeof NoteNotices[note].text, text);
  }
  static void Send(std::uint32_t command) { SendCommand(hMainWnd, command); }
  // Draws the window afresh.
  static void Repaint(WindowHandle window) {
    DrawingClear();
    SendPaint(window);
  }
  static std::vector<DrawCall> Dibs(WindowHandle window) {
    std::vector<DrawCall> drawn = Drawings(window);
    std::erase_if(drawn, [](const DrawCall& call) { return call.kind != DrawCall::Kind::Dib; });
    return drawn;
  }
  // A picture through its mask at a place: the mask first, then the picture.
  static void ExpectMasked(WindowHandle window, int x, int y, const void* picture, const void* mask) {
    const std::vector<DrawCall> dibs = Dibs(window);
    ASSERT_EQ(dibs.size(), 2U);
    EXPECT_EQ(dibs[0].dib, mask);
    EXPECT_EQ(dibs[0].op, RasterOp::And);
    EXPECT_EQ(dibs[1].dib, picture);
    EXPECT_EQ(dibs[1].op, RasterOp::Or);
    for (const DrawCall& dib : dibs) {
      EXPECT_EQ(dib.x, x);
      EXPECT_EQ(dib.y, y);
    }
  }
  static void ExpectText(WindowHandle window, const std::vector<std::pair<int, std::string>>& lines) {
    const std::vector<DrawCall> texts = DrawnTexts(window);
    ASSERT_EQ(texts.size(), lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
      EXPECT_EQ(texts[i].x, 10);
      EXPECT_EQ(texts[i].y, lines[i].first) << i;
      EXPECT_EQ(texts[i].text, lines[i].second);
      EXPECT_TRUE(texts[i].transparent);
      EXPECT_EQ(texts[i].textColour, 0U);
    }
  }
  static void ExpectPlace(WindowHandle window) {
    const Rect rect = WindowRect(window);
    EXPECT_EQ(rect.left, 400);
    EXPECT_EQ(rect.top, 100);
    EXPECT_EQ(RectWidth(rect), 480);
    EXPECT_EQ(RectHeight(rect), 300);
    EXPECT_TRUE(IsTopmost(window));
    EXPECT_TRUE(IsVisible(window));
  }
};

// --- The schedule's line

TEST_F(NoticesTest, WithNoItemDueNoNoticeOpens) {
  Send(kSclNotice);
  EXPECT_EQ(hSclNoticeWnd, nullptr);
}

TEST_F(NoticesTest, TheSchedulesNoticeOpensAtTheNoticeRectangleAboveAllOthers) {
  ItemDue("会議");
  FrameDivider = 0;
  Send(kSclNotice);
  ASSERT_NE(hSclNoticeWnd, nullptr);
  EXPECT_EQ(TemplateOf(hSclNoticeWnd), IDD_FlyingBat4);
  ExpectPlace(hSclNoticeWnd);
  EXPECT_EQ(SclNoticeKind, 1);
  EXPECT_EQ(FrameDivider, 50);
}

TEST_F(NoticesTest, WithAnEmptyRowTheScheduleTextStartsAtTen) {
  ItemDue("会議");
  Send(kSclNotice);
  Repaint(hSclNoticeWnd);
  EXPECT_EQ(Drawings(hSclNoticeWnd).size(), 4U) << "nothing but text";
  ExpectText(
      hSclNoticeWnd,
      {{10, "-スケジュール表-"}, {30, "予定 : 9 時 30 分 ～ 12 時 5 分"}, {54, "( 内 容 )"}, {74, "会議"}});
}

TEST_F(NoticesTest, WithAPictureTheScheduleTextStartsAtAHundred) {
  LoadRows(1, 0);
  ItemDue("会議");
  Send(kSclNotice);
  Repaint(hSclNoticeWnd);
  ExpectMasked(hSclNoticeWnd, 10, 10, AlarmRows[1].pictures[0], AlarmRows[1].masks[0]);
  ExpectText(hSclNoticeWnd, {{100, "-スケジュール表-"},
                             {120, "予定 : 9 時 30 分 ～ 12 時 5 分"},
                             {144, "( 内 容 )"},
                             {164, "会議"}});
  // The box of the picture is cleared first.
  const std::vector<DrawCall> drawn = Drawings(hSclNoticeWnd);
  const auto box = std::find_if(drawn.begin(), drawn.end(),
                                [](const DrawCall& call) { return call.kind == DrawCall::Kind::Rectangle; });
  ASSERT_NE(box, drawn.end());
  EXPECT_EQ(box->brush, FaceBrushColour);
  EXPECT_EQ(box->x, 10);
  EXPECT_EQ(box->y, 10);
}

TEST_F(NoticesTest, AStartOrEndOnAnotherDayIsShownByTheHoursOfTheTable) {
  ItemDue("");
  SclNotice.start.day = 19;
  Send(kSclNotice);
  Repaint(hSclNoticeWnd);
  EXPECT_TRUE(TextStands(hSclNoticeWnd, "予定 : 8 時 0 分 ～ 12 時 5 分", 10, 30));
  SclNotice.start.day = 20;
  SclNotice.end.month = 11;
  Repaint(hSclNoticeWnd);
  EXPECT_TRUE(TextStands(hSclNoticeWnd, "予定 : 9 時 30 分 ～ 18 時 0 分", 10, 30));
  SclNotice.start.year = 25;
  Repaint(hSclNoticeWnd);
  EXPECT_TRUE(TextStands(hSclNoticeWnd, "予定 : 8 時 0 分 ～ 18 時 0 分", 10, 30));
}

TEST_F(NoticesTest, ContentIsBrokenAtFiftySixColumnsWithoutSplittingAPair) {
  // 55 letters, then pairs: the first line ends before the pair that would be cut.
  std::string text(55, 'a');
  for (int i = 0; i < 36; ++i) text += "か";
  ItemDue(text.c_str());
  Send(kSclNotice);
  Repaint(hSclNoticeWnd);
  const std::vector<DrawCall> texts = DrawnTexts(hSclNoticeWnd);
  ASSERT_EQ(texts.size(), 6U);
  std::string pairs;
  for (int i = 0; i < 28; ++i) pairs += "か";
  EXPECT_EQ(texts[3].text, std::string(55, 'a'));
  EXPECT_EQ(texts[3].y, 74);
  EXPECT_EQ(texts[4].text, pairs);
  EXPECT_EQ(texts[4].y, 94);
  EXPECT_EQ(texts[5].text, pairs.substr(0, 16));
  EXPECT_EQ(texts[5].y, 114);
}

TEST_F(NoticesTest, ANewScheduleNoticeReplacesTheOpenOne) {
  ItemDue("一");
  Send(kSclNotice);
  const WindowHandle first = hSclNoticeWnd;
  ItemDue("二");
  Send(kSclNotice);
  EXPECT_NE(hSclNoticeWnd, first);
  EXPECT_FALSE(WindowIsOpen(first));
  Repaint(hSclNoticeWnd);
  EXPECT_TRUE(TextStands(hSclNoticeWnd, "二", 10, 74));
}

TEST_F(NoticesTest, ANoticeThatCannotCloseStaysAndNoOtherOpens) {
  const WindowHandle stubborn = OpenListener();
  hSclNoticeWnd = stubborn;
  ItemDue("会議");
  const int open = OpenWindowCount();
  Send(kSclNotice);
  EXPECT_EQ(hSclNoticeWnd, stubborn);
  EXPECT_EQ(OpenWindowCount(), open);
  NoteDue(1, "誕生日");
  Send(kNoteNotice);
  EXPECT_EQ(hSclNoticeWnd, stubborn);
  EXPECT_EQ(OpenWindowCount(), open);
  EXPECT_TRUE(NoteNotices[1].due) << "it is announced another time";
  hSclNoticeWnd = nullptr;
  hClockNoticeWnd = stubborn;
  Send(kClockNotice);
  EXPECT_EQ(hClockNoticeWnd, stubborn);
  EXPECT_EQ(OpenWindowCount(), open);
  hClockNoticeWnd = nullptr;
  WindowDestroy(stubborn);
}

TEST_F(NoticesTest, ButtonsOneAndTwoAndCloseEndTheScheduleNotice) {
  ItemDue("会議");
  for (int way = 0; way < 3; ++way) {
    Send(kSclNotice);
    const WindowHandle notice = hSclNoticeWnd;
    if (way < 2) SendCommand(notice, static_cast<std::uint32_t>(way + 1));
    if (way == 2) SendClose(notice);
    EXPECT_EQ(hSclNoticeWnd, nullptr) << way;
    EXPECT_FALSE(WindowIsOpen(notice)) << way;
  }
  // The divider is left running.
  EXPECT_EQ(FrameDivider, 50);
}

TEST_F(NoticesTest, AWindowThatCannotBeMadeLeavesNoHandle) {
  ItemDue("会議");
  FaultArm(FaultKind::Window, 1);
  Send(kSclNotice);
  FaultArm(FaultKind::Window, 1);
  Send(kClockNotice);
  FaultClear();
  EXPECT_EQ(hSclNoticeWnd, nullptr);
  EXPECT_EQ(hClockNoticeWnd, nullptr);
}

// --- Its pictures

TEST_F(NoticesTest, TheSchedulesPicturesAdvanceByTheTickAfterFiftyTicksAndThenEveryFive) {
  LoadRows(3, 0);
  ItemDue("会議");
  Send(kSclNotice);
  const auto frameAfter = [&](int ticks) {
    DrawingClear();
    Ticks(ticks);
    const std::vector<DrawCall> dibs = Dibs(hSclNoticeWnd);
    if (dibs.empty()) return -1;
    for (int frame = 0; frame < 3; ++frame) {
      if (dibs.back().dib == AlarmRows[1].pictures[frame]) return frame;
    }
    return -2;
  };
  EXPECT_EQ(frameAfter(49), -1);
  EXPECT_EQ(frameAfter(1), 1);
  EXPECT_EQ(frameAfter(4), -1);
  EXPECT_EQ(frameAfter(1), 2);
  EXPECT_EQ(frameAfter(5), 0) << "round at the number of frames";
  EXPECT_EQ(frameAfter(5), 1);
}

TEST_F(NoticesTest, ANotesPicturesAreThoseOfTheThirdRow) {
  LoadRows(3, 2);
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  for (const int frame : {1, 0, 1}) {
    DrawingClear();
    SclNoticeFrameStep();
    ExpectMasked(hSclNoticeWnd, 10, 10, AlarmRows[2].pictures[frame], AlarmRows[2].masks[frame]);
  }
}

TEST_F(NoticesTest, AnEmptyRowStaysAtItsFirstFrame) {
  ItemDue("会議");
  Send(kSclNotice);
  for (int i = 0; i < 5; ++i) SclNoticeFrameStep();
  EXPECT_TRUE(Dibs(hSclNoticeWnd).empty());
}

TEST_F(NoticesTest, AFrameThatIsMissingDrawsNothing) {
  LoadRows(1, 0);
  PutFrame(kSclCharacter, 3, 40, 30);
  AlarmCharaLoad();
  ItemDue("会議");
  Send(kSclNotice);
  DrawingClear();
  SclNoticeFrameStep();
  EXPECT_TRUE(Dibs(hSclNoticeWnd).empty());
  EXPECT_TRUE(TextStands(hSclNoticeWnd, "-スケジュール表-", 10, 10));
  DrawingClear();
  SclNoticeFrameStep();
  EXPECT_EQ(Dibs(hSclNoticeWnd).size(), 2U);
}

TEST_F(NoticesTest, WithoutAMaskThePictureIsOnlyAdded) {
  PutFrame(kSclCharacter, 1, 40, 30, false);
  AlarmCharaSel[1] = 1;
  AlarmCharaLoad();
  ItemDue("会議");
  Send(kSclNotice);
  Repaint(hSclNoticeWnd);
  const std::vector<DrawCall> dibs = Dibs(hSclNoticeWnd);
  ASSERT_EQ(dibs.size(), 1U);
  EXPECT_EQ(dibs[0].op, RasterOp::Or);
}

TEST_F(NoticesTest, WithoutMemoryForABitmapThePictureIsDrawnOnTheScreen) {
  LoadRows(1, 1);
  ItemDue("会議");
  Send(kSclNotice);
  FaultArmFrom(FaultKind::Bitmap, 1);
  Repaint(hSclNoticeWnd);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ExpectMasked(hSclNoticeWnd, 10, 10, AlarmRows[1].pictures[0], AlarmRows[1].masks[0]);
}

TEST_F(NoticesTest, WithoutANoticeTheStepDoesNothing) {
  SclNoticeFrameStep();
  EXPECT_EQ(hSclNoticeWnd, nullptr);
}

// --- Calendar notes

TEST_F(NoticesTest, WithNoNoteDueNoNoticeOpens) {
  Send(kNoteNotice);
  EXPECT_EQ(hSclNoticeWnd, nullptr);
}

TEST_F(NoticesTest, TheFirstNoteThatIsDueOpensAndItsFlagIsCleared) {
  NoteDue(1, "明日");
  NoteDue(2, "明後日");
  Send(kNoteNotice);
  EXPECT_EQ(SclNoticeKind, 3);
  EXPECT_FALSE(NoteNotices[1].due);
  EXPECT_TRUE(NoteNotices[2].due);
  ExpectPlace(hSclNoticeWnd);
  Send(kNoteNotice);
  EXPECT_EQ(SclNoticeKind, 4);
  EXPECT_FALSE(NoteNotices[2].due);
  const WindowHandle last = hSclNoticeWnd;
  Send(kNoteNotice);
  EXPECT_EQ(hSclNoticeWnd, last);
}

TEST_F(NoticesTest, TodaysNoteIsAnnouncedForTodayWithTheDayInThePlaceOfTheMonthToo) {
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  Repaint(hSclNoticeWnd);
  EXPECT_EQ(Drawings(hSclNoticeWnd).size(), 4U);
  ExpectText(hSclNoticeWnd, {{20, "<< カレンダー書き込み >>"},
                             {40, "予定日 : 2026年21月21日  本日です"},
                             {64, "( 内 容 )"},
                             {84, "誕生日"}});
}

TEST_F(NoticesTest, LaterNotesAreAnnouncedWithTheirDaysAhead) {
  for (const int note : {1, 2}) {
    NoteDue(note, "誕生日");
    Send(kNoteNotice);
    Repaint(hSclNoticeWnd);
    const std::string date = "予定日 : 2026年21月21日  " + std::to_string(note) + "日前です";
    EXPECT_TRUE(TextStands(hSclNoticeWnd, date.c_str(), 10, 40));
  }
}

TEST_F(NoticesTest, ANotesTextStartsTenBelowThePictureAndAtMostAtAHundred) {
  PutFrame(kClockCharacter, 1, 40, 30);
  PutFrame(kClockCharacter, 2, 40, 79);
  PutFrame(kClockCharacter, 3, 40, 80);
  PutFrame(kClockCharacter, 4, 40, 200);
  AlarmCharaSel[2] = 2;
  AlarmCharaLoad();
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  Repaint(hSclNoticeWnd);
  EXPECT_TRUE(TextStands(hSclNoticeWnd, "<< カレンダー書き込み >>", 10, 50));
  // Drawn with the mask and without a box.
  const std::vector<DrawCall> drawn = Drawings(hSclNoticeWnd);
  EXPECT_EQ(drawn.size(), 6U);
  ExpectMasked(hSclNoticeWnd, 10, 10, AlarmRows[2].pictures[0], AlarmRows[2].masks[0]);
  for (const int y : {99, 100, 100}) {
    DrawingClear();
    SclNoticeFrameStep();
    EXPECT_TRUE(TextStands(hSclNoticeWnd, "<< カレンダー書き込み >>", 10, y));
  }
}

TEST_F(NoticesTest, ANotesTextIsBrokenAtFiftySixColumns) {
  NoteDue(0, std::string(128, 'x').c_str());
  Send(kNoteNotice);
  Repaint(hSclNoticeWnd);
  const std::vector<DrawCall> texts = DrawnTexts(hSclNoticeWnd);
  ASSERT_EQ(texts.size(), 6U);
  EXPECT_EQ(texts[3].text, std::string(56, 'x'));
  EXPECT_EQ(texts[4].text, std::string(56, 'x'));
  EXPECT_EQ(texts[4].y, 104);
  EXPECT_EQ(texts[5].text, std::string(16, 'x'));
}

// --- The clock alarm

class ClockNoticeTest : public NoticesTest {
 protected:
  void SetUp() override {
    NoticesTest::SetUp();
    for (int frame = 1; frame <= 3; ++frame) PutFrame(kClockCharacter, frame, 40, 30);
    AlarmCharaSel[2] = 2;
  }
  static void Alarm(int slot, int performance, const char* comment) {
    AlarmSlot alarm{};
    alarm.enabled = true;
    alarm.performance = performance;
    TextCopy(alarm.comment, sizeof alarm.comment, comment);
    AlarmSlotPut(slot, alarm);
    ClockAlarmSlot = slot;
  }
  static int ClientWidth() { return WindowClientRect(hClockNoticeWnd).right; }
  static int ClientHeight() { return WindowClientRect(hClockNoticeWnd).bottom; }
};

TEST_F(ClockNoticeTest, OpensAtTheNoticeRectangleWithItsTitleAndButton) {
  Alarm(0, 0, "起床");
  Send(kClockNotice);
  ASSERT_NE(hClockNoticeWnd, nullptr);
  EXPECT_EQ(TemplateOf(hClockNoticeWnd), IDD_FlyingBat5);
  EXPECT_EQ(WindowText(hClockNoticeWnd), "時計 アラーム");
  EXPECT_EQ(ControlText(hClockNoticeWnd, 1), " O K ");
  ExpectPlace(hClockNoticeWnd);
  Press(hClockNoticeWnd, 1);
  EXPECT_EQ(hClockNoticeWnd, nullptr);
}

TEST_F(ClockNoticeTest, ClosesAndReopensWhenItIsUp) {
  Alarm(0, 0, "一");
  Send(kClockNotice);
  const WindowHandle first = hClockNoticeWnd;
  Alarm(1, 0, "二");
  Send(kClockNotice);
  EXPECT_NE(hClockNoticeWnd, first);
  EXPECT_FALSE(WindowIsOpen(first));
  Repaint(hClockNoticeWnd);
  ExpectText(hClockNoticeWnd, {{10, "二"}});
}

TEST_F(ClockNoticeTest, ASlotWithoutAPerformanceShowsOnlyItsComment) {
  PerformanceActive = 1;
  Alarm(2, 0, "起床");
  Send(kClockNotice);
  EXPECT_EQ(PerformanceActive, 0);
  EXPECT_TRUE(SoundsPlayed().empty());
  Repaint(hClockNoticeWnd);
  ExpectText(hClockNoticeWnd, {{10, "起床"}});
  EXPECT_TRUE(Dibs(hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, ASlotsPerformanceBecomesTheActiveOne) {
  Alarm(4, 1, "起床");
  Send(kClockNotice);
  EXPECT_EQ(PerformanceActive, 1);
  EXPECT_EQ(SoundsPlayed(), std::vector<std::string>{"C:\\mirrell\\サウンド\\kan.wav"});
  EXPECT_TRUE(PerformanceShowsFigures());
}

TEST_F(ClockNoticeTest, WithoutASlotThereIsNoCommentAndTheChosenPerformanceRuns) {
  Alarm(0, 2, "起床");
  ClockAlarmSlot = -1;
  PerformanceActive = 3;
  Send(kClockNotice);
  EXPECT_EQ(PerformanceActive, 3);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
  Repaint(hClockNoticeWnd);
  EXPECT_TRUE(DrawnTexts(hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, TheCommentIsBrokenToTheWindowsWidthWithoutSplittingAPair) {
  NoticeW = 200;
  std::string comment = "a";
  for (int i = 0; i < 49; ++i) comment += "か";
  Alarm(0, 0, comment.c_str());
  Send(kClockNotice);
  Repaint(hClockNoticeWnd);
  const auto columns = static_cast<std::size_t>((ClientWidth() - 8) / 8);
  ASSERT_LT(columns, 26U);
  std::string rest = comment;
  int y = 10;
  for (const DrawCall& line : DrawnTexts(hClockNoticeWnd)) {
    // The first line begins with one column, the others with pairs only.
    const bool first = rest.size() == comment.size();
    const std::size_t fits = first ? (columns - 1) / 2 * 2 + 1 : columns / 2 * 2;
    EXPECT_EQ(line.text, rest.substr(0, fits));
    EXPECT_EQ(line.x, 10);
    EXPECT_EQ(line.y, y);
    rest = rest.size() > fits ? rest.substr(fits) : "";
    y += 20;
  }
  EXPECT_EQ(rest, "");
}

TEST_F(ClockNoticeTest, AWideWindowTakesTheCommentOnOneLine) {
  NoticeW = 2000;
  Alarm(0, 0, std::string(99, 'x').c_str());
  Send(kClockNotice);
  Repaint(hClockNoticeWnd);
  ExpectText(hClockNoticeWnd, {{10, std::string(99, 'x')}});
}

TEST_F(ClockNoticeTest, TheFigureIsCentredBelowTheComment) {
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  Repaint(hClockNoticeWnd);
  const PerformanceImages figure = PerformanceFigure(0);
  const int x = (ClientWidth() - 40) / 2;
  const int y = 30 + (ClientHeight() - 30 - 30) / 2;
  ExpectMasked(hClockNoticeWnd, x, y, figure.picture, figure.mask);
  FaultArmFrom(FaultKind::Bitmap, 1);
  Repaint(hClockNoticeWnd);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ExpectMasked(hClockNoticeWnd, x, y, figure.picture, figure.mask);
}

TEST_F(ClockNoticeTest, ACommentThatFillsTheWindowLeavesNoRoomForTheFigure) {
  NoticeW = 60;
  NoticeH = 90;
  Alarm(0, 1, std::string(99, 'x').c_str());
  Send(kClockNotice);
  Repaint(hClockNoticeWnd);
  EXPECT_TRUE(Dibs(hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, Message2258MovesToTheNextPicture) {
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  for (const int step : {1, 2, 0}) {
    DrawingClear();
    SendCommand(hClockNoticeWnd, kNextStep);
    EXPECT_EQ(PerformanceStep, step);
    const std::vector<DrawCall> dibs = Dibs(hClockNoticeWnd);
    ASSERT_EQ(dibs.size(), 2U);
    EXPECT_EQ(dibs[1].dib, PerformanceFigure(step).picture);
  }
}

TEST_F(ClockNoticeTest, TheTicksWaitIsOverEveryFourthTime) {
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  for (int round = 0; round < 2; ++round) {
    for (int tick = 0; tick < 3; ++tick) EXPECT_FALSE(ClockNoticeWaitIsOver());
    EXPECT_TRUE(ClockNoticeWaitIsOver());
    SendCommand(hClockNoticeWnd, kNextStep);
  }
}

TEST_F(ClockNoticeTest, TheTickMovesThePerformanceOnWhileTheClockIsOpen) {
  const WindowHandle clock = OpenListener();
  hClockWnd = clock;
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  Ticks(3);
  EXPECT_EQ(PerformanceStep, 0);
  Ticks(1);
  EXPECT_EQ(PerformanceStep, 1);
  Ticks(4);
  EXPECT_EQ(PerformanceStep, 2);
  hClockWnd = nullptr;
  WindowDestroy(clock);
}

TEST_F(ClockNoticeTest, WithoutASlotTheFigureGoesAwayAfterFivePassesAndTheWindowStays) {
  PerformanceActive = 1;
  Send(kClockNotice);
  for (int i = 0; i < 100; ++i) SendCommand(hClockNoticeWnd, kNextStep);
  EXPECT_NE(hClockNoticeWnd, nullptr);
  EXPECT_EQ(PerformanceActive, 0);
  Repaint(hClockNoticeWnd);
  EXPECT_TRUE(Dibs(hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, ClosingEndsThePerformanceAndFreesItsFigures) {
  const int before = DiagnosticsLive().blocks;
  Alarm(0, 1, "起床");
  for (int way = 0; way < 3; ++way) {
    Send(kClockNotice);
    Repaint(hClockNoticeWnd);
    EXPECT_EQ(DiagnosticsLive().blocks, before + 2);
    if (way < 2) SendCommand(hClockNoticeWnd, static_cast<std::uint32_t>(way + 1));
    if (way == 2) SendClose(hClockNoticeWnd);
    EXPECT_EQ(hClockNoticeWnd, nullptr);
    EXPECT_FALSE(PerformanceShowsFigures());
    EXPECT_EQ(DiagnosticsLive().blocks, before);
  }
}

TEST_F(ClockNoticeTest, TheCommentStaysWhatItWasAtTheOpening) {
  Alarm(0, 0, "起床");
  Send(kClockNotice);
  Alarm(0, 0, "別");
  Repaint(hClockNoticeWnd);
  ExpectText(hClockNoticeWnd, {{10, "起床"}});
}

// --- Templates

TEST_F(NoticesTest, EveryWindowOfTheFamilyHasItsTemplate) {
  for (const int id : {IDD_FlyingBat1, IDD_FlyingBat2, IDD_FlyingBat2X, IDD_FlyingBat3, IDD_FlyingBat4,
                       IDD_FlyingBat5, IDD_FlyingBat6}) {
    const WindowHandle window = DialogOpen(id, hMainWnd, [](const Event&) { return false; });
    EXPECT_NE(window, nullptr) << id;
    WindowDestroy(window);
  }
}

}  // namespace
