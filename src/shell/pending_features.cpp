#include "shell/pending_features.h"

void SclNoticeFrameStep() {}
void NoticeCommand(std::uint32_t) {}

bool ClockNoticeWaitIsOver() {
  return false;
}
