// FileBackUpSetDlg, "ファイル バックアップ".

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_commands.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "filetools/path_row.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/path.h"
#include "services/program.h"
#include "services/text.h"

namespace {

constexpr int kRowSize = 1100;

bool IsOpen() {
  return Dialogs.hMenuDlg && Dialogs.DlgIdMenu == MenuDialog::FileBackUpSetDlg;
}

void Remove() {
  const int row = ListSelected(Dialogs.hMenuDlg, IDC_BACKUP_SOURCES);
  if (row < 0 || row >= BackUp.fileCount) return;
  char text[kRowSize];
  PathSplit(BackUp.sourcePath[row]);
  TextFormat(text, sizeof text, "ソースから%sの選択を除きます。", PathParts.PathName);
  if (!BoxAsk(Dialogs.hMenuDlg, text, "バックアップソース選択を解除")) return;
  BackUpRemoveSource(row);
  FileBackUpSetDlgShowLists();
}

void Clear() {
  if (!BoxAsk(Dialogs.hMenuDlg, "全バックアップソース選択を解除します", "全バックアップソース選択の解除"))
    return;
  BackUpClearSources();
  FileBackUpSetDlgShowLists();
}

void Run() {
  if (BackUp.fileCount == 0) {
    BoxTell(Dialogs.hMenuDlg, "バックアップファイルが設定されていません", "ファイル未設定");
  } else if (BackUpDlgRun(Dialogs.hMenuDlg)) {
    BoxTell(Dialogs.hMenuDlg, "バックアップ先にファイルをコピーしました", "ファイルバックアップ完了");
  }
}

void CompareDates() {
  if (BackUp.fileCount == 0) {
    BoxTell(Dialogs.hMenuDlg, "バックアップファイルが指定されていません!", "日付で比較");
    return;
  }
  switch (BackUpCompareDate()) {
    case 0:
      BoxTell(Dialogs.hMenuDlg, "ファイルの日付に違いはありません", "日付で比較");
      break;
    case -1:
      BoxTell(Dialogs.hMenuDlg, "バックアップ ソース ファイルがありません", "日付で比較エラー");
      break;
    default:
      FileBackUpDateDlgRun(Dialogs.hMenuDlg);
  }
}

void CompareContents() {
  if (BackUp.fileCount == 0) {
    BoxTell(Dialogs.hMenuDlg, "バックアップファイルが指定されていません!", "内容で比較");
    return;
  }
  switch (BackUpCompareContent()) {
    case 0:
      BoxTell(Dialogs.hMenuDlg, "ファイル内容に違いはありません", "内容で比較");
      break;
    case -1:
      BoxTell(Dialogs.hMenuDlg, "バックアップ ソース ファイルがありません", "内容で比較エラー");
      break;
    case -2:
      BoxTell(Dialogs.hMenuDlg, "バックアップ先ファイルがありません", "内容で比較エラー");
      break;
    default:
      FileBackUpContentDlgRun(Dialogs.hMenuDlg);
  }
}

// What the buttons do: here, or by the main window's command.
struct Button {
  int id;
  void (*action)();
  Command command;
};
constexpr Button kButtons[] = {
    {IDC_BACKUP_ADD, nullptr, Command::BackUpAdd},
    {IDC_BACKUP_FOLDER, nullptr, Command::BackUpFolder},
    {IDC_BACKUP_LOAD, nullptr, Command::BackUpLoad},
    {IDC_BACKUP_SAVE, nullptr, Command::BackUpSave},
    {IDC_BACKUP_REMOVE, Remove, Command::None},
    {IDC_BACKUP_CLEAR, Clear, Command::None},
    {IDC_BACKUP_RUN, Run, Command::None},
    {IDC_BACKUP_DATES, CompareDates, Command::None},
    {IDC_BACKUP_CONTENTS, CompareContents, Command::None},
};

bool Press(int id) {
  for (const Button& button : kButtons) {
    if (button.id != id) continue;
    if (button.action) {
      BackUpGuarded(button.action);
    } else {
      CommandSend(button.command);
    }
    return true;
  }
  return false;
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    FileBackUpSetDlgShowLists();
    FileBackUpSetDlgShowComment();
    return true;
  }
  return event.kind == EventKind::Pressed && Press(event.id);
}

void AddRow(int list, const char* path) {
  char text[kRowSize];
  PathRow(path, text, sizeof text);
  ListAdd(Dialogs.hMenuDlg, list, text);
}

}  // namespace

int FileBackUpSetDlgRun() {
  return MenuDialogRun(MenuDialog::FileBackUpSetDlg, IDD_FileBackUpSetDlg, Program.hMainWnd, Handle);
}

void FileBackUpSetDlgShowLists() {
  if (!IsOpen()) return;
  const ListQuiet quiet(Dialogs.hMenuDlg, IDC_BACKUP_SOURCES);
  ListClear(Dialogs.hMenuDlg, IDC_BACKUP_SOURCES);
  for (int row = 0; row < BackUp.fileCount; ++row) AddRow(IDC_BACKUP_SOURCES, BackUp.sourcePath[row]);
  FileBackUpSetDlgShowCopies();
}

void FileBackUpSetDlgShowCopies() {
  if (!IsOpen()) return;
  const ListQuiet quiet(Dialogs.hMenuDlg, IDC_BACKUP_COPIES);
  ListClear(Dialogs.hMenuDlg, IDC_BACKUP_COPIES);
  for (int row = 0; row < BackUp.fileCount; ++row) {
    if (BackUp.destPath[row][0] != '\0') AddRow(IDC_BACKUP_COPIES, BackUp.destPath[row]);
  }
  if (BackUp.fileCount == 0 && BackUp.destDir[0] != '\0') {
    char text[kRowSize];
    TextFormat(text, sizeof text, "ディレクトリ名 --> %s", BackUp.destDir);
    ListAdd(Dialogs.hMenuDlg, IDC_BACKUP_COPIES, text);
  }
}

void FileBackUpSetDlgShowComment() {
  if (IsOpen()) ControlSetText(Dialogs.hMenuDlg, IDC_BACKUP_COMMENT, BackUp.comment);
}

void FileBackUpSetDlgTakeComment() {
  if (IsOpen()) ControlGetText(Dialogs.hMenuDlg, IDC_BACKUP_COMMENT, BackUp.comment, sizeof BackUp.comment);
}
