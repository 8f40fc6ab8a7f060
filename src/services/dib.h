// Bitmap files in memory, and drawing them.
#pragma once

#include "platform/canvas.h"
#include "platform/types.h"

// A bitmap file without its 14-byte file header, in one block of memory: the info
// header, the colour table if there is one, the pixel rows. Null means no image.
// Whoever loads one frees it with DibFree. Every function here takes null.
using ImageHandle = unsigned char*;

// Loads a bitmap file. Null, with nothing said, when it cannot be opened, is no
// bitmap, is shorter than it says, or does not fit into memory.
ImageHandle DibLoad(const char* path);

// A picture of one's own, the same as `image`. Null for null, and when it does not fit
// into memory.
ImageHandle DibCopy(ImageHandle image);

void DibFree(ImageHandle image);

// Width and height in pixels, the low 16 bits of the header's fields: 0 to 65535.
// 0 without an image.
int DibWidth(ImageHandle image);
int DibHeight(ImageHandle image);

// The pixel rows. Null for an image that cannot be drawn: its colour table or
// rows would reach past the block, or they are compressed.
unsigned char* DibBits(ImageHandle image);

// Draws the whole picture at x, y, a pixel for a pixel; an image that cannot be
// drawn draws nothing.
void DibDraw(Canvas* canvas, int x, int y, ImageHandle image);
void DibDrawRop(Canvas* canvas, int x, int y, ImageHandle image, RasterOp op);

// Blackens the pixels of `picture` where `mask` is white (255 in all three
// channels). Both are 24-bit pictures; with others nothing happens. Where one is
// larger, the rows and columns that both have are used.
void DibApplyMask(ImageHandle picture, ImageHandle mask);
