#include <algorithm>
#include <functional>

#include "platform/file.h"
#include "platform/window.h"
#include "resources/schedule_rates_ids.h"
#include "schedule/table/schedule_table.h"
#include "schedule/table/status_names.h"
#include "tests/schedule/rates/rates_fixture.h"
#include "world/wef_file.h"

namespace {

class SclMapTest : public RatesTest {
 protected:
  static std::string StatusName(int code) {
    char name[64] = "?";
    return SclStatusName(code, name, sizeof name) ? name : "-";
  }
  static void Select(int current, int anchor, int end) {
    RowChoose(current);
    RowSelection.selectionAnchor = anchor;
    RowSelection.selectionEnd = end;
  }
  // The rows, from 1, that have a place.
  static std::string Placed() {
    std::string rows;
    for (int index = 0; index < kSclItemMax; ++index) {
      if (Schedule.SclMapColumn[index] != 0) rows += std::to_string(index + 1) + " ";
    }
    return rows;
  }
  static std::string Marks() {
    std::string marks;
    SclMapMarks(
        [](const SclMapMark& mark, void* text) {
          *static_cast<std::string*>(text) += std::to_string(mark.column) + "," + std::to_string(mark.row) +
                                              "=" + std::to_string(mark.type) + " ";
        },
        &marks);
    return marks;
  }
};

// --- The tables

TEST_F(SclMapTest, AScheduleOfNoApplicationHasNoTables) {
  SclMapRead();
  EXPECT_EQ(StatusName(1), "-");
  EXPECT_EQ(SclMapPositionCount(), 0);
  EXPECT_EQ(SclStatusCount(), 0);
}

TEST_F(SclMapTest, FilesThatCannotBeReadLeaveTheTablesEmpty) {
  TextCopy(Schedule.SclMapFile, sizeof Schedule.SclMapFile, "C:\\mirrell\\apps\\gone.exe");
  SclMapRead();
  EXPECT_EQ(StatusName(1), "済み");
  EXPECT_EQ(StatusName(5), "");
  EXPECT_EQ(SclMapPositionCount(), 0);
  EXPECT_EQ(SclStatusCount(), 0);
}

// What is wrong with the files is told to nobody, and what came before it is used.
TEST_F(SclMapTest, OfAShortFileTheTablesHoldWhatWasRead) {
  MakeApplication();
  const std::string whole = FileBytes("C:\\mirrell\\apps\\study_1_1.sef");
  PutFile("C:\\mirrell\\apps\\study_1_1.sef", whole.substr(0, whole.size() - 456));
  SclMapRead();
  EXPECT_EQ(SclMapPositionCount(), 2);
  EXPECT_EQ(SclStatusCount(), 0);
  EXPECT_EQ(StatusName(1), "済み");
}

TEST_F(SclMapTest, AFileWithAnotherHeaderLeavesTheTablesEmpty) {
  MakeApplication();
  std::string bytes = FileBytes("C:\\mirrell\\apps\\study_1_1.sef");
  bytes[0] = 'X';
  PutFile("C:\\mirrell\\apps\\study_1_1.sef", bytes);
  SclMapRead();
  EXPECT_EQ(SclMapPositionCount(), 0);
  EXPECT_EQ(StatusName(1), "済み");
}

TEST_F(SclMapTest, TheApplicationsNameAndFolderComeFromThePath) {
  MakeApplication();
  EXPECT_EQ(SclMapPositionCount(), 2);
  EXPECT_STREQ(Wef.scenes[0].background, "map.bmp");
}

// Whatever folder the user has looked into last.
TEST_F(SclMapTest, APathOfNoDriveBeginsAtTheProgramsFolder) {
  MakeApplication();
  MakeFolder("C:\\elsewhere");
  ASSERT_TRUE(FolderSetCurrent("C:\\elsewhere"));
  SclMapFileSet("apps\\study.exe");
  SclMapRead();
  EXPECT_EQ(SclMapPositionCount(), 2);
  EXPECT_STREQ(Wef.scenes[0].background, "map.bmp");
  SclMapFileSet("\\mirrell\\apps\\study.exe");
  SclMapRead();
  EXPECT_EQ(SclMapPositionCount(), 2);
}

TEST_F(SclMapTest, StatusNamesByCode) {
  MakeApplication();
  EXPECT_EQ(StatusName(5), "読了");
  EXPECT_EQ(StatusName(1), "合格");
  EXPECT_EQ(StatusName(7), "");
  EXPECT_EQ(StatusName(0), "");
}

TEST_F(SclMapTest, ACodeOneOutsideTheTableIsFinished) {
  MakeApplication();
  std::string sef = SefBytes({});
  sef[sef.size() - 456 + 28] = 9;  // the third number
  PutFile("C:\\mirrell\\apps\\study_1_1.sef", sef);
  SclMapRead();
  EXPECT_EQ(StatusName(1), "済み");
}

TEST_F(SclMapTest, OnlyStatusesWithACodeAreListed) {
  MakeApplication();
  EXPECT_EQ(SclStatusCount(), 2);
  EXPECT_EQ(SclStatusCodeOf(0), 5);
  EXPECT_EQ(SclStatusCodeOf(1), 1);
  EXPECT_EQ(SclStatusCodeOf(2), 0);
  EXPECT_EQ(SclStatusRowOf(1), 1);
}

// --- Places

TEST_F(SclMapTest, ThePlaceOfTheCurrentRowIsChosenAndAnotherIsStored) {
  MakeApplication();
  Select(3, 3, 3);
  SclMapPlaceSet(2, 4, 3);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SelMapListScnDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_MAP_POSITIONS),
              (Lines{"1 (横:2 縦:1) \"教室\"", "2 (横:4 縦:3) \"図書館\""}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_MAP_POSITIONS), 1);
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAP_NAME), "図書館");
    ChooseRow(TopDialog(), IDC_MAP_POSITIONS, 0);
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAP_COLUMN), "2");
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAP_ROW), "1");
    EXPECT_EQ(ControlText(TopDialog(), IDC_MAP_NAME), "教室");
    PressEnter(TopDialog());
  });
  CommandSend(Command::ScheduleMap);
  EXPECT_EQ(Schedule.SclMapColumn[2], 2);
  EXPECT_EQ(Schedule.SclMapRow[2], 1);
  EXPECT_EQ(Placed(), "3 ");
}

TEST_F(SclMapTest, ARangeIsWrittenOneRowLaterThanItIsShown) {
  Select(4, 2, 4);
  SclMapPlaceRows(1, 1);
  EXPECT_EQ(Placed(), "3 4 5 ");
}

TEST_F(SclMapTest, ARangeUpToTheLastRowStaysInsideTheTable) {
  SclCountSet(1000);
  Select(1000, 998, 1000);
  SclMapPlaceRows(1, 1);
  EXPECT_EQ(Placed(), "999 1000 ");
}

TEST_F(SclMapTest, WithoutAChoiceOrARowNothingIsStored) {
  MakeApplication();
  RowsForget();
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_MAP_POSITIONS), -1);
    Press(TopDialog(), kOkButton);
  });
  CommandSend(Command::ScheduleMap);
  SclMapPlaceRows(1, 1);
  EXPECT_EQ(Placed(), "");
}

TEST_F(SclMapTest, CancelStoresNoPlace) {
  MakeApplication();
  Select(1, 1, 1);
  Then([] {
    ChooseRow(TopDialog(), IDC_MAP_POSITIONS, 0);
    PressEscape(TopDialog());
  });
  CommandSend(Command::ScheduleMap);
  EXPECT_EQ(Placed(), "");
}

// --- Statuses

TEST_F(SclMapTest, AStatusIsStoredForTheRange) {
  MakeApplication();
  Select(2, 1, 2);
  SclItem(1).doneState = 1;
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetSclStatusDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_STATUS_LIST), (Lines{"番号=  5    : 読了", "番号=  1    : 合格"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_STATUS_LIST), 1);
    ChooseRow(TopDialog(), IDC_STATUS_LIST, 0);
    Press(TopDialog(), kOkButton);
  });
  CommandSend(Command::ScheduleStatus);
  EXPECT_EQ(SclItem(0).doneState, 0);
  EXPECT_EQ(SclItem(1).doneState, 5);
  EXPECT_EQ(SclItem(2).doneState, 5);
  EXPECT_EQ(SclItem(3).doneState, 0);
}

TEST_F(SclMapTest, TheTableOfTheScheduleShowsTheStatusAtOnce) {
  CommandSend(Command::ScheduleNew);
  MakeApplication();
  Item(0, 4, 0);
  Select(1, 1, 1);
  Then([] {
    ChooseRow(TopDialog(), IDC_STATUS_LIST, 0);
    DrawingClear();
    Press(TopDialog(), kOkButton);
  });
  CommandSend(Command::ScheduleStatus);
  const std::vector<DrawCall> texts = DrawnTexts(SclTable.hSclTableWnd);
  EXPECT_TRUE(
      std::any_of(texts.begin(), texts.end(), [](const DrawCall& call) { return call.text == "読了"; }));
  SclDirtyClear(kSclTableChanged | kSclSettingsChanged);
  SendClose(SclTable.hSclTableWnd);
}

TEST_F(SclMapTest, TurningOffClearsTheCurrentRowOnly) {
  MakeApplication();
  Select(2, 1, 2);
  SclItem(0).doneState = 5;
  SclItem(1).doneState = 5;
  Then([] { Press(TopDialog(), IDC_STATUS_OFF); });
  CommandSend(Command::ScheduleStatus);
  EXPECT_EQ(SclItem(0).doneState, 5);
  EXPECT_EQ(SclItem(1).doneState, 0);
}

TEST_F(SclMapTest, CancelStoresNoStatus) {
  MakeApplication();
  Select(2, 2, 2);
  Then([] {
    ChooseRow(TopDialog(), IDC_STATUS_LIST, 0);
    PressClose(TopDialog());
  });
  CommandSend(Command::ScheduleStatus);
  EXPECT_EQ(SclItem(1).doneState, 0);
}

// --- Marks

TEST_F(SclMapTest, AnItemWithNoMapPositionIsLeftOut) {
  MakeApplication();
  Item(0, 4, 5);
  Item(1, 4, 5);
  SclMapPlaceSet(1, 2, 0);
  EXPECT_EQ(Marks(), "");
  SclMapPlaceSet(1, 2, 3);
  EXPECT_EQ(Marks(), "1,2=0 ");
}

TEST_F(SclMapTest, OneCellWithOneDoneAndOneOpenHasNoDoneMark) {
  MakeApplication();
  Item(0, 4, 1);
  Item(1, 4, 0);
  SclMapPlaceSet(0, 2, 1);
  SclMapPlaceSet(1, 2, 1);
  EXPECT_EQ(Marks(), "");
  SclItem(1).doneState = 1;
  EXPECT_EQ(Marks(), "1,0=2 1,0=2 ");
}

TEST_F(SclMapTest, AnotherStatusIsMarkedAtOnce) {
  MakeApplication();
  Item(0, 4, 5);
  Item(1, 4, 0);
  Item(2, 0, 5);  // no hours
  for (int index = 0; index < 3; ++index) SclMapPlaceSet(index, 4, 3);
  EXPECT_EQ(Marks(), "3,2=0 ");
}

// --- The map on show

class SclMapDialogTest : public SclMapTest {
 protected:
  static std::vector<DrawCall> Rectangles() {
    std::vector<DrawCall> calls;
    for (const DrawCall& call : Drawings(TopDialog())) {
      if (call.kind == DrawCall::Kind::Rectangle) calls.push_back(call);
    }
    return calls;
  }
  // The pictures drawn with an operation, as "left,top-right,bottom".
  static Lines Dibs(RasterOp op) {
    Lines found;
    for (const DrawCall& call : Drawings(TopDialog())) {
      if (call.kind != DrawCall::Kind::Dib || call.op != op) continue;
      found.push_back(std::to_string(call.x) + "," + std::to_string(call.y) + "-" + std::to_string(call.x2) +
                      "," + std::to_string(call.y2));
    }
    return found;
  }
  static void Repaint() {
    DrawingClear();
    SendPaint(TopDialog());
  }
  // Opens the map from the rates; `step` ends it.
  static void OnMap(std::function<void()> step) {
    Then([] { Press(TopDialog(), IDC_RATE_MAP); });
    Then(std::move(step));
    Then([] { Press(TopDialog(), kOkButton); });
    CommandSend(Command::ScheduleRates);
  }
};

TEST_F(SclMapDialogTest, TheMapsPictureLiesAtItsCorner) {
  MakeApplication();
  OnMap([] {
    Repaint();
    EXPECT_EQ(Rectangles().front().brush, MakeColour(7, 8, 9));
    EXPECT_EQ(Dibs(RasterOp::Copy), Lines{"0,0-20,10"});
    PressEscape(TopDialog());
  });
}

// Of the statuses, "読了" has a mask.
TEST_F(SclMapDialogTest, AMarkIsPutThroughItsMaskIntoItsCellAtTheCellsSize) {
  MakeApplication();
  Item(0, 4, 5);
  SclMapPlaceSet(0, 2, 1);
  OnMap([] {
    Repaint();
    EXPECT_EQ(Dibs(RasterOp::And), Lines{"40,0-80,30"});
    EXPECT_EQ(Dibs(RasterOp::Or), Lines{"40,0-80,30"});
    PressEscape(TopDialog());
  });
}

TEST_F(SclMapDialogTest, AMarkWithoutAMaskCoversItsCell) {
  MakeApplication();
  Item(0, 4, 1);
  SclMapPlaceSet(0, 4, 3);
  OnMap([] {
    Repaint();
    EXPECT_EQ(Dibs(RasterOp::Copy), (Lines{"0,0-20,10", "120,60-160,90"}));
    EXPECT_EQ(Dibs(RasterOp::Or), Lines{});
    PressEscape(TopDialog());
  });
}

TEST_F(SclMapDialogTest, ACellBeyondTheWindowHasNoMarkHoweverFarAway) {
  MakeApplication();
  std::string sef = SefBytes({});
  sef.replace(32 + 22, 4, LE16(0xFFFF) + LE16(0xFFFF));
  PutFile("C:\\mirrell\\apps\\study_1_1.sef", sef);
  SclMapRead();
  Item(0, 4, 5);
  SclMapPlaceSet(0, 0xFFFF, 0xFFFF);
  OnMap([] {
    Repaint();
    EXPECT_EQ(Dibs(RasterOp::Or), Lines{});
    PressEscape(TopDialog());
  });
}

TEST_F(SclMapDialogTest, AScheduleOfNoApplicationHasAWhiteMap) {
  MakeApplication();
  SclMapFileSet("");
  SclMapRead();
  OnMap([] {
    Repaint();
    EXPECT_EQ(Rectangles().size(), 1u);
    EXPECT_EQ(Rectangles().front().brush, MakeColour(255, 255, 255));
    PressEscape(TopDialog());
  });
}

TEST_F(SclMapDialogTest, TheCellsLieOverTheAreaAboveTheBand) {
  MakeApplication();
  OnMap([] {
    EXPECT_EQ(WindowText(TopDialog()), "予定表ステータス マップ表示");
    DrawingClear();
    SendPaint(TopDialog());
    // The ground, and 4 x 3 cells of 40 x 30.
    ASSERT_EQ(Rectangles().size(), 13u);
    const DrawCall last = Rectangles().back();
    EXPECT_EQ(last.x, 120);
    EXPECT_EQ(last.y, 60);
    EXPECT_EQ(last.x2, 161);
    EXPECT_EQ(last.y2, 91);
    EXPECT_EQ(last.pen, MakeColour(0x10, 0x20, 0x30));
    EXPECT_FALSE(last.filled);
    PressEscape(TopDialog());
  });
}

TEST_F(SclMapDialogTest, AClickChoosesACellAndIsForgottenAtTheEnd) {
  MakeApplication();
  OnMap([] {
    Mouse(TopDialog(), EventKind::LeftDown, 79, 59);
    EXPECT_EQ(SclMap.column, 2);
    EXPECT_EQ(SclMap.row, 2);
    Mouse(TopDialog(), EventKind::LeftDown, 160, 0);  // right of the grid
    EXPECT_EQ(SclMap.column, 2);
    DrawingClear();
    SendPaint(TopDialog());
    const DrawCall chosen = Rectangles().at(13);
    EXPECT_EQ(chosen.x, 40);
    EXPECT_EQ(chosen.y, 30);
    Press(TopDialog(), kCancelButton);
  });
  EXPECT_EQ(SclMap.column, 0);
}

TEST_F(SclMapDialogTest, AGridOfManyCellsIsDrawnAsFarAsTheWindowGoes) {
  MakeApplication();
  std::string sef = SefBytes({});
  sef.replace(32 + 12, 8, LE32(0xFFFFFFFF) + LE32(0xFFFFFFFF));
  PutFile("C:\\mirrell\\apps\\study_1_1.sef", sef);
  SclMapRead();
  OnMap([] {
    const Rect client = WindowClientRect(TopDialog());
    DrawingClear();
    SendPaint(TopDialog());
    const int across = (client.right + 39) / 40;
    const int down = (client.bottom - 60 + 29) / 30;
    EXPECT_EQ(Rectangles().size(), static_cast<std::size_t>(1 + across * down));
    PressClose(TopDialog());
  });
}

}  // namespace
