// What the notice of the schedule tells: the item of the executing copy that is due.
#include "schedule/execution/scl_notice.h"

#include "schedule/execution/scl_alarm.h"
#include "schedule/model/scl_dates.h"
#include "services/text.h"

void SclNoticeTake() {
  Notices.SclNotice = {};
  if (SclAlarm.announce <= 0 || SclAlarm.announce > kSclItemMax) return;
  const SclItemRec& item = Schedule.SclExecTable.items[SclAlarm.announce - 1];
  SclNoticeItem& notice = Notices.SclNotice;
  notice.due = true;
  notice.start = SclDateOf(item.start);
  notice.end = SclDateOf(item.end);
  notice.startMinute = item.mirrorStart.minute;
  notice.endMinute = item.mirrorEnd.minute;
  notice.tableStartHour = SclAlarm.row.begin;
  notice.tableEndHour = SclAlarm.row.end;
  TextFormat(notice.text, sizeof notice.text, "%.*s", kSclItemTextSize, item.text);
}
