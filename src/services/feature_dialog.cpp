#include "services/feature_dialog.h"

#include "services/modal.h"
#include "services/panel_entry.h"

// settled: one feature's dialog at a time; a command from outside opens none over another,
// nor over a file dialog of the system.
int FeatureDialogRun(Feature feature, int (*dialog)()) {
  if (ModalIsUp()) return 0;
  PanelEntryBegin(feature);
  const int result = dialog();
  PanelEntryDone();
  return result;
}
