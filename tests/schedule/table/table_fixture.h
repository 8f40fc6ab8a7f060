// The window of the schedule, open in a program without data files, and its user.
//
// The window's client area is 808 by 540 pixels: the table reaches from x 10 to 782, with
// its columns at 50, 578, 668 and 726; 20 rows fit, the first at y 50.
#pragma once

#include "platform/window.h"
#include "resources/schedule_ids.h"
#include "resources/schedule_model_ids.h"
#include "resources/schedule_table_ids.h"
#include "schedule/table/row_commands.h"
#include "schedule/table/schedule_table.h"
#include "tests/schedule/schedule_fixture.h"

class ScheduleTableTest : public ScheduleTest {
 protected:
  static constexpr int kNumberX = 30;
  static constexpr int kContentX = 300;
  static constexpr int kHoursX = 600;
  static constexpr int kCheckX = 700;
  static constexpr int kAlarmX = 750;
  static constexpr int kNew = 2017;
  static constexpr int kLoad = 2021;
  static constexpr int kInsert = 2040;
  static constexpr int kDelete = 2209;
  static constexpr int kCopy = 2210;
  static constexpr int kPaste = 2211;

  void SetUp() override {
    ScheduleTest::SetUp();
    Send(kNew);
    ASSERT_NE(Window(), nullptr);
  }
  void TearDown() override {
    SclDirtyClear(kSclTableChanged | kSclSettingsChanged);
    SendClose(Window());
    EXPECT_EQ(Window(), nullptr);
    ScheduleTest::TearDown();
  }

  static WindowHandle Window() { return SclTable.hSclTableWnd; }
  static TableView& View() { return SclTable.SclTableView; }
  static void Send(int command) { SendCommand(Program.hMainWnd, static_cast<std::uint32_t>(command)); }

  // The middle of the cell of a row, from 1.
  static int RowY(int row) { return 60 + 20 * (row - 1 - View().firstLine); }
  static void Down(int x, int row, unsigned keys = 0) {
    Mouse(Window(), EventKind::LeftDown, x, RowY(row), keys | kLeftHeld);
  }
  static void Up(int x, int row) { Mouse(Window(), EventKind::LeftUp, x, RowY(row)); }
  static void Click(int x, int row, unsigned keys = 0) {
    Down(x, row, keys);
    Up(x, row);
  }
  static void Double(int x, int y) { Mouse(Window(), EventKind::LeftDouble, x, y); }
  // From one row number to another.
  static void Drag(int from, int to) {
    Down(kNumberX, from);
    Mouse(Window(), EventKind::MouseMove, kNumberX, RowY(to), kLeftHeld);
    Up(kNumberX, to);
  }

  // Lines "1", "2" ... so many, of one hour each.
  static void Lines(int count) {
    SclCountSet(count);
    for (int i = 0; i < count; ++i) {
      SclItem(i) = {};
      SclItem(i).hours = 1;
      TextFormat(SclItem(i).text, kSclItemTextSize, "%d", i + 1);
    }
    SclRecalcAll();
    SendPaint(Window());
  }
  // The texts of the lines in use.
  static std::string Texts() {
    std::string texts;
    for (int i = 0; i < Schedule.SclHeader.count; ++i) {
      texts += (i > 0 ? " " : "") + std::string(SclItem(i).text[0] != '\0' ? SclItem(i).text : "-");
    }
    return texts;
  }

  static void Repaint() {
    DrawingClear();
    SendPaint(Window());
  }
  static bool Stands(const char* text, int x, int y) { return TextStands(Window(), text, x, y); }
  // The rectangles filled with a colour, as "left,top-right,bottom".
  static Rows Filled(Colour colour) {
    Rows found;
    for (const DrawCall& call : Drawings(Window())) {
      if (call.kind != DrawCall::Kind::Rectangle || !call.filled || call.brush != colour) continue;
      found.push_back(std::to_string(call.x) + "," + std::to_string(call.y) + "-" + std::to_string(call.x2) +
                      "," + std::to_string(call.y2));
    }
    return found;
  }
  // The lines drawn with a pen of that colour, in the same way.
  static Rows Drawn(Colour colour) {
    Rows found;
    for (const DrawCall& call : Drawings(Window())) {
      if (call.kind != DrawCall::Kind::Line || call.pen != colour) continue;
      found.push_back(std::to_string(call.x) + "," + std::to_string(call.y) + "-" + std::to_string(call.x2) +
                      "," + std::to_string(call.y2));
    }
    return found;
  }
  static constexpr Colour kSelected = 0xFF8080;
  static constexpr Colour kRed = 0x0000FF;
};
