#include "filetools/scope/scope_pie.h"

#include <cmath>
#include <cstdlib>

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_tables.h"
#include "filetools/scope/scope_unit.h"
#include "services/text.h"

namespace {

constexpr float kTwelve = 1.5707964F;  // the angle of 12 o'clock
constexpr float kPi = 3.1415927F;

// bounded: to a full table of slices of the folder scope nothing is added.
void AddRow(ScopePie& pie, std::uint8_t kind, std::int32_t tag, const char* name, float size,
            std::uint64_t bytes) {
  if (pie.count >= kScopePieRows) return;
  ScopePieRow& row = pie.rows[pie.count++];
  row = {};
  row.kind = kind;
  row.tag = tag;
  TextCopy(row.name, sizeof row.name, name);
  row.sizeLow = static_cast<std::uint32_t>(bytes);
  row.sizeHigh = static_cast<std::uint32_t>(bytes >> 32U);
  row.size = size;
}

void AddEntry(ScopePie& pie, ScopeArea area, int number, int rank) {
  const std::uint64_t bytes = ScopeEntrySize(area, number);
  AddRow(pie, kPieListed, rank + 1, ScopeEntryGet(area, number).name, ScopeFloat(bytes), bytes);
}

void AddComputed(ScopePie& pie, std::int32_t tag, const char* name, float size) {
  AddRow(pie, kPieComputed, tag, name, size, ScopeBytes(size));
}

// Adds the largest entries but one, at most `wanted`, leaving `kept` rows of the
// table free. Returns the sum of their sizes on top of `sum`.
float AddLargest(ScopePie& pie, ScopeArea area, int entries, int without, int wanted, int kept, float sum) {
  for (int rank = 0; rank < entries && wanted > 0 && pie.count < kScopePieRows - kept; ++rank) {
    const int number = ScopeOrder(area, rank, entries);
    if (number < 0 || number == without) continue;
    AddEntry(pie, area, number, rank);
    sum += pie.rows[pie.count - 1].size;
    --wanted;
  }
  return sum;
}

int RankOf(ScopeArea area, int entries, int number) {
  int rank = 0;
  while (rank < entries - 1 && ScopeOrder(area, rank, entries) != number) ++rank;
  return rank;
}

float AtLeastNothing(float size) {
  return size > 0.0F ? size : 0.0F;
}

// What the rows are as shares of a total.
void Measure(ScopePie& pie, float total) {
  for (int i = 0; i < pie.count; ++i) {
    ScopePieRow& row = pie.rows[i];
    const ScopeAmount amount = ScopeUnit(row.size);
    const ScopeShare share = ScopePercent(row.size, total);
    row.unit = amount.unit;
    row.valueInt = amount.valueInt;
    row.valueFrac = amount.valueFrac;
    row.percentInt = share.percentInt;
    row.percentFrac = share.percentFrac;
    row.sweep = ScopeRatio(row.size, total) * 2.0F * kPi;
  }
}

Point OnCircle(const ScopePie& pie, float angle) {
  const auto radius = static_cast<float>(pie.radius);
  return {ScopeWhole(std::cos(angle) * radius + static_cast<float>(pie.centre.x)),
          ScopeWhole(static_cast<float>(pie.centre.y) - std::sin(angle) * radius)};
}

// Clockwise from 12 o'clock, one slice after the other. The chosen folder is laid
// over the start of its parent's slice, which is the first.
void Place(ScopePie& pie) {
  const Point top{pie.centre.x, pie.centre.y - pie.radius};
  Point last = top;
  float angle = kTwelve;
  for (int i = 0; i < pie.count; ++i) {
    ScopePieRow& row = pie.rows[i];
    const bool inside = row.tag == kTagChosen;
    if (!inside) angle -= row.sweep;
    const Point end = OnCircle(pie, inside ? kTwelve - row.sweep : angle);
    const Point start = inside ? top : last;
    row.x1 = end.x;
    row.y1 = end.y;
    row.x2 = start.x;
    row.y2 = start.y;
    if (!inside) last = end;
  }
}

// Where a slice crosses the vertical axis: with 6 o'clock inside it, or else 12 o'clock,
// not as its begin or end.
// settled: whether a slice crosses the vertical axis is decided by its angles; its end points
// are whole pixels, and one that stands for the top may lie on either side.
enum class Crossing { None, Below, Above };
Crossing AxisCrossing(float begin, float end) {
  constexpr float kEdge = 0.0001F;  // less than a pixel of the rim, more than the sums' rounding
  const auto inside = [begin, end](float angle) { return begin + kEdge < angle && angle < end - kEdge; };
  if (inside(kPi) || inside(3 * kPi)) return Crossing::Below;
  return inside(2 * kPi) ? Crossing::Above : Crossing::None;
}

void Begin(ScopePie& pie, int cx, int cy, int radius) {
  pie.count = 0;
  pie.centre = {cx, cy};
  pie.radius = radius;
}

}  // namespace

void ScopeBuildPieDrive(int wanted, int cx, int cy, int radius) {
  ScopePie& pie = Scope.drivePie;
  Begin(pie, cx, cy, radius);
  float sum = 0.0F;
  if (Scope.firstLevelIndex >= 0) {
    AddEntry(pie, ScopeArea::Drive, Scope.firstLevelIndex,
             RankOf(ScopeArea::Drive, Scope.scopeDriveCount, Scope.firstLevelIndex));
    Scope.firstLevelTotal = pie.rows[0].size;
    sum = Scope.firstLevelTotal;
    --wanted;
    if (Scope.folderIndex >= 0) {
      AddComputed(pie, kTagChosen, Scope.folderName, Scope.chosenTotal);
      --wanted;
    }
  }
  sum = AddLargest(pie, ScopeArea::Drive, Scope.scopeDriveCount, Scope.firstLevelIndex, wanted, 2, sum);
  AddComputed(pie, kTagOthers, "その他", AtLeastNothing(Scope.driveTotal - sum - Scope.driveFree));
  AddComputed(pie, kTagFree, "空き", Scope.driveFree);
  Measure(pie, Scope.driveTotal);
  if (!Scope.scopeBarChart) Place(pie);
}

void ScopeBuildPieFolder(int wanted, int cx, int cy, int radius) {
  ScopePie& pie = Scope.folderPie;
  Begin(pie, cx, cy, radius);
  if (Scope.firstLevelIndex < 0 && Scope.folderIndex < 0) return;
  if (Scope.folderIndex < 0) Scope.chosenTotal = Scope.firstLevelTotal;
  const float sum = AddLargest(pie, ScopeArea::Folder, Scope.scopeFolderCount, -1, wanted, 1, 0.0F);
  AddComputed(pie, kTagOthers, "その他", AtLeastNothing(Scope.chosenTotal - sum));
  Measure(pie, Scope.chosenTotal);
  if (!Scope.scopeBarChart) Place(pie);
}

void ScopePieLeaders(const ScopePie& pie, const ScopeLeaderRule& rule,
                     ScopeLeader (&leaders)[kScopePieRows]) {
  constexpr int kNear = 10;  // lines closer than this are kept apart by their ends
  constexpr int kShift = 10;
  const Point corner{pie.centre.x - pie.radius, pie.centre.y - pie.radius};
  int offset = kShift;
  int lines = 0;  // on the side in work
  bool leftBegun = false;
  int lastY = 0;
  float turned = 0.0F;  // clockwise from 12 o'clock to the slice in work
  for (int i = 0; i < pie.count; ++i) {
    const ScopePieRow& row = pie.rows[i];
    int x = (row.x1 + row.x2) / 2;
    int y = (row.y1 + row.y2) / 2;
    const bool right = i < rule.rightRows || (row.x1 > pie.centre.x && row.x2 > pie.centre.x);
    // A slice that crosses the vertical axis is met at its rim, below or above.
    const float begin = row.tag == kTagChosen ? 0.0F : turned;
    const Crossing crossing = AxisCrossing(begin, begin + row.sweep);
    if (row.tag != kTagChosen) turned += row.sweep;
    if (crossing != Crossing::None) {
      x = pie.centre.x;
      y = corner.y + (crossing == Crossing::Below ? 198 : 2);
    }
    if (!right && !leftBegun) {
      leftBegun = true;
      offset = kShift;
      lines = 0;
    }
    int shift = 0;
    if (lines > 0 && std::abs(y - lastY) < kNear) {
      shift = offset;
      offset += kShift;
    } else {
      offset = kShift;
    }
    if (right) {
      if (x < pie.centre.x) x = corner.x + 150;
    } else if (rule.leftFromInside && x >= pie.centre.x) {
      x = corner.x + 90;
    }
    const int endX = right ? corner.x + 210 + shift : corner.x - 20 - shift;
    leaders[i] = {x, y, endX, {endX + (right ? 2 : -18), y - 4}};
    lastY = y;
    ++lines;
  }
}
