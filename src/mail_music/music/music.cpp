#include "mail_music/music/music.h"

MusicState Music;
