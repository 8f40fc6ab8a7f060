#include <windows.h>

#include "platform/sound.h"

#include <mmsystem.h>

#include "platform/win32/border.h"
#include "platform/win32/late.h"

void SoundPlay(const char* path) {
  if (auto* play = LATE("winmm.dll", sndPlaySoundW)) play(Wide(path).c_str(), SND_ASYNC | SND_NODEFAULT);
}
