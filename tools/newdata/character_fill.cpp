#include <algorithm>
#include <cstring>

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
    std::memcpy(main.charaSet, Character.CharaSet, kCharaSetSize);
    SetCharaSetNo(main.charaSet, cast[i]->number);
    SetWalkRow(main.charaSet, 0, i + 1);
  }
}

void FillClocks() {
  for (int i = 0; i < CharaTables.ClockDesignCount; ++i) {
    const Dial& dial = DialOf(i);
    unsigned char* record = CharaTables.ClockDesigns[i].record;
    ClockDesignFields fields = ClockDesignGet(record);
    fields.hand = dial.hand;
    fields.repeat = dial.repeat;
    fields.strikeMode = kStrikeEveryHour;
    fields.soundOn = true;
    fields.hourLength = dial.hourLength;
    fields.minuteLength = dial.minuteLength;
    fields.centreX = dial.centreX;
    fields.centreY = dial.centreY;
    PutColour(fields.handColour, dial.hands);
    PutColour(fields.faceColour, dial.face);
    for (int step = 0; step < kStrikeSteps; ++step) {
      fields.strikeDelay[step] = static_cast<std::uint16_t>(dial.performanceWait.at(step));
      for (auto& hour : fields.hourFigures) {
        hour[step] = static_cast<unsigned char>(dial.performance.at(step));
      }
    }
    fields.name[0] = '\0';  // a design bears the name of its character
    ClockDesignPut(record, fields);
  }
  ClockListTakeDesigns();
}
