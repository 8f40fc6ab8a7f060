#include "scenario/cast/cast_places.h"

#include <cstring>

#include "scenario/logic/snry_paras.h"
#include "services/text.h"

void CastCut(char (&to)[kCastShownMost + 1], const char* text) {
  const std::size_t length = TextPrefix(text, kCastShownMost);
  std::memcpy(to, text, length);
  to[length] = '\0';
}

void CastConditionAppend(char* text, std::size_t size, const SnryPair& pair) {
  if (pair.parameter == 0) return;
  char whole[kSnryNameSize + 32];
  TextFormat(whole, sizeof whole, "-> %s=%d", SnryParaName(pair.parameter), pair.value);
  char shown[kCastShownMost + 1];
  CastCut(shown, whole);
  TextAppend(text, size, shown);
}
