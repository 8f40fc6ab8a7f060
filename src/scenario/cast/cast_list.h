// Who is in the cast of the current scene: members come and go.
#pragma once

#include <cstdint>

// The world characters that can be added, by row from 0: those that are registered and not
// in the cast yet.
int CastAddRows();
int CastAddCharaOfRow(int row);  // from 1; 0 for a row that there is not
// "1. name [登場名: ...]", terminated at `size`.
void CastAddRowText(int row, char* text, int size);

// Adds a character (from 1) behind the others; not when all 256 places are taken.
void CastAdd(int chara);

// Takes the character out that stands at a place of the list, with all its copies.
void CastRemove(int place);
