#include "services/dib.h"

#include <algorithm>
#include <cstdint>

#include "platform/file.h"
#include "platform/memory.h"
#include "services/record.h"

// The file header, which is not kept:
//
// offset  size  field
//      0     2  19778, the letters "BM"
//      2     4  size of the file
//      6     8  not used
//
// The block that is kept begins with one of two headers. Then the colour table, 3 bytes
// a colour in the core format, else 4; then the rows, each filled up to 4 bytes.

namespace {

struct FileHeader {
  std::uint16_t magic;
  std::uint32_t size;
};
template <class Io>
constexpr void Fields(Io& io, FileHeader& header) {
  io.LE16(header.magic);
  io.LE32(header.size);
  io.At(14);
}
constexpr int kFileHeaderSize = RecordSize<FileHeader>();

// The core header, of header size 12.
//
// offset  size  field
//      0     4  header size
//      4     2  width
//      6     2  height
//      8     2  planes
//     10     2  bits a pixel
struct CoreHeader {
  std::uint32_t headerSize;
  std::uint16_t width;
  std::uint16_t height;
  std::uint16_t bits;
};
template <class Io>
constexpr void Fields(Io& io, CoreHeader& header) {
  io.LE32(header.headerSize);
  io.LE16(header.width);
  io.LE16(header.height);
  io.At(10);
  io.LE16(header.bits);
}

// The others, of header size 16 and more; one of less than 36 has not all of the fields.
//
// offset  size  field
//      0     4  header size
//      4     4  width
//      8     4  height, negative: first row on top
//     12     2  planes
//     14     2  bits a pixel
//     16     4  compression, 0 for none
//     32     4  number of colours, 0: as many as the bits tell
struct InfoHeader {
  std::uint32_t headerSize;
  std::int32_t width;
  std::int32_t height;
  std::uint16_t bits;
  std::uint32_t compression;
  std::uint32_t colours;
};
template <class Io>
constexpr void Fields(Io& io, InfoHeader& header) {
  io.LE32(header.headerSize);
  io.LE32(header.width);
  io.LE32(header.height);
  io.At(14);
  io.LE16(header.bits);
  io.LE32(header.compression);
  io.At(32);
  io.LE32(header.colours);
}
constexpr std::uint32_t kUpToCompression = RecordOffset<&InfoHeader::compression>() + 4;
constexpr std::uint32_t kUpToColours = RecordSize<InfoHeader>();

// The 16 bits in which both kinds of header have a picture's size.
struct Figures {
  std::uint16_t width;
  std::uint16_t coreHeight;
  std::uint16_t height;
};
template <class Io>
constexpr void Fields(Io& io, Figures& figures) {
  io.At(4);
  io.LE16(figures.width);
  io.LE16(figures.coreHeight);
  io.LE16(figures.height);
}
constexpr std::size_t kFiguresSize = RecordSize<Figures>();

// A header as far as the block holds it; what is behind the block's end is 0.
template <class Header>
Header HeaderOf(ImageHandle image) {
  Header header{};
  RecordTake(header, image, static_cast<int>(std::min<std::size_t>(MemorySize(image), 1024)));
  return header;
}

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
  unsigned char bytes[kFileHeaderSize];
  FileHeader header{};
  if (FileRead(file, bytes, kFileHeaderSize) != kFileHeaderSize) return nullptr;
  if (!RecordTake(header, bytes, kFileHeaderSize) || header.magic != kMagic) return nullptr;
  const std::uint32_t fileSize = header.size;
  // bounded: a picture file too small for the first word of its header is none.
  if (fileSize < kFileHeaderSize + 4 || !FileHolds(file, fileSize)) return nullptr;
  const std::uint32_t size = fileSize - kFileHeaderSize;
  auto* block = static_cast<unsigned char*>(MemoryAllocate(size));
  if (!block) return nullptr;
  const bool read = ReadBlock(file, block, size);
  const std::uint32_t headerSize = HeaderOf<CoreHeader>(block).headerSize;
  if (!read || (headerSize != kCoreSize && headerSize < kSmallestSize)) {
    MemoryFree(block);
    return nullptr;
  }
  return block;
}

bool IsCore(ImageHandle image) {
  return HeaderOf<CoreHeader>(image).headerSize == kCoreSize;
}

// Where the parts of a picture lie. All of it is inside the block.
struct Layout {
  int width;
  int height;
  unsigned bits;       // of a pixel
  std::size_t rows;    // offset of the first row
  std::size_t stride;  // bytes from row to row
};

// False for anything that is not a plain uncompressed picture.
// bounded: header, colour table and rows of a picture must lie inside its block.
bool LayoutOf(ImageHandle image, Layout* layout) {
  const std::uint64_t size = MemorySize(image);
  if (size < kCoreSize) return false;
  const auto coreHeader = HeaderOf<CoreHeader>(image);
  const auto header = HeaderOf<InfoHeader>(image);
  const std::uint64_t headerSize = coreHeader.headerSize;
  const bool core = headerSize == kCoreSize;
  if (size < headerSize || (!core && headerSize < kSmallestSize)) return false;

  const std::int64_t width = core ? coreHeader.width : header.width;
  std::int64_t height = core ? coreHeader.height : header.height;
  if (height < 0) height = -height;
  if (width <= 0 || height == 0) return false;

  const unsigned bits = core ? coreHeader.bits : header.bits;
  if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32) return false;
  if (headerSize >= kUpToCompression && header.compression != 0) return false;

  // kept: a picture of 16 or 32 bits counts a colour table too, which such files do not have.
  // Its rows then end behind the block, and it draws nothing unless the header names the
  // number of colours.
  std::uint64_t colours = bits == 24 ? 0 : std::uint64_t{1} << bits;
  if (headerSize >= kUpToColours && header.colours != 0) colours = header.colours;

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
  return LayoutOf(image, layout) && (IsCore(image) || HeaderOf<InfoHeader>(image).headerSize >= kDrawnSize);
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
  return HeaderOf<Figures>(image).width;
}

// kept: of a picture's width and height the low 16 bits count, of a negative height too.
int DibHeight(ImageHandle image) {
  if (MemorySize(image) < kFiguresSize) return 0;
  const auto figures = HeaderOf<Figures>(image);
  return IsCore(image) ? figures.coreHeight : figures.height;
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
