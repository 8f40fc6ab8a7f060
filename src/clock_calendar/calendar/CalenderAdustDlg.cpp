// CalenderAdustDlg, "カレンダー 詳細設定": the selected calendar, with a month that can be
// clicked.
#include <algorithm>

#include "clock_calendar/calendar/calendar_dialogs.h"
#include "clock_calendar/calendar/calendar_edit.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/calendar/dsp_calen_image.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/calendar_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/form.h"
#include "services/painting.h"
#include "services/settings_save.h"
#include "services/text.h"

namespace {

constexpr const char* kFormats[] = {"月ごと", "一週間(日付縦)", "日めくり"};
// kept: the list of a calendar's page sizes calls the smallest page large.
constexpr const char* kSizes[] = {" 大", " 中", " 小"};
constexpr const char* kNoteModes[] = {"なし", "当日", "1日前から", "2日前から"};

// --- The fields

struct CalenFields {
  char name[kCalenNameSize];
  std::int32_t kind;
  std::int32_t size;
  std::int32_t noteMode;
  std::int32_t nearNote;
  std::int32_t pictureOn;

  bool operator==(const CalenFields&) const = default;
};

CalenFields FieldsNow() {
  CalenFields fields{};
  TextCopy(fields.name, sizeof fields.name, Calendar.CalenNames[CalenSelected()]);
  fields.kind = Calendar.CalenKinds[CalenSelected()];
  fields.size = Calendar.CalenPageSize;
  fields.noteMode = Calendar.CalenNoteMode;
  fields.nearNote = Calendar.CalenNearNote != 0 ? 1 : 0;
  fields.pictureOn = Calendar.CalenPictureOn != 0 ? 1 : 0;
  return fields;
}

void Exchange(Form& form, CalenFields& fields) {
  form.Text(IDC_CALEN_NAME, fields.name);
  form.Choice(IDC_CALEN_FORMAT, fields.kind, RowsOf(kFormats));
  form.Choice(IDC_CALEN_SIZE, fields.size, RowsOf(kSizes));
  form.Choice(IDC_CALEN_NOTE_MODE, fields.noteMode, RowsOf(kNoteModes));
  form.Check(IDC_CALEN_NEAR, fields.nearNote);
  form.Check(IDC_CALEN_PICTURE, fields.pictureOn);
}

void FieldsPut(const CalenFields& fields) {
  const int sel = CalenSelected();
  TextCopy(Calendar.CalenNames[sel], kCalenNameSize, fields.name);
  Calendar.CalenKinds[sel] = static_cast<unsigned char>(fields.kind);
  Calendar.CalenKind = fields.kind;
  Calendar.CalenPageSize = fields.size;
  Calendar.CalenNoteMode = fields.noteMode;
  Calendar.CalenNearNote = fields.nearNote;
  Calendar.CalenPictureOn = fields.pictureOn;
  Calendar.CalenPictures[sel] = static_cast<unsigned char>(fields.pictureOn);
}

void FieldsTake(WindowHandle dialog) {
  CalenFields fields = FieldsNow();
  const CalenFields before = fields;
  FormTake(dialog, fields, Exchange);
  if (fields == before) return;
  FieldsPut(fields);
  CalendarEdit.changed = true;
}

// --- The month: a grid of the dialog, in pixels

constexpr Point kGridAt = {12, 124};
constexpr int kCellWidth = 58;
constexpr int kCellHeight = 26;
constexpr int kHeadHeight = 20;
constexpr int kWeeks = 6;
constexpr Rect kGrid = {kGridAt.x, kGridAt.y, kGridAt.x + kDaysOfWeek* kCellWidth + 1,
                        kGridAt.y + kHeadHeight + kWeeks* kCellHeight + 1};

CalenPage EditedPage() {
  return CalenPagePreview(CalenYearShown(), CalendarEdit.month, CalendarEdit.pictures);
}

Rect CellOf(const CalenPage& page, int day, Point at) {
  const int place = CalenColumnOf(page, 0) + day;
  const int left = at.x + place % kDaysOfWeek * kCellWidth;
  const int top = at.y + kHeadHeight + place / kDaysOfWeek * kCellHeight;
  return {left, top, left + kCellWidth, top + kCellHeight};
}

void DayDraw(Canvas* canvas, const CalenPage& page, int day, const Rect& cell) {
  char number[kCalenTextSize];
  TextFormat(number, sizeof number, "%2d", day + 1);
  const Rect inside = {cell.left + 1, cell.top + 1, cell.right, cell.bottom};
  CalenTodayDraw(canvas, page, day, inside);
  CalenStickerDraw(canvas, page, day, {cell.left + 26, cell.top + 5});
  CanvasTextColour(canvas, CalenDayColour(page, day));
  CanvasText(canvas, cell.left + 5, cell.top + 5, number);
  CanvasPen(canvas, Drawing.Pens[kPen646464]);
  if (CalenDayHasNote(page, day))
    CanvasLine(canvas, cell.left + 4, cell.bottom - 3, cell.right - 4, cell.bottom - 3);
  if (day != CalendarEdit.day) return;
  CanvasPen(canvas, Drawing.Pens[kPenThick0000FF]);
  CanvasBrush(canvas, BrushNothing());
  CanvasRectangle(canvas, inside.left, inside.top, inside.right, inside.bottom);
}

void FrameDraw(Canvas* canvas, const Rect& area) {
  CanvasPen(canvas, Drawing.Pens[kPen646464]);
  CanvasBrush(canvas, Drawing.Brushes[kBrushFFFFFF]);
  CanvasRectangle(canvas, area.left, area.top, area.right, area.bottom);
  for (int column = 0; column < kDaysOfWeek; ++column) {
    const char* name = CalenWeekdayName(column);
    CanvasTextColour(canvas, column == 0 ? kCalenRed : kCalenBlack);
    const int x = area.left + column * kCellWidth + (kCellWidth - CanvasTextWidth(canvas, name)) / 2;
    CanvasText(canvas, x, area.top + 2, name);
  }
}

void GridDraw(Canvas* canvas, const Rect& area) {
  const CalenPage page = EditedPage();
  CanvasBackTransparent(canvas, true);
  FrameDraw(canvas, area);
  for (int day = 0; day < CalenPageDays(page); ++day)
    DayDraw(canvas, page, day, CellOf(page, day, {area.left, area.top}));
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  DrawSteady(screen, kGrid, GridDraw);
  CanvasRelease(screen);
}

// The day at a place of the dialog, -1 for none.
int DayAt(int x, int y) {
  const CalenPage page = EditedPage();
  for (int day = 0; day < CalenPageDays(page); ++day) {
    if (RectHas(CellOf(page, day, kGridAt), x, y)) return day;
  }
  return -1;
}

// --- The day, its note, the years

void NoteTake(WindowHandle dialog) {
  char note[kNoteSize];
  ControlGetText(dialog, IDC_CALEN_DAY_NOTE, note, sizeof note);
  CalenEditNoteSet(note);
}

void DayShow(WindowHandle dialog) {
  char text[kNoteSize + 1];
  TextFormat(text, sizeof text, "%d日", CalendarEdit.day + 1);
  ControlSetText(dialog, IDC_CALEN_DAY, text);
  CalenNoteGet(CalenYearShown(), CalendarEdit.month, CalendarEdit.day, text);
  ControlSetText(dialog, IDC_CALEN_DAY_NOTE, text);
  Paint(dialog);
}

void SpanShow(WindowHandle dialog) {
  constexpr int kYearsKnown = 100;
  const std::int32_t first = Calendar.CalenFirstYear;
  const int years = CalenSpanLength(first, Calendar.CalenYearCount);
  RowsShow(dialog, IDC_CALEN_BASE, RowsOfNumbers(2000, 2000 + kYearsKnown - 1), first);
  RowsShow(dialog, IDC_CALEN_SPAN, RowsOfNumbers(1, CalenSpanLength(first, kCalenYearMax)), years - 1);
  RowsShow(dialog, IDC_CALEN_YEAR, RowsOfNumbers(2000 + first, 2000 + first + years - 1), CalenYearShown());
  RowsShow(dialog, IDC_CALEN_MONTH, RowsOfNumbers(1, kMonthsOfYear), CalendarEdit.month);
  DayShow(dialog);
}

void SpanChosen(WindowHandle dialog) {
  NoteTake(dialog);
  CalenEditSpanSet(ListSelected(dialog, IDC_CALEN_BASE), ListSelected(dialog, IDC_CALEN_SPAN) + 1);
  SpanShow(dialog);
}

void MonthChosen(WindowHandle dialog) {
  NoteTake(dialog);
  CalenEditMonthSet(ListSelected(dialog, IDC_CALEN_YEAR), ListSelected(dialog, IDC_CALEN_MONTH));
  DayShow(dialog);
}

void Click(const Event& event) {
  const int day = DayAt(event.x, event.y);
  if (day < 0) return;
  NoteTake(event.window);
  CalenEditDaySet(day);
  DayShow(event.window);
}

// --- The keys

void Holiday(WindowHandle dialog) {
  CalenEditHolidayTurn();
  Paint(dialog);
}

void Sticker(WindowHandle dialog) {
  SelectCalenSheelDialogRun(dialog);
  Paint(dialog);
}

void Picture(WindowHandle dialog) {
  SetCalenBmpDlgRun(dialog);
  Paint(dialog);
}

// The page as the desktop will show it.
void ImageDraw(Canvas* canvas, const Rect& area) {
  const CalenPage page = EditedPage();
  const Point corner = CalenPageCorner();
  FillArea(canvas, Drawing.Brushes[kBrushFFFFFF], area);
  CalenPageDraw(canvas, page, {area.left + corner.x, area.top + corner.y});
  CalenPictureLayerDraw(canvas, page, {area.left, area.top});
}

void Image(WindowHandle dialog) {
  NoteTake(dialog);
  FieldsTake(dialog);
  CalenImage image{CalenPageMeasure().pageWidth, CalenPageHeight(), ImageDraw};
  DspCalenImageDlgRun(SubDialog::DspCalenImageDlg, dialog, image);
}

struct Clearing {
  const char* question;  // behind the number of the month
  const char* caption;
  void (*clear)();
};
constexpr Clearing kNotes{"月の書きこみをクリアします", "月の書きこみクリア", CalenEditNotesClear};
constexpr Clearing kHolidays{"月の休日設定を全て解除します", "月の休日設定全解除", CalenEditHolidaysClear};
constexpr Clearing kStickers{"月のシールを全て剥します", "月の全シールを剥す", CalenEditStickersClear};

template <const Clearing& clearing>
void Clear(WindowHandle dialog) {
  char question[kNoteSize];
  TextFormat(question, sizeof question, "%d%s", CalendarEdit.month + 1, clearing.question);
  if (!BoxAsk(dialog, question, clearing.caption)) return;
  clearing.clear();
  DayShow(dialog);
}

// --- The dialog

void Open(WindowHandle dialog) {
  CalenEditBegin();
  ControlSetLimit(dialog, IDC_CALEN_DAY_NOTE, kNoteSize - 1);
  ControlSetLimit(dialog, IDC_CALEN_NAME, kCalenNameSize - 1);
  CalenFields fields = FieldsNow();
  FormShow(dialog, fields, Exchange);
  SpanShow(dialog);
}

// However it is left, what was changed is saved.
void Leave(WindowHandle dialog) {
  NoteTake(dialog);
  FieldsTake(dialog);
  CalenTakeDefinition();
  if (CalendarEdit.changed) {
    CalendarEdit.live = false;
    SaveTold(dialog, CalenSave() == 0, "カレンダー 詳細設定");
  }
  CalenWindowRenew();
  ToolDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, Paint},
    {EventKind::LeftDown, Click},
    {IDC_CALEN_BASE, EventKind::Chosen, SpanChosen},
    {IDC_CALEN_SPAN, EventKind::Chosen, SpanChosen},
    {IDC_CALEN_YEAR, EventKind::Chosen, MonthChosen},
    {IDC_CALEN_MONTH, EventKind::Chosen, MonthChosen},
    {IDC_CALEN_HOLIDAY, Holiday},
    {IDC_CALEN_STICKER, Sticker},
    {IDC_CALEN_SET_BMP, Picture},
    {IDC_CALEN_IMAGE, Image},
    {IDC_CALEN_CLEAR_NOTES, Clear<kNotes>},
    {IDC_CALEN_CLEAR_HOLIDAYS, Clear<kHolidays>},
    {IDC_CALEN_CLEAR_STICKERS, Clear<kStickers>},
    {kOkButton, Leave},
    {kCancelButton, Leave},
    {EventKind::Close, Leave},
    {EventKind::Destroy, CalenEditEnd},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int CalenderAdustDlgRun(WindowHandle owner) {
  const int result = ToolDialogRun(ToolDialog::CalenderAdustDlg, IDD_CalenderAdustDlg, owner, Handle);
  CalenEditEnd();
  return result;
}
