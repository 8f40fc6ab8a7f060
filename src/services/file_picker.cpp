#include "services/file_picker.h"

#include <cstring>

#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/services_ids.h"
#include "services/dialog_acts.h"
#include "services/extension_filter.h"
#include "services/folder_list.h"
#include "services/path.h"
#include "services/text.h"

PickerState Picker;

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

void ListFiles() {
  FilterListFiles(Picker.hFilePickDlg, kPickFilesId, Picker.PickFolder, Picker.PickFilterSel,
                  Picker.PickFilter);
}

void OpenFolders(WindowHandle dialog) {
  const Rect client = WindowClientRect(dialog);
  const int left = client.right * kListLeftParts / kPartsAcross + kGap;
  const int top = FolderListTop(dialog);
  const Rect place{left, top, client.right - kGap, top + client.bottom * kListHeightParts / kPartsDown};
  const int bandWidth = client.right * kBandRightParts / kPartsAcross - left - kGap;
  FolderListOpen(Picker.folders, dialog, place, bandWidth, Picker.PickFolder, Picker.PickStartFolder,
                 ListFiles);
}

// The fixed kinds of file, and behind them the caller's if it is none of these.
void OpenFilter(WindowHandle dialog) {
  FilterFill(dialog, kPickFilterId);
  // bounded: the row of the caller's filter is there only for a call that brings one.
  if (Picker.PickFilterSel < 0 || Picker.PickFilterSel >= kFilterRows) Picker.PickFilterSel = kFilterAll;
  if (Picker.PickFilter[0] != '\0') {
    Picker.PickFilterSel = FilterFind(Picker.PickFilter);
    if (Picker.PickFilterSel < 0) {
      Picker.PickFilterSel = kFilterCaller;
      ListAdd(dialog, kPickFilterId, Picker.PickFilter);
    }
  }
  ListSelect(dialog, kPickFilterId, Picker.PickFilterSel);
}

void Open(WindowHandle dialog) {
  Picker.hFilePickDlg = dialog;
  OpenFolders(dialog);
  OpenFilter(dialog);
  ListFiles();
  ControlSetText(dialog, kPickNameId, Picker.PickName);
}

void End(WindowHandle dialog) {
  Picker.hFilePickDlg = nullptr;
  DialogEnd(dialog, Picker.PickDone);
}

void Accept(WindowHandle dialog) {
  // kept: a name that is typed into the file picker is taken as it stands, even where a file is
  // to be loaded that is not there.
  ControlGetText(dialog, kPickNameId, Picker.PickName, sizeof Picker.PickName);
  // kept: in a path of the file picker the backslash stands twice behind the root of a drive.
  TextFormat(Picker.PickResult, sizeof Picker.PickResult, "%s\\%s", Picker.PickFolder, Picker.PickName);
  Picker.PickDone = 1;
  End(dialog);
}

void NameFromFiles(WindowHandle dialog) {
  char name[kPickNameSize];
  const int row = ListSelected(dialog, kPickFilesId);
  if (ListText(dialog, kPickFilesId, row, name, sizeof name) > 0) ControlSetText(dialog, kPickNameId, name);
}

void FilterChosen(WindowHandle dialog) {
  const int row = ListSelected(dialog, kPickFilterId);
  if (row >= 0) Picker.PickFilterSel = row;
  ListFiles();
}

void AcceptFile(WindowHandle dialog) {
  NameFromFiles(dialog);
  Accept(dialog);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, [](WindowHandle) { FolderListPaint(Picker.folders); }},
    {EventKind::Close, End},
    {kOkId, Accept},
    {kPickFilterId, EventKind::Chosen, FilterChosen},
    {kPickFilesId, EventKind::Chosen, NameFromFiles},
    {kPickFilesId, EventKind::Opened, AcceptFile},
};

bool Handle(const Event& event) {
  if (FolderListEvent(Picker.folders, event)) return true;
  if (FolderListIsCancel(event)) {
    End(event.window);
    return true;
  }
  if (event.kind == EventKind::Destroy) Picker.hFilePickDlg = nullptr;
  return DialogActRun(event, kActs);
}

void ForgetProposal() {
  Picker.PickStartFolder[0] = '\0';
  Picker.PickName[0] = '\0';
}

// The filter's extension, for a name that has none: what follows the star.
void AddExtension() {
  if (Picker.PickFilter[0] == '\0') return;
  const char* extension = Picker.PickFilter + 1;
  if (extension[0] != '.' || std::strcmp(extension, ".*") == 0 || std::strchr(Picker.PickName, '.')) return;
  TextAppend(Picker.PickResult, sizeof Picker.PickResult, extension);
}

int Pick(std::int32_t mode, int templateId, WindowHandle owner, const char* filter, char* path) {
  if (Picker.PickActive != 0) return 0;  // one at a time: the state is one
  Picker.PickActive = 1;
  Picker.PickDone = 0;
  Picker.PickMode = mode;
  TextCopy(Picker.PickFilter, sizeof Picker.PickFilter, filter);
  ForgetProposal();
  PathSplit(path);
  TextCopy(Picker.PickStartFolder, sizeof Picker.PickStartFolder, PathParts.PathFolder);
  TextCopy(Picker.PickName, sizeof Picker.PickName, PathParts.PathName);

  const std::int32_t filterSel = Picker.PickFilterSel;
  DialogRun(templateId, owner, Handle);
  Picker.PickFilterSel = filterSel;

  if (Picker.PickDone != 0) {
    if (Picker.PickMode == kModeSave) AddExtension();
    TextCopy(path, kPickPathSize, Picker.PickResult);
  }
  ForgetProposal();
  Picker.PickActive = 0;
  return Picker.PickDone;
}

}  // namespace

int PickFileForLoad(WindowHandle owner, const char* filter, char* path) {
  return Pick(kModeLoad, IDD_FileSelectForLoadDlg, owner, filter, path);
}

int PickFileForSave(WindowHandle owner, const char* filter, char* path) {
  return Pick(kModeSave, IDD_FileSelectForSaveDlg, owner, filter, path);
}
