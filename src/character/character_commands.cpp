#include "character/character_commands.h"

#include "character/stage.h"
#include "character/walk.h"
#include "character/walk_windows.h"
#include "services/commands.h"

void CommandStageRedraw(Command) {
  CommandRedrawStage();
}

void CommandOpenWalk(Command) {
  WalkForOpening();
}

void CommandWalkWindow(Command) {
  WalkWindowRun();
}

void CommandWalkEnd(Command) {
  EndWindowsRun();
}
