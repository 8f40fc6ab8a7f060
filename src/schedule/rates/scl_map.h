// The map that a schedule is tied to: the edit files of the application that SclMapFile
// names give it its grid, its positions and its statuses.
#pragma once

#include "schedule/model/schedule.h"
#include "services/dib.h"
#include "world/sef_file.h"

struct SclMapState {
  bool read = false;  // the tables are those of the schedule's application, as far as it has any
  // While the map is on show: its picture, the pictures of the statuses and their masks,
  // and the cell that was clicked, from 1; 0 for none.
  ImageHandle picture = nullptr;
  ImageHandle marks[kSefTypes] = {};
  ImageHandle masks[kSefTypes] = {};
  int column = 0;
  int row = 0;
};
extern SclMapState SclMap;

// Reads the application's files over the tables, if SclMapFile names one; else there are
// no tables. What was wrong with them is told to nobody: the tables hold what could be
// read, and nothing of files that are not there.
void SclMapRead();

// The positions: how many, and what a row of their list says; terminated at `size`.
int SclMapPositionCount();
void SclMapPositionText(int position, char* text, int size);
// The position with this column and row, from 0; -1 for none.
int SclMapPositionFind(int column, int row);

// The statuses that have a code, as rows from 0.
int SclStatusCount();
int SclStatusCodeOf(int row);  // 0 for a row that there is not
int SclStatusRowOf(int code);  // -1 for none
void SclStatusText(int row, char* text, int size);

// --- What is set. To the selected rows: a range, or the current row alone.

void SclMapPlaceRows(int column, int row);
void SclStatusRows(int code);
// Clears the status of the current row.
void SclStatusClear();

// --- On show

// Loads the pictures; frees them, and forgets the click.
void SclMapPicturesLoad();
void SclMapPicturesFree();

// The cell at a pixel of the map is clicked; none beyond the grid.
void SclMapClick(int x, int y);

// The marks that are to be drawn: for a cell, the place of its status among the types of
// the file. `mark` is called for one line after the other.
struct SclMapMark {
  int column;  // from 0
  int row;
  int type;
};
void SclMapMarks(void (*mark)(const SclMapMark& mark, void* context), void* context);
