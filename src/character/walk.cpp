#include "character/walk.h"

#include <algorithm>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/walk_windows.h"
#include "filetools/open/open_state.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/canvas.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "services/sound_file.h"

WalkState Walk;

namespace {

constexpr int kMailFlagsCleared = 10;

bool abortAll;

bool IsSlot(int slot) {
  return slot >= 0 && slot < kWalkSlotMax;
}

int FramesInUse(const std::uint8_t (&frames)[kWalkListMax]) {
  return static_cast<int>(
      std::count_if(frames, frames + kWalkListMax, [](std::uint8_t frame) { return frame != 0; }));
}

// The slot of a mail: the first one with the walking character that an opening
// would send. -1 when there is none.
int MailSlot() {
  if (!IsSlot(Character.CharaIndex)) return -1;
  for (int slot = 0; slot <= Character.CharaIndex; ++slot) {
    if (CharaTables.WalkCharas[slot].number == CharaTables.WalkCharas[Character.CharaIndex].number)
      return slot;
  }
  return -1;
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

int WalkStart(int slot, int flagsCleared) {
  const bool loaded = WalkCharaLoad(slot) == 0;
  for (int i = 0; i < flagsCleared; ++i) Walk.WalkSlots[i].active = false;
  Walk.WalkActive = loaded && SlotSetUp(Walk.WalkSlots[slot]) == 0;
  if (!Walk.WalkActive) return -1;
  Walk.WalkSlots[slot].active = true;
  return 0;
}

// One step along an axis: not below 0, and then not with its far edge beyond the
// screen.
// kept: a picture that is larger than the screen ends up at a place below 0.
std::int32_t StepAlong(std::int32_t place, std::int32_t step, int size, int screen) {
  const std::int64_t next = std::max<std::int64_t>(std::int64_t{place} + step, 0);
  return static_cast<std::int32_t>(std::min<std::int64_t>(next, screen - size));
}

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
  if (abortAll) return;
  Walk.WalkActive = false;
  Walk.WalkEndActive = true;
  s.ending = true;
  s.place = 0;
  Walk.WalkSlotNow = slot;
  CommandSend(Command::WalkEnd);  // returns when the end phase is over
}

}  // namespace

int WalkCharaLoad(int slot) {
  if (slot < 0) return -9;
  // bounded: beyond the list there is no character.
  if (!IsSlot(slot) || CharaTables.WalkCharas[slot].number == 0) return -10;
  const int number = CharaTables.WalkCharas[slot].number - 1;
  OutlineReadAll(number, Walk.WalkOutlines);
  FramesLoad(slot + 1, number);
  for (int frame = 0; frame < kFrameMax; ++frame) {
    OutlineFlipForWalker(&Walk.WalkOutlines[frame], DibHeight(WalkPicture(slot, frame)));
  }
  return 0;
}

// kept: the slot is the place of the main character in its own list.
int WalkStartOpen() {
  if (OpnHistory.soundOn) SoundFilePlay(OpnHistory.soundName);
  return OpnHistory.animeOn ? WalkStart(Character.CharaIndex, kWalkSlotMax) : -1;
}

// kept: only the first ten active flags are cleared, so a walk of a later slot goes
// on beside the mail's.
int WalkStartMail() {
  if (MailSetting.soundOn) SoundFilePlay(MailSetting.soundName);
  return MailSetting.animeOn ? WalkStart(MailSlot(), kMailFlagsCleared) : -1;
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
  s.WalkWait = Character.CharaSet.WalkPeriod[0];
  WalkStepOn(slot);
  WalkShow(slot);
}

void WalkEndTick(int slot) {
  if (!IsSlot(slot)) return;
  WalkSlot& s = Walk.WalkSlots[slot];
  if (s.endWait != 0) --s.endWait;
  if (s.endWait != 0) return;
  if (Mail.MailPhase == kMailWalking) Walk.OpeningState = 0;
  SendClose(s.endWindow);
  SendClose(s.balloonWindow);
  s.ending = false;
  Walk.WalkEndActive = std::any_of(Walk.WalkSlots, Walk.WalkSlots + kWalkSlotMax,
                                   [](const WalkSlot& other) { return other.ending; });
  const bool opens = Walk.OpeningState == kOpeningFile;
  Walk.OpeningState = 0;
  if (opens) CommandSend(Command::OpenLaunch);
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
  abortAll = true;
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
  abortAll = false;
}

unsigned WalkFlagsNow() {
  const int row = Character.CharaSet.WalkRow[0];
  return row >= 1 && row <= kWalkCharaMax ? CharaTables.WalkFlags[row - 1] : 0;  // bounded: rows end there
}

int WalkFrameOf(std::uint8_t entry) {
  return entry == 0 ? 0 : entry - 1;
}

ImageHandle WalkPicture(int slot, int frame) {
  return FramePicture(slot + 1, frame);
}

RegionHandle WalkRegion(int frame) {
  if (frame < 0 || frame >= kFrameMax) return nullptr;  // bounded: a list may name any frame
  return RegionPolygon(Walk.WalkOutlines[frame].points, Walk.WalkOutlines[frame].count);
}

void WalkForOpening() {
  Walk.OpeningState = kOpeningFile;
  if (WalkStartOpen() == 0) return;
  Walk.OpeningState = 0;
  CommandSend(Command::OpenLaunch);
}

int WalkDue() {
  return TickDueIf(Walk.WalkActive);
}

int WalkEndDue() {
  return TickDueIf(Walk.WalkEndActive);
}
