// DelListOpnFileHisDlg: takes files out of the history.

#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_text.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

bool changed;

// The chosen row of the history, -1 for none.
int Row(WindowHandle dialog) {
  const int row = ListSelected(dialog, IDC_OPN_FILE);
  return row < OpnHistory.fileCount ? row : -1;
}

void DetailsShow(WindowHandle dialog) {
  const int row = Row(dialog);
  const OpnHistoryRec& h = OpnHistory;
  ControlSetText(dialog, IDC_OPN_NAME, OpnText(row < 0 ? "" : h.fileName[row]).text);
  ControlSetText(dialog, IDC_OPN_FOLDER, OpnText(row < 0 ? "" : h.filePath[row]).text);
  const char* program = row < 0 ? "" : h.progName[row][0] != '\0' ? h.progName[row] : "関連プログラム";
  ControlSetText(dialog, IDC_OPN_PROGRAM_NAME, OpnText(program).text);
}

void Show(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_OPN_FILE);
  ListClear(dialog, IDC_OPN_FILE);
  for (int row = 0; row < OpnHistory.fileCount; ++row) {
    OpnRowAdd(dialog, IDC_OPN_FILE, OpnHistory.fileName[row], OpnHistory.filePath[row]);
  }
  DetailsShow(dialog);
}

void Remove(WindowHandle dialog) {
  const int row = Row(dialog);
  if (row < 0) return;
  char text[kOpnTextUsed + 60];
  TextFormat(text, sizeof text, "%sのオープンを履歴から削除します", OpnText(OpnHistory.fileName[row]).text);
  if (!BoxAsk(dialog, text, "履歴削除の確認")) return;
  OpnHisRemove(row);
  changed = true;
  Show(dialog);
}

void RemoveAll(WindowHandle dialog) {
  if (!BoxAsk(dialog, "ファイルとプログラム全ての履歴登録を削除します", "全履歴削除の確認")) return;
  OpnHisClear();
  OpnProgListForget();
  changed = true;
  Show(dialog);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    Show(event.window);
    return true;
  }
  if (IsChosen(event, IDC_OPN_FILE)) {
    DetailsShow(event.window);
    return true;
  }
  if (event.kind != EventKind::Pressed) return false;
  switch (event.id) {
    case IDC_OPN_REMOVE:
      Remove(event.window);
      return true;
    case IDC_OPN_REMOVE_ALL:
      RemoveAll(event.window);
      return true;
    default:
      return false;
  }
}

}  // namespace

bool DelListOpnFileHisDlgRun(WindowHandle owner) {
  changed = false;
  ToolDialogRun(ToolDialog::DelListOpnFileHisDlg, IDD_DelListOpnFileHisDlg, owner, Handle);
  return changed;
}
