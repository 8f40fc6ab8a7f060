#include "filetools/open_history.h"

// There is no history file yet.
void OpnHisTakeWalkSettings() {}
