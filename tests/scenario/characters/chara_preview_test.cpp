// The picture of a character in a dialog, and how pictures are fitted into a box.
#include "scenario/characters/chara_preview.h"

#include "platform/window.h"
#include "resources/scenario_characters_ids.h"
#include "scenario/characters/picture_fit.h"
#include "scenario/storage/snry_main_file.h"
#include "tests/scenario/scenario_world.h"
#include "world/world_pictures.h"

namespace {

class CharaPreviewTest : public ScenarioWorldTest {
 protected:
  void SetUp() override {
    ScenarioWorldTest::SetUp();
    dialog_ = DialogOpen(IDD_DelCharRegiDlg, nullptr, [](const Event&) { return true; });
  }
  void TearDown() override {
    WindowDestroy(dialog_);
    ScenarioWorldTest::TearDown();
  }
  std::vector<DrawCall> Painted(int chara) {
    DrawingClear();
    CharaPreviewPaint(dialog_, {10, 20}, chara);
    return Drawings(dialog_);
  }
  static int Count(const std::vector<DrawCall>& calls, DrawCall::Kind kind) {
    int count = 0;
    for (const DrawCall& call : calls) count += call.kind == kind ? 1 : 0;
    return count;
  }

  WindowHandle dialog_ = nullptr;
};

TEST(PictureFit, APictureThatFitsHasItsSize) {
  for (const auto& [width, height] : {std::pair{300, 200}, {1, 1}, {299, 3}}) {
    const PictureFit fit = PictureFitOf(width, height, 300, 200);
    EXPECT_EQ(fit.width, width);
    EXPECT_EQ(fit.height, height);
    EXPECT_EQ(fit.scale, 1);
  }
}

TEST(PictureFit, TheScaleIsTheSmallerOfTheTwo) {
  // 300 / 600 is 0.5 and 200 / 200 is 1.
  PictureFit fit = PictureFitOf(600, 200, 300, 200);
  EXPECT_EQ(fit.scale, 0.5);
  EXPECT_EQ(fit.width, 300);
  EXPECT_EQ(fit.height, 100);
  // 300 / 400 is 0.75 and 200 / 800 is 0.25.
  fit = PictureFitOf(400, 800, 300, 200);
  EXPECT_EQ(fit.scale, 0.25);
  EXPECT_EQ(fit.width, 100);
  EXPECT_EQ(fit.height, 200);
  // 200 * 300 / 301 is 199.3
  fit = PictureFitOf(301, 200, 300, 200);
  EXPECT_EQ(fit.width, 300);
  EXPECT_EQ(fit.height, 199);
}

TEST(PictureFit, AThinPictureKeepsAPixel) {
  const PictureFit fit = PictureFitOf(60000, 1, 300, 200);
  EXPECT_EQ(fit.width, 300);
  EXPECT_EQ(fit.height, 1);
}

TEST_F(CharaPreviewTest, APictureThatFitsIsDrawnAtItsSizeWithoutAWord) {
  Picture(1, 300, 200);
  const std::vector<DrawCall> calls = Painted(1);
  EXPECT_EQ(Count(calls, DrawCall::Kind::Dib), 2);
  EXPECT_EQ(Count(calls, DrawCall::Kind::Stretch), 0);
  EXPECT_TRUE(DrawnTexts(dialog_).empty());
}

TEST_F(CharaPreviewTest, ALargerOneIsStretchedWithItsScaleInBlackTwentyPixelsToItsRight) {
  Picture(2, 600, 200);
  const std::vector<DrawCall> calls = Painted(2);
  EXPECT_EQ(Count(calls, DrawCall::Kind::Stretch), 1);
  const std::vector<DrawCall> texts = DrawnTexts(dialog_);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].text, "× 0.500000 縮尺");
  EXPECT_EQ(texts[0].textColour, 0U);
  // The corner is at 10, 20 of the template: 20, 40 in pixels, one more for the edge; the
  // picture is 300 pixels wide.
  EXPECT_EQ(texts[0].x, 20 + 1 + 300 + 20);
  EXPECT_EQ(texts[0].y, 41);
}

TEST_F(CharaPreviewTest, AHighOneLeavesTheWordsBesideIt) {
  Picture(2, 200, 800);
  Painted(2);
  const std::vector<DrawCall> texts = DrawnTexts(dialog_);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].text, "× 0.250000 縮尺");
  EXPECT_EQ(texts[0].x, 20 + 1 + 50 + 20);
}

TEST_F(CharaPreviewTest, WithoutAPictureTheEmptyBoxIsShown) {
  for (const int chara : {0, 3, 513}) {
    const std::vector<DrawCall> calls = Painted(chara);
    EXPECT_EQ(Count(calls, DrawCall::Kind::Dib), 0) << chara;
    const bool box = std::any_of(calls.begin(), calls.end(), [](const DrawCall& call) {
      return call.kind == DrawCall::Kind::Rectangle && !call.filled && call.x2 - call.x == 302 &&
             call.y2 - call.y == 202;
    });
    EXPECT_TRUE(box) << chara;
  }
}

TEST_F(CharaPreviewTest, APictureIsLoadedOnceAndDroppedWhenTheMainFileIsRead) {
  Picture(1, 10, 10);
  ASSERT_EQ(SnrySaveMain(), 0);
  EXPECT_EQ(Count(Painted(1), DrawCall::Kind::Dib), 2);
  RemoveFile(InProgram("キャラクタ\\Chara1_1.bmp"));
  EXPECT_EQ(Count(Painted(1), DrawCall::Kind::Dib), 2);
  ASSERT_EQ(SnryMainRead(), 0);
  EXPECT_EQ(Count(Painted(1), DrawCall::Kind::Dib), 0);
}

TEST_F(CharaPreviewTest, ASaveDropsThePicturesToo) {
  Picture(1, 10, 10);
  EXPECT_NE(WorldPictureOf(1).picture, nullptr);
  RemoveFile(InProgram("キャラクタ\\Chara1_1.bmp"));
  ASSERT_EQ(SnrySaveMain(), 0);
  EXPECT_EQ(WorldPictureOf(1).picture, nullptr);
}

}  // namespace
