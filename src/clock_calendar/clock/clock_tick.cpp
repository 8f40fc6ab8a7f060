// The time on the dial, and the hourly performance.
#include <algorithm>
#include <cstring>

#include "clock_calendar/clock/clock.h"
#include "platform/sound.h"
#include "services/program.h"
#include "services/text.h"

namespace {

constexpr int kNoStep = -1;

void PlayStrikeSound() {
  if (Clock.ClockSoundOn == 0 || Clock.ClockSoundName[0] == '\0') return;
  char path[kRootPathSize + kClockSoundSize];
  RootPath(path, sizeof path, "\\サウンド\\");
  TextAppend(path, sizeof path, Clock.ClockSoundName);
  SoundPlay(path);
}

void EnterStep(int step) {
  Clock.ClockStrikeStep = step;
  Clock.strikeWait = Clock.ClockStrikeDelay[step];
}

bool StrikeBegins() {
  if (Clock.ClockMinute != 0) return false;
  return Clock.ClockStrikeMode == kStrikeEveryHour || Clock.ClockHour12 == 0 || Clock.ClockHour12 == 12;
}

void BeginStrike() {
  const bool repeats = Clock.ClockStrikeSel != 0 && (Clock.ClockStrikeMode == kStrikeEveryHour ||
                                                     Clock.ClockStrikeMode == kStrikeAtTwelve);
  Clock.ClockStrikeRepeats = !repeats ? 0 : Clock.ClockHour12 == 0 ? 11 : Clock.ClockHour12 - 1;
  std::memcpy(Clock.strikeFigures, Clock.ClockHourFigures[Clock.ClockHour12], sizeof Clock.strikeFigures);
  Clock.firstStep = Clock.lastStep = kNoStep;
  for (int step = 0; step < kStrikeSteps; ++step) {
    if (Clock.strikeFigures[step] == 0) continue;
    if (Clock.firstStep == kNoStep) Clock.firstStep = step;
    Clock.lastStep = step;
  }
  Clock.ClockStrikeOn = true;
  PlayStrikeSound();
  EnterStep(0);
}

void ContinueStrike() {
  if (Clock.strikeWait > 0) {
    --Clock.strikeWait;
    return;
  }
  if (Clock.ClockStrikeStep == Clock.lastStep && Clock.ClockStrikeRepeats > 0) {
    --Clock.ClockStrikeRepeats;
    PlayStrikeSound();
    EnterStep(Clock.firstStep);
    return;
  }
  const int next = Clock.ClockStrikeStep + 1;
  const bool endsAtZero =
      Clock.ClockStrikeMode != kStrikeEveryHour && Clock.ClockStrikeMode != kStrikeAtTwelve;
  if (next >= kStrikeSteps || (endsAtZero && Clock.strikeFigures[next] == 0)) {
    ClockStrikeClear();
    return;
  }
  EnterStep(next);
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
    // kept: noon and the hour after it read 0, not 12.
    TextFormat(to, sizeof to, hour < 12 ? " AM %2d:%2d" : " PM %2d:%2d", hour < 12 ? hour : hour - 12,
               minute);
  } else {
    // kept: the dial of 24 hours is given the count of 12.
    TextFormat(to, sizeof to, "  %2d:%2d", hour % 12, minute);
  }
  char* tens = std::strchr(to, ':');
  if (tens && tens[1] == ' ') tens[1] = '0';
}

int ClockStrikeFigure() {
  return Clock.ClockStrikeOn ? Clock.strikeFigures[Clock.ClockStrikeStep] : 0;
}

void ClockStrikeClear() {
  Clock.ClockStrikeOn = false;
  Clock.ClockStrikeStep = 0;
  Clock.ClockStrikeRepeats = 0;
}

int ClockTickCheck(int hour, int minute) {
  const int need = ClockTimeTake(hour, minute);
  if (need == 0 && !Clock.ClockStrikeOn) return 0;
  const bool wasOn = Clock.ClockStrikeOn;
  const int wasFigure = ClockStrikeFigure();
  if (Clock.ClockStrikeMode == kStrikeNever) {
    ClockStrikeClear();
  } else if (Clock.ClockStrikeOn) {
    ContinueStrike();
  } else if (StrikeBegins()) {
    BeginStrike();
  }
  return need != 0 || wasOn != Clock.ClockStrikeOn || wasFigure != ClockStrikeFigure() ? 1 : 0;
}
