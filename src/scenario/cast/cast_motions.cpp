#include "scenario/cast/cast_motions.h"

#include "scenario/cast/cast_member.h"
#include "scenario/cast/cast_places.h"
#include "services/slots.h"
#include "services/text.h"
#include "world/world_list.h"

namespace {

// kept: a motion holds the low byte of its figure's id.
std::uint8_t MotionOf(int figure) {
  return static_cast<std::uint8_t>(figure);
}

void Put(SnryCastRec& member, int place, int figure, const SnryPair& start) {
  member.motions[place] = MotionOf(figure);
  member.motionParameters[place] = start.parameter;
  member.motionValues[place] = start.value;
  Scenario.changed = true;
}

// The row at which `ends` says so about a figure's id; -1 for none. Places without a figure
// are no rows.
template <class Ends>
int WalkFigures(int id, Ends ends) {
  const int chara = CastCharacterOf(id);
  if (chara == 0) return -1;
  int row = 0;
  for (const int figure : SnryMain.charMotions[chara - 1].figures) {
    if (figure == 0) continue;
    if (ends(row, figure)) return row;
    ++row;
  }
  return -1;
}

}  // namespace

int CastFigureRows(int id) {
  int rows = 0;
  WalkFigures(id, [&rows](int row, int) {
    rows = row + 1;
    return false;
  });
  return rows;
}

int CastFigureOfRow(int id, int row) {
  int found = 0;
  WalkFigures(id, [&](int at, int figure) {
    if (at == row) found = figure;
    return at == row;
  });
  return found;
}

int CastFigureRowOf(int id, int figure) {
  return WalkFigures(id, [figure](int, int at) { return MotionOf(at) == figure; });
}

int CastMotionRows(const SnryCastRec& member) {
  return SlotsUsed(member.motions);
}

void CastMotionRowText(const SnryCastRec& member, int row, char* text, int size) {
  const auto room = static_cast<std::size_t>(size);
  TextFormat(text, room, "[ %s ]", WorldFigureName(CastMotionFigure(member, row)));
  CastConditionAppend(text, room, CastMotionStart(member, row));
}

int CastMotionFigure(const SnryCastRec& member, int row) {
  const int place = SlotOfRow(member.motions, row);
  return place < 0 ? 0 : member.motions[place];
}

SnryPair CastMotionStart(const SnryCastRec& member, int row) {
  const int place = SlotOfRow(member.motions, row);
  if (place < 0) return {};
  return {member.motionParameters[place], member.motionValues[place]};
}

bool CastMotionAdd(SnryCastRec& member, int figure, const SnryPair& start) {
  const int place = SlotFree(member.motions);
  if (place < 0 || MotionOf(figure) == 0) return false;
  Put(member, place, figure, start);
  return true;
}

bool CastMotionChange(SnryCastRec& member, int row, int figure, const SnryPair& start) {
  const int place = SlotOfRow(member.motions, row);
  if (place < 0 || MotionOf(figure) == 0) return false;
  Put(member, place, figure, start);
  return true;
}

void CastMotionDelete(SnryCastRec& member, int row) {
  const int place = SlotOfRow(member.motions, row);
  if (place < 0) return;
  SlotDrop(member.motions, place);
  SlotDrop(member.motionParameters, place);
  SlotDrop(member.motionValues, place);
  Scenario.changed = true;
}
