#include "scenario/cast/cast_backdrop.h"

#include <algorithm>

#include "scenario/cast/scenario_files.h"
#include "scenario/storage/snry_paths.h"
#include "services/text.h"

CastBackdropState CastBackdrop;

namespace {

template <std::size_t N>
void ClearIfGone(char (&name)[N]) {
  if (!ScenarioFileIsThere(name, kSnryBackFolder, "bmp")) std::fill_n(name, N, '\0');
}

}  // namespace

void CastBackdropBegin() {
  CastBackdrop.shown = false;
  ClearIfGone(SnryScene.backdrop.background);
  ClearIfGone(SnryScene.backdrop.door);
  ClearIfGone(SnryScene.backdrop.window);
  CastBackdrop.fields = SnryScene.backdrop;
  std::copy_n(SnrySceneNow().fallback, 3, CastBackdrop.colour);
  CastBackdropLoad();
}

void CastBackdropStore() {
  SnryScene.backdrop = CastBackdrop.fields;
  std::copy_n(CastBackdrop.colour, 3, SnrySceneNow().fallback);
  Scenario.changed = true;
}

void CastBackdropLoad() {
  CastBackdropFree();
  if (CastBackdrop.fields.background[0] == '\0') return;
  char path[kSnryLongPath];
  SnryMainPart(path, sizeof path, kSnryBackFolder);
  TextAppend(path, sizeof path, "\\");
  TextAppend(path, sizeof path, CastBackdrop.fields.background);
  CastBackdrop.picture = DibLoad(path);
}

void CastBackdropFree() {
  DibFree(CastBackdrop.picture);
  CastBackdrop.picture = nullptr;
}
