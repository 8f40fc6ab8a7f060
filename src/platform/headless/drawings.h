// The record of what was drawn.
#pragma once

#include "platform/headless/state.h"

// The rectangle that a call touches, right and bottom one past the last pixel.
Rect DrawCallBounds(const DrawCall& call);

// The call at another place and scale: `from` of the source becomes `to`.
DrawCall DrawCallMoved(const DrawCall& call, const Rect& from, const Rect& to);

bool RectsMeet(const Rect& a, const Rect& b);
bool RectHolds(const Rect& outer, const Rect& inner);
Rect RectCommon(const Rect& a, const Rect& b);

// The calls drawn into windows, all in one list.
std::vector<DrawCall>& WindowDrawings();
