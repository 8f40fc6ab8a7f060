#include "scenario/logic/snry_places.h"

int SnryPlaceCount(const SnryPlaces& parameters) {
  return static_cast<int>(std::count_if(parameters, parameters + kSnryPlaces,
                                        [](std::uint16_t parameter) { return parameter != 0; }));
}

int SnryPlaceOfRow(const SnryPlaces& parameters, int row) {
  if (row < 0) return -1;
  for (int place = 0; place < kSnryPlaces; ++place) {
    if (parameters[place] != 0 && row-- == 0) return place;
  }
  return -1;
}

int SnryPlaceFree(const SnryPlaces& parameters) {
  const auto* free = std::find(parameters, parameters + kSnryPlaces, 0);
  return free == parameters + kSnryPlaces ? -1 : static_cast<int>(free - parameters);
}
