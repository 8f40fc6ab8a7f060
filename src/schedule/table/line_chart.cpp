#include "schedule/table/line_chart.h"

#include <algorithm>

#include "schedule/model/scl_dates.h"
#include "services/scl_date.h"

LineChartState LineChart;

namespace {

constexpr int kNarrow = 20;
constexpr int kWide = 40;

// Hours from the schedule's start; 0 for a date that is not behind it.
std::int32_t HoursTo(const SclDate& date) {
  return std::max(SclWorkHoursBetween(Schedule.SclHeader.start, date), 0);
}

bool IsBehindStart(const SclDate& date) {
  return SclDateCompare(date, Schedule.SclHeader.start) > 0;
}

void BarAdd(int item) {
  const SclDate start = SclDateOf(Schedule.SclItemTable[item].start);
  const SclDate end = SclDateOf(Schedule.SclItemTable[item].end);
  if (!IsBehindStart(start) && !IsBehindStart(end)) return;
  const LineBar bar{item, HoursTo(start), HoursTo(end)};
  LineChart.bars[LineChart.count++] = bar;
  LineChart.hours = std::max({LineChart.hours, bar.start, bar.end});
}

int Held(int first, int count, int page) {
  return std::clamp(first, 0, std::max(0, count - page));
}

}  // namespace

int LineHourWidth(const SclWorkDayRow (&rows)[kSclRowCount]) {
  // The days with work, in a ring.
  int lengths[kDaysOfWeek];
  int days = 0;
  for (int day = 0; day < kDaysOfWeek; ++day) {
    if (rows[day].length != 0) lengths[days++] = rows[day].length;
  }
  for (int day = 0; day < days; ++day) {
    if (lengths[day] == 1 && lengths[(day + 1) % days] == 1) return kWide;
  }
  return kNarrow;
}

void LineChartBuild() {
  LineChart.count = 0;
  LineChart.hours = 0;
  LineChart.firstHour = 0;
  LineChart.firstBar = 0;
  LineChart.hourWidth = LineHourWidth(Schedule.SclHeader.rows);
  for (int item = 0; item < Schedule.SclHeader.count; ++item) BarAdd(item);
}

void LineChartHourSet(int hour, int page) {
  LineChart.firstHour = Held(hour, LineChart.hours, page);
}

void LineChartBarSet(int bar, int page) {
  LineChart.firstBar = Held(bar, LineChart.count, page);
}
