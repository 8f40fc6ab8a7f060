// The open record: what was opened in this run of the program, the latest on top. It
// is not saved.
#pragma once

#include "filetools/open/open_selection.h"

inline constexpr int kOpnRecordMax = 100;

struct OpnRecordRec {
  int recCount;
  OpnSelectionRec rows[kOpnRecordMax];
};
extern OpnRecordRec OpnRecord;

// Adds what OpnSelection holds, unless a row is equal to it. The hundred and first
// row falls off the end.
void OpnRecordAdd();

// Forgets all rows.
void OpnRecordClear();

// How a row reads: the file in a column of 36 characters, the program in one of 70.
// A longer name pushes what follows to the right.
inline constexpr int kOpnRecordRowSize = 600;
void OpnRecordRowText(int row, char* text, int size);
