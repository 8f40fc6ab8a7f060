#include "character/walk_state.h"

#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "platform/canvas.h"
#include "platform/window.h"

WalkState Walk;

unsigned WalkFlagsNow() {
  const int row = Character.CharaSet.WalkRow[0];
  // bounded: a walking row beyond the table has no flags.
  return row >= 1 && row <= kWalkCharaMax ? CharaTables.WalkFlags[row - 1] : 0;
}

int WalkFrameOf(std::uint8_t entry) {
  return entry == 0 ? 0 : entry - 1;
}

ImageHandle WalkPicture(int slot, int frame) {
  return FramePicture(slot + 1, frame);
}

RegionHandle WalkRegion(int frame) {
  if (frame < 0 || frame >= kFrameMax) return nullptr;  // bounded: a frame beyond the table has no outline
  return RegionPolygon(Walk.WalkOutlines[frame].points, Walk.WalkOutlines[frame].count);
}
