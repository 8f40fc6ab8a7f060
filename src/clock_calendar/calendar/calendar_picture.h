// The pictures of the month on show: its background, its figures, the stickers of
// its days; and how the figures move.
#pragma once

#include <cstdint>

#include "character/frames.h"
#include "clock_calendar/calendar/calendar.h"
#include "platform/canvas.h"
#include "services/dib.h"

// Two figures move, the third stands where the definition puts it.
inline constexpr int kFigurePlaces = 3;
inline constexpr int kStickerDays = 31;

inline constexpr int kDigitSets = 2;
inline constexpr int kDigitCount = 10;

// Whose pictures are loaded.
struct CalenLoaded {
  bool any;
  std::int32_t calendar;
  std::int32_t year;  // two digits
  std::int32_t month;

  bool operator==(const CalenLoaded&) const = default;
};

struct CalendarPicturesState {
  CalenLoaded loaded = {};
  ImageHandle CalenBackground = nullptr;
  MaskedFrame CalenFigures[kFigurePlaces] = {};
  MaskedFrame CalenDayStickers[kStickerDays] = {};  // by the day from 0
  // The digits of a page that writes with figures: of plain days, and of those in colour.
  MaskedFrame CalenDigits[kDigitSets][kDigitCount] = {};
};
extern CalendarPicturesState CalendarPictures;  // of the month on the desktop

// Draws a picture over what is there, by its mask; nothing without a picture.
void CalenPictureDraw(Canvas* canvas, const MaskedFrame& item, Point at);

// Loads all pictures of a month of the working array in place of what is there: for a
// preview, whose pictures are its own; frees them.
void CalenMonthPicturesLoad(CalendarPicturesState& to, int yearIndex, int month);
void CalenMonthPicturesFree(CalendarPicturesState& pictures);
// Loads the background that a month's settings name, if they want one.
void CalenBackgroundLoad(CalendarPicturesState& to, const CalenMonthPicture& month);

// Height of the part of the page that pictures stand in, by the page size; 0 while
// CalenPictureOn is not set.
int CalenPictureHeight();

// Frees the pictures of the month and loads those of the month on display: the
// background unless the month asks for its colour only, and the figures. A figure
// goes on from where it stood; one that has never stood anywhere is placed.
void CalenPicturesLoad();
// Works out how the figures of the month on display move, their pictures loaded.
void CalenFiguresSetup();
// Puts a moving figure (0 or 1) at the start that the definition gives it, in the
// direction that the month gives it.
void CalenFigurePlace(int figure);
// Loads the pictures of the stickers of the month on display, and the page's digits.
void CalenStickersPrepare();
// Whether all of them are loaded already.
bool CalenPicturesAreLoaded();

// The figure that a place of the page shows: the stored one, or with mode 1 and 2
// the one that belongs to the year on display, of a character (from 1) with 10 or
// 12 named frames.
int CalenFigureChoice(int chara, int stored, int mode);

// Calls of the tick check from one move to the next, by the period's code.
int CalenPeriodOf(int code);
// Pixels of one move of a figure of that height, by the step's code.
int CalenStepOf(int code, int height);

// Moves the figures of the page by one tick. True when one has moved.
bool CalenFiguresMove();
// In how many ticks the next figure moves; kTickNever when none does.
int CalenFiguresDue();

// Where a moving figure (0 or 1) stands, its correction by the month included.
Point CalenFigureAt(int figure);
