// FolderStaticsDlg, "フォルダー統計 円グラフ": the drive and the chosen folder as
// pies, each with a key below and leader lines beside.

#include "filetools/scope/scope_dialogs.h"
#include "filetools/scope/scope_pie.h"
#include "filetools/scope/scope_state.h"
#include "filetools/scope/scope_unit.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/text.h"

namespace {

constexpr int kTextSize = 320;

// Where a column stands: its disc's top left corner, from there the texts above and
// the key below, and the x of the key's sizes.
struct Column {
  const ScopePie& pie;
  const ScopeLeaderRule& leaders;
  int x0;
  int y0;
  int sizeX;
};
constexpr int kLeft = 60;
constexpr int kTop = 40;
constexpr int kRight = 320;  // the right column from the left one
constexpr int kDiameter = 2 * kScopePieRadius;
constexpr int kTitleAbove = 40;
constexpr int kAmountAbove = 20;
constexpr int kKeyBelow = 220;
constexpr int kKeyLeft = 20;
constexpr int kKeyStep = 20;
constexpr int kSizeX = 228;
constexpr int kColumn = 8;  // a half-width character

// The colour of a line of the key and its slice.
BrushHandle BrushOf(const ScopePieRow& row, int line) {
  static constexpr BrushIndex brushes[] = {
      kBrush0000E6, kBrushFF0000, kBrush00C800, kBrush8CE6F0, kBrush00F0F0, kBrushF000F0, kBrushFFFF00,
  };
  constexpr int kColours = 7;
  // kept: in the pie of the drive the chosen folder has the colour of the slice that it lies in.
  if (row.tag == kTagChosen) line = 0;
  return Drawing.Brushes[brushes[line < kColours ? line : line % kColours + 1]];
}

void DrawSlices(Canvas* canvas, const Column& column) {
  const int right = column.x0 + kDiameter;
  const int bottom = column.y0 + kDiameter;
  CanvasBrush(canvas, Drawing.Brushes[kBrushFFFFFF]);
  CanvasEllipse(canvas, column.x0, column.y0, right, bottom);
  for (int i = 0; i < column.pie.count; ++i) {
    const ScopePieRow& row = column.pie.rows[i];
    // kept: a slice of a pie whose ends meet is not drawn, be it nothing or the whole pie.
    if (row.tag == kTagFree || (row.x1 == row.x2 && row.y1 == row.y2)) continue;
    CanvasBrush(canvas, BrushOf(row, i));
    CanvasPie(canvas, column.x0, column.y0, right, bottom, row.x1, row.y1, row.x2, row.y2);
  }
}

void DrawKey(Canvas* canvas, const Column& column) {
  // settled: in the keys of the pies a name of 23 bytes behind its number ends 240 or 248 pixels from its
  // key's left edge. The sizes stand 188 from it on the left and 228 on the right, and with sizes further
  // out, which take 96, the left key would run into the right one, which begins 320 from it.
  // A longer line ends with the last whole character in front of the sizes.
  const int keyX = column.x0 - kKeyLeft;
  const int columns = (column.sizeX - keyX) / kColumn;
  for (int i = 0; i < column.pie.count; ++i) {
    const ScopePieRow& row = column.pie.rows[i];
    const int y = column.y0 + kKeyBelow + i * kKeyStep;
    char before[32];
    if (row.tag > 0) {
      TextFormat(before, sizeof before, "%d.(%2d) ", i + 1, row.tag);
    } else if (row.tag == kTagChosen) {
      TextFormat(before, sizeof before, "%d.%c:\\..\\", i + 1, Scope.driveRoot[0]);
    } else {
      TextFormat(before, sizeof before, "%d.   ", i + 1);
    }
    char text[kTextSize];
    StaticsName(text, sizeof text, before, row.name);
    const auto whole = static_cast<int>(TextPrefix(text, columns));
    CanvasClip(canvas, {keyX, y, keyX + whole * kColumn, y + kKeyStep});
    CanvasText(canvas, keyX, y, text);
    CanvasClipNone(canvas);
    TextFormat(text, sizeof text, " %d.%d %s", row.valueInt, row.valueFrac, ScopeUnitText(row.unit));
    CanvasText(canvas, column.sizeX, y, text);
  }
}

void DrawLeaders(Canvas* canvas, const Column& column) {
  ScopeLeader leaders[kScopePieRows];
  ScopePieLeaders(column.pie, column.leaders, leaders);
  for (int i = 0; i < column.pie.count; ++i) {
    char number[16];
    TextFormat(number, sizeof number, "%d", i + 1);
    CanvasLine(canvas, leaders[i].x, leaders[i].y, leaders[i].endX, leaders[i].y);
    CanvasText(canvas, leaders[i].number.x, leaders[i].number.y, number);
  }
}

void DrawColumn(Canvas* canvas, const Column& column, const char* title, const char* amount) {
  CanvasText(canvas, column.x0, column.y0 - kTitleAbove, title);
  CanvasText(canvas, column.x0, column.y0 - kAmountAbove, amount);
  DrawSlices(canvas, column);
  DrawKey(canvas, column);
  DrawLeaders(canvas, column);
}

void Draw(Canvas* canvas, const Rect& area) {
  const int x0 = area.left + kLeft;
  const int y0 = area.top + kTop;
  char amount[kTextSize];
  const ScopeAmount drive = ScopeUnit(Scope.driveTotal);
  TextFormat(amount, sizeof amount, "ドライブ %c 容量:%d.%d %s", Scope.driveRoot[0], drive.valueInt,
             drive.valueFrac, ScopeUnitText(drive.unit));
  // kept: the sizes in the key of the left pie stand at 228 of the window, those of the right
  // one at 228 from the key's left edge.
  DrawColumn(canvas, {Scope.drivePie, kDriveLeaders, x0, y0, kSizeX}, "対 ルートドライブ 容量比", amount);
  if (Scope.folderPie.count == 0) return;
  const ScopeAmount folder = ScopeUnit(Scope.chosenTotal);
  TextFormat(amount, sizeof amount, "フォルダー容量:%d.%d %s", folder.valueInt, folder.valueFrac,
             ScopeUnitText(folder.unit));
  const int rightX = x0 + kRight;
  DrawColumn(canvas, {Scope.folderPie, kFolderLeaders, rightX, y0, rightX - kKeyLeft + kSizeX},
             "指定フォルダー内容量比", amount);
}

void Open(WindowHandle dialog) {
  if (!StaticsOpen(dialog, false)) MenuDialogEnd(dialog, 2);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, [](WindowHandle dialog) { StaticsPaint(dialog, Draw); }},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void FolderStaticsDlgRun(WindowHandle owner) {
  MenuDialogRun(MenuDialog::FolderStaticsDlg, IDD_FolderStaticsDlg, owner, Handle);
}
