// Commands of the desktop character.
#pragma once

#include <cstdint>

#include "services/commands.h"

void CommandStageRedraw(Command command);           // 2293
void CommandWalkWindow(Command command);            // 2203
void CommandWalkEnd(Command command);               // 2208
void CommandOptionMainCharacter(Command command);   // 2281
void CommandOptionAlarmCharacter(Command command);  // 2282
void CommandOptionLayout(Command command);          // 2283
void CommandLayoutApply(Command command);           // 2374
void CommandSclNotice(Command command);             // 2265
void CommandNoteNotice(Command command);            // 2294
void CommandClockNotice(Command command);           // 2336
