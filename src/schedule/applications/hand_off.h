// The hand-off file that a started schedule program answers through.
#pragma once

// Looks at the file while a program is started. True when it has changed and the
// selection is to be applied anew.
bool SclHandOffCheck();
