#include "character/alarm_images.h"

#include <algorithm>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "platform/canvas.h"
#include "services/painting.h"
#include "world/world_list.h"

AlarmImagesState AlarmImages;

namespace {

bool IsFrame(int frame) {
  return frame >= 0 && frame < kFrameMax;
}

// The world list marks the frames of a character that are in use; for a character
// that it does not hold, the frames with a picture are.
int FrameCountOf(const AlarmRow& row, int number) {
  int marked = 0;
  int pictured = 0;
  for (int frame = 0; frame < kFrameMax; ++frame) {
    const bool listed = number >= 1 && number <= World.WorldCharaCount && number <= kWorldCharaMax;
    if (listed && World.WorldCharas[number - 1].figureIds[frame] != 0) marked = frame + 1;
    if (row.pictures[frame]) pictured = frame + 1;
  }
  return marked != 0 ? marked : pictured;
}

bool CopyInto(ImageHandle* to, ImageHandle from) {
  *to = DibCopy(from);
  return *to || !from;
}

// False when the memory does not suffice; the row is then partly filled.
bool RowCopy(AlarmRow* to, const AlarmRow& from) {
  to->frameCount = from.frameCount;
  for (int frame = 0; frame < kFrameMax; ++frame) {
    if (!CopyInto(&to->pictures[frame], from.pictures[frame])) return false;
    if (!CopyInto(&to->masks[frame], from.masks[frame])) return false;
  }
  return true;
}

}  // namespace

void AlarmCharaLoad() {
  for (AlarmRow& row : AlarmImages.AlarmRows) AlarmRowFree(&row);
  for (int i = 0; i < kAlarmRowCount; ++i) {
    const auto* before =
        std::find(Character.AlarmCharaSel, Character.AlarmCharaSel + i, Character.AlarmCharaSel[i]);
    // Rows of one character read its files once.
    if (before == Character.AlarmCharaSel + i ||
        !RowCopy(&AlarmImages.AlarmRows[i], AlarmImages.AlarmRows[before - Character.AlarmCharaSel]))
      AlarmRowLoad(&AlarmImages.AlarmRows[i], Character.AlarmCharaSel[i]);
  }
}

void AlarmRowLoad(AlarmRow* row, int selection) {
  AlarmRowFree(row);
  // bounded: an alarm character beyond the list has no images.
  if (selection < 1 || selection > CharaTables.AlarmCharaCount || selection > kAlarmCharaMax) return;
  const int number = CharaTables.AlarmCharas[selection - 1];
  if (number < 1) return;
  const FrameFiles files = FrameFilesFind(number - 1);
  for (int frame = 0; frame < kFrameMax; ++frame) {
    if (files.picture[frame]) row->pictures[frame] = DibLoad(CharaBmpPath(number - 1, frame));
    if (files.mask[frame]) row->masks[frame] = DibLoad(CharaMaskPath(number - 1, frame));
    DibApplyMask(row->pictures[frame], row->masks[frame]);
  }
  row->frameCount = FrameCountOf(*row, number);
}

void AlarmRowFree(AlarmRow* row) {
  for (int frame = 0; frame < kFrameMax; ++frame) {
    DibFree(row->pictures[frame]);
    DibFree(row->masks[frame]);
  }
  *row = AlarmRow{};
}

int AlarmFrameNext(const AlarmRow& row, int frame) {
  return frame + 1 >= row.frameCount || frame < 0 ? 0 : frame + 1;
}

void AlarmFrameDraw(Canvas* canvas, int x, int y, const AlarmRow& row, int frame) {
  if (IsFrame(frame)) MaskedDraw(canvas, x, y, row.pictures[frame], row.masks[frame]);
}

int AlarmFrameHeight(const AlarmRow& row, int frame) {
  return IsFrame(frame) ? DibHeight(row.pictures[frame]) : 0;
}

void MaskedDraw(Canvas* canvas, int x, int y, ImageHandle picture, ImageHandle mask) {
  if (!picture) return;
  DibDrawRop(canvas, x, y, mask, RasterOp::And);
  DibDrawRop(canvas, x, y, picture, RasterOp::Or);
}

void AlarmFrameShow(WindowHandle window, const Rect& box, const AlarmRow& row, int frame) {
  Canvas* screen = CanvasGet(window);
  if (!screen) return;
  DrawSteady(screen, box, [&](Canvas* canvas, const Rect& at) {
    FillArea(canvas, BrushFace(), at);
    AlarmFrameDraw(canvas, at.left, at.top, row, frame);
  });
  CanvasRelease(screen);
}
