// SclRegiApliListDialog, "スケジュール用アプリケーション登録".
#include "platform/dialog.h"
#include "schedule/applications/application_dialogs.h"
#include "services/data_file.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/program.h"

namespace {

constexpr char kProgramMask[] = "*.EXE";

bool PickAndAdd(WindowHandle dialog, int) {
  char path[kPickPathSize] = "";
  FileResult.FileStatus = 1;
  if (PickFileForLoad(dialog, kProgramMask, path) == 0) return true;
  ApliListAdd(path);
  return true;
}

bool Remove(WindowHandle, int row) {
  ApliListRemove(row);
  return true;
}

constexpr ListDeed kAdd{.may = ApliListHasRoom,
                        .mayNot = {"登録最大数１００個を超えています。", "プログラム登録リミット"},
                        .act = PickAndAdd};
constexpr ListDeed kDelete{
    .needsRow = true,
    .question = {"選択アプリケーションを登録リストから削除します", "アプリケーション登録"},
    .act = Remove};

void Show(WindowHandle dialog) {
  ListEditorShow(dialog, kApliEntries);
}

template <const ListDeed& deed>
void Edit(WindowHandle dialog) {
  ListDeedRun(dialog, kApliEntries, deed);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {IDC_APLI_ADD, Edit<kAdd>},
    {IDC_APLI_DELETE, Edit<kDelete>},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int SclRegiApliListDialogRun() {
  ApliListRead();
  return MenuDialogRun(MenuDialog::SclRegiApliListDialog, IDD_SclRegiApliListDialog, Program.hMainWnd,
                       Handle);
}
