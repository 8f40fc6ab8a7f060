#include "shell/diagnostic_numbers.h"

#include "character/motion.h"
#include "character/stage.h"
#include "character/walk_state.h"
#include "filetools/stepped_work.h"
#include "platform/diagnostics.h"
#include "services/five_ticks.h"
#include "shell/file_watch.h"
#include "shell/panel.h"
#include "shell/tick.h"

void DiagnosticsShowAll() {
  DiagnosticsShow(kShowTicks, &TickCounts.TickCount);
  DiagnosticsShow(kShowCharaFrame, &Stage.CharaFrame);
  DiagnosticsShow(kShowCharaMotion, &Motion.CharaMotion);
  DiagnosticsShow(kShowStageRedraw, &Stage.StageRedraw);
  DiagnosticsShow(kShowMenuPanelState, &Panel.MenuPanelState);
  DiagnosticsShow(kShowMenuCloseCount, &Panel.MenuCloseCount);
  DiagnosticsShow(kShowFileWatchCount, &Watch.FileWatchCount);
  DiagnosticsShow(kShowOpeningState, &Walk.OpeningState);
  DiagnosticsShow(kShowFrameDivider, &FiveTicks.FrameDivider);
  DiagnosticsShow(kShowMailState, &Walk.mailState);
  DiagnosticsShow(kShowProgressMode, &Stepped.progressMode);
  DiagnosticsShow(kShowStepCounter, &Stepped.stepCounter);
  DiagnosticsShow(kShowFuncNo, &Panel.FuncNo);
}
