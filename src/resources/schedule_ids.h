/* The schedule.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCHEDULE_IDS_H
#define MIRRELL_RESOURCES_SCHEDULE_IDS_H

#define IDM_SCHEDULE_LINE 2038
#define IDD_FlyingBat4 3104

#endif
