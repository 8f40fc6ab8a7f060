// The records of a schedule, as they lie in its file "*.GPI" behind the magic.
#pragma once

#include <cstdint>

#include "services/record.h"
#include "services/scl_date.h"

inline constexpr int kSclItemMax = 1000;  // rows of the table of items
inline constexpr int kSclNewItems = 31;   // items of a new schedule
inline constexpr int kSclRowCount = 8;    // work rows: Monday to Sunday, holiday
inline constexpr int kSclHolidayRow = 7;
inline constexpr int kSclDayHours = 24;
inline constexpr int kSclTitleSize = 129;  // 128 bytes of text and the terminator
inline constexpr int kSclItemTextSize = 128;

// The work hours of a day, 12 bytes
//
// offset  size  field
//      0     4  length in hours
//      4     4  begin, the hour at which work starts
//      8     4  end, the hour at which work stops
struct SclWorkDayRow {
  std::int32_t length;
  std::int32_t begin;
  std::int32_t end;

  bool operator==(const SclWorkDayRow&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, SclWorkDayRow& row) {
  io.BE32(row.length);
  io.BE32(row.begin);
  io.BE32(row.end);
}
static_assert(RecordSize<SclWorkDayRow>() == 12);

// A date of the schedule, 16 bytes: year, month, day, hour, 4 bytes each.
template <class Io>
constexpr void Fields(Io& io, SclDate& date) {
  io.BE32(date.year);
  io.BE32(date.month);
  io.BE32(date.day);
  io.BE32(date.hour);
}
static_assert(RecordSize<SclDate>() == 16);

// What belongs to the whole schedule, 259 bytes
//
// offset  size  field
//      0     1  kind, 1: the table has a column of checks
//      1     4  count of the items, 0 to 1000
//      5    16  start of the first item
//     21     1  spare
//     22     4  dayLength, hours of a work day in the display in days
//     26     4  dayBegin, stored and loaded only
//     30     4  dayEnd, the same
//     34    96  rows, the work hours of Monday to Sunday and of a holiday
//    130   129  title
struct SclHeaderState {
  std::uint8_t kind;
  std::int32_t count;
  SclDate start;
  std::uint8_t spare;
  std::int32_t dayLength;
  std::int32_t dayBegin;
  std::int32_t dayEnd;
  SclWorkDayRow rows[kSclRowCount];
  char title[kSclTitleSize];
};

template <class Io>
constexpr void Fields(Io& io, SclHeaderState& header) {
  io.U8(header.kind);
  io.BE32(header.count);
  io.Record(header.start);
  io.U8(header.spare);
  io.BE32(header.dayLength);
  io.BE32(header.dayBegin);
  io.BE32(header.dayEnd);
  io.Record(header.rows);
  io.Text(header.title);
}
static_assert(RecordSize<SclHeaderState>() == 259);

// The start or end of an item, 4 bytes: as SclDate counts, a byte each.
struct SclItemDate {
  std::uint8_t year;
  std::uint8_t month;
  std::uint8_t day;
  std::uint8_t hour;

  bool operator==(const SclItemDate&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, SclItemDate& date) {
  io.U8(date.year);
  io.U8(date.month);
  io.U8(date.day);
  io.U8(date.hour);
}

// The second set of a start or an end, 4 bytes. The execution takes the last byte for
// minutes, an inserted line has the hour there.
struct SclMirrorDate {
  std::uint8_t year;
  std::uint8_t month;
  std::uint8_t day;
  std::uint8_t minute;

  bool operator==(const SclMirrorDate&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, SclMirrorDate& date) {
  io.U8(date.year);
  io.U8(date.month);
  io.U8(date.day);
  io.U8(date.minute);
}

// Item, 160 bytes
//
// offset  size  field
//      0     1  alarmOn
//      1     1  endFixed, the end is not worked out
//      2     4  start
//      6     4  end
//     10     1  showDays, the hours are shown in days
//     11     1  reserved
//     12     4  hours, the planned length; 0 for an empty line
//     16     1  doneState: 0 open, 1 finished, else a status code
//     17     1  reserved2
//     18     4  mirrorStart
//     22     4  mirrorEnd
//     26     1  mirrorFlag
//     27     1  reserved3
//     28     4  mirrorHours
//     32   128  text
// kept: nothing sets the fixed end of an item or its display in days; a file may bring them.
struct SclItemRec {
  std::uint8_t alarmOn;
  std::uint8_t endFixed;
  SclItemDate start;
  SclItemDate end;
  std::uint8_t showDays;
  std::uint8_t reserved;
  std::uint32_t hours;
  std::uint8_t doneState;
  std::uint8_t reserved2;
  SclMirrorDate mirrorStart;
  SclMirrorDate mirrorEnd;
  std::uint8_t mirrorFlag;
  std::uint8_t reserved3;
  std::uint32_t mirrorHours;
  char text[kSclItemTextSize];

  bool operator==(const SclItemRec&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, SclItemRec& item) {
  io.U8(item.alarmOn);
  io.U8(item.endFixed);
  io.Record(item.start);
  io.Record(item.end);
  io.U8(item.showDays);
  io.U8(item.reserved);
  io.LE32(item.hours);
  io.U8(item.doneState);
  io.U8(item.reserved2);
  io.Record(item.mirrorStart);
  io.Record(item.mirrorEnd);
  io.U8(item.mirrorFlag);
  io.U8(item.reserved3);
  io.LE32(item.mirrorHours);
  io.Text(item.text);
}
static_assert(RecordSize<SclItemRec>() == 160);

// The path that ties a schedule to an application, 600 bytes; in the file only when it
// is not empty.
inline constexpr int kSclPathSize = 600;
struct SclMapPath {
  char path[kSclPathSize];
};

template <class Io>
constexpr void Fields(Io& io, SclMapPath& map) {
  io.Text(map.path);
}
static_assert(RecordSize<SclMapPath>() == 600);

// The column or row of an item on the map, 2 bytes, from 1; 0 for none.
struct SclMapPlace {
  std::uint16_t place;
};

template <class Io>
constexpr void Fields(Io& io, SclMapPlace& place) {
  io.LE16(place.place);
}
static_assert(RecordSize<SclMapPlace>() == 2);
