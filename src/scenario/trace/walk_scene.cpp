#include "scenario/trace/walk_scene.h"

#include <cstdarg>
#include <cstdio>

#include "scenario/storage/snry_scene_file.h"
#include "scenario/storage/snry_tables.h"
#include "services/rows.h"
#include "services/text.h"
#include "world/world_list.h"

void WalkSay(const SnryWalk& walk, const char* format, ...) {
  char line[kRowTextSize];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(line, sizeof line, format, arguments);
  va_end(arguments);
  walk.sink->line(walk.sink->context, line);
}

const SnryFolderRec& WalkFolder(const SnryWalk& walk) {
  return SnryMain.folders[walk.folder];
}

const SnrySceneRec& WalkSceneRec(const SnryWalk& walk) {
  return SnryMain.scenes[walk.folder][walk.scene];
}

void WalkScenario(SnryWalk& walk, void (*folder)(SnryWalk&), void (*scene)(SnryWalk&)) {
  for (walk.folder = 0; walk.folder < SnryMain.folderCount; ++walk.folder) {
    folder(walk);
    for (walk.scene = 0; walk.scene < SnryMain.sceneCounts[walk.folder]; ++walk.scene) {
      // kept: a scene that cannot be read is listed with what the scene before it left in
      // the buffers, under its own name.
      SnrySceneLoad(walk.folder, walk.scene);
      scene(walk);
    }
  }
}

void WalkCast(SnryWalk& walk, void (*member)(SnryWalk&, int id)) {
  const SnrySceneRec& scene = WalkSceneRec(walk);
  for (int place = 0; place < SnryCastCount(scene); ++place) {
    if (scene.cast[place] != 0) member(walk, scene.cast[place]);
  }
}

const char* WalkParaName(int id) {
  return id >= 1 && id <= kSnryParaMax ? SnryMain.paras[id - 1].name : "";
}

// bounded: a copy has no name in the listings of a parameter, for the table of names ends
// with the characters of the world.
const char* WalkCastName(int id) {
  return id >= 1 && id <= kSnryCharaMax ? SnryMain.castNames[id - 1].text : "";
}

void WalkMotions(SnryWalk& walk, int id) {
  const SnryCastRec& cast = SnryCastAt(id - 1);
  for (int place = 0; place < kSnryCastPlaces; ++place) {
    if (cast.motions[place] == 0 || cast.motionParameters[place] != walk.parameter) continue;
    char name[kWalkTextMost + 1];
    TextCopyWhole(name, sizeof name, WorldFigureName(cast.motions[place]));
    WalkSay(walk, "   > 人物 (%s) 動作--> 値 = %d (%s)", WalkCastName(id), cast.motionValues[place], name);
  }
}
