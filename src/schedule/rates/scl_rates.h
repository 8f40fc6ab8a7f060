// How far a schedule has come: the hours of its lines against those that are done, and
// against those that were to be done by today.
#pragma once

#include <cstdint>

#include "schedule/model/schedule.h"

struct SclRates {
  bool any;  // a line has hours, and `end` is that of the last such line
  SclItemDate end;
  bool reached;  // there is a rate of what is done and of what was due
  float done;    // per cent
  float due;
  bool measured;   // something was due, so there is a progress
  float progress;  // per cent of what was due
};

// Of the schedule on display, on a day: two digits of the year, month and day from 0.
SclRates SclRatesOf(int year, int month, int day);

// "%d.%d％": the whole part and two digits of the rest.
void SclRateText(float rate, char* text, int size);

// "20%2d年 %d月 %d日" of a date counted from 0, with no blank in the year.
void SclRateDateText(int year, int month, int day, char* text, int size);
