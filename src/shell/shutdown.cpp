#include "shell/shutdown.h"

#include "clock_calendar/clock_calendar_tick.h"
#include "mail_music/mail.h"
#include "platform/memory.h"
#include "platform/window.h"
#include "schedule/application_list.h"
#include "schedule/schedule_run.h"
#include "shell/old_data.h"
#include "shell/shell.h"
#include "shell/start.h"
#include "shell/tick_timer.h"

namespace {

void BlockFree(unsigned char*& block) {
  MemoryFree(block);
  block = nullptr;
}

}  // namespace

void Shutdown() {
  Quitting = true;
  TickTimerStop();
  BlockFree(ScopeBlock);
  ClockPreviewFree();
  BlockFree(CastBlock);
  ApliListFree();
  SclMapFree();
  OldDataFree();
  DrawingObjectsDelete();
  CalenFontDelete();
  MailSocketsClose();
  CalenStickersFree();
  MessageQuit(0);
}
