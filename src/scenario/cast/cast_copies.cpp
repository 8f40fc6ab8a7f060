#include "scenario/cast/cast_copies.h"

#include <algorithm>
#include <iterator>

#include "scenario/cast/cast_lines.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_cast_list.h"
#include "scenario/storage/snry_tables.h"

namespace {

// One change of a character's number of copies.
struct Change {
  int chara;  // from 1
  int from;   // copies before
  int to;     // and after
  int end;    // slot behind the last copy of all characters, before
  int slot;   // where the copies come in, or go from
  int place;  // the same in the cast list
  int Stays() const { return std::min(from, to); }
};

bool IsCopyOf(int slot, int chara) {
  return slot >= kSnryCopyFirst && slot < kSnryCastSlots && SnryCastAt(slot).master == chara;
}

// The first of the places from `first` up to `end` behind as many copies as stay, or that
// of the first copy when none stays; `none` when there is no copy at all.
// settled: where fewer copies are found than a character is said to have, the last one
// found counts.
template <class Is>
int BehindCopies(int first, int end, int stays, int none, Is isCopy) {
  int found = 0;
  int behind = none;
  for (int at = first; at < end; ++at) {
    if (!isCopy(at)) continue;
    if (stays == 0) return at;
    behind = at + 1;
    if (++found == stays) return behind;
  }
  return behind;
}

int SlotOf(const Change& change) {
  return BehindCopies(kSnryCopyFirst, change.end, change.Stays(), change.end,
                      [&](int slot) { return IsCopyOf(slot, change.chara); });
}

int PlaceOf(const SnrySceneRec& scene, const Change& change) {
  const int count = SnryCastCount(scene);
  const auto* own = std::find(scene.cast, scene.cast + count, change.chara);
  const int none = std::min(count, static_cast<int>(own - scene.cast) + 1);
  return BehindCopies(0, count, change.Stays(), none,
                      [&](int place) { return IsCopyOf(scene.cast[place] - 1, change.chara); });
}

// A new copy: all of its character but what it says.
void CopyMake(const Change& change, int ordinal) {
  SnryCastRec& copy = SnryCastAt(change.slot + ordinal - change.from);
  copy = SnryCastAt(change.chara - 1);
  std::fill(std::begin(copy.lines), std::end(copy.lines), std::uint16_t{0});
  std::fill(std::begin(copy.lineParameters), std::end(copy.lineParameters), std::uint16_t{0});
  std::fill(std::begin(copy.lineValues), std::end(copy.lineValues), std::uint16_t{0});
  copy.master = static_cast<std::uint16_t>(change.chara);
  copy.copies = static_cast<std::uint8_t>(ordinal);
}

// bounded: members that a cast of more than 256 would have fall off the end of its list.
void ListPut(SnrySceneRec& scene, int place, int id) {
  if (place < kSnrySceneCastMax) scene.cast[place] = static_cast<std::uint16_t>(id);
}

// kept: when a character of a cast gets more copies, those of others move up to higher slots,
// but only members behind it in the list follow theirs. One before it goes on with the ids
// that its copies had, which are those of other copies then.
void Grow(SnrySceneRec& scene, const Change& change) {
  const int by = change.to - change.from;
  for (int slot = change.end - 1; slot >= change.slot; --slot) SnryCastAt(slot + by) = SnryCastAt(slot);
  for (int place = SnryCastCount(scene) - 1; place >= change.place; --place) {
    const int id = scene.cast[place];
    ListPut(scene, place + by, id > change.slot ? id + by : id);
  }
  for (int i = 0; i < by; ++i) {
    CopyMake(change, change.from + i);
    ListPut(scene, change.place + i, change.slot + i + 1);
  }
  scene.castCount = static_cast<std::uint16_t>(std::min(SnryCastCount(scene) + by, kSnrySceneCastMax));
}

// kept: a copy of a character that goes gives its lines back only when another copy takes its
// slot. The lines of the last ones stay taken until all lines of the scene are released.
void SlotsDown(const Change& change, int by) {
  for (int slot = change.slot; slot + by < change.end; ++slot) {
    CastLinesFree(SnryCastAt(slot));
    SnryCastAt(slot) = SnryCastAt(slot + by);
    SnryCastAt(slot + by) = {};
  }
}

void PlacesDown(SnrySceneRec& scene, const Change& change, int by) {
  for (int place = change.place; place + by < SnryCastCount(scene); ++place) {
    const int id = scene.cast[place + by];
    ListPut(scene, place, id > change.slot ? id - by : id);
    scene.cast[place + by] = 0;
  }
}

// kept: when copies of a character go, the ids of the cast behind them come down twice: those
// that moved have come down already and are not told from the others.
void IdsDown(SnrySceneRec& scene, const Change& change, int by) {
  for (int place = 0; place < SnryCastCount(scene); ++place) {
    std::uint16_t& id = scene.cast[place];
    if (id > change.slot + 1) id = static_cast<std::uint16_t>(id - by);
  }
}

void Shrink(SnrySceneRec& scene, const Change& change) {
  const int by = change.from - change.to;
  SlotsDown(change, by);
  PlacesDown(scene, change, by);
  IdsDown(scene, change, by);
  scene.castCount = static_cast<std::uint16_t>(std::max(SnryCastCount(scene) - by, 0));
}

// kept: what is cleared after copies came or went are the slots from the number of free
// copies up to 199. They belong to characters of the world, not to copies.
void FreeSlotsClear() {
  for (int slot = std::max(0, kSnryCopyMax - CastCopySum()); slot < kSnryCopyMax; ++slot)
    SnryCastAt(slot) = {};
}

// The copies of the members that `counts` says so about.
template <class Counts>
int SumCopies(Counts counts) {
  const SnrySceneRec& scene = SnrySceneNow();
  int sum = 0;
  for (int place = 0; place < SnryCastCount(scene); ++place) {
    if (counts(scene.cast[place])) sum += CastCopies(scene.cast[place]);
  }
  return sum;
}

}  // namespace

int CastCopySum() {
  return SumCopies(SnryCharaIsRegistered);
}

// bounded: counts of copies that a damaged scene has end with the table.
int CastCopiesEnd() {
  return std::min(kSnryCopyFirst + SumCopies([](int) { return true; }), kSnryCastSlots);
}

int CastCopies(int chara) {
  return chara >= 1 && chara <= kSnryCharaMax ? SnryCastAt(chara - 1).copies : 0;
}

// bounded: copies of a character that is no longer registered do not count as taken, but they
// have their slots; no more copies of others are offered than there are slots behind them.
int CastCopiesMost(int chara) {
  const int free = std::min(kSnryCopyMax - CastCopySum(), kSnryCastSlots - CastCopiesEnd());
  return CastCopies(chara) + std::max(0, free);
}

void CastCopiesSet(int chara, int copies) {
  if (copies == CastCopies(chara)) return;
  SnrySceneRec& scene = SnrySceneNow();
  Change change{chara, CastCopies(chara), copies, CastCopiesEnd(), 0, 0};
  change.slot = SlotOf(change);
  change.place = PlaceOf(scene, change);
  if (change.to > change.from) {
    Grow(scene, change);
  } else {
    Shrink(scene, change);
  }
  SnryCastAt(chara - 1).copies = static_cast<std::uint8_t>(copies);
  FreeSlotsClear();
  std::fill(scene.cast + SnryCastCount(scene), std::end(scene.cast), std::uint16_t{0});
  Scenario.changed = true;
}

void CastCopiesRemove(int chara) {
  CastCopiesSet(chara, 0);
  const int end = CastCopiesEnd();
  for (int slot = kSnryCopyFirst; slot < end; ++slot) {
    if (!IsCopyOf(slot, chara)) continue;
    SnryCastRec& copy = SnryCastAt(slot);
    CastLinesFree(copy);
    copy.master = 0;
    copy.copies = 0;
  }
}
