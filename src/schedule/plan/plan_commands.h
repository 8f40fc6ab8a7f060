// Commands of the plan.
#pragma once

#include "platform/types.h"
#include "services/commands.h"

// Open the window with a new plan, for study and for training; nothing when it is open.
void CommandPlanOpen();      // 2025
void CommandPlanTraining();  // 2218

// The window's keys. Nothing without the window, or while something modal is up.
void CommandPlanStart();      // 2085
void CommandPlanIntervals();  // 2086
void CommandPlanDayHours();   // 2087
void CommandPlanRests();      // 2088
void CommandPlanConvert();    // 2089
void CommandPlanLoad();       // 2090
void CommandPlanSave();       // 2091
void CommandPlanRecovery();   // 2217

// Opens an editor of a line, from 0; what it confirms makes the plan changed.
void PlanLineEdit(int line, bool (*edit)(WindowHandle owner));

// Lets the user name a file and saves the plan there. A failure to open is told.
void PlanSave(WindowHandle owner);
