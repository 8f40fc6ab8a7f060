// What the tick, the start and the shutdown ask of the windows of the clock and
// the calendar.
#pragma once

// WatchAdustDlg: draws the shared time into it when the second has changed.
void WatchAdustTimeDraw();

// A clock preview that is playing goes on, drawn into the tool dialog at
// (10, 120); with no tool dialog it stops.
void ClockPreviewStep();
void ClockPreviewFree();

// Steps the ticker of the calendar window.
void CalenTickerTick();

// Open the clock window, FlyingBat6, and the calendar window, FlyingBat3.
void ClockWindowOpen();
void CalenWindowOpen();

void CalenFontDelete();
// Frees the pictures of the stickers and of the month on display.
void CalenStickersFree();
