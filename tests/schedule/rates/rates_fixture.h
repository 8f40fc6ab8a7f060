// A schedule, and an application with a map beside it.
#pragma once

#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "schedule/model/schedule.h"
#include "schedule/rates/rates_dialogs.h"
#include "schedule/rates/scl_map.h"
#include "schedule/rates/scl_rates.h"
#include "schedule/table/row_selection.h"
#include "services/commands.h"
#include "services/program.h"
#include "services/text.h"
#include "tests/support/bitmaps.h"
#include "tests/support/byte_order.h"
#include "tests/support/program.h"

class RatesTest : public ProgramTest {
 protected:
  using Lines = std::vector<std::string>;

  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    SclNewDefaults(26, 10, 20);  // 2026-11-21
  }
  void TearDown() override {
    EXPECT_EQ(TopDialog(), nullptr);
    ProgramTest::TearDown();
  }

  // A line of some hours that ends on a day.
  static SclItemRec& Item(int index, unsigned hours, int done, int month = 10, int day = 9) {
    SclItemRec& item = SclItem(index);
    item.hours = hours;
    item.doneState = static_cast<std::uint8_t>(done);
    item.end = {26, static_cast<std::uint8_t>(month), static_cast<std::uint8_t>(day), 18};
    return item;
  }

  static std::string Field(std::string text, std::size_t size) {
    text.resize(size);
    return text;
  }
  static std::string LE16(unsigned value) {
    return {static_cast<char>(value), static_cast<char>(value >> 8)};
  }
  static std::string LE32(unsigned value) { return LE16(value & 0xFFFF) + LE16(value >> 16); }
  static std::string BE32(unsigned value) {
    return {static_cast<char>(value >> 24), static_cast<char>(value >> 16), static_cast<char>(value >> 8),
            static_cast<char>(value)};
  }

  struct Place {
    const char* name;
    unsigned column;
    unsigned row;
  };
  // The scene edit file of an application: 4 x 3 cells of 40 x 30, some places, and the
  // statuses 5 "読了" and 1 "合格" around one that is not set. Each shows an object.
  static std::string SefBytes(const std::vector<Place>& places) {
    std::string file = "シナリオ シーン 編集ファイル" + BE32(2);
    file += std::string(12, '\0') + LE32(4) + LE32(3) + std::string(2, '\0') + LE16(40) + LE16(30);
    file +=
        std::string(2, '\0') + "\x10\x20\x30" + std::string(1, '\0') + "\x40\x50\x60" + std::string(5, '\0');
    for (unsigned chara = 1; chara <= 2; ++chara) {
      file += std::string(8, '\0') + LE32(chara) + LE16(chara - 1) + std::string(438, '\0');
    }
    file += BE32(static_cast<unsigned>(places.size()));
    for (const Place& place : places) file += Field(place.name, 32) + LE16(place.column) + LE16(place.row);
    std::string types(25, '\0');
    types += std::string("\x03\x05\x00\x01", 4) + std::string(7, '\0');
    types += Field("読了", 33) + Field("なし", 33) + Field("合格", 33) + std::string(7 * 33, '\0');
    types.resize(396, '\0');
    types += LE16(1) + LE16(0) + LE16(2);
    return file + Field(types, 456);
  }
  static std::string WefBytes(const std::string& background) {
    std::string file =
        "シナリオ作業 編集ファイル" + BE32(0) + BE32(0) + BE32(1) + std::string(400, '\0') + BE32(1);
    file += std::string(6874 + 842, '\0');
    return file + Field(std::string(1780, '\0') + Field(background, 257) + "\x07\x08\x09", 2356);
  }

  // The map, of 20 by 10 pixels, and the figures of the two statuses, of 8 by 6: that of "読了"
  // with a mask, that of "合格" without.
  static void MakePictures() {
    MakeFolder("C:\\mirrell\\apps\\背景");
    MakeFolder(InProgram("キャラクタ"));
    PutFile("C:\\mirrell\\apps\\背景\\map.bmp", BitmapOf(20, 10, std::vector<int>(20 * 10 * 3, 90)));
    const std::string figure = BitmapOf(8, 6, std::vector<int>(8 * 6 * 3, 60));
    PutFile(InProgram("キャラクタ\\Chara1_1.bmp"), figure);
    PutFile(InProgram("キャラクタ\\Chara1_1x.bmp"), BitmapOf(8, 6, std::vector<int>(8 * 6 * 3, 0)));
    PutFile(InProgram("キャラクタ\\Chara2_2.bmp"), figure);
  }

  static void MakeApplication(const std::vector<Place>& places = {{"教室", 2, 1}, {"図書館", 4, 3}}) {
    MakeFolder("C:\\mirrell\\apps");
    PutFile("C:\\mirrell\\apps\\study_1_1.sef", SefBytes(places));
    PutFile("C:\\mirrell\\apps\\study.wef", WefBytes("map.bmp"));
    MakePictures();
    SclMapFileSet("C:\\mirrell\\apps\\study.exe");
    SclMapRead();
    ASSERT_TRUE(SclMap.read);
  }
};
