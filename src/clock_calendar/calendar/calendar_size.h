// The sizes of the calendar's pages and of its window, in pixels, by the page size of the
// settings.
#pragma once

// What the month page and the week page are ruled by.
struct CalenMeasure {
  int column;
  int pageWidth;
  int row;
};
CalenMeasure CalenPageMeasure();

// What the day page is ruled by.
struct CalenLeaf {
  int unit;
  int pageWidth;
  int row;
  int distanceWidth;  // of the box that tells the distance from today
  int margin;
};
CalenLeaf CalenDayLeaf();

// The height of the page: its picture above its text.
int CalenPageHeight();

// How far the window reaches below the page: room for the notes to come, or for them and
// the memo panel.
inline constexpr int kCalenBelowPage = 20;
inline constexpr int kCalenBelowPageWithMemo = 140;

// The size of the window, for the layout of the desktop and for its figures; of a window
// that has not been open yet, by the page size.
int CalenLayoutWidth();
int CalenLayoutHeight();
