/* The cast of a scene: 3900 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCENARIO_CAST_IDS_H
#define MIRRELL_RESOURCES_SCENARIO_CAST_IDS_H

#define IDD_FileCharaAddDlg 3900
#define IDD_FileCharaDelDlg 3901
#define IDD_FileCharaCopyDlg 3902
#define IDD_SnryCharMessageDlg 3903
#define IDD_SnryCharPlayDlg 3904
#define IDD_SnryCharEntryDlg 3905
#define IDD_SnryCharBariaDlg 3906
#define IDD_SnryCharBackDlg 3907
/* The member that a dialog is about. */
#define IDC_CAST_NAME 101
#define IDC_CAST_STAGE_NAME 102
#define IDC_CAST_LIST 103
#define IDC_CAST_ADD 104
#define IDC_CAST_CHANGE 105
#define IDC_CAST_DELETE 106
#define IDC_CAST_CLEAR 107
#define IDC_CAST_COPIES 110
#define IDC_CAST_COPIES_MOST 111
#define IDC_CAST_LINE_TEXT 112
#define IDC_CAST_LINE_END 113
#define IDC_CAST_FIGURE 114
/* A condition, and what changes or when it ends. */
#define IDC_CAST_START_PARA 120
#define IDC_CAST_START_VALUE 121
#define IDC_CAST_END_PARA 122
#define IDC_CAST_END_VALUE 123
#define IDC_CAST_ENTRY 124
#define IDC_CAST_EXIT 125
#define IDC_CAST_X 126
#define IDC_CAST_Y 127
#define IDC_CAST_SCROLL_SYNC 128
#define IDC_CAST_SCORE 129
#define IDC_CAST_SYNC 130
#define IDC_CAST_DEPTH 131
#define IDC_CAST_COLLISION 132
/* What stands behind them. */
#define IDC_CAST_BACK 140
#define IDC_CAST_DOOR 141
#define IDC_CAST_WINDOW 142
#define IDC_CAST_BACK_TAKE 143
#define IDC_CAST_DOOR_TAKE 144
#define IDC_CAST_WINDOW_TAKE 145
#define IDC_CAST_DOOR_MODE 146
#define IDC_CAST_WINDOW_MODE 147
#define IDC_CAST_RED 148
#define IDC_CAST_GREEN 149
#define IDC_CAST_BLUE 150
#define IDC_CAST_SCROLL 151

#endif
