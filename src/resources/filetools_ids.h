/* File tools: 3500 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_FILETOOLS_IDS_H
#define MIRRELL_RESOURCES_FILETOOLS_IDS_H

#define IDD_FileOpnDialog 3500
#define IDD_FileOpnGrpSetDlg 3501
#define IDD_TakeOpnGrpSetDlg 3502
#define IDD_SerchOpnFileGrpSelDlg 3503
#define IDD_DspListOpnFileRecDlg 3504
#define IDD_SetGrpOpnFileRecDlg 3505
#define IDD_DelListOpnFileHisDlg 3506
#define IDD_DspListOpnFileHisDlg 3507
#define IDD_SetOpnFileAnimeDlg 3508
/* Controls of the dialogs that open files. */
#define IDC_OPN_FILE 101
#define IDC_OPN_PROGRAM 102
#define IDC_OPN_GROUP 103
#define IDC_OPN_GROUP_FILES 104
#define IDC_OPN_COMMENT 105
#define IDC_OPN_RECORD 106
#define IDC_OPN_LINES 107
#define IDC_OPN_NAME_WORDS 108
#define IDC_OPN_COMMENT_WORDS 109
#define IDC_OPN_NAME 110
#define IDC_OPN_FOLDER 111
#define IDC_OPN_PROGRAM_NAME 112
#define IDC_OPN_TAKE_GROUP 120
#define IDC_OPN_RECORD_TO_GROUP 121
#define IDC_OPN_SHOW_RECORD 122
#define IDC_OPN_CLEAR_RECORD 123
#define IDC_OPN_DELETE_HISTORY 124
#define IDC_OPN_ANIMATION 125
#define IDC_OPN_GROUP_ADD 126
#define IDC_OPN_GROUP_REMOVE 127
#define IDC_OPN_DETAILS 128
#define IDC_OPN_GROUP_REGISTER 129
#define IDC_OPN_SEARCH_NAMES 130
#define IDC_OPN_SEARCH_COMMENTS 131
#define IDC_OPN_REMOVE 132
#define IDC_OPN_REMOVE_ALL 133
#define IDC_OPN_ADD_FILE 2002 /* these send the command of their number */
#define IDC_OPN_ADD_PROGRAM 2003
#define IDC_OPN_GROUP_SET 2008
#define IDD_FileBackUpSetDlg 3520
#define IDD_FileBackUpDirDlg 3521
#define IDD_BackUpDlg 3522
#define IDD_FileBackUpDateDlg 3523
#define IDD_FileBackUpContentDlg 3524
#define IDD_FileDivideSetDlg 3530
#define IDD_FileDivideSetDlg2 3531
#define IDD_FileDivideSetDlg3 3532
#define IDD_FileDivFileDlg 3533
#define IDD_FileUDivFileDlg 3534
#define IDD_FileDivKeyWordDlg 3535
#define IDD_FileDivKeyWordDlg2 3536
#define IDD_FileDivExeDlg 3537
#define IDD_FileUnDivExeDlg 3538
/* Controls of the back-up's dialogs. */
#define IDC_BACKUP_SOURCES 101
#define IDC_BACKUP_COPIES 102
#define IDC_BACKUP_COMMENT 103
#define IDC_BACKUP_ADD 110
#define IDC_BACKUP_FOLDER 111
#define IDC_BACKUP_REMOVE 112
#define IDC_BACKUP_CLEAR 113
#define IDC_BACKUP_RUN 114
#define IDC_BACKUP_DATES 115
#define IDC_BACKUP_CONTENTS 116
#define IDC_BACKUP_LOAD 117
#define IDC_BACKUP_SAVE 118
#define IDC_BACKUP_ROWS 101

/* Controls of the dialogs that divide and restore. */
#define IDC_DIVIDE_SOURCE 101
#define IDC_DIVIDE_FOLDER 102
#define IDC_DIVIDE_NAME 103
#define IDC_DIVIDE_COUNT 104
#define IDC_DIVIDE_ENCRYPT 105
#define IDC_DIVIDE_KEYWORD 101
#define IDC_DIVIDE_PICK 110
#define IDC_DIVIDE_PICK_FOLDER 111
#define IDC_DIVIDE_RUN 112
#define IDC_DIVIDE_CHOOSE_DIVIDE 110
#define IDC_DIVIDE_CHOOSE_RESTORE 111
#define IDD_FolderScopeSetDlg 3540
#define IDD_FolderStaticsDlg 3541
#define IDD_FolderStaticsDlg2 3542
#define IDD_SerchDrvDlg 3543
#define IDD_SerchFolderDlg 3544
#define IDD_FileDesktopClrDlg 3550
#define IDD_DesktopIconSetDlg 3551
/* Controls of the folder scope's dialogs. */
#define IDC_SCOPE_FILTER 102
#define IDC_SCOPE_FILES 103
#define IDC_SCOPE_PIES 110
#define IDC_SCOPE_BARS 111
#define IDC_STATICS_FOLDER 100
#define IDC_STATICS_SCROLL 101
/* Controls of the dialogs of desktop tidy. */
#define IDC_TIDY_FOLDER 100
#define IDC_TIDY_KIND 101
#define IDC_TIDY_ALIGN 102
#define IDC_TIDY_SPLIT 103
#define IDC_TIDY_RUN 110
#define IDC_TIDY_OPEN 111
#define IDC_TIDY_BACK 112
#define IDC_COVER_LIST 101
#define IDC_COVER_ENABLE 102
#define IDC_COVER_PUT 110

#endif
