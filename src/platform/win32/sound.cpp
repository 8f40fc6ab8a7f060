#include <windows.h>

#include "platform/sound.h"

#include <mmsystem.h>

#include "platform/win32/border.h"

void SoundPlay(const char* path) {
  sndPlaySoundW(Wide(path).c_str(), SND_ASYNC | SND_NODEFAULT);
}
