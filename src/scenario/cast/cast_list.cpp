#include "scenario/cast/cast_list.h"

#include <algorithm>
#include <iterator>

#include "scenario/cast/cast_copies.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_cast_list.h"
#include "scenario/storage/snry_tables.h"

namespace {

bool IsInCast(int id) {
  const SnrySceneRec& scene = SnrySceneNow();
  const std::uint16_t* end = scene.cast + SnryCastCount(scene);
  return std::find(scene.cast, end, id) != end;
}

// Goes through the characters that can be added; the one at which `ends` says so, 0 for
// none.
// kept: where characters are offered to a cast, the number of registered ones is a countdown.
// The walk over the flags ends with it, so characters behind are not offered, and with 0
// nobody is.
template <class Ends>
int WalkRegistered(Ends ends) {
  int left = SnryMain.registeredCount;
  int row = 0;
  for (int chara = 1; chara <= kSnryCharaMax && left > 0; ++chara) {
    if (!SnryCharaIsRegistered(chara)) continue;
    --left;
    if (!IsInCast(chara) && ends(row++)) return chara;
  }
  return 0;
}

// The slots from `first` up to and including `last` hold nobody any more.
void SlotsClear(int first, int last) {
  for (int slot = std::max(first, 0); slot <= last; ++slot) SnryCastAt(slot) = {};
}

bool HasRegistered(const SnrySceneRec& scene) {
  return std::any_of(scene.cast, scene.cast + SnryCastCount(scene), SnryCharaIsRegistered);
}

// Takes a copy slot out of the list: nobody has its id, and those above come down.
void IdRemove(SnrySceneRec& scene, int slot) {
  for (int place = 0; place < SnryCastCount(scene); ++place) {
    std::uint16_t& id = scene.cast[place];
    if (id == slot + 1) id = 0;
    if (id > slot + 1) --id;
  }
}

// The copy slots of nobody go behind all others.
void SlotsClose() {
  int to = kSnryCopyFirst;
  for (int slot = kSnryCopyFirst; slot < kSnryCastSlots; ++slot) {
    if (SnryCastAt(slot).master == 0) continue;
    if (to != slot) SnryCastAt(to) = SnryCastAt(slot);
    ++to;
  }
  SlotsClear(to, kSnryCastSlots - 1);
}

// bounded: when a member leaves a cast, the clearing of the copies that are left over goes up to
// the slot behind the last of the table, which is nobody's.
void CopiesTidy(SnrySceneRec& scene) {
  SlotsClear(CastCopiesEnd(), kSnryCastSlots);
  for (int slot = kSnryCastSlots - 1; slot >= kSnryCopyFirst; --slot) {
    if (SnryCastAt(slot).master == 0) IdRemove(scene, slot);
  }
  SlotsClose();
}

void CastClear(SnrySceneRec& scene) {
  scene.castCount = 0;
  std::fill(std::begin(scene.cast), std::end(scene.cast), std::uint16_t{0});
  SlotsClear(kSnryCopyFirst, kSnryCastSlots);
}

}  // namespace

int CastAddRows() {
  int rows = 0;
  WalkRegistered([&rows](int row) {
    rows = row + 1;
    return false;
  });
  return rows;
}

int CastAddCharaOfRow(int row) {
  return WalkRegistered([row](int at) { return at == row; });
}

void CastAddRowText(int row, char* text, int size) {
  const int chara = CastAddCharaOfRow(row);
  if (chara == 0) {
    text[0] = '\0';
    return;
  }
  SnryCharaText(row + 1, chara, text, size);
}

// kept: a member too many of a cast is left out in silence.
void CastAdd(int chara) {
  SnrySceneRec& scene = SnrySceneNow();
  if (SnryCastCount(scene) == kSnrySceneCastMax) return;
  scene.cast[scene.castCount++] = static_cast<std::uint16_t>(chara);
  Scenario.changed = true;
}

void CastRemove(int place) {
  SnrySceneRec& scene = SnrySceneNow();
  if (place < 0 || place >= SnryCastCount(scene)) return;
  const int chara = scene.cast[place];
  if (CastCopies(chara) > 0) CastCopiesRemove(chara);
  scene.cast[place] = 0;
  // kept: a member that leaves from the middle of a cast leaves an empty place behind; only
  // the last place is given up.
  if (place == SnryCastCount(scene) - 1) --scene.castCount;
  if (HasRegistered(scene)) {
    CopiesTidy(scene);
  } else {
    CastClear(scene);
  }
  Scenario.changed = true;
}
