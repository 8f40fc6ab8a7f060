#include "clock_calendar/calendar.h"

#include <algorithm>
#include <cstring>

#include "shell/text.h"

unsigned char CalenStickers[kStickerListSize];

std::int32_t CalenCount;
char CalenNames[kCalenMax][kCalenNameSize];
unsigned char CalenKinds[kCalenMax];
unsigned char CalenParts[kCalenMax];
unsigned char CalenPictures[kCalenMax];
unsigned char CalenSheets[kCalenMax][kMonthsOfYear][kMonthBlockSize];
unsigned char CalenSheetFlags[kCalenMax][kMonthsOfYear][kMonthFlagsSize];
unsigned char CalenDefinitions[kCalenMax][kDefinitionSize];

std::int32_t CalenSel;
unsigned char CalenMonths[kCalenYearMax][kMonthsOfYear][kMonthBlockSize];
unsigned char CalenMonthFlags[kCalenYearMax][kMonthsOfYear][kMonthFlagsSize];
unsigned char CalenYears[kCalenYearMax];
std::int32_t CalenShow;
std::int32_t CalenYearPos;
std::int32_t CalenFirstYear;
std::int32_t CalenYearCount;
std::int32_t CalenKind;
std::int32_t CalenX;
std::int32_t CalenY;
std::int32_t CalenPageSize;
std::int32_t CalenNoteMode;
std::int32_t CalenNearNote;
std::int32_t CalenPictureOn;
unsigned char CalenBackColour[4];

unsigned char CalenFigPhase[kFigureCount][kFigureCopies];
unsigned char CalenFigCount[kFigureCount];
std::int32_t CalenFigPos1[kFigureCopies][2];
std::int32_t CalenFigPos2[kFigureCopies][2];
std::int32_t CalenFigPeriod[kFigureCount];
std::int32_t CalenFigStep[kFigureCount];
std::int32_t CalenFigTurn[kFigureCount];
unsigned char CalenFigDir[kFigureCount][kFigureCopies];

std::int32_t CalenMonthPos;

std::int32_t CalenW;
std::int32_t CalenH;

namespace {

// The month block of a day; null outside the tables.
unsigned char* MonthAt(int yearIndex, int month, int day) {
  const bool inside = yearIndex >= 0 && yearIndex < kCalenYearMax && month >= 0 && month < kMonthsOfYear &&
                      day >= 0 && day < kMonthDayMax;
  return inside ? CalenMonths[yearIndex][month] : nullptr;
}

}  // namespace

int CalenStickerCount() {
  return std::min<int>(GetLE16(CalenStickers + kStickerCount), kStickerMax);
}

void CalenSticker(int place, int* chara, int* figure) {
  const bool inside = place >= 0 && place < CalenStickerCount();
  *chara = inside ? GetLE16(CalenStickers + kStickerCharas + 2 * place) : 0;
  *figure = inside ? CalenStickers[kStickerFigures + place] : 0;
}

int CalenSelected() {
  return CalenSel >= 0 && CalenSel < kCalenMax ? CalenSel : 0;
}

unsigned char* CalenDefinition() {
  return CalenDefinitions[CalenSelected()];
}

int CalenYearShown() {
  return CalenYearPos >= 0 && CalenYearPos < kCalenYearMax ? CalenYearPos : 0;
}

int CalenSpanIndex(int year) {
  const std::int64_t index = std::int64_t{year} - CalenFirstYear;
  return index >= 0 && index < std::min<std::int32_t>(CalenYearCount, kCalenYearMax) ? static_cast<int>(index)
                                                                                     : -1;
}

bool CalenHolidayFlag(int yearIndex, int month, int day) {
  const unsigned char* block = MonthAt(yearIndex, month, day);
  return block && block[kMonthHolidays + day] != 0;
}

void CalenHolidayFlagSet(int yearIndex, int month, int day, bool holiday) {
  unsigned char* block = MonthAt(yearIndex, month, day);
  if (block) block[kMonthHolidays + day] = holiday ? 1 : 0;
}

void CalenNoteGet(int yearIndex, int month, int day, char (&to)[kNoteSize + 1]) {
  to[0] = '\0';
  const unsigned char* block = MonthAt(yearIndex, month, day);
  if (!block) return;
  std::memcpy(to, block + kMonthNotes + kNoteSize * day, kNoteSize);
  to[kNoteSize] = '\0';
}

void CalenNoteSet(int yearIndex, int month, int day, const char* note) {
  unsigned char* block = MonthAt(yearIndex, month, day);
  if (!block) return;
  unsigned char* field = block + kMonthNotes + kNoteSize * day;
  std::memset(field, 0, kNoteSize);
  std::memcpy(field, note, TextPrefix(note, kNoteSize - 1));
}
