#include "services/boxes.h"

#include "platform/dialog.h"

void BoxTell(WindowHandle owner, const char* text, const char* caption) {
  MessageBoxRun(owner, text, caption, BoxButtons::Ok, BoxIcon::Exclamation);
}

bool BoxAsk(WindowHandle owner, const char* text, const char* caption) {
  return MessageBoxRun(owner, text, caption, BoxButtons::OkCancel, BoxIcon::Question) == BoxAnswer::Ok;
}

void BoxTell(WindowHandle owner, const BoxWords& words) {
  if (words.text) BoxTell(owner, words.text, words.caption);
}

bool BoxAsk(WindowHandle owner, const BoxWords& words) {
  return !words.text || BoxAsk(owner, words.text, words.caption);
}
