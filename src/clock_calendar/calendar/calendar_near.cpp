// The notes of the coming days: the list under the page, and the ticker over it.
#include <algorithm>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_fonts.h"
#include "clock_calendar/calendar/calendar_memo.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/painting.h"
#include "services/screen_figures.h"
#include "services/text.h"

namespace {

constexpr int kEntrySize = kNoteSize + 16;
constexpr int kListHeight = 20;
constexpr int kStripHeight = 20;
constexpr int kTextInStrip = 2;
constexpr Colour kComplement = 0xFFFFFF;

void EntryText(int day, char (&text)[kEntrySize]) {
  char note[kNoteSize + 1];
  CalenNoteGet(CalenYearShown(), Calendar.CalenMonthPos, day, note);
  TextFormat(text, sizeof text, "%d日: %s  ", day + 1, note);
}

}  // namespace

void CalenNearListDraw(Canvas* canvas, Point at, int width) {
  constexpr int kLines = kListHeight / (kCalenSmallLine + 2);
  const Colour today = ColourOf(CalenSelectedDefinition().tickerColour);
  CanvasFont(canvas, CalenSmallFont());
  int line = 0;
  int x = 0;
  for (int i = 0; i < Calendar.CalenNearCount; ++i) {
    char text[kEntrySize];
    EntryText(Calendar.CalenNearDays[i], text);
    const int entry = CanvasTextWidth(canvas, text);
    if (x > 0 && x + entry > width) {
      x = 0;
      ++line;
    }
    if (line >= kLines) return;
    CanvasTextColour(canvas, Calendar.CalenNearDays[i] == CalenTodayShown() ? today : kCalenBlack);
    CanvasText(canvas, at.x + x, at.y + line * (kCalenSmallLine + 2), text);
    x += entry;
  }
}

// --- The ticker

namespace {

int StripTop() {
  const int picture = CalenPictureHeight();
  const int page = CalenPageHeight();
  switch (Calendar.CalenTickerPlace) {
    case 1:
      return picture / 2 - 10;
    case 2:
      return picture - 20;
    case 3:
      return page - 40;
    case 4:
      return (picture + page) / 2 - 10;
    default:
      return 0;
  }
}

// The notes that the ticker tells, one behind the other.
int TickerText(char (&text)[kCalenDayMax * kEntrySize]) {
  text[0] = '\0';
  std::size_t length = 0;
  const int today = CalenTodayShown();
  if (today < 0) return 0;  // the year on display is yet to come
  for (int i = 0; i < Calendar.CalenNearCount; ++i) {
    if (Calendar.CalenNearDays[i] >= today + Calendar.CalenTickerReach) break;
    char entry[kEntrySize];
    EntryText(Calendar.CalenNearDays[i], entry);
    length = TextAppend(text, sizeof text, entry);
  }
  return static_cast<int>(length);
}

// The part of a line that begins at x and lies inside a window: where it begins, and its
// bytes. The text font has columns of one width, a byte each.
struct Part {
  int x;
  const char* text;
  int length;
};
Part PartInside(const char* text, int length, int x, int width, int column) {
  const auto hidden = static_cast<int>(TextPrefix(text, static_cast<std::size_t>(std::max(-x / column, 0))));
  const int room = std::max(width - x - hidden * column, 0) / column + 2;
  const auto seen = TextPrefix(text + hidden, static_cast<std::size_t>(std::min(room, length - hidden)));
  return {x + hidden * column, text + hidden, static_cast<int>(seen)};
}

}  // namespace

bool CalenTickerDraw(Canvas* screen) {
  char text[kCalenDayMax * kEntrySize];
  const int length = TickerText(text);
  const int width = CalenLayoutWidth();
  const int column = std::max(Screen.CharWidth, 1);
  const int top = StripTop();
  const int x = width - Calendar.tickerPosition * Calendar.CalenTickerStep;
  const Colour colour = ColourOf(Calendar.CalenTickerColour);
  const bool shows = length > 0 && x + length * column > 0;
  DrawSteady(screen, {0, top, width, top + kStripHeight}, [&](Canvas* canvas, const Rect& area) {
    FillColour(canvas, colour ^ kComplement, area);
    if (!shows) return;
    CanvasTextColour(canvas, colour);
    CanvasBackTransparent(canvas, true);
    const Part part = PartInside(text, length, x, width, column);
    CanvasText(canvas, area.left + part.x, area.top + kTextInStrip, part.text, part.length);
  });
  return shows;
}
