#include "services/dialog_acts.h"

bool DialogAct::Fits(const Event& event) const {
  if (event.kind != kind_) return false;
  switch (kind_) {
    case EventKind::Pressed:
    case EventKind::Chosen:
    case EventKind::Opened:
    case EventKind::Edited:
      return event.id == id_;
    case EventKind::Command:
      return CommandIs(event, command_);
    default:
      return true;
  }
}

void DialogAct::Run(const Event& event) const {
  if (plain_) plain_();
  if (dialog_) dialog_(event.window);
  if (event_) event_(event);
  if (kind_ == EventKind::Pressed && command_ != Command::None) CommandSend(command_);
}

bool DialogActRun(const Event& event, const DialogAct* acts, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    if (!acts[i].Fits(event)) continue;
    acts[i].Run(event);
    return true;
  }
  return false;
}
