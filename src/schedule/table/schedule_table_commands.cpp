#include "schedule/table/schedule_table_commands.h"

#include "platform/window.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/model/scl_exec.h"
#include "schedule/table/line_chart.h"
#include "schedule/table/schedule_dialogs.h"
#include "schedule/table/schedule_table.h"
#include "services/boxes.h"
#include "services/modal.h"

void CommandScheduleNew() {
  if (SclTable.hSclTableWnd || ModalIsUp()) return;
  SclNew();
  ScheduleTableOpen();
}

void CommandScheduleLoad() {
  if (ModalIsUp()) return;
  if (SclLoadRun(ScheduleOwner())) {
    ScheduleTableOpen();
  } else {
    // A load that has failed on the way leaves what it has read.
    ScheduleTableShow();
  }
}

void CommandScheduleSave() {
  if (ModalIsUp()) return;
  SclSaveRun(ScheduleOwner());
  ScheduleTableShow();
}

void CommandScheduleOverwrite() {
  if (ModalIsUp()) return;
  SclOverwriteRun(ScheduleOwner());
  ScheduleTableShow();
}

void CommandScheduleLineChart() {
  if (ModalIsUp()) return;
  LineChartBuild();
  ScheduleLineDlgRun(ScheduleOwner());
}

void CommandScheduleExecuting() {
  if (ModalIsUp()) return;
  if (!Schedule.SclExecActive || Schedule.SclExecFile[0] == '\0') {
    BoxTell(ScheduleOwner(), "実行中のスケジュールはありません", "実行スケジュール編集エラー");
    return;
  }
  if (SclLoadTell(ScheduleOwner(), SclExecEdit())) {
    ScheduleTableOpen();
  } else {
    ScheduleTableShow();
  }
}
