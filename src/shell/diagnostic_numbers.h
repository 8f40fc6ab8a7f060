// Numbers of the values that the running program lays open (see
// platform/diagnostics.h): the end-to-end tests read them.
#pragma once

enum DiagnosticNumber {
  kShowTicks,
  kShowCharaFrame,
  kShowCharaMotion,
  kShowStageRedraw,
  kShowMenuPanelState,
  kShowMenuCloseCount,
  kShowFileWatchCount,
  kShowOpeningState,
  kShowFrameDivider,
  kShowMailState,
  kShowProgressMode,
  kShowStepCounter,
  kShowFuncNo,
};

// Lays them open.
void DiagnosticsShowAll();
