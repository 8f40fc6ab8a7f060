#include "shell/sound_file.h"

#include "platform/sound.h"
#include "shell/shell.h"
#include "shell/text.h"

void SoundFilePlay(const char* name) {
  constexpr int kNameMost = 299;
  char path[kRootSize + kNameMost + 20];
  RootPath(path, sizeof path, "\\サウンド\\");
  TextAppend(path, sizeof path, name);
  SoundPlay(path);
}
