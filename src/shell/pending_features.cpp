#include "shell/pending_features.h"

#include "character/character_commands.h"
#include "shell/commands.h"
#include "shell/shell.h"

bool WalkIsRunning() {
  return false;
}
bool WalkSlotIsActive(int) {
  return false;
}
void WalkTick(int) {}
bool WalkEndIsRunning() {
  return false;
}
bool WalkEndSlotIsActive(int) {
  return false;
}
void WalkEndTick(int) {}

void AlarmCharaLoad() {}
void MailNoticeStart() {
  MailPhase = 3;
}
void MailNoticeFrameStep() {}
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

void TidyDefaults() {}

void CommandOpenWalk(std::uint32_t) {}
void CommandWalkWindow(std::uint32_t) {}
void CommandWalkEnd(std::uint32_t) {}
void CommandOptionMainCharacter(std::uint32_t) {}
void CommandOptionAlarmCharacter(std::uint32_t) {}
void CommandPanelLevel(std::uint32_t) {}
void CommandSchedulePopup(std::uint32_t) {}
void CommandCalendarPopup(std::uint32_t) {}
void CommandClockPopup(std::uint32_t) {}
