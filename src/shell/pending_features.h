// What the tick, the start and the command table ask of features that have no
// room of their own yet. Each is named, called where it will be called, and has
// nothing to do.
#pragma once

#include <cstdint>

// Notices and the pictures of their characters.
void SclNoticeFrameStep();
void NoticeCommand(std::uint32_t number);

// The clock notice.
bool ClockNoticeWaitIsOver();
