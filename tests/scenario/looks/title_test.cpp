#include "tests/scenario/looks/looks_fixture.h"

namespace {

class TitleScnDlgTest : public LooksTest {
 protected:
  static void Run() { TitleScnDlgRun(Program.hMainWnd); }
};

TEST_F(TitleScnDlgTest, AllFieldsAreTakenFromTheirRows) {
  ThenPress(IDC_TITLE_SHOWN);
  ThenType(IDC_TITLE_TEXT, "第一話");
  ThenChoose(IDC_TITLE_COLOUR, 9);
  ThenChoose(IDC_TITLE_BACK, 4);
  ThenChoose(IDC_TITLE_SIZE, 13);
  ThenChoose(IDC_TITLE_STYLE, 9);
  ThenChoose(IDC_TITLE_METHOD, 8);
  ThenChoose(IDC_TITLE_TIME, 9);
  ThenChoose(IDC_TITLE_PARA, 2);
  ThenType(IDC_TITLE_VALUE, "1234");
  ThenPress(kOkButton);
  Run();
  const SnryTitleRec& title = SnryScene.title;
  EXPECT_EQ(title.shown, 1);
  EXPECT_STREQ(title.text, "第一話");
  EXPECT_EQ(title.textColour[0], 210);
  EXPECT_EQ(title.textColour[2], 210);
  EXPECT_EQ(title.backColour[0], 0);
  EXPECT_EQ(title.backColour[2], 255);
  EXPECT_EQ(title.size, 13);
  EXPECT_EQ(title.style, 9);
  EXPECT_EQ(title.method, 8);
  EXPECT_EQ(title.time, 9);
  EXPECT_EQ(title.end.parameter, 3);
  EXPECT_EQ(title.end.value, 123);  // three characters
}

TEST_F(TitleScnDlgTest, TheListsHoldTheirRows) {
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_TITLE_COLOUR).size(), 10u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_TITLE_SIZE),
              (Lines{"6", "8", "9", "10", "11", "12", "14", "16", "18", "20", "24", "36", "48", "72"}));
    EXPECT_EQ(ListRows(TopDialog(), IDC_TITLE_STYLE).size(), 10u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_TITLE_METHOD).size(), 9u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_TITLE_TIME).size(), 10u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_TITLE_TIME).back(), "1分30秒");
    PressEscape(TopDialog());
  });
  Run();
}

TEST_F(TitleScnDlgTest, OrangeIsStoredAs200AndReadBackAsRowFive) {
  ThenChoose(IDC_TITLE_COLOUR, 5);
  ThenPress(kOkButton);
  Run();
  const std::uint8_t orange[3] = {200, 0, 0};
  EXPECT_TRUE(std::equal(orange, orange + 3, SnryScene.title.textColour));
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_TITLE_COLOUR), 5);
    PressEscape(TopDialog());
  });
  Run();
}

TEST_F(TitleScnDlgTest, AnUnknownColourShowsAsBlackAndIsBlackAtTheNextConfirm) {
  SnryScene.title.textColour[0] = 1;
  SnryScene.title.textColour[1] = 2;
  SnryScene.title.textColour[2] = 3;
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_TITLE_COLOUR), 0); });
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnryScene.title.textColour[0], 0);
  EXPECT_EQ(SnryScene.title.textColour[1], 0);
  EXPECT_EQ(SnryScene.title.textColour[2], 0);
}

TEST_F(TitleScnDlgTest, CancelDropsTheCopy) {
  ThenPress(IDC_TITLE_SHOWN);
  ThenType(IDC_TITLE_TEXT, "題");
  ThenPress(kCancelButton);
  Run();
  EXPECT_EQ(SnryScene.title.shown, 0);
  EXPECT_STREQ(SnryScene.title.text, "");
}

TEST_F(TitleScnDlgTest, TheTextIsCutAt127Bytes) {
  ThenType(IDC_TITLE_TEXT, std::string(140, 'a'));
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(std::string(SnryScene.title.text), std::string(127, 'a'));
}

}  // namespace
