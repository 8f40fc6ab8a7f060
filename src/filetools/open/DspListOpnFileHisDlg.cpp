// DspListOpnFileHisDlg: the history in full.

#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_history.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

constexpr int kLineSize = kOpnTextUsed + 40;

void Open(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_OPN_LINES);
  const OpnHistoryRec& h = OpnHistory;
  char line[kLineSize];
  const auto add = [&] { ListAdd(dialog, IDC_OPN_LINES, line); };
  for (int row = 0; row < h.fileCount; ++row) {
    TextFormat(line, sizeof line, "--項目 No. %d--", row + 1);
    add();
    TextFormat(line, sizeof line, "   ファイル名: %s", OpnText(h.fileName[row]).text);
    add();
    TextFormat(line, sizeof line, "   ファイルパス: %s", OpnText(h.filePath[row]).text);
    add();
    if (h.progName[row][0] == '\0') continue;
    TextFormat(line, sizeof line, "   プログラム名: %s", OpnText(h.progName[row]).text);
    add();
    TextFormat(line, sizeof line, "   プログラムパス: %s", OpnText(h.progPath[row]).text);
    add();
  }
}

bool Handle(const Event& event) {
  if (event.kind != EventKind::Init) return false;
  Open(event.window);
  return true;
}

}  // namespace

void DspListOpnFileHisDlgRun(WindowHandle owner) {
  SubDialogRun(SubDialog::DspListOpnFileHisDlg, IDD_DspListOpnFileHisDlg, owner, Handle);
}
