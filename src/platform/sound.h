// Sound files.
#pragma once

// Starts to play a wave file and returns at once. A file that is missing or
// broken is passed over in silence.
void SoundPlay(const char* path);
