// The plans that a new data set shows its user.
#pragma once

// Writes "学習計画.GPP" and "筋トレ計画.GPP" into the folder of plans of the program folder,
// which is there; they start at the day of the clock. Throws std::runtime_error.
void WritePlanSamples();
