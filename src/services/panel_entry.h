// What a feature tells the tool panel, which defines all of this: the panel's entries
// do their work on lower floors.
#pragma once

#include "services/feature_numbers.h"

// An entry's work begins: the panel on show closes, the feature is the active one.
void PanelEntryBegin(Feature feature);

// The work is done: no feature is active, and the panel may open again.
void PanelEntryDone();

// The panel on show closes and may open again; for entries that run no dialog.
void PanelLeave();

// A dialog of the panel's family ends: the panel may open again.
void PanelStateClear();

// Whether the panel is on show.
bool PanelIsOpen();

// The active feature.
Feature PanelFeature();
