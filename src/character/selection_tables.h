// What the selections of the idle behaviour mean: the rows of their option lists
// and the values that the character's motion takes from them. A selection is the
// place in its list, from 0, as the settings and character files keep it.
#pragma once

inline constexpr const char* kBoredDelayLabels[] = {"5分",   "10分",  "30分",  "1時間", "1時間30分",
                                                    "2時間", "3時間", "4時間", "5h",    "ランダム"};
// kept: the last two rows of a bored pattern's speed read the same, though the last one holds a
// frame longer.
inline constexpr const char* kBoredSpeedLabels[] = {"0秒", "30ﾐﾘ秒", "40ﾐﾘ秒", "50ﾐﾘ秒",
                                                    "1秒", "2秒",    "10秒",   "10秒"};
inline constexpr const char* kBoredRepeatLabels[] = {"0",  "2",  "3",   "4",   "5",
                                                     "10", "50", "100", "500", "無限"};
inline constexpr const char* kBlinkSpeedLabels[] = {"10秒", "20秒", "30秒", "40秒", "1分",
                                                    "2分",  "5分",  "10分", "30分", "ランダム"};

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
