// SerchOpnFileGrpSelDlg, "検索したグループの選択".

#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_search.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/rows.h"

namespace {

constexpr int kChoose = 1;

void FoundRow(int row, char* text, int size) {
  OpnGroupRowText(OpnSearchGroup(row), text, size);
}

void Open(WindowHandle dialog) {
  RowsShow(dialog, IDC_OPN_GROUP, RowsOf(OpnSearchResult.count, FoundRow), 0);
}

// The dialog's context is the chosen group.
void Choose(const Event& event) {
  const int row = ListSelected(event.window, IDC_OPN_GROUP);
  if (row < 0 || row >= OpnSearchResult.count) return;
  *static_cast<int*>(event.context) = OpnSearchGroup(row);
  SubDialogEnd(event.window, kChoose);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Open}, {kChoose, Choose}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int SerchOpnFileGrpSelDlgRun(WindowHandle owner) {
  int chosen = -1;
  SubDialogRun(SubDialog::SerchOpnFileGrpSelDlg, IDD_SerchOpnFileGrpSelDlg, owner, Handle, &chosen);
  return chosen;
}
