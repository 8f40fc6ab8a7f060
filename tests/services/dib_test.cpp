#include "services/dib.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>

#include "platform/diagnostics.h"
#include "platform/headless/headless.h"
#include "platform/memory.h"
#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "platform/window.h"
#include "resources/services_ids.h"
#include "tests/support/desktop.h"

namespace {

void Put(std::string& bytes, std::size_t at, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i)
    bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * i));
}

std::size_t StrideOf(int width, int bits) {
  return (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
}

// A bitmap file; every byte of the rows tells where it stands.
std::string Bitmap(int width, int height, int bits, std::uint32_t colours = 0) {
  const std::size_t table = bits > 8 ? 4 * colours : 4 * (colours ? colours : 1U << bits);
  const std::size_t rows = StrideOf(width, bits) * static_cast<std::size_t>(std::abs(height));
  std::string file(14 + 40 + table + rows, '\0');
  file[0] = 'B';
  file[1] = 'M';
  Put(file, 2, static_cast<std::uint32_t>(file.size()), 4);
  Put(file, 10, static_cast<std::uint32_t>(54 + table), 4);
  Put(file, 14, 40, 4);
  Put(file, 18, static_cast<std::uint32_t>(width), 4);
  Put(file, 22, static_cast<std::uint32_t>(height), 4);
  Put(file, 26, 1, 2);
  Put(file, 28, static_cast<std::uint32_t>(bits), 2);
  Put(file, 46, colours, 4);
  for (std::size_t i = 0; i < rows; ++i) file[54 + table + i] = static_cast<char>(i + 1);
  return file;
}

std::string CoreBitmap(int width, int height, int bits) {
  const std::size_t table = bits == 24 ? 0 : std::size_t{3} << bits;
  std::string file(14 + 12 + table + StrideOf(width, bits) * static_cast<std::size_t>(height), '\7');
  file[0] = 'B';
  file[1] = 'M';
  Put(file, 2, static_cast<std::uint32_t>(file.size()), 4);
  Put(file, 14, 12, 4);
  Put(file, 18, static_cast<std::uint32_t>(width), 2);
  Put(file, 20, static_cast<std::uint32_t>(height), 2);
  Put(file, 22, 1, 2);
  Put(file, 24, static_cast<std::uint32_t>(bits), 2);
  return file;
}

class DibTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    window = DialogOpen(IDD_FileSelectForLoadDlg, nullptr, [](const Event&) { return true; });
    DrawingClear();
  }
  void TearDown() override {
    WindowDestroy(window);
    EXPECT_EQ(DiagnosticsLive().files, 0);
    DesktopTest::TearDown();
  }

  ImageHandle Load(const std::string& file) {
    PutFile("C:\\picture.bmp", file);
    return DibLoad("C:\\picture.bmp");
  }

  // Draws and says what was drawn.
  std::vector<DrawCall> Draw(ImageHandle image) {
    DrawingClear();
    Canvas* canvas = CanvasGet(window);
    DibDraw(canvas, 7, 9, image);
    CanvasRelease(canvas);
    return Drawings(window);
  }

  WindowHandle window = nullptr;
};

// Reads all that drawing reads: header, colour table and rows.
unsigned Touch(ImageHandle image) {
  const unsigned char* bits = DibBits(image);
  if (!bits) return 0;
  std::uint32_t head[4] = {};
  std::memcpy(head, image, 12);
  std::int64_t width = static_cast<std::int32_t>(head[1]);
  std::int64_t height = static_cast<std::int32_t>(head[2]);
  std::uint16_t depth = 0;
  if (head[0] == 12) {
    width = head[1] & 0xFFFFU;
    height = head[1] >> 16U;
    std::memcpy(&depth, image + 10, 2);
  } else {
    std::memcpy(&depth, image + 14, 2);
  }
  height = height < 0 ? -height : height;
  const std::int64_t size = ((width * depth + 31) / 32) * 4 * height;
  unsigned sum = 0;
  for (const unsigned char* at = image; at < bits + size; ++at) sum += *at;
  return sum;
}

TEST_F(DibTest, LoadsTheFileWithoutItsFourteenByteHeader) {
  const std::string file = Bitmap(5, 3, 24);
  ImageHandle image = Load(file);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(MemorySize(image), file.size() - 14);
  EXPECT_EQ(std::memcmp(image, file.data() + 14, file.size() - 14), 0);
  EXPECT_EQ(DibWidth(image), 5);
  EXPECT_EQ(DibHeight(image), 3);
  DibFree(image);
  EXPECT_EQ(DiagnosticsLive().blocks, 0);
}

TEST_F(DibTest, RefusesAFileThatIsNotThere) {
  EXPECT_EQ(DibLoad("C:\\none.bmp"), nullptr);
}

TEST_F(DibTest, RefusesAFileWithAnotherMagic) {
  std::string file = Bitmap(5, 3, 24);
  file[1] = 'N';
  EXPECT_EQ(Load(file), nullptr);
  file = Bitmap(5, 3, 24);
  file[0] = 'b';
  EXPECT_EQ(Load(file), nullptr);
}

TEST_F(DibTest, AFileThatBeginsWithBmButHasAHeaderSizeOf13LoadsAndIsRefused) {
  std::string file = Bitmap(5, 3, 24);
  Put(file, 14, 13, 4);
  EXPECT_EQ(Load(file), nullptr);
  EXPECT_EQ(DiagnosticsLive().blocks, 0);
  EXPECT_EQ(FaultCalls(FaultKind::Memory), 1);  // it was loaded before it was looked at
}

TEST_F(DibTest, AcceptsHeaderSizes12AndFrom16On) {
  for (std::uint32_t size = 0; size < 64; ++size) {
    std::string file = Bitmap(5, 3, 24);
    Put(file, 14, size, 4);
    ImageHandle image = Load(file);
    EXPECT_EQ(image != nullptr, size == 12 || size >= 16) << size;
    Touch(image);
    DibFree(image);
  }
}

TEST_F(DibTest, RefusesAFileThatIsTruncatedAtAnyByte) {
  const std::string file = Bitmap(3, 2, 24);
  for (std::size_t size = 0; size < file.size(); ++size) {
    EXPECT_EQ(Load(file.substr(0, size)), nullptr) << size;
  }
  EXPECT_EQ(DiagnosticsLive().blocks, 0);
}

TEST_F(DibTest, APictureWhoseSizeIsCutAtAnyByteNeverReachesPastItsBlock) {
  const std::string whole = Bitmap(3, 2, 24);
  for (std::size_t size = 18; size < whole.size(); ++size) {
    std::string file = whole.substr(0, size);
    Put(file, 2, static_cast<std::uint32_t>(size), 4);
    ImageHandle image = Load(file);
    ASSERT_NE(image, nullptr) << size;
    EXPECT_EQ(DibBits(image), nullptr) << size;
    EXPECT_TRUE(Draw(image).empty()) << size;
    DibWidth(image);
    DibHeight(image);
    DibApplyMask(image, image);
    DibFree(image);
  }
}

TEST_F(DibTest, AbsurdSizesInTheFileHeaderAreRefused) {
  for (std::uint32_t size : {0U, 1U, 13U, 14U, 15U, 17U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    std::string file = Bitmap(3, 2, 24);
    Put(file, 2, size, 4);
    EXPECT_EQ(Load(file), nullptr) << size;
  }
  EXPECT_EQ(DiagnosticsLive().blocks, 0);
}

TEST_F(DibTest, BytesBehindTheSizeInTheHeaderAreLeftInTheFile) {
  const std::string file = Bitmap(3, 2, 24);
  ImageHandle image = Load(file + "more");
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(MemorySize(image), file.size() - 14);
  DibFree(image);
}

TEST_F(DibTest, RefusesWhenThereIsNoMemory) {
  FaultArm(FaultKind::Memory, 1);
  EXPECT_EQ(Load(Bitmap(3, 2, 24)), nullptr);
  EXPECT_TRUE(FaultWasMet());
}

TEST_F(DibTest, ReadsInPiecesOf32768AndRefusesAShortOne) {
  // 14 + 40 + 120 * 480 bytes: the header, then pieces of 32768 and 24872.
  const std::string file = Bitmap(40, 480, 24);
  FaultClear();
  ImageHandle image = Load(file);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(std::memcmp(image, file.data() + 14, file.size() - 14), 0);
  EXPECT_EQ(FaultCalls(FaultKind::Read), 3);
  DibFree(image);
  int failed = 0;
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Read, nth);
    image = DibLoad("C:\\picture.bmp");
    if (!FaultWasMet()) break;
    EXPECT_EQ(image, nullptr) << nth;
    ++failed;
  }
  EXPECT_EQ(failed, 3);
  DibFree(image);
  FaultArm(FaultKind::Open, 1);
  EXPECT_EQ(DibLoad("C:\\picture.bmp"), nullptr);
}

TEST_F(DibTest, ABlockOfExactlyOnePieceIsOneRead) {
  // 40 + 8 * 4091 = 32768.
  const std::string file = Bitmap(2, 4091, 24);
  ASSERT_EQ(file.size(), 14U + 32768U);
  PutFile("C:\\picture.bmp", file);
  FaultClear();
  DibFree(DibLoad("C:\\picture.bmp"));
  EXPECT_EQ(FaultCalls(FaultKind::Read), 2);
}

TEST_F(DibTest, NoImageHasNoSizeAndDrawsNothing) {
  EXPECT_EQ(DibWidth(nullptr), 0);
  EXPECT_EQ(DibHeight(nullptr), 0);
  EXPECT_EQ(DibBits(nullptr), nullptr);
  EXPECT_TRUE(Draw(nullptr).empty());
  DibApplyMask(nullptr, nullptr);
  DibFree(nullptr);
}

TEST_F(DibTest, SizesAreTheLowSixteenBits) {
  std::string file = Bitmap(3, 2, 24);
  Put(file, 18, 0x12345678, 4);
  Put(file, 22, 0x0001FFFE, 4);
  ImageHandle image = Load(file);
  EXPECT_EQ(DibWidth(image), 0x5678);
  EXPECT_EQ(DibHeight(image), 0xFFFE);
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
}

TEST_F(DibTest, RowsFollowTheHeaderAndTheColourTable) {
  struct {
    std::string file;
    std::ptrdiff_t rows;
  } const cases[] = {
      {Bitmap(4, 4, 24), 40},        {Bitmap(4, 4, 8), 40 + 1024},    {Bitmap(4, 4, 4), 40 + 64},
      {Bitmap(4, 4, 1), 40 + 8},     {Bitmap(4, 4, 8, 10), 80},       {Bitmap(4, 4, 24, 2), 48},
      {CoreBitmap(4, 4, 24), 12},    {CoreBitmap(4, 4, 8), 12 + 768}, {CoreBitmap(4, 4, 4), 12 + 48},
      {CoreBitmap(4, 4, 1), 12 + 6}, {Bitmap(4, 4, 32, 1), 44},
  };
  for (const auto& one : cases) {
    ImageHandle image = Load(one.file);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(DibBits(image) - image, one.rows);
    EXPECT_EQ(DibWidth(image), 4);
    EXPECT_EQ(DibHeight(image), 4);
    EXPECT_EQ(Draw(image).size(), 1U);
    DibFree(image);
  }
}

// 2 to the 16 colours of 4 bytes, named by nobody.
TEST_F(DibTest, APictureOf16BitsCountsAColourTableToo) {
  ImageHandle image = Load(Bitmap(4, 4, 16));  // has none
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(DibBits(image), nullptr);
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
  std::string file = Bitmap(4, 4, 16, 65536);
  Put(file, 46, 0, 4);
  image = Load(file);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(DibBits(image) - image, 40 + 262144);
  DibFree(image);
}

TEST_F(DibTest, AHeaderBelow36BytesHasNoNumberOfColours) {
  // 16 bytes of header: the table has 2 colours, whatever stands at offset 32.
  std::string file(14 + 16 + 8 + 4 * 4, '\x55');
  file[0] = 'B';
  file[1] = 'M';
  Put(file, 2, static_cast<std::uint32_t>(file.size()), 4);
  Put(file, 14, 16, 4);
  Put(file, 18, 4, 4);
  Put(file, 22, 4, 4);
  Put(file, 28, 1, 2);
  ImageHandle image = Load(file);
  EXPECT_EQ(DibBits(image) - image, 24);
  EXPECT_TRUE(Draw(image).empty());  // rows it has, but nobody draws such a header
  DibFree(image);
}

// The smallest header that has a number of colours ends right behind it.
TEST_F(DibTest, AHeaderOf36BytesHasANumberOfColours) {
  // 36 bytes of header, 4 bits a pixel, a table of 3 colours, 4 rows of 4 bytes.
  std::string file(14 + 36 + 12 + 4 * 4, '\0');
  file[0] = 'B';
  file[1] = 'M';
  Put(file, 2, static_cast<std::uint32_t>(file.size()), 4);
  Put(file, 14, 36, 4);
  Put(file, 18, 4, 4);
  Put(file, 22, 4, 4);
  Put(file, 28, 4, 2);
  Put(file, 14 + 32, 3, 4);
  ImageHandle image = Load(file);
  EXPECT_EQ(DibBits(image) - image, 36 + 12);
  DibFree(image);
}

TEST_F(DibTest, DrawsTheWholePictureAtItsPlace) {
  ImageHandle image = Load(Bitmap(5, 3, 24));
  std::vector<DrawCall> calls = Draw(image);
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].kind, DrawCall::Kind::Dib);
  EXPECT_EQ(calls[0].x, 7);
  EXPECT_EQ(calls[0].y, 9);
  EXPECT_EQ(calls[0].x2, 12);
  EXPECT_EQ(calls[0].y2, 12);
  EXPECT_EQ(calls[0].dib, image);
  EXPECT_EQ(calls[0].op, RasterOp::Copy);
  DibFree(image);
}

TEST_F(DibTest, DrawsWithARasterCode) {
  ImageHandle image = Load(Bitmap(5, 3, 24));
  DrawingClear();
  Canvas* canvas = CanvasGet(window);
  DibDrawRop(canvas, 1, 2, image, RasterOp::And);
  DibDrawRop(canvas, 1, 2, image, RasterOp::Or);
  DibDrawRop(canvas, 1, 2, nullptr, RasterOp::Or);
  CanvasRelease(canvas);
  std::vector<DrawCall> calls = Drawings(window);
  ASSERT_EQ(calls.size(), 2U);
  EXPECT_EQ(calls[0].op, RasterOp::And);
  EXPECT_EQ(calls[1].op, RasterOp::Or);
  EXPECT_EQ(calls[1].x2, 6);
  DibFree(image);
}

TEST_F(DibTest, APictureWithTheFirstRowOnTopDrawsWithItsTrueHeight) {
  ImageHandle image = Load(Bitmap(5, -3, 24));
  std::vector<DrawCall> calls = Draw(image);
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].y2, 12);
  DibFree(image);
  std::string file = Bitmap(5, 3, 24);
  Put(file, 22, 0x80000000U, 4);
  image = Load(file);
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
}

TEST_F(DibTest, APictureWhoseRowsWouldLieOutsideTheBlockDrawsNothing) {
  std::string file = Bitmap(5, 3, 24);
  Put(file, 22, 4, 4);
  ImageHandle image = Load(file);
  EXPECT_NE(image, nullptr);
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
  file = Bitmap(5, 3, 8);
  Put(file, 46, 257, 4);  // one colour more than there is room for
  image = Load(file);
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
}

TEST_F(DibTest, CompressedPicturesAndOddDepthsDrawNothing) {
  std::string file = Bitmap(5, 3, 8);
  Put(file, 30, 1, 4);
  ImageHandle image = Load(file);
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
  image = Load(Bitmap(5, 3, 8, 257));  // more colours than a pixel can name
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
  file = Bitmap(5, 3, 24);
  Put(file, 28, 5, 2);
  image = Load(file);
  EXPECT_TRUE(Draw(image).empty());
  DibFree(image);
}

TEST_F(DibTest, MaskBlackensThePixelsThatAreWhiteInIt) {
  ImageHandle picture = Load(Bitmap(3, 2, 24));
  std::string maskFile = Bitmap(3, 2, 24);
  std::fill(maskFile.begin() + 54, maskFile.end(), '\0');
  // Rows of 12 bytes: pixel 1 of row 0 white, pixel 2 of row 1 white, pixel 0 of
  // row 1 white in two channels only.
  for (int i = 3; i < 6; ++i) maskFile[54 + static_cast<std::size_t>(i)] = '\xFF';
  for (int i = 18; i < 21; ++i) maskFile[54 + static_cast<std::size_t>(i)] = '\xFF';
  for (int i = 12; i < 14; ++i) maskFile[54 + static_cast<std::size_t>(i)] = '\xFF';
  ImageHandle mask = Load(maskFile);
  DibApplyMask(picture, mask);
  const unsigned char expected[24] = {1,  2,  3,  0,  0,  0,  7, 8, 9, 10, 11, 12,
                                      13, 14, 15, 16, 17, 18, 0, 0, 0, 22, 23, 24};
  EXPECT_EQ(std::memcmp(DibBits(picture), expected, sizeof expected), 0);
  DibFree(picture);
  DibFree(mask);
}

TEST_F(DibTest, MaskOfAnotherSizeOrDepthStaysInside) {
  std::string white = Bitmap(2, 9, 24);
  std::fill(white.begin() + 54, white.end(), '\xFF');
  ImageHandle picture = Load(Bitmap(3, 2, 24));
  ImageHandle mask = Load(white);
  DibApplyMask(picture, mask);
  const unsigned char expected[24] = {0, 0, 0, 0, 0, 0, 7,  8,  9,  10, 11, 12,
                                      0, 0, 0, 0, 0, 0, 19, 20, 21, 22, 23, 24};
  EXPECT_EQ(std::memcmp(DibBits(picture), expected, sizeof expected), 0);
  DibFree(mask);
  std::string shallow = Bitmap(3, 2, 8);
  std::fill(shallow.begin() + 54, shallow.end(), '\xFF');
  mask = Load(shallow);
  ASSERT_NE(mask, nullptr);
  DibApplyMask(picture, mask);
  DibApplyMask(mask, picture);
  DibApplyMask(picture, nullptr);
  EXPECT_EQ(std::memcmp(DibBits(picture), expected, sizeof expected), 0);
  DibFree(picture);
  DibFree(mask);
}

// The same file is written over again and again, a few bytes of it changed.
TEST_F(DibTest, AHundredThousandMutationsStayInsideTheBlock) {
  const std::string seeds[] = {Bitmap(3, 2, 24), Bitmap(9, 3, 1), Bitmap(3, 2, 8, 4), CoreBitmap(3, 2, 24),
                               CoreBitmap(9, 2, 1)};
  ImageHandle other = Load(Bitmap(4, 3, 24));
  const int file = open(PosixPath("C:\\picture.bmp").c_str(), O_RDWR);
  ASSERT_GE(file, 0);
  Canvas* canvas = CanvasGet(window);
  std::mt19937 random(20240607);
  int drawable = 0;
  for (int round = 0; round < 100000; ++round) {
    std::string bytes = seeds[random() % std::size(seeds)];
    const std::size_t hot = random() % 4 == 0 ? bytes.size() : std::min<std::size_t>(bytes.size(), 54);
    for (unsigned count = 1 + random() % 4; count > 0; --count) {
      // Small values and full ones turn up more often than others.
      const auto value = static_cast<unsigned>(random());
      bytes[random() % hot] = static_cast<char>(value % 3 == 0 ? value >> 29U : value >> 24U);
    }
    if (random() % 8 == 0) bytes.resize(random() % (bytes.size() + 1));
    if (random() % 2 == 0 && bytes.size() >= 6) Put(bytes, 2, static_cast<std::uint32_t>(bytes.size()), 4);
    if (bytes.size() >= 2 && random() % 16 != 0) bytes.replace(0, 2, "BM");
    ASSERT_EQ(pwrite(file, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
    ASSERT_EQ(ftruncate(file, static_cast<off_t>(bytes.size())), 0);

    ImageHandle image = DibLoad("C:\\picture.bmp");
    Touch(image);
    if (DibBits(image)) ++drawable;
    DibWidth(image);
    DibHeight(image);
    DibDraw(canvas, 0, 0, image);
    DibDrawRop(canvas, 0, 0, image, RasterOp::Or);
    DibApplyMask(image, other);
    DibApplyMask(other, image);
    DibFree(image);
    if (round % 1000 == 0) DrawingClear();
  }
  EXPECT_GT(drawable, 1000);
  CanvasRelease(canvas);
  close(file);
  DibFree(other);
  EXPECT_EQ(DiagnosticsLive().blocks, 0);
}

}  // namespace
