#include "clock_calendar/calendar/calendar_picture.h"

#include <algorithm>
#include <iterator>

#include "character/alarm_images.h"
#include "character/frames.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "services/path.h"
#include "services/program.h"
#include "services/text.h"

CalendarPicturesState CalendarPictures;

namespace {

void StickersFree(CalendarPicturesState& of) {
  for (MaskedFrame& sticker : of.CalenDayStickers) MaskedFrameFree(sticker);
  for (auto& set : of.CalenDigits) {
    for (MaskedFrame& digit : set) MaskedFrameFree(digit);
  }
}

void FiguresFree(CalendarPicturesState& of) {
  DibFree(of.CalenBackground);
  of.CalenBackground = nullptr;
  for (MaskedFrame& figure : of.CalenFigures) MaskedFrameFree(figure);
}

void FigureLoad(CalendarPicturesState& to, int month, int place) {
  const CalenDefinition& definition = CalenSelectedDefinition();
  const int chara = definition.charas[month][place];
  if (chara == 0) return;
  const int frame =
      CalenFigureChoice(chara, definition.figures[month][place], definition.figureModes[month][place]);
  MaskedFrameLoad(to.CalenFigures[place], chara, frame);
}

void FiguresLoad(CalendarPicturesState& to, int yearIndex, int month) {
  FiguresFree(to);
  const CalenMonthPicture& picture = Calendar.CalenMonths[yearIndex][month].picture;
  if (picture.pictureOn != 0) {
    CalenBackgroundLoad(to, picture);
    for (int place = 0; place < kFigurePlaces; ++place) FigureLoad(to, month, place);
  }
}

CalenLoaded Wanted() {
  return {true, CalenSelected(), Calendar.CalenYears[CalenYearShown()], Calendar.CalenMonthPos};
}

void DigitsLoad(CalendarPicturesState& to) {
  constexpr int kDesignOfFigures = 2;
  const CalenDefinition& definition = CalenSelectedDefinition();
  const int sets[kDigitSets] = {definition.figureSet1, definition.figureSet2};
  if (definition.design < kDesignOfFigures) return;
  for (int set = 0; set < kDigitSets; ++set) {
    if (sets[set] == 0) continue;
    for (int digit = 0; digit < kDigitCount; ++digit)
      MaskedFrameLoad(to.CalenDigits[set][digit], sets[set], digit);
  }
}

void StickersLoad(CalendarPicturesState& to, int month) {
  StickersFree(to);
  const auto& days = CalenSelectedDefinition().stickers[month];
  for (int day = 0; day < kStickerDays; ++day) {
    int chara = 0;
    int figure = 0;
    CalenSticker(days[day] - 1, &chara, &figure);
    if (chara != 0) MaskedFrameLoad(to.CalenDayStickers[day], chara, figure);
  }
  DigitsLoad(to);
}

}  // namespace

void CalenBackgroundLoad(CalendarPicturesState& to, const CalenMonthPicture& month) {
  char name[kMonthBackgroundMax + 1];
  TextCopy(name, sizeof name, month.background);
  if (month.pictureOn == 0 || month.colourOnly != 0 || name[0] == '\0') return;
  char path[kRootPathSize + kMonthBackgroundSize] = "";
  if (!PathIsFull(name)) RootPath(path, sizeof path, "\\背景\\");
  TextAppend(path, sizeof path, name);
  to.CalenBackground = DibLoad(path);
}

void CalenPictureDraw(Canvas* canvas, const MaskedFrame& item, Point at) {
  if (item.picture) MaskedDraw(canvas, at.x, at.y, item.picture, item.mask);
}

void CalenMonthPicturesLoad(CalendarPicturesState& to, int yearIndex, int month) {
  StickersLoad(to, month);
  FiguresLoad(to, yearIndex, month);
}

void CalenMonthPicturesFree(CalendarPicturesState& pictures) {
  StickersFree(pictures);
  FiguresFree(pictures);
}

int CalenPictureHeight() {
  if (Calendar.CalenPictureOn == 0) return 0;
  if (Calendar.CalenPageSize == 0) return 145;
  return Calendar.CalenPageSize == 2 ? 245 : 195;
}

void CalenPicturesLoad() {
  FiguresLoad(CalendarPictures, CalenYearShown(), Calendar.CalenMonthPos);
  const CalenMonthPicture& month = Calendar.CalenMonths[CalenYearShown()][Calendar.CalenMonthPos].picture;
  std::copy_n(month.backColour, std::size(month.backColour), Calendar.CalenBackColour);
  CalenFiguresSetup();
  CalendarPictures.loaded = Wanted();
}

bool CalenPicturesAreLoaded() {
  return CalendarPictures.loaded == Wanted();
}

void CalenStickersPrepare() {
  StickersLoad(CalendarPictures, Calendar.CalenMonthPos);
}

void CalenStickersFree() {
  CalenMonthPicturesFree(CalendarPictures);
  CalendarPictures.loaded = {};
}
