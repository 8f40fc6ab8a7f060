// Commands of the calendar.
#pragma once

void CommandCalendarSelect();  // 1913 of the panel, 2276 of the popup menu
void CommandCalendarNote();    // 2277, the note of the clicked day
void CommandCalendarOpen();    // 2379, opens the window or paints it anew
void CommandCalendarYears();   // 2381, after another program's change
