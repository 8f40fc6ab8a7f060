#include "newdata/bmp.h"

namespace {

constexpr std::uint32_t kFileHeader = 14;
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint32_t kBitsPerPixel = 24;

}  // namespace

Bytes BmpFile(const Picture& picture) {
  const std::uint32_t rowBytes = (static_cast<std::uint32_t>(picture.width) * 3 + 3) / 4 * 4;
  const std::uint32_t imageBytes = rowBytes * static_cast<std::uint32_t>(picture.height);
  Bytes file;
  file.reserve(kFileHeader + kInfoHeader + imageBytes);
  AddText(file, "BM");
  AddLE32(file, kFileHeader + kInfoHeader + imageBytes);
  AddLE32(file, 0);
  AddLE32(file, kFileHeader + kInfoHeader);
  AddLE32(file, kInfoHeader);
  AddLE32(file, static_cast<std::uint32_t>(picture.width));
  AddLE32(file, static_cast<std::uint32_t>(picture.height));
  AddLE16(file, 1);
  AddLE16(file, kBitsPerPixel);
  AddLE32(file, 0);  // not compressed
  AddLE32(file, imageBytes);
  AddLE32(file, 0);  // pixels per metre, not told
  AddLE32(file, 0);
  AddLE32(file, 0);  // no colour table
  AddLE32(file, 0);
  for (int y = picture.height - 1; y >= 0; --y) {
    const std::size_t rowEnd = file.size() + rowBytes;
    for (int x = 0; x < picture.width; ++x) {
      const Rgb& colour = picture.At(x, y);
      file.insert(file.end(), {colour.blue, colour.green, colour.red});
    }
    file.resize(rowEnd);
  }
  return file;
}

Picture MaskPicture(const PixelSet& figure) {
  Picture mask(figure.width, figure.height, kWhite);
  for (int y = 0; y < figure.height; ++y) {
    for (int x = 0; x < figure.width; ++x) {
      if (figure.At(x, y)) mask.At(x, y) = kBlack;
    }
  }
  return mask;
}
