// The list in a dialog of the sound files that there are.
#pragma once

#include "platform/types.h"

inline constexpr int kSoundNameSize = 300;

// Fills a list with the names of the files in the folder "\サウンド" under the program
// folder, and chooses the one called `chosen`.
void SoundListShow(WindowHandle dialog, int list, const char (&chosen)[kSoundNameSize]);

// Takes the name of the chosen row, filled up with zeros. Without a chosen row the name
// stays as it is.
void SoundListTake(WindowHandle dialog, int list, char (&name)[kSoundNameSize]);
