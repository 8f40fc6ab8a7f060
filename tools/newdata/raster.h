// Turns the drawings (SVG) into pixels.
//
// A drawing of a character holds its frames as groups with the class "frame"
// and the ids "frame1", "frame2" and so on; one of them is shown at a time.
#pragma once

#include <filesystem>

#include "newdata/bytes.h"
#include "newdata/pixels.h"

// A frame with its alpha kept, for icons. Rows from the top; the four bytes of
// a pixel are red, green, blue, alpha, not multiplied by alpha.
struct AlphaPicture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgba;
};

// The number of frames of a drawing: frame1 to frameN without a gap. Throws
// std::runtime_error, which names the file, when it cannot be read.
int DrawingFrames(const std::filesystem::path& file);

// Renders one frame, counted from 1, at the drawing's own size. A pixel belongs
// to the figure when its alpha is at least 128. Throws std::runtime_error, which
// names the file and the frame, for a file or frame that is not there.
Frame RenderFrame(const std::filesystem::path& file, int frame);

// Renders one frame scaled to width x height pixels.
AlphaPicture RenderScaled(const std::filesystem::path& file, int frame, int width, int height);

// The same as a PNG file.
Bytes RenderPng(const std::filesystem::path& file, int frame, int width, int height);
