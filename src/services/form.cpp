#include "services/form.h"

#include <algorithm>
#include <cstring>

#include "platform/dialog.h"
#include "services/decimal.h"
#include "services/text.h"

namespace {
constexpr int kTextMost = 1100;  // bytes of the longest field
constexpr int kNumberSize = 40;
}  // namespace

bool Form::CheckValue(int id, bool value) {
  if (Takes()) return ControlIsChecked(dialog_, id);
  ControlSetChecked(dialog_, id, value);
  return value;
}

void Form::TextValue(int id, char* field, int size, int most) {
  char text[kTextMost + 1];
  most = std::min({most, size, kTextMost});
  if (Takes()) {
    const auto length = static_cast<std::size_t>(ControlGetText(dialog_, id, text, most + 1));
    std::memcpy(field, text, std::min(length + 1, static_cast<std::size_t>(size)));
    return;
  }
  const auto* end = static_cast<const char*>(std::memchr(field, '\0', static_cast<std::size_t>(most)));
  const auto length = static_cast<std::size_t>(end ? end - field : most);
  std::memcpy(text, field, length);
  text[length] = '\0';
  ControlSetText(dialog_, id, text);
}

int Form::ChoiceValue(int id, int value, const Rows& rows) {
  if (Takes()) return ListSelected(dialog_, id);
  RowsShow(dialog_, id, rows, value);
  return value;
}

int Form::RadioValue(const int* ids, int count, int value) {
  int checked = -1;
  for (int place = 0; place < count; ++place) {
    if (!Takes()) ControlSetChecked(dialog_, ids[place], place == value);
    if (Takes() && ControlIsChecked(dialog_, ids[place])) checked = place;
  }
  return checked;
}

// settled: a number with more characters than its field takes, as a negative one becomes in a
// field without sign, stays as it is while its text stands there as it was shown.
std::int32_t Form::NumberValue(int id, std::int32_t value, int digits, const char* format) {
  char text[kNumberSize];
  TextFormat(text, sizeof text, format, value);
  if (Takes()) {
    char typed[kNumberSize];
    ControlGetText(dialog_, id, typed, sizeof typed);
    if (std::strcmp(typed, text) == 0) return value;
    typed[std::min(digits, kNumberSize - 1)] = '\0';
    return DecimalParse(typed);
  }
  ControlSetLimit(dialog_, id, digits);
  ControlSetText(dialog_, id, text);
  return value;
}
