// The history of opened files.
#pragma once

// Carries the current character's walk, its sound and its balloon flags, into the
// history file after another character was chosen.
void OpnHisTakeWalkSettings();
