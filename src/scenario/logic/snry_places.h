// Lists of up to 20 parameters, as menus, events, randoms, keys and scrolling have them. A
// place is free when its parameter is 0; free places are not shown (services/slots.h).
#pragma once

#include <cstdint>

#include "scenario/storage/snry_records.h"

using SnryPlaces = std::uint16_t[kSnryPlaces];

// A row of such a list, terminated at `size`: the number of its place and the parameter's
// name, "2. name", or the number of the row, "1.name".
void SnryPlaceText(const SnryPlaces& parameters, int row, char* text, int size);
void SnryPlaceRowText(const SnryPlaces& parameters, int row, char* text, int size);
