// Counts of the objects of the window system that this program holds, so that
// a leak shows as a number that grows. Kept by the backends themselves.
#pragma once

struct LiveObjects {
  int brushes;
  int pens;
  int fonts;
  int bitmaps;
  int regions;
  int canvases;
  int windows;
  int timers;
  int blocks;   // memory blocks
  int files;
  int searches;
};

LiveObjects DiagnosticsLive();
