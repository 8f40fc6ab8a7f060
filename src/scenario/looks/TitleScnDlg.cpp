// TitleScnDlg, "タイトル画面設定": the title with which a scene opens. Only a confirm takes what
// stands in the dialog.

#include <algorithm>
#include <iterator>

#include "resources/scenario_looks_ids.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/looks/snry_looks.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

SnryLooksState SnryLooks;

namespace {

constexpr int kTextMost = 127;
constexpr int kValueDigits = 3;

constexpr const char* kColourNames[] = {"黒",    "白",   "赤", "緑",   "青",
                                        "ｵﾚﾝｼﾞ", "水色", "黄", "ｸﾞﾚｲ", "明るいｸﾞﾚｲ"};
using Colour3 = std::uint8_t[3];
constexpr Colour3 kColours[] = {{0, 0, 0},       {255, 255, 255}, {255, 0, 0},   {0, 255, 0},
                                {0, 0, 255},     {200, 0, 0},     {0, 255, 255}, {255, 255, 0},
                                {190, 190, 190}, {210, 210, 210}};
static_assert(std::size(kColours) == std::size(kColourNames));

constexpr const char* kSizes[] = {"6",  "8",  "9",  "10", "11", "12", "14",
                                  "16", "18", "20", "24", "36", "48", "72"};
constexpr const char* kStyles[] = {"ゴシック標準", "ゴシック斜体", "ゴシック太字", "ゴシック太字斜体",
                                   "明朝",         "明朝斜体",     "明朝太字",     "行書",
                                   "行書斜体",     "行書太字"};
constexpr const char* kMethods[] = {"カットイン",
                                    "フェードイン時間1秒",
                                    "フェードイン時間3秒",
                                    "フェードイン時間6秒",
                                    "フェードイン時間10秒",
                                    "モザイク状 1",
                                    "モザイク状 2",
                                    "横ワイプ",
                                    "縦ワイプ"};
// kept: a title stays for a minute and a half at most, though longer times are known.
constexpr const char* kTimes[] = {"5秒",  "10秒", "15秒", "20秒", "25秒",
                                  "30秒", "40秒", "50秒", "1分",  "1分30秒"};

// kept: a title's colour that is none of the list shows as black, and is black from the next
// confirm on.
int ColourRow(const Colour3& colour) {
  const auto* row = std::find_if(std::begin(kColours), std::end(kColours), [&](const Colour3& listed) {
    return std::equal(std::begin(listed), std::end(listed), std::begin(colour));
  });
  return row == std::end(kColours) ? 0 : static_cast<int>(row - kColours);
}

void ExchangeColour(Form& form, int id, Colour3& colour) {
  int row = ColourRow(colour);
  form.Choice(id, row, RowsOf(kColourNames));
  if (form.Takes()) std::copy(std::begin(kColours[row]), std::end(kColours[row]), colour);
}

void Exchange(Form& form, SnryTitleRec& title) {
  form.Check(IDC_TITLE_SHOWN, title.shown);
  form.Text(IDC_TITLE_TEXT, title.text, kTextMost);
  ExchangeColour(form, IDC_TITLE_COLOUR, title.textColour);
  ExchangeColour(form, IDC_TITLE_BACK, title.backColour);
  form.Choice(IDC_TITLE_SIZE, title.size, RowsOf(kSizes));
  form.Choice(IDC_TITLE_STYLE, title.style, RowsOf(kStyles));
  form.Choice(IDC_TITLE_METHOD, title.method, RowsOf(kMethods));
  form.Choice(IDC_TITLE_TIME, title.time, RowsOf(kTimes));
  SnryPairExchange(form, IDC_TITLE_PARA, IDC_TITLE_VALUE, title.end, kValueDigits);
}

void Open(WindowHandle dialog) {
  FormShow(dialog, SnryScene.title, Exchange);
}

void Accept(WindowHandle dialog) {
  FormTake(dialog, SnryScene.title, Exchange);
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

void TitleScnDlgRun(WindowHandle owner) {
  SnryDialogRun(SnryDialog::TitleScnDlg, IDD_TitleScnDlg, owner, Handle);
}
