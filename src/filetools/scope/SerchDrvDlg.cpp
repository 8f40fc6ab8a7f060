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

constexpr int kStopped = -1;

// Takes the search away from the tick; what it has open is closed.
void Leave(WindowHandle dialog) {
  if (!SteppedHidden(dialog)) return;
  ScopeStepStop();
  SteppedEnd();
}

void End(WindowHandle dialog, int entries) {
  Leave(dialog);
  DialogEnd(dialog, entries);
}

void Step(WindowHandle dialog) {
  if (Stepped.hSearchDlg != dialog) return;
  int result = 0;
  if (Stepped.progressMode == kStepDriveSearch) result = ScopeDriveStep();
  if (Stepped.progressMode == kStepFolderSearch) result = ScopeFolderStep();
  // kept: a folder with 3105 entries or more closes the statistics without a word: its count
  // of -2 is taken like a stop.
  if (result != 0) End(dialog, result - 1);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    SteppedShown(event.window);
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

int ScopeSearchRun(WindowHandle owner, SteppedWork work) {
  // The tick drives one work at a time; a command from outside may ask for another.
  if (SteppedBusy()) return kStopped;
  SteppedBegin(work);
  const int entries =
      DialogRun(work == kStepDriveSearch ? IDD_SerchDrvDlg : IDD_SerchFolderDlg, owner, Handle);
  SteppedEnd();
  return entries;
}
