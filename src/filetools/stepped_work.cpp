#include "filetools/stepped_work.h"

SteppedState Stepped;
