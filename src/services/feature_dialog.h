// The way every command opens the modal dialog of a feature.
#pragma once

#include "services/feature_numbers.h"

// Closes the panel, marks the feature as active by its number, runs `dialog` and
// takes the mark and the panel's state back. Returns what `dialog` returned. One
// feature at a time: while something modal is up (services/modal.h), a command from outside
// does nothing, and 0 is returned. The options have no number of their own and hand on
// FuncNo as the panel's level set it.
int FeatureDialogRun(Feature feature, int (*dialog)());
