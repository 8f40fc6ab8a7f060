// SerchDrvDlg, "指定ドライブ検索中", and SerchFolderDlg, "指定フォルダ検索中": the
// progress of a search that the tick drives, one entry a step, so that "中止" gets
// its chance between two entries.

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_dialogs.h"
#include "filetools/stepped_work.h"
#include "resources/filetools_ids.h"
#include "services/progress.h"

namespace {

constexpr int kStopped = -1;

// kept: a folder with 3105 entries or more closes the statistics without a word: its count
// of -2 is taken like a stop.
template <int (*search)()>
bool Step(int* entries) {
  const int result = search();
  *entries = result - 1;
  return result != 0;
}

void End(bool /*stopped*/) {
  ScopeStepStop();
  SteppedEnd();
}

template <int (*search)()>
constexpr Progress ProgressOf(int templateId) {
  return {templateId, &Stepped.hSearchDlg, Command::WorkStep, ScopeStepReset, Step<search>, End, nullptr,
          kStopped};
}
constexpr Progress kDrive = ProgressOf<ScopeDriveStep>(IDD_SerchDrvDlg);
constexpr Progress kFolder = ProgressOf<ScopeFolderStep>(IDD_SerchFolderDlg);

}  // namespace

int ScopeSearchRun(WindowHandle owner, SteppedWork search) {
  // The tick drives one work at a time; a command from outside may ask for another.
  if (SteppedBusy()) return kStopped;
  SteppedBegin(search);
  const int entries = ProgressRun(search == kStepDriveSearch ? kDrive : kFolder, owner);
  SteppedEnd();
  return entries;
}
