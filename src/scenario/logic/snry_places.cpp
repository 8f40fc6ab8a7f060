#include "scenario/logic/snry_places.h"

#include "scenario/logic/snry_paras.h"
#include "services/slots.h"
#include "services/text.h"

void SnryPlaceText(const SnryPlaces& parameters, int row, char* text, int size) {
  const int place = SlotOfRow(parameters, row);
  TextFormat(text, static_cast<std::size_t>(size), "%d. %s", place + 1, SnryParaName(parameters[place]));
}

void SnryPlaceRowText(const SnryPlaces& parameters, int row, char* text, int size) {
  const int place = SlotOfRow(parameters, row);
  TextFormat(text, static_cast<std::size_t>(size), "%d.%s", row + 1, SnryParaName(parameters[place]));
}
