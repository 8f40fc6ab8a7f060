// What the dialogs of a cast member have in their fields.
#pragma once

#include "scenario/cast/cast_lines.h"
#include "scenario/cast/cast_motions.h"

// Characters of the values of lines and motions.
inline constexpr int kCastValueDigits = 4;

struct CastEditState {
  CastLine line = {};
  CastMotion motion = {};
};
extern CastEditState CastEdit;
