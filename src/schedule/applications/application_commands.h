// The commands of the schedule applications; 2372 stands in schedule/schedule_commands.h.
#pragma once

void CommandOwnApplications();      // 1912
void CommandApplicationSelect();    // 2020
void CommandApplicationRun();       // 2366
void CommandApplicationRegister();  // 2367
void CommandApplicationStart();     // 2371
