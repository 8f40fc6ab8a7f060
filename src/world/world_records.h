// The records of the files that the character editor leaves in the folder
// "\キャラクタ". Numbers of a header are big-endian; those inside a record lie as in
// memory, low byte first.
#pragma once

#include "services/record.h"

inline constexpr int kWorldFrames = 20;  // of a character
inline constexpr int kWorldNameSize = 64;
inline constexpr int kWorldFrameNameSize = 64;  // in the file
inline constexpr int kWorldFigureNameSize = 128;

// The head of EDTCFLAG.edf, 12 bytes
//
// offset  size  field
//      0     4  not used here
//      4     4  charaCount
//      8     4  figureCount
struct EdtcHead {
  std::uint32_t charaCount;
  std::uint32_t figureCount;
};

template <class Io>
constexpr void Fields(Io& io, EdtcHead& head) {
  io.At(4);
  io.BE32(head.charaCount);
  io.BE32(head.figureCount);
}
static_assert(RecordSize<EdtcHead>() == 12);

// A figure of EDTCFLAG.edf, 142 bytes
//
// offset  size  field
//      0     1  used
//      1   128  name
//    129    13  not used here
struct EdtcFigureRec {
  bool used;
  char name[kWorldFigureNameSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, EdtcFigureRec& figure) {
  io.U8(figure.used);
  io.Text(figure.name, kWorldFigureNameSize);
  io.At(142);
}
static_assert(RecordSize<EdtcFigureRec>() == 142);

// A figure's id, 4 bytes of which the first two are used; 0 for none.
struct EdtcFigureId {
  std::uint16_t id;
};

template <class Io>
constexpr void Fields(Io& io, EdtcFigureId& figure) {
  io.LE16(figure.id);
  io.At(4);
}

// A character of EDTCDATA.edf, 1520 bytes
//
// offset  size     field
//      0     1     firstKept, no effect
//      1    64     name
//     65    11     not used here
//     76     1     secondKept, no effect
//     77  20 x 64  frameNames
//   1357    83     not used here
//   1440  20 x 4   figures
struct EdtcCharRec {
  std::uint8_t firstKept;
  char name[kWorldNameSize + 1];
  std::uint8_t secondKept;
  char frameNames[kWorldFrames][kWorldFrameNameSize + 1];
  EdtcFigureId figures[kWorldFrames];
};

template <class Io>
constexpr void Fields(Io& io, EdtcCharRec& chara) {
  io.U8(chara.firstKept);
  io.Text(chara.name, kWorldNameSize);
  io.At(76);
  io.U8(chara.secondKept);
  io.Text(chara.frameNames, kWorldFrameNameSize);
  io.At(1440);
  io.Record(chara.figures);
}
static_assert(RecordSize<EdtcCharRec>() == 1520);
