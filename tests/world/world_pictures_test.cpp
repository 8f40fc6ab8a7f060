// Frame 1 of the world's characters: loaded once, drawn with its mask.
#include "world/world_pictures.h"

#include <gtest/gtest.h>

#include "tests/support/bitmaps.h"
#include "tests/support/desktop.h"

namespace {

class WorldPicturesTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    MakeFolder(InProgram("キャラクタ"));
  }
  void TearDown() override {
    WorldPicturesFree();
    DesktopTest::TearDown();
  }
  static void Put(const std::string& name, const std::string& bytes) {
    ASSERT_TRUE(PutFile(InProgram("キャラクタ\\" + name), bytes));
  }
};

TEST_F(WorldPicturesTest, TheNameOfTheMaskHasAnXInFrontOfItsExtension) {
  char path[400];
  WorldPicturePath(path, sizeof path, 12, 20);
  EXPECT_STREQ(path, "C:\\mirrell\\キャラクタ\\Chara12_20.bmp");
  WorldMaskPath(path, sizeof path, 12, 20);
  EXPECT_STREQ(path, "C:\\mirrell\\キャラクタ\\Chara12_20x.bmp");
}

TEST_F(WorldPicturesTest, WhereTheMaskIsWhiteThePictureIsBlack) {
  // Two pixels of blue, green, red: the mask is white over the second one only.
  Put("Chara3_1.bmp", BitmapOf(2, 1, {10, 20, 30, 40, 50, 60}));
  Put("Chara3_1x.bmp", BitmapOf(2, 1, {255, 255, 254, 255, 255, 255}));
  const WorldPicture picture = WorldPictureOf(3);
  ASSERT_NE(picture.picture, nullptr);
  ASSERT_NE(picture.mask, nullptr);
  const unsigned char* row = DibBits(picture.picture);
  EXPECT_EQ(std::vector<int>(row, row + 6), (std::vector<int>{10, 20, 30, 0, 0, 0}));
}

TEST_F(WorldPicturesTest, APictureIsLoadedOnceAndKeptUntilAllAreFreed) {
  Put("Chara1_1.bmp", BitmapOf(2, 1, {1, 1, 1, 1, 1, 1}));
  const WorldPicture first = WorldPictureOf(1);
  RemoveFile(InProgram("キャラクタ\\Chara1_1.bmp"));
  EXPECT_EQ(WorldPictureOf(1).picture, first.picture);
  WorldPicturesFree();
  EXPECT_EQ(WorldPictureOf(1).picture, nullptr);
}

TEST_F(WorldPicturesTest, CharactersWithoutAPictureOrANumberHaveNone) {
  Put("Chara512_1.bmp", BitmapOf(1, 1, {1, 1, 1}));
  Put("Chara2_1x.bmp", BitmapOf(1, 1, {1, 1, 1}));
  EXPECT_NE(WorldPictureOf(512).picture, nullptr);
  EXPECT_EQ(WorldPictureOf(512).mask, nullptr);
  for (const int chara : {0, -1, 513, 2147483647, 2}) {
    EXPECT_EQ(WorldPictureOf(chara).picture, nullptr) << chara;
    EXPECT_EQ(WorldPictureOf(chara).mask, nullptr) << chara;
  }
}

}  // namespace
