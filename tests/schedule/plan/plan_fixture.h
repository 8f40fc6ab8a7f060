// The plan from nothing, and its schedule as text.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "schedule/model/schedule.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_convert.h"
#include "schedule/plan/plan_file.h"
#include "services/data_file.h"
#include "services/text.h"
#include "tests/support/program.h"

using Rows = std::vector<std::string>;

// Monday, 23 November 2026.
inline constexpr SclDate kMonday8{26, 10, 22, 8};
inline constexpr SclDate kMonday17{26, 10, 22, 17};

inline std::string DateText(const SclItemDate& date) {
  char text[60];
  TextFormat(text, sizeof text, "%d/%d/%d %d", date.year + 2000, date.month + 1, date.day + 1, date.hour);
  return text;
}

// "2026/11/23 8 - 2026/11/23 12 = 4 text".
inline std::string ItemText(int index) {
  const SclItemRec& item = Schedule.SclItemTable[index];
  return DateText(item.start) + " - " + DateText(item.end) + " = " +
         std::to_string(static_cast<std::int32_t>(item.hours)) + (item.text[0] ? " " : "") + item.text;
}

inline Rows ItemTexts() {
  Rows rows;
  for (int i = 0; i < Schedule.SclHeader.count; ++i) rows.push_back(ItemText(i));
  return rows;
}

class PlanTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    ScpStudyDefaults();
  }

  static void Study(const SclDate& start = kMonday8) {
    ScpStudyDefaults();
    Plan.head.start = start;
    Plan.ScpPlanTable[0].text[0] = '\0';
  }
  static void Training(const SclDate& start = kMonday17) {
    ScpTrainDefaults();
    Plan.head.start = start;
    Plan.ScpPlanTable[0].text[0] = '\0';
  }
  static void Line(int line, std::uint32_t hours, int repeat, const char* text) {
    ScpPlanRec& plan = Plan.ScpPlanTable[line];
    plan.hours = hours;
    plan.repeat = static_cast<std::uint8_t>(repeat);
    TextCopy(plan.text, sizeof plan.text, text);
  }
  static void NoRests() { std::memset(Plan.head.ScpRestTable, 0, sizeof Plan.head.ScpRestTable); }
  static void Intervals(int days) {
    for (std::int32_t& interval : Plan.head.ScpIntervalTable) interval = days;
  }
  static void WorkRow(int row, int begin, int length) {
    Plan.head.rows[row] = {length, begin, begin + length};
  }
};
