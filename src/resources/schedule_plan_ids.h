/* The plan chart.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCHEDULE_PLAN_IDS_H
#define MIRRELL_RESOURCES_SCHEDULE_PLAN_IDS_H

#define IDD_SchedulePlan1Dlg 3640
#define IDD_SCHEDULEPLAN2DLG 3641
#define IDC_PLAN_TITLE 101
#define IDC_PLAN_START 102
#define IDC_PLAN_INTERVALS 103
#define IDC_PLAN_RECOVERY 104
#define IDC_PLAN_DAY_HOURS 105
#define IDC_PLAN_RESTS 106
#define IDC_PLAN_CONVERT 107
#define IDC_PLAN_LOAD 108
#define IDC_PLAN_SAVE 109

#define IDD_SCPRepeatIntSetDlg 3642
#define IDC_SCP_INTERVAL_FIRST 101 /* to 110 */

#define IDD_SCPRepeat2IntSetDlg 3643
#define IDC_SCP_RECOVERY_FIRST 101 /* to 103 */

#define IDD_SCPRsvTimeSetDlg 3644

#define IDD_SCPRsvTime2SetDlg 3645
#define IDC_SCP_LOAD 101
#define IDC_SCP_LOAD_HOURS 102

#define IDD_SCPRepeatTimeSetDlg 3646
#define IDC_SCP_REPEAT 101

#define IDD_PSDialog2no1 3647
#define IDD_PSDialog2no2 3648
#define IDC_SCP_REST_START_FIRST 101  /* to 112 */
#define IDC_SCP_REST_LENGTH_FIRST 121 /* to 132 */

#endif
