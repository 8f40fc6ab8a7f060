// The records of the clock: alarms (settings file), performances
// (mirrell_ClcAlmPerFile.clc), the list of designs (end of the calendar file) and
// timed events. Numbers inside a record stand low byte first.
#pragma once

#include "services/record.h"

inline constexpr int kAlarmCommentSize = 100;

// Alarm slot, 144 bytes
//
// offset  size  field
//      0     1  enabled
//      1     1  hour, 0 to 23
//      2     1  minute, 0 to 59
//      3     1  spare1
//      4     2  performance, number of a record from 1; 0 for none
//      6   100  comment
//    106    38  spare2
struct AlarmSlot {
  std::uint8_t enabled;
  std::uint8_t hour;
  std::uint8_t minute;
  unsigned char spare1;
  std::uint16_t performance;
  char comment[kAlarmCommentSize];
  unsigned char spare2[38];
};

template <class Io>
constexpr void Fields(Io& io, AlarmSlot& slot) {
  io.U8(slot.enabled);
  io.U8(slot.hour);
  io.U8(slot.minute);
  io.U8(slot.spare1);
  io.At(4);
  io.LE16(slot.performance);
  io.Text(slot.comment);
  io.Bytes(slot.spare2);
}
static_assert(RecordSize<AlarmSlot>() == 144);

inline constexpr int kPerformanceStepCount = 20;
inline constexpr int kPerformanceSoundSize = 1500;
inline constexpr int kPerformanceTitleSize = 80;

// Performance, 2008 bytes
//
// offset  size  field
//      0     1  flags: nonzero in use, bit 0 shows the selected character
//      4     4  figureMode: nonzero shows figures
//     24    80  durations
//    424  1500  sound file
//   1924     4  reserved4
//   1928    80  title
// The rest is reserved and stays as it is.
struct ClockPerformance {
  std::uint8_t flags;
  unsigned char reserved1[3];
  std::int32_t figureMode;
  unsigned char reserved2[16];
  std::int32_t durations[kPerformanceStepCount];
  unsigned char reserved3[320];
  char sound[kPerformanceSoundSize + 1];
  unsigned char reserved4[4];
  char title[kPerformanceTitleSize + 1];
};
inline constexpr unsigned kPerformanceCharacter = 1;  // bit of the flags

template <class Io>
constexpr void Fields(Io& io, ClockPerformance& performance) {
  io.U8(performance.flags);
  io.Bytes(performance.reserved1);
  io.LE32(performance.figureMode);
  io.Bytes(performance.reserved2);
  io.At(24);
  io.LE32(performance.durations);
  io.Bytes(performance.reserved3);
  io.At(424);
  io.Text(performance.sound, kPerformanceSoundSize);
  io.Bytes(performance.reserved4);
  io.At(1928);
  io.Text(performance.title, kPerformanceTitleSize);
}
static_assert(RecordSize<ClockPerformance>() == 2008);

inline constexpr int kClockListTextSize = 50;

// What a user may change of a clock design, 104 bytes
//
// offset  size  field
//      0     1  repeat flag
//      1     1  strikeMode
//      2     1  soundOn
//      3     1  spare
//      4    50  sound file
//     54    50  name of the design
struct ClockListRow {
  std::uint8_t repeat;
  std::uint8_t strikeMode;
  std::uint8_t soundOn;
  unsigned char spare;
  char sound[kClockListTextSize + 1];
  char name[kClockListTextSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, ClockListRow& row) {
  io.U8(row.repeat);
  io.U8(row.strikeMode);
  io.U8(row.soundOn);
  io.U8(row.spare);
  io.Text(row.sound, kClockListTextSize);
  io.Text(row.name, kClockListTextSize);
}
static_assert(RecordSize<ClockListRow>() == 104);

inline constexpr int kTimedCommentSize = 128;

// Timed event, 138 bytes, for as long as the program runs
//
// offset  size  field
//      0     1  enabled
//      2     2  hour
//      4     2  minute
//      6     2  second
//      8   128  comment
//    136     2  spare
struct TimedEvent {
  bool enabled;
  int hour;
  int minute;
  int second;
  char comment[kTimedCommentSize];
};

template <class Io>
constexpr void Fields(Io& io, TimedEvent& event) {
  io.U8(event.enabled);
  io.At(2);
  io.LE16(event.hour);
  io.LE16(event.minute);
  io.LE16(event.second);
  io.Text(event.comment);
  io.At(138);
}
static_assert(RecordSize<TimedEvent>() == 138);
