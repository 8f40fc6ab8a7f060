// The back-up: a list of source files, the folder they are copied to, and what
// can be done with them. A settings file (*.BUP) keeps the list.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "services/record.h"
#include "services/tick_step.h"

struct BackUpRunState {
  WindowHandle hBackUpDlg = nullptr;  // BackUpDlg, the progress
  bool BackUpActive = false;          // a run copies a file a tick
  bool busy = false;                  // an action of the dialog is running
};
extern BackUpRunState BackUpRun;

inline constexpr int kBackUpMax = 100;
inline constexpr int kBackUpPathSize = 600;

struct BackUpSet {
  std::int32_t fileCount;  // 0 to 100
  char sourcePath[kBackUpMax][kBackUpPathSize];
  char destPath[kBackUpMax][kBackUpPathSize];  // where the copy goes; may be empty
  char destDir[300];                           // without a backslash at its end
  char comment[256];
  std::int8_t differs[kBackUpMax];  // last comparison by content: 0 or -3
  std::int32_t fileCursor;          // the next file of a run
  // kept: a change of the back-up list is noted, but nothing asks for it, and the dialog
  // closes without a question.
  bool dirty;
};
extern BackUpSet BackUp;

// The settings file, 120605 bytes: a head of 49
//
// offset  size  field
//      0    45  magic, no terminator
//     45     4  fileCount, big-endian
struct BackUpHead {
  char magic[45];
  std::int32_t fileCount;
};

template <class Io>
constexpr void Fields(Io& io, BackUpHead& head) {
  io.Bytes(head.magic);
  io.BE32(head.fileCount);
}
static_assert(RecordSize<BackUpHead>() == 49);

// and behind it, of BackUp, 120556
//
// offset   size  field
//      0    300  destDir
//    300  60000  destPath, 100 of 600
//  60300  60000  sourcePath, 100 of 600
// 120300    256  comment
//
// All 100 fields of both tables are always there; those past fileCount hold what stands
// in memory.
template <class Io>
constexpr void Fields(Io& io, BackUpSet& set) {
  io.Text(set.destDir);
  io.Text(set.destPath);
  io.Text(set.sourcePath);
  io.Text(set.comment);
}
static_assert(RecordSize<BackUpSet>() == 120556);

// Makes all of this what it is in a fresh process.
void BackUpReset();

// True if no more file can be added.
bool BackUpIsFull();

// Adds a source by its first 512 bytes. 0, or 1 when a row of the list is equal
// to the path or to its beginning, or -1 when the list is full.
int BackUpAddSource(const char* path);

// Takes one row, or all, out of both tables. A row that is not there is passed
// over.
void BackUpRemoveSource(int row);
void BackUpClearSources();

// Makes every destPath from destDir and the source's name. Does nothing without
// sources or without destDir.
void BackUpRebuildDest();

// Read and write a settings file. 0, or what FileStatus says too: -1 it cannot
// be opened or made, -2 a short transfer or no such file. What a load had read
// by then stays.
int BackUpLoad(const char* path);
int BackUpSave(const char* path);

// Copies the next file of the run: 1 when all had been copied before, 0 when it
// was copied, -1 when it could not be. 1 and -1 end the run (BackUpActive).
int BackUpStep();

// Compare the times of last writing, exactly: 0 no difference, 1 a difference or
// a missing copy, -1 a missing source, whichever comes first.
int BackUpCompareDate();

// Compares all contents into `differs`: 0 no difference, -3 some, -1 at once at
// a missing source, -2 at once at a missing copy.
int BackUpCompareContent();

// How a row reads in the list of the comparison, "name (source time - copy
// time)". False if the row does not belong there: equal times, or contents that
// did not differ.
bool BackUpListDate(int row, char* text, int size);
bool BackUpListContent(int row, char* text, int size);

// The run's step of the tick: its dialog copies the next file.
void BackUpTick();
int BackUpDue();
inline constexpr TickStep kBackUpStep{BackUpTick, BackUpDue};
