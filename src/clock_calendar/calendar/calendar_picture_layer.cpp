// The picture of the month: a background or a plain colour, the fixed figure, and the two
// figures that move.
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/painting.h"

namespace {

void GroundDraw(Canvas* canvas, const CalenPage& page, const Rect& area) {
  FillColour(canvas, ColourOf(CalenPageMonth(page).picture.backColour), area);
  DibDraw(canvas, area.left, area.top, page.pictures->CalenBackground);
}

Point StartOf(const CalenPage& page, int figure) {
  const CalenDefinition& definition = CalenSelectedDefinition();
  return {definition.startX[page.month][figure], definition.startY[page.month][figure]};
}

// Where a moving figure stands; in a preview, where the month has it start.
Point FigureAt(const CalenPage& page, int figure) {
  if (!page.preview) return CalenFigureAt(figure);
  const CalenMonthPicture& month = CalenPageMonth(page).picture;
  const Point start = StartOf(page, figure);
  return {start.x + month.correctX[figure], start.y + month.correctY[figure]};
}

void FigureDraw(Canvas* canvas, const MaskedFrame& figure, Point corner, Point at) {
  CalenPictureDraw(canvas, figure, {corner.x + at.x, corner.y + at.y});
}

}  // namespace

void CalenPictureLayerDraw(Canvas* canvas, const CalenPage& page, Point at) {
  const int height = CalenPictureHeight();
  if (height == 0) return;
  const Rect area = {at.x, at.y, at.x + CalenPageMeasure().pageWidth, at.y + height};
  CanvasClip(canvas, area);
  GroundDraw(canvas, page, area);
  FigureDraw(canvas, page.pictures->CalenFigures[kFigureCount], at, StartOf(page, kFigureCount));
  for (int figure = 0; figure < kFigureCount; ++figure)
    FigureDraw(canvas, page.pictures->CalenFigures[figure], at, FigureAt(page, figure));
  CanvasClipNone(canvas);
}
