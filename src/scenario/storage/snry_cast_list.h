// The cast of the current scene as its lists show it. Empty places and characters that are
// no longer registered are not shown, so a row is no place; rows count from 0.
#pragma once

#include "scenario/storage/scenario.h"

// What the lists show: everybody, or the characters without their copies.
enum class SnryCastShow { All, Characters };

int SnryCastRows(SnryCastShow show);

// The place of the cast list, or the cast id, of a row; -1 and 0 for a row that there is
// not.
int SnryCastPlaceOfRow(SnryCastShow show, int row);
int SnryCastIdOfRow(SnryCastShow show, int row);
// The row of a cast id; -1 when it is not shown.
int SnryCastRowOfId(SnryCastShow show, int id);

// "1. name [登場名: ...]" and its like; terminated at `size`.
void SnryCastRowText(SnryCastShow show, int row, char* text, int size);

// "1. name [登場名: ...]" of a character (from 1) of the world; terminated at `size`.
void SnryCharaText(int number, int chara, char* text, int size);

// Whether a cast id is a character of the world, and registered.
bool SnryCharaIsRegistered(int id);
