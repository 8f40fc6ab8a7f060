// What the selections of the idle behaviour mean: the rows of their option lists
// and the values that the character's motion takes from them. A selection is the
// place in its list, from 0, as the settings and character files keep it.
#pragma once

inline constexpr int kBoredDelayLabelCount = 10;
inline constexpr int kBoredSpeedLabelCount = 8;
inline constexpr int kBoredRepeatLabelCount = 10;
inline constexpr int kBlinkSpeedLabelCount = 10;

extern const char* const kBoredDelayLabels[kBoredDelayLabelCount];
extern const char* const kBoredSpeedLabels[kBoredSpeedLabelCount];
extern const char* const kBoredRepeatLabels[kBoredRepeatLabelCount];
extern const char* const kBlinkSpeedLabels[kBlinkSpeedLabelCount];

// Hours and minutes until boredom, in the character's counting units. The last
// row draws them at random; a selection beyond the list is half an hour.
void BoredDelayValue(int selection, int* hours, int* minutes);

// Steps to hold a bored frame; 0 for a selection beyond the table.
int BoredSpeedValue(int selection);

// Further passes of a bored pattern after the first, -1 without end; 0 for a
// selection beyond the list.
int BoredRepeatValue(int selection);

// Steps between two blinks. The last row draws them at random; 0 for a selection
// beyond the list.
int BlinkSpeedValue(int selection);
