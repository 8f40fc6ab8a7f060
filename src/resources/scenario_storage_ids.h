/* Scenarios, their folders and scenes.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCENARIO_STORAGE_IDS_H
#define MIRRELL_RESOURCES_SCENARIO_STORAGE_IDS_H

#define IDD_NewSnryMainDlg 3800
#define IDD_SnryMainLoad 3801
#define IDD_SnryMainDelete 3802
#define IDD_RoutSnrySetting 3803
#define IDD_MkNewSnryFolderDlg 3804
#define IDD_AddSnryFolderDlg 3805
#define IDD_DelSnryFolderDlg 3806
#define IDD_SnryFolderSetting 3807
#define IDD_MkNewSnryFileDlg 3808
#define IDD_AddSnryFileDlg 3809
#define IDD_DelSnryFileDlg 3810
#define IDD_SnryFileSetting 3811

/* NewSnryMainDlg */
#define IDC_SNRY_NEW_NAME 101
#define IDC_SNRY_NEW_AS_IT_IS 110

/* SnryMainLoad, SnryMainDelete */
#define IDC_SNRY_LIST 101
#define IDC_SNRY_LIST_DETAIL 110
#define IDC_SNRY_LIST_DELETE 111

/* RoutSnrySetting */
#define IDC_SNRY_TITLE 101
#define IDC_SNRY_FOLDERS 102
#define IDC_SNRY_PARAS 103
#define IDC_SNRY_FOLDER_NEW 110
#define IDC_SNRY_FOLDER_ADD 111
#define IDC_SNRY_FOLDER_DELETE 112
#define IDC_SNRY_FOLDER_SET 113
#define IDC_SNRY_PARA_ADD 114
#define IDC_SNRY_PARA_CHANGE 115
#define IDC_SNRY_PARA_DELETE 116
#define IDC_SNRY_PARA_CHECK 117
#define IDC_SNRY_CHARACTERS 118
#define IDC_SNRY_OPTIONS 119
#define IDC_SNRY_SAVE 120

/* MkNewSnryFolderDlg, DelSnryFolderDlg */
#define IDC_SNRY_FOLDER_NAME 101
#define IDC_SNRY_FOLDER_PATH 102

/* SnryFolderSetting */
#define IDC_SNRY_SCENES 103
#define IDC_SNRY_FOLDER_START 110
#define IDC_SNRY_SCENE_NEW 111
#define IDC_SNRY_SCENE_ADD 112
#define IDC_SNRY_SCENE_DELETE 113
#define IDC_SNRY_SCENE_SET 114

/* MkNewSnryFileDlg, AddSnryFileDlg, DelSnryFileDlg */
#define IDC_SNRY_SCENE_FILE 101
#define IDC_SNRY_SCENE_EXTENSION 102
#define IDC_SNRY_SCENE_NAME 103
#define IDC_SNRY_SCENE_ALL 110

/* SnryFileSetting */
#define IDC_SNRY_CAST 101
#define IDC_SNRY_CAST_ADD 110
#define IDC_SNRY_CAST_DELETE 111
#define IDC_SNRY_CAST_COPY 112
#define IDC_SNRY_CAST_LINES 113
#define IDC_SNRY_CAST_MOTIONS 114
#define IDC_SNRY_CAST_ENTRY 115
#define IDC_SNRY_CAST_DEPTH 116
#define IDC_SNRY_SCENE_START 117
#define IDC_SNRY_SCENE_ADVANCE 118
#define IDC_SNRY_SCENE_BACKDROP 119
#define IDC_SNRY_SCENE_TITLE 120
#define IDC_SNRY_SCENE_SOUNDS 121
#define IDC_SNRY_SCENE_TABLE 122
#define IDC_SNRY_SCENE_KEYS 123

#endif
