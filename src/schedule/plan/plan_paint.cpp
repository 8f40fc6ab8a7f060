// What the plan window draws: the table of its lines.
#include <algorithm>
#include <iterator>

#include "platform/window.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_window.h"
#include "schedule/table/table_draw.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

constexpr char kNothing[] = "----";
constexpr const char* kLoads[] = {"(軽)", "(中)", "(重)"};

// Below the window's keys; the third column has the hours, the fourth the repeats.
constexpr TableShape kShape{
    .top = 220, .titled = false, .reserved = 290, .hours = 100, .check = 100, .alarm = 0};

const ScpPlanRec& LineAt(int line) {
  return Plan.ScpPlanTable[std::clamp(line, 0, kScpLineMax - 1)];
}

void NumberText(char* text, int size, const char* zero, unsigned number, const char* behind) {
  if (number == 0) {
    TextCopy(text, static_cast<std::size_t>(size), zero);
  } else {
    TextFormat(text, static_cast<std::size_t>(size), "%3d%s", static_cast<int>(number), behind);
  }
}

void ContentText(const ScpPlanRec& line, TableRowText& text) {
  TextFormat(text.content, sizeof text.content, "%.*s", kScpTextSize, line.text);
  NumberText(text.check, sizeof text.check, kNothing, line.repeat, "");
}

void StudyRow(int line, TableRowText& text) {
  ContentText(LineAt(line), text);
  NumberText(text.hours, sizeof text.hours, kNothing, LineAt(line).hours, "H");
}

void TrainingRow(int line, TableRowText& text) {
  const ScpPlanRec& plan = LineAt(line);
  ContentText(plan, text);
  TextFormat(text.hours, sizeof text.hours, "%s%3dH",
             plan.load < std::size(kLoads) ? kLoads[plan.load] : "(-)", static_cast<int>(plan.hours));
}

constexpr TableLook kStudyLook{"   内  容 ", " 学習時間 ", " 復習回数 ", "", CopyMark::InPlan, StudyRow};
constexpr TableLook kTrainingLook{"   内  容 ", "(負荷) 時間",    " 予定回数 ",
                                  "",           CopyMark::InPlan, TrainingRow};

template <const TableLook& look>
void Draw(Canvas* canvas, const Rect& area) {
  const TableLayout layout = PlanLayout(SclTable.hPlanWnd);
  FillAround(canvas, BrushFace(), area, TableAreaOf(layout));
  TableDraw(canvas, layout, SclTable.PlanView, look);
}

void PaintAs(WindowHandle window, void (*draw)(Canvas*, const Rect&)) {
  Canvas* screen = CanvasGet(window);
  if (!screen) return;
  DrawSteady(screen, WindowClientRect(window), draw);
  CanvasRelease(screen);
}

}  // namespace

TableLayout PlanLayout(WindowHandle window) {
  return TableLayoutOf(WindowClientRect(window), kShape);
}

void PlanPaint(WindowHandle window) {
  PaintAs(window, Plan.head.ScpPlanKind == kScpTraining ? Draw<kTrainingLook> : Draw<kStudyLook>);
}

// kept: a plan's table that has scrolled shows the columns of a study plan, whatever the plan's
// kind, until the whole window is painted.
void PlanRedraw(WindowHandle window) {
  PaintAs(window, Draw<kStudyLook>);
}
