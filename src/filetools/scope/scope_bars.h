// The bar chart's rows: sizes, shares and widths.
#pragma once

inline constexpr int kScopeBarFull = 300;  // pixels of a share of 1

// Works the rows out of the sizes that stand in them, the entries' since the folder was
// searched: row 0 as a share of the drive, the others of folderTotal.
void ScopeBuildBars();
