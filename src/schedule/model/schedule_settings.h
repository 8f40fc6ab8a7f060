// What the settings file keeps of the schedules: the name of the default one.
#pragma once

#include "schedule/model/schedule.h"
#include "services/record.h"

struct ScheduleSettings {};

template <class Io>
constexpr void Fields(Io& io, ScheduleSettings&) {
  io.Text(Schedule.DefaultSclName);
  io.At(600);
}

// Puts what a new data set holds into it, and into the titles of the plans.
void ScheduleSettingsFactory();
