// The hand-over file SclApliStUp.svt, 971,047 bytes as this program writes it; the numbers
// of the calendars are big-endian:
//
//   0         1000        HandOffHead
//   1000        15        HandOffCalendars
//   1015     36 x 4672    CalenMonth of the working calendar, year by year
//   169207   30 x 26728   CalenDefinition
#pragma once

#include "services/record.h"

inline constexpr int kHandOffSize = 971047;

// State of the file, as an application writes it.
enum class HandOffAnswer : std::uint8_t {
  None = 0,
  Goes = 1,  // it goes on
  Ends = 2,  // it has ended
};
// Mode of an answer: its schedule is to be the executing one.
inline constexpr std::uint8_t kHandOffExecutes = 1;

// The first part, which both sides write, 1000 bytes
//
// offset  size  field
//      0   998  path: from here the data folder; from there, in 600 bytes, its schedule
//    998     1  state, 0 from here
//    999     1  mode: whether a schedule is carried out
struct HandOffHead {
  char path[998];
  HandOffAnswer state;
  std::uint8_t mode;
};

template <class Io>
constexpr void Fields(Io& io, HandOffHead& head) {
  io.Text(head.path);
  io.U8(head.state);
  io.U8(head.mode);
}
static_assert(RecordSize<HandOffHead>() == 1000);

// What calendar it is, 15 bytes
//
// offset  size  field
//      0     3  selected, number of the calendar, the low three bytes
//      3     4  year on display, its place
//      7     4  firstYear
//     11     4  span in years
struct HandOffCalendars {
  std::uint8_t selected[3];
  std::int32_t year;
  std::int32_t firstYear;
  std::int32_t span;
};

template <class Io>
constexpr void Fields(Io& io, HandOffCalendars& calendars) {
  io.U8(calendars.selected);
  io.BE32(calendars.year);
  io.BE32(calendars.firstYear);
  io.BE32(calendars.span);
}
static_assert(RecordSize<HandOffCalendars>() == 15);
