// What the members of a cast do: figures of their characters, each with a condition.
#pragma once

#include "scenario/storage/scenario.h"

// A motion of a member, as the dialog has it in its fields.
struct CastMotion {
  std::int32_t figureRow;  // of the character's figures; -1 for none
  SnryPair start;
};

// The figures of a cast id: those of its character, by row from 0, and their ids.
int CastFigureRows(int id);
int CastFigureOfRow(int id, int row);     // 0 for a row that there is not
int CastFigureRowOf(int id, int figure);  // -1 for none; `figure` as a motion has it

// The motions of a member are listed by row from 0.
int CastMotionRows(const SnryCastRec& member);
// "[ figure ]-> parameter=value", terminated at `size`.
void CastMotionRowText(const SnryCastRec& member, int row, char* text, int size);

// A motion of the list: its figure's id and condition; 0 for a row that there is not.
int CastMotionFigure(const SnryCastRec& member, int row);
SnryPair CastMotionStart(const SnryCastRec& member, int row);

// False, and nothing else, without a figure and when there is no room.
bool CastMotionAdd(SnryCastRec& member, int figure, const SnryPair& start);
bool CastMotionChange(SnryCastRec& member, int row, int figure, const SnryPair& start);
void CastMotionDelete(SnryCastRec& member, int row);
