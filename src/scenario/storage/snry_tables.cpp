#include "scenario/storage/snry_tables.h"

#include <algorithm>
#include <iterator>

#include "services/work_blocks.h"

SnryTouchedState SnryTouched;

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

SnryCastRec* Casts() {
  auto* table = reinterpret_cast<CastBlockTable*>(WorkBlocks.CastBlock);
  return table ? table->casts : nullptr;
}

SnryLineRec* Lines() {
  return reinterpret_cast<SnryLineRec*>(WorkBlocks.ScopeBlock);
}

// Where the folder scope has been, anything may stand anywhere.
bool ScopeWasThere() {
  return SnryTouched.scopeWrites != WorkBlocks.scopeWrites;
}
SnryLineRec* LinesEnd() {
  return Lines() + (ScopeWasThere() ? kSnryLineSlots : SnryTouched.lines);
}
SnryCastRec* CastsEnd() {
  return Casts() + (ScopeWasThere() ? kSnryCastSlots : SnryTouched.casts);
}

void Drop(SnryCastRec& cast) {
  cast.master = 0;
  cast.copies = 0;
  if (cast.drops == 0) return;
  std::fill(std::begin(cast.motions), std::end(cast.motions), std::uint8_t{0});
  std::fill(std::begin(cast.lines), std::end(cast.lines), std::uint16_t{0});
}

}  // namespace

const SnryCastRec* SnryCasts() {
  return Casts();
}

const SnryLineRec* SnryLines() {
  return Lines();
}

SnryCastRec* SnryCastsTake(int count) {
  SnryTouched.casts = std::max(SnryTouched.casts, count);
  return Casts();
}

SnryLineRec* SnryLinesTake(int count) {
  SnryTouched.lines = std::max(SnryTouched.lines, count);
  return Lines();
}

void SnryCopiesClear() {
  SnryCastRec* first = Casts() + kSnryCopyFirst;
  if (first < CastsEnd()) std::fill(first, CastsEnd(), SnryCastRec{});
}

void SnryActorsDrop(int lines, int casts) {
  std::for_each(Lines() + lines, std::max(LinesEnd(), Lines() + lines),
                [](SnryLineRec& line) { line.used = 0; });
  std::for_each(Casts() + casts, std::max(CastsEnd(), Casts() + casts), Drop);
  SnryTouched = {lines, casts, WorkBlocks.scopeWrites};
}

SnryCastRec& SnryCastAt(int slot) {
  SnryCastRec* casts = Casts();
  if (!casts || slot < 0 || slot > kSnryCastSlots) return Nobody<SnryCastRec>();
  if (slot == kSnryCastSlots) return reinterpret_cast<CastBlockTable*>(casts)->behind;
  return SnryCastsTake(slot + 1)[slot];
}

SnryLineRec& SnryLineAt(int slot) {
  if (!Lines() || slot < 0 || slot >= kSnryLineSlots) return Nobody<SnryLineRec>();
  SnryLineRec& line = SnryLinesTake(slot + 1)[slot];
  line.text[kSnryLineTextSize] = '\0';
  return line;
}
