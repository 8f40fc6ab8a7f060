// The file of a scene.
//
//      offset         size  content
//           0           35  magic, no terminator
//          35   100 x 1818  menus
//      181835   200 x  236  events
//      229035   200 x  188  randoms
//      266635            2  count of lines, big-endian
//      266637       x  181  lines
//        then            2  count of the cast, big-endian
//        then       x 1638  cast, from slot 0
//        then          902  backdrop
//        then          154  title
//        then  200 x   310  sounds
//        then  200 x    76  randomExs
//        then   20 x   138  keys        from here on a file may end: what is missing is
//        then         2736  scroll      cleared
//        then  200 x    54  eventExs
//        then          248  table
#pragma once

#include "scenario/storage/scenario.h"

struct SnrySceneFile {
  char magic[35];
};

template <class Io>
constexpr void Fields(Io& io, SnrySceneFile& head) {
  io.Bytes(head.magic);
}
static_assert(RecordSize<SnrySceneFile>() == 35);

// Fills the scene buffers from the file of a scene. 0; -3 it cannot be opened, -4 it is
// short, -5 it is another file. What was read by then stays.
int SnrySceneLoad(int folder, int scene);

// Replaces the file of a scene by the scene buffers. 0; -1 it cannot be made, -4 a short
// write, -3 one among the sounds.
int SnrySceneSave(int folder, int scene);

// The records of the tables that such a file holds: one more than the highest line in use;
// the highest id of the cast list, where a character counts only while it is registered.
int SnryLineCount();
int SnryCastHighest(const SnrySceneRec& scene);
