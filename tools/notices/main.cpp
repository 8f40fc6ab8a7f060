// mirrell-notices: the companion, with something to tell. For the pictures of the
// notices and popup menus, whose own occasions (a mail, a line of the schedule, a
// note of the calendar, an alarm, a click on the clock) cannot be had at will.
//
// It starts as the companion does, in the current folder, and fills in what the
// occasions would. A mail comes at once. The rest waits for its command: 2265, 2294
// three times, 2336; and 2039, 2279 and 2337 for the menus.
#include <windows.h>

#include <cstdint>

#include "character/alarm_images.h"
#include "character/walk.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/dialog.h"
#include "platform/entry.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "resources/clock_calendar_ids.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/model/scl_dates.h"
#include "schedule/table/table_scroll.h"
#include "services/program.h"
#include "services/text.h"
#include "services/today.h"
#include "shell/popups.h"

namespace {

constexpr UINT kSoon = 10;  // milliseconds

void FillMail() {
  TextCopy(MailSetting.comment, sizeof MailSetting.comment, "新しいお便りが届いています");
  MailSetting.animeOn = 1;
  Mail.MailMinuteCount = INT32_MAX;  // no server is asked
  MailSetting.enabled = 1;
  WalkMailStateSet(kMailSeen);
}

void FillSchedule() {
  SclItemRec& item = Schedule.SclExecTable.items[0];
  item.start = SclItemDateOf({Today.TodayYear, Today.TodayMonth, Today.TodayDay, 9});
  item.end = SclItemDateOf({Today.TodayYear, Today.TodayMonth, Today.TodayDay, 12});
  item.mirrorStart.minute = 30;
  SclAlarm.row = {10, 8, 18};
  SclAlarm.announce = 1;
  TextCopy(item.text, sizeof item.text,
           "会議の資料を三部印刷し、二階の会議室へ運ぶ。Projectorの電源と、お茶の用意も忘れずに。");
}

void FillNotes() {
  constexpr const char* kTexts[kNoteDays] = {
      "歯医者 10:30",
      "図書館に本を返す。「花と庭」「星の本」の二冊。",
      "おばあさんの誕生日。花屋さんに花束を頼み、電車の切符も前の日までに買っておく。",
  };
  Calendar.CalenNoteMode = 0;  // a real note of these days would come in between
  for (int note = 0; note < kNoteDays; ++note) {
    Calendar.CalenNotes[note] = {true, Today.TodayYear, 9 + note, {}};
    TextCopy(Calendar.CalenNotes[note].text, sizeof Calendar.CalenNotes[note].text, kTexts[note]);
  }
}

void FillAlarm() {
  Clock.ClockAlarmSlot = 0;
  AlarmSlot& alarm = Clock.ClockEvents[0];
  alarm = AlarmSlot{};
  alarm.hour = 7;
  alarm.performance = 1;
  TextCopy(alarm.comment, sizeof alarm.comment,
           "おはようございます。今日は燃えるごみの日です。八時までに出してから、植木に水をやりましょう。");
}

// A hidden window in the place of one that is not open, for a menu to belong to.
void StandIn(WindowHandle& window, int templateId) {
  if (!window) window = DialogOpen(templateId, Program.hMainWnd, [](const Event&) { return false; });
  WindowShow(window, false);
}

void FillMenus() {
  StandIn(SclTable.hSclTableWnd, IDD_FlyingBat2);
  StandIn(Calendar.hCalenWnd, IDD_FlyingBat3);
  StandIn(Clock.hClockWnd, IDD_FlyingBat6);
  Popups.PopupPoint = {40, 40};
}

// Runs once, as soon as the start is over.
void CALLBACK Fill(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  FillSchedule();
  FillNotes();
  FillAlarm();
  FillMenus();
  FillMail();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int showMode) {
  SetTimer(nullptr, 0, kSoon, Fill);
  return ProcessEntry("", showMode);
}
