// Sounds of the folder "\サウンド" under the program folder.
#pragma once

// Starts to play a file of that folder and returns at once; one that is missing
// is passed over in silence. At most 299 bytes of the name are used.
void SoundFilePlay(const char* name);
