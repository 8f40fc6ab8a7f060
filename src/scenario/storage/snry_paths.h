// Where the files of a scenario lie. Paths are joined as they are and cut at `size` - 1.
#pragma once

#include "scenario/storage/scenario.h"

// Room for the main folder, or a scenario folder, and a name in it.
inline constexpr int kSnryLongPath = 2 * kSnryPathSize + 2;

inline constexpr char kSnryWorldFolder[] = "\\ワールド";
inline constexpr char kSnryListName[] = "\\SNRYLIST.sli";
inline constexpr char kSnryMainName[] = "シナリオメイン.cff";
inline constexpr char kSnryBackFolder[] = "\\背景";
inline constexpr char kSnryCharaFolder[] = "\\キャラクタ";
inline constexpr char kSnrySoundFolder[] = "\\サウンド";

// The folder "\ワールド" of the program, and the list in it.
int SnryWorldPath(char* buffer, int size);
int SnryListPath(char* buffer, int size);

// The main file; `part` of the main folder, which begins with a backslash.
int SnryMainPath(char* buffer, int size);
int SnryMainPart(char* buffer, int size, const char* part);

// The file of a scene of a scenario folder.
int SnryScenePath(char* buffer, int size, int folder, int scene);
