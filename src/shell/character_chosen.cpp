#include "character/character_chosen.h"

#include "filetools/open/open_walk.h"

void CharacterChosen() {
  OpnHisTakeWalkSettings();
}
