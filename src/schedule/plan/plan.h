// The plan in the plan window: its state, which the files of this folder write.
#pragma once

#include "schedule/plan/plan_records.h"

struct PlanState {
  ScpPlanHead head = {};
  ScpPlanRec ScpPlanTable[kScpLineMax] = {};
  bool dirty = false;    // changed since it was loaded or saved
  bool busy = false;     // a command of the plan is being carried out
  bool training = false; // the window was opened for a training plan
  int line = 0;          // the line that is being edited, from 0
};
extern PlanState Plan;

// --- A new plan, from today and the current hour on

void ScpStudyDefaults();
void ScpTrainDefaults();

// A line as it is put into the table by hand: twice repeated, of no hours.
ScpPlanRec ScpNewLine();
