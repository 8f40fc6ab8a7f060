// The state of a feature: one struct, process-wide, written by its owner.
#pragma once

#include <memory>

// Makes a feature's state what it is in a fresh process. In place: some states are
// larger than a stack.
template <typename State>
void StateReset(State& state) {
  std::destroy_at(&state);
  std::construct_at(&state);
}
