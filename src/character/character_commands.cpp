#include "character/character_commands.h"

#include "character/stage.h"
#include "character/walk_windows.h"
#include "services/commands.h"

void CommandStageRedraw(Command) {
  CommandRedrawStage();
}

void CommandWalkWindow(Command) {
  WalkWindowRun();
}

void CommandWalkEnd(Command) {
  EndWindowsRun();
}
