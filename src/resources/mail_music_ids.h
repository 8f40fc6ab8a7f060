/* Mail and music.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_MAIL_MUSIC_IDS_H
#define MIRRELL_RESOURCES_MAIL_MUSIC_IDS_H

#define IDD_FlyingBat2X 3102
#define IDD_SetMailAnimeDlg 3509
#define IDD_MailSettingMenuDlg 3780
#define IDD_MYPOPDLG 3781
#define IDD_EntertainmentBGMDlg 3782
#define IDD_BGMRsvTimeSetDlg 3783
#define IDD_BGMTITLEDLG 3784

/* MailSettingMenuDlg. */
#define IDC_MAIL_ENABLED 101
#define IDC_MAIL_INTERVAL 102
#define IDC_MAIL_COMMENT 103
#define IDC_MAIL_ACCOUNT 104
#define IDC_MAIL_ANIMATION 105

/* MYPOPDLG. */
#define IDC_POP_SERVER 101
#define IDC_POP_USER 102
#define IDC_POP_PASSWORD 103

/* EntertainmentBGMDlg. */
#define IDC_BGM_LOAD 101
#define IDC_BGM_SAVE 102
#define IDC_BGM_START 103
#define IDC_BGM_END 104

/* BGMRsvTimeSetDlg. */
#define IDC_BGM_HOUR 101
#define IDC_BGM_MINUTE 102
#define IDC_BGM_SECOND 103

/* BGMTITLEDLG. */
#define IDC_BGM_TITLE 101

#endif
