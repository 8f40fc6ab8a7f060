// The calendar's dialogs. Each runs until it ends.
#pragma once

#include "platform/types.h"

int SelCalenderDlgRun();   // "カレンダー 選択/設定"
int CalenCommentDlgRun();  // "カレンダー書き込み": of the clicked day; nothing without one

// From inside another dialog, which owns it.
int CalenderAdustDlgRun(WindowHandle owner);  // "カレンダー 詳細設定", of the selected calendar
int SelectCalenSheelDialogRun(WindowHandle owner);  // "カレンダーにシールを貼る", onto the edited day
int SetCalenBmpDlgRun(WindowHandle owner);          // "カレンダー絵貼り付け", of the edited month
