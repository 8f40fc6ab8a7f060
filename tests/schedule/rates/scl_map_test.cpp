#include "platform/window.h"
#include "resources/schedule_rates_ids.h"
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
  EXPECT_EQ(StatusName(1), "-");
  EXPECT_EQ(SclMapPositionCount(), 0);
}

TEST_F(SclMapTest, TheApplicationsNameAndFolderComeFromThePath) {
  MakeApplication();
  EXPECT_EQ(SclMapPositionCount(), 2);
  EXPECT_STREQ(Wef.scenes[0].background, "map.bmp");
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
  SelMapListScnDlgRun(Program.hMainWnd);
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
  SelMapListScnDlgRun(Program.hMainWnd);
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
  SelMapListScnDlgRun(Program.hMainWnd);
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
  SetSclStatusDlgRun(Program.hMainWnd);
  EXPECT_EQ(SclItem(0).doneState, 0);
  EXPECT_EQ(SclItem(1).doneState, 5);
  EXPECT_EQ(SclItem(2).doneState, 5);
  EXPECT_EQ(SclItem(3).doneState, 0);
}

TEST_F(SclMapTest, TurningOffClearsTheCurrentRowOnly) {
  MakeApplication();
  Select(2, 1, 2);
  SclItem(0).doneState = 5;
  SclItem(1).doneState = 5;
  Then([] { Press(TopDialog(), IDC_STATUS_OFF); });
  SetSclStatusDlgRun(Program.hMainWnd);
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
  SetSclStatusDlgRun(Program.hMainWnd);
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
};

TEST_F(SclMapDialogTest, TheCellsLieOverTheAreaAboveTheBand) {
  MakeApplication();
  Then([] {
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
  DispCelSclMapPosDlgRun(Program.hMainWnd);
}

TEST_F(SclMapDialogTest, AClickChoosesACellAndIsForgottenAtTheEnd) {
  MakeApplication();
  Then([] {
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
  DispCelSclMapPosDlgRun(Program.hMainWnd);
  EXPECT_EQ(SclMap.column, 0);
}

TEST_F(SclMapDialogTest, AGridOfManyCellsIsDrawnAsFarAsTheWindowGoes) {
  MakeApplication();
  std::string sef = SefBytes({});
  sef.replace(32 + 12, 8, LE32(0xFFFFFFFF) + LE32(0xFFFFFFFF));
  PutFile("C:\\mirrell\\apps\\study_1_1.sef", sef);
  SclMapRead();
  Then([] {
    const Rect client = WindowClientRect(TopDialog());
    DrawingClear();
    SendPaint(TopDialog());
    const int across = (client.right + 39) / 40;
    const int down = (client.bottom - 60 + 29) / 30;
    EXPECT_EQ(Rectangles().size(), static_cast<std::size_t>(1 + across * down));
    PressClose(TopDialog());
  });
  DispCelSclMapPosDlgRun(Program.hMainWnd);
}

}  // namespace
