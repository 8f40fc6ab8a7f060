#include "scenario/characters/chara_regi.h"

#include "scenario/storage/snry_cast_list.h"
#include "services/text.h"

CharaRegiState CharaRegi;

namespace {

bool IsChara(int chara) {
  return chara >= 0 && chara < kSnryCharaMax;
}

void SetChanged() {
  Scenario.changed = true;
  Scenario.castNamesChanged = true;
}

}  // namespace

void CharaRegiRowText(int chara, char* text, int size) {
  if (SnryCharaIsRegistered(chara + 1)) return SnryCharaText(chara + 1, chara + 1, text, size);
  TextFormat(text, static_cast<std::size_t>(size), "%d. %s", chara + 1, SnryMain.charaNames[chara].text);
}

void CharaRegister(int chara, const SnryNameRec& castName) {
  if (!IsChara(chara)) return;
  SnryMain.castNames[chara] = castName;
  if (!SnryCharaIsRegistered(chara + 1)) {
    SnryMain.registered[chara] = 1;
    ++SnryMain.registeredCount;
  }
  SetChanged();
}

void CharaUnregister(int chara) {
  if (!IsChara(chara)) return;
  SnryMain.registered[chara] = 0;  // kept: a character that is taken out keeps its cast name
  // kept: the number of registered characters falls only when it happens to be one more
  // than the slot of the parameter chosen last. It is no number of registered characters
  // but how many of them a scene can choose from.
  if (SnryMain.registeredCount > 0 && SnryMain.registeredCount == Scenario.paraSlot + 1)
    --SnryMain.registeredCount;
  SetChanged();
}
