// DispCelSclMapPosDlg: the map of the schedule's application, with a mark in the cells
// whose lines have a status.

#include <algorithm>

#include "character/alarm_images.h"
#include "platform/canvas.h"
#include "platform/window.h"
#include "resources/schedule_rates_ids.h"
#include "schedule/rates/rates_dialogs.h"
#include "schedule/rates/scl_map.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/painting.h"
#include "world/wef_file.h"

namespace {

constexpr int kBand = 60;  // pixels for the button below the map
constexpr Colour kChosenColour = MakeColour(255, 0, 0);
constexpr int kChosenWidth = 3;

Rect MapArea(WindowHandle dialog) {
  const Rect client = WindowClientRect(dialog);
  return {0, 0, client.right, std::max(client.bottom - kBand, 0)};
}

struct Map {
  Canvas* canvas;
  Rect area;  // where the map lies on the canvas
};

// A cell of which the window shows something.
// bounded: the numbers of a cell and its size come from files; a cell beyond the window is
// not worked out, however far away it claims to be.
bool IsOnMap(const Map& map, int column, int row) {
  const std::int64_t left = map.area.left + std::int64_t{column} * Sef.grid.cellWidth;
  const std::int64_t top = map.area.top + std::int64_t{row} * Sef.grid.cellHeight;
  return Sef.grid.cellWidth > 0 && Sef.grid.cellHeight > 0 && left < map.area.right && top < map.area.bottom;
}

// The place of one that is on the map.
Rect CellOf(const Map& map, int column, int row) {
  const int left = map.area.left + column * Sef.grid.cellWidth;
  const int top = map.area.top + row * Sef.grid.cellHeight;
  return {left, top, left + Sef.grid.cellWidth, top + Sef.grid.cellHeight};
}

// --- The picture and its cells

void DrawGround(const Map& map) {
  static constexpr std::uint8_t kNoColour[3] = {255, 255, 255};
  const bool known = SclMap.read && Wef.sceneCount > 0;
  BrushHandle ground = BrushCreate(ColourOf(known ? Wef.scenes[0].fallback : kNoColour));
  FillArea(map.canvas, ground, map.area);
  CanvasBrush(map.canvas, BrushNothing());
  BrushDelete(ground);
  DibDraw(map.canvas, map.area.left, map.area.top, SclMap.picture);
}

// bounded: the grid of a map is drawn as far as the window shows it, however many cells it claims.
void DrawCells(const Map& map) {
  for (int row = 0; static_cast<unsigned>(row) < Sef.grid.rows && IsOnMap(map, 0, row); ++row) {
    for (int column = 0; static_cast<unsigned>(column) < Sef.grid.columns && IsOnMap(map, column, row);
         ++column) {
      const Rect cell = CellOf(map, column, row);
      CanvasRectangle(map.canvas, cell.left, cell.top, cell.right + 1, cell.bottom + 1);
    }
  }
}

void DrawGrid(const Map& map) {
  PenHandle pen = PenCreate(PenStyle::Solid, 1, ColourOf(Sef.grid.pen));
  BrushHandle fill = Sef.grid.filled == 1 ? BrushCreate(ColourOf(Sef.grid.fill)) : nullptr;
  CanvasPen(map.canvas, pen);
  CanvasBrush(map.canvas, fill ? fill : BrushNothing());
  DrawCells(map);
  CanvasPen(map.canvas, PenNothing());
  CanvasBrush(map.canvas, BrushNothing());
  PenDelete(pen);
  BrushDelete(fill);
}

void DrawChosen(const Map& map) {
  if (SclMap.column == 0 || !IsOnMap(map, SclMap.column - 1, SclMap.row - 1)) return;
  const Rect cell = CellOf(map, SclMap.column - 1, SclMap.row - 1);
  PenHandle pen = PenCreate(PenStyle::Solid, kChosenWidth, kChosenColour);
  CanvasPen(map.canvas, pen);
  CanvasBrush(map.canvas, BrushNothing());
  CanvasRectangle(map.canvas, cell.left, cell.top, cell.right + 1, cell.bottom + 1);
  CanvasPen(map.canvas, PenNothing());
  PenDelete(pen);
}

// --- Marks

// A mark is put into its cell at the cell's size: what lies below it is stretched to the
// picture's size, takes the picture through its mask, and goes back.
void DrawMark(const SclMapMark& mark, void* context) {
  const Map& map = *static_cast<const Map*>(context);
  const ImageHandle picture = SclMap.marks[mark.type];
  if (!DibBits(picture) || !IsOnMap(map, mark.column, mark.row)) return;
  const Rect cell = CellOf(map, mark.column, mark.row);
  const int width = DibWidth(picture);
  const int height = DibHeight(picture);
  Canvas* scratch = CanvasMemory(map.canvas, width, height);
  if (!scratch) return;
  CanvasStretch(scratch, 0, 0, width, height, map.canvas, cell.left, cell.top, RectWidth(cell),
                RectHeight(cell));
  if (SclMap.masks[mark.type]) {
    MaskedDraw(scratch, 0, 0, picture, SclMap.masks[mark.type]);
  } else {
    DibDraw(scratch, 0, 0, picture);
  }
  CanvasStretch(map.canvas, cell.left, cell.top, RectWidth(cell), RectHeight(cell), scratch, 0, 0, width,
                height);
  CanvasRelease(scratch);
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  DrawSteady(screen, MapArea(dialog), [](Canvas* canvas, const Rect& area) {
    Map map{canvas, area};
    DrawGround(map);
    if (SclMap.read) {
      DrawGrid(map);
      SclMapMarks(DrawMark, &map);
    }
    DrawChosen(map);
  });
  CanvasRelease(screen);
}

// --- The dialog

void Click(const Event& event) {
  const Rect area = MapArea(event.window);
  if (!SclMap.read || event.y >= area.bottom) return;
  SclMapClick(event.x, event.y);
  SendPaint(event.window);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, SclMapPicturesLoad},
    {EventKind::Paint, Paint},
    {EventKind::LeftDown, Click},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void DispCelSclMapPosDlgRun(WindowHandle owner) {
  PlainDialogRun(IDD_DispCelSclMapPosDlg, owner, Handle);
  SclMapPicturesFree();
}
