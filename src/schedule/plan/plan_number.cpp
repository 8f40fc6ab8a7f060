#include "schedule/plan/plan_number.h"

#include <algorithm>

#include "platform/dialog.h"
#include "schedule/model/scl_items.h"
#include "services/text.h"

namespace {
constexpr int kCharactersMost = 15;
}  // namespace

void PlanNumberShow(WindowHandle dialog, int id, int characters, std::uint32_t value) {
  char text[kCharactersMost + 1];
  TextFormat(text, sizeof text, "%*d", characters, static_cast<int>(value));
  ControlSetLimit(dialog, id, characters);
  ControlSetText(dialog, id, text);
}

std::uint32_t PlanNumberTake(WindowHandle dialog, int id, int characters) {
  char text[kCharactersMost + 1];
  ControlGetText(dialog, id, text, std::min(characters, kCharactersMost) + 1);
  return SclHoursParse(text);
}
