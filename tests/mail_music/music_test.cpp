// The music table: its records, its file and its window.
#include "mail_music/music/music.h"

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "mail_music/music/music_window.h"
#include "platform/posix/posix_paths.h"
#include "resources/schedule_ids.h"
#include "resources/schedule_model_ids.h"
#include "schedule/model/schedule.h"
#include "schedule/table/row_selection.h"
#include "services/data_file.h"
#include "services/drawing_objects.h"
#include "services/file_picker.h"
#include "shell/panel.h"
#include "tests/mail_music/mail_fixture.h"
#include "tests/support/failing_writes.h"
#include "tests/support/record_check.h"

namespace {

constexpr int kSize = 122604;
constexpr Colour kMark = 0xFF8080;

class MusicTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
  }
  void TearDown() override {
    SendClose(Music.hBgmWnd);
    EXPECT_EQ(Music.hBgmWnd, nullptr);
    ProgramTest::TearDown();
  }

  static void Open() { CommandSend(Command::MusicTable); }
  static WindowHandle Wnd() { return Music.hBgmWnd; }
  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenPick(const std::string& name) {
    Then([name] {
      Type(TopDialog(), kPickNameId, name.c_str());
      Press(TopDialog(), 1);
    });
  }
  static std::string Path() { return InProgram("曲.bgm"); }
  // The file loses its end.
  static void CutTo(int size) {
    std::filesystem::resize_file(PosixPath(Path().c_str()), static_cast<std::uintmax_t>(size));
  }
  static void SetRow(int row, std::int32_t hour, std::int32_t minute, const char* path) {
    BgmTable.rows[row].hour = hour;
    BgmTable.rows[row].minute = minute;
    TextCopy(BgmTable.rows[row].filePath, kBgmPathSize, path);
  }
  static void Draw() {
    DrawingClear();
    SendPaint(Wnd());
  }
  static bool Shows(const char* text, int x, int y) { return TextStands(Wnd(), text, x, y); }
  // Whether a filled rectangle of that colour covers these pixels.
  static bool Filled(Colour colour, const Rect& rect) {
    for (const DrawCall& call : Drawings(Wnd())) {
      if (call.kind == DrawCall::Kind::Rectangle && call.filled && call.brush == colour &&
          call.x == rect.left && call.y == rect.top && call.x2 == rect.right && call.y2 == rect.bottom)
        return true;
    }
    return false;
  }
  // A cell edged with its neighbours: one pixel more on the right and below.
  static Rect Cell(int left, int right, int row) {
    return {left, 50 + 20 * (row - 1), right + 1, 70 + 20 * (row - 1) + 1};
  }
  static void Double(int x, int y) {
    Mouse(Wnd(), EventKind::LeftDown, x, y);
    Mouse(Wnd(), EventKind::LeftDouble, x, y);
  }
};

// Some place of each column.
constexpr int kItemX = 20;
constexpr int kFileX = 100;
constexpr int kTimeX = 600;
constexpr int kEnableX = 760;
constexpr int RowY(int row) {
  return 60 + 20 * (row - 1);
}

// --- Records and the file

TEST(MusicRecord, LiesAsTold) {
  RecordCheck<BgmRow>();
  RecordCheck<BgmTableState>();
  EXPECT_EQ(RecordOffset<&BgmRow::enabled>(), 0);
  EXPECT_EQ(RecordOffset<&BgmRow::hour>(), 1);
  EXPECT_EQ(RecordOffset<&BgmRow::minute>(), 5);
  EXPECT_EQ(RecordOffset<&BgmRow::reserved>(), 9);
  EXPECT_EQ(RecordOffset<&BgmRow::filePath>(), 13);
  EXPECT_EQ(RecordOffset<&BgmTableState::rowCount>(), 0);
  EXPECT_EQ(RecordOffset<&BgmTableState::rows>(), 4);
}

TEST_F(MusicTest, ANewProgramStartHas200EmptyRowsWithAllTimesZero) {
  EXPECT_EQ(BgmTable.rowCount, 0);
  EXPECT_TRUE(RecordBytes(BgmTable) == std::string(kSize, '\0'));
  Open();
  Draw();
  for (int row = 1; row <= 20; ++row) {
    char number[8];
    TextFormat(number, sizeof number, "%3d", row);
    EXPECT_TRUE(Shows(number, 12, 52 + 20 * (row - 1))) << row;
    EXPECT_TRUE(Shows("  0: 0D", 570, 52 + 20 * (row - 1))) << row;
  }
}

TEST_F(MusicTest, SavingAndLoadingGiveTheFileBackByteForByte) {
  const std::string bytes = RecordNoise(kSize, 7);
  PutFile(Path(), bytes);
  EXPECT_EQ(BgmLoad(Path().c_str()), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_EQ(BgmSave(InProgram("two").c_str()), 0);
  EXPECT_TRUE(FileBytes(InProgram("two")) == bytes);
}

TEST_F(MusicTest, AFileThatIsCutAnywhereLeavesTheRowsReadSoFar) {
  const std::vector<RecordSpot> spots = SpotsOf(BgmTable);
  const std::string before = RecordPattern(kSize, 1);
  const std::string after = RecordPattern(kSize, 2);
  std::vector<int> cuts = RecordCuts(spots, kSize);
  std::sort(cuts.rbegin(), cuts.rend());
  PutFile(Path(), after);
  for (const int cut : cuts) {
    if (cut == kSize) continue;
    CutTo(cut);
    RecordSet(BgmTable, before);
    ASSERT_EQ(BgmLoad(Path().c_str()), -2) << cut;
    ASSERT_EQ(FileResult.FileStatus, -2);
    ASSERT_TRUE(RecordBytes(BgmTable) == RecordCut(spots, before, after, cut)) << cut;
  }
}

// Every byte of the head, of the first row and of the last one.
TEST_F(MusicTest, AFileThatIsCutAtEveryByteOfARowIsStood) {
  const std::string bytes = RecordPattern(kSize, 3);
  PutFile(Path(), bytes);
  EXPECT_EQ(BgmLoad(Path().c_str()), 0);
  for (int cut = kSize - 1; cut >= 0; --cut) {
    if (cut == kSize - 614) cut = 4 + 613 - 1;
    CutTo(cut);
    ASSERT_EQ(BgmLoad(Path().c_str()), -2) << cut;
  }
}

TEST_F(MusicTest, AMutatedFileIsShownWhateverItHolds) {
  Open();
  for (unsigned seed = 1; seed <= 30; ++seed) {
    std::string bytes = RecordNoise(kSize, seed);
    if (seed % 3 == 0) bytes.assign(kSize, '\xff');
    PutFile(Path(), bytes);
    ASSERT_EQ(BgmLoad(Path().c_str()), 0);
    Draw();
    for (int y = 0; y < 480; y += 30) Mouse(Wnd(), EventKind::LeftDown, kFileX, y);
  }
}

TEST_F(MusicTest, AFileThatIsLongerThanTheTableLoads) {
  PutFile(Path(), std::string(kSize + 1000, 'x'));
  EXPECT_EQ(BgmLoad(Path().c_str()), 0);
}

TEST_F(MusicTest, AnAbsurdRowCountIsKeptAndHarmsNobody) {
  std::string bytes(kSize, '\0');
  bytes.replace(0, 4, "\x7f\xff\xff\xff");
  PutFile(Path(), bytes);
  EXPECT_EQ(BgmLoad(Path().c_str()), 0);
  EXPECT_EQ(BgmTable.rowCount, 0x7fffffff);
  Open();
  Draw();
}

TEST_F(MusicTest, TheWriterFailsAtEachOfItsCalls) {
  static const std::string path = Path();
  EXPECT_EQ(FailingWrites([] { return BgmSave(path.c_str()); }, -2), 1);
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(BgmSave(path.c_str()), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultArm(FaultKind::Open, 3);
  EXPECT_NE(BgmSave(path.c_str()), -2);
  FaultClear();
}

// --- The window

TEST_F(MusicTest, TheWindowOpensOnceBesideTheStageAndEndsWithItsButtons) {
  Panel.MenuPanelState = 501;
  Open();
  ASSERT_NE(Wnd(), nullptr);
  EXPECT_EQ(TemplateOf(Wnd()), IDD_EntertainmentBGMDlg);
  EXPECT_EQ(WindowText(Wnd()), "BGM 設定");
  EXPECT_EQ(TopDialog(), nullptr) << "it is modeless";
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(Panel.FuncNo, 14);
  const WindowHandle first = Wnd();
  Open();
  EXPECT_EQ(Wnd(), first);
  const std::pair<int, const char*> labels[] = {{IDC_BGM_LOAD, "設定ファイルロード"},
                                                {IDC_BGM_SAVE, "設定ファイルセーブ"},
                                                {IDC_BGM_START, "実行開始"},
                                                {IDC_BGM_END, "実行終了"},
                                                {2, "終了"}};
  for (const auto& [id, text] : labels) EXPECT_EQ(ControlText(Wnd(), id), text);
  Press(Wnd(), 2);
  EXPECT_EQ(Wnd(), nullptr);
  EXPECT_EQ(Panel.FuncNo, 0);
  Open();
  PressClose(Wnd());
  EXPECT_EQ(Wnd(), nullptr);
  EXPECT_EQ(Panel.FuncNo, 0);
}

TEST_F(MusicTest, ItsEndLeavesTheModeOfAnotherFeature) {
  Open();
  Panel.FuncNo = 11;
  Press(Wnd(), 2);
  EXPECT_EQ(Panel.FuncNo, 11);
  Panel.FuncNo = 0;
}

TEST_F(MusicTest, AWindowThatCannotBeMadeLeavesNoMode) {
  FaultArm(FaultKind::Window, 1);
  Open();
  FaultClear();
  EXPECT_EQ(Wnd(), nullptr);
  EXPECT_EQ(Panel.FuncNo, 0);
}

TEST_F(MusicTest, ItDoesNotOpenOverTheDialogOfAFeature) {
  Then([] {
    Open();
    EXPECT_EQ(Wnd(), nullptr);
    EXPECT_EQ(Panel.FuncNo, 11);
    Press(TopDialog(), 2);
  });
  CommandSend(Command::MailSettings);
}

TEST_F(MusicTest, JikkouKaishiAndJikkouShuuryouHaveNoEffect) {
  SetRow(0, 9, 30, "C:\\music\\a.wav");
  BgmTable.rows[0].enabled = 1;
  Open();
  Draw();
  const std::string bytes = RecordBytes(BgmTable);
  const std::vector<DrawCall> before = Drawings(Wnd());
  DrawingClear();
  Press(Wnd(), IDC_BGM_START);
  Ticks(1000);
  Press(Wnd(), IDC_BGM_END);
  Ticks(10);
  EXPECT_TRUE(Drawings(Wnd()).empty());
  EXPECT_TRUE(RecordBytes(BgmTable) == bytes);
  EXPECT_TRUE(SoundsPlayed().empty());
  EXPECT_TRUE(ProcessesStarted().empty());
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_FALSE(before.empty());
}

// The client area is 808 by 540, the bar 16 wide: the right edge is at 772.
TEST_F(MusicTest, ItsLayoutIsTold) {
  TextCopy(Schedule.SclHeader.title, sizeof Schedule.SclHeader.title, "朝の曲");
  SetRow(0, 9, 5, "C:\\音楽\\朝.wav");
  SetRow(19, -1, 100, "z");
  Open();
  const Rect client = WindowClientRect(Wnd());
  ASSERT_EQ(client.right, 808);
  ASSERT_EQ(client.bottom, 540);
  Draw();
  EXPECT_TRUE(Filled(MakeColour(230, 0, 0), {10, 10, 559, 31}));  // to the right edge - 214
  EXPECT_TRUE(Filled(MakeColour(0, 255, 255), {10, 30, 51, 51}));
  EXPECT_TRUE(Filled(MakeColour(200, 200, 200), {50, 30, 569, 51}));   // to the right edge - 204
  EXPECT_TRUE(Filled(MakeColour(200, 200, 200), {568, 30, 749, 51}));  // 180 wide
  EXPECT_TRUE(Filled(MakeColour(200, 200, 200), {748, 30, 773, 51}));  // 24 wide
  EXPECT_TRUE(Shows("朝の曲", 12, 12));
  EXPECT_TRUE(Shows("項目", 12, 32));
  EXPECT_TRUE(Shows("   BGM ファイル ", 52, 32));
  EXPECT_TRUE(Shows(" 予定時間 ", 570, 32));
  EXPECT_TRUE(Shows("Ena.", 750, 35));
  EXPECT_TRUE(Shows("  1", 12, 52));
  EXPECT_TRUE(Shows("C:\\音楽\\朝.wav", 52, 52));
  EXPECT_TRUE(Shows("  9: 5D", 570, 52));
  EXPECT_TRUE(Shows(" 20", 12, 432));
  EXPECT_TRUE(Shows(" -1:100D", 570, 432));
  EXPECT_FALSE(Shows(" 21", 12, 452));
}

TEST_F(MusicTest, LongTextsAreCut) {
  // The title's box is 548 wide: 67 characters; the file's is 518: 63.
  TextCopy(Schedule.SclHeader.title, sizeof Schedule.SclHeader.title, std::string(128, 't').c_str());
  std::memset(BgmTable.rows[0].filePath, 'f', kBgmPathSize);
  SetRow(1, 0, 0, ("a" + std::string(61, 'b') + "漢字").c_str());
  Open();
  Draw();
  EXPECT_TRUE(Shows(std::string(67, 't').c_str(), 12, 12));
  EXPECT_TRUE(Shows(std::string(63, 'f').c_str(), 52, 52));
  EXPECT_TRUE(Shows(("a" + std::string(61, 'b')).c_str(), 52, 72)) << "no pair is split";
}

TEST_F(MusicTest, APressMarksTheCellOrTheRow) {
  Open();
  const auto marksAfter = [&](int x, int y) {
    Mouse(Wnd(), EventKind::LeftDown, x, y);
    Draw();
    std::vector<Rect> marks;
    for (const DrawCall& call : Drawings(Wnd())) {
      if (call.kind == DrawCall::Kind::Rectangle && call.brush == kMark)
        marks.push_back({call.x, call.y, call.x2, call.y2});
    }
    return marks.size();
  };
  marksAfter(kFileX, RowY(3));
  EXPECT_TRUE(Filled(kMark, Cell(50, 568, 3)));
  EXPECT_EQ(RowSelection.currentRow, 3);
  EXPECT_EQ(RowSelection.highlightedCell, TableCell::Content);
  marksAfter(kTimeX, RowY(20));
  EXPECT_TRUE(Filled(kMark, Cell(568, 748, 20)));
  EXPECT_FALSE(Filled(kMark, Cell(50, 568, 3)));
  EXPECT_EQ(marksAfter(kItemX, RowY(7)), 1U);
  EXPECT_TRUE(Filled(kMark, Cell(10, 50, 7)));
  // Anywhere else nothing changes.
  for (const auto& [x, y] : {std::pair{kEnableX, RowY(5)},
                             {kItemX, 40},
                             {kFileX, 20},
                             {700, 20},
                             {5, RowY(5)},
                             {795, RowY(5)},
                             {kFileX, 455}}) {
    marksAfter(x, y);
    EXPECT_EQ(RowSelection.currentRow, 7) << x << "," << y;
  }
}

TEST_F(MusicTest, ADoubleClickOnTheFilePicksOne) {
  Open();
  PutFile(InProgram("朝.wav"), "RIFF");
  ThenPick("朝.wav");
  DrawingClear();
  Double(kFileX, RowY(2));
  EXPECT_STREQ(BgmTable.rows[1].filePath, "C:\\mirrell\\朝.wav");
  EXPECT_TRUE(Shows("C:\\mirrell\\朝.wav", 52, 72));
  ThenPress(kFolderCancelId);
  Double(kFileX, RowY(2));
  EXPECT_STREQ(BgmTable.rows[1].filePath, "C:\\mirrell\\朝.wav");
}

TEST_F(MusicTest, ADoubleClickOnTheTimeOpensADialogThatChangesNothing) {
  SetRow(0, 9, 30, "a");
  Open();
  for (const int end : {1, 2}) {
    Then([end] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_BGMRsvTimeSetDlg);
      EXPECT_EQ(WindowText(TopDialog()), "時間設定");
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::BGMRsvTimeSetDlg);
      for (const int list : {IDC_BGM_HOUR, IDC_BGM_MINUTE, IDC_BGM_SECOND}) {
        EXPECT_TRUE(ListRows(TopDialog(), list).empty());
      }
      EXPECT_EQ(ControlText(TopDialog(), 1), "設定");
      EXPECT_EQ(ControlText(TopDialog(), 2), "キャンセル");
      Press(TopDialog(), end);
    });
    Double(kTimeX, RowY(1));
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
    EXPECT_EQ(BgmTable.rows[0].hour, 9);
    EXPECT_EQ(BgmTable.rows[0].minute, 30);
  }
}

TEST_F(MusicTest, ADoubleClickOnTheTitleEditsTheSharedTitle) {
  Open();
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCLTitleDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCLTitleDlgSecond);
    Type(TopDialog(), IDC_SCL_TEXT, "夕方の曲");
    Press(TopDialog(), 1);
  });
  Double(kFileX, 20);
  EXPECT_STREQ(Schedule.SclHeader.title, "夕方の曲");
  EXPECT_TRUE(Shows("夕方の曲", 12, 12));
}

TEST_F(MusicTest, ADoubleClickElsewhereOpensNothing) {
  Open();
  for (const auto& [x, y] :
       {std::pair{kItemX, RowY(1)}, {kEnableX, RowY(1)}, {700, 20}, {kFileX, 40}, {kEnableX, 40}, {5, 5}}) {
    Double(x, y);
  }
  EXPECT_EQ(TopDialog(), nullptr);
}

TEST_F(MusicTest, WhileADialogIsUpTheWindowOpensNoOther) {
  Open();
  Then([] {
    Mouse(Wnd(), EventKind::LeftDouble, kTimeX, RowY(1));
    Press(Wnd(), IDC_BGM_LOAD);
    Press(Wnd(), IDC_BGM_SAVE);
    Mouse(Wnd(), EventKind::RightDown, kItemX, RowY(1));
    PressClose(Wnd());
    EXPECT_NE(Wnd(), nullptr);
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_MailSettingMenuDlg);
    Press(TopDialog(), 2);
  });
  CommandSend(Command::MailSettings);
}

// --- The menu of the schedule's rows

TEST_F(MusicTest, ARightPressOnAnItemMarksTheRowAndItsMenuActsOnTheSchedule) {
  Open();
  const int count = Schedule.SclHeader.count;
  SetRow(1, 9, 30, "a");
  const std::string bytes = RecordBytes(BgmTable);
  ExpectMenu(IDM_SCHEDULE_LINE, 2040);  // insert
  Mouse(Wnd(), EventKind::RightDown, kItemX, RowY(2));
  EXPECT_EQ(RowSelection.currentRow, 2);
  EXPECT_EQ(Schedule.SclHeader.count, count + 1);
  EXPECT_EQ(Music.view.lines, count + 1) << "it scrolls by the schedule's count";
  ExpectMenu(IDM_SCHEDULE_LINE, 2209);  // delete
  Mouse(Wnd(), EventKind::RightDown, kItemX, RowY(2));
  EXPECT_EQ(Schedule.SclHeader.count, count);
  EXPECT_TRUE(RecordBytes(BgmTable) == bytes) << "the music stays";
  ExpectMenu(IDM_SCHEDULE_LINE, 0);
  Mouse(Wnd(), EventKind::RightDown, kItemX, RowY(5));
  EXPECT_EQ(RowSelection.currentRow, 5);
  Mouse(Wnd(), EventKind::RightDown, kFileX, RowY(6));  // no menu elsewhere
  EXPECT_EQ(RowSelection.currentRow, 5);
}

TEST_F(MusicTest, TheMenuTakesARowBehindTheSchedulesEnd) {
  Schedule.SclHeader.count = 3;
  Open();
  for (const std::uint32_t command : {2209U, 2210U, 2040U}) {
    ExpectMenu(IDM_SCHEDULE_LINE, command);
    Mouse(Wnd(), EventKind::RightDown, kItemX, RowY(20));
  }
  EXPECT_EQ(Schedule.SclHeader.count, 4);
  Draw();  // rows that were copied have no bracket here
}

TEST_F(MusicTest, AMenuThatWasOpenedHereIsForgottenWithTheWindow) {
  Open();
  ExpectMenu(IDM_SCHEDULE_LINE, 0);
  Mouse(Wnd(), EventKind::RightDown, kItemX, RowY(2));
  Press(Wnd(), 2);
  const int count = Schedule.SclHeader.count;
  CommandSend(Command::ScheduleLineInsert);
  CommandSend(Command::ScheduleLineMenu);
  EXPECT_EQ(Schedule.SclHeader.count, count);
}

// --- Scrolling: within the schedule's count less the rows on show

TEST_F(MusicTest, ItScrollsAsFarAsTheScheduleHasRows) {
  SetRow(30, 7, 7, "the thirty-first");
  Open();
  ASSERT_EQ(Schedule.SclHeader.count, 31);
  const WindowHandle bar = Music.view.scrollBar;
  ASSERT_NE(bar, nullptr);
  const auto after = [&](Scroll scroll, int position = 0) {
    ScrollBy(Wnd(), bar, scroll, position);
    return Music.view.firstLine;
  };
  EXPECT_EQ(after(Scroll::LineUp), 0);
  EXPECT_EQ(after(Scroll::LineDown), 1);
  EXPECT_EQ(after(Scroll::PageDown), 11);
  EXPECT_EQ(after(Scroll::LineDown), 11);
  EXPECT_EQ(after(Scroll::PageUp), 1);
  EXPECT_EQ(after(Scroll::Bottom), 11);
  EXPECT_EQ(after(Scroll::Top), 0);
  EXPECT_EQ(after(Scroll::Thumb, 5), 5);
  EXPECT_EQ(after(Scroll::Bottom), 11);
  EXPECT_TRUE(Shows(" 12", 12, 52));
  EXPECT_TRUE(Shows(" 31", 12, 432));
  EXPECT_TRUE(Shows("the thirty-first", 52, 432));
  Mouse(Wnd(), EventKind::LeftDown, kFileX, RowY(20));
  EXPECT_EQ(RowSelection.currentRow, 31);
}

TEST_F(MusicTest, AScheduleOfFewRowsLeavesTheFirstPageAndAllItsRows) {
  Schedule.SclHeader.count = 5;
  Open();
  EXPECT_FALSE(ScrollBarState(Music.view.scrollBar).enabled);
  Draw();
  EXPECT_TRUE(Shows(" 20", 12, 432));
}

TEST_F(MusicTest, AScheduleOf1000RowsScrollsPastTheTablesEnd) {
  Schedule.SclHeader.count = 1000;
  Open();
  ScrollBy(Wnd(), Music.view.scrollBar, Scroll::Bottom);
  EXPECT_EQ(Music.view.firstLine, 980);
  Draw();
  EXPECT_TRUE(Shows("項目", 12, 32));
  EXPECT_FALSE(Shows("981", 12, 52));
  RowSelection.currentRow = 0;
  Mouse(Wnd(), EventKind::LeftDown, kFileX, RowY(1));
  Double(kFileX, RowY(1));
  EXPECT_EQ(RowSelection.currentRow, 0);
  ScrollBy(Wnd(), Music.view.scrollBar, Scroll::Thumb, 190);
  Draw();
  EXPECT_TRUE(Shows("191", 12, 52));
  EXPECT_TRUE(Shows("200", 12, 232));
  EXPECT_FALSE(Shows("201", 12, 252));
}

TEST_F(MusicTest, AScheduleThatGetsShorterPullsTheTableBack) {
  Open();
  ScrollBy(Wnd(), Music.view.scrollBar, Scroll::Bottom);
  Schedule.SclHeader.count = 22;
  Draw();
  EXPECT_EQ(Music.view.firstLine, 2);
}

// --- Loading and saving

TEST_F(MusicTest, AGoodLoadShowsItsRows) {
  SetRow(0, 21, 15, "C:\\a.wav");
  BgmTable.rowCount = 9;
  ASSERT_EQ(BgmSave(Path().c_str()), 0);
  BgmTable = {};
  Open();
  ThenPick("曲.bgm");
  DrawingClear();
  Press(Wnd(), IDC_BGM_LOAD);
  EXPECT_EQ(BgmTable.rowCount, 9);
  EXPECT_TRUE(Shows("C:\\a.wav", 52, 52));
  EXPECT_TRUE(Shows(" 21:15D", 570, 52));
  EXPECT_EQ(FileResult.FileStatus, 0);
}

TEST_F(MusicTest, AGoodLoadOpensTheWindowThatIsNotUp) {
  ASSERT_EQ(BgmSave(Path().c_str()), 0);
  ThenPick("曲.bgm");
  BgmLoadRun(Program.hMainWnd);
  EXPECT_NE(Wnd(), nullptr);
  const WindowHandle window = Wnd();
  ThenPick("曲.bgm");
  BgmLoadRun(Wnd());
  EXPECT_EQ(Wnd(), window) << "only one can exist";
}

TEST_F(MusicTest, ACancelledLoadChangesNothing) {
  SetRow(0, 1, 2, "a");
  Open();
  ThenPress(kFolderCancelId);
  Press(Wnd(), IDC_BGM_LOAD);
  EXPECT_STREQ(BgmTable.rows[0].filePath, "a");
  EXPECT_EQ(FileResult.FileStatus, 1);
}

TEST_F(MusicTest, AFileThatCannotBeOpenedIsTold) {
  Open();
  ThenPick("なし.bgm");
  ExpectBox("ファイルを開けません", "BGM設定読み込みエラー");
  Press(Wnd(), IDC_BGM_LOAD);
  EXPECT_EQ(FileResult.FileStatus, -1);
}

TEST_F(MusicTest, AFileOf122603BytesShowsTheBoxWithTheLastRowPartlyRead) {
  PutFile(Path(), std::string(kSize - 1, 'q'));
  ThenPick("曲.bgm");
  ExpectBox("データが正しく読み込めません", "BGM設定読み込みエラー");
  BgmLoadRun(Program.hMainWnd);
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_EQ(Wnd(), nullptr) << "only a good load opens the window";
  EXPECT_EQ(BgmTable.rows[199].hour, 0x71717171);
  EXPECT_EQ(BgmTable.rows[199].filePath[598], 'q');
  EXPECT_EQ(BgmTable.rows[199].filePath[599], '\0');
}

TEST_F(MusicTest, SavingAsksBeforeItReplacesAFile) {
  constexpr const char* kAsk = "同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?";
  Open();
  ThenPick("曲.bgm");
  Press(Wnd(), IDC_BGM_SAVE);
  EXPECT_EQ(FileBytes(Path()).size(), static_cast<std::size_t>(kSize));
  PutFile(Path(), "old");
  ThenPick("曲.bgm");
  ExpectBox(kAsk, "ﾌｧｲﾙｾｰﾌﾞ", BoxAnswer::Cancel);
  Press(Wnd(), IDC_BGM_SAVE);
  EXPECT_EQ(FileBytes(Path()), "old");
  ThenPick("曲.bgm");
  ExpectBox(kAsk, "ﾌｧｲﾙｾｰﾌﾞ");
  Press(Wnd(), IDC_BGM_SAVE);
  EXPECT_EQ(FileBytes(Path()).size(), static_cast<std::size_t>(kSize));
  ThenPress(kFolderCancelId);
  Press(Wnd(), IDC_BGM_SAVE);
}

TEST_F(MusicTest, AFileThatCannotBeMadeIsToldAndAShortWriteIsNot) {
  Open();
  FaultArm(FaultKind::Create, 1);
  ThenPick("曲.bgm");
  ExpectBox("ファイルを開けません", "セーブエラー");
  Press(Wnd(), IDC_BGM_SAVE);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultArm(FaultKind::Write, 1);
  ThenPick("曲.bgm");
  Press(Wnd(), IDC_BGM_SAVE);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  EXPECT_EQ(FileResult.FileStatus, -2);
}

}  // namespace
