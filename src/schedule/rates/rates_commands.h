// The commands of the rates and the map.
#pragma once

void CommandScheduleRates();
void CommandScheduleMap();
void CommandScheduleStatus();
