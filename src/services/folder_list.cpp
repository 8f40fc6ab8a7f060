#include "services/folder_list.h"

#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/file.h"
#include "platform/window.h"
#include "services/painting.h"
#include "services/path.h"
#include "services/screen_figures.h"
#include "services/text.h"

namespace {

constexpr int kBandAbove = 24;  // from the list's top up to the band's
constexpr int kBandHeight = 20;
constexpr int kBandGap = 2;
constexpr int kUpHeight = 22;
constexpr int kTextInset = 2;
constexpr int kAnyFolderSize = 1024;

int UpWidth() {
  return 2 * Screen.CharWidth;
}

void UpdateUp(const FolderList& list) {
  if (!list.hasUp) return;
  const bool up = PathCanGoUp(list.folder);
  // A button that goes grey under the keyboard would leave it nowhere.
  const bool focus = WindowHasFocus(Control(list.dialog, kFolderUpId));
  if (!up && focus && list.hasRows) ControlSetFocus(list.dialog, kFolderListId);
  ControlEnable(list.dialog, kFolderUpId, up);
}

// False for a current folder that is too long for its owner's buffer.
bool ReadCurrent(const FolderList& list) {
  char current[kAnyFolderSize];
  const int length = FolderGetCurrent(current, sizeof current);
  if (length <= 0 || length >= kFolderSize) return false;
  TextCopy(list.folder, kFolderSize, current);
  return true;
}

// What is shown is where we are: in `folder`, or where we were if that cannot be gone
// to or is too long. One that was too long before gives way to what it lies in.
void GoTo(const FolderList& list, const char* folder) {
  char before[kAnyFolderSize] = "";
  FolderGetCurrent(before, sizeof before);
  FolderSetCurrent(folder);
  if (ReadCurrent(list)) return;
  FolderSetCurrent(before);
  // A path has no more levels than half its bytes; the root lies in itself.
  for (int up = 0; up < kAnyFolderSize / 2 && !ReadCurrent(list); ++up) FolderSetCurrent("..");
}

void ShowRows(const FolderList& list) {
  if (!list.hasRows) return;
  ListClear(list.dialog, kFolderListId);
  ListFolders(list.dialog, kFolderListId);
}

// To list.folder, as far as that can be done.
void Go(const FolderList& list) {
  GoTo(list, list.folder);
  ShowRows(list);
  FolderListPaint(list);
  if (list.changed) list.changed();
  UpdateUp(list);
}

void GoUp(const FolderList& list) {
  PathGoUp(list.folder);
  Go(list);
}

void OpenRow(const FolderList& list) {
  char row[kFolderSize + 8];
  const int length =
      ListText(list.dialog, kFolderListId, ListSelected(list.dialog, kFolderListId), row, sizeof row);
  if (length < 3) return;
  // kept: the second character alone tells the rows of a folder list apart, so that a folder
  // whose name begins with a full stop leads up, and one with a hyphen to a drive.
  if (row[1] == '.') {
    PathGoUp(list.folder);
  } else if (row[1] == '-') {
    TextFormat(list.folder, kFolderSize, "%c:\\", row[2]);
  } else {
    row[length - 1] = '\0';
    PathGoDown(list.folder, kFolderSize, row + 1);
  }
  Go(list);
}

}  // namespace

int FolderListTop(WindowHandle dialog) {
  return 4 * DialogUnits(dialog, {0, 0, 4, 8}).bottom;
}

void FolderListOpen(FolderList& list, WindowHandle dialog, const Rect& place, int bandWidth, char* folder,
                    const char* start, void (*changed)()) {
  const int bandTop = place.top - kBandAbove;
  const Rect band{place.left, bandTop, place.left + bandWidth, bandTop + kBandHeight};
  const int upLeft = band.right + kBandGap;
  list = {dialog, folder, band, changed, false, false};
  list.hasRows = ControlCreate(dialog, ControlKind::ListBox, kFolderListId, place, "") != nullptr;
  list.hasUp = ControlCreate(dialog, ControlKind::Button, kFolderUpId,
                             {upLeft, bandTop, upLeft + UpWidth(), bandTop + kUpHeight}, "↑") != nullptr;
  folder[0] = '\0';
  GoTo(list, start);
  ShowRows(list);
  UpdateUp(list);
}

void FolderListOpenWide(FolderList& list, WindowHandle dialog, const Rect& place, char* folder,
                        const char* start, void (*changed)()) {
  FolderListOpen(list, dialog, place, RectWidth(place) - UpWidth() - kBandGap, folder, start, changed);
}

bool FolderListEvent(FolderList& list, const Event& event) {
  if (IsPressed(event, kFolderUpId)) {
    GoUp(list);
  } else if (IsOpened(event, kFolderListId)) {
    OpenRow(list);
  } else {
    return IsChosen(event, kFolderListId);
  }
  return true;
}

void FolderListPaint(const FolderList& list) {
  Canvas* canvas = CanvasGet(list.dialog);
  if (!canvas) return;
  char text[kFolderSize + 8];
  TextFormat(text, sizeof text, "Path: %s", list.folder);
  CanvasClip(canvas, list.band);
  FillArea(canvas, BrushFace(), list.band);
  CanvasBackTransparent(canvas, true);
  CanvasText(canvas, list.band.left, list.band.top + kTextInset, text);
  CanvasClipNone(canvas);
  CanvasRelease(canvas);
}

bool FolderListIsCancel(const Event& event) {
  return IsPressed(event, kFolderListId) || IsPressed(event, kFolderCancelId);
}
