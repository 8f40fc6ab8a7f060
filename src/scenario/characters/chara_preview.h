// The picture of a world character in a dialog: its first frame, in a box of 300 by 200
// pixels.
#pragma once

#include "platform/types.h"

inline constexpr int kCharaPreviewWidth = 300;
inline constexpr int kCharaPreviewHeight = 200;

// Draws the box of a character (from 1) with its top left corner at a place in dialog
// units; one without a picture, and 0, shows the empty box.
void CharaPreviewPaint(WindowHandle dialog, const Point& at, int chara);
