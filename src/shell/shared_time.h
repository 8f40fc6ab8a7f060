// The local time of the tick in progress, read once for all that ask for it.
#pragma once

#include "platform/time.h"

extern LocalTime SharedTime;
