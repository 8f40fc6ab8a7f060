// What the calendar's page says, whatever kind of page it is.
#include "clock_calendar/calendar/calendar_page.h"

#include <algorithm>

#include "clock_calendar/calendar/calendar_fonts.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"
#include "services/today.h"

namespace {

constexpr const char* kWeekdays[] = {"日", "月", "火", "水", "木", "金", "土"};
constexpr const char* kEnglishWeekdays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr const char* kEnglishMonths[] = {"January",   "February", "March",    "April",
                                          "May",       "June",     "July",     "August",
                                          "September", "October",  "November", "December"};

bool English() {
  return CalenSelectedDefinition().english != 0;
}

// Where a page is painted in its window, by its kind: the week page stands to the left.
constexpr int kPageX = 2;
constexpr int kWeekPageX = 12;

}  // namespace

CalenPage CalenPageOnShow() {
  return {CalenYearShown(),
          std::clamp<std::int32_t>(Calendar.CalenMonthPos, 0, kMonthsOfYear - 1),
          CalenTodayShown(),
          Today.TodayDay,
          Calendar.CalenClickedDay,
          Calendar.CalenPointedDay,
          false,
          &CalendarPictures};
}

CalenPage CalenPagePreview(int yearIndex, int month, const CalendarPicturesState& pictures) {
  const bool thisMonth = month == Today.TodayMonth && yearIndex == CalenSpanIndex(Today.TodayYear);
  return {yearIndex, month,    thisMonth ? Today.TodayDay : -1, thisMonth ? Today.TodayDay : 0, 0, 0,
          true,      &pictures};
}

const CalenMonth& CalenPageMonth(const CalenPage& page) {
  return Calendar.CalenMonths[page.yearIndex][page.month];
}

int CalenPageDays(const CalenPage& page) {
  return std::clamp<int>(CalenPageMonth(page).days, 1, kCalenDayMax);
}

void CalenHeadText(const CalenPage& page, char (&text)[kCalenTextSize]) {
  const int year = 2000 + Calendar.CalenYears[page.yearIndex];
  if (English()) {
    const int length = TextFormat(text, sizeof text, "%d  ", year);
    TextCopy(text + length, sizeof text - static_cast<std::size_t>(length), kEnglishMonths[page.month]);
  } else {
    TextFormat(text, sizeof text, "%d年  %d月", year, page.month + 1);
  }
}

const char* CalenWeekdayName(int column) {
  return English() ? kEnglishWeekdays[column] : kWeekdays[column];
}

int CalenColumnOf(const CalenPage& page, int day) {
  return (CalenPageMonth(page).firstWeekday + 1 + day) % kDaysOfWeek;
}

CalenDistance CalenDistanceText(int offset) {
  struct Words {
    int offset;
    const char* japanese;
    const char* first;
    const char* second;
  };
  constexpr Words kWords[] = {
      {0, "(本日)", "(Today)", ""}, {-1, "(昨日)", "(Yester-", " day)"}, {1, "(明日)", "(Tomo-", " rrow)"}};
  CalenDistance text{};
  for (const Words& words : kWords) {
    if (words.offset != offset) continue;
    TextCopy(text.first, sizeof text.first, English() ? words.first : words.japanese);
    TextCopy(text.second, sizeof text.second, English() ? words.second : "");
    return text;
  }
  const char* format = English() ? (offset < 0 ? "(%dDay)" : "(+%dDay)") : offset < 0 ? "(%d日)" : "(+%d日)";
  TextFormat(text.first, sizeof text.first, format, offset);
  return text;
}

int CalenViewDay(const CalenPage& page) {
  const int offset = page.preview ? 0 : Calendar.CalenDayOffset;
  return std::clamp(page.viewFrom + offset, 0, CalenPageDays(page) - 1);
}

Colour CalenDayColour(const CalenPage& page, int day) {
  if (CalenColumnOf(page, day) == 0 || CalenHolidayFlag(page.yearIndex, page.month, day)) return kCalenRed;
  const int rule = CalenHolidayRule(page.yearIndex, page.month, day, HolidayUse::Display);
  const CalenDefinition& definition = CalenSelectedDefinition();
  return rule == 1 ? ColourOf(definition.colour1) : rule == 2 ? ColourOf(definition.colour2) : kCalenBlack;
}

bool CalenDayHasNote(const CalenPage& page, int day) {
  return CalenPageMonth(page).notes[day][0] != '\0';
}

Point CalenPageCorner() {
  return {Calendar.CalenKind == kPageWeek ? kWeekPageX : kPageX, CalenPictureHeight()};
}

void CalenPageDraw(Canvas* canvas, const CalenPage& page, Point at) {
  CanvasFont(canvas, CalenPageFont());
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, kCalenBlack);
  if (Calendar.CalenKind == kPageWeek) {
    CalenWeekPageDraw(canvas, page, at);
  } else if (Calendar.CalenKind == kPageDay) {
    CalenDayPageDraw(canvas, page, at);
  } else {
    CalenMonthPageDraw(canvas, page, at);
  }
}

// --- Parts of a cell

void CalenBoxDraw(Canvas* canvas, const Rect& box) {
  CanvasPen(canvas, Drawing.Pens[kPen646464]);
  CanvasBrush(canvas, Drawing.Brushes[kBrushFFFFFF]);
  CanvasRectangle(canvas, box.left, box.top, box.right, box.bottom);
}

void CalenTodayDraw(Canvas* canvas, const CalenPage& page, int day, const Rect& box) {
  if (day == page.today) FillArea(canvas, Drawing.Brushes[kBrushC8C8C8], box);
}

void CalenFrameDraw(Canvas* canvas, const CalenPage& page, int day, const Rect& box) {
  if (day + 1 != page.clicked && day + 1 != page.pointed) return;
  CanvasPen(canvas, Drawing.Pens[kPen646464]);
  CanvasBrush(canvas, BrushNothing());
  CanvasRectangle(canvas, box.left, box.top, box.right, box.bottom);
}

void CalenStickerDraw(Canvas* canvas, const CalenPage& page, int day, Point at) {
  const MaskedFrame& sticker = page.pictures->CalenDayStickers[day];
  CalenPictureDraw(canvas, sticker, at);
}

namespace {

// The pictures of the digits for a day: days in red have the second set, if there is one.
const MaskedFrame* DigitsOf(const CalenPage& page, int day) {
  if (CalenSelectedDefinition().design < 2) return nullptr;
  const auto& sets = page.pictures->CalenDigits;
  const bool second = CalenDayColour(page, day) != kCalenBlack && sets[1][0].picture;
  const MaskedFrame* set = second ? sets[1] : sets[0];
  // settled: where the picture of a digit is missing, a day's number stands as text.
  const bool whole = std::all_of(set, set + kDigitCount, [](const MaskedFrame& p) { return p.picture; });
  return whole ? set : nullptr;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

CalenExtent CalenNumberExtent(Canvas* canvas, const CalenPage& page, int day, const char* text) {
  const MaskedFrame* digits = DigitsOf(page, day);
  if (!digits) return {CanvasTextWidth(canvas, text), CalenPageLineHeight()};
  CalenExtent extent{0, 0};
  for (const char* c = text; *c != '\0'; ++c) {
    if (!IsDigit(*c)) continue;
    extent.width += DibWidth(digits[*c - '0'].picture);
    extent.height = std::max(extent.height, DibHeight(digits[*c - '0'].picture));
  }
  return extent;
}

void CalenNumberDraw(Canvas* canvas, const CalenPage& page, int day, Point at, const char* text) {
  const MaskedFrame* digits = DigitsOf(page, day);
  if (!digits) {
    CanvasTextColour(canvas, CalenDayColour(page, day));
    CanvasText(canvas, at.x, at.y, text);
    return;
  }
  for (const char* c = text; *c != '\0'; ++c) {
    if (!IsDigit(*c)) continue;
    CalenPictureDraw(canvas, digits[*c - '0'], at);
    at.x += DibWidth(digits[*c - '0'].picture);
  }
}
