/* Rates of achievement and their map.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCHEDULE_RATES_IDS_H
#define MIRRELL_RESOURCES_SCHEDULE_RATES_IDS_H

#endif
