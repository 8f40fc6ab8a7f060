#include "platform/sound.h"

#include "platform/headless/state.h"

namespace {
std::vector<std::string> sounds;
}

void SoundPlay(const char* path) {
  sounds.emplace_back(path);
}

const std::vector<std::string>& SoundsPlayed() {
  return sounds;
}

void SoundReset() {
  sounds.clear();
}
