#include "platform/diagnostics.h"

namespace {
const std::int32_t* shown[kDiagnosticsCount];
}

void DiagnosticsShow(int number, const std::int32_t* value) {
  if (number >= 0 && number < kDiagnosticsCount) shown[number] = value;
}

std::int32_t DiagnosticsValue(int number) {
  if (number >= 0 && number < kDiagnosticsCount) return shown[number] ? *shown[number] : 0;
  const LiveObjects live = DiagnosticsLive();
  const int counts[] = {live.brushes, live.pens,   live.fonts,  live.bitmaps, live.regions, live.canvases,
                        live.windows, live.timers, live.blocks, live.files,   live.searches};
  const int at = number - kDiagnosticsLiveFirst;
  return at >= 0 && at < static_cast<int>(sizeof counts / sizeof counts[0]) ? counts[at] : 0;
}
