#include "services/rows.h"

#include "platform/dialog.h"
#include "services/text.h"

bool RowText(const Rows& rows, int row, char* text, int size) {
  const auto room = static_cast<std::size_t>(size);
  text[0] = '\0';
  if (rows.some) return rows.some(row, text, size);
  if (rows.text) {
    rows.text(row, text, size);
  } else if (rows.labels) {
    TextCopy(text, room, rows.labels[row]);
  } else {
    TextFormat(text, room, "%2d", rows.first + row);
  }
  return true;
}

void RowsShow(WindowHandle dialog, int list, const Rows& rows, int chosen) {
  const ListQuiet quiet(dialog, list);
  ListClear(dialog, list);
  for (int row = 0; row < rows.count; ++row) {
    char text[kRowTextSize];
    if (RowText(rows, row, text, sizeof text)) ListAdd(dialog, list, text);
  }
  ListSelect(dialog, list, chosen < ListCount(dialog, list) ? chosen : -1);
}
