/* The characters of the world: 3880 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCENARIO_CHARACTERS_IDS_H
#define MIRRELL_RESOURCES_SCENARIO_CHARACTERS_IDS_H

#define IDD_CharaRegiDlg 3880
#define IDD_SetOrChkCharRegiDlg 3881
#define IDD_SetOrChkCharRegiDlg2 3882
#define IDD_DelCharRegiDlg 3883
#define IDC_CHARA_REGI_LIST 101
#define IDC_CHARA_REGI_SET 102
#define IDC_CHARA_REGI_DELETE 103
#define IDC_CHARA_REGI_SET_ALL 104 /* these three do nothing */
#define IDC_CHARA_REGI_DELETE_ALL 105
#define IDC_CHARA_REGI_LOAD 106
#define IDC_CHARA_REGI_NAME 110
#define IDC_CHARA_REGI_CAST_NAME 111

#endif
