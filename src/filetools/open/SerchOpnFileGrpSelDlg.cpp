// SerchOpnFileGrpSelDlg, "検索したグループの選択".

#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_search.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"

namespace {

constexpr int kChoose = 1;

int chosen;

void Open(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_OPN_GROUP);
  for (int i = 0; i < OpnSearchResult.count; ++i) {
    char text[kOpnGroupRowSize];
    OpnGroupRowText(OpnSearchGroup(i), text, sizeof text);
    ListAdd(dialog, IDC_OPN_GROUP, text);
  }
  ListSelect(dialog, IDC_OPN_GROUP, 0);
}

void Choose(WindowHandle dialog) {
  const int row = ListSelected(dialog, IDC_OPN_GROUP);
  if (row < 0 || row >= OpnSearchResult.count) return;
  chosen = OpnSearchGroup(row);
  SubDialogEnd(dialog, kChoose);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    Open(event.window);
    return true;
  }
  if (!IsPressed(event, kChoose)) return false;
  Choose(event.window);
  return true;
}

}  // namespace

int SerchOpnFileGrpSelDlgRun(WindowHandle owner) {
  chosen = -1;
  SubDialogRun(SubDialog::SerchOpnFileGrpSelDlg, IDD_SerchOpnFileGrpSelDlg, owner, Handle);
  return chosen;
}
