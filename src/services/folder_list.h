// The list of folders and drives: part of the file picker, of the dialogs in
// which a folder is chosen, and of the folder scope.
//
// It is made of a list box with the folder's folders, "[..]" and the drives, a
// band above it with "Path: " and the folder, and the button "↑" at the band's
// right. It moves the program's current folder.
//
// The list box has the number 2, and so has Escape. They are told apart by the event:
// Escape is Pressed, which a list box never is. A dialog with a folder list gives its
// cancel button another number, kFolderCancelId.
#pragma once

#include "platform/event.h"
#include "platform/types.h"

inline constexpr int kFolderListId = 2;
inline constexpr int kFolderUpId = 2378;
inline constexpr int kFolderCancelId = 3;
inline constexpr int kFolderSize = 256;

struct FolderList {
  WindowHandle dialog = nullptr;
  char* folder = nullptr;       // its owner's buffer of kFolderSize bytes: the folder on show
  Rect band{};                  // where the path is drawn
  void (*changed)() = nullptr;  // told after the user has gone to another folder; may be null
  bool hasRows = false;         // whether the list and its button could be made
  bool hasUp = false;
};

// How far the list stands below the top of the dialog: 4 times the height of the
// dialog's font. The band takes 24 of those pixels.
int FolderListTop(WindowHandle dialog);

// Makes the list at `place` (client pixels) with a band of `bandWidth` above it,
// goes to `start` if that is not empty, and shows the folder that is current
// then. For a dialog's Init; `changed` is not told.
void FolderListOpen(FolderList& list, WindowHandle dialog, const Rect& place, int bandWidth, char* folder,
                    const char* start, void (*changed)());

// The same, over the whole width of `place`: band, gap and button.
void FolderListOpenWide(FolderList& list, WindowHandle dialog, const Rect& place, char* folder,
                        const char* start, void (*changed)());

// Handles what the user does to the list and the button. True if it was theirs.
bool FolderListEvent(FolderList& list, const Event& event);

// Draws the path: for the dialog's Paint.
void FolderListPaint(const FolderList& list);

// True for Escape and for the cancel button.
bool FolderListIsCancel(const Event& event);
