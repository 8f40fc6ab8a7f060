#include "character/selection_tables.h"

#include "services/random.h"

namespace {

constexpr int kRandomRow = 9;

struct Delay {
  int hours;
  int minutes;
};
constexpr Delay kBoredDelays[] = {{0, 5}, {0, 10}, {0, 30}, {1, 0}, {1, 30}, {2, 0}, {3, 0}, {4, 0}, {5, 0}};
constexpr Delay kOtherDelay = {0, 30};

// kept: the values of a bored pattern's speed go on one row further than its labels, so a
// file may hold a selection that no list shows.
constexpr int kBoredSpeeds[] = {0, 1, 2, 3, 4, 5, 6, 10, 20};
constexpr int kBoredRepeats[] = {0, 2, 3, 4, 5, 10, 50, 100, 500, -1};
constexpr int kBlinkSpeeds[] = {20, 40, 60, 80, 120, 240, 600, 1200, 3600};

// bounded: a delay, speed or repeat comes from a file; one outside its table has a value of
// its own.
template <typename T, int N>
T ValueAt(const T (&table)[N], int selection, T other) {
  return selection >= 0 && selection < N ? table[selection] : other;
}

}  // namespace

void BoredDelayValue(int selection, int* hours, int* minutes) {
  const Delay delay = selection == kRandomRow ? Delay{RandomBelow(2), RandomBelow(60)}
                                              : ValueAt(kBoredDelays, selection, kOtherDelay);
  *hours = delay.hours;
  *minutes = delay.minutes;
}

int BoredSpeedValue(int selection) {
  return ValueAt(kBoredSpeeds, selection, 0);
}

int BoredRepeatValue(int selection) {
  return ValueAt(kBoredRepeats, selection, 0);
}

int BlinkSpeedValue(int selection) {
  return selection == kRandomRow ? 20 + RandomBelow(80) : ValueAt(kBlinkSpeeds, selection, 0);
}
