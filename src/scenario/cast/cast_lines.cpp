#include "scenario/cast/cast_lines.h"

#include "scenario/cast/cast_places.h"
#include "services/slots.h"
#include "services/text.h"

namespace {

// The first free slot of the table of lines; -1 for none.
int FreeSlot() {
  for (int slot = 0; slot < kSnryLineSlots; ++slot) {
    if (SnryLineAt(slot).used == 0) return slot;
  }
  return -1;
}

void Put(SnryCastRec& member, int place, int id, const CastLine& line) {
  SnryLineRec& record = SnryLineAt(id - 1);
  record = {};
  record.used = 1;
  TextCopy(record.text, kCastLineMax + 1, line.text);
  member.lines[place] = static_cast<std::uint16_t>(id);
  member.lineParameters[place] = line.start.parameter;
  member.lineValues[place] = line.start.value;
  member.lineEnds[place] = line.end;
  member.endParameters[place] = line.change.parameter;
  member.endValues[place] = line.change.value;
}

// kept: the ways in which a character's lines end, and what changes then, stay at their places
// when a line goes, and so the next line has them.
void Remove(SnryCastRec& member, int place) {
  SnryLineAt(member.lines[place] - 1).used = 0;
  SlotDrop(member.lines, place);
  SlotDrop(member.lineParameters, place);
  SlotDrop(member.lineValues, place);
}

}  // namespace

int CastLineRows(const SnryCastRec& member) {
  return SlotsUsed(member.lines);
}

void CastLineRowText(const SnryCastRec& member, int row, char* text, int size) {
  const auto room = static_cast<std::size_t>(size);
  text[0] = '\0';
  const int place = SlotOfRow(member.lines, row);
  if (place < 0) return;
  char words[kCastShownMost + 1];
  TextCopyWhole(words, sizeof words, SnryLineAt(member.lines[place] - 1).text);
  TextFormat(text, room, "「%s」", words);
  CastConditionAppend(text, room, {member.lineParameters[place], member.lineValues[place]});
}

CastLine CastLineTake(const SnryCastRec& member, int row) {
  CastLine line{};
  const int place = SlotOfRow(member.lines, row);
  if (place < 0) return line;
  TextCopy(line.text, sizeof line.text, SnryLineAt(member.lines[place] - 1).text);
  line.start = {member.lineParameters[place], member.lineValues[place]};
  line.end = member.lineEnds[place];
  line.change = {member.endParameters[place], member.endValues[place]};
  return line;
}

// kept: a line without a text, or one too many, is left out in silence; a change may take the
// text away.
bool CastLineAdd(SnryCastRec& member, const CastLine& line) {
  const int slot = FreeSlot();
  const int place = SlotFree(member.lines);
  if (line.text[0] == '\0' || slot < 0 || place < 0) return false;
  Put(member, place, slot + 1, line);
  Scenario.changed = true;
  return true;
}

void CastLineChange(SnryCastRec& member, int row, const CastLine& line) {
  const int place = SlotOfRow(member.lines, row);
  if (place < 0) return;
  Put(member, place, member.lines[place], line);
  Scenario.changed = true;
}

void CastLineDelete(SnryCastRec& member, int row) {
  const int place = SlotOfRow(member.lines, row);
  if (place < 0) return;
  Remove(member, place);
  Scenario.changed = true;
}

// settled: each line of a copy that goes is given back, whatever else comes down meanwhile.
void CastLinesFree(SnryCastRec& member) {
  for (int place = kSnryCastPlaces - 1; place >= 0; --place) {
    if (member.lines[place] != 0) Remove(member, place);
  }
}
