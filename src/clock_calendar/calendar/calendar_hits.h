// Where the days stand in the calendar's window.
#pragma once

#include "clock_calendar/calendar/calendar.h"
#include "platform/types.h"

// A painting begins: no day has a place; its cells have this size.
void CalenHitsBegin(int width, int height);
void CalenHitSet(int day, Point at);

// Answers of the hit test that are no day.
inline constexpr int kHitNothing = 0;
inline constexpr int kHitMemoClose = 255;
inline constexpr int kHitMemoBack = 256;
inline constexpr int kHitMemoOn = 257;

// What stands at a place of the window: a part of the memo panel, or a day from 1.
int CalenHitTest(int x, int y);

// Moves the week or day page by a step: kHitMemoBack or kHitMemoOn. The month page stays.
void CalenDayStep(int way);
// The day page's distance from today; for a painting that has found it beyond the month.
void CalenDayOffsetSet(std::int32_t offset);

// The memo panel's parts, by the window's width.
int CalenMemoTop();
Rect CalenMemoCloseBox();
Rect CalenMemoArrow(int way);

// The days with notes from today onward, for the list under the page and the ticker.
void CalenNearDaysCollect(int yearIndex, int month, int today, int days);
