// Tables of a fixed number of slots, some of which are in use. Lists show those in use, so
// a row of a list is no slot; both count from 0.
//
// `used` tells whether a slot is in use: a member, a function, or nothing when the slots
// are numbers of which 0 is none.
//
//   SlotOfRow(SnryScene.sounds, row, &SnrySoundRec::used)
#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <type_traits>
#include <utility>

// How many slots are in use.
template <class Slots, class Used = std::identity>
int SlotsUsed(const Slots& slots, Used used = {}) {
  return static_cast<int>(std::count_if(std::begin(slots), std::end(slots),
                                        [&](const auto& slot) { return std::invoke(used, slot) != 0; }));
}

// The slot of a row; -1 for a row that there is not.
template <class Slots, class Used = std::identity>
int SlotOfRow(const Slots& slots, int row, Used used = {}) {
  int at = 0;
  for (const auto& slot : slots) {
    if (std::invoke(used, slot) != 0 && row-- == 0) return at;
    ++at;
  }
  return -1;
}

// The first slot that is not in use; -1 when there is none.
template <class Slots, class Used = std::identity>
int SlotFree(const Slots& slots, Used used = {}) {
  const auto free = std::find_if(std::begin(slots), std::end(slots),
                                 [&](const auto& slot) { return std::invoke(used, slot) == 0; });
  return free == std::end(slots) ? -1 : static_cast<int>(free - std::begin(slots));
}

// Takes a slot out: those behind it come down by one, and the last is empty. Nothing for a
// slot that there is not.
template <class Slots>
void SlotDrop(Slots& slots, int slot) {
  const int last = static_cast<int>(std::size(slots)) - 1;
  if (slot < 0 || slot > last) return;
  for (; slot < last; ++slot) std::swap(slots[slot], slots[slot + 1]);
  if constexpr (std::is_array_v<std::remove_reference_t<decltype(slots[last])>>) {
    std::fill(std::begin(slots[last]), std::end(slots[last]), 0);
  } else {
    slots[last] = {};
  }
}
