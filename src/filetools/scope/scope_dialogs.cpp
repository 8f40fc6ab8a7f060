#include "filetools/scope/scope_dialogs.h"

#include <algorithm>

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_bars.h"
#include "filetools/scope/scope_pie.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

constexpr int kAbove = 160;
constexpr int kBelow = 60;
constexpr int kRightOf = 2;
constexpr int kNameBytes = 23;

// Centres of the pies in the area.
constexpr int kDriveX = 160;
constexpr int kFolderX = 480;
constexpr int kPieY = 140;

void Reset(bool barChart) {
  Scope.scopeBarChart = barChart;
  Scope.scopeOverflow = false;
  Scope.scopeDriveCount = 0;
  Scope.scopeFolderCount = 0;
  Scope.firstLevelIndex = -1;
  Scope.folderIndex = -1;
  Scope.firstLevelTotal = 1.0F;
  Scope.chosenTotal = 0.0F;
}

}  // namespace

Rect StaticsArea(WindowHandle dialog) {
  const Rect client = WindowClientRect(dialog);
  return {client.left, client.top + kAbove, client.right - kRightOf, client.bottom - kBelow};
}

bool StaticsOpen(WindowHandle dialog, bool barChart) {
  const Rect area = StaticsArea(dialog);
  ControlSetText(dialog, IDC_STATICS_FOLDER, Scope.scopeFolder);
  Reset(barChart);
  ScopeSplitPath();
  if (!barChart) {
    Scope.scopeDriveCount = ScopeSearchRun(dialog, kStepDriveSearch);
    if (Scope.scopeDriveCount < 0) return false;
    ScopeFindFolder();
  }
  Scope.scopeFolderCount = ScopeSearchRun(dialog, kStepFolderSearch);
  if (Scope.scopeFolderCount < 0) return false;
  ScopeSortFolder();
  if (!barChart) ScopeSortDrive();
  ScopeDiskSpace();
  ScopeBuildPieDrive(std::min(Scope.scopeDriveCount, kScopePieWanted), area.left + kDriveX, area.top + kPieY,
                     kScopePieRadius);
  ScopeBuildPieFolder(std::min(Scope.scopeFolderCount, kScopePieWanted), area.left + kFolderX,
                      area.top + kPieY, kScopePieRadius);
  if (barChart) ScopeBuildBars();
  return true;
}

void StaticsPaint(WindowHandle dialog, void (*draw)(Canvas* canvas, const Rect& area)) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  const Rect area = StaticsArea(dialog);
  // As large as needed for the area to lie at its own place in it.
  Canvas* memory = CanvasMemory(screen, area.right, area.bottom);
  Canvas* canvas = memory ? memory : screen;
  const PenHandle black = PenCreate(PenStyle::Solid, 1, 0);
  FillArea(canvas, Drawing.FaceBrush, area);
  CanvasPen(canvas, black);
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, 0);
  draw(canvas, area);
  if (memory) {
    CanvasCopy(screen, area.left, area.top, RectWidth(area), RectHeight(area), memory, area.left, area.top);
  }
  CanvasRelease(memory);
  CanvasRelease(screen);
  PenDelete(black);
}

void StaticsName(char* to, int size, const char* before, const char* name) {
  TextFormat(to, static_cast<std::size_t>(size), "%s%.*s", before,
             static_cast<int>(TextPrefix(name, kNameBytes)), name);
}
