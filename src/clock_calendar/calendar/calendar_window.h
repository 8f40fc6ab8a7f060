// What the tick, the start, the shutdown and the layout ask of the calendar's window.
#pragma once

// Steps the ticker of the calendar window.
void CalenTickerTick();

// Opens the calendar window, FlyingBat3.
void CalenWindowOpen();

void CalenFontDelete();
// Frees the pictures of the stickers and of the month on display.
void CalenStickersFree();
