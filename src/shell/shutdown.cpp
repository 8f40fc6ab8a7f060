#include "shell/shutdown.h"

#include "clock_calendar/clock_calendar_tick.h"
#include "mail_music/mail/mail.h"
#include "platform/memory.h"
#include "platform/window.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/schedule_run.h"
#include "services/drawing_objects.h"
#include "services/program.h"
#include "services/work_blocks.h"
#include "shell/old_data.h"
#include "shell/start.h"
#include "shell/tick_timer.h"

namespace {

void BlockFree(unsigned char*& block) {
  MemoryFree(block);
  block = nullptr;
}

}  // namespace

void Shutdown() {
  Program.Quitting = true;
  TickTimerStop();
  BlockFree(WorkBlocks.ScopeBlock);
  ClockPreviewFree();
  BlockFree(WorkBlocks.CastBlock);
  ApliListFree();
  SclMapFree();
  OldDataFree();
  DrawingObjectsDelete();
  CalenFontDelete();
  MailSocketsClose();
  CalenStickersFree();
  MessageQuit(0);
}
