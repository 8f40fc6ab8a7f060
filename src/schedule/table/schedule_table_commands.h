// The commands of the schedule's menus and of its window.
#pragma once

#include "services/commands.h"

void CommandScheduleSelect();     // 1910, ScheduleSelDlg2
void CommandScheduleMenu();       // 2019, ScheduleSelDlg
void CommandScheduleNew();        // 2017
void CommandScheduleLoad();       // 2021
void CommandScheduleLineChart();  // 2022
void CommandScheduleSave();       // 2023
void CommandScheduleOverwrite();  // 2024, 2324
void CommandScheduleExecuting();  // 2264
