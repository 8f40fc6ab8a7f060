// A list in a dialog that the user edits: rows are added, changed, deleted, cleared, each
// with its question and its refusal.
#pragma once

#include "platform/types.h"
#include "services/boxes.h"
#include "services/rows.h"

// One thing to do to a list, in the order in which it is gone through.
struct ListDeed {
  bool needsRow = false;    // it is done to the chosen row ...
  BoxWords noRow{};         // ... and this is told when there is none
  bool keepsRow = false;    // ... which stays chosen behind it
  bool (*may)() = nullptr;  // whether it can be done at all, for example there is room
  BoxWords mayNot{};        // what is told when it cannot
  // For a question that names the row: its text, terminated at `size`.
  void (*questionOf)(int row, char* text, int size) = nullptr;
  BoxWords question{};                                  // OK and Cancel; without one nobody is asked
  bool (*act)(WindowHandle dialog, int row) = nullptr;  // false: it could not be done
  BoxWords failed{};                                    // what is told then
};

// A list: its rows, asked for anew after each deed, and the row to choose then.
struct ListEditor {
  int list = 0;
  int (*count)() = nullptr;
  void (*text)(int row, char* text, int size) = nullptr;
};

// Fills the list; `chosen` -1 for none.
void ListEditorShow(WindowHandle dialog, const ListEditor& editor, int chosen = -1);

// The chosen row; -1 for none. A row that the table no longer has is none.
int ListEditorChosen(WindowHandle dialog, const ListEditor& editor);

// Does it. True when it is done; the list is shown anew then, with no row chosen but for a
// deed that keeps it. The row is asked for again behind the question, as the program goes on
// while a box is up.
bool ListDeedRun(WindowHandle dialog, const ListEditor& editor, const ListDeed& deed);
