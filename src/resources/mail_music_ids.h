/* Mail and music.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_MAIL_MUSIC_IDS_H
#define MIRRELL_RESOURCES_MAIL_MUSIC_IDS_H

#define IDD_FlyingBat2X 3102
#define IDD_SetMailAnimeDlg 3509

#endif
