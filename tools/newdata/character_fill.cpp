#include <algorithm>

#include "character/character.h"
#include "character/character_tables.h"
#include "clock_calendar/clock/clock.h"
#include "newdata/cast.h"
#include "newdata/tables.h"

namespace {

constexpr int kNoMoreFrames = -1;  // ends a bored pattern

void PutPattern(std::int32_t (&to)[kBoredFrameCount], const std::vector<int>& frames) {
  std::fill(std::begin(to), std::end(to), kNoMoreFrames);
  std::copy(frames.begin(), frames.end(), to);
}

void PutColour(unsigned char (&to)[3], const Rgb& colour) {
  to[0] = colour.red;
  to[1] = colour.green;
  to[2] = colour.blue;
}

}  // namespace

void FillCharacters() {
  const std::vector<const CastMember*> cast = CastOf(Role::Main);
  CharaTables.MainCharaCount = static_cast<std::int32_t>(cast.size());
  for (int i = 0; i < CharaTables.MainCharaCount; ++i) {
    MainChara& main = CharaTables.MainCharas[i];
    const IdleLife& life = IdleLifeOf(i);
    main = MainChara{};
    main.charaNo = static_cast<std::uint16_t>(cast[i]->number);
    main.menuFrame = life.menuFrame;
    main.blinkFrame = life.blinkFrame;
    PutPattern(main.bored1Frames, life.bored1);
    PutPattern(main.bored2Frames, life.bored2);
    main.boredDelaySel = life.boredDelaySel;
    main.boredSpeedSel = life.boredSpeedSel;
    main.boredRepeatSel = life.boredRepeatSel;
    main.blinkSpeedSel = life.blinkSpeedSel;
    main.secondNumber = cast[i]->number;
    // All of them walk as the factory settings say; each has a walker and a sound
    // of its own.
    main.charaSet = Character.CharaSet;
    main.charaSet.CharaNo = main.charaNo;
    main.charaSet.WalkRow[0] = static_cast<std::uint16_t>(i + 1);
  }
}

void FillClocks() {
  for (int i = 0; i < CharaTables.ClockDesignCount; ++i) {
    const Dial& dial = DialOf(i);
    ClockDesignRecord& design = CharaTables.ClockDesigns[i].record;
    design.hand = static_cast<std::uint8_t>(dial.hand);
    design.repeat = dial.repeat ? 1 : 0;
    design.strikeMode = kStrikeEveryHour;
    design.soundOn = 1;
    design.hourLength = static_cast<std::uint16_t>(dial.hourLength);
    design.minuteLength = static_cast<std::uint16_t>(dial.minuteLength);
    design.centreX = static_cast<std::int16_t>(dial.centreX);
    design.centreY = static_cast<std::int16_t>(dial.centreY);
    PutColour(design.handColour, dial.hands);
    PutColour(design.faceColour, dial.face);
    for (int step = 0; step < kStrikeSteps; ++step) {
      design.strikeDelay[step] = static_cast<std::uint16_t>(dial.performanceWait.at(step));
      for (auto& hour : design.hourFigures) {
        hour[step] = static_cast<std::uint8_t>(dial.performance.at(step));
      }
    }
    design.name[0] = '\0';  // a design bears the name of its character
  }
  ClockListTakeDesigns();
}
