// The schedule on display as a line chart: one bar for each item that lies behind the
// schedule's start, in work hours from there on.
#pragma once

#include <cstdint>

#include "schedule/model/schedule.h"

struct LineBar {
  std::int32_t item;   // from 0
  std::int32_t start;  // in hours
  std::int32_t end;
};

struct LineChartState {
  std::int32_t hourWidth = 0;  // in pixels
  std::int32_t hours = 0;      // of the whole chart
  std::int32_t count = 0;
  LineBar bars[kSclItemMax] = {};
  // What is on show begins with this hour and bar.
  std::int32_t firstHour = 0;
  std::int32_t firstBar = 0;
};
extern LineChartState LineChart;

// Works the chart out, and shows its begin.
void LineChartBuild();

// Moves the view; held between the begin and the last page.
void LineChartHourSet(int hour, int page);
void LineChartBarSet(int bar, int page);

// 20 pixels an hour, or 40 when two days of one hour of work follow each other.
int LineHourWidth(const SclWorkDayRow (&rows)[kSclRowCount]);
