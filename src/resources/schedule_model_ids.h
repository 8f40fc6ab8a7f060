/* The model's editors.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCHEDULE_MODEL_IDS_H
#define MIRRELL_RESOURCES_SCHEDULE_MODEL_IDS_H

#define IDD_SCLSttTimeSetDlg 3600
#define IDD_SCLRsvTimeSetDlg 3601
#define IDD_SCLContentSetDlg 3602
#define IDD_SCLTitleDlg 3603
#define IDD_ChgSclDayTimeDlg 3604

/* SCLSttTimeSetDlg */
#define IDC_SCL_YEAR 101
#define IDC_SCL_MONTH 102
#define IDC_SCL_DAY 103
#define IDC_SCL_HOUR 104

/* SCLRsvTimeSetDlg and the forms of hours that are like it */
#define IDC_SCL_HOURS 101

/* SCLContentSetDlg, SCLTitleDlg */
#define IDC_SCL_TEXT 101

/* ChgSclDayTimeDlg: eight of each, Monday to Sunday and holiday */
#define IDC_SCL_BEGINS 110
#define IDC_SCL_LENGTHS 120

#endif
