// The commands of the executing schedule.
#pragma once

void CommandScheduleExecute();      // 2257
void CommandCalendarDaySchedule();  // 2278
