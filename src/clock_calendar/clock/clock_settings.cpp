#include "clock_calendar/clock/clock_settings.h"

#include <cstring>
#include <iterator>

#include "character/character_tables.h"
#include "services/text.h"

namespace {

// The four designs, drawn on characters 15 to 18: where their dial is, and the
// hands that fit it. The last one is a display that letters shine in.
constexpr int kFirstClockNumber = 15;
struct FactoryDesign {
  std::uint8_t hand;
  std::uint16_t hourLength;
  std::uint16_t minuteLength;
  Point centre;
  unsigned char handColour[3];
  unsigned char faceColour[3];
  const char* sound;
};
constexpr FactoryDesign kDesigns[] = {
    {kHandDiamond, 27, 41, {72, 72}, {0x2A, 0x20, 0x36}, {0xFF, 0xF8, 0xE6}, "kan.wav"},
    {kHandDot, 15, 23, {70, 108}, {0x2A, 0x20, 0x36}, {0xFF, 0xF8, 0xE6}, "kan.wav"},
    {kHandBar, 16, 24, {68, 95}, {0x2A, 0x20, 0x36}, {0xFF, 0xF8, 0xE6}, "po2.wav"},
    {kHandAmPm, 0, 0, {25, 26}, {0xFF, 0xE0, 0x80}, {0x1D, 0x24, 0x33}, "nya.wav"},
};
// Every hour the seven frames behind the dial's own run through, ten ticks each.
constexpr std::uint16_t kStrikeTicks = 10;
constexpr int kFirstStrikeFrame = 2;

void SetDesign(ClockDesignRecord& record, const FactoryDesign& design) {
  record.hand = design.hand;
  record.repeat = 1;
  record.strikeMode = kStrikeEveryHour;
  record.soundOn = 1;
  record.hourLength = design.hourLength;
  record.minuteLength = design.minuteLength;
  record.centreX = static_cast<std::int16_t>(design.centre.x);
  record.centreY = static_cast<std::int16_t>(design.centre.y);
  std::memcpy(record.handColour, design.handColour, sizeof record.handColour);
  std::memcpy(record.faceColour, design.faceColour, sizeof record.faceColour);
  for (int step = 0; step < kStrikeSteps; ++step) {
    record.strikeDelay[step] = kStrikeTicks;
    for (auto& hour : record.hourFigures) hour[step] = static_cast<std::uint8_t>(kFirstStrikeFrame + step);
  }
  TextCopy(record.sound, kDesignSoundSize, design.sound);
}

}  // namespace

void ClockSettingsTaken() {
  Clock.ClockShowWanted = Clock.ClockShow;
  ClockReactivate();
}

void ClockSettingsFactory() {
  ClockDesignsBegin(static_cast<int>(std::size(kDesigns)), kFirstClockNumber);
  for (int i = 0; i < CharaTables.ClockDesignCount; ++i)
    SetDesign(CharaTables.ClockDesigns[i].record, kDesigns[i]);
  Clock.ClockDesign = kClockNone;
  Clock.ClockWanted = 0;
  Clock.ClockStrikeMode = kStrikeEveryHour;
  Clock.ClockSoundOn = 1;
  Clock.ClockSoundName[0] = '\0';
  Clock.ClockShow = 0;
  Clock.ClockX = 700;
  Clock.ClockY = 20;
}
