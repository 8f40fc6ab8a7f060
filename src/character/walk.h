// The small characters that walk across the screen when there is something to do:
// the walk goes first, then its end picture stands with a balloon or a notice, and
// the action happens at the end.
#pragma once

#include <cstdint>

#include "character/walk_settings.h"
#include "character/walk_state.h"
#include "services/tick_step.h"

// What a walk is asked to be.
struct WalkRequest {
  WalkSettings settings;            // whether somebody walks, and the sound
  int slot;                         // of WalkSlots; -1: nobody can walk
  int flagsCleared = kWalkSlotMax;  // the walks of the slots before this one end
  std::int32_t opening;             // OpeningState up to its end, kOpening*
  Command atEnd = Command::None;    // sent at the end of a kOpeningFile
  WalkBalloon balloon;
};

// Plays the sound and starts the walk; the opening state is the request's then.
// Returns 0, or -1 when nobody walks: the opening state is 0 and the caller goes on at
// once.
int WalkStart(const WalkRequest& request);

// Tells how far the mail's notice is (0, kMail*); with kMailWalking walks end with it.
void WalkMailStateSet(std::int32_t state);

// Loads the walking character of a slot: its outlines and pictures. Returns 0, -9
// for a negative slot, -10 for a slot without a character.
int WalkCharaLoad(int slot);

// One tick of a walk, and of an end phase. Slots that are not there do nothing.
void WalkTick(int slot);
void WalkEndTick(int slot);

// Both for all slots that are set: the walk's part of a main tick.
void WalkTickAll();
void WalkEndTickAll();

// Ends all walks and end phases at once: the dialog that starts trial walks closes.
// What waited for their end goes on.
void WalkAbort();

int WalkDue();
int WalkEndDue();
inline constexpr TickStep kWalkStep{WalkTickAll, WalkDue};
inline constexpr TickStep kWalkEndStep{WalkEndTickAll, WalkEndDue};
