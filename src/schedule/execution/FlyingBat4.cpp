// FlyingBat4, the notice of a line of the schedule or of a note of the calendar.
#include <algorithm>

#include "character/alarm_images.h"
#include "character/character_commands.h"
#include "character/notice_window.h"
#include "clock_calendar/calendar/calendar.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/schedule_ids.h"
#include "schedule/execution/scl_notice.h"
#include "services/commands.h"
#include "services/five_ticks.h"
#include "services/painting.h"
#include "services/program.h"
#include "services/text.h"
#include "services/text_lines.h"
#include "services/today.h"

NoticesState Notices;

namespace {

constexpr std::int32_t kKindSchedule = 1;
constexpr std::int32_t kKindNote = 2;  // and the number of the note, 0 to 2
constexpr std::int32_t kFirstFrameTicks = 50;
constexpr Point kFigureAt = {10, 10};
constexpr Rect kBox = {10, 10, 200, 100};
constexpr int kTextX = 10;
constexpr int kTextY = 10;
constexpr int kTextBelowFigure = 100;
constexpr int kDateDown = 20;
constexpr int kHeadDown = 44;
constexpr int kContentDown = 64;
constexpr int kLineStep = 20;
constexpr int kColumns = 56;

void Begin(WindowHandle window) {
  FiveTicksStart(kFirstFrameTicks);
  Notices.sclFrame = 0;
  Notices.noteFrame = 0;
  NoticeShow(window);
}

// "9 時 30 分", of an item's own day; of another day the hour of the table.
struct TimeOfDay {
  int hour;
  int minute;
};
TimeOfDay TimeShown(const SclDate& date, int minute, int tableHour) {
  // By the machine's date: the shared one stands still while the calendar is off.
  return SclSameDay(date, SclDateNow()) ? TimeOfDay{date.hour, minute} : TimeOfDay{tableHour, 0};
}

void DrawText(Canvas* canvas, int y, const char* head, const char* date, const char* content) {
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, 0);
  CanvasText(canvas, kTextX, y, head);
  CanvasText(canvas, kTextX, y + kDateDown, date);
  CanvasText(canvas, kTextX, y + kHeadDown, "( 内 容 )");
  TextLinesDraw(canvas, kTextX, y + kContentDown, kLineStep, content, kSclNoticeTextSize, kColumns);
}

void DrawSchedule(Canvas* canvas) {
  const AlarmRow& row = AlarmImages.AlarmRows[kAlarmSchedule];
  const bool picture = AlarmFrameHeight(row, Notices.sclFrame) != 0;
  CanvasClip(canvas, kBox);
  AlarmFrameDraw(canvas, kBox.left, kBox.top, row, Notices.sclFrame);
  CanvasClipNone(canvas);
  const SclNoticeItem& item = Notices.SclNotice;
  const TimeOfDay start = TimeShown(item.start, item.startMinute, item.tableStartHour);
  const TimeOfDay end = TimeShown(item.end, item.endMinute, item.tableEndHour);
  char date[100];
  TextFormat(date, sizeof date, "予定 : %d 時 %d 分 ～ %d 時 %d 分", start.hour, start.minute, end.hour,
             end.minute);
  DrawText(canvas, picture ? kTextBelowFigure : kTextY, "-スケジュール表-", date, item.text);
}

void DrawNote(Canvas* canvas) {
  const AlarmRow& row = AlarmImages.AlarmRows[kAlarmNote];
  AlarmFrameDraw(canvas, kFigureAt.x, kFigureAt.y, row, Notices.noteFrame);
  const int note = std::clamp(Notices.SclNoticeKind - kKindNote, 0, kNoteDays - 1);
  const CalenNote& item = Calendar.CalenNotes[note];
  char day[40] = "本日です";
  if (note != 0) TextFormat(day, sizeof day, "%d日前です", note);
  char date[100];
  TextFormat(date, sizeof date, "予定日 : %d年%d月%d日  %s", item.year + 2000, item.monthAndDay + 1,
             item.monthAndDay + 1, day);
  const int below = kFigureAt.y + AlarmFrameHeight(row, Notices.noteFrame) + kTextY;
  DrawText(canvas, std::min(below, kTextBelowFigure), "<< カレンダー書き込み >>", date, item.text);
}

// The figure changes and the text moves with it, so each painting begins with the
// background.
void Draw(Canvas* canvas, const Rect& area) {
  FillArea(canvas, BrushFace(), area);
  if (Notices.SclNoticeKind >= kKindNote) {
    DrawNote(canvas);
  } else {
    DrawSchedule(canvas);
  }
}

void Paint(WindowHandle window) {
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  DrawSteady(canvas, WindowClientRect(window), Draw);
  CanvasRelease(canvas);
}

constexpr NoticeWindow kNotice{&Notices.hSclNoticeWnd, Begin, Paint};

bool SclNoticeProc(const Event& event) {
  return NoticeEvent(kNotice, event);
}

void Open(std::int32_t kind) {
  Notices.SclNoticeKind = kind;
  DialogOpen(IDD_FlyingBat4, Program.hMainWnd, SclNoticeProc);
}

}  // namespace

void SclNoticeFrameStep() {
  if (!Notices.hSclNoticeWnd) return;
  if (Notices.SclNoticeKind >= kKindNote) {
    Notices.noteFrame = AlarmFrameNext(AlarmImages.AlarmRows[kAlarmNote], Notices.noteFrame);
  } else {
    Notices.sclFrame = AlarmFrameNext(AlarmImages.AlarmRows[kAlarmSchedule], Notices.sclFrame);
  }
  SendPaint(Notices.hSclNoticeWnd);
}

void CommandSclNotice(Command) {
  SclNoticeTake();
  if (!Notices.SclNotice.due || !NoticeClosed(&Notices.hSclNoticeWnd)) return;
  Open(kKindSchedule);
}

void CommandNoteNotice(Command) {
  if (!CalenNoteWaits() || !NoticeClosed(&Notices.hSclNoticeWnd)) return;
  const int note = CalenNoteTake();
  if (note >= 0) Open(kKindNote + note);
}

int SclNoticeFrameDue() {
  return TickDueIf(Notices.hSclNoticeWnd != nullptr);
}
