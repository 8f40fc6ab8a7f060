// The programs that files can be opened with. The list is not saved: it is made from
// the history and from what the system knows for a few kinds of files.
#pragma once

#include "filetools/open/open_state.h"

inline constexpr int kOpnProgMax = 199;  // browsing stops there
// The history's own programs and three associations may be more; a browsed program
// stands behind the last.
inline constexpr int kOpnProgRows = kOpnFileMax + 3 + 1;

struct OpnProgListRec {
  int progCount;
  char progName[kOpnProgRows][kOpnTextSize];
  char progPath[kOpnProgRows][kOpnTextSize];
};
extern OpnProgListRec OpnProgList;

// False lets OpnBuildProgList make the list again.
extern bool OpnProgListBuilt;

// Makes the list, once in a run of the program: the programs of the history, then
// those for txt, cpp and pdf, each once.
void OpnBuildProgList();

// The row of a program, -1 if it is not in the list. Rows from 0 up to `count`.
int OpnProgFind(const char* name, const char* folder, int count);

inline constexpr int kOpnCommandSize = 600;

// The command that opens files of an extension ("txt", "cpp", "pdf", "doc"), as the
// system's classes hold it. False, with "なし" in `command`, when there is none.
// `size` up to kOpnCommandSize.
bool OpnFindAssociation(const char* extension, char* command, int size);
