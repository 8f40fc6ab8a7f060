// The copies of a character of the cast. Those of all characters lie one behind the other
// in the slots from 512 on, and each has its place in the cast list.
#pragma once

// How many copies the registered characters of the cast have together.
int CastCopySum();

// The slot behind the last copy of all characters of the cast, registered or not, 512 to 712.
int CastCopiesEnd();

// How many copies a character of the cast (from 1) has, and how many it may have.
int CastCopies(int chara);
int CastCopiesMost(int chara);

// Gives a character of the cast (from 1) that many copies, 0 to CastCopiesMost.
void CastCopiesSet(int chara, int copies);

// Takes all copies of a character (from 1) away, with the lines of those that are found
// again.
void CastCopiesRemove(int chara);
