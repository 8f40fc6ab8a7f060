#include "scenario/storage/snry_reset.h"
#include "scenario/storage/table_colours.h"
#include "tests/scenario/looks/looks_fixture.h"

namespace {

class TableFormScnDlgTest : public LooksTest {
 protected:
  static void Run() { TableFormScnDlgRun(Program.hMainWnd); }
};

std::string Colours(int row) {
  SnryTableRec table{};
  table.colourRow = static_cast<std::uint8_t>(row);
  SnryTableColours(table);
  std::string text;
  for (const auto& triple : table.colours) {
    text +=
        std::to_string(triple[0]) + "," + std::to_string(triple[1]) + "," + std::to_string(triple[2]) + " ";
  }
  return text;
}

std::string Times(int count, const std::string& triple) {
  std::string text;
  for (int i = 0; i < count; ++i) text += triple + " ";
  return text;
}

TEST_F(TableFormScnDlgTest, TheColoursFollowFromTheRow) {
  EXPECT_EQ(Colours(0), Times(7, "255,255,255") + Times(3, "0,0,250") + Times(3, "0,0,0"));
  EXPECT_EQ(Colours(1),
            Times(6, "0,0,0") + Times(1, "0,0,250") + Times(3, "0,200,200") + Times(3, "200,200,200"));
  EXPECT_EQ(Colours(2), Times(7, "255,255,255") + Times(3, "200,200,200") + Times(1, "0,0,200") +
                            Times(2, "200,200,200"));
  for (int row = 3; row < 7; ++row) {
    EXPECT_EQ(Colours(row), Times(7, "255,255,255") + Times(3, "200,200,200") + Times(3, "0,0,200")) << row;
  }
  EXPECT_EQ(Colours(7), Times(13, "0,0,0"));
}

TEST_F(TableFormScnDlgTest, AConfirmStoresFlagsTitlesAndFormat) {
  SnryTableReset(SnryScene.table);
  SnrySceneNow().textScheme = 9;
  SnryScene.table.colourRow = 2;
  ThenPress(IDC_TABLE_ENABLED);
  ThenPress(IDC_TABLE_HIDE);
  ThenChoose(IDC_TABLE_FORMAT, 3);
  ThenType(IDC_TABLE_ITEM, std::string(70, 'i'));
  ThenType(IDC_TABLE_DATA, "値");
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnrySceneNow().tableFlags, kSnryTableForm | kSnryHideScene);
  EXPECT_EQ(SnrySceneNow().textScheme, 0);
  EXPECT_EQ(SnrySceneNow().tableFormat, 3);
  EXPECT_EQ(std::string(SnryScene.table.itemTitle), std::string(63, 'i'));
  EXPECT_STREQ(SnryScene.table.settingTitle, "  設  定 ");
  EXPECT_STREQ(SnryScene.table.dataTitle, "値");
  EXPECT_EQ(SnryScene.table.colours[10][2], 200);  // the colours of row 2
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(TableFormScnDlgTest, TheColourRowOfASceneCannotBeChanged) {
  SnryTableReset(SnryScene.table);
  ThenChoose(IDC_TABLE_COLOUR, 4);
  ThenChoose(IDC_TABLE_ROW, 3);
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnryScene.table.colourRow, 0);
  EXPECT_EQ(SnryScene.table.dataRow, 0);
}

TEST_F(TableFormScnDlgTest, CancelStoresNothing) {
  SnryTableReset(SnryScene.table);
  ThenPress(IDC_TABLE_ENABLED);
  ThenType(IDC_TABLE_ITEM, "x");
  Then([] { PressClose(TopDialog()); });
  Run();
  EXPECT_EQ(SnrySceneNow().tableFlags, 0);
  EXPECT_STREQ(SnryScene.table.itemTitle, "  項  目 ");
  EXPECT_FALSE(Scenario.changed);
}

}  // namespace
