// Where walks stand: their slots, what they are for, and what their windows show.
//
// A walk belongs to a slot; one slot runs at a time. The windows of a walk are
// modal and open from inside a tick, so ticks nest: everything that a walk needs
// lives here, and no step keeps anything of its own across a send.
#pragma once

#include <cstdint>

#include "character/outline.h"
#include "platform/types.h"
#include "services/commands.h"
#include "services/dib.h"

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

// mailState: how far the announcement of a mail is.
inline constexpr std::int32_t kMailSeen = 1;  // the next tick announces it
inline constexpr std::int32_t kMailWalking = 2;
inline constexpr std::int32_t kMailAlone = 3;  // the walk could not start

inline constexpr int kBalloonNameMax = 30;
inline constexpr int kBalloonNameSize = 300;

// What the balloon says is about to be opened. Names need no terminator.
struct WalkBalloon {
  bool group;  // a group's names, in a balloon as tall as they need
  int count;   // up to kBalloonNameMax
  char names[kBalloonNameMax][kBalloonNameSize];
};

struct WalkSettingsForm;  // character/walk_settings.h

struct WalkState {
  WalkSlot WalkSlots[kWalkSlotMax] = {};
  bool WalkActive = false;       // some slot walks
  bool WalkEndActive = false;    // some slot is in its end phase
  bool WalkAborts = false;       // all walks are being ended
  std::int32_t WalkSlotNow = 0;  // the slot whose windows are being opened
  std::int32_t WalkLastX = 0;    // where the walking window stood last
  std::int32_t WalkLastY = 0;
  // The outlines of the walking character, as its windows need them.
  Outline WalkOutlines[kFrameMax] = {};
  std::int32_t OpeningState = 0;  // 0: idle
  std::int32_t mailState = 0;     // 0: none
  // Of the walk that began last.
  WalkBalloon Balloon = {};
  Command AtEnd = Command::None;
  // The trail windows, and how many slices of a wiped picture show, of which width.
  WindowHandle Trail[kTrailMax] = {};
  std::int32_t TrailCount = 0;
  std::int64_t WipeCount = 0;
  int WipeSlice = 0;
  const WalkSettingsForm* SettingsForm = nullptr;  // of the dialog that asks for settings
};
extern WalkState Walk;

// Bits kWalk* of the current character's walking row; 0 if it has none.
unsigned WalkFlagsNow();

// The frame (from 0) that a list entry names; an unused entry is frame 0.
int WalkFrameOf(std::uint8_t entry);
ImageHandle WalkPicture(int slot, int frame);
// The region of a frame's outline; null for none.
RegionHandle WalkRegion(int frame);
