#include "character/character_commands.h"

#include "character/stage.h"

void CommandStageRedraw(std::uint32_t) { CommandRedrawStage(); }
