/* The program: its icons, texts and menu.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_PROGRAM_IDS_H
#define MIRRELL_RESOURCES_PROGRAM_IDS_H

/* Numbers that are fixed by the process entry. */
#define IDS_TITLE 103
#define IDI_MAIN 107
#define IDI_SMALL 108
#define IDR_MAIN 109 /* class name string, class menu and accelerators */

#endif
