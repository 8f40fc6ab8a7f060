// What both walks share: the parameter that is looked for, the lines that come out, and
// how a scene's cast, parameters and figures are called in them. Numbers in lines count
// from 1.
#pragma once

#include <cstdint>

#include "scenario/storage/scenario.h"
#include "scenario/trace/snry_walk.h"
#include "services/record.h"

// Bytes that a line shows of what somebody says and of a figure's name.
inline constexpr int kWalkTextMost = 128;

struct SnryWalk {
  int parameter;  // id that is looked for
  std::int32_t value = 0;
  const SnryLineSink* sink = nullptr;
  int folder = 0;  // where the walk is
  int scene = 0;
  int heading = 0;  // of the progress listing
};

// Writes a line.
void WalkSay(const SnryWalk& walk, const char* format, ...)
#if defined(__MINGW32__)
    __attribute__((format(gnu_printf, 2, 3)));
#else
    __attribute__((format(printf, 2, 3)));
#endif

// Runs `folder` for each scenario folder and `scene` for each scene behind it, loaded.
void WalkScenario(SnryWalk& walk, void (*folder)(SnryWalk&), void (*scene)(SnryWalk&));

// The folder and the scene at which the walk is.
const SnryFolderRec& WalkFolder(const SnryWalk& walk);
const SnrySceneRec& WalkSceneRec(const SnryWalk& walk);

// Runs `member` for each member of the scene's cast: by its id.
void WalkCast(SnryWalk& walk, void (*member)(SnryWalk&, int id));

// The name of a parameter, and of a cast member; empty for one that there is not.
const char* WalkParaName(int id);
const char* WalkCastName(int id);

// The motions of a cast member that wait for the parameter, whatever its value.
void WalkMotions(SnryWalk& walk, int id);
