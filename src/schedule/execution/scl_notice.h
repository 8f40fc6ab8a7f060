// The notice of a line of the schedule or of a note of the calendar, FlyingBat4.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "services/scl_date.h"
#include "services/tick_step.h"

inline constexpr int kSclNoticeTextSize = 128;

// The line of the schedule that command 2265 announces; the schedule fills it.
struct SclNoticeItem {
  bool due;  // false: there is none
  SclDate start;
  SclDate end;
  std::int32_t startMinute;
  std::int32_t endMinute;
  // Hours that stand for a start or an end on another day than today.
  std::int32_t tableStartHour;
  std::int32_t tableEndHour;
  char text[kSclNoticeTextSize + 1];
};

inline constexpr int kNoteNoticeCount = 3;

// A note of the calendar that command 2294 announces: of today, and of one and two
// days ahead; the calendar fills them.
struct NoteNoticeItem {
  bool due;
  std::int32_t year;  // two digits
  // kept: month and day share one number. What stays in it is the day from 0, and
  // the notice shows it plus 1 in both places.
  std::int32_t monthAndDay;
  char text[kSclNoticeTextSize + 1];
};

struct NoticesState {
  SclNoticeItem SclNotice = {};
  NoteNoticeItem NoteNotices[kNoteNoticeCount] = {};
  // What the notice shows: 1 the schedule's line, 2 to 4 a note, its place + 2.
  std::int32_t SclNoticeKind = 0;
  WindowHandle hSclNoticeWnd = nullptr;  // FlyingBat4
};
extern NoticesState Notices;

// The five-tick step of the open notice: its next picture, and its repaint.
void SclNoticeFrameStep();

int SclNoticeFrameDue();
inline constexpr TickStep kSclNoticeFrames{SclNoticeFrameStep, SclNoticeFrameDue};
