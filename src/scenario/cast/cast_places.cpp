#include "scenario/cast/cast_places.h"

#include "scenario/logic/snry_paras.h"
#include "services/text.h"

void CastConditionAppend(char* text, std::size_t size, const SnryPair& pair) {
  if (pair.parameter == 0) return;
  char whole[kSnryNameSize + 32];
  TextFormat(whole, sizeof whole, "-> %s=%d", SnryParaName(pair.parameter), pair.value);
  char shown[kCastShownMost + 1];
  TextCopyWhole(shown, sizeof shown, whole);
  TextAppend(text, size, shown);
}
