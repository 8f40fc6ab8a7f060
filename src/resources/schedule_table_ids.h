/* The table of the schedule.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCHEDULE_TABLE_IDS_H
#define MIRRELL_RESOURCES_SCHEDULE_TABLE_IDS_H

#define IDD_ScheduleSelDlg 3620
#define IDD_ScheduleSelDlg2 3621
#define IDD_ScheduleMakeDlg 3622
#define IDD_ScheduleAlarmDlg 3623
#define IDD_DspSclClickLineData 3624
#define IDD_DspSclClickDayData 3625
#define IDD_ScheduleLineDlg 3626

/* The menus. */
#define IDC_SCL_NEW 101
#define IDC_SCL_EXECUTING 102
#define IDC_SCL_LOAD 103
#define IDC_SCL_PLAN 104
#define IDC_SCL_APPLICATIONS 105
#define IDC_SCL_RUN 106
#define IDC_SCL_REGISTER 107

/* ScheduleMakeDlg */
#define IDC_SCL_LINES 2022
#define IDC_SCL_SAVE 2023
#define IDC_SCL_OVERWRITE 2024
#define IDC_SCL_DAY_HOURS 2034
#define IDC_SCL_EXECUTE 2257
#define IDC_SCL_RATES 2342

/* ScheduleAlarmDlg */
#define IDC_SCL_ALARMS_ON 101
#define IDC_SCL_ALARMS_OFF 102

/* DspSclClickLineData */
#define IDC_SCL_LINE_NUMBER 101
#define IDC_SCL_LINE_TIME 102
#define IDC_SCL_LINE_TEXT 103

/* DspSclClickDayData */
#define IDC_SCL_DAY_HEAD 101
#define IDC_SCL_DAY_LINES 102

/* ScheduleLineDlg */
#define IDC_CHART_DOWN 101
#define IDC_CHART_ACROSS 102
#define IDC_CHART_FIRST 103
#define IDC_CHART_LAST 104

#endif
