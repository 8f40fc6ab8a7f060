/* How a scene looks and sounds.
   Numbers of the resources, for the .rc files and the code; a dialog template is IDD_
   and its name. */
#ifndef MIRRELL_RESOURCES_SCENARIO_LOOKS_IDS_H
#define MIRRELL_RESOURCES_SCENARIO_LOOKS_IDS_H

#endif
