#include "filetools/group_open.h"

// No group can be called yet, so none is pending.
void OpnGroupTick() {}
