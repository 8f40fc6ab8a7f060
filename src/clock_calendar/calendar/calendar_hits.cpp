#include "clock_calendar/calendar/calendar_hits.h"

#include <algorithm>
#include <iterator>

#include "clock_calendar/calendar/calendar_size.h"
#include "services/today.h"

namespace {

constexpr int kMemoAbovePageEnd = 30;
constexpr Point kCloseHit = {16, 16};
constexpr Point kArrowHit = {18, 16};
constexpr int kCloseWidth = 20;
constexpr int kArrowStep = 20;

Rect BoxAt(int x, int y, Point size) {
  return {x, y, x + size.x, y + size.y};
}

int MemoHit(int x, int y) {
  if (RectHas(CalenMemoCloseBox(), x, y)) return kHitMemoClose;
  for (const int way : {kHitMemoBack, kHitMemoOn}) {
    if (RectHas(CalenMemoArrow(way), x, y)) return way;
  }
  return kHitNothing;
}

}  // namespace

void CalenHitsBegin(int width, int height) {
  std::fill(std::begin(Calendar.CalenHitX), std::end(Calendar.CalenHitX), -1);
  std::fill(std::begin(Calendar.CalenHitY), std::end(Calendar.CalenHitY), -1);
  Calendar.CalenHitWidth = width;
  Calendar.CalenHitHeight = height;
}

void CalenHitSet(int day, Point at) {
  Calendar.CalenHitX[day] = at.x;
  Calendar.CalenHitY[day] = at.y;
}

int CalenMemoTop() {
  return CalenPageHeight() - kMemoAbovePageEnd;
}

Rect CalenMemoCloseBox() {
  return BoxAt(CalenLayoutWidth() - kCloseWidth, CalenMemoTop(), kCloseHit);
}

Rect CalenMemoArrow(int way) {
  const int fromRight = way == kHitMemoBack ? 2 : 1;
  return BoxAt(CalenLayoutWidth() - kCloseWidth - fromRight * kArrowStep, CalenMemoTop(), kArrowHit);
}

int CalenHitTest(int x, int y) {
  if (Calendar.CalenMemoDay != 0) {
    const int hit = MemoHit(x, y);
    if (hit != kHitNothing) return hit;
  }
  if (Calendar.CalenYearPos < 0 || Calendar.CalenYearPos >= kCalenYearMax) return kHitNothing;
  for (int day = 0; day < kCalenDayMax; ++day) {
    const Point cell = {Calendar.CalenHitX[day], Calendar.CalenHitY[day]};
    const Point size = {Calendar.CalenHitWidth, Calendar.CalenHitHeight};
    if (cell.y >= 0 && RectHas(BoxAt(cell.x, cell.y, size), x, y)) return day + 1;
  }
  return kHitNothing;
}

void CalenDayOffsetSet(std::int32_t offset) {
  Calendar.CalenDayOffset = offset;
}

// kept: a step of the day or week page is held against 31 days, however long the month is.
void CalenDayStep(int way) {
  constexpr int kLastDay = 31;
  if (Calendar.CalenKind != kPageWeek && Calendar.CalenKind != kPageDay) return;
  const int step = Calendar.CalenKind == kPageWeek ? kDaysOfWeek : 1;
  std::int32_t& offset = Calendar.CalenDayOffset;
  if (way == kHitMemoBack) {
    offset = std::max(offset - step, -Today.TodayDay);
  } else {
    offset = std::min(offset + step, kLastDay - Today.TodayDay);
  }
}

void CalenNearDaysCollect(int yearIndex, int month, int today, int days) {
  Calendar.CalenNearCount = 0;
  for (int day = std::max(today, 0); day < days; ++day) {
    if (Calendar.CalenMonths[yearIndex][month].notes[day][0] != '\0')
      Calendar.CalenNearDays[Calendar.CalenNearCount++] = day;
  }
}
