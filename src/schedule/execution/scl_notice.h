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

struct NoticesState {
  SclNoticeItem SclNotice = {};
  // What the notice shows: 1 the schedule's line, 2 to 4 a note of the calendar, its
  // place in CalenNotes + 2.
  std::int32_t SclNoticeKind = 0;
  WindowHandle hSclNoticeWnd = nullptr;  // FlyingBat4
  int sclFrame = 0;
  int noteFrame = 0;
};
extern NoticesState Notices;

// Takes the item that the alarms tell, to be announced; none leaves nothing due.
void SclNoticeTake();

// The five-tick step of the open notice: its next picture, and its repaint.
void SclNoticeFrameStep();

int SclNoticeFrameDue();
inline constexpr TickStep kSclNoticeFrames{SclNoticeFrameStep, SclNoticeFrameDue};
