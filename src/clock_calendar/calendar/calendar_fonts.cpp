#include "clock_calendar/calendar/calendar_fonts.h"

#include <algorithm>
#include <cstdlib>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"

CalendarFontsState CalendarFonts;

namespace {

constexpr int kSmallWidth = 6;
constexpr int kSmallHeight = 8;
constexpr int kWeightNormal = 400;
constexpr char kFace[] = "ＭＳ ゴシック";
constexpr std::int32_t kLargest = 64;

// bounded: a font of the calendar file is no higher than a page can hold.
int Held(std::int32_t size) {
  return static_cast<int>(std::clamp(size, -kLargest, kLargest));
}

// settled: a calendar whose digits are figures writes its other texts with its font too.
bool HasFont(const CalenDefinition& definition) {
  return definition.design != 0 && definition.font.height != 0;
}

void PageFontMake(const CalenFont& font) {
  FontDelete(CalendarFonts.page);
  CalendarFonts.page = FontCreate(std::abs(Held(font.width)), Held(font.height),
                                  std::clamp(font.weight, 0, 1000), font.italic != 0, font.face);
  CalendarFonts.pageIs = font;
}

}  // namespace

FontHandle CalenSmallFont() {
  if (!CalendarFonts.small)
    CalendarFonts.small = FontCreate(kSmallWidth, kSmallHeight, kWeightNormal, false, kFace);
  return CalendarFonts.small;
}

FontHandle CalenPageFont() {
  const CalenDefinition& definition = CalenSelectedDefinition();
  if (!HasFont(definition)) return CalenSmallFont();
  if (!CalendarFonts.page || CalendarFonts.pageIs != definition.font) PageFontMake(definition.font);
  return CalendarFonts.page;
}

int CalenPageLineHeight() {
  const CalenDefinition& definition = CalenSelectedDefinition();
  return HasFont(definition) ? std::abs(Held(definition.font.height)) : kSmallHeight;
}

void CalenFontDelete() {
  FontDelete(CalendarFonts.page);
  FontDelete(CalendarFonts.small);
  CalendarFonts = {};
}
