// The conversion of a plan a second time, by another way of reckoning: days are counted
// through from 2000-01-01, and every hour is placed by itself.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "schedule/plan/plan_records.h"

struct ModelTime {
  int day;  // from 2000-01-01
  int hour;
};

struct ModelItem {
  ModelTime start{0, 0};
  ModelTime end{0, 0};
  std::int64_t hours = 0;
  std::string text;
};

struct ModelSchedule {
  std::vector<ModelItem> items;
  ModelTime start{0, 0};
  bool full = false;  // the table of 1000 items was reached
};

// `holidays` are days that have the holiday's row unless they are Sundays.
ModelSchedule ModelConvert(const ScpPlanHead& head, const std::vector<ScpPlanRec>& lines,
                           const std::set<int>& holidays);

// "2026/11/23 8 - 2026/11/23 12 = 4 text".
std::string ModelText(const ModelItem& item);
int ModelDay(int year, int month, int day);  // all counted as people do
