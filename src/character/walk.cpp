#include "character/walk.h"

#include <algorithm>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/walk_windows.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/screen_figures.h"
#include "services/sound_file.h"

namespace {

bool IsSlot(int slot) {
  return slot >= 0 && slot < kWalkSlotMax;
}

int FramesInUse(const std::uint8_t (&frames)[kWalkListMax]) {
  return static_cast<int>(
      std::count_if(frames, frames + kWalkListMax, [](std::uint8_t frame) { return frame != 0; }));
}

// The walk of the current character. -1: it has no walking row.
int SlotSetUp(WalkSlot& s) {
  if (Character.CharaSet.WalkRow[0] == 0) return -1;
  int x = 0;
  int y = 0;
  WalkStartPlace(Character.CharaSet.WalkStartPoint, &x, &y);
  Character.CharaSet.WalkStartX[0] = static_cast<std::uint16_t>(x);
  Character.CharaSet.WalkStartY[0] = static_cast<std::uint16_t>(y);
  s.x = Character.CharaSet.WalkStartX[0];
  s.y = Character.CharaSet.WalkStartY[0];
  s.stepX = Character.CharaSet.WalkStepX[0];
  s.stepY = Character.CharaSet.WalkStepY[0];
  s.WalkWait = 0;
  s.WalkLeft = Character.CharaSet.WalkCount[0];
  s.place = 0;
  for (int i = 0; i < kWalkListMax; ++i) {
    s.frames[i] = Character.CharaSet.WalkFrames[0][i];
    s.endFrames[i] = Character.CharaSet.EndFrames[0][i];
  }
  s.frameCount = FramesInUse(s.frames);
  s.endFrameCount = FramesInUse(s.endFrames);
  s.endWait = Character.CharaSet.EndWait[0];
  return 0;
}

// kept: a walk that gives way to another one leaves its window until that is closed.
bool SlotStart(int slot, int flagsCleared) {
  const bool loaded = WalkCharaLoad(slot) == 0;
  for (int i = 0; i < flagsCleared; ++i) Walk.WalkSlots[i].active = false;
  Walk.WalkActive = loaded && SlotSetUp(Walk.WalkSlots[slot]) == 0;
  if (Walk.WalkActive) Walk.WalkSlots[slot].active = true;
  return Walk.WalkActive;
}

// One step along an axis: not below 0, and then not with its far edge beyond the
// screen.
// kept: a walking picture that is larger than the screen ends up at a place below 0.
std::int32_t StepAlong(std::int32_t place, std::int32_t step, int size, int screen) {
  const std::int64_t next = std::max<std::int64_t>(std::int64_t{place} + step, 0);
  return static_cast<std::int32_t>(std::min<std::int64_t>(next, screen - size));
}

// kept: the first frame's picture holds the walk on the screen, whatever frame shows.
void WalkStepOn(int slot) {
  WalkSlot& s = Walk.WalkSlots[slot];
  ImageHandle picture = WalkPicture(slot, WalkFrameOf(s.frames[0]));
  s.x = StepAlong(s.x, s.stepX, DibWidth(picture), Screen.ScreenWidth);
  s.y = StepAlong(s.y, s.stepY, DibHeight(picture), Screen.ScreenHeight);
}

void WalkShow(int slot) {
  Walk.WalkSlotNow = slot;
  if (!Walk.WalkSlots[slot].walkWindow) {
    TrailWindowsClose();
    CommandSend(Command::WalkWindow);  // returns when the window has closed
  } else if ((WalkFlagsNow() & kWalkTrail) != 0) {
    TrailWindowOpen();
  } else {
    CommandSendTo(Walk.WalkSlots[slot].walkWindow, Command::NextStep);
  }
}

void WalkFinish(int slot) {
  WalkSlot& s = Walk.WalkSlots[slot];
  SendClose(s.walkWindow);
  TrailWindowsClose();
  s.active = false;
  if (Walk.WalkAborts) return;
  Walk.WalkActive = false;
  Walk.WalkEndActive = true;
  s.ending = true;
  s.place = 0;
  Walk.WalkSlotNow = slot;
  CommandSend(Command::WalkEnd);  // returns when the end phase is over
}

// What the walk was for goes on now.
// kept: while the mail notice of a walk stands, a file's walk opens nothing at its end.
void OpeningEnd() {
  const bool goesOn = Walk.OpeningState == kOpeningFile && Walk.mailState != kMailWalking;
  Walk.OpeningState = 0;
  if (goesOn && Walk.AtEnd != Command::None) CommandSend(Walk.AtEnd);
}

}  // namespace

int WalkStart(const WalkRequest& request) {
  if (request.settings.soundOn) SoundFilePlay(request.settings.soundName);
  if (!request.settings.animeOn || !SlotStart(request.slot, request.flagsCleared)) {
    Walk.OpeningState = 0;
    return -1;
  }
  Walk.OpeningState = request.opening;
  Walk.AtEnd = request.atEnd;
  Walk.Balloon = request.balloon;
  return 0;
}

void WalkMailStateSet(std::int32_t state) {
  Walk.mailState = state;
}

int WalkCharaLoad(int slot) {
  if (slot < 0) return -9;
  // bounded: a slot beyond the list of walking characters has none.
  if (!IsSlot(slot) || CharaTables.WalkCharas[slot].number == 0) return -10;
  const int number = CharaTables.WalkCharas[slot].number - 1;
  OutlineReadAll(number, Walk.WalkOutlines);
  FramesLoad(slot + 1, number);
  for (int frame = 0; frame < kFrameMax; ++frame) {
    OutlineFlipForWalker(&Walk.WalkOutlines[frame], DibHeight(WalkPicture(slot, frame)));
  }
  return 0;
}

void WalkTick(int slot) {
  if (!IsSlot(slot)) return;
  WalkSlot& s = Walk.WalkSlots[slot];
  if (s.WalkWait != 0 && --s.WalkWait != 0) return;
  // kept: a walk without frames stands still for good, and what waits for its end
  // waits on.
  if (s.frameCount == 0) return;
  s.place = (s.place + 1) % s.frameCount;
  if (s.WalkLeft == 0) {
    WalkFinish(slot);
    return;
  }
  --s.WalkLeft;
  // kept: a walk goes on at the pace of the character that is the current one by then.
  s.WalkWait = Character.CharaSet.WalkPeriod[0];
  WalkStepOn(slot);
  WalkShow(slot);
}

void WalkEndTick(int slot) {
  if (!IsSlot(slot)) return;
  WalkSlot& s = Walk.WalkSlots[slot];
  if (s.endWait != 0) --s.endWait;
  if (s.endWait != 0) return;
  SendClose(s.endWindow);
  SendClose(s.balloonWindow);
  s.ending = false;
  Walk.WalkEndActive = std::any_of(Walk.WalkSlots, Walk.WalkSlots + kWalkSlotMax,
                                   [](const WalkSlot& other) { return other.ending; });
  OpeningEnd();
}

// The common flag counts for the whole round: a walk that ends in it leaves the
// others their step.
void WalkTickAll() {
  if (!Walk.WalkActive) return;
  for (int slot = 0; slot < kWalkSlotMax; ++slot) {
    if (Walk.WalkSlots[slot].active) WalkTick(slot);
  }
}

void WalkEndTickAll() {
  if (!Walk.WalkEndActive) return;
  for (int slot = 0; slot < kWalkSlotMax; ++slot) {
    if (Walk.WalkSlots[slot].ending) WalkEndTick(slot);
  }
}

void WalkAbort() {
  Walk.WalkAborts = true;
  for (int slot = 0; slot < kWalkSlotMax; ++slot) {
    if (!Walk.WalkSlots[slot].active) continue;
    Walk.WalkSlots[slot].WalkLeft = 0;
    Walk.WalkSlots[slot].WalkWait = 0;
    WalkTick(slot);
    Walk.WalkSlots[slot].active = false;  // a walk without frames does not end by its tick
  }
  Walk.WalkActive = false;
  for (int slot = 0; slot < kWalkSlotMax; ++slot) {
    if (!Walk.WalkSlots[slot].ending) continue;
    Walk.WalkSlots[slot].endWait = 0;
    WalkEndTick(slot);
  }
  Walk.WalkAborts = false;
  // settled: a walk that is cut short has no end phase, but the file that waited for it
  // is opened.
  OpeningEnd();
}

int WalkDue() {
  return TickDueIf(Walk.WalkActive);
}

int WalkEndDue() {
  return TickDueIf(Walk.WalkEndActive);
}
