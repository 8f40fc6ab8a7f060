#include "clock_calendar/clock/comment_field.h"

#include "platform/dialog.h"
#include "services/text.h"

namespace {
constexpr int kTypedSize = 400;  // more than any comment holds
}  // namespace

void CommentExchange(Form& form, int id, char* comment, std::size_t size) {
  if (form.Takes()) {
    char typed[kTypedSize];
    ControlGetText(form.Dialog(), id, typed, sizeof typed);
    TextCopyWhole(comment, size, typed);
    return;
  }
  ControlSetText(form.Dialog(), id, comment);
  ControlSetLimit(form.Dialog(), id, static_cast<int>(size) - 1);
}
