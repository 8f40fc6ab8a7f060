// The tool menu panel (DspDiskMenu): the list of features that opens beside the
// stage when the pointer touches it.
#pragma once

#include <cstdint>

#include "platform/event.h"

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
