// SelectCalenSheelDialog, "カレンダーにシールを貼る": one of the stickers for the edited day.
#include "clock_calendar/calendar/calendar_dialogs.h"
#include "clock_calendar/calendar/calendar_edit.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/calendar_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/painting.h"

namespace {

constexpr int kPerRow = 10;
constexpr int kGap = 4;
constexpr int kEdge = 5;
constexpr int kRoomKept = 10;  // of the client area, both ways

struct Grid {
  int cellWidth;
  int cellHeight;
};

Grid GridOf(WindowHandle dialog) {
  const Rect client = WindowClientRect(dialog);
  return {(client.right - kRoomKept) / kPerRow - kGap,
          (client.bottom * 24 / 26 - kRoomKept) / kPerRow - kGap};
}

Rect CellOf(const Grid& grid, int sticker) {
  const int left = kEdge + sticker % kPerRow * (grid.cellWidth + kGap);
  const int top = kEdge + sticker / kPerRow * (grid.cellHeight + kGap);
  return {left, top, left + grid.cellWidth, top + grid.cellHeight};
}

void StickersLoad() {
  for (int i = 0; i < CalenStickerCount(); ++i) {
    int chara = 0;
    int figure = 0;
    CalenSticker(i, &chara, &figure);
    if (chara != 0) MaskedFrameLoad(CalendarEdit.stickers[i], chara, figure);
  }
}

void StickersFree() {
  for (MaskedFrame& sticker : CalendarEdit.stickers) MaskedFrameFree(sticker);
}

void Open() {
  StickersLoad();
  CalendarEdit.chosenSticker = CalenSelectedDefinition().stickers[CalendarEdit.month][CalendarEdit.day] - 1;
}

void CellDraw(Canvas* canvas, const Rect& cell, int sticker) {
  const bool chosen = sticker == CalendarEdit.chosenSticker;
  CanvasPen(canvas, Drawing.Pens[chosen ? kPenThick0000FF : kPen646464]);
  CanvasBrush(canvas, Drawing.Brushes[kBrushFFFFFF]);
  CanvasRectangle(canvas, cell.left, cell.top, cell.right, cell.bottom);
  const MaskedFrame& picture = CalendarEdit.stickers[sticker];
  CalenPictureDraw(canvas, picture,
                   {cell.left + (RectWidth(cell) - DibWidth(picture.picture)) / 2,
                    cell.top + (RectHeight(cell) - DibHeight(picture.picture)) / 2});
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  const Grid grid = GridOf(dialog);
  for (int i = 0; i < kStickerMax; ++i) CellDraw(screen, CellOf(grid, i), i);
  CanvasRelease(screen);
}

void Click(const Event& event) {
  const Grid grid = GridOf(event.window);
  for (int i = 0; i < CalenStickerCount(); ++i) {
    if (!RectHas(CellOf(grid, i), event.x, event.y)) continue;
    CalendarEdit.chosenSticker = i;
    Paint(event.window);
    return;
  }
}

// With no sticker chosen there is nothing to stick.
void Stick(WindowHandle dialog) {
  if (CalendarEdit.chosenSticker < 0) return;
  CalenEditStickerSet(CalendarEdit.chosenSticker);
  SubDialogEnd(dialog, kOkButton);
}

void TakeOff(WindowHandle dialog) {
  CalenEditStickerSet(-1);
  SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open}, {EventKind::Paint, Paint},  {EventKind::LeftDown, Click},
    {kOkButton, Stick},      {IDC_STICKER_OFF, TakeOff}, {EventKind::Destroy, StickersFree},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int SelectCalenSheelDialogRun(WindowHandle owner) {
  const int result =
      SubDialogRun(SubDialog::SelectCalenSheelDialog, IDD_SelectCalenSheelDialog, owner, Handle);
  StickersFree();
  return result;
}
