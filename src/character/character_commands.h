// Commands of the desktop character.
#pragma once

#include <cstdint>

void CommandStageRedraw(std::uint32_t number);           // 2293
void CommandOpenWalk(std::uint32_t number);              // 2004: walk, then open the file
void CommandWalkWindow(std::uint32_t number);            // 2203
void CommandWalkEnd(std::uint32_t number);               // 2208
void CommandOptionMainCharacter(std::uint32_t number);   // 2281
void CommandOptionAlarmCharacter(std::uint32_t number);  // 2282
void CommandOptionLayout(std::uint32_t number);          // 2283
void CommandLayoutApply(std::uint32_t number);           // 2374
void CommandSclNotice(std::uint32_t number);             // 2265
void CommandNoteNotice(std::uint32_t number);            // 2294
void CommandClockNotice(std::uint32_t number);           // 2336
