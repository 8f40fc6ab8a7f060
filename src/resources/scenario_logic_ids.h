/* Parameters and triggers.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCENARIO_LOGIC_IDS_H
#define MIRRELL_RESOURCES_SCENARIO_LOGIC_IDS_H

#define IDD_AddSnryParaDlg 3840
#define IDD_ChgSnryParaDlg 3841
#define IDD_DelSnryParaDlg 3842
#define IDD_SnrySelParaDlg 3843
#define IDD_SceneSelParaDlg 3844
#define IDD_PSDialog1no1 3850
#define IDD_PSDialog1no2 3851
#define IDD_PSDialog1no2_2 3852
#define IDD_PSDialog1no3 3853

/* AddSnryParaDlg, ChgSnryParaDlg, DelSnryParaDlg */
#define IDC_PARA_NAME 101
#define IDC_PARA_INITIAL 102
#define IDC_PARA_COMMENT 103
#define IDC_PARA_LOAD 110
#define IDC_PARA_SAVE 111
#define IDC_PARA_EXIT 112
#define IDC_PARA_STATUS 113

/* SnrySelParaDlg, SceneSelParaDlg */
#define IDC_START_PARA 101
#define IDC_START_VALUE 102
#define IDC_START_SCENE 103

/* The pages of a scene's ways to move on. */
#define IDC_PAGE_ENABLED 101
#define IDC_PAGE_NUMBER 102
#define IDC_PAGE_UP 103
#define IDC_PAGE_DOWN 104
#define IDC_PAGE_START_PARA 105
#define IDC_PAGE_START_VALUE 106
#define IDC_PAGE_PLACES 107
#define IDC_PAGE_PARA 108
#define IDC_PAGE_VALUE 109
#define IDC_PAGE_PARA_ADD 110
#define IDC_PAGE_PARA_CHANGE 111
#define IDC_PAGE_PARA_DELETE 112

/* PSDialog1no1 */
#define IDC_MENU_LABEL1 120
#define IDC_MENU_PARA1 121
#define IDC_MENU_VALUE1 122
#define IDC_MENU_LABEL2 123
#define IDC_MENU_PARA2 124
#define IDC_MENU_VALUE2 125
#define IDC_MENU_METHOD 126
#define IDC_MENU_ITEMS 127
#define IDC_MENU_TEXT 128
#define IDC_MENU_ADD 129
#define IDC_MENU_CHANGE 130
#define IDC_MENU_DELETE 131

/* PSDialog1no2, PSDialog1no2_2 */
#define IDC_EVENT_NAME 120
#define IDC_EVENT_NAME_SHOWN 121
#define IDC_EVENT_TEXT 122
#define IDC_EVENT_NUMBER 123
#define IDC_EVENT_TIME 124
#define IDC_EVENT_MEETING 125
#define IDC_EVENT_COMPARISON 126
#define IDC_EVENT_LOWEST 127
#define IDC_EVENT_HIGHEST 128
#define IDC_EVENT_MINUTES 129
#define IDC_EVENT_SECONDS 130
#define IDC_EVENT_FIRST 131
#define IDC_EVENT_SECOND 132
#define IDC_EVENT_SIGN 133
#define IDC_EVENT_OPERATION 134
#define IDC_EVENT_REMEMBER 135

/* PSDialog1no3 */
#define IDC_RANDOM_INTERVAL 120
#define IDC_RANDOM_REPLACES 121
#define IDC_RANDOM_REPLACED 122
#define IDC_RANDOM_REPLACEMENT 123
#define IDC_RANDOM_MODE_RANGE 124
#define IDC_RANDOM_MODE_COUNT 125
#define IDC_RANDOM_MODE_SUM 126
#define IDC_RANDOM_LOWEST 127
#define IDC_RANDOM_HIGHEST 128
#define IDC_RANDOM_COUNT 129
#define IDC_RANDOM_OPERATION 130
#define IDC_RANDOM_OTHER 131

#endif
