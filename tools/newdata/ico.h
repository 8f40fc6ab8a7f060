// The program's icon file.
#pragma once

#include <filesystem>

#include "newdata/bytes.h"
#include "newdata/raster.h"

// One square picture of an icon, at most 256 pixels wide, as it stands in the file.
struct IconImage {
  int side = 0;
  Bytes content;
};

// A picture in the classic form, 32 bits a pixel with alpha and a mask.
IconImage PlainIcon(const AlphaPicture& picture);

// An icon file with the pictures in their order.
Bytes IcoFile(const std::vector<IconImage>& images);

// The icon from its drawing: frame 1 for 256 pixels, packed as PNG, for 48 and for
// 32, and frame 2, which has less detail, for 24 and 16.
Bytes ProgramIcon(const std::filesystem::path& drawing);
