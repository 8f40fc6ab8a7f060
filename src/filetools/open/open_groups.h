// The groups of files that are opened together: OpnGrpFile.lis, 200 records of 36859
// bytes.
#pragma once

#include <cstdint>

#include "filetools/open/open_text.h"
#include "services/record.h"

inline constexpr int kOpnGroupMax = 200;
inline constexpr int kOpnGroupFileMax = 30;
inline constexpr int kOpnCommentSize = 256;

// A group of files that are opened together.
//
// offset  size       field
//      0  1          fileCount, 0 to 30
//      1  30 x 300   fileName
//   9001  30 x 300   filePath
//  18001  30 x 300   progName
//  27001  30 x 300   progPath
//  36001  602        reserved, travels with the record
//  36603  256        comment, of which 255 bytes are used
struct OpnGroupRec {
  std::uint8_t fileCount;
  char fileName[kOpnGroupFileMax][kOpnTextSize];
  char filePath[kOpnGroupFileMax][kOpnTextSize];
  char progName[kOpnGroupFileMax][kOpnTextSize];
  char progPath[kOpnGroupFileMax][kOpnTextSize];
  char reserved[602];
  char comment[kOpnCommentSize];
};

template <class Io>
constexpr void Fields(Io& io, OpnGroupRec& g) {
  io.U8(g.fileCount);
  io.Bytes(g.fileName);
  io.Bytes(g.filePath);
  io.Bytes(g.progName);
  io.Bytes(g.progPath);
  io.Bytes(g.reserved);
  io.At(36603);
  io.Bytes(g.comment);
}
static_assert(RecordSize<OpnGroupRec>() == 36859);

struct OpnGroupsState {
  OpnGroupRec OpnGroupTable[kOpnGroupMax] = {};
  OpnGroupRec aside[kOpnGroupMax] = {};  // the copy that takes changes back; what is being read
  // FileOpnGrpSetDlg: the group on show, and whether its files, or another group's, were
  // changed.
  int shown = 0;
  bool dirty = false;
};
extern OpnGroupsState OpnGroups;

// Reads the table; a group that counts more than 30 files has 30. Returns 0, or -1 with
// FileStatus -1 (no file) or -2 (a short one): the table stays as it was then. The copy
// aside is lost.
int OpnGroupLoad();

// Replaces the file. Returns 0, or -1 with FileStatus -1 (cannot be created) or -2
// (short write; the old file is gone by then).
int OpnGroupSave();

// Copy the whole table aside, and back. Nothing is read in between.
void OpnGroupsKeep();
void OpnGroupsBack();

// The group's row with the file that OpnSelection holds, -1 for none.
int OpnGroupFind(int group);

// Adds what OpnSelection holds as the last row. 0, or -1 when the group is full.
int OpnGroupAddFile(int group);

// Takes a row out; one that is not there is passed over.
void OpnGroupRemoveFile(int group, int row);

// Adds all rows of the open record. 0, or -1 when the group was full
// before the last: it then holds those that fitted.
// kept: the open record goes into a group with no test for doubles.
int OpnGroupAddRecord(int group);

// Takes a comment over with at most 255 bytes. True if it is another one than before.
bool OpnGroupSetComment(int group, const char* text);

// How a group reads in all lists: its number from 1, and with files its comment.
inline constexpr int kOpnGroupRowSize = kOpnCommentSize + 20;
void OpnGroupRowText(int group, char* text, int size);
