// ScheduleMakeDlg, "スケジュール表": the schedule on display is read and edited.
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/schedule_table_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/model/scl_items.h"
#include "schedule/table/schedule_dialogs.h"
#include "schedule/table/schedule_table.h"
#include "schedule/table/status_names.h"
#include "schedule/table/table_window.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/modal.h"
#include "services/program.h"
#include "services/settings_save.h"

namespace {

constexpr BoxWords kSaveAsked{"スケジュールが変更されています。セーブしますか?", "スケジュールのセーブ確認"};
constexpr BoxWords kStartsTold{"項目の予定開始時間を再設定しました。", "開始年月日設定"};
constexpr int kDoneOpen = 0;
constexpr int kDoneFinished = 1;

constexpr TableWindow kTable{SclTable.SclTableView, kTableBar, ScheduleTableLayout,
                             [] { return static_cast<int>(Schedule.SclHeader.count); }};

// --- Size

// The buttons stand by the lower edge.
void ButtonsMove(WindowHandle dialog, int down) {
  constexpr int kButtons[] = {IDC_SCL_LINES,     IDC_SCL_SAVE,    IDC_SCL_OVERWRITE, kCancelButton,
                              IDC_SCL_DAY_HOURS, IDC_SCL_EXECUTE, IDC_SCL_RATES};
  for (const int id : kButtons) {
    const Rect at = ControlPlace(dialog, id);
    WindowMove(Control(dialog, id), at.left, at.top + down, RectWidth(at), RectHeight(at), true);
  }
}

void Size(WindowHandle dialog) {
  const int height = WindowClientRect(dialog).bottom;
  const int down = height - SclTable.clientHeight;
  // A window that is only in the bar of the system has no height.
  if (height == 0 || SclTable.hSclTableWnd != dialog) return;
  SclTable.clientHeight = height;
  if (down != 0) ButtonsMove(dialog, down);
  TableWindowFit(kTable, dialog);
  WindowInvalidate(dialog, true);
}

void Paint(WindowHandle dialog) {
  // The stage takes the bar away when it changes its size, and a file brings other rows.
  if (!SclTable.SclTableView.scrollBar || SclTable.SclTableView.lines != Schedule.SclHeader.count)
    TableWindowFit(kTable, dialog);
  ScheduleTablePaint(dialog);
}

// --- What a double click opens

void EditStart(WindowHandle owner, int) {
  if (SCLSttTimeSetDlgRun(ToolDialog::SCLSttTimeSetDlg, owner, SclStart())) SclRecalcAll();
}

void EditContent(WindowHandle owner, int item) {
  SCLContentSetDlgRun(ToolDialog::SCLContentSetDlg, owner, SclItem(item).text);
}

void EditHours(WindowHandle owner, int item) {
  SCLRsvTimeSetDlgRun(owner, item);
}

void TurnCheck(WindowHandle, int item) {
  std::uint8_t& done = SclItem(item).doneState;
  done = done == kDoneOpen ? kDoneFinished : kDoneOpen;
}

void EditTitle(WindowHandle owner, int) {
  SCLTitleDlgRun(ToolDialog::SCLTitleDlg, owner);
}

void TurnAlarm(WindowHandle, int item) {
  std::uint8_t& alarm = SclItem(item).alarmOn;
  alarm = alarm == 0 ? 1 : 0;
}

struct DoubleAct {
  TableHit hit;
  void (*act)(WindowHandle owner, int item);
};
constexpr DoubleAct kDoubleActs[] = {
    {TableHit::Start, EditStart},
    {TableHit::Content, EditContent},
    {TableHit::Hours, EditHours},
    {TableHit::Check, TurnCheck},
    {TableHit::Number, DspSclClickLineDataRun},
    {TableHit::Title, EditTitle},
    {TableHit::Alarm, TurnAlarm},
    {TableHit::AlarmHead, [](WindowHandle owner, int) { ScheduleAlarmDlgRun(owner); }},
};

void LeftDouble(const Event& event) {
  if (ModalIsUp()) return;
  const TablePlace place = TablePlaceOf(kTable, event);
  for (const DoubleAct& act : kDoubleActs) {
    if (act.hit == place.hit) act.act(event.window, place.row - 1);
  }
  ScheduleTableShow();
}

// --- Buttons

void DayHours(WindowHandle dialog) {
  if (ModalIsUp()) return;
  SclConvertedSet(false);
  ChgSclDayTimeDlgRun(ToolDialog::ChgSclDayTimeDlg, dialog);
  // kept: the dates of a schedule follow new work hours at once only when a plan has been
  // converted meanwhile.
  if (Schedule.SclConverted) {
    SclRecalcAll();
    BoxTell(dialog, kStartsTold);
  }
  ScheduleTableShow();
}

// --- Opening and closing

// The rows are those of another schedule.
void BeginAnew() {
  RowsForget();
  if (RowSelection.copyMark == CopyMark::InSchedule) RowsMarkClear();
  SclStatusNamesRead();
}

void Open(WindowHandle dialog) {
  SclTableWindowSet(dialog);
  SclTable.clientHeight = WindowClientRect(dialog).bottom;
  BeginAnew();
  TableWindowFit(kTable, dialog);
  TableFocus(dialog, SclTable.SclTableView, kTableBar);
}

void Close(WindowHandle dialog) {
  if (SclTable.closing || ModalIsUp()) return;
  SclTable.closing = true;
  if ((Schedule.SclDirtyFlags & kSclTableChanged) != 0 && BoxAsk(dialog, kSaveAsked)) SclSaveRun(dialog);
  if ((Schedule.SclDirtyFlags & kSclSettingsChanged) != 0) SysFileWrite();
  // settled: a change of the schedule that the user has not saved now is not asked about again with another
  // schedule.
  SclDirtyClear(kSclTableChanged | kSclSettingsChanged);
  SclTable.closing = false;
  if (SclTable.hSclTableWnd == dialog) WindowDestroy(dialog);
}

void Gone() {
  SclTableWindowSet(nullptr);
}

// Buttons leave the keyboard with the table.
template <Command command>
void Send(WindowHandle dialog) {
  CommandSend(command);
  if (SclTable.hSclTableWnd == dialog) TableFocus(dialog, SclTable.SclTableView, kTableBar);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Size, Size},
    {EventKind::Paint, Paint},
    {EventKind::LeftDouble, LeftDouble},
    {IDC_SCL_LINES, Send<Command::ScheduleLineChart>},
    {IDC_SCL_SAVE, Send<Command::ScheduleSave>},
    {IDC_SCL_OVERWRITE, Send<Command::ScheduleOverwrite>},
    {IDC_SCL_DAY_HOURS, DayHours},
    {IDC_SCL_EXECUTE, Send<Command::ScheduleExecute>},
    {IDC_SCL_RATES, Send<Command::ScheduleRates>},
    {kCancelButton, Close},
    {EventKind::Close, Close},
    {EventKind::Destroy, Gone},
};

bool Handle(const Event& event) {
  return TableWindowEvent(kTable, event) || DialogActRun(event, kActs);
}

}  // namespace

TableLayout ScheduleTableLayout(WindowHandle window) {
  TableShape shape;
  if (Schedule.SclHeader.kind == 0) {
    shape.hours = 180;
    shape.check = 0;
  }
  return TableLayoutOf(WindowClientRect(window), shape);
}

WindowHandle ScheduleOwner() {
  return SclTable.hSclTableWnd ? SclTable.hSclTableWnd : Program.hMainWnd;
}

void ScheduleTableShow() {
  SendPaint(SclTable.hSclTableWnd);
}

void ScheduleTableOpen() {
  if (!SclTable.hSclTableWnd) {
    DialogOpen(IDD_ScheduleMakeDlg, Program.hMainWnd, Handle);
    return;
  }
  BeginAnew();
  ScheduleTableShow();
}
