// What the settings file keeps of the character, and what a new data set holds.
//
// offset  size  field, at the front of the file, behind the magic
//      0     4  CharaIndex
//      4     4  MenuFrame
//      8     4  BlinkFrame
//     12    20  Bored1Frames
//     32    20  Bored2Frames
//     52     4  BoredDelaySel
//     56     4  BoredSpeedSel
//     60     4  BoredRepeatSel
//     64     8  StageX, StageY
//     72    12  AlarmCharaSel
//     84   676  CharaSet
#pragma once

#include "character/character.h"
#include "services/record.h"

struct CharacterSettings {};

template <class Io>
constexpr void Fields(Io& io, CharacterSettings&) {
  io.BE32(Character.CharaIndex);
  io.BE32(Character.MenuFrame);
  io.BE32(Character.BlinkFrame);
  io.BE32(Character.Bored1Frames);
  io.BE32(Character.Bored2Frames);
  io.BE32(Character.BoredDelaySel);
  io.BE32(Character.BoredSpeedSel);
  io.BE32(Character.BoredRepeatSel);
  io.BE32(Character.StageX);
  io.BE32(Character.StageY);
  io.BE32(Character.AlarmCharaSel);
  io.Record(Character.CharaSet);
  io.At(760);
}

// At the end of the file; older ones end before it.
struct CharacterLateSettings {};

template <class Io>
constexpr void Fields(Io& io, CharacterLateSettings&) {
  io.BE32(Character.BlinkSpeedSel);
}

// Puts what a new data set holds into them and into the lists of characters.
void CharacterSettingsFactory();
