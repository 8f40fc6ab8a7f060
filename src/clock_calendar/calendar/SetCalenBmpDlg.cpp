// SetCalenBmpDlg, "カレンダー絵貼り付け": the picture of the edited month and the two figures
// that move over it.
#include <cstring>

#include "clock_calendar/calendar/calendar_dialogs.h"
#include "clock_calendar/calendar/calendar_edit.h"
#include "platform/dialog.h"
#include "resources/calendar_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/form.h"
#include "services/program.h"
#include "services/text.h"
#include "world/world_list.h"

namespace {

constexpr const char* kDirections[] = {"なし",     "左",       "右",       "上",       "下",
                                       "左斜め上", "右斜め上", "左斜め下", "右斜め下", "ランダム"};
// kept: the periods of moving figures are counted in ticks, and their labels are nominal.
constexpr const char* kPeriods[] = {"0.5秒", "1秒", "10秒", "30秒", "1分", "3分", "5分"};
constexpr const char* kSteps[] = {"0 倍", "0.1倍", "0.3倍", "0.5倍", "0.7倍", "1 倍",
                                  "2 倍", "3 倍",  "4 倍",  "5 倍",  "10倍"};
// settled: a moving figure starts at one of nine places of the picture; the first row leaves the
// place that the definition has.
constexpr const char* kStarts[kStartPlaces] = {"指定なし", "左上", "上",   "右上", "左",
                                               "中央",     "右",   "左下", "下",   "右下"};

// --- The fields

// The controls of one figure.
struct FigureControls {
  int chara, frame, x, y, direction, period, step, start, byYear;
};
constexpr FigureControls kControls[kFigureCount] = {
    {IDC_FIGURE1_CHARA, IDC_FIGURE1_FRAME, IDC_FIGURE1_X, IDC_FIGURE1_Y, IDC_FIGURE1_DIRECTION,
     IDC_FIGURE1_PERIOD, IDC_FIGURE1_STEP, IDC_FIGURE1_START, IDC_FIGURE1_BY_YEAR},
    {IDC_FIGURE2_CHARA, IDC_FIGURE2_FRAME, IDC_FIGURE2_X, IDC_FIGURE2_Y, IDC_FIGURE2_DIRECTION,
     IDC_FIGURE2_PERIOD, IDC_FIGURE2_STEP, IDC_FIGURE2_START, IDC_FIGURE2_BY_YEAR},
};

void CharaRow(int row, char* text, int size) {
  if (row == 0) {
    TextCopy(text, static_cast<std::size_t>(size), "なし");
  } else {
    TextFormat(text, static_cast<std::size_t>(size), "%3d %s", row, WorldCharaName(row));
  }
}

void FigureExchange(Form& form, CalenBmpEdit& bmp, int figure) {
  const FigureControls& controls = kControls[figure];
  CalenMonthPicture& picture = bmp.picture;
  form.Choice(controls.chara, picture.charas[figure], RowsOf(World.WorldCharaCount + 1, CharaRow));
  form.Choice(controls.frame, picture.figures[figure], RowsOfNumbers(0, kWorldFrames - 1));
  form.Number(controls.x, picture.correctX[figure], 5);
  form.Number(controls.y, picture.correctY[figure], 5);
  form.Choice(controls.direction, picture.directions[figure], RowsOf(kDirections));
  form.Choice(controls.period, picture.periods[figure], RowsOf(kPeriods));
  form.Choice(controls.step, picture.steps[figure], RowsOf(kSteps));
  form.Choice(controls.start, picture.starts[figure], RowsOf(kStarts));
  form.Check(controls.byYear, picture.byYear[figure]);
}

void Exchange(Form& form, CalenBmpEdit& bmp) {
  CalenMonthPicture& picture = bmp.picture;
  form.Check(IDC_BMP_ON, picture.pictureOn);
  form.Check(IDC_BMP_COLOUR_ONLY, picture.colourOnly);
  form.Text(IDC_BMP_BACKGROUND, picture.background, kMonthBackgroundMax);
  form.NumberIn(IDC_BMP_RED, picture.backColour[0], 3, 0, 255);
  form.NumberIn(IDC_BMP_GREEN, picture.backColour[1], 3, 0, 255);
  form.NumberIn(IDC_BMP_BLUE, picture.backColour[2], 3, 0, 255);
  for (int figure = 0; figure < kFigureCount; ++figure) FigureExchange(form, bmp, figure);
}

// --- The mode of a figure that follows the year

int NamedFrames(int chara) {
  int count = 0;
  for (int frame = 1; frame <= kWorldFrames; ++frame) {
    if (WorldFrameName(chara, frame)[0] != '\0') ++count;
  }
  return count;
}

// settled: a figure that is newly to follow the year does so in a cycle of twelve when its
// character has twelve frames, else of ten; one that did before keeps its cycle.
void ModesTake() {
  constexpr int kTwelve = 12;
  for (int figure = 0; figure < kFigureCount; ++figure) {
    std::uint8_t& mode = CalendarEdit.bmp.modes[figure];
    if (CalendarEdit.bmp.picture.byYear[figure] == 0) {
      mode = 0;
    } else if (mode == 0) {
      mode = NamedFrames(CalendarEdit.bmp.picture.charas[figure]) >= kTwelve ? 2 : 1;
    }
  }
}

// --- The dialog

void Open(WindowHandle dialog) {
  CalenEditBmpTake();
  // The cut of the text is the file's; a number shows as the definition's choice.
  for (int figure = 0; figure < kFigureCount; ++figure)
    CalendarEdit.bmp.picture.byYear[figure] = CalendarEdit.bmp.modes[figure] != 0 ? 1 : 0;
  char text[kNoteSize];
  TextFormat(text, sizeof text, "%d月の絵", CalendarEdit.month + 1);
  ControlSetText(dialog, IDC_BMP_MONTH, text);
  FormShow(dialog, CalendarEdit.bmp, Exchange);
}

// A picture of the folder "背景" is named without it.
void BackgroundPick(WindowHandle dialog) {
  char path[kPickPathSize] = "";
  if (PickFileForLoad(dialog, "*.BMP", path) == 0) return;
  char folder[kRootPathSize];
  const auto length = static_cast<std::size_t>(RootPath(folder, sizeof folder, "\\背景\\"));
  const bool inside = std::strncmp(path, folder, length) == 0;
  ControlSetText(dialog, IDC_BMP_BACKGROUND, inside ? path + length : path);
}

void Accept(WindowHandle dialog) {
  const CalenBmpEdit before = CalendarEdit.bmp;
  FormTake(dialog, CalendarEdit.bmp, Exchange);
  ModesTake();
  if (CalendarEdit.bmp != before) CalenEditBmpPut();
  SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_BMP_PICK, BackgroundPick},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int SetCalenBmpDlgRun(WindowHandle owner) {
  WorldListRead();
  return SubDialogRun(SubDialog::SetCalenBmpDlg, IDD_SetCalenBmpDlg, owner, Handle);
}
