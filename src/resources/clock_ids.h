/* The clock: 3700 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_CLOCK_IDS_H
#define MIRRELL_RESOURCES_CLOCK_IDS_H

#define IDD_SelWatchDlg 3700
#define IDC_WATCH_SHOW 101
#define IDC_WATCH_DESIGNS 102
#define IDC_WATCH_ADUST 103

#define IDD_WatchAdustDlg 3701
#define IDC_ADUST_HOUR 101
#define IDC_ADUST_MINUTE 102
#define IDC_ADUST_SECOND 103
#define IDC_ADUST_SET 104
#define IDC_ADUST_NEVER 105
#define IDC_ADUST_HOURLY 106
#define IDC_ADUST_TWELVE 107
#define IDC_ADUST_ONCE 108
#define IDC_ADUST_AS_HOUR 109
#define IDC_ADUST_SILENT 110
#define IDC_ADUST_SOUND 111
#define IDC_ADUST_SOUNDS 112
#define IDC_ADUST_CHECK 113
#define IDC_ADUST_DEFAULT 114

/* Each of five in a row: the first of the five alarms has the number, the next one more. */
#define IDD_SetClockAlarmDlg 3702
#define IDC_ALARM_ENABLE 110
#define IDC_ALARM_HOUR 120
#define IDC_ALARM_MINUTE 130
#define IDC_ALARM_PERFORMANCE 140
#define IDC_ALARM_COMMENT 150

#define IDD_SetClockEventDlg 3703
#define IDC_EVENT_LIST 101

#define IDD_WatchListAddDlg 3704
#define IDD_WatchListChgDlg 3705
#define IDD_WatchListDelDlg 3706
#define IDC_TIMED_LIST 101
#define IDC_TIMED_ENABLE 102
#define IDC_TIMED_HOUR 103
#define IDC_TIMED_MINUTE 104
#define IDC_TIMED_SECOND 105
#define IDC_TIMED_COMMENT 106

#endif
