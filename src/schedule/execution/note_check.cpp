#include "schedule/execution/note_check.h"

#include "platform/time.h"
#include "schedule/execution/scl_notice.h"
#include "services/commands.h"
#include "services/today.h"

namespace {

constexpr int kFirstNoteKind = 2;

bool NoteIsShown() {
  return Notices.hSclNoticeWnd && Notices.SclNoticeKind >= kFirstNoteKind;
}

}  // namespace

void NoteCheckTick() {
  if (!NoteIsShown() && CalenNoteCheck() != 0) CommandSend(Command::NoteNotice);
}

int NoteCheckDue() {
  if (!NoteCheckIsActive() || NoteIsShown()) return kTickNever;
  LocalTime now;
  TimeGetLocal(&now);
  return CalenNotesAreDone(now) ? TicksToMidnight(now) : 1;
}
