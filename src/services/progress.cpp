#include "services/progress.h"

#include "platform/dialog.h"

namespace {

struct Running {
  const Progress& progress;
  bool begun = false;
};

// The work leaves the tick once; false when it has left before.
bool Leave(const Progress& progress, WindowHandle dialog, bool stopped) {
  if (*progress.handle != dialog) return false;
  *progress.handle = nullptr;
  if (progress.end) progress.end(stopped);
  return true;
}

void Step(const Progress& progress, WindowHandle dialog) {
  int result = progress.stopped;
  if (*progress.handle != dialog || !progress.step(&result)) return;
  if (!Leave(progress, dialog, false)) return;
  if (progress.tell) progress.tell(dialog, result);
  DialogEnd(dialog, result);
}

void Begin(const Progress& progress, WindowHandle dialog) {
  *progress.handle = dialog;
  if (progress.begin) progress.begin();
}

bool Handle(const Event& event) {
  Running& running = *static_cast<Running*>(event.context);
  const Progress& progress = running.progress;
  if (event.kind == EventKind::Init) {
    running.begun = true;
    Begin(progress, event.window);
  } else if (CommandIs(event, progress.stepCommand)) {
    Step(progress, event.window);
  } else if (EndIsAsked(event)) {
    if (Leave(progress, event.window, true)) DialogEnd(event.window, progress.stopped);
  } else {
    // The program may end while a work is running.
    if (event.kind == EventKind::Destroy) Leave(progress, event.window, true);
    return false;
  }
  return true;
}

}  // namespace

int ProgressRun(const Progress& progress, WindowHandle owner) {
  if (*progress.handle) return progress.stopped;
  Running running{progress};
  const int result = DialogRun(progress.templateId, owner, Handle, &running);
  return running.begun ? result : progress.stopped;
}
