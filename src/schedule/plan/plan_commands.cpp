#include "schedule/plan/plan_commands.h"

#include <algorithm>
#include <iterator>

#include "platform/window.h"
#include "schedule/model/schedule.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/model/scl_dates.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_convert.h"
#include "schedule/plan/plan_editors.h"
#include "schedule/plan/plan_file.h"
#include "schedule/plan/plan_window.h"
#include "schedule/table/schedule_table.h"
#include "services/boxes.h"
#include "services/data_file.h"
#include "services/file_picker.h"
#include "services/modal.h"
#include "services/path.h"
#include "services/program.h"

namespace {

constexpr const char* kCannotOpen = "ファイルを開けません";
constexpr BoxWords kCannotLoad{kCannotOpen, "スケジュール表読み込みエラー"};
constexpr BoxWords kBadFile{"データが正しく読み込めません", "スケジュール表読み込みエラー"};
constexpr BoxWords kCannotSave{kCannotOpen, "セーブエラー"};
constexpr BoxWords kTableFull{"スケジュールの最大ライン数を超えました。",
                              "計画表からスケジュールへの変換エラー"};
constexpr const char* kConvertCaption = "計画表からスケジュールへの変換準備";
constexpr BoxWords kSaveFirst{
    "計画表を終了してスケジュール表を表示します !! その前に変更された計画表をセーブしますか?",
    kConvertCaption};
constexpr BoxWords kLoseChanges{"変更された計画データは失われますがよろしいですか?",
                                "スケジュール移行への確認"};
constexpr BoxWords kConvertAsked{"計画表を終了してスケジュール表を表示します !!", kConvertCaption};

// One editor, picker or question of the plan at a time, and none under another dialog.
template <class Act>
void Guarded(Act act) {
  if (!SclTable.hPlanWnd || Plan.busy || Plan.closing || ModalIsUp()) return;
  Plan.busy = true;
  act(SclTable.hPlanWnd);
  Plan.busy = false;
}

void Changed() {
  Plan.dirty = true;
  PlanWindowShow();
}

// Opens an editor of the plan.
void Edit(bool (*edit)(WindowHandle owner)) {
  Guarded([edit](WindowHandle window) {
    if (edit(window)) Changed();
  });
}

bool EditStart(WindowHandle owner) {
  return SCLSttTimeSetDlgRun(ToolDialog::SCLSttTimeSetDlgSecond, owner, Plan.head.start);
}

// kept: a plan's work hours are edited in the schedule's own rows, and a cancelled edit leaves
// the plan's there.
bool EditDayHours(WindowHandle owner) {
  std::copy_n(Plan.head.rows, kSclRowCount, SclRows());
  if (!ChgSclDayTimeDlgRun(ToolDialog::ChgSclDayTimeDlgSecond, owner)) return false;
  std::copy_n(Schedule.SclHeader.rows, kSclRowCount, Plan.head.rows);
  SclRowEndsRefresh(Plan.head.rows);
  return true;
}

void Load(WindowHandle owner) {
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForLoad(owner, kScpMask, path) == 0) return;
  const int status = ScpLoadFile(path);
  if (status == 0) PlanTitleShow();
  PlanWindowShow();
  if (status == -1) BoxTell(owner, kCannotLoad);
  if (status == -2) BoxTell(owner, kBadFile);
}

// --- Conversion

// False when the user does not want it. Plan.saveAfter is what is to be done behind it.
bool ConversionAllowed(WindowHandle window) {
  Plan.saveAfter = false;
  if (!Plan.dirty) return BoxAsk(window, kConvertAsked);
  Plan.saveAfter = BoxAsk(window, kSaveFirst);
  return Plan.saveAfter || BoxAsk(window, kLoseChanges);
}

// kept: a plan with unsaved changes that becomes a schedule is asked about once more as its
// window closes, and one that was saved then is saved once more.
void ScheduleShow() {
  SendClose(SclTable.hPlanWnd);
  if (Plan.saveAfter) PlanSave(Program.hMainWnd);
  SclKindSet(1);
  ScheduleTableOpen();
}

void Convert(WindowHandle window) {
  if (!ConversionAllowed(window) || SclTable.hPlanWnd != window) return;
  PlanTitleTake();
  if (ScpConvertToSchedule() < 0) {
    ScheduleTableShow();
    BoxTell(window, kTableFull);
  } else {
    ScheduleShow();
  }
}

}  // namespace

void CommandPlanOpen() {
  PlanWindowOpenStudy();
}

// settled: a training plan, to which no entry of the panel leads, is begun by a command of
// its own, with the form that is there for it.
void CommandPlanTraining() {
  PlanWindowOpenTraining();
}

void CommandPlanStart() {
  Edit(EditStart);
}

void CommandPlanIntervals() {
  Edit(SCPRepeatIntSetDlgRun);
}

void CommandPlanRecovery() {
  Guarded(SCPRepeat2IntSetDlgRun);
}

void CommandPlanDayHours() {
  Edit(EditDayHours);
}

void CommandPlanRests() {
  Guarded(PSDialog2no1Run);
}

void CommandPlanConvert() {
  Guarded(Convert);
}

void CommandPlanLoad() {
  Guarded(Load);
}

void CommandPlanSave() {
  Guarded(PlanSave);
}

void PlanLineEdit(int line, bool (*edit)(WindowHandle owner)) {
  if (line < 0 || line >= Plan.head.count) return;
  Guarded([line, edit](WindowHandle window) {
    Plan.line = line;
    if (edit(window)) Changed();
  });
}

// kept: a plan that could not be written whole is told by no box; it stays changed.
void PlanSave(WindowHandle owner) {
  PlanTitleTake();
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForSave(owner, kScpMask, path) == 0 || !OverwriteAllowed(owner, path)) return;
  if (ScpSaveFile(path) == -1) BoxTell(owner, kCannotSave);
}
