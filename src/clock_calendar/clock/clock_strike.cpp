#include "clock_calendar/clock/clock_strike.h"

#include <cstring>

#include "services/sound_file.h"
#include "services/text.h"

namespace {

constexpr int kNoStep = -1;

void PlaySound(const ClockStrikePlay& play) {
  if (play.sound[0] != '\0') SoundFilePlay(play.sound);
}

void EnterStep(ClockStrikePlay& play, int step) {
  play.step = step;
  play.wait = play.delay[step];
}

bool IsSetByUser(int mode) {
  return mode == kStrikeEveryHour || mode == kStrikeAtTwelve;
}

void FindEnds(ClockStrikePlay& play) {
  play.firstStep = play.lastStep = kNoStep;
  for (int step = 0; step < kStrikeSteps; ++step) {
    if (play.figures[step] == 0) continue;
    if (play.firstStep == kNoStep) play.firstStep = step;
    play.lastStep = step;
  }
}

}  // namespace

bool ClockStrikeSettings::operator==(const ClockStrikeSettings& other) const {
  return mode == other.mode && repeat == other.repeat && soundOn == other.soundOn &&
         std::strncmp(sound, other.sound, sizeof sound) == 0;
}

void StrikeBegin(ClockStrikePlay& play, const std::uint16_t (&delay)[kStrikeSteps],
                 const std::uint8_t (&figures)[kStrikeSteps], const ClockStrikeSettings& settings,
                 int hour12) {
  play = ClockStrikePlay{};
  play.on = true;
  play.endsAtZero = !IsSetByUser(settings.mode);
  const bool repeats = settings.repeat != 0 && IsSetByUser(settings.mode);
  play.repeats = !repeats ? 0 : hour12 == 0 ? 11 : hour12 - 1;
  std::memcpy(play.delay, delay, sizeof play.delay);
  std::memcpy(play.figures, figures, sizeof play.figures);
  if (settings.soundOn != 0) TextCopy(play.sound, sizeof play.sound, settings.sound);
  FindEnds(play);
  PlaySound(play);
  EnterStep(play, 0);
}

void StrikeTick(ClockStrikePlay& play) {
  if (play.wait > 0) {
    --play.wait;
    return;
  }
  if (play.step == play.lastStep && play.repeats > 0) {
    --play.repeats;
    PlaySound(play);
    EnterStep(play, play.firstStep);
    return;
  }
  const int next = play.step + 1;
  if (next >= kStrikeSteps || (play.endsAtZero && play.figures[next] == 0)) {
    play = ClockStrikePlay{};
    return;
  }
  EnterStep(play, next);
}

int StrikeFigure(const ClockStrikePlay& play) {
  return play.on ? play.figures[play.step] : 0;
}
