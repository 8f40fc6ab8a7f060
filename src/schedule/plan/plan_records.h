// The records of a plan, as they lie in its file "*.GPP" behind the magic.
#pragma once

#include <cstdint>

#include "schedule/model/scl_records.h"
#include "services/record.h"
#include "services/scl_date.h"

inline constexpr int kScpLineMax = 300;  // lines of a plan
inline constexpr int kScpIntervalCount = 10;
inline constexpr int kScpRestCount = 3;    // rests of a day
inline constexpr int kScpTextSize = 128;   // 127 bytes of text and the terminator
inline constexpr int kScpTitleSize = 129;  // 128 bytes of text and the terminator

// What a plan is for.
enum ScpKind : std::uint8_t { kScpStudy = 0, kScpTraining = 1 };

// A rest of a day, 12 bytes
//
// offset  size  field
//      0     4  start, an hour
//      4     4  end, an hour; told by the defaults, used by nothing
//      8     4  length in hours; 0 for no rest
struct ScpRestPeriod {
  std::int32_t start;
  std::int32_t end;
  std::int32_t length;

  bool operator==(const ScpRestPeriod&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, ScpRestPeriod& rest) {
  io.BE32(rest.start);
  io.BE32(rest.end);
  io.BE32(rest.length);
}
static_assert(RecordSize<ScpRestPeriod>() == 12);

// What belongs to the whole plan, 574 bytes
//
// offset  size  field
//      0     1  ScpPlanKind, 0 study, 1 training
//      1     4  count of the lines, 0 to 300
//      5    16  start, the first hour that may be used
//     21    96  rows, the work hours of Monday to Sunday and of a holiday
//    117    40  ScpIntervalTable, days to wait: after the first to the tenth placement,
//               or by the load in the first three
//    157   288  ScpRestTable, three rests for each of the rows
//    445   129  title
struct ScpPlanHead {
  std::uint8_t ScpPlanKind;
  std::int32_t count;
  SclDate start;
  SclWorkDayRow rows[kSclRowCount];
  std::int32_t ScpIntervalTable[kScpIntervalCount];
  ScpRestPeriod ScpRestTable[kSclRowCount][kScpRestCount];
  char title[kScpTitleSize];
};

template <class Io>
constexpr void Fields(Io& io, ScpPlanHead& head) {
  io.U8(head.ScpPlanKind);
  io.BE32(head.count);
  io.Record(head.start);
  io.Record(head.rows);
  io.BE32(head.ScpIntervalTable);
  io.Record(head.ScpRestTable);
  io.Text(head.title);
}
static_assert(RecordSize<ScpPlanHead>() == 574);

// A line of a plan, 152 bytes
//
// offset  size  field
//      0     1  repeat, placements after the first
//      1     1  kind, that of the plan in which the line was made
//      4     4  hours of one placement; 0 for an empty line
//      8     4  load, 0 light, 1 middle, 2 heavy
//     12   128  text
//    140    12  spare
struct ScpPlanRec {
  std::uint8_t repeat;
  std::uint8_t kind;
  std::uint32_t hours;
  std::uint32_t load;
  char text[kScpTextSize];
  std::uint8_t spare[12];

  bool operator==(const ScpPlanRec&) const = default;
};

template <class Io>
constexpr void Fields(Io& io, ScpPlanRec& line) {
  io.U8(line.repeat);
  io.U8(line.kind);
  io.At(4);
  io.LE32(line.hours);
  io.LE32(line.load);
  io.Text(line.text);
  io.Bytes(line.spare);
}
static_assert(RecordSize<ScpPlanRec>() == 152);
