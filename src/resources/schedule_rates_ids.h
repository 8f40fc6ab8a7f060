/* Rates of achievement and their map.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCHEDULE_RATES_IDS_H
#define MIRRELL_RESOURCES_SCHEDULE_RATES_IDS_H

#define IDD_SclSucsPerAndMapDlg 3670
#define IDD_DispCelSclMapPosDlg 3671
#define IDD_SelMapListScnDlg 3672
#define IDD_SetSclStatusDlg 3673

#define IDC_RATE_START 100
#define IDC_RATE_END 101
#define IDC_RATE_TODAY 102
#define IDC_RATE_DONE 103
#define IDC_RATE_DUE 104
#define IDC_RATE_PROGRESS 105
#define IDC_RATE_MAP 2343

#define IDC_MAP_POSITIONS 110
#define IDC_MAP_COLUMN 111
#define IDC_MAP_ROW 112
#define IDC_MAP_NAME 113

#define IDC_STATUS_LIST 120
#define IDC_STATUS_OFF 2346

#endif
