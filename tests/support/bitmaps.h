// Bitmap files for tests.
#pragma once

#include <string>
#include <vector>

// A 24-bit bitmap file of those bytes, three to a pixel, rows from the bottom.
std::string BitmapOf(int width, int height, const std::vector<int>& pixels);
