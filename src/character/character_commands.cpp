#include "character/character_commands.h"

#include "character/stage.h"
#include "character/walk.h"
#include "character/walk_windows.h"

void CommandStageRedraw(std::uint32_t) {
  CommandRedrawStage();
}

void CommandOpenWalk(std::uint32_t) {
  WalkForOpening();
}

void CommandWalkWindow(std::uint32_t) {
  WalkWindowRun();
}

void CommandWalkEnd(std::uint32_t) {
  EndWindowsRun();
}
