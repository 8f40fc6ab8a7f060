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
  int hand;
  int hourLength;
  int minuteLength;
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

}  // namespace

void ClockSettingsTaken() {
  Clock.ClockShowWanted = Clock.ClockShow;
  ClockReactivate();
}

void ClockSettingsFactory() {
  CharaTables.ClockDesignCount = static_cast<std::int32_t>(std::size(kDesigns));
  for (ClockDesignRow& row : CharaTables.ClockDesigns) std::memset(row.record, 0, sizeof row.record);
  for (int i = 0; i < CharaTables.ClockDesignCount; ++i) {
    const FactoryDesign& design = kDesigns[i];
    ClockDesignFields fields{};
    fields.hand = design.hand;
    fields.repeat = true;
    fields.strikeMode = kStrikeEveryHour;
    fields.soundOn = true;
    fields.hourLength = design.hourLength;
    fields.minuteLength = design.minuteLength;
    fields.centreX = design.centre.x;
    fields.centreY = design.centre.y;
    std::memcpy(fields.handColour, design.handColour, sizeof fields.handColour);
    std::memcpy(fields.faceColour, design.faceColour, sizeof fields.faceColour);
    for (int step = 0; step < kStrikeSteps; ++step) {
      fields.strikeDelay[step] = kStrikeTicks;
      for (unsigned char(&hour)[kStrikeSteps] : fields.hourFigures) {
        hour[step] = static_cast<unsigned char>(kFirstStrikeFrame + step);
      }
    }
    TextCopy(fields.sound, sizeof fields.sound, design.sound);
    CharaTables.ClockDesigns[i].number = static_cast<std::uint16_t>(kFirstClockNumber + i);
    ClockDesignPut(CharaTables.ClockDesigns[i].record, fields);
  }
  Clock.ClockDesign = kClockNone;
  Clock.ClockWanted = 0;
  Clock.ClockStrikeMode = kStrikeEveryHour;
  Clock.ClockSoundOn = 1;
  Clock.ClockSoundName[0] = '\0';
  Clock.ClockShow = 0;
  Clock.ClockX = 700;
  Clock.ClockY = 20;
}
