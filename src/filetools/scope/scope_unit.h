// Sizes and shares as the folder scope shows them.
#pragma once

// A size in its unit: 0 "K B", 1 "M B", 2 "G B", 3 "T B".
struct ScopeAmount {
  int unit;
  int valueInt;
  int valueFrac;  // hundredths, cut
};

// The unit of a size in bytes: a size of exactly 1024 of one unit is still told in
// the one below.
ScopeAmount ScopeUnit(float size);

// size / total x 100, cut to hundredths; 0.0 when the total is 0.
struct ScopeShare {
  int percentInt;
  int percentFrac;
};
ScopeShare ScopePercent(float size, float total);

// size / total; 0 when the total is 0.
float ScopeRatio(float size, float total);

// "K B" and so on; `unit` 0 to 3.
const char* ScopeUnitText(int unit);

// The whole part of a number of any size, 0 for what is no number.
int ScopeWhole(float value);
