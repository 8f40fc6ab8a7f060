// The groups of files that are opened together: OpnGrpFile.lis, 200 records of 36859
// bytes.
//
// offset  size       field
//      0  1          fileCount, 0 to 30
//      1  30 x 300   fileName
//   9001  30 x 300   filePath
//  18001  30 x 300   progName
//  27001  30 x 300   progPath
//  36001  602        reserved
//  36603  256        comment
#pragma once

#include "filetools/open/open_state.h"

inline constexpr int kOpnGroupMax = 200;
inline constexpr int kOpnGroupFileSize = 7371800;

struct OpnGroupsState {
  OpnGroupRec OpnGroupTable[kOpnGroupMax] = {};
};
extern OpnGroupsState OpnGroups;

// Reads the table. Returns 0, or -1 with FileStatus -1 (no file) or -2 (a short one,
// or a group that counts more than 30 files): the table stays as it was then.
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

// Adds all rows of the open record, equal ones too. 0, or -1 when the group was full
// before the last: it then holds those that fitted. OpnSelection stays as it was.
int OpnGroupAddRecord(int group);

// Takes a comment over with at most 255 bytes. True if it is another one than before.
bool OpnGroupSetComment(int group, const char* text);

// How a group reads in all lists: its number from 1, and with files its comment.
inline constexpr int kOpnGroupRowSize = kOpnCommentSize + 20;
void OpnGroupRowText(int group, char* text, int size);
