// The scene edit file on show: what a schedule's map is drawn from. This program only
// reads such files.
//
// offset  size     content
//      0    28     magic
//     28     4     number of objects n, big-endian
//     32    40     SefGrid
//     72  n x 452  SefObject
//          4       number of stage sizes m, big-endian
//          m x 36  SefStage
//          456     SefTypes
#pragma once

#include "world/sef_records.h"

inline constexpr int kSefObjectMax = 65535;  // as many as an object's number of 16 bits can tell
inline constexpr int kSefStageMax = 1024;

struct SefState {
  int objectCount = 0;
  int stageCount = 0;
  SefGrid grid = {};
  SefTypes types = {};
  SefObject objects[kSefObjectMax] = {};
  SefStage stages[kSefStageMax] = {};
};
extern SefState Sef;

// Scenes are numbered through: area from 0 times this, and the place in the area from 0.
inline constexpr int kSefAreaScenes = 300;

// Reads the file of a scene, "FOLDER\NAME_AREA_SCENE.sef" with both numbers from 1; the
// tables hold what has come as far as it got. 0; -1 cannot be opened, -3 short read, -4
// another file's magic. Objects and sizes beyond the tables are passed over.
int SefRead(const char* folder, const char* name, int scene);

// An object by its number from 1; null for one that the file does not have.
const SefObject* SefObjectAt(int number);
// How many types the table has, whatever it says itself: 0 to kSefTypes.
int SefTypeCount();
