// Which rows of the lists of files and programs are chosen in the open dialogs.
//
// A browsed file or program stands behind the last row until it is started; another
// one that is browsed takes its place.
#pragma once

struct OpnWorkRec {
  int fileSel;  // chosen row of the history, -1 for none
  int progSel;  // chosen row of the program lists: 0 the associated program, n row n - 1 of OpnProgList
};
extern OpnWorkRec OpnWork;

// Forgets what was browsed and chooses the first file.
void OpnWorkReset();

// Chooses a file with its program.
void OpnWorkChoose(int fileRow);

// Chooses both as the lists show them.
void OpnWorkTake(int fileRow, int progRow);

// The row of a file's program in the program lists: 0 when it has none, or one that
// the list does not hold.
int OpnProgSelOf(int fileRow);

// Take a browsed path over and choose its row: the one that it has already, else the
// last. False when the list is full: the path is dropped then, and the last row
// chosen all the same. A path without a name changes nothing.
bool OpnBrowseFile(const char* path);
bool OpnBrowseProgram(const char* path);

// Fills OpnSelection from a row of the history and one of the program lists; a
// program row that is not there counts as 0. False without a file row of 0 to 199.
bool OpnSelectionFill(int fileSel, int progSel);

// After a start of what OpnWork has chosen: a browsed file goes to the top of the
// history, a known one stays where it is and takes its new program. True when the
// history has changed and is to be saved.
bool OpnHisUpdate();
