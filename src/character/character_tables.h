// The tables of mirrell_chara_file.dcx: which numbered characters play which
// role on the desktop. They are filled by the reader of that file.
//
// The capacities are fixed; a count beyond them is bad content of a file, but for
// alarm characters beyond theirs, which are passed over. A character number is the
// number in the names of the picture files, from 1.
#pragma once

#include <cstdint>

#include "character/character.h"

inline constexpr int kMainCharaMax = 50;
inline constexpr int kAlarmCharaMax = 512;  // as many as there can be characters
inline constexpr int kWalkCharaMax = 50;
inline constexpr int kClockDesignMax = 50;
inline constexpr int kWalkSoundSize = 256;

// Characters that walk over the screen, with the sound file in the folder
// "\サウンド" that goes with the walk.
struct WalkChara {
  std::uint16_t number;
  char sound[kWalkSoundSize];
};

inline constexpr unsigned kWalkTrail = 1;  // each step leaves a copy of the window
inline constexpr unsigned kWalkWipe = 2;   // the picture is revealed from the right
inline constexpr unsigned kWalkShake = 4;  // each step jumps up or down by up to 49 pixels

// Clock designs: the character whose frames they use, and the design record.
struct ClockDesignRow {
  std::uint16_t number;
  ClockDesignRecord record;
};

struct CharaTablesState {
  std::int32_t MainCharaCount = 0;
  MainChara MainCharas[kMainCharaMax] = {};
  // Characters of the notices, chosen by AlarmCharaSel.
  std::int32_t AlarmCharaCount = 0;
  std::int32_t AlarmCharas[kAlarmCharaMax] = {};
  std::int32_t WalkCharaCount = 0;
  WalkChara WalkCharas[kWalkCharaMax] = {};
  // Flags of each walking row, bits kWalk*. The file always holds all of them.
  unsigned char WalkFlags[kWalkCharaMax] = {};
  std::int32_t ClockDesignCount = 0;
  ClockDesignRow ClockDesigns[kClockDesignMax] = {};
};
extern CharaTablesState CharaTables;

// Makes the list of clock designs new: `count` of them, on characters `firstNumber` on,
// with empty records.
void ClockDesignsBegin(int count, int firstNumber);
