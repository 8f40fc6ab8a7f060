// The history of opened files, OpnFileHis.lis.
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
#pragma once

// Reads the history. A file that cannot be opened gives an empty history and 0; a
// short one, or one that counts more than 200 rows, gives -1 (FileStatus -2) and
// leaves the history as it was.
int OpnHisLoad();

// Replaces the file. Returns 0, or -1 with FileStatus -1 (cannot be created) or -2
// (short write; the old file is gone by then).
int OpnHisSave();

// Empties the history: no rows, walk and sound on.
void OpnHisReset();

// Takes a row out: those behind it, a browsed one among them, move up. A row that is
// not there is passed over.
void OpnHisRemove(int row);

// Moves a row, 0 to 199, to the top.
void OpnHisToTop(int row);

// Takes all rows out, the spare one too; walk and sound stay.
void OpnHisClear();

// Carries the current character's walk, the sound and the flags of its walking
// row, into the history file after another character was chosen. Nothing happens
// for a character without a walking row, or while the file is damaged.
void OpnHisTakeWalkSettings();
