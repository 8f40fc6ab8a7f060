#include "filetools/scope/scope_tables.h"

#include <cstddef>

#include "services/work_blocks.h"

namespace {

// An area of 2,000,000 bytes.
struct Area {
  ScopeEntry entries[kScopeLimit];
  unsigned char rest[380];
};

// ScopeBlock as the folder scope has it.
struct ScopeBlockTables {
  Area folder;
  union {
    Area drive;
    ScopeBarRow bars[kScopeLimit + 1];
  };
};
static_assert(sizeof(Area) == 2000000 && sizeof(Area::rest) < sizeof(ScopeEntry));
static_assert(offsetof(ScopeBlockTables, drive) == 2000000);
static_assert(sizeof(ScopeBlockTables) <= kScopeBlockSize);

// CastBlock as the folder scope has it.
// kept: the scenario's cast records share the work blocks with the folder scope, and a run of
// the statistics overwrites what stands there.
struct CastBlockTables {
  std::int32_t folder[125000];
  std::int32_t drive[kScopeLimit];
};
static_assert(offsetof(CastBlockTables, drive) == 500000);
static_assert(kScopeLimit <= 125000 && sizeof(CastBlockTables) <= kCastBlockSize);

ScopeBlockTables* Tables() {
  return reinterpret_cast<ScopeBlockTables*>(WorkBlocks.ScopeBlock);
}

// Null where there is no such entry, row or rank.
ScopeEntry* EntryAt(ScopeArea area, int number) {
  if (!WorkBlocks.ScopeBlock || number < 0 || number >= kScopeLimit) return nullptr;
  return (area == ScopeArea::Drive ? Tables()->drive : Tables()->folder).entries + number;
}

ScopeBarRow* BarAt(int row) {
  return WorkBlocks.ScopeBlock && row >= 0 && row <= kScopeLimit ? Tables()->bars + row : nullptr;
}

std::int32_t* OrderAt(ScopeArea area, int rank) {
  if (!WorkBlocks.CastBlock || rank < 0 || rank >= kScopeLimit) return nullptr;
  auto* tables = reinterpret_cast<CastBlockTables*>(WorkBlocks.CastBlock);
  return (area == ScopeArea::Drive ? tables->drive : tables->folder) + rank;
}

}  // namespace

void ScopeEntryPut(ScopeArea area, int number, const ScopeEntry& entry) {
  ScopeWroteBlocks();
  if (ScopeEntry* at = EntryAt(area, number)) *at = entry;
}

ScopeEntry ScopeEntryGet(ScopeArea area, int number) {
  const ScopeEntry* at = EntryAt(area, number);
  ScopeEntry entry = at ? *at : ScopeEntry{};
  // bounded: in a work block shared with the scenario a name may lack its end.
  entry.name[kScopeNameSize - 1] = '\0';
  return entry;
}

std::uint64_t ScopeEntrySize(ScopeArea area, int number) {
  const ScopeEntry* at = EntryAt(area, number);
  return at ? std::uint64_t{at->sizeHigh} << 32U | at->sizeLow : 0;
}

int ScopeOrder(ScopeArea area, int rank, int count) {
  const std::int32_t* at = rank < count ? OrderAt(area, rank) : nullptr;
  // bounded: in a work block shared with the scenario the number of an entry may be anything;
  // one that is none is passed over.
  return at && *at >= 0 && *at < kScopeLimit ? *at : -1;
}

void ScopeSort(ScopeArea area, int count) {
  if (!WorkBlocks.ScopeBlock || !WorkBlocks.CastBlock) return;
  ScopeWroteBlocks();
  for (int n = 0; n < count && n < kScopeLimit; ++n) {
    const std::uint64_t size = ScopeEntrySize(area, n);
    int rank = n;
    for (; rank > 0 && ScopeEntrySize(area, *OrderAt(area, rank - 1)) < size; --rank) {
      *OrderAt(area, rank) = *OrderAt(area, rank - 1);
    }
    *OrderAt(area, rank) = n;
  }
}

void ScopeBarPut(int row, const ScopeBarRow& bar) {
  ScopeWroteBlocks();
  if (ScopeBarRow* at = BarAt(row)) *at = bar;
}

ScopeBarRow ScopeBarGet(int row) {
  const ScopeBarRow* at = BarAt(row);
  return at ? *at : ScopeBarRow{};
}
