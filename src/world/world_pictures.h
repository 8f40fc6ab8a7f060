// The pictures of the world's characters, as scenarios show them: frame 1 of each
// character, loaded when it is first asked for and kept while a scenario is open.
#pragma once

#include "services/dib.h"
#include "world/world_list.h"

struct WorldPicturesState {
  ImageHandle pictures[kWorldCharaMax] = {};
  ImageHandle masks[kWorldCharaMax] = {};
};
extern WorldPicturesState WorldPictures;

// The files of a frame in the folder "\キャラクタ", character and frame both from 1.
int WorldPicturePath(char* buffer, int size, int chara, int frame);
int WorldMaskPath(char* buffer, int size, int chara, int frame);

// A picture and its mask; null for what there is no file of.
struct WorldPicture {
  ImageHandle picture;
  ImageHandle mask;
};

// Loads a frame of a character, both from 1, with its mask applied. Both pictures are the
// caller's, who frees them.
WorldPicture WorldPictureLoad(int chara, int frame);

// Frame 1 of a character (from 1), its mask applied. The pictures stay this table's.
WorldPicture WorldPictureOf(int chara);

// Frees them all: when a scenario has been read, and at the end.
void WorldPicturesFree();
