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

constexpr TableWindow kTable{SclTable.PlanView, kTableBar, PlanLayout,
                             [] { return static_cast<int>(Plan.head.count); }};

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
  const TablePlace place = TablePlaceOf(kTable, event);
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
  TableWindowFit(kTable, window);
  TableFocus(window, SclTable.PlanView, kTableBar);
}

void Size(WindowHandle window) {
  if (SclTable.hPlanWnd != window || WindowClientRect(window).bottom == 0) return;
  TableWindowFit(kTable, window);
  WindowInvalidate(window, true);
}

void Paint(WindowHandle window) {
  // The stage takes the bar away when it changes its size.
  if (!SclTable.PlanView.scrollBar) TableWindowFit(kTable, window);
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
    {EventKind::LeftDouble, LeftDouble},
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
  return TableWindowEvent(kTable, event) || DialogActRun(event, kActs);
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
  TableWindowFit(kTable, SclTable.hPlanWnd);
  SendPaint(SclTable.hPlanWnd);
}

void PlanTitleShow() {
  ControlSetText(SclTable.hPlanWnd, IDC_PLAN_TITLE, Plan.head.title);
}

void PlanTitleTake() {
  if (!SclTable.hPlanWnd) return;
  ControlGetText(SclTable.hPlanWnd, IDC_PLAN_TITLE, Plan.head.title, kScpTitleSize);
}
