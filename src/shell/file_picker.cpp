#include "shell/file_picker.h"

#include <cstring>

#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "shell/extension_filter.h"
#include "shell/folder_list.h"
#include "shell/path.h"
#include "shell/shell.h"
#include "shell/text.h"

char PickStartFolder[kPickNameSize];
char PickName[kPickNameSize];
char PickResult[kPickPathSize];
char PickFilter[kPickFilterSize];
std::int32_t PickFilterSel;
std::int32_t PickDone;
std::int32_t PickActive;
std::int32_t PickMode;

namespace {

constexpr int kOkId = 1;
enum : std::int32_t { kModeLoad, kModeSave };

// The dialog is laid out in parts of 380 by 190 of its client area.
constexpr int kPartsAcross = 380;
constexpr int kPartsDown = 190;
constexpr int kListLeftParts = 200;
constexpr int kBandRightParts = 366;
constexpr int kListHeightParts = 120;
constexpr int kGap = 2;

FolderList folders;

void ListFiles() {
  FilterListFiles(hFilePickDlg, kPickFilesId, PickFolder, PickFilterSel, PickFilter);
}

void OpenFolders(WindowHandle dialog) {
  const Rect client = WindowClientRect(dialog);
  const int left = client.right * kListLeftParts / kPartsAcross + kGap;
  const int top = FolderListTop(dialog);
  const Rect place{left, top, client.right - kGap, top + client.bottom * kListHeightParts / kPartsDown};
  const int bandWidth = client.right * kBandRightParts / kPartsAcross - left - kGap;
  FolderListOpen(folders, dialog, place, bandWidth, PickFolder, PickStartFolder, ListFiles);
}

// The fixed kinds of file, and behind them the caller's if it is none of these.
void OpenFilter(WindowHandle dialog) {
  FilterFill(dialog, kPickFilterId);
  // bounded: the caller's row is there only for a call that brings a filter.
  if (PickFilterSel < 0 || PickFilterSel >= kFilterRows) PickFilterSel = kFilterAll;
  if (PickFilter[0] != '\0') {
    PickFilterSel = FilterFind(PickFilter);
    if (PickFilterSel < 0) {
      PickFilterSel = kFilterCaller;
      ListAdd(dialog, kPickFilterId, PickFilter);
    }
  }
  ListSelect(dialog, kPickFilterId, PickFilterSel);
}

void Open(WindowHandle dialog) {
  hFilePickDlg = dialog;
  OpenFolders(dialog);
  OpenFilter(dialog);
  ListFiles();
  ControlSetText(dialog, kPickNameId, PickName);
}

void End(WindowHandle dialog) {
  hFilePickDlg = nullptr;
  DialogEnd(dialog, PickDone);
}

void Accept(WindowHandle dialog) {
  ControlGetText(dialog, kPickNameId, PickName, sizeof PickName);
  // kept: behind the root of a drive the backslash stands twice.
  TextFormat(PickResult, sizeof PickResult, "%s\\%s", PickFolder, PickName);
  PickDone = 1;
  End(dialog);
}

void NameFromFiles(WindowHandle dialog) {
  char name[kPickNameSize];
  const int row = ListSelected(dialog, kPickFilesId);
  if (ListText(dialog, kPickFilesId, row, name, sizeof name) > 0) ControlSetText(dialog, kPickNameId, name);
}

bool HandleCommand(const Event& event) {
  if (FolderListEvent(folders, event)) return true;
  if (FolderListIsCancel(event)) {
    End(event.window);
  } else if (event.command == kOkId && event.notice == Notice::Click) {
    Accept(event.window);
  } else if (event.command == kPickFilterId && event.notice == Notice::SelectChange) {
    const int row = ListSelected(event.window, kPickFilterId);
    if (row >= 0) PickFilterSel = row;
    ListFiles();
  } else if (event.command == kPickFilesId && event.notice == Notice::SelectChange) {
    NameFromFiles(event.window);
  } else if (event.command == kPickFilesId && event.notice == Notice::DoubleClick) {
    NameFromFiles(event.window);
    Accept(event.window);
  } else {
    return false;
  }
  return true;
}

bool Handle(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      Open(event.window);
      return true;
    case EventKind::Command:
      return HandleCommand(event);
    case EventKind::Paint:
      FolderListPaint(folders);
      return true;
    case EventKind::Close:
      End(event.window);
      return true;
    case EventKind::Destroy:
      hFilePickDlg = nullptr;
      return false;
    default:
      return false;
  }
}

void ForgetProposal() {
  PickStartFolder[0] = '\0';
  PickName[0] = '\0';
}

// The filter's extension, for a name that has none: what follows the star.
void AddExtension() {
  if (PickFilter[0] == '\0') return;
  const char* extension = PickFilter + 1;
  if (extension[0] != '.' || std::strcmp(extension, ".*") == 0 || std::strchr(PickName, '.')) return;
  TextAppend(PickResult, sizeof PickResult, extension);
}

int Pick(std::int32_t mode, int templateId, WindowHandle owner, const char* filter, char* path) {
  if (PickActive != 0) return 0;  // one at a time: the state is one
  PickActive = 1;
  PickDone = 0;
  PickMode = mode;
  TextCopy(PickFilter, sizeof PickFilter, filter);
  ForgetProposal();
  PathSplit(path);
  TextCopy(PickStartFolder, sizeof PickStartFolder, PathFolder);
  TextCopy(PickName, sizeof PickName, PathName);

  const std::int32_t filterSel = PickFilterSel;
  DialogRun(templateId, owner, Handle);
  PickFilterSel = filterSel;

  if (PickDone != 0) {
    if (PickMode == kModeSave) AddExtension();
    TextCopy(path, kPickPathSize, PickResult);
  }
  ForgetProposal();
  PickActive = 0;
  return PickDone;
}

}  // namespace

int PickFileForLoad(WindowHandle owner, const char* filter, char* path) {
  return Pick(kModeLoad, IDD_FileSelectForLoadDlg, owner, filter, path);
}

int PickFileForSave(WindowHandle owner, const char* filter, char* path) {
  return Pick(kModeSave, IDD_FileSelectForSaveDlg, owner, filter, path);
}
