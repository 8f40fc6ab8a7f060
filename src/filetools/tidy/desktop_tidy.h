// Desktop tidy: what lies on the user's desktop moves into one folder there, item
// by item, as the user answers.
#pragma once

#include <cstdint>

#include "platform/types.h"

inline constexpr int kTidyNameSize = 256;
inline constexpr int kTidyPathSize = 600;

struct TidyState {
  char tidyFolderName[kTidyNameSize] = "整理用フォルダー";  // lasts as long as the program runs
  char desktopPath[kTidyPathSize] = {};
  char tidyBasePath[kTidyPathSize] = {};    // the tidy folder
  char tidyTargetPath[kTidyPathSize] = {};  // the folder that takes the next item
  int tidySplitByExt = 0;                   // a folder an extension; 0, and nothing sets it
  std::uint32_t tidyFoundAttributes = 0;    // of the item just found
};
extern TidyState Tidy;

// Makes Tidy what it is at the program's start.
void TidyReset();

// Tidies the desktop; the boxes belong to `owner`. 0: through with all items, or there
// is no desktop; -1: the tidy folder cannot be made; -2: stopped by the user after a
// failed move. But for those without a desktop and with -1, the tidy folder is the
// current folder then, if it lets itself be gone to.
int TidyRun(WindowHandle owner);

// The n-th item of the desktop, from 0, that does not begin with a full stop: its
// name into `name` (260 bytes) and its attributes into tidyFoundAttributes. False
// if there is none.
bool TidyNthItem(int n, char (&name)[260]);

// With tidySplitByExt only. What kind of item it is: 1 a folder, 0 a file without
// an extension, else the extension's length plus 1; `extension` points at it.
int TidyClassify(const char* name, std::uint32_t attributes, const char** extension);

// The same: fills tidyTargetPath for a kind of item.
void TidyTargetFolder(int kind, const char* extension);
