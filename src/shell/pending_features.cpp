#include "shell/pending_features.h"

#include "character/character_commands.h"
#include "shell/shell.h"

void SclNoticeFrameStep() {}
void AlarmCheckFrameStep() {}
int MotionPreviewTick() {
  return 0;
}
void NoticeCommand(std::uint32_t) {}

void OptionPreviewsFree() {}

bool ClockNoticeWaitIsOver() {
  return false;
}

void CommandOptionMainCharacter(std::uint32_t) {}
void CommandOptionAlarmCharacter(std::uint32_t) {}
