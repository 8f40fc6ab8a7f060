/* Clock and calendars: 3103 on.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_CLOCK_CALENDAR_IDS_H
#define MIRRELL_RESOURCES_CLOCK_CALENDAR_IDS_H

#define IDM_CALENDAR_DAY 2280
#define IDM_CLOCK 2338
#define IDD_FlyingBat3 3103
#define IDD_FlyingBat5 3105
#define IDD_FlyingBat6 3106

#endif
