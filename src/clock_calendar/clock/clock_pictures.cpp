#include "clock_calendar/clock/clock_pictures.h"

ClockPicturesState ClockPictures;

void ClockPicturesBegin(int number) {
  ClockPicturesFree();
  ClockPictures.number = number;
  ClockPictures.shape.count = 0;
  int ignored = 0;
  OutlineReadCounted(number - 1, ClockPictures.outlines, &ignored);
}

void ClockPicturesFree() {
  for (int frame = 0; frame < kFrameMax; ++frame) {
    DibFree(ClockPictures.pictures[frame]);
    ClockPictures.pictures[frame] = nullptr;
    ClockPictures.tried[frame] = false;
  }
  ClockPictures.number = 0;
}

ImageHandle ClockPicture(int frame) {
  if (frame < 0 || frame >= kFrameMax || ClockPictures.number < 1) return nullptr;
  if (ClockPictures.tried[frame]) return ClockPictures.pictures[frame];
  ClockPictures.tried[frame] = true;
  ClockPictures.pictures[frame] = DibLoad(CharaBmpPath(ClockPictures.number - 1, frame));
  OutlineFlipForBare(&ClockPictures.outlines[frame], DibHeight(ClockPictures.pictures[frame]));
  return ClockPictures.pictures[frame];
}

bool ClockShapeTake(int frame) {
  if (!ClockPicture(frame) || OutlinesEqual(ClockPictures.outlines[frame], ClockPictures.shape)) return false;
  OutlineCopy(&ClockPictures.shape, ClockPictures.outlines[frame]);
  return true;
}
