#include "scenario/scenario_commands.h"

#include <algorithm>

#include "platform/file.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/scenario_settings.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_list_file.h"
#include "scenario/storage/snry_main_file.h"
#include "scenario/storage/snry_reset.h"
#include "services/boxes.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"
#include "services/text.h"
#include "world/world_pictures.h"

namespace {

WindowHandle Owner() {
  return Program.hMainWnd;
}

int Tell(const char* text, const char* caption) {
  BoxTell(Owner(), text, caption);
  return 0;
}

// The scenario is edited, and saved if that changed something. The pictures of the
// characters are kept no longer than that.
int Edit() {
  SnryWorldLoad();
  RoutSnrySettingRun(Owner());
  if (Scenario.changed) SnrySaveTold(Owner());
  WorldPicturesFree();
  return 0;
}

// --- A new one

// kept: a new scenario does not load a main file that is there already; its first save replaces
// it.
int MakeMain() {
  const int status = SnryMainStatus();
  if (status == -3) return Tell("異常なシナリオメインファイルです", "新規シナリオ作成中止"), -1;
  if (status == 0) return 0;
  SnryMainReset();
  if (SnrySaveMain() != 0)
    return Tell("シナリオファイルを新規作成できませんでした", "新規シナリオ作成失敗"), -1;
  return Tell("シナリオファイルを新規作成しました", "新規シナリオファイルを作成");
}

int New() {
  Scenario.listIndex = 0;
  if (SnryOpenList(Owner()) == 0) Scenario.listIndex = SnryList.count;
  SnryMain.options.stageWidth = 0;
  SnryOptionCheck();
  if (!NewSnryMainDlgRun(Owner())) return 0;
  const int row = SnryListFind(Scenario.mainFolder);
  if (row >= 0) {
    Scenario.listIndex = row;
    return Tell("同名のシナリオが既に存在します。", "新規シナリオの作成中止");
  }
  if (MakeMain() != 0) return 0;
  SnryCountsClear();
  Scenario.changed = false;
  return Edit();
}

// --- One that is there

// kept: when the main file of a scenario cannot be read, that is told, and the program goes on
// with what is left in memory.
void ReadMain() {
  const int result = SnryMainRead();
  if (result == 0) return;
  if (result == -1) Tell("シナリオファイルーがありません。初期化します。", "シナリオロード");
  if (result != -1) Tell("シナリオファイルーが正しくありません。", "シナリオファイルロードエラー");
  SnryCountsClear();
}

void TakeRow(int row) {
  if (row < 0) return;
  Scenario.listIndex = row;
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, SnryList.rows[row].folder);
  TextCopy(SnryMain.title, sizeof SnryMain.title, SnryList.rows[row].title);
}

// kept: the main folder is entered before it is asked whether a row was chosen, so that a user
// who leaves the list of scenarios without one is told that there is no folder as long as no
// scenario has been opened.
int Load() {
  constexpr char kStopped[] = "シナリオロードの中止";
  if (SnryOpenList(Owner()) != 0) return Tell("シナリオリストファイルを開くことができません。", kStopped);
  SnryOptionCheck();
  const int row = SnryMainLoadRun(Owner());
  TakeRow(row);
  if (!FolderSetCurrent(Scenario.mainFolder)) return Tell("シナリオフォルダーがありません。", kStopped);
  if (row < 0) return 0;
  Scenario.changed = false;
  ReadMain();
  return Edit();
}

int Delete() {
  if (SnryOpenList(Owner()) == 0) SnryMainDeleteRun(Owner());
  return 0;
}

}  // namespace

void CommandScenarioNew() {
  FeatureDialogRun(Feature::ScenarioMade, New);
}

void CommandScenarioLoad() {
  FeatureDialogRun(Feature::None, Load);
}

void CommandScenarioDelete() {
  FeatureDialogRun(Feature::None, Delete);
}

// settled: the command that saves a scenario does nothing while none is being edited.
void CommandScenarioSave() {
  if (!Dialogs.hMenuDlg || Dialogs.DlgIdMenu != MenuDialog::RoutSnrySetting) return;
  if (SnryOpenList(Dialogs.hMenuDlg) != 0) return;
  SnryListPut();
  if (SnryListWrite() != 0) {
    BoxTell(Dialogs.hMenuDlg, "リストファイルに書き込めません!", "シナリオセーブエラー");
  }
  SnrySaveTold(Dialogs.hMenuDlg);
}

// settled: the command that adds a background does nothing while no scenario is being edited.
void CommandScenarioBackground() {
  if (!Dialogs.hMenuDlg || Dialogs.DlgIdMenu != MenuDialog::RoutSnrySetting) return;
  SnryBackgroundAdd(Dialogs.hSnryDlg ? Dialogs.hSnryDlg : Dialogs.hMenuDlg);
}
