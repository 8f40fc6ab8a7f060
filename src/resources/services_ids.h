/* Services: 3000 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SERVICES_IDS_H
#define MIRRELL_RESOURCES_SERVICES_IDS_H

#define IDD_FileSelectForLoadDlg 3001
#define IDD_FileSelectForSaveDlg 3002

#endif
