#include "newdata/ico.h"

namespace {

constexpr std::uint32_t kDirectory = 6;
constexpr std::uint32_t kEntry = 16;
constexpr std::uint32_t kInfoHeader = 40;

}  // namespace

// Info header with twice the height, the colours from the bottom, then a one-bit
// mask of the pixels that are clear.
IconImage PlainIcon(const AlphaPicture& picture) {
  const auto width = static_cast<std::uint32_t>(picture.width);
  const auto height = static_cast<std::uint32_t>(picture.height);
  const std::uint32_t maskRow = (width + 31) / 32 * 4;
  Bytes image;
  AddLE32(image, kInfoHeader);
  AddLE32(image, width);
  AddLE32(image, height * 2);
  AddLE16(image, 1);
  AddLE16(image, 32);
  AddLE32(image, 0);
  AddLE32(image, width * height * 4 + maskRow * height);
  for (int i = 0; i < 4; ++i) AddLE32(image, 0);
  for (std::uint32_t y = height; y-- > 0;) {
    for (std::uint32_t x = 0; x < width; ++x) {
      const std::uint8_t* pixel = &picture.rgba[(std::size_t{y} * width + x) * 4];
      image.insert(image.end(), {pixel[2], pixel[1], pixel[0], pixel[3]});
    }
  }
  for (std::uint32_t y = height; y-- > 0;) {
    Bytes row(maskRow);
    for (std::uint32_t x = 0; x < width; ++x) {
      if (picture.rgba[(std::size_t{y} * width + x) * 4 + 3] == 0) {
        row[x / 8] = static_cast<std::uint8_t>(row[x / 8] | (128U >> (x % 8)));
      }
    }
    image.insert(image.end(), row.begin(), row.end());
  }
  return {picture.width, image};
}

Bytes IcoFile(const std::vector<IconImage>& images) {
  const auto count = static_cast<std::uint32_t>(images.size());
  Bytes file;
  AddLE16(file, 0);
  AddLE16(file, 1);
  AddLE16(file, count);
  std::uint32_t place = kDirectory + kEntry * count;
  for (const IconImage& image : images) {
    // A side of 256 is written as 0.
    file.insert(file.end(), 2, static_cast<std::uint8_t>(image.side));
    AddLE16(file, 0);
    AddLE16(file, 1);
    AddLE16(file, 32);
    AddLE32(file, static_cast<std::uint32_t>(image.content.size()));
    AddLE32(file, place);
    place += static_cast<std::uint32_t>(image.content.size());
  }
  for (const IconImage& image : images) file.insert(file.end(), image.content.begin(), image.content.end());
  return file;
}

Bytes ProgramIcon(const std::filesystem::path& drawing) {
  constexpr int kFull = 1;
  constexpr int kPlain = 2;
  return IcoFile({{256, RenderPng(drawing, kFull, 256, 256)},
                  PlainIcon(RenderScaled(drawing, kFull, 48, 48)),
                  PlainIcon(RenderScaled(drawing, kFull, 32, 32)),
                  PlainIcon(RenderScaled(drawing, kPlain, 24, 24)),
                  PlainIcon(RenderScaled(drawing, kPlain, 16, 16))});
}
