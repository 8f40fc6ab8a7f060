// The small characters that walk across the screen when there is something to do:
// the walk goes first, then its end picture stands with a balloon or a notice, and
// the action happens at the end.
//
// A walk belongs to a slot; one slot runs at a time. The windows of a walk are
// modal and open from inside a tick, so ticks nest: everything that a walk needs
// lives here, and no step keeps anything of its own across a send.
#pragma once

#include <cstdint>

#include "character/outline.h"
#include "platform/types.h"
#include "services/dib.h"
#include "services/tick_step.h"

inline constexpr int kWalkSlotMax = 50;
inline constexpr int kWalkListMax = 5;  // frames of a walk, and of its end
// A walk has at most that many steps, and so trail windows.
inline constexpr int kTrailMax = 65535;

struct WalkSlot {
  bool active;     // walking
  bool ending;     // the end picture stands
  std::int32_t x;  // place on the screen
  std::int32_t y;
  std::int32_t stepX;
  std::int32_t stepY;
  std::int32_t WalkLeft;              // steps left
  std::int32_t WalkWait;              // ticks until the next step
  std::int32_t place;                 // in the frame list in force
  std::uint8_t frames[kWalkListMax];  // numbers from 1, 0 unused
  std::int32_t frameCount;
  std::uint8_t endFrames[kWalkListMax];
  std::int32_t endFrameCount;
  std::int32_t endWait;  // ticks that the end picture stays
  WindowHandle walkWindow;
  WindowHandle endWindow;
  WindowHandle balloonWindow;
};

// OpeningState: a walk is on its way for a file, for a group, or to be looked at.
inline constexpr std::int32_t kOpeningFile = 1;
inline constexpr std::int32_t kOpeningGroup = 2;
inline constexpr std::int32_t kOpeningCheck = 3;

struct WalkState {
  WalkSlot WalkSlots[kWalkSlotMax] = {};
  bool WalkActive = false;       // some slot walks
  bool WalkEndActive = false;    // some slot is in its end phase
  std::int32_t WalkSlotNow = 0;  // the slot whose windows are being opened
  std::int32_t WalkLastX = 0;    // where the walking window stood last
  std::int32_t WalkLastY = 0;
  // The outlines of the walking character, as its windows need them.
  Outline WalkOutlines[kFrameMax] = {};
  std::int32_t OpeningState = 0;  // 0: idle
};
extern WalkState Walk;

// Loads the walking character of a slot: its outlines and pictures. Returns 0, -9
// for a negative slot, -10 for a slot without a character.
int WalkCharaLoad(int slot);

// Starts the walk of a file opening, in the slot of the current main character,
// with the sound of the opening. Returns 0, or -1 when nobody walks: the opening
// then goes on at once.
int WalkStartOpen();

// Starts the walk of a mail arrival in the same way; the caller sets the mail phase.
int WalkStartMail();

// One tick of a walk, and of an end phase. Slots that are not there do nothing.
void WalkTick(int slot);
void WalkEndTick(int slot);

// Both for all slots that are set: the walk's part of a main tick.
void WalkTickAll();
void WalkEndTickAll();

// Ends all walks and end phases at once: SetOpnFileAnimeDlg, which starts trial
// walks, closes.
void WalkAbort();

// Bits kWalk* of the current character's walking row; 0 if it has none.
unsigned WalkFlagsNow();

// The frame (from 0) that a list entry names; an unused entry is frame 0.
int WalkFrameOf(std::uint8_t entry);
ImageHandle WalkPicture(int slot, int frame);
// The region of a frame's outline; null for none.
RegionHandle WalkRegion(int frame);

// A file is to be opened (command 2004): the walk goes first if there is one, else
// command 2202 follows at once.
void WalkForOpening();

int WalkDue();
int WalkEndDue();
inline constexpr TickStep kWalkStep{WalkTickAll, WalkDue};
inline constexpr TickStep kWalkEndStep{WalkEndTickAll, WalkEndDue};
