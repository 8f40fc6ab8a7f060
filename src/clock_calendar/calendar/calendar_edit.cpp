#include "clock_calendar/calendar/calendar_edit.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "clock_calendar/calendar/calendar_size.h"
#include "services/settings_save.h"
#include "services/text.h"
#include "services/today.h"

CalendarEditState CalendarEdit;

namespace {

CalenMonth& MonthEdited() {
  return Calendar.CalenMonths[CalenYearShown()][CalendarEdit.month];
}

int DaysEdited() {
  return std::clamp<int>(MonthEdited().days, 1, kCalenDayMax);
}

void PicturesLoad() {
  CalenMonthPicturesLoad(CalendarEdit.pictures, CalenYearShown(), CalendarEdit.month);
}

}  // namespace

void CalenEditBegin() {
  CalendarEdit.changed = false;
  const int clicked = Calendar.CalenClickedDay;
  CalendarEdit.month = std::clamp<std::int32_t>(Calendar.CalenMonthPos, 0, kMonthsOfYear - 1);
  CalenEditDaySet(clicked > 0 ? clicked - 1 : CalenSpanIndex(Today.TodayYear) >= 0 ? Today.TodayDay : 0);
  PicturesLoad();
}

void CalenEditEnd() {
  CalenMonthPicturesFree(CalendarEdit.pictures);
}

void CalenEditMonthSet(int yearIndex, int month) {
  if (yearIndex >= 0 && yearIndex < kCalenYearMax) Calendar.CalenYearPos = yearIndex;
  CalendarEdit.month = std::clamp(month, 0, kMonthsOfYear - 1);
  CalenEditDaySet(CalendarEdit.day);
  PicturesLoad();
}

void CalenEditDaySet(int day) {
  CalendarEdit.day = std::clamp(day, 0, DaysEdited() - 1);
}

void CalenEditSpanSet(int firstYear, int length) {
  CalenSpanSet(firstYear, length);
  CalendarEdit.changed = true;
  CalenEditMonthSet(0, CalendarEdit.month);
}

void CalenEditNoteSet(const char* note) {
  if (CalenNoteSet(CalenYearShown(), CalendarEdit.month, CalendarEdit.day, note)) CalendarEdit.changed = true;
}

void CalenEditHolidayTurn() {
  std::uint8_t& flag = MonthEdited().holidays[CalendarEdit.day];
  flag = flag == 0 ? 1 : 0;
  CalendarEdit.changed = true;
}

void CalenEditStickerSet(int sticker) {
  CalenSelectedDefinition().stickers[CalendarEdit.month][CalendarEdit.day] =
      static_cast<std::uint8_t>(sticker + 1);
  CalendarEdit.changed = true;
  PicturesLoad();
}

void CalenEditNotesClear() {
  CalenMonth& month = MonthEdited();
  std::memset(month.notes, 0, sizeof month.notes);
  CalendarEdit.changed = true;
}

void CalenEditHolidaysClear() {
  CalenMonth& month = MonthEdited();
  std::memset(month.holidays, 0, sizeof month.holidays);
  CalendarEdit.changed = true;
}

void CalenEditStickersClear() {
  auto& stickers = CalenSelectedDefinition().stickers[CalendarEdit.month];
  std::memset(stickers, 0, sizeof stickers);
  CalendarEdit.changed = true;
  PicturesLoad();
}

// --- The month's picture

void CalenEditBmpTake() {
  const CalenDefinition& definition = CalenSelectedDefinition();
  const int month = CalendarEdit.month;
  CalendarEdit.bmp = {};
  CalendarEdit.bmp.picture = MonthEdited().picture;
  for (int figure = 0; figure < kFigureCount; ++figure) {
    CalendarEdit.bmp.picture.charas[figure] = definition.charas[month][figure];
    CalendarEdit.bmp.picture.figures[figure] = definition.figures[month][figure];
    CalendarEdit.bmp.modes[figure] = definition.figureModes[month][figure];
  }
}

void CalenEditBmpPut() {
  CalenDefinition& definition = CalenSelectedDefinition();
  const CalenBmpEdit& bmp = CalendarEdit.bmp;
  const int month = CalendarEdit.month;
  const CalenMonthPicture before = MonthEdited().picture;
  for (auto& year : Calendar.CalenMonths) year[month].picture = bmp.picture;
  for (int figure = 0; figure < kFigureCount; ++figure) {
    definition.charas[month][figure] = bmp.picture.charas[figure];
    definition.figures[month][figure] = bmp.picture.figures[figure];
    definition.figureModes[month][figure] = bmp.modes[figure];
  }
  PicturesLoad();
  for (int figure = 0; figure < kFigureCount; ++figure) {
    const int place = bmp.picture.starts[figure];
    if (place == 0 || place == before.starts[figure]) continue;
    const ImageHandle picture = CalendarEdit.pictures.CalenFigures[figure].picture;
    const Point at = CalenStartPlace(place, DibWidth(picture), DibHeight(picture));
    definition.startX[month][figure] = at.x;
    definition.startY[month][figure] = at.y;
  }
  CalendarEdit.changed = true;
}

Point CalenStartPlace(int place, int width, int height) {
  constexpr int kPerRow = 3;
  const int picture = CalenPictureHeight();
  const int roomX = std::max(CalenPageMeasure().pageWidth - width, 0);
  const int roomY = std::max(picture - height, 0);
  const int at = std::clamp(place, 1, kStartPlaces - 1) - 1;
  return {roomX * (at % kPerRow) / 2, roomY * (at / kPerRow) / 2};
}

void CalenEditNoteBegin() {
  CalendarEdit.noteYear = Calendar.CalenYears[CalenYearShown()];
  CalendarEdit.noteMonth = Calendar.CalenMonthPos;
  CalendarEdit.noteDay = Calendar.CalenClickedDay - 1;
}

bool CalenEditNoteWrite(const char* note) {
  const int year = CalenSpanIndex(CalendarEdit.noteYear);
  CalenNoteSet(year, CalendarEdit.noteMonth, CalendarEdit.noteDay, note);
  return SysFileWrite() == 0 && year >= 0;
}

int CalenSave() {
  const int settings = SysFileWrite();
  const int calendars = CalenFileWrite();
  if (calendars == 0) CalendarFileSaved();
  return settings == 0 && calendars == 0 ? 0 : -1;
}
