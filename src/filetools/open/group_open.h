// Opening a group of files one after the other from the tick.
#pragma once

#include <cstdint>

#include "filetools/open/open_groups.h"
#include "services/tick_step.h"

struct GroupRunState {
  const OpnGroupRec* OpnPendingGroup = nullptr;  // that is being opened
  int cursor = 0;                                // its next file
  std::int32_t GroupOpenDelay = 0;               // ticks until then
};
extern GroupRunState GroupRun;

// Makes a group, 0 to 199, the pending one, from its first file on.
void OpnGroupStart(int group);

// Called on every tick: while a group is pending and its walk is over, opens the
// next file every 50 ticks.
void OpnGroupTick();

int OpnGroupDue();
inline constexpr TickStep kGroupOpenStep{OpnGroupTick, OpnGroupDue};
