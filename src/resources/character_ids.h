/* The character: 3100 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_CHARACTER_IDS_H
#define MIRRELL_RESOURCES_CHARACTER_IDS_H

#define IDD_FlyingBat1 3100
#define IDD_FlyingBat2 3101
#define IDD_OptionSelDlg1 3110
#define IDD_OptionSelDlg1_1 3111
#define IDD_OptionSelDlg1_1_2 3112
#define IDD_OptionSelDlg1_2 3113
#define IDD_OptionSelDlg2 3114
#define IDD_DspOptionOpeDlg 3116
#define IDD_AlarmChkDialog 3117
/* Controls of the option dialogs. */
#define IDC_CHARA_LIST 100
#define IDC_CHARA_NAME 101
#define IDC_CHARA_DETAIL 2369
#define IDC_CHARA_MENU 2285
#define IDC_CHARA_BLINK 2286
#define IDC_CHARA_BORED1 2287
#define IDC_CHARA_BORED2 2288
#define IDC_ALARM_SCHEDULE 100
#define IDC_ALARM_CLOCK 101
#define IDC_ALARM_CHECK_MAIL 2289
#define IDC_ALARM_CHECK_SCHEDULE 2290
#define IDC_ALARM_CHECK_CLOCK 2291
/* Of SetOpnFileAnimeDlg and SetMailAnimeDlg. */
#define IDC_WALK_ANIME 113
#define IDC_WALK_SOUND 114
#define IDC_WALK_CHARA 115
#define IDC_WALK_SOUND_FILE 116
#define IDC_WALK_CHECK 2201

#endif
