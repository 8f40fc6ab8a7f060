// What can be asked of the running program from outside: counts of the objects
// of the window system that it holds, so that a leak shows as a number that
// grows, and values that the program lays open.
#pragma once

#include <cstdint>

// Kept by the backends themselves.
struct LiveObjects {
  int brushes;
  int pens;
  int fonts;
  int bitmaps;
  int regions;
  int canvases;
  int windows;
  int timers;
  int blocks;  // memory blocks
  int files;
  int searches;
};

LiveObjects DiagnosticsLive();

// Lays a variable open under a number from 0 to 63. In the build for the end-to-end
// tests the registered message "MirrellDiagnostics" to the main window answers with the
// value of number wParam, and with the live counts, in the order above, from 100 on.
inline constexpr int kDiagnosticsCount = 64;
inline constexpr int kDiagnosticsLiveFirst = 100;
inline constexpr int kDiagnosticsLiveCount = 11;
void DiagnosticsShow(int number, const std::int32_t* value);

// The value laid open under a number, or a live count; 0 for none.
std::int32_t DiagnosticsValue(int number);
