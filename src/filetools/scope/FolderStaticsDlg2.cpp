// FolderStaticsDlg2, "フォルダー統計 棒グラフ": the chosen folder's entries, largest
// first, as bars that scroll.

#include <algorithm>

#include "filetools/scope/scope_bars.h"
#include "filetools/scope/scope_dialogs.h"
#include "filetools/scope/scope_state.h"
#include "filetools/scope/scope_tables.h"
#include "filetools/scope/scope_unit.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/scroll_set.h"
#include "services/text.h"

namespace {

constexpr int kRowHeight = 20;
constexpr int kNameX = 20;
constexpr int kBoxX = 212;
constexpr int kBoxHeight = 16;
constexpr int kColumn = 8;  // a half-width character
constexpr int kBarWidth = 16;
constexpr int kPage = 10;

// The folder's own row and one for each entry.
int Lines() {
  return Scope.scopeFolderCount + 1;
}

Rect RowsArea(Rect area) {
  area.right -= kBarWidth;
  return area;
}

void DrawRow(Canvas* canvas, int line, int y) {
  char text[64] = "指定フォルダ";
  int row = 0;
  if (line > 0) {
    const int number = ScopeOrder(ScopeArea::Folder, line - 1, Scope.scopeFolderCount);
    if (number < 0) return;
    StaticsName(text, sizeof text, "", ScopeEntryGet(ScopeArea::Folder, number).name);
    row = number + 1;
  }
  const ScopeBarRow bar = ScopeBarGet(row);
  CanvasText(canvas, kNameX, y, text);
  CanvasBrush(canvas, Drawing.Brushes[kBrushFFFFFF]);
  CanvasRectangle(canvas, kBoxX, y, kBoxX + kScopeBarFull, y + kBoxHeight);
  CanvasBrush(canvas, Drawing.Brushes[line == 0 ? kBrush0000E6 : kBrushFF0000]);
  if (bar.barWidth > 0) CanvasRectangle(canvas, kBoxX, y, kBoxX + bar.barWidth, y + kBoxHeight);
  const int percent = TextFormat(text, sizeof text, "%d.%d%%", bar.percentInt, bar.percentFrac);
  const int x = kBoxX + kScopeBarFull;
  CanvasText(canvas, x, y, text);
  TextFormat(text, sizeof text, "(%d.%d %s)", bar.valueInt, bar.valueFrac, ScopeUnitText(bar.unit));
  CanvasText(canvas, x + kColumn * percent, y, text);
}

void Draw(Canvas* canvas, const Rect& area) {
  const Rect rows = RowsArea(area);
  const int fit = RectHeight(rows) / kRowHeight;
  CanvasClip(canvas, rows);
  for (int i = 0; i < fit && Scope.firstBar + i < Lines(); ++i)
    DrawRow(canvas, Scope.firstBar + i, rows.top + i * kRowHeight);
  CanvasClipNone(canvas);
}

void UpdateScroll(WindowHandle dialog) {
  ScrollSet(dialog, StaticsArea(dialog).top, kRowHeight, Lines(), Scope.firstBar, Scope.hBarScroll);
}

void Open(WindowHandle dialog) {
  Scope.hBarScroll = nullptr;
  Scope.firstBar = 0;
  if (!StaticsOpen(dialog, true)) {
    MenuDialogEnd(dialog, 2);
    return;
  }
  const Rect area = StaticsArea(dialog);
  Scope.hBarScroll = ControlCreate(dialog, ControlKind::VerticalScrollBar, IDC_STATICS_SCROLL,
                                   {RowsArea(area).right, area.top, area.right, area.bottom}, "");
  UpdateScroll(dialog);
}

void ScrollRows(const Event& event) {
  // How far the parts go that do not tell where to, in their order.
  static constexpr int steps[] = {-1, 1, -kPage, kPage};
  // kept: the bars scroll to the number of entries less 2, not to the last page.
  const int last = std::max(Scope.scopeFolderCount - 2, 0);
  if (event.control != Scope.hBarScroll || event.scroll == Scroll::End) return;
  int to = event.scroll == Scroll::Bottom ? last : 0;
  if (event.scroll == Scroll::Thumb) to = event.scrollPosition;
  if (event.scroll <= Scroll::PageDown) to = Scope.firstBar + steps[static_cast<int>(event.scroll)];
  Scope.firstBar = std::clamp(to, 0, last);
  UpdateScroll(event.window);
  SendPaint(event.window);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, [](WindowHandle dialog) { StaticsPaint(dialog, Draw); }},
    {EventKind::VScroll, ScrollRows},
};

bool Handle(const Event& event) {
  if (event.kind == EventKind::Destroy) Scope.hBarScroll = nullptr;
  return DialogActRun(event, kActs);
}

}  // namespace

void FolderStaticsDlg2Run(WindowHandle owner) {
  MenuDialogRun(MenuDialog::FolderStaticsDlg2, IDD_FolderStaticsDlg2, owner, Handle);
}
