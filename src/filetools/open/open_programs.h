// The programs that files can be opened with. The list is not saved: it is made from
// the history and from what the system knows for a few kinds of files.
#pragma once

#include "filetools/open/open_history.h"

inline constexpr int kOpnProgMax = 199;  // browsing stops there
// The history's own programs and three associations may be more; a browsed program
// stands behind the last.
inline constexpr int kOpnProgRows = kOpnFileMax + 3 + 1;

struct OpnProgListRec {
  int progCount;
  int workCount;  // rows with a browsed one behind the last
  bool built;     // false lets OpnBuildProgList make the list again
  char progName[kOpnProgRows][kOpnTextSize];
  char progPath[kOpnProgRows][kOpnTextSize];
};
extern OpnProgListRec OpnProgList;

// Makes the list, once in a run of the program: the programs of the history, then
// those for txt, cpp and pdf, each once.
void OpnBuildProgList();

// Empties the list, so that it is made again.
void OpnProgListForget();

// The row of a program, the browsed one too; -1 if it is not in the list.
int OpnProgFind(const char* name, const char* folder);

// Writes a program behind the last row. False when 199 stand before it: it does not
// count then.
bool OpnProgBrowse(const char* name, const char* folder);

// Counts a browsed program in, or forgets it.
void OpnProgBrowsedTake();
void OpnProgBrowsedDrop();

// Moves a row to the top.
void OpnProgToTop(int row);

inline constexpr int kOpnCommandSize = 600;

// The command that opens files of an extension ("txt", "cpp", "pdf", "doc"), as the
// system's classes hold it. False, with "なし" in `command`, when there is none.
// `size` up to kOpnCommandSize.
bool OpnFindAssociation(const char* extension, char* command, int size);
