// The pictures of the month on show: its background, its figures, the stickers of
// its days; and how the figures move.
#pragma once

#include <cstdint>

#include "clock_calendar/calendar/calendar.h"
#include "services/dib.h"

// A picture with its mask, the mask applied.
struct CalenPicture {
  ImageHandle picture;
  ImageHandle mask;
};

// Two figures move, the third stands where the definition puts it.
inline constexpr int kFigurePlaces = 3;
inline constexpr int kStickerDays = 31;

struct CalendarPicturesState {
  ImageHandle CalenBackground = nullptr;
  CalenPicture CalenFigures[kFigurePlaces] = {};
  Point CalenFixedFigure = {};
  CalenPicture CalenDayStickers[kStickerDays] = {};  // by the day from 0
};
extern CalendarPicturesState CalendarPictures;

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
// Loads the pictures of the stickers of the month on display.
void CalenStickersPrepare();

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
