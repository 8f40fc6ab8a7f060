// FileBackUpSetDlg, "ファイル バックアップ".

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_commands.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "filetools/path_row.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/list_editor.h"
#include "services/path.h"
#include "services/program.h"
#include "services/text.h"

namespace {

bool IsOpen() {
  return Dialogs.hMenuDlg && Dialogs.DlgIdMenu == MenuDialog::FileBackUpSetDlg;
}

// --- The lists

void SourceRow(int row, char* text, int size) {
  PathRow(BackUp.sourcePath[row], text, size);
}

// A source without a place for its copy has no row.
bool CopyRow(int row, char* text, int size) {
  PathRow(BackUp.destPath[row], text, size);
  return BackUp.destPath[row][0] != '\0';
}

constexpr ListEditor kSources{IDC_BACKUP_SOURCES, [] { return static_cast<int>(BackUp.fileCount); },
                              SourceRow};

constexpr ListDeed kRemove{.needsRow = true,
                           .questionOf =
                               [](int row, char* text, int size) {
                                 PathSplit(BackUp.sourcePath[row]);
                                 TextFormat(text, static_cast<std::size_t>(size),
                                            "ソースから%sの選択を除きます。", PathParts.PathName);
                               },
                           .question = {nullptr, "バックアップソース選択を解除"},
                           .act =
                               [](WindowHandle, int row) {
                                 BackUpRemoveSource(row);
                                 return true;
                               }};
constexpr ListDeed kClear{
    .question = {"全バックアップソース選択を解除します", "全バックアップソース選択の解除"},
    .act = [](WindowHandle, int) {
      BackUpClearSources();
      return true;
    }};

// What is done to the sources is done to their copies.
template <const ListDeed& deed>
void Edit() {
  if (ListDeedRun(Dialogs.hMenuDlg, kSources, deed)) FileBackUpSetDlgShowCopies();
}

// --- The run and the comparisons

void Run() {
  if (BackUp.fileCount == 0) {
    BoxTell(Dialogs.hMenuDlg, "バックアップファイルが設定されていません", "ファイル未設定");
  } else if (BackUpDlgRun(Dialogs.hMenuDlg)) {
    BoxTell(Dialogs.hMenuDlg, "バックアップ先にファイルをコピーしました", "ファイルバックアップ完了");
  }
}

struct Comparison {
  int (*run)();
  BoxWords nothing;                  // there are no sources
  BoxWords found[3];                 // what it has found: by 0, -1 and -2 ...
  void (*show)(WindowHandle owner);  // ... and for anything else
};
constexpr Comparison kDates{BackUpCompareDate,
                            {"バックアップファイルが指定されていません!", "日付で比較"},
                            {{"ファイルの日付に違いはありません", "日付で比較"},
                             {"バックアップ ソース ファイルがありません", "日付で比較エラー"},
                             {}},
                            FileBackUpDateDlgRun};
constexpr Comparison kContents{BackUpCompareContent,
                               {"バックアップファイルが指定されていません!", "内容で比較"},
                               {{"ファイル内容に違いはありません", "内容で比較"},
                                {"バックアップ ソース ファイルがありません", "内容で比較エラー"},
                                {"バックアップ先ファイルがありません", "内容で比較エラー"}},
                               FileBackUpContentDlgRun};

template <const Comparison& comparison>
void Compare() {
  if (BackUp.fileCount == 0) {
    BoxTell(Dialogs.hMenuDlg, comparison.nothing);
    return;
  }
  const int result = comparison.run();
  const bool told = result <= 0 && result >= -2;
  told ? BoxTell(Dialogs.hMenuDlg, comparison.found[-result]) : comparison.show(Dialogs.hMenuDlg);
}

// --- The dialog

void Open() {
  FileBackUpSetDlgShowLists();
  FileBackUpSetDlgShowComment();
}

template <void (*act)()>
void Guarded() {
  BackUpGuarded(act);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_BACKUP_ADD, Command::BackUpAdd},
    {IDC_BACKUP_FOLDER, Command::BackUpFolder},
    {IDC_BACKUP_LOAD, Command::BackUpLoad},
    {IDC_BACKUP_SAVE, Command::BackUpSave},
    {IDC_BACKUP_REMOVE, Guarded<Edit<kRemove>>},
    {IDC_BACKUP_CLEAR, Guarded<Edit<kClear>>},
    {IDC_BACKUP_RUN, Guarded<Run>},
    {IDC_BACKUP_DATES, Guarded<Compare<kDates>>},
    {IDC_BACKUP_CONTENTS, Guarded<Compare<kContents>>},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int FileBackUpSetDlgRun() {
  return MenuDialogRun(MenuDialog::FileBackUpSetDlg, IDD_FileBackUpSetDlg, Program.hMainWnd, Handle);
}

void FileBackUpSetDlgShowLists() {
  if (!IsOpen()) return;
  ListEditorShow(Dialogs.hMenuDlg, kSources);
  FileBackUpSetDlgShowCopies();
}

void FileBackUpSetDlgShowCopies() {
  if (!IsOpen()) return;
  RowsShow(Dialogs.hMenuDlg, IDC_BACKUP_COPIES, RowsOf(BackUp.fileCount, CopyRow));
  if (BackUp.fileCount != 0 || BackUp.destDir[0] == '\0') return;
  char text[kRowTextSize];
  TextFormat(text, sizeof text, "ディレクトリ名 --> %s", BackUp.destDir);
  ListAdd(Dialogs.hMenuDlg, IDC_BACKUP_COPIES, text);
}

void FileBackUpSetDlgShowComment() {
  if (IsOpen()) ControlSetText(Dialogs.hMenuDlg, IDC_BACKUP_COMMENT, BackUp.comment);
}

void FileBackUpSetDlgTakeComment() {
  if (IsOpen()) ControlGetText(Dialogs.hMenuDlg, IDC_BACKUP_COMMENT, BackUp.comment, sizeof BackUp.comment);
}
