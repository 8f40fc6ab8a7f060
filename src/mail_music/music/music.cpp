#include "mail_music/music/music.h"

#include "services/state.h"

MusicState Music;

void MusicReset() {
  StateReset(Music);
}
