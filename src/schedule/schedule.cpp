#include "schedule/schedule.h"

char DefaultSclName[kSclPathSize];
char PlanTitles[kPlanKindCount][kPlanTitleSize];
