// What the CharaSet of a character means.
#pragma once

// The screen's point of a start point code: 0 to 3 the corners, 4 the middle, 5
// and 6 the middle of the right and left edge, any other code (700, 600); never
// beyond the working screen.
void WalkStartPlace(int code, int* x, int* y);
