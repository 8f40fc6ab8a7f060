// The list of all scenarios that are known: SNRYLIST.sli.
#pragma once

#include "platform/types.h"
#include "scenario/storage/scenario.h"

// The head of the file, 50 bytes; its rows follow.
//
// offset  size  field
//      0    46  magic, no terminator
//     46     4  count
struct SnryListFile {
  char magic[46];
  std::uint32_t count;
};

template <class Io>
constexpr void Fields(Io& io, SnryListFile& head) {
  io.Bytes(head.magic);
  io.BE32(head.count);
}
static_assert(RecordSize<SnryListFile>() == 50);

// Reads the list; rows past 1024 are passed over. 0; -1 it cannot be opened, -3 it is
// short, -4 it is another file. What was read by then stays.
int SnryListRead();

// Writes the list anew. 0, or -1 when it cannot be made or a write is short.
int SnryListWrite();

// The row of the current scenario becomes its folder and title, or a row is added; no row
// past 1024.
void SnryListPut();

// Takes a row out; those behind it move up.
void SnryListRemove(int row);

// The row with this main folder; -1 for none.
int SnryListFind(const char* folder);

// "[title]-path", cut between characters.
void SnryListRowText(int row, char* text, int size);

// Makes sure that the folder of the world and the list are there, and reads the list. The
// folder of the world is the current one then. 0, or a negative step behind its box:
// -1 no folder, -2 no list, -3 none in place of a wrong one, -4 not read.
int SnryOpenList(WindowHandle owner);
