// The extension filter above a list of files: 16 fixed kinds, and one that the
// caller of the file picker may bring along.
#pragma once

#include "platform/types.h"

inline constexpr int kFilterRows = 16;
inline constexpr int kFilterAll = 0;      // "*.*"
inline constexpr int kFilterSources = 6;  // several extensions at once
inline constexpr int kFilterCaller = 16;  // the caller's, behind the fixed ones

// The text of a fixed row, 0 to 15.
const char* FilterText(int row);

// The fixed row with exactly that text, -1 if there is none.
int FilterFind(const char* text);

// Fills a combo box with the fixed rows.
void FilterFill(WindowHandle dialog, int comboId);

// True if a file of that name is to be listed under a row. What counts is the
// extension behind the first full stop, 8 characters of it, in capitals. `caller`
// ("*.BUP") is what row 16 asks for; it may be null otherwise.
bool FilterMatch(int row, const char* caller, const char* name);

// Refills a list box with the files of `folder` that the row admits, in the order
// of the search. Folders and names that begin with a full stop stay out. The
// folder becomes the current one.
void FilterListFiles(WindowHandle dialog, int listId, const char* folder, int row, const char* caller);
