// The tool menu panel (DspDiskMenu): the list of features that opens beside the
// stage when the pointer touches it.
#pragma once

#include <cstdint>

#include "platform/event.h"
#include "services/tick_step.h"

inline constexpr std::int32_t kMenuInside = -1;  // MenuCloseCount: the pointer has been inside

struct PanelState {
  WindowHandle hDiskMenu = nullptr;  // DspDiskMenu
  std::int32_t MenuPanelState = 0;   // 0 no panel, 1 top level, 4 to 8 a level, others an entry in work
  std::int32_t MenuHiLine = 0;       // the highlighted row
  std::int32_t FuncNo = 0;           // the active feature
  Rect MenuPanelRect = {};           // the panel's place on the screen
  std::int32_t MenuCloseCount = 0;  // from 40 down while the pointer is outside the panel; -1: inside it once
  // From 40 down; blocks opening the panel again. kept: nothing sets MenuReopenGuard, so a panel
  // that has closed may open at the next move of the pointer.
  std::int32_t MenuReopenGuard = 0;
};
extern PanelState Panel;  // written by the panel's own files

// Values of MenuPanelState that stand for a level on show. Others are an entry in
// work, 0 is no panel.
inline constexpr std::int32_t kPanelTop = 1;
inline constexpr std::int32_t kPanelFiles = 4;
inline constexpr std::int32_t kPanelCommunication = 5;
inline constexpr std::int32_t kPanelSchedule = 6;
inline constexpr std::int32_t kPanelApplications = 7;
inline constexpr std::int32_t kPanelOptions = 8;

// The pointer moved on the stage: opens the panel at its top level and returns
// when it has closed, or keeps the open one from timing out.
void PanelPointerOnStage(const Event& event);

// The panel's window closes, with its state as it is.
void PanelWindowClose();

// The user leaves the panel without a choice: nothing is active any more, and the
// panel may open again at once. Nothing when there is no panel.
void PanelDismiss();

// --- The panel's steps of the tick.

// The guard against opening again counts down.
void PanelGuardTick();
int PanelGuardDue();
inline constexpr TickStep kPanelGuardStep{PanelGuardTick, PanelGuardDue};

// At its top level the panel closes by count as long as the pointer has not been
// inside, and then as soon as the pointer is outside.
void PanelCountTick();
void PanelPointerTick();
int PanelDue();
inline constexpr TickStep kPanelCountStep{PanelCountTick, PanelDue};
inline constexpr TickStep kPanelPointerStep{PanelPointerTick, PanelDue};
