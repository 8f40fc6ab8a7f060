// The list of applications that schedules can run, kept in the file
// mirrell_apli_list_file.ali of the program folder.
#pragma once

#include <cstdint>

#include "schedule/applications/application_records.h"

inline constexpr int kApliMax = 100;

struct ApplicationsState {
  std::int32_t ApliCount = 0;        // entries in use
  std::int32_t ApliSecondCount = 0;  // always 0 in files of this program
  std::int32_t ApliSelected = 0;     // number of the executing application's entry, from 1; 0 none
  ApliEntry ApliSchedule = {};       // path of the schedule of the executing application
  std::int32_t ApliStarted = 0;      // number of the started entry, from 1; 0 none
  ApliEntry* entries = nullptr;      // room for ApliCount + 1 and more
  ApliEntry* secondList = nullptr;
};
extern ApplicationsState Applications;

// Tries the file and creates it with zero counts when it cannot be opened.
// 0; -1 when it cannot be made.
int ApliListOpen();

// Reads the file into the table. 0; -1 cannot be opened; -2 short or too many
// entries. A wrong magic gives 0 with FileStatus -2.
int ApliListRead();

// Writes the table. 0, -1 cannot be made, -2 short.
int ApliListSave();

// The path of an entry, from 0; empty beyond the table.
const char* ApliPath(int entry);

// Puts a program into the first entry; the count becomes at least 1. 0; -1 when
// there is no memory.
int ApliListSetFirst(const char* path);

bool ApliListHasSelected();
// The program marked for the execution schedule is the one the hand-off runs with.
bool ApliSelectedIsRunning();

// Frees the entries and the second list.
void ApliListFree();
