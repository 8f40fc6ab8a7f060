// The history of opened files, OpnFileHis.lis.
#pragma once

#include <cstdint>

#include "filetools/open/open_text.h"
#include "services/record.h"

inline constexpr int kOpnFileMax = 200;
// A new file stands behind the last row before the limit is looked at.
inline constexpr int kOpnFileRows = kOpnFileMax + 1;

// The known files with the programs chosen for them, and how they are opened. An
// empty progName is the associated program.
//
// offset  size       field
//      0  1          fileCount, rows in use, at most 200
//      1  200        openCount
//    201  200 x 600  fileName, filePath
// 120201  200 x 600  progName, progPath
// 240201  1          animeOn
// 240202  1          soundOn
// 240203  300        reservedText
// 240503  300        soundName
// 240803  1          balloonFlags
struct OpnHistoryRec {
  std::uint8_t fileCount;
  std::uint8_t openCount[kOpnFileMax];  // kept: the history stores counts of openings that nothing raises
  char fileName[kOpnFileRows][kOpnTextSize];
  char filePath[kOpnFileRows][kOpnTextSize];
  char progName[kOpnFileRows][kOpnTextSize];
  char progPath[kOpnFileRows][kOpnTextSize];
  std::uint8_t animeOn;             // the character walks first
  std::uint8_t soundOn;             // with soundName, a file of the folder "\サウンド"
  char reservedText[kOpnTextSize];  // kept: the history stores a text that nothing uses
  char soundName[kOpnTextSize];
  std::uint8_t balloonFlags;  // walking flags of the character that was chosen last
  int workCount;              // not saved: rows with a browsed one behind the last, up to 200
};
extern OpnHistoryRec OpnHistory;

template <class Io>
constexpr void Fields(Io& io, OpnHistoryRec& h) {
  io.U8(h.fileCount);
  io.U8(h.openCount);
  io.At(201);
  for (int row = 0; row < kOpnFileMax; ++row) {
    io.Bytes(h.fileName[row]);
    io.Bytes(h.filePath[row]);
  }
  io.At(120201);
  for (int row = 0; row < kOpnFileMax; ++row) {
    io.Bytes(h.progName[row]);
    io.Bytes(h.progPath[row]);
  }
  io.At(240201);
  io.U8(h.animeOn);
  io.U8(h.soundOn);
  io.Bytes(h.reservedText);
  io.Bytes(h.soundName);
  io.U8(h.balloonFlags);
}
static_assert(RecordSize<OpnHistoryRec>() == 240804);

// Reads the history. A file that cannot be opened gives an empty history and 0; a
// short one, or one that counts more than 200 rows, gives -1 (FileStatus -2) and
// leaves the history as it was.
int OpnHisLoad();

// Replaces the file. Returns 0, or -1 with FileStatus -1 (cannot be created) or -2
// (short write; the old file is gone by then).
int OpnHisSave();

// Empties the history: no rows, walk and sound on.
void OpnHisReset();

// Writes a file without a program behind the last row. False when 200 stand before it:
// it does not count then.
bool OpnHisBrowse(const char* name, const char* folder);

// Counts a browsed file in, or forgets it.
void OpnHisBrowsedTake();
void OpnHisBrowsedDrop();

// The row of a file, the browsed one too; -1 if it is not known.
int OpnHisFind(const char* name, const char* folder);

// Gives a row its program. True if it had another one.
bool OpnHisProgramSet(int row, const char* name, const char* folder);

// Takes a row out: those behind it, a browsed one among them, move up. A row that is
// not there is passed over.
void OpnHisRemove(int row);

// Moves a row, 0 to 199, to the top.
void OpnHisToTop(int row);

// Takes all rows out, the spare one too; walk and sound stay.
void OpnHisClear();

// How the files' walks begin.
void OpnHisWalkSet(bool animeOn, bool soundOn, const char (&soundName)[kOpnTextSize]);

// Who walks: the flags of its row, and its own sound, up to 255 bytes, if it has one.
void OpnHisWalkerSet(std::uint8_t balloonFlags, const char* sound);
