#include "services/boxes.h"

#include "platform/dialog.h"

void BoxTell(WindowHandle owner, const char* text, const char* caption) {
  MessageBoxRun(owner, text, caption, BoxButtons::Ok, BoxIcon::Exclamation);
}

bool BoxAsk(WindowHandle owner, const char* text, const char* caption) {
  return MessageBoxRun(owner, text, caption, BoxButtons::OkCancel, BoxIcon::Question) == BoxAnswer::Ok;
}
