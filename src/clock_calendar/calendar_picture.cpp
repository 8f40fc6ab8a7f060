// The pictures of the month on show.
#include "clock_calendar/calendar.h"

void CalenPicturesLoad() {}

void CalenStickersPrepare() {}

bool CalenFiguresMove() {
  return false;
}
