// TableFormScnDlg, "表形式選択": a scene that is shown as a table.

#include "resources/scenario_looks_ids.h"
#include "scenario/looks/snry_looks.h"
#include "scenario/storage/table_colours.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

constexpr int kTitleMost = 63;
constexpr const char* kFormats[] = {"表形式1:メニュー/イベント/データ(横列)",
                                    "表形式2:メニュー/イベント/データ(縦列)",
                                    "表形式3:メニュー/イベント/データ(横列)", "表形式4:メニュー/データ(横列)",
                                    "ユーザー設定モード(拡張機能)"};
constexpr const char* kColourRows[] = {"1. バック=黒 文字=白 枠=白 タイトル欄=青",
                                       "2. バック=灰 文字=黒 枠=青 タイトル欄=水",
                                       "3. バック=青 文字=白 枠=白 タイトル欄=灰",
                                       "4. ユーザー設定 1 ",
                                       "5. ユーザー設定 2 ",
                                       "6. ユーザー設定 3 ",
                                       "7. ユーザー設定 4 "};
constexpr const char* kDataRows[] = {"1番目の設定パラメータデータ", "1番目の設定パラメータ名とデータ",
                                     "比較パラメータデータ", "比較パラメータ名とデータ"};

void Exchange(Form& form, SnryTableRec& table) {
  form.Text(IDC_TABLE_ITEM, table.itemTitle, kTitleMost);
  form.Text(IDC_TABLE_SETTING, table.settingTitle, kTitleMost);
  form.Text(IDC_TABLE_DATA, table.dataTitle, kTitleMost);
}

void ExchangeScene(Form& form, SnrySceneRec& scene) {
  form.Bit(IDC_TABLE_ENABLED, scene.tableFlags, kSnryTableForm);
  form.Bit(IDC_TABLE_STAGE, scene.tableFlags, kSnryStageArea);
  form.Bit(IDC_TABLE_HIDE, scene.tableFlags, kSnryHideScene);
  form.Choice(IDC_TABLE_FORMAT, scene.tableFormat, RowsOf(kFormats));
}

// kept: the rows of colours and of data of the table form are shown, and what is chosen there is not taken
// over.
void ShowRows(Form& form, SnryTableRec& table) {
  form.Choice(IDC_TABLE_COLOUR, table.colourRow, RowsOf(kColourRows));
  form.Choice(IDC_TABLE_ROW, table.dataRow, RowsOf(kDataRows));
}

void Open(WindowHandle dialog) {
  FormShow(dialog, SnryScene.table, Exchange);
  FormShow(dialog, SnryScene.table, ShowRows);
  FormShow(dialog, SnrySceneNow(), ExchangeScene);
}

void Accept(WindowHandle dialog) {
  SnrySceneRec& scene = SnrySceneNow();
  scene.textScheme = 0;
  FormTake(dialog, SnryScene.table, Exchange);
  FormTake(dialog, scene, ExchangeScene);
  SnryTableColours(SnryScene.table);
  Scenario.changed = true;
  SnryDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void TableFormScnDlgRun(WindowHandle owner) {
  SnryDialogRun(SnryDialog::TableFormScnDlg, IDD_TableFormScnDlg, owner, Handle);
}
