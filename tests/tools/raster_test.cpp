#include "newdata/raster.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

// A drawing in a file of its own, gone with the test.
class RasterTest : public testing::Test {
 protected:
  void Write(const std::string& content) { std::ofstream(file) << content; }
  void TearDown() override { std::filesystem::remove(file); }

  std::string ErrorOf(int frame) {
    try {
      RenderFrame(file, frame);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }

  std::filesystem::path file =
      std::filesystem::temp_directory_path() / ("raster_test_" + std::to_string(getpid()) + ".svg");
};

const char* const kTwoFrames =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"6\">"
    "<style>.frame{display:none} #frame1{display:inline}</style>"
    "<g class=\"frame\" id=\"frame1\"><rect x=\"1\" y=\"2\" width=\"3\" height=\"2\" fill=\"#0a141e\"/></g>"
    "<g class=\"frame\" id=\"frame2\"><rect x=\"5\" y=\"0\" width=\"2\" height=\"6\" fill=\"#ff0000\"/></g>"
    "</svg>";

}  // namespace

TEST_F(RasterTest, FramesAreCounted) {
  Write(kTwoFrames);
  EXPECT_EQ(DrawingFrames(file), 2);
}

TEST_F(RasterTest, OneFrameIsShownAtATime) {
  Write(kTwoFrames);
  const Frame first = RenderFrame(file, 1);
  ASSERT_EQ(first.picture.width, 8);
  ASSERT_EQ(first.picture.height, 6);
  const Frame second = RenderFrame(file, 2);
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 8; ++x) {
      const bool inFirst = x >= 1 && x < 4 && y >= 2 && y < 4;
      const bool inSecond = x >= 5 && x < 7;
      EXPECT_EQ(first.figure.At(x, y), inFirst) << x << "," << y;
      EXPECT_EQ(first.picture.At(x, y), inFirst ? (Rgb{10, 20, 30}) : kWhite) << x << "," << y;
      EXPECT_EQ(second.figure.At(x, y), inSecond) << x << "," << y;
      EXPECT_EQ(second.picture.At(x, y), inSecond ? (Rgb{255, 0, 0}) : kWhite) << x << "," << y;
    }
  }
}

TEST_F(RasterTest, HalfClearPixelIsInsideWithItsFullColour) {
  // Alpha 0.5 is 128 of 255; 0.49 is 125.
  Write(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"2\" height=\"1\">"
      "<g class=\"frame\" id=\"frame1\"><rect width=\"1\" height=\"1\" fill=\"#c86432\" "
      "fill-opacity=\"0.502\"/>"
      "<rect x=\"1\" width=\"1\" height=\"1\" fill=\"#c86432\" fill-opacity=\"0.49\"/></g></svg>");
  const Frame frame = RenderFrame(file, 1);
  EXPECT_TRUE(frame.figure.At(0, 0));
  EXPECT_FALSE(frame.figure.At(1, 0));
  EXPECT_NEAR(frame.picture.At(0, 0).red, 200, 1);
  EXPECT_NEAR(frame.picture.At(0, 0).green, 100, 1);
  EXPECT_NEAR(frame.picture.At(0, 0).blue, 50, 1);
  EXPECT_EQ(frame.picture.At(1, 0), kWhite);
}

TEST_F(RasterTest, MissingFrameNamesFileAndFrame) {
  Write(kTwoFrames);
  EXPECT_EQ(ErrorOf(3), file.string() + ": has no frame 3");
}

TEST_F(RasterTest, FileThatIsNoDrawingIsNamed) {
  Write("no drawing");
  EXPECT_EQ(ErrorOf(1).rfind(file.string() + ": cannot be read as a drawing", 0), 0U);
}

TEST_F(RasterTest, MissingFileIsNamed) {
  EXPECT_EQ(ErrorOf(1).rfind(file.string() + ": cannot be read as a drawing", 0), 0U);
  EXPECT_THROW(DrawingFrames(file), std::runtime_error);
}

TEST_F(RasterTest, ScaledPictureKeepsItsAlpha) {
  Write(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" height=\"4\" viewBox=\"0 0 4 4\">"
      "<g class=\"frame\" id=\"frame1\"><rect width=\"2\" height=\"4\" fill=\"#00ff00\"/></g></svg>");
  const AlphaPicture picture = RenderScaled(file, 1, 2, 2);
  const std::vector<std::uint8_t> expected{0, 255, 0, 255, 0, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0, 0};
  EXPECT_EQ(picture.rgba, expected);
}
