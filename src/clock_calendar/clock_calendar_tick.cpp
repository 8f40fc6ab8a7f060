#include "clock_calendar/clock_calendar_tick.h"

#include "platform/memory.h"

namespace {
unsigned char* previewImage;
}

// Neither the clock's window, nor the calendar's, nor a preview exists yet: there
// is nothing to step, to open or to delete.
void ClockPreviewStep() {}
void CalenTickerTick() {}
void ClockWindowOpen() {}
void CalenWindowOpen() {}
void CalenFontDelete() {}

void ClockPreviewFree() {
  MemoryFree(previewImage);
  previewImage = nullptr;
}
