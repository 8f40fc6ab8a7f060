#include "character/outline.h"

#include <gtest/gtest.h>

#include <random>

#include "character/frames.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "tests/character/chara_files.h"

namespace {

class OutlineTest : public CharaFiles {
 protected:
  Outline outline_{};
  int frameCount_ = -7;
  Outline all_[kFrameMax];
};

void ExpectPoints(const Outline& outline, const FilePoints& points) {
  ASSERT_EQ(outline.count, static_cast<int>(points.size()));
  for (int i = 0; i < outline.count; ++i) {
    EXPECT_EQ(outline.points[i].x, points[static_cast<std::size_t>(i)].first);
    EXPECT_EQ(outline.points[i].y, points[static_cast<std::size_t>(i)].second);
  }
}

FilePoints ManyPoints(int count) {
  FilePoints points;
  for (int i = 0; i < count; ++i) points.push_back({i, 65535 - i});
  return points;
}

TEST_F(OutlineTest, FramesAreWalkedOverByTheirCounts) {
  PutDwc(3, DwcFile({{{1, 2}, {3, 4}}, {}, {{65535, 0}, {256, 255}, {7, 8}}}));
  EXPECT_EQ(OutlineReadCounted(2, all_, &frameCount_), 0);
  EXPECT_EQ(frameCount_, 3);
  ExpectPoints(all_[0], {{1, 2}, {3, 4}});
  EXPECT_EQ(all_[1].count, 0);
  ExpectPoints(all_[2], {{65535, 0}, {256, 255}, {7, 8}});
}

TEST_F(OutlineTest, AFrameBeyondTheFrameCountHasNoOutline) {
  PutDwc(1, DwcFile({{{1, 2}}}) + BE32(1) + BE16(4) + BE16(5));
  all_[1].count = 7;
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), 0);
  ExpectPoints(all_[0], {{1, 2}});
  EXPECT_EQ(all_[1].count, 0);
  EXPECT_EQ(frameCount_, 1);
}

TEST_F(OutlineTest, WithoutAFileNoFrameHasAnOutlineAndTheFrameCountStays) {
  for (const int number : {0, -1}) {
    all_[0].count = 5;
    all_[19].count = 5;
    EXPECT_EQ(OutlineReadCounted(number, all_, &frameCount_), -1);
    EXPECT_EQ(all_[0].count, 0);
    EXPECT_EQ(all_[19].count, 0);
    EXPECT_EQ(frameCount_, -7);
    EXPECT_EQ(OutlineReadAll(number, all_), -1);
  }
}

TEST_F(OutlineTest, A1024PointOutlineIsReadWholeAndOnePointMoreIsBadContent) {
  PutDwc(1, DwcFile({ManyPoints(1024)}));
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), 0);
  ExpectPoints(all_[0], ManyPoints(1024));
  PutDwc(1, DwcFile({ManyPoints(1025)}));
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), -2);
  EXPECT_EQ(all_[0].count, 0);
  PutDwc(1, std::string("\x14", 1) + BE32(0xFFFFFFFF));
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), -2);
  EXPECT_EQ(OutlineReadAll(0, all_), -2);
}

TEST_F(OutlineTest, TwentyFramesAreRead) {
  std::vector<FilePoints> frames;
  for (int i = 0; i < 20; ++i) frames.push_back({{i, 1}, {2, i}});
  PutDwc(1, DwcFile(frames));
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), 0);
  EXPECT_EQ(frameCount_, 20);
  for (int i = 0; i < 20; ++i) ExpectPoints(all_[i], frames[static_cast<std::size_t>(i)]);
}

TEST_F(OutlineTest, AFrameCountBeyond20IsBadContent) {
  PutDwc(1, std::string("\x15", 1) + BE32(1) + BE16(4) + BE16(5));
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), -2);
  EXPECT_EQ(all_[0].count, 0);
  EXPECT_EQ(frameCount_, 20);
}

TEST_F(OutlineTest, AllFramesAreReadWhateverTheFrameCountSays) {
  std::vector<FilePoints> frames(20);
  frames[0] = {{9, 9}};
  frames[19] = {{1, 2}, {3, 4}};
  std::string file = DwcFile(frames);
  file[0] = '\0';
  PutDwc(1, file);
  EXPECT_EQ(OutlineReadAll(0, all_), 0);
  ExpectPoints(all_[0], {{9, 9}});
  ExpectPoints(all_[19], {{1, 2}, {3, 4}});
}

// Frame 0 has 2 points, frame 1 has none, frame 2 has 1: 1 + 4 + 8 + 4 + 4 + 4 bytes.
TEST_F(OutlineTest, EveryTruncationKeepsThePointsThatWereRead) {
  const std::string file = DwcFile({{{1, 2}, {3, 4}}, {}, {{5, 6}}});
  ASSERT_EQ(file.size(), 25U);
  for (std::size_t size = 0; size < file.size(); ++size) {
    PutDwc(1, file.substr(0, size));
    const int expected = (size >= 5 && size < 13) || size >= 21 ? -3 : -2;
    all_[2].count = all_[19].count = 7;
    EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), expected) << size;
    EXPECT_EQ(frameCount_, size < 1 ? -7 : 3) << size;
    EXPECT_EQ(all_[0].count, size < 9 ? 0 : size < 13 ? 1 : 2) << size;
    EXPECT_EQ(all_[2].count, 0) << size;
    EXPECT_EQ(all_[19].count, 0) << size;
    EXPECT_EQ(OutlineReadAll(0, all_), expected) << size;
    EXPECT_EQ(all_[0].count, size < 9 ? 0 : size < 13 ? 1 : 2) << size;
  }
  PutDwc(1, file);
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), 0);
  ExpectPoints(all_[2], {{5, 6}});
  EXPECT_EQ(OutlineReadAll(0, all_), -2);  // three frames of the twenty
  ExpectPoints(all_[2], {{5, 6}});
  EXPECT_EQ(all_[3].count, 0);
}

TEST_F(OutlineTest, RandomMutationsNeverGoBeyondTheTables) {
  const std::string file = DwcFile({{{1, 2}, {3, 4}}, {}, {{5, 6}}});
  PutDwc(1, file);
  const int native = open(Native("\\キャラクタ\\Chara1.dwc").c_str(), O_RDWR);
  ASSERT_GE(native, 0);
  std::mt19937 random(1);
  for (int round = 0; round < 100000; ++round) {
    std::string changed = file;
    for (int k = 0; k < 3; ++k) changed[random() % changed.size()] = static_cast<char>(random());
    ASSERT_EQ(pwrite(native, changed.data(), changed.size(), 0), static_cast<ssize_t>(changed.size()));
    const int all = OutlineReadAll(0, all_);
    ASSERT_TRUE(all == 0 || all == -2 || all == -3);
    for (const Outline& outline : all_) ASSERT_TRUE(outline.count >= 0 && outline.count <= kOutlinePointMax);
    const int counted = OutlineReadCounted(0, all_, &frameCount_);
    ASSERT_TRUE(counted == 0 || counted == -2 || counted == -3);
    ASSERT_TRUE(frameCount_ >= 0 && frameCount_ <= kFrameMax);
    for (const Outline& outline : all_) ASSERT_TRUE(outline.count >= 0 && outline.count <= kOutlinePointMax);
  }
  close(native);
}

TEST_F(OutlineTest, EveryFailingReadGivesItsResult) {
  PutDwc(1, DwcFile({{{1, 2}}, {{3, 4}}}));
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Read, nth);
    const int result = OutlineReadCounted(0, all_, &frameCount_);
    const bool met = FaultWasMet();
    FaultClear();
    if (!met) break;
    // The frame count, then a count and the points of each frame.
    EXPECT_EQ(result, nth == 3 || nth == 5 ? -3 : -2) << nth;
  }
  FaultArm(FaultKind::Open, 1);
  EXPECT_EQ(OutlineReadCounted(0, all_, &frameCount_), -1);
}

// With a menu line of 19 pixels and a picture of 100 rows the bottom row (y 0)
// lies at 19 + 100 - 0 - 1 = 118.
TEST_F(OutlineTest, TheFlipForTheStageLeavesXAndTurnsYBelowTheMenuLine) {
  Screen.MenuBarHeight = 19;
  outline_ = Outline{2, {{5, 0}, {6, 99}}};
  OutlineFlipForStage(&outline_, 100);
  ExpectPoints(outline_, {{5, 118}, {6, 19}});
}

TEST_F(OutlineTest, TheFlipForWalkersAddsTheMarginOf4BothWays) {
  outline_ = Outline{2, {{5, 0}, {6, 99}}};
  OutlineFlipForWalker(&outline_, 100);
  ExpectPoints(outline_, {{9, 103}, {10, 4}});
}

TEST_F(OutlineTest, OutlinesAreComparedByCountAndPoints) {
  const Outline a{2, {{1, 2}, {3, 4}, {9, 9}}};
  const Outline sameInUse{2, {{1, 2}, {3, 4}, {8, 8}}};
  const Outline longer{3, {{1, 2}, {3, 4}, {9, 9}}};
  const Outline otherX{2, {{1, 2}, {4, 4}}};
  const Outline otherY{2, {{1, 2}, {3, 5}}};
  EXPECT_TRUE(OutlinesEqual(a, sameInUse));
  EXPECT_FALSE(OutlinesEqual(a, longer));
  EXPECT_FALSE(OutlinesEqual(a, otherX));
  EXPECT_FALSE(OutlinesEqual(a, otherY));
}

// --- Pictures

class FramesTest : public CharaFiles {};

TEST_F(FramesTest, NamesAreWrittenFromOneIntoOneBuffer) {
  TextCopy(Program.RootFolder, kRootSize, "C:\\mirrell");
  const char* dwc = CharaDwcPath(0);
  EXPECT_STREQ(dwc, "C:\\mirrell\\キャラクタ\\Chara1.dwc");
  const char* bmp = CharaBmpPath(11, 0);
  EXPECT_STREQ(bmp, "C:\\mirrell\\キャラクタ\\Chara12_1.bmp");
  const char* mask = CharaMaskPath(11, 19);
  EXPECT_STREQ(mask, "C:\\mirrell\\キャラクタ\\Chara12_20x.bmp");
  EXPECT_EQ(dwc, bmp);
  EXPECT_EQ(dwc, mask);
}

TEST_F(FramesTest, AMissingOrBrokenBitmapLeavesItsFrameEmpty) {
  PutBmp(4, 1, BmpFile(12, 8));
  PutBmp(4, 3, "no bitmap");
  PutBmp(4, 20, BmpFile(3, 2));
  FramesLoad(2, 3);
  EXPECT_EQ(DibWidth(FramePicture(2, 0)), 12);
  EXPECT_EQ(DibHeight(FramePicture(2, 0)), 8);
  EXPECT_EQ(FramePicture(2, 1), nullptr);
  EXPECT_EQ(FramePicture(2, 2), nullptr);
  EXPECT_EQ(DibWidth(FramePicture(2, 19)), 3);
  FramesLoad(2, 7);  // a character with no files: the old pictures are gone
  for (int frame = 0; frame < kFrameMax; ++frame) EXPECT_EQ(FramePicture(2, frame), nullptr);
}

TEST_F(FramesTest, RowsAndFramesBeyondTheTableHaveNoPicture) {
  PutBmp(1, 1, BmpFile(2, 2));
  FramesLoad(0, 0);
  FramesLoad(51, 0);
  FramesLoad(-1, 0);
  EXPECT_EQ(FramePicture(0, -1), nullptr);
  EXPECT_EQ(FramePicture(0, 20), nullptr);
  EXPECT_EQ(FramePicture(-1, 0), nullptr);
  EXPECT_EQ(FramePicture(51, 0), nullptr);
}

TEST_F(FramesTest, TheFolderTellsWhichPicturesAndMasksThereAre) {
  for (const char* name :
       {"Chara3_1.bmp", "Chara3_1x.bmp", "CHARA3_7.BMP", "chara3_20X.bmp", "Chara3_20.bmp"}) {
    PutFile(InProgram("キャラクタ\\") + name, "");
  }
  // None of these is a frame of character 3.
  for (const char* name : {"Chara3_0.bmp", "Chara3_21.bmp", "Chara3_x.bmp", "Chara3_2xx.bmp", "Chara3_2.bmq",
                           "Chara3_1111.bmp", "Chara33_5.bmp", "Chara3_5", "Chara3.dwc"}) {
    PutFile(InProgram("キャラクタ\\") + name, "");
  }
  const FrameFiles files = FrameFilesFind(2);
  for (int frame = 0; frame < kFrameMax; ++frame) {
    EXPECT_EQ(files.picture[frame], frame == 0 || frame == 6 || frame == 19) << frame;
    EXPECT_EQ(files.mask[frame], frame == 0 || frame == 19) << frame;
  }
  EXPECT_FALSE(FrameFilesFind(-1).picture[0]);
  EXPECT_FALSE(FrameFilesFind(3).picture[0]);
}

}  // namespace
