#include "clock_calendar/clock/clock_face.h"

#include <algorithm>

#include "clock_calendar/clock/clock.h"
#include "services/painting.h"

namespace {

constexpr int kAmPmWidth = 100;
constexpr int kDigitsWidth = 80;
constexpr int kBoxHeight = 21;
constexpr int kTextDown = 2;  // of the box; a line of text is 16 pixels high

void LineDraw(Canvas* canvas, const Point& from, const Point& to) {
  CanvasLine(canvas, from.x, from.y, to.x, to.y);
}

void DotDraw(Canvas* canvas, const Point& at) {
  CanvasEllipse(canvas, at.x - kHandDotRadius, at.y - kHandDotRadius, at.x + kHandDotRadius + 1,
                at.y + kHandDotRadius + 1);
}

void HandDraw(Canvas* canvas, const ClockHandShape& hand, int position) {
  Point at[kHandPoints] = {};
  std::transform(hand.points[position], hand.points[position] + hand.pointCount, at, [](const Point& p) {
    return Point{Clock.ClockCentre.x + p.x, Clock.ClockCentre.y + p.y};
  });
  if (hand.form == HandForm::None) return;
  if (hand.form == HandForm::Filled) return CanvasPolygon(canvas, at, hand.pointCount);
  LineDraw(canvas, at[0], at[1]);
  if (hand.form == HandForm::LineDot) DotDraw(canvas, at[1]);
  if (hand.form != HandForm::Arrow) return;
  LineDraw(canvas, at[1], at[2]);
  LineDraw(canvas, at[1], at[3]);
}

void DigitsDraw(Canvas* canvas, BrushHandle face) {
  const Point& at = Clock.ClockCentre;
  const int width = Clock.ClockHandKind == kHandAmPm ? kAmPmWidth : kDigitsWidth;
  FillArea(canvas, face, {at.x, at.y, at.x + width, at.y + kBoxHeight});
  char text[kClockTextSize];
  ClockTimeText(Clock.ClockHandKind, Clock.ClockHour, Clock.ClockMinute, text);
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, Clock.ClockHandColour);
  CanvasText(canvas, at.x, at.y + kTextDown, text);
}

}  // namespace

void ClockTimeDraw(Canvas* canvas, BrushHandle face) {
  if (ClockIsDigital(Clock.ClockHandKind)) return DigitsDraw(canvas, face);
  HandDraw(canvas, ClockHands.ClockHourHand, ClockHourPosition(Clock.ClockHour12, Clock.ClockMinute));
  HandDraw(canvas, ClockHands.ClockMinuteHand, ClockMinutePosition(Clock.ClockMinute));
}
