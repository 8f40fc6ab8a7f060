// The clock of the native build: the machine's, until a test sets one.
#pragma once

#include "platform/time.h"

// From now on the local time is this one and stands still.
void TestClockSet(const LocalTime& time);

// While the clock is set, milliseconds pass only by this.
void TestClockPass(unsigned milliseconds);

// The set clock goes on: the local time too.
void TestClockGo(unsigned milliseconds);

// From now on nobody may set the clock, or everybody again.
void TestClockForbid(bool forbidden);

// Back to the machine's clock.
void TestClockClear();
