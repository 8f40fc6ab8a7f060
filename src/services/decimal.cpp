#include "services/decimal.h"

std::int32_t DecimalParse(const char* text) {
  while (*text == ' ') ++text;
  const bool negative = *text == '-';
  if (negative) ++text;
  // Long texts wrap around.
  std::uint32_t value = 0;
  for (; *text != '\0'; ++text) value = value * 10U + static_cast<unsigned char>(*text) - std::uint32_t{'0'};
  return static_cast<std::int32_t>(negative ? 0U - value : value);
}
