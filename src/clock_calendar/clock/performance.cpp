#include "clock_calendar/clock/performance.h"

#include "character/performance_figures.h"
#include "clock_calendar/clock/clock.h"
#include "services/sound_file.h"

PerformanceState Performance;

namespace {

constexpr int kStepHundredths = 10;  // of every step; the durations of a record are not used
constexpr int kPassMax = 5;

bool stepping;
bool goesRound;

enum class Wait { None, Ticks, Time };
Wait wait = Wait::None;
std::int32_t ticksLeft;
LocalTime deadline;

// The active record; null for none.
const ClockPerformance* Record() {
  const bool known = Performance.PerformanceActive >= 1 &&
                     Performance.PerformanceActive <= Clock.ClockPerformanceCount &&
                     Performance.PerformanceActive <= kPerformanceMax;
  return known ? &Clock.ClockPerformances[Performance.PerformanceActive - 1] : nullptr;
}

void PlaySound() {
  const ClockPerformance* record = Record();
  if (record && record->sound[0] != '\0') SoundFilePlay(record->sound);
}

void WaitForStep() {
  LocalTime now;
  TimeGetLocal(&now);
  PerformanceWaitStart(kStepHundredths, now);
}

void NextInLoop() {
  ++Performance.PerformanceStep;
  if (Performance.PerformanceStep >= kPerformanceStepCount ||
      !PerformanceFigure(Performance.PerformanceStep).picture)
    Performance.PerformanceStep = 0;
}

void NextInPasses() {
  if (++Performance.PerformanceStep < kPerformanceStepCount) return;
  Performance.PerformanceStep = 0;
  if (++Performance.PerformancePasses < kPassMax) {
    PlaySound();
    return;
  }
  Performance.PerformanceActive = 0;
  stepping = false;
}

}  // namespace

void PerformanceBegin(bool looping) {
  PerformanceEnd();
  Performance.PerformanceStep = 0;
  Performance.PerformancePasses = 0;
  goesRound = looping;
  const ClockPerformance* record = Record();
  if (!record) return;
  stepping = (record->flags & kPerformanceCharacter) != 0 && PerformanceCharacterIsSelected() &&
             record->figureMode != 0;
  if (stepping) WaitForStep();
  PlaySound();
}

void PerformanceNext() {
  if (!stepping) return;
  if (goesRound) {
    NextInLoop();
  } else {
    NextInPasses();
  }
  if (stepping) WaitForStep();
}

void PerformanceEnd() {
  stepping = false;
  wait = Wait::None;
  PerformanceFiguresFree();
}

bool PerformanceShowsFigures() {
  return stepping;
}

void PerformanceWaitStart(int hundredths, const LocalTime& now) {
  if (hundredths < 100) {
    wait = Wait::Ticks;
    ticksLeft = hundredths / 3 + 1;
    return;
  }
  wait = Wait::Time;
  deadline = now;
  const int sum = now.millisecond / 10 + hundredths;
  const int seconds = now.second + sum / 100;
  const int minutes = now.minute + seconds / 60;
  deadline.millisecond = sum % 100 * 10;
  deadline.second = seconds % 60;
  deadline.minute = minutes % 60;
  deadline.hour = (now.hour + minutes / 60) % 24;
}

bool PerformanceWaitIsOver(const LocalTime& now) {
  bool over = false;
  if (wait == Wait::Ticks) over = --ticksLeft <= 0;
  if (wait == Wait::Time) {
    // kept: each of the four numbers must have been reached, so a deadline at the
    // beginning of a minute waits for that second of a later minute if it is missed.
    over = now.hour >= deadline.hour && now.minute >= deadline.minute && now.second >= deadline.second &&
           now.millisecond >= deadline.millisecond;
  }
  if (over) wait = Wait::None;
  return over;
}
