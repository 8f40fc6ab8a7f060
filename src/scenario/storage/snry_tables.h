// The cast and the lines of the scene that was loaded last. They lie in the two work blocks.
#pragma once

#include "scenario/storage/snry_scene_records.h"

inline constexpr int kSnryCastSlots = 712;  // 512 characters, 200 copies
inline constexpr int kSnryCopyFirst = 512;  // slot of the first copy
inline constexpr int kSnryCopyMax = 200;
inline constexpr int kSnryLineSlots = 25600;

// Whether a cast id is that of a copy.
constexpr bool SnryCastIsCopy(int id) {
  return id > kSnryCopyFirst && id <= kSnryCastSlots;
}

// How much of both tables may have been written since a scene was loaded: what lies behind
// holds nothing that the next load has to clear.
struct SnryTouchedState {
  std::int32_t lines = kSnryLineSlots;
  std::int32_t casts = kSnryCastSlots;
  unsigned scopeWrites = 0;  // into the blocks, as they were counted then
};
extern SnryTouchedState SnryTouched;

// The cast record of a slot, 0 to 712: the table has one slot behind its last, so that
// what is done one past its end stays inside. For another slot, and without the block, an
// empty record that belongs to nobody.
SnryCastRec& SnryCastAt(int slot);

// The line of a slot, 0 to 25599; its text has an end, whatever stands in the block. For
// another slot, and without the block, an empty one that belongs to nobody.
SnryLineRec& SnryLineAt(int slot);

// The tables as a whole, 712 and 25600 records; null without their block.
const SnryCastRec* SnryCasts();
const SnryLineRec* SnryLines();

// --- For the reader of scenes

// The same to write the first `count` records.
SnryCastRec* SnryCastsTake(int count);
SnryLineRec* SnryLinesTake(int count);

// Clears all copies of the cast.
void SnryCopiesClear();
// Behind the lines and the cast that were read nothing counts any more.
void SnryActorsDrop(int lines, int casts);
