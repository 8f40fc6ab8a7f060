#include "scenario/storage/snry_tables.h"

#include "services/work_blocks.h"

namespace {

// CastBlock as the scenario has it; ScopeBlock is its table of lines.
// kept: the cast and the lines of a scene lie in the work blocks that the folder scope uses too:
// after a run of its statistics they hold what that left, until a scene is loaded or made.
struct CastBlockTable {
  SnryCastRec casts[kSnryCastSlots];
  SnryCastRec behind;
};
static_assert(sizeof(CastBlockTable) <= kCastBlockSize);
static_assert(sizeof(SnryLineRec[kSnryLineSlots]) <= kScopeBlockSize);

// bounded: what is written to a slot of the cast or the lines that there is not, nobody sees
// again.
template <class Record>
Record& Nobody() {
  static Record nobody;
  nobody = {};
  return nobody;
}

}  // namespace

SnryCastRec* SnryCasts() {
  auto* table = reinterpret_cast<CastBlockTable*>(WorkBlocks.CastBlock);
  return table ? table->casts : nullptr;
}

SnryLineRec* SnryLines() {
  return reinterpret_cast<SnryLineRec*>(WorkBlocks.ScopeBlock);
}

SnryCastRec& SnryCastAt(int slot) {
  SnryCastRec* casts = SnryCasts();
  if (!casts || slot < 0 || slot > kSnryCastSlots) return Nobody<SnryCastRec>();
  return slot < kSnryCastSlots ? casts[slot] : reinterpret_cast<CastBlockTable*>(casts)->behind;
}

SnryLineRec& SnryLineAt(int slot) {
  SnryLineRec* lines = SnryLines();
  if (!lines || slot < 0 || slot >= kSnryLineSlots) return Nobody<SnryLineRec>();
  lines[slot].text[kSnryLineTextSize] = '\0';
  return lines[slot];
}
