/* The list of applications.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCHEDULE_APPLICATIONS_IDS_H
#define MIRRELL_RESOURCES_SCHEDULE_APPLICATIONS_IDS_H

#define IDD_SclApliListDialog 3660
#define IDD_SclRegiApliListDialog 3661
#define IDD_MyAplicationDlg 3662

/* SclApliListDialog, SclRegiApliListDialog */
#define IDC_APLI_LIST 101
#define IDC_APLI_ADD 2356
#define IDC_APLI_DELETE 2357

/* MyAplicationDlg */
#define IDC_APLI_SELECT 101
#define IDC_APLI_REGISTER 102

#endif
