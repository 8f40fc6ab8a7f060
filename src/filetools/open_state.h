// What is about to be opened, and how the character goes about it.
#pragma once

#include <cstdint>

inline constexpr int kOpnTextSize = 300;
inline constexpr int kOpnGroupFileMax = 30;

// The part of the open history that the character's walk needs: whether it walks
// and plays a sound first, the sound's file in the folder "\サウンド", and the
// walking flags of the character that was chosen last.
struct OpnHistoryRec {
  std::uint8_t animeOn;
  std::uint8_t soundOn;
  char soundName[kOpnTextSize];
  std::uint8_t balloonFlags;
};
extern OpnHistoryRec OpnHistory;

// The current choice: a file and the program that opens it. An empty progName
// stands for the associated program. Folders end with a backslash.
struct OpnSelectionRec {
  char fileName[kOpnTextSize];
  char filePath[kOpnTextSize];
  char progName[kOpnTextSize];
  char progPath[kOpnTextSize];
};
extern OpnSelectionRec OpnSelection;

// A group of files that are opened together.
struct OpnGroupRec {
  std::uint8_t fileCount;  // 0 to 30
  char fileName[kOpnGroupFileMax][kOpnTextSize];
  char filePath[kOpnGroupFileMax][kOpnTextSize];
  char progName[kOpnGroupFileMax][kOpnTextSize];
  char progPath[kOpnGroupFileMax][kOpnTextSize];
  char comment[256];
};

// The group that is being opened; null for none.
extern const OpnGroupRec* OpnPendingGroup;

// How many files the pending group has, 0 to 30; 0 without one.
int OpnPendingCount();

// The name of a file of the pending group, from 0; empty beyond its count.
const char* OpnPendingName(int place);
