// A plan becomes the schedule on display.
#include <algorithm>

#include "schedule/model/schedule.h"
#include "schedule/model/scl_dates.h"
#include "services/text.h"

void SclConversionBegin(const char* title, const SclWorkDayRow (&rows)[kSclRowCount]) {
  std::fill_n(Schedule.SclItemTable, kSclItemMax, SclItemRec{});
  Schedule.SclHeader.count = 0;
  TextCopy(Schedule.SclHeader.title, kSclTitleSize, title);
  std::copy_n(rows, kSclRowCount, Schedule.SclHeader.rows);
  SclRowEndsRefresh(Schedule.SclHeader.rows);
}

void SclConversionEnd() {
  SclFileForget();
  Schedule.SclConverted = true;
}
