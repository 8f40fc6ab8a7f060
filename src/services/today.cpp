#include "services/today.h"

TodayState Today;

void TodaySet(const LocalTime& now) {
  Today.TodayYear = now.year - 2000;
  Today.TodayMonth = now.month - 1;
  Today.TodayDay = now.day - 1;
}

void SharedTimeTake() {
  TimeGetLocal(&Today.SharedTime);
}
