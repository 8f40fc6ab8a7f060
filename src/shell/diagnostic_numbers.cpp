#include "shell/diagnostic_numbers.h"

#include "character/motion.h"
#include "character/stage.h"
#include "platform/diagnostics.h"
#include "shell/shell.h"
#include "shell/tick.h"

void DiagnosticsShowAll() {
  DiagnosticsShow(kShowTicks, &TickCount);
  DiagnosticsShow(kShowCharaFrame, &CharaFrame);
  DiagnosticsShow(kShowCharaMotion, &CharaMotion);
  DiagnosticsShow(kShowStageRedraw, &StageRedraw);
  DiagnosticsShow(kShowMenuPanelState, &MenuPanelState);
  DiagnosticsShow(kShowMenuCloseCount, &MenuCloseCount);
  DiagnosticsShow(kShowFileWatchCount, &FileWatchCount);
  DiagnosticsShow(kShowOpeningState, &OpeningState);
  DiagnosticsShow(kShowFrameDivider, &FrameDivider);
  DiagnosticsShow(kShowMailPhase, &MailPhase);
  DiagnosticsShow(kShowProgressMode, &progressMode);
  DiagnosticsShow(kShowStepCounter, &stepCounter);
  DiagnosticsShow(kShowFuncNo, &FuncNo);
}
