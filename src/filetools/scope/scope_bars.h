// The bar chart's rows. They lie over the drive's area of the folder scope, which
// a bar chart does not use.
#pragma once

#include <cstdint>

inline constexpr int kScopeBarFull = 300;  // pixels of a share of 1

// Row 0 is the chosen folder as a whole, row n + 1 belongs to entry n.
struct ScopeBarRow {
  float size;
  std::int32_t unit;
  std::int32_t valueInt;
  std::int32_t valueFrac;
  std::int32_t percentInt;
  std::int32_t percentFrac;
  std::int32_t barWidth;  // pixels
};

// Row 0 to 3105; beyond that, and without ScopeBlock, nothing is put and an empty
// row is got.
void ScopeBarPut(int row, const ScopeBarRow& bar);
ScopeBarRow ScopeBarGet(int row);

// Keeps the size of an entry for the chart, while the folder is being searched.
void ScopeBarSizePut(int row, float size);

// Works the rows out: row 0 as a share of the drive, the others of folderTotal.
void ScopeBuildBars();
