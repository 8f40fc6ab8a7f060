// The script, the failures against it, and the start from nothing.
#include <deque>

#include "platform/headless/free_user.h"
#include "platform/headless/state.h"
#include "platform/posix/posix_paths.h"

namespace {

std::deque<std::function<void()>> steps;
std::vector<std::string> failures;
ResourceSet resources;
std::string resourcePath;
std::function<void(const Event&)> overhearing;

}  // namespace

bool nextLoopIsLeft = false;
FreeUser* freeUser = nullptr;

std::uintptr_t HandleNext() {
  constexpr std::uintptr_t kFirst = 0x10000;
  constexpr std::uintptr_t kStep = 16;
  static std::uintptr_t next = kFirst;
  next += kStep;
  return next;
}

void Failure(const std::string& text) {
  failures.push_back(text);
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  quoted += Cp932ToUtf8(text);
  quoted += '"';
  return quoted;
}

const std::vector<std::string>& HeadlessFailures() {
  return failures;
}

std::vector<std::string> HeadlessTakeFailures() {
  std::vector<std::string> taken;
  taken.swap(failures);
  return taken;
}

void Then(std::function<void()> step) {
  steps.push_back(std::move(step));
}

int StepsLeft() {
  return static_cast<int>(steps.size());
}

void LeaveNextLoop() {
  nextLoopIsLeft = true;
}

void Overhear(std::function<void(const Event&)> listener) {
  overhearing = std::move(listener);
}

void OverhearTell(const Event& event) {
  if (overhearing) overhearing(event);
}

bool ScriptStep() {
  if (steps.empty()) {
    if (freeUser) freeUser->Deed();
    return freeUser != nullptr;
  }
  const std::function<void()> step = std::move(steps.front());
  steps.pop_front();
  step();
  return true;
}

const ResourceSet& Resources() {
  return resources;
}

void HeadlessResourceFile(const std::string& path) {
  if (path == resourcePath) return;
  resourcePath.clear();
  if (const char* wrong = ResourceLoad(path, &resources)) {
    Failure("the resource file " + path + ": " + wrong);
    return;
  }
  resourcePath = path;
}

void HeadlessReset() {
  WindowsReset();
  BoxesReset();
  SheetsReset();
  CanvasReset();
  ScreenReset();
  ProcessReset();
  SoundReset();
  steps.clear();
  failures.clear();
  overhearing = nullptr;
  nextLoopIsLeft = false;
  freeUser = nullptr;
}

void FreeUserSet(FreeUser* user) {
  freeUser = user;
}
