// Lists of up to 20 parameters, as menus, events, randoms, keys and scrolling have them. A
// place is free when its parameter is 0; free places are not shown, so a row is no place.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "scenario/storage/snry_records.h"

using SnryPlaces = std::uint16_t[kSnryPlaces];

// The places that are shown.
int SnryPlaceCount(const SnryPlaces& parameters);
// The place of a row; -1 for a row that there is not.
int SnryPlaceOfRow(const SnryPlaces& parameters, int row);
// The first free place; -1 when there is none.
int SnryPlaceFree(const SnryPlaces& parameters);

// Takes a place out of a table: the later ones move down by one, and the last is cleared.
template <class T>
void SnryPlaceDrop(T (&table)[kSnryPlaces], int place) {
  if constexpr (std::is_array_v<T>) {
    for (int i = place; i + 1 < kSnryPlaces; ++i) std::copy(table[i + 1], std::end(table[i + 1]), table[i]);
    std::fill(std::begin(table[kSnryPlaces - 1]), std::end(table[kSnryPlaces - 1]), 0);
  } else {
    std::copy(table + place + 1, std::end(table), table + place);
    table[kSnryPlaces - 1] = 0;
  }
}
