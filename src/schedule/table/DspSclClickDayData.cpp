// DspSclClickDayData, "指定日のスケジュール": the lines of a day, of the schedule on display
// or of the executing one.
#include "platform/dialog.h"
#include "resources/schedule_table_ids.h"
#include "schedule/model/schedule.h"
#include "schedule/model/scl_dates.h"
#include "schedule/table/schedule_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

constexpr std::size_t kLineBytes = 66;

// The dialog's context.
struct DayLines {
  SclDate day;
  DayLinesShow show;
};

bool Holds(const SclItemRec& item, const SclDate& day) {
  // kept: in the list of a day's lines year, month and day are held against an item's range one
  // by one, so that an item over the end of a month holds none of its days.
  return item.start.year <= day.year && day.year <= item.end.year && item.start.month <= day.month &&
         day.month <= item.end.month && item.start.day <= day.day && day.day <= item.end.day;
}

// A line of the schedule on display, if it touches the day.
void ItemAdd(WindowHandle dialog, const SclDate& day, int index) {
  const SclItemRec& item = Schedule.SclItemTable[index];
  if (item.hours == 0 || !Holds(item, day)) return;
  const SclWorkDayRow& row = SclRowOfDay(Schedule.SclHeader.rows, day);
  const bool starts = SclSameDay(SclDateOf(item.start), day);
  if (starts && item.start.hour == row.end) return;
  // settled: in the list of a day's lines one of several days is told with its hours on this one: from its
  // start or the begin of work, to its end or the end of work.
  char time[80];
  TextFormat(time, sizeof time, "【 時間 】%d 時～%d 時", starts ? item.start.hour : row.begin,
             SclSameDay(SclDateOf(item.end), day) ? item.end.hour : row.end);
  DayLineAdd(dialog, time, index, item.text);
}

void ItemsShow(WindowHandle dialog, const SclDate& day) {
  for (int item = 0; item < Schedule.SclHeader.count; ++item) ItemAdd(dialog, day, item);
}

void Show(const Event& event) {
  const auto& [day, show] = *static_cast<const DayLines*>(event.context);
  char head[80];
  TextFormat(head, sizeof head, "%d年 %d月 %d日 の予定", day.year + 2000, day.month + 1, day.day + 1);
  ControlSetText(event.window, IDC_SCL_DAY_HEAD, head);
  const ListQuiet quiet(event.window, IDC_SCL_DAY_LINES);
  show(event.window, day);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Show}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void DayLineAdd(WindowHandle dialog, const char* time, int item, const char* text) {
  ListAdd(dialog, IDC_SCL_DAY_LINES, time);
  char line[kLineBytes + 20];
  int head = TextFormat(line, sizeof line, "項目%3d: ", item + 1);
  std::size_t left = TextPrefix(text, TextLength(text, kSclItemTextSize));
  // A text that has none still tells its item.
  do {
    const std::size_t bytes = TextPrefix(text, left < kLineBytes ? left : kLineBytes);
    TextFormat(line + head, sizeof line - static_cast<std::size_t>(head), "%.*s", static_cast<int>(bytes),
               text);
    ListAdd(dialog, IDC_SCL_DAY_LINES, line);
    head = 0;
    text += bytes;
    left -= bytes;
  } while (left > 0);
}

void DspSclClickDayDataRun(SubDialog number, WindowHandle owner, const SclDate& day, DayLinesShow show) {
  DayLines lines{day, show};
  SubDialogRun(number, IDD_DspSclClickDayData, owner, Handle, &lines);
}

void ScheduleDayRun(WindowHandle owner, const SclDate& day) {
  DspSclClickDayDataRun(SubDialog::DspSclClickDayData, owner, day, ItemsShow);
}
