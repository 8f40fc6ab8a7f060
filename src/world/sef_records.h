// The records of a scene edit file (*.sef), which the world's editors leave beside an
// application. Numbers that stand alone are big-endian; those inside a record lie as in
// memory, low byte first.
#pragma once

#include "services/record.h"

inline constexpr int kSefTypes = 10;     // of the table of object types
inline constexpr int kSefNameSize = 32;  // of a stage size
inline constexpr int kSefTypeNameSize = 33;

// How the grid is drawn over the picture, 40 bytes
//
// offset  size  field
//      0    12  not used here
//     12     4  columns
//     16     4  rows
//     20     2  not used here
//     22     2  cellWidth, in pixels
//     24     2  cellHeight
//     26     2  not used here
//     28     3  pen: red, green, blue
//     31     1  filled: 1 fills the cells
//     32     3  fill: red, green, blue
//     35     5  not used here
struct SefGrid {
  std::uint32_t columns;
  std::uint32_t rows;
  std::uint16_t cellWidth;
  std::uint16_t cellHeight;
  std::uint8_t pen[3];
  std::uint8_t filled;
  std::uint8_t fill[3];
};

template <class Io>
constexpr void Fields(Io& io, SefGrid& grid) {
  io.At(12);
  io.LE32(grid.columns);
  io.LE32(grid.rows);
  io.At(22);
  io.LE16(grid.cellWidth);
  io.LE16(grid.cellHeight);
  io.At(28);
  io.U8(grid.pen);
  io.U8(grid.filled);
  io.U8(grid.fill);
  io.At(40);
}
static_assert(RecordSize<SefGrid>() == 40);

// An object placed in the scene, 452 bytes
//
// offset  size  field
//      0     8  not used here
//      8     4  chara: number of a character, from 1
//     12     2  frame, from 0
//     14   438  not used here
struct SefObject {
  std::uint32_t chara;
  std::uint16_t frame;
};

template <class Io>
constexpr void Fields(Io& io, SefObject& object) {
  io.At(8);
  io.LE32(object.chara);
  io.LE16(object.frame);
  io.At(452);
}
static_assert(RecordSize<SefObject>() == 452);

// A stage size, 36 bytes. A schedule's map reads these as its positions: name, column
// and row.
//
// offset  size  field
//      0    32  name
//     32     2  width
//     34     2  height
struct SefStage {
  char name[kSefNameSize + 1];
  std::uint16_t width;
  std::uint16_t height;
};

template <class Io>
constexpr void Fields(Io& io, SefStage& stage) {
  io.Text(stage.name, kSefNameSize);
  io.LE16(stage.width);
  io.LE16(stage.height);
}
static_assert(RecordSize<SefStage>() == 36);

// The types that an object can be of, 456 bytes. A schedule's map reads these as its
// statuses.
//
// offset  size     field
//      0    25     not used here
//     25     1     count
//     26    10     numbers, 0 for one that is not set
//     36    10x33  names
//    366    30     not used here
//    396    10x2   objects: number of an object, from 1
//    416    40     not used here
struct SefTypes {
  std::uint8_t count;
  std::uint8_t numbers[kSefTypes];
  char names[kSefTypes][kSefTypeNameSize + 1];
  std::uint16_t objects[kSefTypes];
};

template <class Io>
constexpr void Fields(Io& io, SefTypes& types) {
  io.At(25);
  io.U8(types.count);
  io.U8(types.numbers);
  io.Text(types.names, kSefTypeNameSize);
  io.At(396);
  io.LE16(types.objects);
  io.At(456);
}
static_assert(RecordSize<SefTypes>() == 456);
