// The pictures of the alarm characters: three rows, each of one character's frames
// with their masks, that the notice windows play.
#pragma once

#include "character/character.h"
#include "character/outline.h"
#include "platform/types.h"
#include "services/dib.h"

// Rows of AlarmRows, as AlarmCharaSel counts them.
inline constexpr int kAlarmMail = 0;
inline constexpr int kAlarmSchedule = 1;
inline constexpr int kAlarmNote = 2;  // calendar notes and clock alarms

struct AlarmRow {
  ImageHandle pictures[kFrameMax];
  ImageHandle masks[kFrameMax];
  int frameCount;  // 0 to 20; 0: the row is empty
};
struct AlarmImagesState {
  AlarmRow AlarmRows[kAlarmRowCount] = {};
};
extern AlarmImagesState AlarmImages;

// Frees the three rows and loads them as AlarmCharaSel selects.
void AlarmCharaLoad();

// The same for one row by a selection: 0 none, else 1 + place in the alarm list.
void AlarmRowLoad(AlarmRow* row, int selection);
void AlarmRowFree(AlarmRow* row);

// The place after `frame` in a row, going round; 0 for an empty one.
int AlarmFrameNext(const AlarmRow& row, int frame);

// Draws a frame of a row; one that is missing or beyond the row draws nothing.
void AlarmFrameDraw(Canvas* canvas, int x, int y, const AlarmRow& row, int frame);

// The height of a frame, 0 for one that is missing.
int AlarmFrameHeight(const AlarmRow& row, int frame);

// Draws a picture over any background: what its mask leaves white stays. The
// picture has had its mask applied. Without a mask it is only added.
void MaskedDraw(Canvas* canvas, int x, int y, ImageHandle picture, ImageHandle mask);

// Draws a frame into a box of the window that is cleared to the face colour first,
// in memory so that it does not flicker.
void AlarmFrameShow(WindowHandle window, const Rect& box, const AlarmRow& row, int frame);
