#include "shell/pending_features.h"

#include "character/character_commands.h"
#include "shell/commands.h"
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

std::int32_t LayoutChange;
void LayoutDefault() {}

void PanelPointerOnStage(const Event&) {}


void CommandOptionMainCharacter(std::uint32_t) {}
void CommandOptionAlarmCharacter(std::uint32_t) {}
void CommandPanelLevel(std::uint32_t) {}
void CommandSchedulePopup(std::uint32_t) {}
void CommandCalendarPopup(std::uint32_t) {}
void CommandClockPopup(std::uint32_t) {}
