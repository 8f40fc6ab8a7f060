// The records of the calendars, as they lie in mirrell_calen_file.dcd and, the months
// of the working array, in the settings file. Numbers inside a record stand low byte
// first; those of the file's head are big-endian. A sheet is twelve months.
#pragma once

#include "services/record.h"
#include "services/scl_date.h"

inline constexpr int kMonthDayMax = 32;
inline constexpr int kNoteSize = 128;
inline constexpr int kMonthBackgroundSize = 512;
inline constexpr int kMonthBackgroundMax = 510;  // bytes of it in use
inline constexpr int kFigureCount = 2;           // moving figures of a page

// The month picture settings, 542 bytes
//
// offset  size  field
//      0   512  background file, at most 510 bytes used
//    512     3  backColour: red, green, blue
//    515     1  spare
//    516     4  charas of the two figures, number from 1, 0 for none
//    520     2  figures, the figure of each
//    522     4  correctX of each
//    526     4  correctY of each
//    530     2  directions
//    532     2  byYear: the figure follows the year
//    534     2  periods
//    536     2  steps
//    538     1  colourOnly instead of the background file
//    539     1  pictureOn
//    540     2  starts, the start position of each
struct CalenMonthPicture {
  char background[kMonthBackgroundSize + 1];
  unsigned char backColour[3];
  unsigned char spare;
  std::uint16_t charas[kFigureCount];
  std::uint8_t figures[kFigureCount];
  std::int16_t correctX[kFigureCount];
  std::int16_t correctY[kFigureCount];
  std::uint8_t directions[kFigureCount];
  std::uint8_t byYear[kFigureCount];
  std::uint8_t periods[kFigureCount];
  std::uint8_t steps[kFigureCount];
  std::uint8_t colourOnly;
  std::uint8_t pictureOn;
  std::uint8_t starts[kFigureCount];

  bool operator==(const CalenMonthPicture&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, CalenMonthPicture& picture) {
  io.Text(picture.background, kMonthBackgroundSize);
  io.Bytes(picture.backColour);
  io.U8(picture.spare);
  io.LE16(picture.charas);
  io.U8(picture.figures);
  io.LE16(picture.correctX);
  io.LE16(picture.correctY);
  io.At(530);
  io.U8(picture.directions);
  io.U8(picture.byYear);
  io.U8(picture.periods);
  io.U8(picture.steps);
  io.U8(picture.colourOnly);
  io.U8(picture.pictureOn);
  io.U8(picture.starts);
}
static_assert(RecordSize<CalenMonthPicture>() == 542);

// Month block, 4672 bytes; days count from 0
//
// offset  size      field
//      0     1      days of the month
//      1     1      firstWeekday, Monday is 0
//      2    32      holidays, a flag per day
//     34    32 x 128  notes, a text per day
//   4130   542      picture
struct CalenMonth {
  std::uint8_t days;
  std::uint8_t firstWeekday;
  std::uint8_t holidays[kMonthDayMax];
  char notes[kMonthDayMax][kNoteSize + 1];
  CalenMonthPicture picture;

  bool operator==(const CalenMonth&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, CalenMonth& month) {
  io.U8(month.days);
  io.U8(month.firstWeekday);
  io.U8(month.holidays);
  io.Text(month.notes, kNoteSize);
  io.At(4130);
  io.Record(month.picture);
}
static_assert(RecordSize<CalenMonth>() == 4672);

// The choices of the figures of a month that follow the year, 10 bytes.
struct CalenMonthChoices {
  unsigned char choices[10];
};

template <class Io>
constexpr void Fields(Io& io, CalenMonthChoices& month) {
  io.Bytes(month.choices);
}
static_assert(RecordSize<CalenMonthChoices>() == 10);

// The font of a page's text, 60 bytes
//
// offset  size  field
//      0     4  height
//      4     4  width
//      8     4  escapement
//     12     4  orientation
//     16     4  weight
//     20     1  italic
//     21     7  marks: underlined, struck out, character set, precisions, quality, pitch
//     28    32  face
inline constexpr int kFontFaceSize = 32;
struct CalenFont {
  std::int32_t height;
  std::int32_t width;
  std::int32_t escapement;
  std::int32_t orientation;
  std::int32_t weight;
  std::uint8_t italic;
  unsigned char marks[7];
  char face[kFontFaceSize + 1];

  bool operator==(const CalenFont&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, CalenFont& font) {
  io.LE32(font.height);
  io.LE32(font.width);
  io.LE32(font.escapement);
  io.LE32(font.orientation);
  io.LE32(font.weight);
  io.U8(font.italic);
  io.Bytes(font.marks);
  io.Text(font.face, kFontFaceSize);
}
static_assert(RecordSize<CalenFont>() == 60);

// The parameters of a rule, 2 bytes.
struct CalenRuleParameters {
  std::uint8_t month;  // from 1
  std::uint8_t value;

  bool operator==(const CalenRuleParameters&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, CalenRuleParameters& parameters) {
  io.U8(parameters.month);
  io.U8(parameters.value);
}

inline constexpr int kDefinitionPlaces = 4;  // characters of a month
inline constexpr int kDefinitionRuleMax = 365;
inline constexpr int kDefinitionStickerDays = 32;

// Definition block, 26,728 bytes. Months in rows, first row January
//
// offset  size  field
//      0     1  valid
//     12    96  charas, per month four, number + 1, 0 for none
//    108    48  figures of the four
//    156    48  figureModes
//    204   192  startX
//    396   192  startY
//    588   365  ruleKinds, up to the first zero
//  12633   730  ruleParameters
//  26138     3  colour1, of rules by date: red, green, blue
//  26141     3  colour2, of rules by weekday
//  26144     1  design of the page: 1 uses the font, 2 and more draws digits as figures
//  26148    60  font
//  26208     2  figureSet1
//  26210     2  figureSet2
//  26227     1  tickerPause, a code
//  26228     1  tickerSpeed, pixels a step less 1
//  26229     1  tickerFlags
//  26230     1  tickerPlace, 0 to 4
//  26234     3  tickerColour: red, green, blue
//  26301   384  stickers, per month 32 days, sticker number + 1, 0 for none
//  26688     4  english
// The rest is reserved and stays as it is.
struct CalenDefinition {
  std::uint8_t valid;
  unsigned char reserved1[11];
  std::uint16_t charas[kMonthsOfYear][kDefinitionPlaces];
  std::uint8_t figures[kMonthsOfYear][kDefinitionPlaces];
  std::uint8_t figureModes[kMonthsOfYear][kDefinitionPlaces];
  std::int32_t startX[kMonthsOfYear][kDefinitionPlaces];
  std::int32_t startY[kMonthsOfYear][kDefinitionPlaces];
  std::uint8_t ruleKinds[kDefinitionRuleMax];
  unsigned char reserved2[11680];
  CalenRuleParameters ruleParameters[kDefinitionRuleMax];
  unsigned char reserved3[12775];
  unsigned char colour1[3];
  unsigned char colour2[3];
  std::uint8_t design;
  unsigned char reserved4[3];
  CalenFont font;
  std::uint16_t figureSet1;
  std::uint16_t figureSet2;
  unsigned char reserved5[15];
  std::uint8_t tickerPause;
  std::uint8_t tickerSpeed;
  std::uint8_t tickerFlags;
  std::uint8_t tickerPlace;
  unsigned char reserved6[3];
  unsigned char tickerColour[3];
  unsigned char reserved7[64];
  std::uint8_t stickers[kMonthsOfYear][kDefinitionStickerDays];
  unsigned char reserved8[3];
  std::int32_t english;
  unsigned char reserved9[36];

  bool operator==(const CalenDefinition&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, CalenDefinition& definition) {
  io.U8(definition.valid);
  io.Bytes(definition.reserved1);
  io.At(12);
  io.LE16(definition.charas);
  io.U8(definition.figures);
  io.U8(definition.figureModes);
  io.LE32(definition.startX);
  io.LE32(definition.startY);
  io.At(588);
  io.U8(definition.ruleKinds);
  io.Bytes(definition.reserved2);
  io.At(12633);
  io.Record(definition.ruleParameters);
  io.Bytes(definition.reserved3);
  io.At(26138);
  io.Bytes(definition.colour1);
  io.Bytes(definition.colour2);
  io.U8(definition.design);
  io.Bytes(definition.reserved4);
  io.At(26148);
  io.Record(definition.font);
  io.LE16(definition.figureSet1);
  io.LE16(definition.figureSet2);
  io.Bytes(definition.reserved5);
  io.At(26227);
  io.U8(definition.tickerPause);
  io.U8(definition.tickerSpeed);
  io.U8(definition.tickerFlags);
  io.U8(definition.tickerPlace);
  io.Bytes(definition.reserved6);
  io.Bytes(definition.tickerColour);
  io.Bytes(definition.reserved7);
  io.At(26301);
  io.U8(definition.stickers);
  io.Bytes(definition.reserved8);
  io.LE32(definition.english);
  io.Bytes(definition.reserved9);
}
static_assert(RecordSize<CalenDefinition>() == 26728);

inline constexpr int kStickerMax = 100;

// Sticker list, 302 bytes
//
// offset  size  field
//      0     2  count
//      2   200  charas, number + 1
//    202   100  figures
struct CalenStickerList {
  std::uint16_t count;
  std::uint16_t charas[kStickerMax];
  std::uint8_t figures[kStickerMax];
};

template <class Io>
constexpr void Fields(Io& io, CalenStickerList& stickers) {
  io.LE16(stickers.count);
  io.LE16(stickers.charas);
  io.U8(stickers.figures);
}
static_assert(RecordSize<CalenStickerList>() == 302);

inline constexpr int kCalenMax = 30;
inline constexpr int kCalenNameSize = 129;

// What the file tells of all calendars before their sheets, 3964 bytes
//
// offset  size      field
//      0     4      count
//      4    30 x 129  names
//   3874    30      kinds of their pages
//   3904    30      parts: stored and read, no other use
//   3934    30      pictures, a switch each
struct CalenHead {
  std::int32_t count;
  char names[kCalenMax][kCalenNameSize];
  std::uint8_t kinds[kCalenMax];
  std::uint8_t parts[kCalenMax];
  std::uint8_t pictures[kCalenMax];
};

template <class Io>
constexpr void Fields(Io& io, CalenHead& head) {
  io.BE32(head.count);
  io.Text(head.names);
  io.U8(head.kinds);
  io.U8(head.parts);
  io.U8(head.pictures);
}
static_assert(RecordSize<CalenHead>() == 3964);
