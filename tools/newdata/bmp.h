// Bitmap files of a character's frames: 24 bits a pixel, rows from the bottom.
#pragma once

#include "newdata/bytes.h"
#include "newdata/pixels.h"

// The whole file of a picture.
Bytes BmpFile(const Picture& picture);

// The mask of a figure as a picture: black where the figure is, white where the
// background shows through.
Picture MaskPicture(const PixelSet& figure);
