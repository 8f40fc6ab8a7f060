// The plan in the plan window: its state, which the files of this folder write.
#pragma once

#include "schedule/plan/plan_records.h"

struct PlanState {
  ScpPlanHead head = {};
  ScpPlanRec ScpPlanTable[kScpLineMax] = {};
  bool dirty = false;      // changed since it was loaded or saved
  bool busy = false;       // one of its editors, pickers or questions is up
  bool closing = false;    // its window asks whether to save
  bool saveAfter = false;  // to be saved when it has been converted
  int line = 0;            // the line that is being edited, from 0
};
extern PlanState Plan;

// --- A new plan, from today and the current hour on

void ScpStudyDefaults();
void ScpTrainDefaults();

// A line as it is put into the table by hand: twice repeated, of no hours.
ScpPlanRec ScpNewLine();
