// SelCalenderDlg, "カレンダー 選択/設定": which calendar stands on the desktop.
#include <algorithm>
#include <iterator>

#include "clock_calendar/calendar/calendar_dialogs.h"
#include "clock_calendar/calendar/calendar_edit.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/calendar_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/dib.h"
#include "services/painting.h"
#include "services/program.h"
#include "services/rows.h"
#include "services/settings_save.h"
#include "services/text.h"

namespace {

constexpr Rect kPictureArea = {316, 104, 566, 300};  // of the dialog, in pixels

// --- What is shown of a calendar

int Count() {
  return std::clamp<int>(Calendar.CalenCount, 0, kCalenMax);
}

void NameRow(int place, char* text, int size) {
  TextCopy(text, static_cast<std::size_t>(size), Calendar.CalenNames[place]);
}

// The calendar of the list: the chosen one, else the selected one.
int Place(WindowHandle dialog) {
  const int row = ListSelected(dialog, IDC_SEL_LIST);
  return row >= 0 && row < Count() ? row : CalenSelected();
}

// The month's picture of a calendar that is not the selected one stands in its sheet.
const CalenMonthPicture& PictureOf(int place) {
  const int month = std::clamp<std::int32_t>(Calendar.CalenMonthPos, 0, kMonthsOfYear - 1);
  return place == CalenSelected() ? Calendar.CalenMonths[CalenYearShown()][month].picture
                                  : Calendar.CalenSheets[place][month].picture;
}

void PictureDraw(Canvas* canvas, const Rect& area) {
  FillColour(canvas, ColourOf(CalendarEdit.bmp.picture.backColour), area);
  DibDraw(canvas, area.left, area.top, CalendarEdit.pictures.CalenBackground);
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  DrawSteady(screen, kPictureArea, PictureDraw);
  CanvasRelease(screen);
}

void PictureFree() {
  CalenMonthPicturesFree(CalendarEdit.pictures);
}

void Show(WindowHandle dialog) {
  const int place = Place(dialog);
  char span[kNoteSize];
  const int last =
      Calendar.CalenFirstYear + CalenSpanLength(Calendar.CalenFirstYear, Calendar.CalenYearCount) - 1;
  TextFormat(span, sizeof span, "%d年 ～ %d年", 2000 + Calendar.CalenFirstYear, 2000 + last);
  ControlSetText(dialog, IDC_SEL_NAME, Calendar.CalenNames[place]);
  ControlSetText(dialog, IDC_SEL_SPAN, span);
  CalendarEdit.bmp.picture = PictureOf(place);
  PictureFree();
  CalenBackgroundLoad(CalendarEdit.pictures, CalendarEdit.bmp.picture);
  Paint(dialog);
}

void Fill(WindowHandle dialog) {
  RowsShow(dialog, IDC_SEL_LIST, RowsOf(Count(), NameRow), CalenSelected());
  Show(dialog);
}

// --- The buttons

void Select(WindowHandle dialog) {
  const int place = Place(dialog);
  if (place == CalenSelected()) return;
  CalenSelect(place);
  CalendarEdit.live = true;
  if (Calendar.hCalenWnd) CalenWindowRenew();
}

void Load(WindowHandle dialog) {
  Select(dialog);
  Show(dialog);
}

void Edit(WindowHandle dialog) {
  Select(dialog);
  PictureFree();
  CalenderAdustDlgRun(dialog);
  Fill(dialog);
}

void Open(WindowHandle dialog) {
  CalendarEdit.live = false;
  CalenTodayTake();
  ControlSetChecked(dialog, IDC_SEL_SHOW, Calendar.CalenShow != 0);
  Fill(dialog);
}

void Accept(WindowHandle dialog) {
  const int show = ControlIsChecked(dialog, IDC_SEL_SHOW) ? 1 : 0;
  const bool other = show != Calendar.CalenShow;
  Calendar.CalenShow = show;
  const bool kept = CalendarEdit.live ? CalenSave() == 0 : !other || SysFileWrite() == 0;
  SaveTold(dialog, kept, "カレンダー 選択/設定");
  if (other || CalendarEdit.live) CalenWindowRenew();
  MenuDialogEnd(dialog, kOkButton);
}

void Cancel(WindowHandle dialog) {
  if (CalendarEdit.live) {
    SysFileRead();
    CalenFileRead();
    CalenWindowRenew();
  }
  MenuDialogEnd(dialog, kCancelButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, Paint},
    {IDC_SEL_LIST, EventKind::Chosen, Show},
    {IDC_SEL_LIST, EventKind::Opened, Load},
    {IDC_SEL_LOAD, Load},
    {IDC_SEL_EDIT, Edit},
    {kOkButton, Accept},
    {kCancelButton, Cancel},
    {EventKind::Close, Cancel},
    {EventKind::Destroy, PictureFree},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int SelCalenderDlgRun() {
  const int result = MenuDialogRun(MenuDialog::SelCalenderDlg, IDD_SelCalenderDlg, Program.hMainWnd, Handle);
  PictureFree();
  return result;
}
