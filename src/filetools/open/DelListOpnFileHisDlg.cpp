// DelListOpnFileHisDlg: takes files out of the history.

#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_programs.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/list_editor.h"
#include "services/text.h"

namespace {

int Count() {
  return OpnHistory.fileCount;
}

constexpr ListEditor kFiles{IDC_OPN_FILE, Count, OpnFileRow};

void Question(int row, char* text, int size) {
  TextFormat(text, static_cast<std::size_t>(size), "%sのオープンを履歴から削除します",
             OpnText(OpnHistory.fileName[row]).text);
}

bool RemoveRow(WindowHandle, int row) {
  OpnHisRemove(row);
  return true;
}

bool RemoveRows(WindowHandle, int) {
  OpnHisClear();
  OpnProgListForget();
  return true;
}

constexpr ListDeed kRemove{
    .needsRow = true, .questionOf = Question, .question = {nullptr, "履歴削除の確認"}, .act = RemoveRow};
constexpr ListDeed kRemoveAll{
    .question = {"ファイルとプログラム全ての履歴登録を削除します", "全履歴削除の確認"}, .act = RemoveRows};

void DetailsShow(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kFiles);
  const OpnHistoryRec& h = OpnHistory;
  ControlSetText(dialog, IDC_OPN_NAME, OpnText(row < 0 ? "" : h.fileName[row]).text);
  ControlSetText(dialog, IDC_OPN_FOLDER, OpnText(row < 0 ? "" : h.filePath[row]).text);
  const char* program = row < 0 ? "" : h.progName[row][0] != '\0' ? h.progName[row] : "関連プログラム";
  ControlSetText(dialog, IDC_OPN_PROGRAM_NAME, OpnText(program).text);
}

void Open(WindowHandle dialog) {
  ListEditorShow(dialog, kFiles);
}

// The dialog's context is whether the history has changed.
template <const ListDeed& deed>
void Run(const Event& event) {
  if (!ListDeedRun(event.window, kFiles, deed)) return;
  *static_cast<bool*>(event.context) = true;
  DetailsShow(event.window);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_OPN_FILE, EventKind::Chosen, DetailsShow},
    {IDC_OPN_REMOVE, Run<kRemove>},
    {IDC_OPN_REMOVE_ALL, Run<kRemoveAll>},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

bool DelListOpnFileHisDlgRun(WindowHandle owner) {
  bool changed = false;
  ToolDialogRun(ToolDialog::DelListOpnFileHisDlg, IDD_DelListOpnFileHisDlg, owner, Handle, &changed);
  return changed;
}
