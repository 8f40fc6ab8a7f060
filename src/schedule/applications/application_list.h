// The list of applications that schedules can run, kept in the file
// mirrell_apli_list_file.ali of the program folder.
#pragma once

#include <cstdint>

#include "schedule/applications/application_records.h"

inline constexpr int kApliMax = 100;
inline constexpr int kHandOffPathSize = kApliPathSize + 16;

struct ApliListState {
  std::int32_t ApliCount = 0;        // entries in use
  std::int32_t ApliSecondCount = 0;  // always 0 in files of this program
  std::int32_t ApliSelected = 0;     // number of the executing application's entry, from 1; 0 none
  ApliEntry ApliSchedule = {};       // path of the schedule of the executing application
  std::int32_t ApliStarted = 0;      // number of the started entry, from 1; 0 none
  ApliEntry* entries = nullptr;      // room for ApliCount + 1 and more
  ApliEntry* secondList = nullptr;
  // What command 2371 starts: an entry from 1, and the mode that it is told.
  std::int32_t ApliToStart = 0;
  std::uint8_t ApliMode = 0;
  // The hand-over file of the started entry, empty when none was started, and its
  // last-write time at the last look.
  char ApliHandOffFile[kHandOffPathSize] = {};
  std::uint64_t ApliHandOffTime = 0;
  // How often the file, after its last change, was not whole.
  std::int32_t ApliHandOffLooks = 0;
  // A change of the selection that waits: the selected entry to be and 1, so that 1 stands
  // for none selected; 0 when there is no change.
  std::int32_t ApliPending = 0;
};
extern ApliListState Applications;

// Tries the file and creates it with zero counts when it cannot be opened.
// 0; -1 when it cannot be made.
int ApliListOpen();

// Reads the file into the table, which stays as it is unless all of the file is read. 0; -1
// cannot be opened; -2 short or too many entries. A wrong magic gives 0 with FileStatus -2.
// Paths that name no drive lie below the program folder.
int ApliListRead();

// Writes the table. 0, -1 cannot be made, -2 short.
int ApliListSave();

// The path of an entry, from 0; empty beyond the table.
const char* ApliPath(int entry);

bool ApliListHasRoom();
// Adds a program and writes the file. 0; -1 when there is no room or no memory.
int ApliListAdd(const char* path);
// Removes an entry, from 0, and writes the file. The numbers of the selected and of the
// started entry follow; that of the removed one becomes 0.
void ApliListRemove(int entry);

// The name of an entry, from 0, without folder and extension, with "(起動中)" behind it
// when it is the started one and "(実行指定)" when it is the selected one.
void ApliRowText(int entry, char* text, int size);

// Puts a program into the first entry; the count becomes at least 1. 0; -1 when
// there is no memory.
int ApliListSetFirst(const char* path);

bool ApliListHasSelected();
// The program marked for the execution schedule is the one the hand-off runs with.
bool ApliSelectedIsRunning();

// What command 2371 is to start, an entry from 1, and the mode that its hand-over file and
// its command line tell.
void ApliToStartSet(std::int32_t entry, std::uint8_t mode);

// Frees the entries and the second list.
void ApliListFree();
