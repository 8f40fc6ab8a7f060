// A program with two clock designs, of which the first is in force: a dial of 120 by 100
// pixels on character 15 that plays frames 2 to 4, and one of 60 by 40 on character 16.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "character/character_file.h"
#include "character/character_tables.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock/clock_pictures.h"
#include "clock_calendar/clock/clock_window.h"
#include "clock_calendar/clock/performance.h"
#include "platform/posix/faults.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "resources/clock_calendar_ids.h"
#include "resources/clock_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/panel.h"
#include "shell/settings.h"
#include "tests/character/chara_files.h"
#include "tests/support/program.h"

using Rows = std::vector<std::string>;

class ClockFixture : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    MakeFolder(InProgram("キャラクタ"));
    MakeFolder(InProgram("サウンド"));
    for (const char* name : {"kan.wav", "nya.wav", "po2.wav"})
      PutFile(InProgram("サウンド\\") + name, "RIFF");
    for (int frame = 1; frame <= 4; ++frame) PutPicture(15, frame, 120, 100);
    PutPicture(16, 1, 60, 40);
    // Frames 1 and 2 have one outline, frame 3 another; y counts upwards in the file.
    const FilePoints dial = {{0, 99}, {120, 99}, {60, 0}};
    PutFile(InProgram("キャラクタ\\Chara15.dwc"),
            DwcFile({dial, dial, {{10, 89}, {110, 89}, {60, 9}}, dial}));
    CharaTables.ClockDesignCount = 2;
    for (int i = 0; i < 2; ++i) {
      CharaTables.ClockDesigns[i].number = static_cast<std::uint16_t>(15 + i);
      CharaTables.ClockDesigns[i].record = Record(kHandLine);
    }
    TextCopy(CharaTables.ClockDesigns[0].record.name, kDesignNameSize, "鳩時計");
    TextCopy(CharaTables.ClockDesigns[1].record.name, kDesignNameSize, "電車");
    Clock.ClockX = 300;
    Clock.ClockY = 40;
    Clock.ClockShow = 1;
    Take(0);
  }
  void TearDown() override {
    SendClose(Clock.hClockWnd);
    SendClose(ClockNotice.hClockNoticeWnd);
    EXPECT_EQ(Clock.hClockWnd, nullptr);
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
    EXPECT_EQ(Dialogs.hToolDlg, nullptr);
    EXPECT_EQ(Dialogs.hSubDlg, nullptr);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::None);
    EXPECT_EQ(Panel.FuncNo, 0);
    ProgramTest::TearDown();
  }

  static void PutPicture(int character, int frame, int width, int height) {
    const std::string name =
        InProgram("キャラクタ\\Chara" + std::to_string(character) + "_" + std::to_string(frame));
    PutFile(name + ".bmp", BmpFile(width, height, static_cast<unsigned char>(frame)));
    PutFile(name + "x.bmp", BmpFile(width, height, 0, 0, 0));
  }

  // Hands of 30 and 40 pixels around (60, 50); every hour plays frames 2, 3 and 4, for one
  // tick of wait each.
  static ClockDesignRecord Record(int hand) {
    ClockDesignRecord record{};
    record.hand = static_cast<std::uint8_t>(hand);
    record.repeat = 1;
    record.strikeMode = kStrikeAtTwelve;
    record.soundOn = 1;
    record.hourLength = 30;
    record.minuteLength = 40;
    record.centreX = 60;
    record.centreY = 50;
    const unsigned char handColour[3] = {1, 2, 3};
    const unsigned char faceColour[3] = {4, 5, 6};
    std::memcpy(record.handColour, handColour, 3);
    std::memcpy(record.faceColour, faceColour, 3);
    for (auto& delay : record.strikeDelay) delay = 1;
    for (auto& hour : record.hourFigures) {
      for (int step = 0; step < 3; ++step) hour[step] = static_cast<std::uint8_t>(2 + step);
    }
    TextCopy(record.sound, sizeof record.sound, "po2.wav");
    return record;
  }

  // Makes a design the one in force, as its record is now.
  static void Take(int design) {
    Clock.ClockDesign = design;
    ClockReactivate();
  }
  static void TakeHand(int hand) {
    CharaTables.ClockDesigns[0].record.hand = static_cast<std::uint8_t>(hand);
    Take(0);
  }

  // The clock's time, of a Saturday.
  static void SetTime(int hour, int minute, int second = 0) {
    TestClockSet({2026, 11, 21, 6, hour, minute, second, 0});
  }
  static void OpenClock() { CommandSend(Command::ClockOpen); }
  // What a paint of the clock draws, but for the copy from memory to the screen.
  static std::vector<DrawCall> Repaint() {
    DrawingClear();
    SendPaint(Clock.hClockWnd);
    std::vector<DrawCall> drawn = Drawings(Clock.hClockWnd);
    std::erase_if(drawn, [](const DrawCall& call) { return call.kind == DrawCall::Kind::Copy; });
    return drawn;
  }
  static std::vector<DrawCall> Of(const std::vector<DrawCall>& calls, DrawCall::Kind kind) {
    std::vector<DrawCall> found;
    for (const DrawCall& call : calls) {
      if (call.kind == kind) found.push_back(call);
    }
    return found;
  }
  static std::vector<DrawCall> Kind(DrawCall::Kind kind) { return Of(Drawings(Clock.hClockWnd), kind); }

  // --- The user

  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenEscape() {
    Then([] { PressEscape(TopDialog()); });
  }
  static std::string SettingsFile() { return FileBytes(InProgram("mirrell_sys_file.svs")); }
};
