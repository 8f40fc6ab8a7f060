// SerchDrvDlg, "指定ドライブ検索中", and SerchFolderDlg, "指定フォルダ検索中": the
// progress of a search that the tick drives, one entry a step, so that "中止" gets
// its chance between two entries.

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_dialogs.h"
#include "filetools/stepped_work.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"

namespace {

constexpr int kDriveSearch = 1;
constexpr int kFolderSearch = 2;
constexpr int kStopped = -1;

// Takes the search away from the tick; what it has open is closed.
void Leave(WindowHandle dialog) {
  if (Stepped.hSearchDlg != dialog) return;
  ScopeStepStop();
  Stepped.progressMode = 0;
  Stepped.hSearchDlg = nullptr;
}

void End(WindowHandle dialog, int entries) {
  Leave(dialog);
  DialogEnd(dialog, entries);
}

void Step(WindowHandle dialog) {
  if (Stepped.hSearchDlg != dialog) return;
  int result = 0;
  if (Stepped.progressMode == kDriveSearch) result = ScopeDriveStep();
  if (Stepped.progressMode == kFolderSearch) result = ScopeFolderStep();
  // kept: too many entries give -2 here, which is taken like a stop.
  if (result != 0) End(dialog, result - 1);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    Stepped.hSearchDlg = event.window;
    ScopeStepReset();
  } else if (CommandIs(event, Command::WorkStep)) {
    Step(event.window);
  } else if (EndIsAsked(event)) {
    End(event.window, kStopped);
  } else {
    // The program may end while a search is running.
    if (event.kind == EventKind::Destroy) Leave(event.window);
    return false;
  }
  return true;
}

}  // namespace

int ScopeSearchRun(WindowHandle owner, int mode) {
  // The tick drives one work at a time; a command from outside may ask for another.
  if (Stepped.hSearchDlg) return kStopped;
  Stepped.progressMode = mode;
  const int entries = DialogRun(mode == kDriveSearch ? IDD_SerchDrvDlg : IDD_SerchFolderDlg, owner, Handle);
  Stepped.progressMode = 0;
  return entries;
}
