// DspSclClickLineData, "指定ラインの詳細": one item of the schedule on display.
#include <algorithm>
#include <cstdint>

#include "platform/dialog.h"
#include "resources/schedule_table_ids.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_items.h"
#include "schedule/table/schedule_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

// The item is the dialog's context: its place in the table.
void Show(const Event& event) {
  const auto index = static_cast<int>(reinterpret_cast<std::intptr_t>(event.context));
  const SclItemRec& item = Schedule.SclItemTable[std::clamp(index, 0, kSclItemMax - 1)];
  char number[20];
  TextFormat(number, sizeof number, " %d ", index + 1);
  ControlSetText(event.window, IDC_SCL_LINE_NUMBER, number);
  const SclDate start = SclShownStart(item);
  const SclDate end = SclDateOf(item.end);
  char time[200];
  TextFormat(time, sizeof time, "%d年 %d月 %d日 %d時 ～ %d年 %d月 %d日 %d時 の%d時間", start.year + 2000,
             start.month + 1, start.day + 1, start.hour, end.year + 2000, end.month + 1, end.day + 1,
             end.hour, static_cast<int>(item.hours));
  ControlSetText(event.window, IDC_SCL_LINE_TIME, time);
  char text[kSclItemTextSize + 1];
  TextFormat(text, sizeof text, "%.*s", kSclItemTextSize, item.text);
  ControlSetText(event.window, IDC_SCL_LINE_TEXT, text);
  // In the field the whole text would stand selected.
  ControlSetFocus(event.window, kCancelButton);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Show}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void DspSclClickLineDataRun(WindowHandle owner, int item) {
  SubDialogRun(SubDialog::DspSclClickLineData, IDD_DspSclClickLineData, owner, Handle,
               reinterpret_cast<void*>(static_cast<std::intptr_t>(item)));
}
