// The program, started without data files, and a user of its schedules.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/headless/headless.h"
#include "schedule/model/schedule.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_items.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/folder_list.h"
#include "services/program.h"
#include "services/text.h"
#include "tests/support/program.h"
#include "tests/support/records.h"

using Rows = std::vector<std::string>;

// For messages of failures, and comparisons in one line.
inline std::string Shown(const SclDate& date) {
  return std::to_string(date.year) + "/" + std::to_string(date.month) + "/" + std::to_string(date.day) + " " +
         std::to_string(date.hour);
}
inline std::string Shown(const SclItemDate& date) {
  return Shown(SclDateOf(date));
}

// The tables of the schedule with no program around them: all days work from 8 to 18.
class SclModelTest : public RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    SclDefaults();
    Schedule.SclHeader.count = 0;
    Schedule.SclHeader.start = kMonday;
  }

  static void Row(int row, int begin, int length) {
    Schedule.SclHeader.rows[row] = {length, begin, begin + length};
  }
  static void AllRows(int begin, int length) {
    for (int row = 0; row < kSclRowCount; ++row) Row(row, begin, length);
  }
  // Items of these lengths, recalculated.
  static void Items(const std::vector<std::uint32_t>& hours) {
    SclCountSet(static_cast<int>(hours.size()));
    for (std::size_t i = 0; i < hours.size(); ++i) SclItem(static_cast<int>(i)).hours = hours[i];
    SclRecalcAll();
  }
  static std::string Start(int item) { return Shown(SclItem(item).start); }
  static std::string End(int item) { return Shown(SclItem(item).end); }

  static constexpr SclDate kMonday{26, 10, 22, 8};  // 23 November 2026
};

class ScheduleTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    FileResult.FileStatus = 0;
  }
  void TearDown() override {
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
    EXPECT_EQ(Dialogs.hToolDlg, nullptr);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
    ProgramTest::TearDown();
  }

  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenChoose(int id, int row) {
    Then([id, row] { ChooseRow(TopDialog(), id, row); });
  }
  static void ThenType(int id, const std::string& text) {
    Then([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  // In the picker that is up then: types the name and presses OK, or cancels.
  static void ThenPick(const std::string& name) {
    Then([name] {
      Type(TopDialog(), kPickNameId, name.c_str());
      Press(TopDialog(), 1);
    });
  }
  static void ThenCancelPicker() { ThenPress(kFolderCancelId); }
};
