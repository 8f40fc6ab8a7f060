#include "clock_calendar/clock/performance.h"

#include "character/performance_figures.h"
#include "clock_calendar/clock/clock.h"
#include "services/sound_file.h"

PerformanceState Performance;

namespace {

constexpr int kStepHundredths = 10;  // kept: the durations of a performance record have no effect
constexpr int kPassMax = 5;

// The active record; null for none.
const ClockPerformance* Record() {
  const bool known = Performance.PerformanceActive >= 1 &&
                     Performance.PerformanceActive <= PerformanceTable.ClockPerformanceCount &&
                     Performance.PerformanceActive <= kPerformanceMax;
  return known ? &PerformanceTable.ClockPerformances[Performance.PerformanceActive - 1] : nullptr;
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
  Performance.stepping = false;
}

}  // namespace

void PerformanceBegin(bool looping) {
  PerformanceEnd();
  Performance.PerformanceStep = 0;
  Performance.PerformancePasses = 0;
  Performance.goesRound = looping;
  const ClockPerformance* record = Record();
  if (!record) return;
  Performance.stepping = (record->flags & kPerformanceCharacter) != 0 && PerformanceCharacterIsSelected() &&
                         record->figureMode != 0;
  if (Performance.stepping) WaitForStep();
  PlaySound();
}

void PerformanceNext() {
  if (!Performance.stepping) return;
  if (Performance.goesRound) {
    NextInLoop();
  } else {
    NextInPasses();
  }
  if (Performance.stepping) WaitForStep();
}

void PerformanceEnd() {
  Performance.stepping = false;
  Performance.wait = PerformanceWait::None;
  PerformanceFiguresFree();
}

bool PerformanceShowsFigures() {
  return Performance.stepping;
}

void PerformanceWaitStart(int hundredths, const LocalTime& now) {
  if (hundredths < 100) {
    Performance.wait = PerformanceWait::Ticks;
    Performance.ticksLeft = hundredths / 3 + 1;
    return;
  }
  Performance.wait = PerformanceWait::Time;
  Performance.deadline = now;
  const int sum = now.millisecond / 10 + hundredths;
  const int seconds = now.second + sum / 100;
  const int minutes = now.minute + seconds / 60;
  Performance.deadline.millisecond = sum % 100 * 10;
  Performance.deadline.second = seconds % 60;
  Performance.deadline.minute = minutes % 60;
  Performance.deadline.hour = (now.hour + minutes / 60) % 24;
}

bool PerformanceWaitIsOver(const LocalTime& now) {
  bool over = false;
  if (Performance.wait == PerformanceWait::Ticks) over = --Performance.ticksLeft <= 0;
  if (Performance.wait == PerformanceWait::Time) {
    // kept: each of the four numbers of a performance's deadline must have been reached, so a deadline at the
    // beginning of a minute waits for that second of a later minute if it is missed.
    over = now.hour >= Performance.deadline.hour && now.minute >= Performance.deadline.minute &&
           now.second >= Performance.deadline.second && now.millisecond >= Performance.deadline.millisecond;
  }
  if (over) Performance.wait = PerformanceWait::None;
  return over;
}
