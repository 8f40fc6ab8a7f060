// DspListOpnFileHisDlg: the history in full.

#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_history.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/rows.h"
#include "services/text.h"

namespace {

constexpr const char* kLabels[] = {
    "--項目 No. ", "   ファイル名: ", "   ファイルパス: ", "   プログラム名: ", "   プログラムパス: "};
constexpr int kLines = 5;  // of a row of the history
constexpr int kFirstProgramLine = 3;

bool Line(int line, char* text, int size) {
  const auto room = static_cast<std::size_t>(size);
  const OpnHistoryRec& h = OpnHistory;
  const int row = line / kLines;
  const int place = line % kLines;
  const char* const fields[] = {"", h.fileName[row], h.filePath[row], h.progName[row], h.progPath[row]};
  if (place == 0) {
    TextFormat(text, room, "%s%d--", kLabels[0], row + 1);
  } else {
    TextFormat(text, room, "%s%s", kLabels[place], OpnText(fields[place]).text);
  }
  return place < kFirstProgramLine || h.progName[row][0] != '\0';
}

void Open(WindowHandle dialog) {
  RowsShow(dialog, IDC_OPN_LINES, RowsOf(OpnHistory.fileCount * kLines, Line));
}

constexpr DialogAct kActs[] = {{EventKind::Init, Open}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void DspListOpnFileHisDlgRun(WindowHandle owner) {
  SubDialogRun(SubDialog::DspListOpnFileHisDlg, IDD_DspListOpnFileHisDlg, owner, Handle);
}
