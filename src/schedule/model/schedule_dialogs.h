// The plain editors of the schedule, which the plan and the music table open too, and its
// loading and saving with their pickers and boxes. `number` is the dialog's number of the
// table that opens it.
#pragma once

#include "platform/types.h"
#include "schedule/model/schedule.h"
#include "services/dialog_numbers.h"

// "開始年月日設定": a start date, stored when confirmed. True then; the schedule's opener
// calls SclRecalcAll.
bool SCLSttTimeSetDlgRun(ToolDialog number, WindowHandle owner, SclDate& start);

// "予想時間設定": the hours of an item. All items are recalculated when it has closed,
// confirmed or not. True when confirmed.
bool SCLRsvTimeSetDlgRun(WindowHandle owner, int item);
// The same form by another template, without the recalculation: a field IDC_SCL_HOURS of
// at most 4 characters. True when confirmed.
bool SclHoursDlgRun(ToolDialog number, int templateId, WindowHandle owner, std::uint32_t& hours);

// "内容設定": at most 127 bytes of text. True when confirmed.
bool SCLContentSetDlgRun(ToolDialog number, WindowHandle owner, char (&text)[kSclItemTextSize]);

// "表タイトル": the title, at most 128 bytes. True when confirmed.
bool SCLTitleDlgRun(ToolDialog number, WindowHandle owner);

// "1日のワーク時間設定": the eight live rows. Each choice is written at once, and stays
// whichever button ends the dialog. True for "設定".
bool ChgSclDayTimeDlgRun(ToolDialog number, WindowHandle owner);

// --- Files

// Lets the user pick a schedule and loads it. True when that went well; a failure is told.
bool SclLoadRun(WindowHandle owner);
// Tells why a load has failed, by its FileStatus. True for one that has not.
bool SclLoadTell(WindowHandle owner, int status);
// Asks for a name, asks again when the file exists, and saves. A failure to open is told;
// a short write is not.
void SclSaveRun(WindowHandle owner);
// Saves under the name that the schedule has, and asks for one first when it has none.
void SclOverwriteRun(WindowHandle owner);
