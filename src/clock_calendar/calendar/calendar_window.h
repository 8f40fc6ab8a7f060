// What the tick, the start, the shutdown and the layout ask of the calendar's window.
#pragma once

// Steps the ticker of the calendar window; in how many ticks it has more to do than to
// count.
void CalenTickerTick();
int CalenTickerDue();

// In how many ticks the calendar window, which is open, has something to do: its ticker,
// its figures, the next day.
int CalenWindowDue();

// Opens the calendar window, FlyingBat3.
void CalenWindowOpen();

// Closes and opens the window, if it is open, so that it takes another size or place; opens
// or closes it as the calendar is set to show.
void CalenWindowRenew();

void CalenFontDelete();
// Frees the pictures of the stickers and of the month on display.
void CalenStickersFree();
