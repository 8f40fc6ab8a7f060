#include "shell/shared_time.h"

LocalTime SharedTime;
