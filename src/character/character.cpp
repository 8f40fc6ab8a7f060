#include "character/character.h"

CharacterState Character;

// Without a settings file the stage stays where the process entry makes its window.
