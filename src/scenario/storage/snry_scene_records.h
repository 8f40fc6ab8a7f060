// The records of a scene file. Numbers inside a record lie as in memory, low byte first.
// Numbers of parameters, cast members and lines are counted from 1, and 0 is none. What is
// said of bytes that are kept, and of the length of texts, in storage/snry_records.h holds
// here too.
#pragma once

#include <cstdint>

#include "scenario/storage/snry_records.h"
#include "services/record.h"

inline constexpr int kSnryMenuItemMax = 10;
inline constexpr int kSnryMenuTextSize = 100;
inline constexpr int kSnryCastPlaces = 100;  // lines and motions of a cast member
inline constexpr int kSnryLineTextSize = 180;
inline constexpr int kSnryScrollMax = 10;  // backgrounds that scroll
inline constexpr int kSnryScrollNameSize = 256;
inline constexpr int kSnryKeyNameSize = 33;

// A menu, 1818 bytes
//
// offset          size  field
//      0             1  enabled
//      2             4  start
//      6             2  buttonLabels, of the two special buttons: row of the labels from 1
//      8         2 x 2  buttonParameters
//     12         2 x 2  buttonValues
//     16             1  method, how an item is selected
//     17             1  itemCount, 0 to 10
//     18  10 x 20 x 2  itemParameters, what an item changes
//    418  10 x 20 x 2  itemValues, to what
//    818      10 x 100  itemTexts
struct SnryMenuRec {
  std::uint8_t enabled;
  std::uint8_t kept1[1];
  SnryPair start;
  std::uint8_t buttonLabels[2];
  std::uint16_t buttonParameters[2];
  std::uint16_t buttonValues[2];
  std::uint8_t method;
  std::uint8_t itemCount;
  std::uint16_t itemParameters[kSnryMenuItemMax][kSnryPlaces];
  std::uint16_t itemValues[kSnryMenuItemMax][kSnryPlaces];
  char itemTexts[kSnryMenuItemMax][kSnryMenuTextSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, SnryMenuRec& menu) {
  io.U8(menu.enabled);
  io.Bytes(menu.kept1);
  io.Record(menu.start);
  io.U8(menu.buttonLabels);
  io.LE16(menu.buttonParameters);
  io.LE16(menu.buttonValues);
  io.U8(menu.method);
  io.U8(menu.itemCount);
  io.LE16(menu.itemParameters);
  io.At(418);
  io.LE16(menu.itemValues);
  io.At(818);
  io.Text(menu.itemTexts, kSnryMenuTextSize);
}
static_assert(RecordSize<SnryMenuRec>() == 1818);

// What an event waits for.
enum class SnryEventType : std::uint8_t { Text, Number, Time, Meeting };

// An event, 236 bytes
//
// offset    size  field
//      0       1  enabled
//      2       4  start
//      6       1  type
//      7      33  comparison, of a text
//     40       2  lowest, of a number
//     42       2  highest
//     44       1  minutes, of a time
//     45       1  seconds
//     46       2  first, of a meeting: cast id; in a table form a parameter
//     48       2  second: cast id; in a table form a value
//     50  20 x 2  parameters, what it changes
//     90  20 x 2  values
//    130      20  signs: 0 plus, 1 minus
//    150      20  operations, 0 to 4
//    170       1  nameShown
//    171      64  name
struct SnryEventRec {
  std::uint8_t enabled;
  std::uint8_t kept1[1];
  SnryPair start;
  SnryEventType type;
  char comparison[34];
  std::uint16_t lowest;
  std::uint16_t highest;
  std::uint8_t minutes;
  std::uint8_t seconds;
  std::uint16_t first;
  std::uint16_t second;
  std::uint16_t parameters[kSnryPlaces];
  std::uint16_t values[kSnryPlaces];
  std::uint8_t signs[kSnryPlaces];
  std::uint8_t operations[kSnryPlaces];
  std::uint8_t nameShown;
  char name[kSnryNameSize + 1];
  std::uint8_t kept235[1];
};

template <class Io>
constexpr void Fields(Io& io, SnryEventRec& event) {
  io.U8(event.enabled);
  io.Bytes(event.kept1);
  io.Record(event.start);
  io.U8(event.type);
  io.Text(event.comparison, 33);
  io.LE16(event.lowest);
  io.LE16(event.highest);
  io.U8(event.minutes);
  io.U8(event.seconds);
  io.LE16(event.first);
  io.LE16(event.second);
  io.LE16(event.parameters);
  io.LE16(event.values);
  io.At(130);
  io.U8(event.signs);
  io.U8(event.operations);
  io.At(170);
  io.U8(event.nameShown);
  io.Text(event.name, kSnryNameSize);
  io.Bytes(event.kept235);
}
static_assert(RecordSize<SnryEventRec>() == 236);

// More of an event, 54 bytes
//
// offset  size  field
//      0     1  remember, 1: the text that was entered is remembered
struct SnryEventExRec {
  std::uint8_t remember;
  std::uint8_t kept1[53];
};

template <class Io>
constexpr void Fields(Io& io, SnryEventExRec& event) {
  io.U8(event.remember);
  io.Bytes(event.kept1);
}
static_assert(RecordSize<SnryEventExRec>() == 54);

// A random, 188 bytes
//
// offset        size  field
//      0           1  enabled
//      2           4  start
//      6           2  interval, tenths of a second
//      8      20 x 2  parameters, what it changes
//     48  20 x 2 x 2  ranges, lowest and highest
//    128      20 x 2  counts, of mode 1
//    168          20  modes, 0 to 2
struct SnryRandomRec {
  std::uint8_t enabled;
  std::uint8_t kept1[1];
  SnryPair start;
  std::uint16_t interval;
  std::uint16_t parameters[kSnryPlaces];
  std::uint16_t ranges[kSnryPlaces][2];
  std::uint16_t counts[kSnryPlaces];
  std::uint8_t modes[kSnryPlaces];
};

template <class Io>
constexpr void Fields(Io& io, SnryRandomRec& random) {
  io.U8(random.enabled);
  io.Bytes(random.kept1);
  io.Record(random.start);
  io.LE16(random.interval);
  io.LE16(random.parameters);
  io.LE16(random.ranges);
  io.At(128);
  io.LE16(random.counts);
  io.At(168);
  io.U8(random.modes);
}
static_assert(RecordSize<SnryRandomRec>() == 188);

// More of a random, 76 bytes
//
// offset    size  field
//      0       1  replaces, 1: a character takes another's place
//      2       2  replaced, cast id
//      4       2  replacement, cast id
//      6      20  operations, of mode 2: number plus one
//     26  20 x 2  others, the other parameter of the operation
struct SnryRandomExRec {
  std::uint8_t replaces;
  std::uint8_t kept1[1];
  std::uint16_t replaced;
  std::uint16_t replacement;
  std::uint8_t operations[kSnryPlaces];
  std::uint16_t others[kSnryPlaces];
  std::uint8_t kept66[10];
};

template <class Io>
constexpr void Fields(Io& io, SnryRandomExRec& random) {
  io.U8(random.replaces);
  io.Bytes(random.kept1);
  io.LE16(random.replaced);
  io.LE16(random.replacement);
  io.U8(random.operations);
  io.LE16(random.others);
  io.Bytes(random.kept66);
}
static_assert(RecordSize<SnryRandomExRec>() == 76);

// A line that somebody says, 181 bytes. Its id is its slot plus one.
//
// offset  size  field
//      0     1  used
//      1   180  text
struct SnryLineRec {
  std::uint8_t used;
  char text[kSnryLineTextSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, SnryLineRec& line) {
  io.U8(line.used);
  io.Text(line.text, kSnryLineTextSize);
}
static_assert(RecordSize<SnryLineRec>() == 181);

// A member of the cast, 1638 bytes. Its id is its slot plus one.
//
// offset     size  field
//      0        2  master, of a copy: id of the character that it copies
//      2        1  drops, asked for by the reader of scenes and never set
//      3        1  copies: how many a character has; of a copy its place among them, from 0
//      4        4  entry
//      8        2  entryPosition, 0 to 15
//     10        4  exit
//     14        2  exitPosition, 0 to 11
//     17      100  motions, figure ids; 0 is an empty place
//    118  100 x 2  motionParameters
//    318  100 x 2  motionValues
//    518  100 x 2  lines, ids; 0 is an empty place
//    718  100 x 2  lineParameters
//    918  100 x 2  lineValues
//   1118      100  lineEnds, 0 to 4
//   1218  100 x 2  endParameters, what changes at a line's end
//   1418  100 x 2  endValues
//   1618        2  standX
//   1620        2  standY
//   1622        1  scrollSync
//   1623        1  collision, 0 to 4
//   1624        1  score
//   1625        1  depth, 0 to 3
//   1626        2  syncCharacter, id
struct SnryCastRec {
  std::uint16_t master;
  std::uint8_t drops;
  std::uint8_t copies;
  SnryPair entry;
  std::uint16_t entryPosition;
  SnryPair exit;
  std::uint16_t exitPosition;
  std::uint8_t kept16[1];
  std::uint8_t motions[kSnryCastPlaces];
  std::uint8_t kept117[1];
  std::uint16_t motionParameters[kSnryCastPlaces];
  std::uint16_t motionValues[kSnryCastPlaces];
  std::uint16_t lines[kSnryCastPlaces];
  std::uint16_t lineParameters[kSnryCastPlaces];
  std::uint16_t lineValues[kSnryCastPlaces];
  std::uint8_t lineEnds[kSnryCastPlaces];
  std::uint16_t endParameters[kSnryCastPlaces];
  std::uint16_t endValues[kSnryCastPlaces];
  std::uint16_t standX;
  std::uint16_t standY;
  std::uint8_t scrollSync;
  std::uint8_t collision;
  std::uint8_t score;
  std::uint8_t depth;
  std::uint16_t syncCharacter;
  std::uint8_t kept1628[10];
};

template <class Io>
constexpr void Fields(Io& io, SnryCastRec& cast) {
  io.LE16(cast.master);
  io.U8(cast.drops);
  io.U8(cast.copies);
  io.Record(cast.entry);
  io.LE16(cast.entryPosition);
  io.Record(cast.exit);
  io.LE16(cast.exitPosition);
  io.Bytes(cast.kept16);
  io.Bytes(cast.motions);
  io.Bytes(cast.kept117);
  io.LE16(cast.motionParameters);
  io.LE16(cast.motionValues);
  io.At(518);
  io.LE16(cast.lines);
  io.LE16(cast.lineParameters);
  io.LE16(cast.lineValues);
  io.At(1118);
  io.Bytes(cast.lineEnds);
  io.LE16(cast.endParameters);
  io.LE16(cast.endValues);
  io.At(1618);
  io.LE16(cast.standX);
  io.LE16(cast.standY);
  io.U8(cast.scrollSync);
  io.U8(cast.collision);
  io.U8(cast.score);
  io.U8(cast.depth);
  io.LE16(cast.syncCharacter);
  io.Bytes(cast.kept1628);
}
static_assert(RecordSize<SnryCastRec>() == 1638);

// What stands behind the cast, 902 bytes
//
// offset  size  field
//      0   300  background, a file of the scenario's folder of backgrounds
//    300   300  door
//    600   300  window
//    900     1  doorMode, 0 or 1: how it opens
//    901     1  windowMode, 0 to 2
struct SnryBackdropRec {
  char background[kSnryPathSize + 1];
  char door[kSnryPathSize + 1];
  char window[kSnryPathSize + 1];
  std::uint8_t doorMode;
  std::uint8_t windowMode;
};

template <class Io>
constexpr void Fields(Io& io, SnryBackdropRec& backdrop) {
  io.Text(backdrop.background, kSnryPathSize);
  io.Text(backdrop.door, kSnryPathSize);
  io.Text(backdrop.window, kSnryPathSize);
  io.U8(backdrop.doorMode);
  io.U8(backdrop.windowMode);
}
static_assert(RecordSize<SnryBackdropRec>() == 902);

// The title screen of a scene, 154 bytes
//
// offset  size  field
//      0     1  shown
//      1   128  text
//    129     3  textColour: R, G, B
//    132     3  backColour
//    135     1  size, row
//    136     1  style, row
//    137     1  method, row
//    138     2  time, row
//    140     4  end, what changes then
struct SnryTitleRec {
  std::uint8_t shown;
  char text[129];
  std::uint8_t textColour[3];
  std::uint8_t backColour[3];
  std::uint8_t size;
  std::uint8_t style;
  std::uint8_t method;
  std::uint16_t time;
  SnryPair end;
  std::uint8_t kept144[10];
};

template <class Io>
constexpr void Fields(Io& io, SnryTitleRec& title) {
  io.U8(title.shown);
  io.Text(title.text, 128);
  io.Bytes(title.textColour);
  io.Bytes(title.backColour);
  io.U8(title.size);
  io.U8(title.style);
  io.U8(title.method);
  io.LE16(title.time);
  io.Record(title.end);
  io.Bytes(title.kept144);
}
static_assert(RecordSize<SnryTitleRec>() == 154);

// A sound of a scene, 310 bytes
//
// offset  size  field
//      0     1  used
//      2     4  start
//      6     1  repeat, row
//      8     2  seconds, in which it is repeated
//     10   300  file, of the scenario's folder of sounds
struct SnrySoundRec {
  std::uint8_t used;
  std::uint8_t kept1[1];
  SnryPair start;
  std::uint8_t repeat;
  std::uint8_t kept7[1];
  std::uint16_t seconds;
  char file[kSnryPathSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, SnrySoundRec& sound) {
  io.U8(sound.used);
  io.Bytes(sound.kept1);
  io.Record(sound.start);
  io.U8(sound.repeat);
  io.Bytes(sound.kept7);
  io.LE16(sound.seconds);
  io.Text(sound.file, kSnryPathSize);
}
static_assert(RecordSize<SnrySoundRec>() == 310);

// What a key or an action of the mouse does, 138 bytes
//
// offset    size  field
//      0       1  key, row of the keys plus one; 0 for an empty record
//      2       2  speed, row
//      4  20 x 2  parameters, what it changes
//     44  20 x 2  values
//     84      33  name
//    117       1  cursorSync, 0 to 2
//    118       1  axes, bits 0 and 1
//    120       2  syncCharacter, cast id
struct SnryKeyRec {
  std::uint8_t key;
  std::uint8_t kept1[1];
  std::uint16_t speed;
  std::uint16_t parameters[kSnryPlaces];
  std::uint16_t values[kSnryPlaces];
  char name[kSnryKeyNameSize + 1];
  std::uint8_t cursorSync;
  std::uint8_t axes;
  std::uint8_t kept119[1];
  std::uint16_t syncCharacter;
  std::uint8_t kept122[16];
};

template <class Io>
constexpr void Fields(Io& io, SnryKeyRec& key) {
  io.U8(key.key);
  io.Bytes(key.kept1);
  io.LE16(key.speed);
  io.LE16(key.parameters);
  io.LE16(key.values);
  io.Text(key.name, kSnryKeyNameSize);
  io.U8(key.cursorSync);
  io.U8(key.axes);
  io.Bytes(key.kept119);
  io.LE16(key.syncCharacter);
  io.Bytes(key.kept122);
}
static_assert(RecordSize<SnryKeyRec>() == 138);

// How backgrounds scroll, 2736 bytes
//
// offset      size  field
//      0         1  enabled
//      1         1  count, of backgrounds, 0 to 10
//      2        20  directions, of the conditions: 0 up, 1 down, 2 right, 3 left
//     22        20  speeds, rows
//     42    20 x 2  parameters
//     82    20 x 2  values
//    155  10 x 256  backgrounds
//   2730         1  manualUp
//   2731         1  manualDown
//   2732         1  manualRight
//   2733         1  manualLeft
//   2734         1  character, row: a world character from 1
struct SnryScrollRec {
  std::uint8_t enabled;
  std::uint8_t count;
  std::uint8_t directions[kSnryPlaces];
  std::uint8_t speeds[kSnryPlaces];
  std::uint16_t parameters[kSnryPlaces];
  std::uint16_t values[kSnryPlaces];
  std::uint8_t kept122[33];
  char backgrounds[kSnryScrollMax][kSnryScrollNameSize + 1];
  std::uint8_t kept2715[15];
  std::uint8_t manualUp;
  std::uint8_t manualDown;
  std::uint8_t manualRight;
  std::uint8_t manualLeft;
  std::uint8_t character;
  std::uint8_t kept2735[1];
};

template <class Io>
constexpr void Fields(Io& io, SnryScrollRec& scroll) {
  io.U8(scroll.enabled);
  io.U8(scroll.count);
  io.U8(scroll.directions);
  io.U8(scroll.speeds);
  io.LE16(scroll.parameters);
  io.LE16(scroll.values);
  io.Bytes(scroll.kept122);
  io.At(155);
  io.Text(scroll.backgrounds, kSnryScrollNameSize);
  io.Bytes(scroll.kept2715);
  io.At(2730);
  io.U8(scroll.manualUp);
  io.U8(scroll.manualDown);
  io.U8(scroll.manualRight);
  io.U8(scroll.manualLeft);
  io.U8(scroll.character);
  io.Bytes(scroll.kept2735);
}
static_assert(RecordSize<SnryScrollRec>() == 2736);

// A scene as a table, 248 bytes
//
// offset    size  field
//      0      64  itemTitle
//     64      64  settingTitle
//    128      64  dataTitle
//    192       1  colourRow
//    193  13 x 3  colours: seven of text and frame, three of the titles' cells, three backs
//    232       1  dataRow
//    236       1  kept236[0], 0 in a new scene
//    237       1  kept236[1], 7 in a new scene
struct SnryTableRec {
  char itemTitle[65];
  char settingTitle[65];
  char dataTitle[65];
  std::uint8_t colourRow;
  std::uint8_t colours[13][3];
  std::uint8_t dataRow;
  std::uint8_t kept233[3];
  std::uint8_t kept236[2];
  std::uint8_t kept238[10];
};

template <class Io>
constexpr void Fields(Io& io, SnryTableRec& table) {
  io.Text(table.itemTitle, 64);
  io.Text(table.settingTitle, 64);
  io.Text(table.dataTitle, 64);
  io.U8(table.colourRow);
  io.Bytes(table.colours);
  io.At(232);
  io.U8(table.dataRow);
  io.Bytes(table.kept233);
  io.Bytes(table.kept236);
  io.Bytes(table.kept238);
}
static_assert(RecordSize<SnryTableRec>() == 248);
