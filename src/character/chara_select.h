// Which main character of the list is the current one.
#pragma once

// Copies the settings of the main character at `index` (0 to 49) of the list to
// the current ones, counts the bored frames and loads the idle timer.
void CharaTakeCurrent(int index);

// Makes the main character at `index` the current one with its whole record.
// Returns true when that is another number than before.
bool CharaSelect(int index);
