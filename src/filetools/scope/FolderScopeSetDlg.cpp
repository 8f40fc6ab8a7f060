// FolderScopeSetDlg, "フォルダースコープ": walks the folders, lists a folder's files by
// kind, and opens the statistics.

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_commands.h"
#include "filetools/scope/scope_dialogs.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/extension_filter.h"
#include "services/feature_dialog.h"
#include "services/folder_list.h"
#include "services/program.h"

namespace {

constexpr int kMargin = 12;
constexpr int kListBottom = 160;  // dialog units, where the template's file list ends too

void ScopeListFiles() {
  FilterListFiles(Dialogs.hToolDlg, IDC_SCOPE_FILES, Scope.scopeFolder,
                  ListSelected(Dialogs.hToolDlg, IDC_SCOPE_FILTER), nullptr);
}

void FolderChanged() {
  ScopeSplitPath();
  ScopeListFiles();
}

void Open(WindowHandle dialog) {
  FilterFill(dialog, IDC_SCOPE_FILTER);
  ListSelect(dialog, IDC_SCOPE_FILTER, kFilterAll);
  const Rect place{kMargin, FolderListTop(dialog), WindowClientRect(dialog).right / 2 - kMargin / 2,
                   DialogUnits(dialog, {0, 0, 0, kListBottom}).bottom};
  FolderListOpenWide(Scope.folders, dialog, place, Scope.scopeFolder, "", FolderChanged);
  FolderChanged();
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, [] { FolderListPaint(Scope.folders); }},
    {IDC_SCOPE_FILTER, EventKind::Chosen, ScopeListFiles},
    {IDC_SCOPE_PIES, FolderStaticsDlgRun},
    {IDC_SCOPE_BARS, FolderStaticsDlg2Run},
};

bool Handle(const Event& event) {
  if (FolderListEvent(Scope.folders, event)) return true;
  if (!FolderListIsCancel(event)) return DialogActRun(event, kActs);
  ToolDialogEnd(event.window, 2);
  return true;
}

int Run() {
  return ToolDialogRun(ToolDialog::FolderScopeSetDlg, IDD_FolderScopeSetDlg, Program.hMainWnd, Handle);
}

}  // namespace

void FolderScopeCommand() {
  FeatureDialogRun(Feature::FolderScope, Run);
}
