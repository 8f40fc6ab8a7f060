// SnryOptionDlg, "オプション設定": how the whole scenario is shown.

#include <iterator>

#include "resources/scenario_looks_ids.h"
#include "scenario/looks/snry_looks.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

constexpr int kDigits = 4;
constexpr int kLowest = 50;
constexpr int kAnyNumber = -999;  // the lowest that four characters tell
constexpr int kWidest = 1200;
constexpr int kHighest = 1000;

constexpr const char* kMenuPositions[] = {"ウインドウ下に常時表示",
                                          "左横に常時表示",
                                          "右端に常時表示",
                                          "中央にステージと重ねて表示",
                                          "中央上にステージと重ねて表示",
                                          "中央下にステージと重ねて表示",
                                          "左上にステージと重ねて表示",
                                          "左下にステージと重ねて表示",
                                          "右上にステージと重ねて表示",
                                          "右下にステージと重ねて表示",
                                          "中央ポップアップウインドウ",
                                          "中央上ポップアップウインドウ",
                                          "中央下ポップアップウインドウ",
                                          "左上ポップアップウインドウ",
                                          "左下ポップアップウインドウ",
                                          "右上ポップアップウインドウ",
                                          "右下ポップアップウインドウ"};
constexpr const char* kMenuFormats[] = {
    "バック=黒  文字=白  枠なし", "バック=グレイ 文字=黒  枠なし",  "バック=白  文字=黒  枠なし",
    "バック=青  文字=白  枠なし", "バック=グレイ  文字=赤  枠なし", "バック=グレイ  文字=青  枠なし",
    "バック=黒  文字=白  枠=白",  "バック=グレイ 文字=黒  枠=青",   "バック=青  文字=白  枠=赤"};
constexpr const char* kReadingSpeeds[] = {"20文字/1秒", "15文字/1秒", "10文字/1秒", "8文字/1秒", "5文字/1秒",
                                          "4文字/1秒",  "3文字/1秒",  "2文字/1秒",  "1文字/1秒"};
constexpr const char* kBalloons[] = {"形=四角  バック=黒  文字=白",
                                     "形=四角  バック=白  文字=黒",
                                     "形=四角  バック=グレイ  文字=黒",
                                     "形=角の丸い四角  バック=黒  文字=白",
                                     "形=角の丸い四角  バック=白  文字=黒",
                                     "形=角の丸い四角  バック=グレイ  文字=黒",
                                     "形=楕円  バック=黒  文字=白",
                                     "形=楕円  バック=白  文字=黒",
                                     "形=楕円  バック=グレイ  文字=黒",
                                     "雲形  バック=黒  文字=白",
                                     "雲形  バック=白  文字=黒",
                                     "雲形  バック=グレイ  文字=黒"};

// kept: the frame of the menus has no lowest size.
void Exchange(Form& form, SnryOptionRec& options) {
  form.NumberIn(IDC_OPTION_STAGE_WIDTH, options.stageWidth, kDigits, kLowest, kWidest);
  form.NumberIn(IDC_OPTION_STAGE_HEIGHT, options.stageHeight, kDigits, kLowest, kHighest);
  form.NumberIn(IDC_OPTION_MENU_WIDTH, options.menuWidth, kDigits, kAnyNumber, kWidest);
  form.NumberIn(IDC_OPTION_MENU_HEIGHT, options.menuHeight, kDigits, kAnyNumber, kHighest);
  form.Choice(IDC_OPTION_MENU_POSITION, options.menuPosition, RowsOf(kMenuPositions));
  form.Choice(IDC_OPTION_MENU_FORMAT, options.menuFormat, RowsOf(kMenuFormats));
  form.Choice(IDC_OPTION_READING, options.readingSpeed, RowsOf(kReadingSpeeds));
  form.Choice(IDC_OPTION_BALLOON, options.balloonFormat, RowsOf(kBalloons));
}

void Open(WindowHandle dialog) {
  FormShow(dialog, SnryMain.options, Exchange);
}

void Accept(WindowHandle dialog) {
  FormTake(dialog, SnryMain.options, Exchange);
  Scenario.changed = true;
  ToolDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_OPTION_STATUS_BAR, StsBarSettingDlgRun},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryOptionDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::SnryOptionDlg, IDD_SnryOptionDlg, owner, Handle);
}
