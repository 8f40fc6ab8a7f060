#include "shell/shutdown.h"

#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock_preview.h"
#include "mail_music/mail/mail_talk.h"
#include "platform/window.h"
#include "schedule/applications/application_list.h"
#include "services/drawing_objects.h"
#include "services/program.h"
#include "services/work_blocks.h"
#include "shell/old_data.h"
#include "shell/tick_timer.h"

void Shutdown() {
  Program.Quitting = true;
  TickTimerStop();
  ScopeBlockFree();
  ClockPreviewFree();
  CastBlockFree();
  ApliListFree();
  OldDataFree();
  DrawingObjectsDelete();
  CalenFontDelete();
  MailSocketsClose();
  CalenStickersFree();
  MessageQuit(0);
}
