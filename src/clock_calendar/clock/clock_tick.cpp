// The time on the dial, and the hourly performance.
#include <algorithm>
#include <cstring>

#include "clock_calendar/clock/clock.h"
#include "services/text.h"

namespace {

bool StrikeIsDue() {
  if (Clock.ClockMinute != 0) return false;
  return Clock.ClockStrikeMode == kStrikeEveryHour || Clock.ClockHour12 == 0 || Clock.ClockHour12 == 12;
}

}  // namespace

int ClockTimeTake(int hour, int minute) {
  const int hour12 = hour % 12;
  const bool otherHour =
      hour12 != Clock.ClockHour12 || (Clock.ClockHandKind == kHandAmPm && hour != Clock.ClockHour);
  const int need = otherHour ? 2 : minute != Clock.ClockMinute ? 1 : 0;
  Clock.ClockHour = hour;
  Clock.ClockHour12 = hour12;
  Clock.ClockMinute = minute;
  return need;
}

int ClockHourPosition(int hour12, int minute) {
  return std::clamp(hour12 * 10 + minute / 6, 0, kHourPositions - 1);
}

int ClockMinutePosition(int minute) {
  return std::clamp(minute, 0, kMinutePositions - 1);
}

void ClockTimeText(int hand, int hour, int minute, char (&to)[kClockTextSize]) {
  if (hand == kHandAmPm) {
    // kept: from noon to one o'clock the AM/PM clock reads 0, not 12.
    TextFormat(to, sizeof to, hour < 12 ? " AM %2d:%2d" : " PM %2d:%2d", hour < 12 ? hour : hour - 12,
               minute);
  } else {
    // kept: the digital clock without AM and PM reads the hours modulo 12 too.
    TextFormat(to, sizeof to, "  %2d:%2d", hour % 12, minute);
  }
  char* tens = std::strchr(to, ':');
  if (tens && tens[1] == ' ') tens[1] = '0';
}

int ClockStrikeFigure() {
  return StrikeFigure(Clock.strike);
}

int ClockTickCheck(int hour, int minute) {
  const int need = ClockTimeTake(hour, minute);
  if (need == 0 && !Clock.strike.on) return 0;
  const bool wasOn = Clock.strike.on;
  const int wasFigure = ClockStrikeFigure();
  if (Clock.ClockStrikeMode == kStrikeNever) {
    Clock.strike = ClockStrikePlay{};
  } else if (Clock.strike.on) {
    StrikeTick(Clock.strike);
  } else if (StrikeIsDue()) {
    StrikeBegin(Clock.strike, Clock.ClockStrikeDelay, Clock.ClockHourFigures[Clock.ClockHour12],
                ClockStrikeSettingsNow(), Clock.ClockHour12);
  }
  return need != 0 || wasOn != Clock.strike.on || wasFigure != ClockStrikeFigure() ? 1 : 0;
}
