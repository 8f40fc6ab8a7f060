#include "character/chara_select.h"

#include "character/character.h"
#include "character/character_tables.h"
#include "character/motion.h"

void CharaTakeCurrent(int index) {
  if (index < 0 || index >= kMainCharaMax)
    return;  // bounded: a place beyond the list of main characters selects nobody
  const MainChara& from = CharaTables.MainCharas[index];
  Character.MenuFrame = from.menuFrame;
  Character.BlinkFrame = from.blinkFrame;
  for (int i = 0; i < kBoredFrameCount; ++i) {
    Character.Bored1Frames[i] = from.bored1Frames[i];
    Character.Bored2Frames[i] = from.bored2Frames[i];
  }
  Character.BoredDelaySel = from.boredDelaySel;
  Character.BoredSpeedSel = from.boredSpeedSel;
  Character.BoredRepeatSel = from.boredRepeatSel;
  Character.BlinkSpeedSel = from.blinkSpeedSel;
  BoredFramesCount();
  BoredTimerReset();
}

bool CharaSelect(int index) {
  if (index < 0 || index >= kMainCharaMax) return false;
  const int before = Character.CharaSet.CharaNo;
  Character.CharaIndex = index;
  CharaTakeCurrent(index);
  Character.CharaSet = CharaTables.MainCharas[index].charaSet;
  Character.CharaSet.CharaNo = static_cast<std::uint16_t>(index + 1);
  return before != index + 1;
}
