// What is about to be opened, and how the character goes about it.
#pragma once

#include <cstdint>

struct GroupRunState {
  std::int32_t GroupOpenDelay = 0;  // ticks until the next file of the group
};
extern GroupRunState GroupRun;

inline constexpr int kOpnTextSize = 300;
inline constexpr int kOpnGroupFileMax = 30;

inline constexpr int kOpnFileMax = 200;
// A new file stands behind the last row before the limit is looked at.
inline constexpr int kOpnFileRows = kOpnFileMax + 1;

// The known files with the programs chosen for them, and how they are opened. An
// empty progName is the associated program.
struct OpnHistoryRec {
  std::uint8_t fileCount;
  std::uint8_t openCount[kOpnFileMax];  // kept in the file; nothing raises it
  char fileName[kOpnFileRows][kOpnTextSize];
  char filePath[kOpnFileRows][kOpnTextSize];
  char progName[kOpnFileRows][kOpnTextSize];
  char progPath[kOpnFileRows][kOpnTextSize];
  std::uint8_t animeOn;  // the character walks first
  std::uint8_t soundOn;  // with soundName, a file of the folder "\サウンド"
  char reservedText[kOpnTextSize];
  char soundName[kOpnTextSize];
  std::uint8_t balloonFlags;  // walking flags of the character that was chosen last
};
extern OpnHistoryRec OpnHistory;

// A file and the program that opens it. An empty progName stands for the associated
// program. Folders end with a backslash.
struct OpnSelectionRec {
  char fileName[kOpnTextSize];
  char filePath[kOpnTextSize];
  char progName[kOpnTextSize];
  char progPath[kOpnTextSize];
};
// The current choice, filled before anything is started.
extern OpnSelectionRec OpnSelection;
// Where the current choice waits while a group's files go through OpnSelection.
extern OpnSelectionRec OpnSelectionSave;

inline constexpr int kOpnCommentSize = 256;

// A group of files that are opened together.
struct OpnGroupRec {
  std::uint8_t fileCount;  // 0 to 30
  char fileName[kOpnGroupFileMax][kOpnTextSize];
  char filePath[kOpnGroupFileMax][kOpnTextSize];
  char progName[kOpnGroupFileMax][kOpnTextSize];
  char progPath[kOpnGroupFileMax][kOpnTextSize];
  char reserved[602];             // travels with the record
  char comment[kOpnCommentSize];  // 255 bytes are used
};

// The group that is being opened; null for none.
extern const OpnGroupRec* OpnPendingGroup;

// How many files the pending group has, 0 to 30; 0 without one.
int OpnPendingCount();

// The name of a file of the pending group, from 0; empty beyond its count.
const char* OpnPendingName(int place);
