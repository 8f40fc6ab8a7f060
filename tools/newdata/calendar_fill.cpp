#include <cstring>
#include <stdexcept>
#include <string>

#include "clock_calendar/calendar/calendar.h"
#include "newdata/cast.h"
#include "newdata/holidays.h"
#include "newdata/pixels.h"
#include "newdata/tables.h"

namespace {

constexpr int kFirstYear = 2022;  // the holidays have been these since then
constexpr int kLastYear = 2099;

constexpr Rgb kHolidayColour{230, 0, 0};
constexpr Rgb kTickerColour{0, 70, 160};

// The letters of the pages: small enough for the smallest page.
constexpr int kLetterHeight = 12;
constexpr int kLetterWidth = 6;
constexpr int kLetterWeight = 400;
constexpr char kLetterFace[] = "ＭＳ ゴシック";

void PutColour(unsigned char* to, const Rgb& colour) {
  to[0] = colour.red;
  to[1] = colour.green;
  to[2] = colour.blue;
}

void FillDefinition(CalenDefinition& definition, int year) {
  definition = CalenDefinition{};
  definition.valid = 1;
  const std::vector<HolidayRule> rules = HolidayRulesFor(year);
  for (std::size_t i = 0; i < rules.size(); ++i) {
    definition.ruleKinds[i] = static_cast<std::uint8_t>(rules[i].kind);
    definition.ruleParameters[i] = {static_cast<std::uint8_t>(rules[i].month),
                                    static_cast<std::uint8_t>(rules[i].value)};
  }
  PutColour(definition.colour1, kHolidayColour);
  PutColour(definition.colour2, kHolidayColour);
  definition.design = 1;
  definition.font.height = kLetterHeight;
  definition.font.width = kLetterWidth;
  definition.font.weight = kLetterWeight;
  static_assert(sizeof kLetterFace <= kFontFaceSize);
  std::memcpy(definition.font.face, kLetterFace, sizeof kLetterFace);
  PutColour(definition.tickerColour, kTickerColour);
}

// Every frame of the sticker characters is a sticker. The list holds a character
// by its number from 1 and a frame from 0.
void FillStickers() {
  CalenStickerList& stickers = Calendar.CalenStickers;
  stickers = CalenStickerList{};
  for (const CastMember* member : CastOf(Role::Sticker)) {
    for (std::size_t frame = 0; frame < member->frames.size() && stickers.count < kStickerMax; ++frame) {
      stickers.charas[stickers.count] = static_cast<std::uint16_t>(member->number);
      stickers.figures[stickers.count] = static_cast<std::uint8_t>(frame);
      ++stickers.count;
    }
  }
}

// Flags the holidays of a year of the working array that the rules pass over.
void FlagRemainingHolidays(int yearIndex, int year) {
  const std::int32_t shown = Calendar.CalenYearPos;
  Calendar.CalenYearPos = yearIndex;
  for (const MonthDay& date : HolidaysOf(year)) {
    if (CalenHolidayRule(yearIndex, date.month - 1, date.day - 1, HolidayUse::Display) == 0) {
      CalenHolidayFlagSet(yearIndex, date.month - 1, date.day - 1, true);
    }
  }
  Calendar.CalenYearPos = shown;
}

}  // namespace

void FillCalendars(int year) {
  if (year < kFirstYear || year > kLastYear) {
    throw std::runtime_error("calendars can begin from " + std::to_string(kFirstYear) + " to " +
                             std::to_string(kLastYear));
  }
  CalenYearsSet(year - 2000);
  Calendar.CalenYearCount = 1;
  Calendar.CalenYearPos = 0;
  Calendar.CalenSel = 0;
  Calendar.CalenKind = Calendar.CalenKinds[Calendar.CalenSel];
  Calendar.CalenPictureOn = 1;
  std::memset(Calendar.CalenBackColour, 0, sizeof Calendar.CalenBackColour);
  PutColour(Calendar.CalenBackColour, kWhite);
  FillStickers();
  for (int i = 0; i < Calendar.CalenCount; ++i) FillDefinition(Calendar.CalenDefinitions[i], year);
  for (int i = 0; i < kCalenYearMax; ++i) {
    CalenYearInit(i);
    if (year + i <= kLastYear) FlagRemainingHolidays(i, year + i);
  }
  for (int i = 0; i < Calendar.CalenCount; ++i)
    std::memcpy(Calendar.CalenSheets[i], Calendar.CalenMonths[0], sizeof Calendar.CalenSheets[i]);
}
