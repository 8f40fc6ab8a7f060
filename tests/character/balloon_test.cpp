#include <gtest/gtest.h>

#include "character/character.h"
#include "character/walk.h"
#include "platform/screen.h"
#include "tests/character/walk_fixture.h"

namespace {

class BalloonTest : public WalkFixture {
 protected:
  void SetUp() override {
    WalkFixture::SetUp();
    Character.CharaSet.WalkCount[0] = 0;
    Character.CharaSet.WalkPeriod[0] = 0;
    Walk.WalkLastX = 500;
    Walk.WalkLastY = 400;
  }
  // Runs to the balloon and lets `look` at it.
  void WithBalloon(std::function<void(WindowHandle)> look) {
    Then([look] {
      const WindowHandle balloon = Walk.WalkSlots[0].balloonWindow;
      ASSERT_NE(balloon, nullptr);
      look(balloon);
    });
    ThenTicks(4);
    ASSERT_EQ(WalkStart(request), 0);
    WalkTicks(1);
  }
  static void PutGroup(int count, const std::string& name) {
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) names.push_back(name + std::to_string(i));
    SayNames(names);
    request.balloon.group = true;
    request.opening = kOpeningGroup;
  }
};

TEST_F(BalloonTest, ASingleOpeningShowsItsQuotedName) {
  WithBalloon([](WindowHandle balloon) {
    EXPECT_TRUE(TextStands(balloon, "\"letter.txt\"", 10, 20));
    EXPECT_TRUE(TextStands(balloon, " をオープン", 10, 38));
    EXPECT_EQ(DrawnTexts(balloon).size(), 2U);
    EXPECT_TRUE(DrawnTexts(balloon)[0].transparent);
    EXPECT_EQ(RectWidth(WindowRect(balloon)), 300);
    EXPECT_EQ(RectHeight(WindowRect(balloon)), 200);
    EXPECT_TRUE(IsTopmost(balloon));
  });
}

TEST_F(BalloonTest, TheBalloonStandsUnderTheEndPicture) {
  WithBalloon([](WindowHandle balloon) {
    EXPECT_EQ(WindowRect(balloon).left, 500);
    EXPECT_EQ(WindowRect(balloon).top, 400 + 20);
  });
}

TEST_F(BalloonTest, WithoutAnEndPictureItStandsLeftAboveAndNotBeyondTheScreen) {
  Character.CharaSet.EndFrames[0][0] = 9;
  Walk.WalkLastX = 299;
  Walk.WalkLastY = 201;
  WithBalloon([](WindowHandle balloon) {
    EXPECT_EQ(WindowRect(balloon).left, 0);
    EXPECT_EQ(WindowRect(balloon).top, 1);
  });
}

// 33 letters and two quotes are 35 columns: 35 * 8 + 24 = 304.
TEST_F(BalloonTest, TheWidthGrowsWithTheName) {
  SayNames({std::string(33, 'a')});
  WithBalloon([](WindowHandle balloon) { EXPECT_EQ(RectWidth(WindowRect(balloon)), 304); });
}

TEST_F(BalloonTest, AVeryLongNameGivesABalloonOf800PixelsWithItsTextCutByTheWindow) {
  SayNames({std::string(299, 'a')});
  WithBalloon([](WindowHandle balloon) {
    EXPECT_EQ(RectWidth(WindowRect(balloon)), 800);
    EXPECT_TRUE(TextStands(balloon, ("\"" + std::string(299, 'a') + "\"").c_str(), 10, 20));
  });
}

TEST_F(BalloonTest, ANameWithoutATerminatorIsHeldInsideItsField) {
  std::memset(request.balloon.names[0], 'a', kBalloonNameSize);
  WithBalloon([](WindowHandle balloon) {
    EXPECT_TRUE(TextStands(balloon, ("\"" + std::string(300, 'a') + "\"").c_str(), 10, 20));
  });
}

TEST_F(BalloonTest, AGroupOf30FilesGivesATallBalloonWithEveryNameOnItsOwnLine) {
  PutGroup(30, "file");
  WithBalloon([](WindowHandle balloon) {
    EXPECT_EQ(RectHeight(WindowRect(balloon)), 30 * 20 + ScreenMetric(Metric::CaptionHeight) + 24);
    EXPECT_EQ(DrawnTexts(balloon).size(), 31U);
    for (int i = 0; i < 30; ++i) {
      const std::string name = "\"file" + std::to_string(i) + "\"";
      EXPECT_TRUE(TextStands(balloon, name.c_str(), 10, 4 + i * 18)) << i;
    }
    EXPECT_TRUE(TextStands(balloon, " をオープン", 10, 4 + 30 * 18));
  });
}

TEST_F(BalloonTest, WithoutAnEndPictureItStandsAtTheUpperEdgeToo) {
  Character.CharaSet.EndFrames[0][0] = 9;
  Walk.WalkLastX = 301;
  Walk.WalkLastY = 199;
  WithBalloon([](WindowHandle balloon) {
    EXPECT_EQ(WindowRect(balloon).left, 1);
    EXPECT_EQ(WindowRect(balloon).top, 0);
  });
}

TEST_F(BalloonTest, ASmallGroupKeepsTheLeastSizeAndTheLongestNameCounts) {
  PutGroup(2, "file");
  TextCopy(request.balloon.names[1], kBalloonNameSize, std::string(40, 'b').c_str());
  WithBalloon([](WindowHandle balloon) {
    EXPECT_EQ(RectHeight(WindowRect(balloon)), 200);
    EXPECT_EQ(RectWidth(WindowRect(balloon)), 42 * 8 + 24);
  });
}

TEST_F(BalloonTest, OfAGroupWithoutFilesOnlyTheLastLineStands) {
  PutGroup(0, "");
  WithBalloon([](WindowHandle balloon) {
    EXPECT_EQ(DrawnTexts(balloon).size(), 1U);
    EXPECT_TRUE(TextStands(balloon, " をオープン", 10, 4));
  });
}

TEST_F(BalloonTest, ItsOwnButtonsCloseItAndTheEndPhaseRunsOn) {
  for (const std::uint32_t button : {1U, 2U}) {
    commands.clear();
    ASSERT_EQ(WalkStart(request), 0);
    Then([button] {
      SendCommand(Walk.WalkSlots[0].balloonWindow, button);
      EXPECT_EQ(Walk.WalkSlots[0].balloonWindow, nullptr);
    });
    WalkTicks(1);
    EXPECT_NE(Walk.WalkSlots[0].endWindow, nullptr);
    WalkTicks(2);
    EXPECT_EQ(Walk.OpeningState, 1);
    WalkTicks(1);
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2208, 2202}));
  }
}

}  // namespace
