#include "services/dib.h"

#include <algorithm>
#include <cstdint>

#include "platform/file.h"
#include "platform/memory.h"
#include "services/big_endian.h"

// The file header, 14 bytes, little-endian; it is not kept:
//   0  2  19778, the letters "BM"
//   2  4  size of the file
//   6  8  not used
//
// The block that is kept begins with one of two headers.
//   core, header size 12:        others, header size 16 or more:
//   0  4  header size            0  4  header size
//   4  2  width                  4  4  width
//   6  2  height                 8  4  height, negative: first row on top
//   8  2  planes                12  2  planes
//  10  2  bits a pixel          14  2  bits a pixel
//                               16  4  compression, 0 for none
//                               32  4  number of colours, 0: as many as the bits tell
// Then the colour table, 3 bytes a colour in the core format, else 4; then the
// rows, each filled up to 4 bytes.

namespace {

constexpr int kFileHeaderSize = 14;
constexpr std::uint16_t kMagic = 19778;
constexpr int kReadPiece = 32768;
constexpr std::uint32_t kCoreSize = 12;
constexpr std::uint32_t kSmallestSize = 16;
constexpr std::uint32_t kDrawnSize = 40;

// The file's size must be at least what its header says, so that no block is
// asked for that could not be filled.
bool FileHolds(int file, std::uint32_t size) {
  std::uint32_t high = 0;
  const std::uint32_t low = FileSize(file, &high);
  return high != 0 || low >= size;
}

bool ReadBlock(int file, unsigned char* block, std::uint32_t size) {
  for (std::uint32_t done = 0; done < size;) {
    const int piece = static_cast<int>(std::min<std::uint32_t>(size - done, kReadPiece));
    if (FileRead(file, block + done, piece) != piece) return false;
    done += static_cast<std::uint32_t>(piece);
  }
  return true;
}

ImageHandle LoadFrom(int file) {
  unsigned char header[kFileHeaderSize];
  if (FileRead(file, header, kFileHeaderSize) != kFileHeaderSize) return nullptr;
  if (GetLE16(header) != kMagic) return nullptr;
  const std::uint32_t fileSize = GetLE32(header + 2);
  // bounded: a block too small for its first word is no picture.
  if (fileSize < kFileHeaderSize + 4 || !FileHolds(file, fileSize)) return nullptr;
  const std::uint32_t size = fileSize - kFileHeaderSize;
  auto* block = static_cast<unsigned char*>(MemoryAllocate(size));
  if (!block) return nullptr;
  const bool read = ReadBlock(file, block, size);
  const std::uint32_t headerSize = GetLE32(block);
  if (!read || (headerSize != kCoreSize && headerSize < kSmallestSize)) {
    MemoryFree(block);
    return nullptr;
  }
  return block;
}

bool IsCore(ImageHandle image) {
  return GetLE32(image) == kCoreSize;
}

// Where the parts of a picture lie. All of it is inside the block.
struct Layout {
  int width;
  int height;
  unsigned bits;       // of a pixel
  std::size_t rows;    // offset of the first row
  std::size_t stride;  // bytes from row to row
};

// bounded: header, colour table and rows must lie inside the block; false if not,
// and for anything that is not a plain uncompressed picture.
bool LayoutOf(ImageHandle image, Layout* layout) {
  const std::uint64_t size = MemorySize(image);
  if (size < kCoreSize) return false;
  const bool core = IsCore(image);
  const std::uint64_t headerSize = GetLE32(image);
  if (size < headerSize || (!core && headerSize < kSmallestSize)) return false;

  const std::int64_t width = core ? GetLE16(image + 4) : static_cast<std::int32_t>(GetLE32(image + 4));
  std::int64_t height = core ? GetLE16(image + 6) : static_cast<std::int32_t>(GetLE32(image + 8));
  if (height < 0) height = -height;
  if (width <= 0 || height == 0) return false;

  const unsigned bits = GetLE16(image + (core ? 10 : 14));
  if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32) return false;
  if (headerSize >= 20 && GetLE32(image + 16) != 0) return false;

  // kept: 16 and 32 bits count a colour table too, which such files do not have.
  // Their rows then end behind the block, and they draw nothing unless the header
  // names the number of colours.
  std::uint64_t colours = bits == 24 ? 0 : std::uint64_t{1} << bits;
  if (headerSize >= 36 && GetLE32(image + 32) != 0) colours = GetLE32(image + 32);

  constexpr std::uint64_t kMostIndexed = 256;
  if (bits <= 8 && colours > kMostIndexed) return false;

  const std::uint64_t rows = headerSize + colours * (core ? 3 : 4);
  const std::uint64_t stride = (static_cast<std::uint64_t>(width) * bits + 31) / 32 * 4;
  if (rows > size || stride > (size - rows) / static_cast<std::uint64_t>(height)) return false;
  *layout = {static_cast<int>(width), static_cast<int>(height), bits, static_cast<std::size_t>(rows),
             static_cast<std::size_t>(stride)};
  return true;
}

// Headers between the two usual sizes have rows, but no window system draws them.
bool CanBeDrawn(ImageHandle image, Layout* layout) {
  return LayoutOf(image, layout) && (IsCore(image) || GetLE32(image) >= kDrawnSize);
}

bool Masked(const unsigned char* pixel) {
  return pixel[0] == 255 && pixel[1] == 255 && pixel[2] == 255;
}

}  // namespace

ImageHandle DibLoad(const char* path) {
  const int file = FileOpen(path, OpenMode::Read);
  if (file == kNoFile) return nullptr;
  ImageHandle image = LoadFrom(file);
  FileClose(file);
  return image;
}

ImageHandle DibCopy(ImageHandle image) {
  const std::size_t size = MemorySize(image);
  auto* copy = size == 0 ? nullptr : static_cast<unsigned char*>(MemoryAllocate(size));
  if (copy) std::copy_n(image, size, copy);
  return copy;
}

void DibFree(ImageHandle image) {
  MemoryFree(image);
}

int DibWidth(ImageHandle image) {
  return MemorySize(image) >= 6 ? GetLE16(image + 4) : 0;
}

// kept: the low 16 bits count, of a negative height too.
int DibHeight(ImageHandle image) {
  if (MemorySize(image) < 10) return 0;
  return GetLE16(image + (IsCore(image) ? 6 : 8));
}

unsigned char* DibBits(ImageHandle image) {
  Layout layout;
  return LayoutOf(image, &layout) ? image + layout.rows : nullptr;
}

void DibDraw(Canvas* canvas, int x, int y, ImageHandle image) {
  Layout layout;
  if (!CanBeDrawn(image, &layout)) return;
  CanvasDib(canvas, x, y, layout.width, layout.height, image, image + layout.rows);
}

void DibDrawRop(Canvas* canvas, int x, int y, ImageHandle image, RasterOp op) {
  Layout layout;
  if (!CanBeDrawn(image, &layout)) return;
  CanvasDibOp(canvas, x, y, layout.width, layout.height, image, image + layout.rows, op);
}

void DibApplyMask(ImageHandle picture, ImageHandle mask) {
  Layout to;
  Layout from;
  if (!LayoutOf(picture, &to) || !LayoutOf(mask, &from) || to.bits != 24 || from.bits != 24) return;
  const int width = std::min(to.width, from.width);
  const int height = std::min(to.height, from.height);
  for (int row = 0; row < height; ++row) {
    unsigned char* pixel = picture + to.rows + static_cast<std::size_t>(row) * to.stride;
    const unsigned char* test = mask + from.rows + static_cast<std::size_t>(row) * from.stride;
    for (int column = 0; column < width; ++column, pixel += 3, test += 3) {
      if (Masked(test)) std::fill_n(pixel, 3, static_cast<unsigned char>(0));
    }
  }
}
