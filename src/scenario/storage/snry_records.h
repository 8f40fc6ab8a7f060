// The records of a scenario's main file and of the list of scenarios. Counts between
// tables are big-endian; numbers inside a record lie as in memory, low byte first.
// Numbers of parameters and characters are counted from 1, and 0 is none.
//
// Bytes that nothing here uses are kept as they came, in fields named `kept` and their
// offset. An array of text has one byte more than its field in the file, so that a text
// that fills the field keeps all its bytes.
#pragma once

#include <cstdint>

#include "services/record.h"

inline constexpr int kSnryPathSize = 300;
inline constexpr int kSnryTitleSize = 129;
inline constexpr int kSnryNameSize = 64;   // of parameters, characters, motions
inline constexpr int kSnryLabelSize = 32;  // of the menus' special buttons
inline constexpr int kSnryPlaces = 20;     // of most lists of parameters
inline constexpr int kSnrySceneCastMax = 256;

// A parameter and a value: a condition, met when they are equal, or a change.
struct SnryPair {
  std::uint16_t parameter;  // its id; 0 for none
  std::uint16_t value;
};

template <class Io>
constexpr void Fields(Io& io, SnryPair& pair) {
  io.LE16(pair.parameter);
  io.LE16(pair.value);
}
static_assert(RecordSize<SnryPair>() == 4);

// A scenario of the list, 464 bytes
//
// offset  size  field
//      0     1  used, 1 in each stored row
//      1   300  folder, the scenario's main folder
//    301   129  title
//    430    34  0
struct SnryListRec {
  std::uint8_t used;
  char folder[kSnryPathSize + 1];
  char title[kSnryTitleSize];
};

template <class Io>
constexpr void Fields(Io& io, SnryListRec& row) {
  io.U8(row.used);
  io.Text(row.folder, kSnryPathSize);
  io.Text(row.title);
  io.At(464);
}
static_assert(RecordSize<SnryListRec>() == 464);

// A scenario folder, 496 bytes
//
// offset  size  field
//      0     1  used
//      2     2  start.parameter
//     22     2  start.value
//     68   300  path
//    368   128  name
struct SnryFolderRec {
  std::uint8_t used;
  std::uint8_t kept1[1];
  SnryPair start;
  std::uint8_t kept4[18];
  std::uint8_t kept24[44];
  char path[kSnryPathSize + 1];
  char name[129];
};

template <class Io>
constexpr void Fields(Io& io, SnryFolderRec& folder) {
  io.U8(folder.used);
  io.Bytes(folder.kept1);
  io.LE16(folder.start.parameter);
  io.Bytes(folder.kept4);
  io.At(22);
  io.LE16(folder.start.value);
  io.Bytes(folder.kept24);
  io.At(68);
  io.Text(folder.path, kSnryPathSize);
  io.Text(folder.name, 128);
}
static_assert(RecordSize<SnryFolderRec>() == 496);

// A scene of a scenario folder, 982 bytes
//
// offset     size  field
//      0        1  used
//      8        2  start.parameter
//     28        2  start.value
//     68        2  castCount, places of the cast list that are in use
//     70  256 x 2  cast, ids: 1 to 512 a character, 513 to 712 a copy, 0 an empty place
//    594        1  tableFormat
//    596        1  tableFlags
//    597        1  textScheme
//    598        3  fallback: R, G, B where no background is chosen
//    602       80  name, at most 79 bytes
//    682      300  file, relative to the scenario folder
struct SnrySceneRec {
  std::uint8_t used;
  std::uint8_t kept1[7];
  SnryPair start;
  std::uint8_t kept10[18];
  std::uint8_t kept30[38];
  std::uint16_t castCount;
  std::uint16_t cast[kSnrySceneCastMax];
  std::uint8_t kept582[12];
  std::uint8_t tableFormat;
  std::uint8_t kept595[1];
  std::uint8_t tableFlags;
  std::uint8_t textScheme;
  std::uint8_t fallback[3];
  std::uint8_t kept601[1];
  char name[80];
  char file[kSnryPathSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, SnrySceneRec& scene) {
  io.U8(scene.used);
  io.Bytes(scene.kept1);
  io.LE16(scene.start.parameter);
  io.Bytes(scene.kept10);
  io.At(28);
  io.LE16(scene.start.value);
  io.Bytes(scene.kept30);
  io.At(68);
  io.LE16(scene.castCount);
  io.LE16(scene.cast);
  io.Bytes(scene.kept582);
  io.At(594);
  io.U8(scene.tableFormat);
  io.Bytes(scene.kept595);
  io.U8(scene.tableFlags);
  io.U8(scene.textScheme);
  io.Bytes(scene.fallback);
  io.Bytes(scene.kept601);
  io.Text(scene.name);
  io.Text(scene.file, kSnryPathSize);
}
static_assert(RecordSize<SnrySceneRec>() == 982);

// Bits of SnrySceneRec::tableFlags.
inline constexpr std::uint8_t kSnryTableForm = 1;  // the scene is shown as a table
inline constexpr std::uint8_t kSnryStageArea = 2;  // it has a stage beside its menu
inline constexpr std::uint8_t kSnryHideScene = 4;  // its name is not shown

// A world character's figures, 480 bytes
//
// offset    size  field
//    260  20 x 2  figures, ids
struct SnryCharMotionRec {
  std::uint8_t kept0[260];
  std::uint16_t figures[kSnryPlaces];
  std::uint8_t kept300[180];
};

template <class Io>
constexpr void Fields(Io& io, SnryCharMotionRec& motion) {
  io.Bytes(motion.kept0);
  io.LE16(motion.figures);
  io.Bytes(motion.kept300);
}
static_assert(RecordSize<SnryCharMotionRec>() == 480);

// What a parameter does for the player besides.
enum class SnryAssignment : std::uint8_t { None, Load, Save, Exit };

// A parameter, 270 bytes. Its id is its slot plus one.
//
// offset  size  field
//      0     1  used
//      1     1  kept, cleared when a parameter is added
//      2     2  initial
//      4     2  kept, cleared when a parameter is added
//      6    64  name
//     70   128  comment
//    198    70  kept
//    268     1  assignment
//    269     1  statusBar, 1: shown there while the value is not the initial one
struct SnryParaRec {
  std::uint8_t used;
  std::uint8_t kept1[1];
  std::uint16_t initial;
  std::uint8_t kept4[2];
  char name[kSnryNameSize + 1];
  char comment[129];
  std::uint8_t kept198[70];
  SnryAssignment assignment;
  std::uint8_t statusBar;
};

template <class Io>
constexpr void Fields(Io& io, SnryParaRec& para) {
  io.U8(para.used);
  io.Bytes(para.kept1);
  io.LE16(para.initial);
  io.Bytes(para.kept4);
  io.Text(para.name, kSnryNameSize);
  io.Text(para.comment, 128);
  io.Bytes(para.kept198);
  io.At(268);
  io.U8(para.assignment);
  io.U8(para.statusBar);
}
static_assert(RecordSize<SnryParaRec>() == 270);

// A name of the main file, 64 bytes.
struct SnryNameRec {
  char text[kSnryNameSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, SnryNameRec& name) {
  io.Text(name.text, kSnryNameSize);
}
static_assert(RecordSize<SnryNameRec>() == 64);

// The label of a special button of the menus, 32 bytes.
struct SnryLabelRec {
  char text[kSnryLabelSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, SnryLabelRec& label) {
  io.Text(label.text, kSnryLabelSize);
}
static_assert(RecordSize<SnryLabelRec>() == 32);

// A big-endian number that is one of a table, 2 bytes.
struct SnryNumberRec {
  std::uint16_t value;
};

template <class Io>
constexpr void Fields(Io& io, SnryNumberRec& number) {
  io.BE16(number.value);
}
static_assert(RecordSize<SnryNumberRec>() == 2);

// How a scenario as a whole is shown, 128 bytes
//
// offset  size  field
//      0     4  stageWidth, pixels
//      4     4  stageHeight
//      8     4  menuWidth
//     12     4  menuHeight
//     16     1  menuPosition, row
//     17     1  menuFormat, row
//     20     4  readingSpeed, row
//     24     1  balloonFormat, row
//     25     1  statusBar, 1: shown
//     26     1  statusTime, row
struct SnryOptionRec {
  std::int32_t stageWidth;
  std::int32_t stageHeight;
  std::int32_t menuWidth;
  std::int32_t menuHeight;
  std::uint8_t menuPosition;
  std::uint8_t menuFormat;
  std::uint8_t kept18[2];
  std::int32_t readingSpeed;
  std::uint8_t balloonFormat;
  std::uint8_t statusBar;
  std::uint8_t statusTime;
  std::uint8_t kept27[101];
};

template <class Io>
constexpr void Fields(Io& io, SnryOptionRec& option) {
  io.LE32(option.stageWidth);
  io.LE32(option.stageHeight);
  io.LE32(option.menuWidth);
  io.LE32(option.menuHeight);
  io.U8(option.menuPosition);
  io.U8(option.menuFormat);
  io.Bytes(option.kept18);
  io.LE32(option.readingSpeed);
  io.U8(option.balloonFormat);
  io.U8(option.statusBar);
  io.U8(option.statusTime);
  io.Bytes(option.kept27);
}
static_assert(RecordSize<SnryOptionRec>() == 128);
