#include "scenario/logic/snry_cast_choice.h"

namespace {

template <SnryCastShow show>
void Text(int row, char* text, int size) {
  SnryCastRowText(show, row, text, size);
}

Rows RowsFor(SnryCastShow show) {
  return RowsOf(SnryCastRows(show),
                show == SnryCastShow::All ? Text<SnryCastShow::All> : Text<SnryCastShow::Characters>);
}

}  // namespace

void SnryCastExchange(Form& form, int id, SnryCastShow show, std::uint16_t& castId) {
  int row = SnryCastRowOfId(show, castId);
  form.Choice(id, row, RowsFor(show));
  if (form.Takes() && row >= 0) castId = static_cast<std::uint16_t>(SnryCastIdOfRow(show, row));
}
