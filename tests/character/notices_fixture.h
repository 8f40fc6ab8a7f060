// A program with alarm characters, and the notices that show them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "character/alarm_images.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/notice_window.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock/performance.h"
#include "platform/window.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/execution/scl_notice.h"
#include "services/program.h"
#include "services/text.h"
#include "services/today.h"
#include "tests/character/chara_files.h"
#include "tests/support/program.h"

inline constexpr std::uint32_t kSclNotice = 2265;
inline constexpr std::uint32_t kNoteNotice = 2294;
inline constexpr std::uint32_t kClockNotice = 2336;

inline constexpr int kSclCharacter = 8;
inline constexpr int kClockCharacter = 9;

class NoticesTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    MakeFolder("C:\\mirrell\\キャラクタ");
    CharaTables.AlarmCharaCount = 2;
    CharaTables.AlarmCharas[0] = kSclCharacter;
    CharaTables.AlarmCharas[1] = kClockCharacter;
    Today.TodayYear = 26;
    Today.TodayMonth = 10;
    Today.TodayDay = 20;
    NoticePlace.NoticeX = 400;
    NoticePlace.NoticeY = 100;
    NoticePlace.NoticeW = 480;
    NoticePlace.NoticeH = 300;
    for (CalenNote& note : Calendar.CalenNotes) note = CalenNote{};
    Clock.ClockAlarmSlot = -1;
    Performance.PerformanceActive = 0;
    for (AlarmSlot& slot : Clock.ClockEvents) slot = AlarmSlot{};
  }
  void TearDown() override {
    SendClose(Notices.hSclNoticeWnd);
    SendClose(ClockNotice.hClockNoticeWnd);
    std::fill_n(Character.AlarmCharaSel, kAlarmRowCount, 0);
    AlarmCharaLoad();
    CharaTables.AlarmCharaCount = 0;
    Clock.ClockAlarmSlot = -1;
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
    Character.AlarmCharaSel[1] = 1;
    Character.AlarmCharaSel[2] = 2;
    AlarmCharaLoad();
  }
  static void ItemDue(const char* text) {
    SclItemRec& item = Schedule.SclExecTable.items[0];
    item.start = {26, 10, 20, 9};
    item.mirrorStart.minute = 30;
    item.end = {26, 10, 20, 12};
    item.mirrorEnd.minute = 5;
    std::fill_n(item.text, kSclItemTextSize, '\0');
    std::copy_n(text, TextLength(text, kSclItemTextSize), item.text);
    SclAlarm.row = {10, 8, 18};
    SclAlarm.announce = 1;
  }
  static void NoteDue(int note, const char* text) {
    Calendar.CalenNotes[note].due = true;
    Calendar.CalenNotes[note].year = 26;
    Calendar.CalenNotes[note].monthAndDay = 20;
    TextCopy(Calendar.CalenNotes[note].text, sizeof Calendar.CalenNotes[note].text, text);
  }
  static void Send(std::uint32_t command) { SendCommand(Program.hMainWnd, command); }
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
