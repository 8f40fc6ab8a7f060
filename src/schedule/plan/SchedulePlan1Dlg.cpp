// SchedulePlan1Dlg, "学習作業スケジュール作成", and SCHEDULEPLAN2DLG, "筋トレ スケジュール作成":
// the lines of a plan are read and edited.
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/schedule_plan_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_commands.h"
#include "schedule/plan/plan_editors.h"
#include "schedule/plan/plan_window.h"
#include "schedule/table/table_window.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/modal.h"
#include "services/program.h"

namespace {

constexpr BoxWords kSaveAsked{"計画表が変更されています。 計画表をセーブしますか?", "計画表のセーブ確認"};

TableView& View() {
  return SclTable.PlanView;
}

void Fit(WindowHandle window) {
  const TableLayout layout = PlanLayout(window);
  TableBarPlace(window, View(), kTableBar, TableBarPlaceOf(layout));
  TableViewFit(View(), Plan.head.count, layout.visible);
}

// --- The pointer

TablePlace PlaceOf(const Event& event) {
  return TablePlaceAt(PlanLayout(event.window), View().firstLine, View().lines, event.x, event.y);
}

void LeftDown(const Event& event) {
  TableFocus(event.window, View(), kTableBar);
  RowWindowClicked(event.window);
  const TablePlace place = PlaceOf(event);
  if (place.hit == TableHit::Number) {
    RowPress(event, place.row);
  } else if (const TableCell cell = TableCellOf(place.hit); cell != TableCell::None) {
    RowChoose(place.row, cell);
    SendPaint(event.window);
  }
}

void MouseMove(const Event& event) {
  RowDrag(event, PlanLayout(event.window), View());
}

void LeftUp(const Event& event) {
  RowRelease(event, PlanLayout(event.window), View());
}

void RightDown(const Event& event) {
  const TablePlace place = PlaceOf(event);
  if (place.hit == TableHit::Number) TableMenuOpen(event, place.row);
}

// --- What a double click opens

bool EditContent(WindowHandle owner) {
  return SCLContentSetDlgRun(ToolDialog::SCLContentSetDlgSecond, owner, Plan.ScpPlanTable[Plan.line].text);
}

bool EditHours(WindowHandle owner) {
  return Plan.head.ScpPlanKind == kScpTraining ? SCPRsvTime2SetDlgRun(owner) : SCPRsvTimeSetDlgRun(owner);
}

struct DoubleAct {
  TableHit hit;
  bool (*edit)(WindowHandle owner);
};
constexpr DoubleAct kDoubleActs[] = {
    {TableHit::Content, EditContent},
    {TableHit::Hours, EditHours},
    {TableHit::Check, SCPRepeatTimeSetDlgRun},
};

void LeftDouble(const Event& event) {
  const TablePlace place = PlaceOf(event);
  for (const DoubleAct& act : kDoubleActs) {
    if (act.hit == place.hit) PlanLineEdit(place.row - 1, act.edit);
  }
}

// --- Opening and closing

void Open(WindowHandle window) {
  PlanWindowSet(window, &PlanRowTable(), PlanRedraw);
  RowsForget();
  if (RowSelection.copyMark == CopyMark::InPlan) RowsMarkClear();
  PlanTitleShow();
  ControlSetLimit(window, IDC_PLAN_TITLE, kScpTitleSize - 1);
  Fit(window);
  TableFocus(window, View(), kTableBar);
}

void Size(WindowHandle window) {
  if (SclTable.hPlanWnd != window || WindowClientRect(window).bottom == 0) return;
  Fit(window);
  WindowInvalidate(window, true);
}

void Paint(WindowHandle window) {
  // The stage takes the bar away when it changes its size.
  if (!View().scrollBar) Fit(window);
  PlanPaint(window);
}

// kept: the window of the plan closes whether its changes are saved or not, and whether the
// saving goes well or not.
void Close(WindowHandle window) {
  if (Plan.closing || ModalIsUp()) return;
  Plan.closing = true;
  if (Plan.dirty && BoxAsk(window, kSaveAsked)) PlanSave(window);
  Plan.closing = false;
  if (SclTable.hPlanWnd == window) WindowDestroy(window);
}

void Gone() {
  PlanWindowSet(nullptr, nullptr);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Size, Size},
    {EventKind::Paint, Paint},
    {EventKind::LeftDown, LeftDown},
    {EventKind::MouseMove, MouseMove},
    {EventKind::LeftUp, LeftUp},
    {EventKind::LeftDouble, LeftDouble},
    {EventKind::RightDown, RightDown},
    {IDC_PLAN_START, Command::PlanStart},
    {IDC_PLAN_INTERVALS, Command::PlanIntervals},
    {IDC_PLAN_RECOVERY, Command::PlanRecovery},
    {IDC_PLAN_DAY_HOURS, Command::PlanDayHours},
    {IDC_PLAN_RESTS, Command::PlanRests},
    {IDC_PLAN_CONVERT, Command::PlanConvert},
    {IDC_PLAN_LOAD, Command::PlanLoad},
    {IDC_PLAN_SAVE, Command::PlanSave},
    {kCancelButton, Close},
    {EventKind::Close, Close},
    {EventKind::Destroy, Gone},
};

// While a converted plan is being saved its window is gone already, and a new plan would
// take the place of what is saved.
bool MayOpen() {
  return !SclTable.hPlanWnd && !Plan.busy && !ModalIsUp();
}

bool Handle(const Event& event) {
  return TableScrollEvent(event, View()) || DialogActRun(event, kActs);
}

}  // namespace

void PlanWindowOpenStudy() {
  if (!MayOpen()) return;
  ScpStudyDefaults();
  DialogOpen(IDD_SchedulePlan1Dlg, Program.hMainWnd, Handle);
}

void PlanWindowOpenTraining() {
  if (!MayOpen()) return;
  ScpTrainDefaults();
  DialogOpen(IDD_SCHEDULEPLAN2DLG, Program.hMainWnd, Handle);
}

void PlanWindowShow() {
  if (!SclTable.hPlanWnd) return;
  Fit(SclTable.hPlanWnd);
  SendPaint(SclTable.hPlanWnd);
}

void PlanTitleShow() {
  ControlSetText(SclTable.hPlanWnd, IDC_PLAN_TITLE, Plan.head.title);
}

void PlanTitleTake() {
  if (!SclTable.hPlanWnd) return;
  ControlGetText(SclTable.hPlanWnd, IDC_PLAN_TITLE, Plan.head.title, kScpTitleSize);
}
