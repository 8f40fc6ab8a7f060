// The world edit file on show: the backgrounds behind a schedule's map. This program only
// reads such files.
//
// offset  size      content
//      0    25      magic
//     25   412      WefHead, with the number of areas a
//    437   a x 4    scene counts of the areas, big-endian
//          6874     not used here
//          a x 842  areas, not used here
//          each     WefScene
#pragma once

#include "world/wef_records.h"

inline constexpr int kWefSceneMax = 3;

struct WefState {
  int sceneCount = 0;
  WefScene scenes[kWefSceneMax] = {};
};
extern WefState Wef;

// Reads "FOLDER\NAME.wef"; the table holds what has come as far as it got. 0; -1 cannot be
// opened, -3 short read, -4 another file's magic.
int WefRead(const char* folder, const char* name);
