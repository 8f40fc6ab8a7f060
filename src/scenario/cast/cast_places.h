// How lists show the places of a cast member for lines and motions.
#pragma once

#include <cstddef>

#include "scenario/storage/scenario.h"

// Bytes that a list shows of a text and of a condition.
inline constexpr int kCastShownMost = 32;

// Appends "-> parameter=value", cut between characters; nothing without a condition.
void CastConditionAppend(char* text, std::size_t size, const SnryPair& pair);
