#include "clock_calendar/calendar/calendar_picture.h"

#include "character/frames.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "services/program.h"
#include "services/text.h"

CalendarPicturesState CalendarPictures;

namespace {

void PictureFree(CalenPicture& item) {
  DibFree(item.picture);
  DibFree(item.mask);
  item = CalenPicture{};
}

// Loads a frame (from 0) of a character (from 1).
void PictureLoad(CalenPicture& item, int chara, int frame) {
  item.picture = DibLoad(CharaBmpPath(chara - 1, frame));
  item.mask = DibLoad(CharaMaskPath(chara - 1, frame));
  DibApplyMask(item.picture, item.mask);
}

void StickersFree() {
  for (CalenPicture& sticker : CalendarPictures.CalenDayStickers) PictureFree(sticker);
}

void MonthPicturesFree() {
  DibFree(CalendarPictures.CalenBackground);
  CalendarPictures.CalenBackground = nullptr;
  for (CalenPicture& figure : CalendarPictures.CalenFigures) PictureFree(figure);
}

void BackgroundLoad(const CalenMonthPicture& month) {
  char name[kMonthBackgroundMax + 1];
  TextCopy(name, sizeof name, month.background);
  if (month.colourOnly != 0 || name[0] == '\0') return;
  char path[kRootPathSize + kMonthBackgroundSize] = "";
  const bool fullPath = name[0] == '\\' || name[1] == ':';
  if (!fullPath) RootPath(path, sizeof path, "\\背景\\");
  TextAppend(path, sizeof path, name);
  CalendarPictures.CalenBackground = DibLoad(path);
}

void FigureLoad(int place) {
  const CalenDefinition& definition = CalenSelectedDefinition();
  const int month = Calendar.CalenMonthPos;
  const int chara = definition.charas[month][place];
  if (chara == 0) return;
  const int frame =
      CalenFigureChoice(chara, definition.figures[month][place], definition.figureModes[month][place]);
  PictureLoad(CalendarPictures.CalenFigures[place], chara, frame);
}

}  // namespace

int CalenPictureHeight() {
  if (Calendar.CalenPictureOn == 0) return 0;
  if (Calendar.CalenPageSize == 0) return 145;
  return Calendar.CalenPageSize == 2 ? 245 : 195;
}

void CalenPicturesLoad() {
  MonthPicturesFree();
  const int month = Calendar.CalenMonthPos;
  const CalenMonthPicture& picture = Calendar.CalenMonths[CalenYearShown()][month].picture;
  if (picture.pictureOn != 0) {
    BackgroundLoad(picture);
    for (int place = 0; place < kFigurePlaces; ++place) FigureLoad(place);
  }
  const CalenDefinition& definition = CalenSelectedDefinition();
  CalendarPictures.CalenFixedFigure = {definition.startX[month][kFigureCount],
                                       definition.startY[month][kFigureCount]};
  CalenFiguresSetup();
}

void CalenStickersPrepare() {
  StickersFree();
  const auto& days = CalenSelectedDefinition().stickers[Calendar.CalenMonthPos];
  for (int day = 0; day < kStickerDays; ++day) {
    int chara = 0;
    int figure = 0;
    CalenSticker(days[day] - 1, &chara, &figure);
    if (chara != 0) PictureLoad(CalendarPictures.CalenDayStickers[day], chara, figure);
  }
}

void CalenStickersFree() {
  StickersFree();
  MonthPicturesFree();
}
