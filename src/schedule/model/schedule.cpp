#include "schedule/model/schedule.h"

ScheduleState Schedule;
