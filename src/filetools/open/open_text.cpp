#include "filetools/open/open_text.h"

#include <cstring>

#include "services/text.h"

OpnText::OpnText(const char* field) {
  TextCopy(text, sizeof text, field);
}

void OpnTextSet(char (&field)[kOpnTextSize], const char* text) {
  const std::size_t length = TextCopy(field, kOpnTextUsed + 1, text);
  std::memset(field + length, 0, sizeof field - length);
}

bool OpnTextSame(const char* a, const char* b) {
  return std::strncmp(a, b, kOpnTextUsed) == 0;
}

void OpnRowText(char* text, int size, const char* name, const char* folder) {
  TextFormat(text, static_cast<std::size_t>(size), "%s [%s]", OpnText(name).text, OpnText(folder).text);
}

void OpnRowRemove(char (*column)[kOpnTextSize], int row, int count) {
  if (row < 0 || row >= count) return;
  std::memmove(column[row], column[row + 1], static_cast<std::size_t>(count - row - 1) * kOpnTextSize);
}

void OpnRowToTop(char (*column)[kOpnTextSize], int row) {
  char kept[kOpnTextSize];
  std::memcpy(kept, column[row], sizeof kept);
  std::memmove(column[1], column[0], static_cast<std::size_t>(row) * kOpnTextSize);
  std::memcpy(column[0], kept, sizeof kept);
}
