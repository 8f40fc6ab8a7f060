#include "filetools/scope/scope_bars.h"

#include <bit>

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_unit.h"
#include "services/big_endian.h"
#include "services/work_blocks.h"

// A row in memory, numbers little-endian:
//
//   offset  size  field
//        0     4  reserved
//        4     4  size, single precision
//        8     4  unit
//       12     4  valueInt
//       16     4  valueFrac
//       20     4  percentInt
//       24     4  percentFrac
//       28     4  barWidth
namespace {

constexpr int kRowSize = 32;
constexpr int kRows = kScopeLimit + 1;
static_assert(kScopeSecondArea + kRows * kRowSize <= kScopeBlockSize);

unsigned char* RowAt(int row) {
  if (!WorkBlocks.ScopeBlock || row < 0 || row >= kRows) return nullptr;
  return WorkBlocks.ScopeBlock + kScopeSecondArea + row * kRowSize;
}

std::int32_t Field(const unsigned char* row, int offset) {
  return static_cast<std::int32_t>(GetLE32(row + offset));
}

void PutField(unsigned char* row, int offset, std::int32_t value) {
  PutLE32(row + offset, static_cast<std::uint32_t>(value));
}

// A share of nothing is an empty bar.
void Build(int row, float size, float total) {
  const ScopeAmount amount = ScopeUnit(size);
  const ScopeShare share = ScopePercent(size, total);
  ScopeBarPut(row, {size, amount.unit, amount.valueInt, amount.valueFrac, share.percentInt, share.percentFrac,
                    ScopeWhole(ScopeRatio(size, total) * kScopeBarFull)});
}

}  // namespace

void ScopeBarPut(int row, const ScopeBarRow& bar) {
  unsigned char* at = RowAt(row);
  if (!at) return;
  ScopeBarSizePut(row, bar.size);
  PutField(at, 8, bar.unit);
  PutField(at, 12, bar.valueInt);
  PutField(at, 16, bar.valueFrac);
  PutField(at, 20, bar.percentInt);
  PutField(at, 24, bar.percentFrac);
  PutField(at, 28, bar.barWidth);
}

ScopeBarRow ScopeBarGet(int row) {
  const unsigned char* at = RowAt(row);
  if (!at) return {};
  return {std::bit_cast<float>(GetLE32(at + 4)),
          Field(at, 8),
          Field(at, 12),
          Field(at, 16),
          Field(at, 20),
          Field(at, 24),
          Field(at, 28)};
}

void ScopeBarSizePut(int row, float size) {
  unsigned char* at = RowAt(row);
  if (at) PutLE32(at + 4, std::bit_cast<std::uint32_t>(size));
}

void ScopeBuildBars() {
  Build(0, Scope.folderTotal, Scope.driveTotal);
  for (int n = 0; n < Scope.scopeFolderCount; ++n) {
    if (Scope.folderTotal > 0.0F) {
      Build(n + 1, ScopeBarGet(n + 1).size, Scope.folderTotal);
    } else {
      ScopeBarPut(n + 1, {});
    }
  }
}
