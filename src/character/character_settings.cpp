#include "character/character_settings.h"

#include <cstring>
#include <iterator>

#include "character/chara_set.h"
#include "character/character_tables.h"
#include "services/text.h"

namespace {

constexpr int kMainCharas = 4;
constexpr std::int32_t kAlarmNumbers[] = {6, 8, 9};
constexpr std::int32_t kAlarmSelections[kAlarmRowCount] = {1, 1, 0};
constexpr int kFirstWalkNumber = 10;
constexpr const char* kWalkSounds[] = {"旗印.wav", "foot1.wav", "foot2.wav", "ringout.wav"};

}  // namespace

void CharacterSettingsFactory() {
  CharaTables.MainCharaCount = kMainCharas;
  for (int i = 0; i < kMainCharas; ++i) CharaTables.MainCharas[i].charaNo = static_cast<std::uint16_t>(i + 1);
  Character.CharaIndex = 0;
  Character.StageX = 500;
  Character.StageY = 300;
  CharaTables.AlarmCharaCount = static_cast<std::int32_t>(std::size(kAlarmNumbers));
  std::memcpy(CharaTables.AlarmCharas, kAlarmNumbers, sizeof kAlarmNumbers);
  std::memcpy(Character.AlarmCharaSel, kAlarmSelections, sizeof kAlarmSelections);

  CharaSetRecord& set = Character.CharaSet;
  set = CharaSetRecord{};
  set.CharaNo = static_cast<std::uint16_t>(Character.CharaIndex + 1);
  set.MotionE[0] = 5;
  set.WalkRow[0] = 1;
  set.WalkUse[0] = kWalkUseOpen | kWalkUseMail;
  int x = 0;
  int y = 0;
  WalkStartPlace(set.WalkStartPoint, &x, &y);
  set.WalkStartX[0] = static_cast<std::uint16_t>(x);
  set.WalkStartY[0] = static_cast<std::uint16_t>(y);
  set.WalkStepX[0] = -14;
  set.WalkStepY[0] = -12;
  set.WalkPeriod[0] = 3;
  set.WalkCount[0] = 49;
  set.EndWait[0] = 30;
  set.WalkFrames[0][0] = 1;
  set.WalkFrames[0][1] = 2;
  set.EndFrames[0][0] = 3;

  CharaTables.WalkCharaCount = static_cast<std::int32_t>(std::size(kWalkSounds));
  for (int i = 0; i < CharaTables.WalkCharaCount; ++i) {
    CharaTables.WalkCharas[i].number = static_cast<std::uint16_t>(kFirstWalkNumber + i);
    TextCopy(CharaTables.WalkCharas[i].sound, sizeof CharaTables.WalkCharas[i].sound, kWalkSounds[i]);
    CharaTables.WalkFlags[i] = 0;
  }
}
