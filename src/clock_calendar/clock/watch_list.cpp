#include "clock_calendar/clock/watch_list.h"

#include "clock_calendar/clock/comment_field.h"
#include "resources/clock_ids.h"
#include "services/text.h"

WatchListState WatchList;

namespace {

void RowOf(int row, char* text, int size) {
  const TimedEvent event = TimedGet(WatchListRow(row));
  TextFormat(text, static_cast<std::size_t>(size), "%s%2d : %2d . %2d  %s", event.enabled ? "○" : "  ",
             event.hour, event.minute, event.second, event.comment);
}

}  // namespace

const ListEditor& WatchListEditor() {
  static constexpr ListEditor kList{IDC_TIMED_LIST, [] { return static_cast<int>(Timed.TimedCount); }, RowOf};
  return kList;
}

int WatchListRow(int row) {
  return row >= 0 && row < Timed.TimedCount ? Timed.TimedOrder[row] : -1;
}

void WatchListExchange(Form& form, TimedEvent& event) {
  form.Check(IDC_TIMED_ENABLE, event.enabled);
  form.NumberIn(IDC_TIMED_HOUR, event.hour, 2, 0, 23, "%2d");
  form.NumberIn(IDC_TIMED_MINUTE, event.minute, 2, 0, 59, "%2d");
  form.NumberIn(IDC_TIMED_SECOND, event.second, 2, 0, 59, "%2d");
  CommentExchange(form, IDC_TIMED_COMMENT, event.comment, sizeof event.comment);
}

void WatchListFill(WindowHandle dialog, const TimedEvent& event) {
  WatchList.event = event;
  FormShow(dialog, WatchList.event, WatchListExchange);
}

void WatchListTake(WindowHandle dialog) {
  FormTake(dialog, WatchList.event, WatchListExchange);
}
