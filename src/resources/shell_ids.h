/* The shell: 3000 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SHELL_IDS_H
#define MIRRELL_RESOURCES_SHELL_IDS_H

#define IDD_DspDiskMenu 3000

#define IDD_OptionSelDlg3 3115
#define IDC_LAYOUT_DEFAULT 2292

#endif
