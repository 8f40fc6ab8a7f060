// The world's characters and figures, as the character editor leaves them in the
// folder "\キャラクタ". The list gives the desktop characters and the cast of
// the scenarios their names.
//
// EDTCFLAG.edf holds an EdtcHead and an EdtcFigureRec for each figure, EDTCDATA.edf an
// EdtcCharRec for each character.
//
// kept: a third file, EDTCBMDATA.edf, with 20 blocks of 100 bytes for each character, has no
// effect; nothing reads it.
#pragma once

#include <cstdint>

#include "world/world_records.h"

inline constexpr int kWorldCharaMax = 512;
inline constexpr int kWorldFigureMax = 10240;  // as many as the characters can have
inline constexpr int kWorldFrameNameMax = 24;  // in memory

// Texts are terminated.
struct WorldChara {
  std::uint8_t firstKept;
  std::uint8_t secondKept;
  char name[kWorldNameSize + 1];
  char frameNames[kWorldFrames][kWorldFrameNameMax + 1];
  std::uint16_t figureIds[kWorldFrames];  // 0 for none; nonzero: the frame is in use
};

struct WorldFigure {
  bool used;
  char name[kWorldFigureNameSize + 1];
};

struct WorldState {
  std::int32_t WorldCharaCount = 0;
  WorldChara WorldCharas[kWorldCharaMax] = {};
  std::int32_t WorldFigureCount = 0;
  WorldFigure WorldFigures[kWorldFigureMax] = {};  // place + 1 is the figure id
};
extern WorldState World;

// Reads both files over the tables, and ends without a word where a file is
// missing, short, or counts more characters than there can be; what was read stays.
// Figures beyond the table are passed over. How many characters have been read anew; -1
// when not even the counts have.
int WorldListRead();

// Name of a character by its number from 1; empty for one that the list does not
// hold.
const char* WorldCharaName(int number);
// Name of a character's frame, both from 1; empty for one that is not there.
const char* WorldFrameName(int number, int frame);
// Name of a figure by its id; empty for one that is not there.
const char* WorldFigureName(int id);

// The paths of the two files.
int WorldFlagPath(char* buffer, int size);
int WorldDataPath(char* buffer, int size);
