// CalenCommentDlg, "カレンダー書き込み": the note of the clicked day.
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_dialogs.h"
#include "clock_calendar/calendar/calendar_edit.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/calendar_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "services/settings_save.h"
#include "services/text.h"

namespace {

void Open(WindowHandle dialog) {
  CalenEditNoteBegin();
  const CalendarEditState& edit = CalendarEdit;
  char text[kNoteSize + 1];
  TextFormat(text, sizeof text, "%d年 %d月 %d日", 2000 + edit.noteYear, edit.noteMonth + 1, edit.noteDay + 1);
  ControlSetText(dialog, IDC_CALEN_NOTE_DAY, text);
  CalenNoteGet(CalenYearShown(), edit.noteMonth, edit.noteDay, text);
  ControlSetLimit(dialog, IDC_CALEN_NOTE, kNoteSize - 1);
  ControlSetText(dialog, IDC_CALEN_NOTE, text);
  ControlSetFocus(dialog, IDC_CALEN_NOTE);
}

void Write(WindowHandle dialog) {
  char note[kNoteSize];
  ControlGetText(dialog, IDC_CALEN_NOTE, note, sizeof note);
  SaveTold(dialog, CalenEditNoteWrite(note), "カレンダー書き込み");
  SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Write},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int CalenCommentDlgRun() {
  if (Calendar.CalenClickedDay == 0) return 0;
  return SubDialogRun(SubDialog::CalenCommentDlg, IDD_CalenCommentDlg, Program.hMainWnd, Handle);
}
