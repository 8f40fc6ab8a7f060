#include "platform/diagnostics.h"

#include "platform/posix/live_counts.h"

LiveObjects& PosixLive() {
  static LiveObjects live{};
  return live;
}

LiveObjects DiagnosticsLive() {
  return PosixLive();
}
