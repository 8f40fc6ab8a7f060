#include "scenario/trace/trace_dialogs.h"

#include "platform/dialog.h"
#include "resources/scenario_trace_ids.h"
#include "scenario/storage/scenario.h"

SnryTraceState SnryTrace;

namespace {

void AddLine(void* dialog, const char* text) {
  ListAdd(static_cast<WindowHandle>(dialog), IDC_TRACE_LINES, text);
}

}  // namespace

SnryLineSink TraceLines(WindowHandle dialog) {
  return {AddLine, dialog};
}

void TraceNameShow(WindowHandle dialog) {
  ControlSetText(dialog, IDC_TRACE_NAME, SnryMain.paras[SnryTrace.slot].name);
}
