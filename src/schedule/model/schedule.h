// Schedules and plans: the records, tables and limits of this subsystem.
#pragma once

inline constexpr int kSclPathSize = 600;
inline constexpr int kPlanKindCount = 2;
inline constexpr int kPlanTitleSize = 129;

struct ScheduleState {
  // The schedule file that is offered first; empty for none. Kept in the settings
  // file.
  char DefaultSclName[kSclPathSize] = {};
  // What the study plan (0) and the training plan (1) call themselves in a new
  // data set.
  char PlanTitles[kPlanKindCount][kPlanTitleSize] = {};
};
extern ScheduleState Schedule;
