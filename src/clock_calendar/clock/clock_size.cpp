#include "clock_calendar/clock/clock_size.h"

#include "character/character_tables.h"
#include "character/frames.h"
#include "clock_calendar/clock/clock.h"
#include "services/dib.h"

namespace {

struct PictureSize {
  int width;
  int height;
};

PictureSize DesignSize(std::int32_t design) {
  if (design < 0 || design >= CharaTables.ClockDesignCount || design >= kClockDesignMax) return {0, 0};
  ImageHandle picture = DibLoad(CharaBmpPath(CharaTables.ClockDesigns[design].number - 1, 0));
  const PictureSize size = {DibWidth(picture), DibHeight(picture)};
  DibFree(picture);
  return size;
}

// settled: with no design chosen, as a new data set has it, the clock counts as large as the
// first design, so that it has a place of its own once it is shown.
std::int32_t DesignOrFirst() {
  return Clock.ClockDesign == kClockNone ? 0 : Clock.ClockDesign;
}

}  // namespace

int ClockLayoutWidth() {
  return DesignSize(DesignOrFirst()).width;
}

int ClockPictureHeight() {
  return DesignSize(DesignOrFirst()).height;
}

int ClockLayoutHeight() {
  return DesignSize(0).height;
}
