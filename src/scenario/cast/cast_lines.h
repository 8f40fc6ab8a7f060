// What the members of a cast say. All lines of a scene lie in one table; a member has
// their ids, each with a condition, an end and what changes then.
#pragma once

#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_tables.h"

inline constexpr int kCastLineMax = 179;  // bytes of a line that is typed

// A line of a member, as the dialog has it in its fields.
struct CastLine {
  char text[kSnryLineTextSize + 1];
  SnryPair start;
  std::uint8_t end;
  SnryPair change;  // at its end
};

// The lines of a member are listed by row from 0.
int CastLineRows(const SnryCastRec& member);
// "「text」-> parameter=value", both cut; terminated at `size`.
void CastLineRowText(const SnryCastRec& member, int row, char* text, int size);

// A line of the list; an empty one for a row that there is not.
CastLine CastLineTake(const SnryCastRec& member, int row);

// Adds a line. False, and nothing else, for an empty text and when there is no room.
bool CastLineAdd(SnryCastRec& member, const CastLine& line);
void CastLineChange(SnryCastRec& member, int row, const CastLine& line);
void CastLineDelete(SnryCastRec& member, int row);

// Gives all lines of a member back.
void CastLinesFree(SnryCastRec& member);
