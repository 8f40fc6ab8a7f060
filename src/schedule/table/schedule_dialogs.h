// The dialogs that the window of the schedule opens; all are modal.
#pragma once

#include "platform/types.h"
#include "services/dialog_numbers.h"
#include "services/scl_date.h"

// "計画-線表", over the line chart as it has been built.
void ScheduleLineDlgRun(WindowHandle owner);

// "スケジュールのアラーム設定": switches the alarms of all items on or off.
void ScheduleAlarmDlgRun(WindowHandle owner);

// "指定ラインの詳細" of an item, from 0.
void DspSclClickLineDataRun(WindowHandle owner, int item);

// "指定日のスケジュール": the lines of a day. `show` adds them with DayLineAdd.
using DayLinesShow = void (*)(WindowHandle dialog, const SclDate& day);
void DspSclClickDayDataRun(SubDialog number, WindowHandle owner, const SclDate& day, DayLinesShow show);
// One line of the day: its time, then its text, at most 128 bytes, broken every 66.
void DayLineAdd(WindowHandle dialog, const char* time, int item, const char* text);

// The same for a day of the schedule on display.
void ScheduleDayRun(WindowHandle owner, const SclDate& day);
