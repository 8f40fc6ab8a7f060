// The way every command opens the modal dialog of a feature.
#pragma once

// Closes the panel, marks the feature as active by its number, runs `dialog` and
// takes the mark and the panel's state back. Returns what `dialog` returned.
int FeatureDialogRun(int funcNo, int (*dialog)());
