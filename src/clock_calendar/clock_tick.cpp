// The time on the dial, and the hourly performance.
#include <algorithm>
#include <cstring>

#include "clock_calendar/clock.h"
#include "platform/sound.h"
#include "shell/shell.h"
#include "shell/text.h"

std::int32_t ClockHour;
std::int32_t ClockHour12;
std::int32_t ClockMinute;

bool ClockStrikeOn;
std::int32_t ClockStrikeStep;
std::int32_t ClockStrikeRepeats;

namespace {

constexpr int kNoStep = -1;

unsigned char strikeFigures[kStrikeSteps];
std::int32_t strikeWait;
int firstStep = kNoStep;
int lastStep = kNoStep;

void PlayStrikeSound() {
  if (ClockSoundOn == 0 || ClockSoundName[0] == '\0') return;
  char path[kRootPathSize + kClockSoundSize];
  RootPath(path, sizeof path, "\\サウンド\\");
  TextAppend(path, sizeof path, ClockSoundName);
  SoundPlay(path);
}

void EnterStep(int step) {
  ClockStrikeStep = step;
  strikeWait = ClockStrikeDelay[step];
}

bool StrikeBegins() {
  if (ClockMinute != 0) return false;
  return ClockStrikeMode == kStrikeEveryHour || ClockHour12 == 0 || ClockHour12 == 12;
}

void BeginStrike() {
  const bool repeats =
      ClockStrikeSel != 0 && (ClockStrikeMode == kStrikeEveryHour || ClockStrikeMode == kStrikeAtTwelve);
  ClockStrikeRepeats = !repeats ? 0 : ClockHour12 == 0 ? 11 : ClockHour12 - 1;
  std::memcpy(strikeFigures, ClockHourFigures[ClockHour12], sizeof strikeFigures);
  firstStep = lastStep = kNoStep;
  for (int step = 0; step < kStrikeSteps; ++step) {
    if (strikeFigures[step] == 0) continue;
    if (firstStep == kNoStep) firstStep = step;
    lastStep = step;
  }
  ClockStrikeOn = true;
  PlayStrikeSound();
  EnterStep(0);
}

void ContinueStrike() {
  if (strikeWait > 0) {
    --strikeWait;
    return;
  }
  if (ClockStrikeStep == lastStep && ClockStrikeRepeats > 0) {
    --ClockStrikeRepeats;
    PlayStrikeSound();
    EnterStep(firstStep);
    return;
  }
  const int next = ClockStrikeStep + 1;
  const bool endsAtZero = ClockStrikeMode != kStrikeEveryHour && ClockStrikeMode != kStrikeAtTwelve;
  if (next >= kStrikeSteps || (endsAtZero && strikeFigures[next] == 0)) {
    ClockStrikeClear();
    return;
  }
  EnterStep(next);
}

}  // namespace

int ClockTimeTake(int hour, int minute) {
  const int hour12 = hour % 12;
  const bool otherHour = hour12 != ClockHour12 || (ClockHandKind == kHandAmPm && hour != ClockHour);
  const int need = otherHour ? 2 : minute != ClockMinute ? 1 : 0;
  ClockHour = hour;
  ClockHour12 = hour12;
  ClockMinute = minute;
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
  return ClockStrikeOn ? strikeFigures[ClockStrikeStep] : 0;
}

void ClockStrikeClear() {
  ClockStrikeOn = false;
  ClockStrikeStep = 0;
  ClockStrikeRepeats = 0;
}

int ClockTickCheck(int hour, int minute) {
  const int need = ClockTimeTake(hour, minute);
  if (need == 0 && !ClockStrikeOn) return 0;
  const bool wasOn = ClockStrikeOn;
  const int wasFigure = ClockStrikeFigure();
  if (ClockStrikeMode == kStrikeNever) {
    ClockStrikeClear();
  } else if (ClockStrikeOn) {
    ContinueStrike();
  } else if (StrikeBegins()) {
    BeginStrike();
  }
  return need != 0 || wasOn != ClockStrikeOn || wasFigure != ClockStrikeFigure() ? 1 : 0;
}
