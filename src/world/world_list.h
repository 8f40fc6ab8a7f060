// The world's characters and figures, as the character editor leaves them in the
// folder "\キャラクタ". The list gives the desktop characters and the cast of
// the scenarios their names.
//
// EDTCFLAG.edf
// offset  size       field
//      0     4       ignored
//      4     4       number of characters, big-endian
//      8     4       number of figures, big-endian
//     12   142 each  EdtcFigureRec: 1 used flag, 128 name, 13 not used here
//
// EDTCDATA.edf, an EdtcCharRec of 1520 bytes for each character
// offset  size     field
//      0     1     kept, no effect
//      1    64     name
//     76     1     kept, no effect
//     77  20 x 64  frame names
//   1440  20 x 4   figure ids, big-endian, of which the low 16 bits count
#pragma once

#include <cstdint>

inline constexpr int kWorldCharaMax = 512;
inline constexpr int kWorldFigureMax = 1000;
inline constexpr int kWorldFrames = 20;
inline constexpr int kWorldFigureIds = 20;
inline constexpr int kWorldNameSize = 64;
inline constexpr int kWorldFrameNameSize = 64;  // in the file
inline constexpr int kWorldFrameNameMax = 24;   // in memory
inline constexpr int kWorldFigureNameSize = 128;

inline constexpr int kEdtcHeaderSize = 12;
inline constexpr int kEdtcCharaCount = 4;
inline constexpr int kEdtcFigureCount = 8;
inline constexpr int kEdtcFigureSize = 142;
inline constexpr int kEdtcFigureUsed = 0;
inline constexpr int kEdtcFigureName = 1;
inline constexpr int kEdtcCharSize = 1520;
inline constexpr int kEdtcCharFirstKept = 0;
inline constexpr int kEdtcCharName = 1;
inline constexpr int kEdtcCharSecondKept = 76;
inline constexpr int kEdtcCharFrameNames = 77;
inline constexpr int kEdtcCharFigureIds = 1440;

// Texts are terminated.
struct WorldChara {
  std::uint8_t firstKept;
  std::uint8_t secondKept;
  char name[kWorldNameSize + 1];
  char frameNames[kWorldFrames][kWorldFrameNameMax + 1];
  std::uint16_t figureIds[kWorldFigureIds];  // 0 for none; nonzero: the frame is in use
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
// missing, short, or counts more than the tables hold; what was read stays.
void WorldListRead();

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
