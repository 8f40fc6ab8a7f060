#include "schedule/schedule_commands.h"

// Numbers that are known, and do nothing yet.
void ScheduleCommand(Command) {}
