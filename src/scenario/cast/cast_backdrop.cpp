#include "scenario/cast/cast_backdrop.h"

#include <algorithm>
#include <iterator>

#include "scenario/storage/snry_paths.h"
#include "services/text.h"

CastBackdropState CastBackdrop;

void CastBackdropBegin(WindowHandle dialog, bool (*isThere)(WindowHandle dialog, const char* name)) {
  CastBackdrop.shown = false;
  SnryBackdropRec& fields = SnryScene.backdrop;
  for (auto* name : {&fields.background, &fields.door, &fields.window}) {
    if (!isThere(dialog, *name)) std::fill(std::begin(*name), std::end(*name), '\0');
  }
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
