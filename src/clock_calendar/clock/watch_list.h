// What the three dialogs of the timed events have in common.
#pragma once

#include "clock_calendar/clock/clock.h"
#include "services/form.h"
#include "services/list_editor.h"

struct WatchListState {
  TimedEvent event = {};  // in the fields of the dialog
};
extern WatchListState WatchList;

// The fields of an event; a time beyond the day's is held inside it.
void WatchListExchange(Form& form, TimedEvent& event);
void WatchListFill(WindowHandle dialog, const TimedEvent& event);
void WatchListTake(WindowHandle dialog);

// The events in the order of their times.
const ListEditor& WatchListEditor();

// The number of the event in a row of the list.
int WatchListRow(int row);
