#include "services/sound_file.h"

#include "platform/sound.h"
#include "services/program.h"
#include "services/text.h"

void SoundFilePlay(const char* name) {
  constexpr int kNameMost = 299;
  char path[kRootSize + kNameMost + 20];
  RootPath(path, sizeof path, "\\サウンド\\");
  char terminated[kNameMost + 1];  // a name from a file may fill its field
  TextCopy(terminated, sizeof terminated, name);
  TextAppend(path, sizeof path, terminated);
  SoundPlay(path);
}
