// The program as it is shipped lays nothing open.
#include "platform/win32/report.h"

bool ReportAnswers(UINT, WPARAM, LRESULT*) {
  return false;
}

void ReportTimeShift(SYSTEMTIME*) {}

bool ReportTimeTake(const SYSTEMTIME&) {
  return false;
}

void ReportEnd() {}
