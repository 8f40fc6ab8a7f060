// FolderScopeSetDlg, the two statistics dialogs and the progress of their searches.
#include <algorithm>

#include "filetools/scope_commands.h"
#include "filetools/scope_dialogs.h"
#include "platform/dialog.h"
#include "platform/posix/faults.h"
#include "resources/ids.h"
#include "shell/folder_list.h"
#include "tests/filetools/scope_fixture.h"

namespace {

using Names = std::vector<std::string>;

constexpr Colour kRed = 0x0000E6;
constexpr Colour kBlue = 0xFF0000;

class FolderScopeDialogTest : public ScopeFixture {
 protected:
  // The drive of the charts: 8 MB, of which 1 MB is free.
  //
  //   data     2 MB      photos   1 MB      p1.bin  640 KB
  //                                         p2.bin  384 KB
  //                      other.bin  1 MB
  //   music    1 MB
  //   note.txt 1.5 KB
  //   mirrell  nothing
  static void MakeTree() {
    MakeFolder("C:\\data\\photos");
    MakeFolder("C:\\music");
    MakeSized("C:\\data\\photos\\p1.bin", 655360);
    MakeSized("C:\\data\\photos\\p2.bin", 393216);
    MakeSized("C:\\data\\other.bin", 1048576);
    MakeSized("C:\\music\\m", 1048576);
    MakeSized("C:\\note.txt", 1536);
  }

  // Opens the pies of a folder, looks and closes them.
  static void Pies(const std::string& folder, std::function<void()> look) {
    Choose(folder);
    Then(TicksOfSearch);
    Then(TicksOfSearch);
    Then([look] {
      look();
      Press(TopDialog(), 2);
    });
    FolderStaticsDlgRun(nullptr);
  }
  static void Bars(const std::string& folder, std::function<void()> look) {
    Choose(folder);
    Then(TicksOfSearch);
    Then([look] {
      look();
      Press(TopDialog(), 2);
    });
    FolderStaticsDlg2Run(nullptr);
  }

  static Names Texts() {
    Names texts;
    for (const DrawCall& call : DrawnTexts(TopDialog())) texts.push_back(call.text);
    return texts;
  }
  static bool HasText(const std::string& text) {
    const Names texts = Texts();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }
  static void ExpectTexts(const std::vector<std::tuple<const char*, int, int>>& texts) {
    for (const auto& [text, x, y] : texts) {
      EXPECT_TRUE(TextStands(TopDialog(), text, x, y)) << Cp932ToUtf8(text) << " at " << x << ", " << y;
    }
  }
  static std::vector<DrawCall> Calls(DrawCall::Kind kind) {
    std::vector<DrawCall> calls = Drawings(TopDialog());
    std::erase_if(calls, [kind](const DrawCall& call) { return call.kind != kind; });
    return calls;
  }
  static void ExpectLine(const DrawCall& line, int x, int y, int endX) {
    EXPECT_EQ(line.x, x);
    EXPECT_EQ(line.y, y);
    EXPECT_EQ(line.x2, endX);
    EXPECT_EQ(line.y2, y);
  }
  static void ExpectPie(const DrawCall& pie, int x0, int y0, Point end, Point start, Colour brush) {
    EXPECT_EQ(pie.x, x0);
    EXPECT_EQ(pie.y, y0);
    EXPECT_EQ(pie.x2, x0 + 200);
    EXPECT_EQ(pie.y2, y0 + 200);
    EXPECT_EQ(pie.ax, end.x);
    EXPECT_EQ(pie.ay, end.y);
    EXPECT_EQ(pie.bx, start.x);
    EXPECT_EQ(pie.by, start.y);
    EXPECT_EQ(pie.brush, brush);
  }
};

// --- FolderScopeSetDlg.

TEST_F(FolderScopeDialogTest, TheCommandOpensTheScopeInItsFamilyAndTakesItsMarksBack) {
  MenuPanelState = 400;
  Then([] {
    EXPECT_EQ(DlgIdTool, 2009);
    EXPECT_EQ(FuncNo, 6);
    EXPECT_EQ(hToolDlg, TopDialog());
    EXPECT_EQ(WindowText(TopDialog()), "フォルダースコープ");
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
  EXPECT_EQ(DlgIdTool, 0);
  EXPECT_EQ(FuncNo, 0);
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(hToolDlg, nullptr);
}

TEST_F(FolderScopeDialogTest, EscapeClosesTheScope) {
  Then([] { SendCommand(TopDialog(), 2); });
  FolderScopeCommand();
  EXPECT_EQ(hToolDlg, nullptr);
}

TEST_F(FolderScopeDialogTest, ListsTheFilesOfTheFolderAndFollowsTheFolderList) {
  MakeTree();
  FolderSetCurrent("C:\\data");
  Then([] {
    EXPECT_STREQ(scopeFolder, "C:\\data");
    EXPECT_STREQ(firstLevelName, "data");
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILES), Names{"other.bin"});
    const Names folders = ListRows(TopDialog(), kFolderListId);
    const auto at = std::find(folders.begin(), folders.end(), "[photos]");
    ASSERT_NE(at, folders.end());
    DoubleClickRow(TopDialog(), kFolderListId, static_cast<int>(at - folders.begin()));
    EXPECT_STREQ(scopeFolder, "C:\\data\\photos");
    EXPECT_STREQ(folderName, "photos");
    Names files = ListRows(TopDialog(), IDC_SCOPE_FILES);
    EXPECT_EQ(files, SearchOrder("C:\\data\\photos"));
    EXPECT_TRUE(HasText("Path: C:\\data\\photos"));
    Press(TopDialog(), kFolderUpId);
    Press(TopDialog(), kFolderUpId);
    EXPECT_STREQ(scopeFolder, "C:\\");
    EXPECT_STREQ(folderName, "");
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILES), Names{"note.txt"});
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
}

TEST_F(FolderScopeDialogTest, TheFilterHasItsSixteenRowsAndAdmitsByTheFirstDot) {
  MakeFolder("C:\\files");
  for (const char* name :
       {"a.txt", "b.TXT", "c.old.txt", "d.txt.old", "e.c", "f.cpp", "g.Rc", "h", ".i.txt", "j.inc", "k.h"}) {
    PutFile(std::string("C:\\files\\") + name, "");
  }
  FolderSetCurrent("C:\\files");
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILTER),
              (Names{"*.*", "*.C", "*.CPP", "*.H", "*.INC", "*.RC", "*.C *.CPP *.H *.INC *RC", "*.DOC",
                     "*.TXT", "*.XCL", "*.BMP", "*.JPG", "*.WAV", "*.MP3", "*.INI", "*.BAT"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SCOPE_FILTER), 0);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILES), SearchOrder("C:\\files"));
    ChooseRow(TopDialog(), IDC_SCOPE_FILTER, 8);
    Names files = ListRows(TopDialog(), IDC_SCOPE_FILES);
    std::sort(files.begin(), files.end());
    // "c.old.txt" is out: its extension reads from the first dot.
    EXPECT_EQ(files, (Names{"a.txt", "b.TXT"}));
    ChooseRow(TopDialog(), IDC_SCOPE_FILTER, 6);
    files = ListRows(TopDialog(), IDC_SCOPE_FILES);
    std::sort(files.begin(), files.end());
    EXPECT_EQ(files, (Names{"e.c", "f.cpp", "g.Rc", "j.inc", "k.h"}));
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
}

TEST_F(FolderScopeDialogTest, BothStatisticsOpenOverTheScopeAndGoBackToIt) {
  MakeTree();
  FolderSetCurrent("C:\\data\\photos");
  Then([] { Press(TopDialog(), IDC_SCOPE_PIES); });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchDrvDlg);
    EXPECT_EQ(WindowText(TopDialog()), "指定ドライブ検索中");
    EXPECT_EQ(progressMode, 1);
    TicksOfSearch();
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchFolderDlg);
    EXPECT_EQ(WindowText(TopDialog()), "指定フォルダ検索中");
    EXPECT_EQ(progressMode, 2);
    TicksOfSearch();
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FolderStaticsDlg);
    EXPECT_EQ(WindowText(TopDialog()), "フォルダー統計 円グラフ");
    EXPECT_EQ(DlgIdMenu, 2003);
    EXPECT_EQ(DlgIdTool, 2009);
    EXPECT_EQ(hMenuDlg, TopDialog());
    EXPECT_EQ(progressMode, 0);
    EXPECT_EQ(ControlText(TopDialog(), IDC_STATICS_FOLDER), "C:\\data\\photos");
    Press(TopDialog(), 2);
  });
  Then([] {
    EXPECT_EQ(hMenuDlg, nullptr);
    EXPECT_EQ(TopDialog(), hToolDlg);
    Press(TopDialog(), IDC_SCOPE_BARS);
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchFolderDlg);
    TicksOfSearch();
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FolderStaticsDlg2);
    EXPECT_EQ(WindowText(TopDialog()), "フォルダー統計 棒グラフ");
    EXPECT_EQ(DlgIdMenu, 2003);
    EXPECT_EQ(ControlText(TopDialog(), IDC_STATICS_FOLDER), "C:\\data\\photos");
    SendClose(TopDialog());
  });
  Then([] {
    EXPECT_EQ(DlgIdMenu, 0);
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
}

// --- The searches.

TEST_F(FolderScopeDialogTest, StopInTheDriveSearchEndsTheStatistics) {
  MakeTree();
  Choose("C:\\data");
  Then([] {
    SendCommand(hSearchDlg, 2376);
    EXPECT_EQ(DiagnosticsLive().searches, 1);
    Press(TopDialog(), 2);
  });
  FolderStaticsDlgRun(nullptr);
  EXPECT_EQ(hSearchDlg, nullptr);
  EXPECT_EQ(hMenuDlg, nullptr);
  EXPECT_EQ(progressMode, 0);
  EXPECT_EQ(DiagnosticsLive().searches, 0);
  EXPECT_EQ(CurrentOne(), "C:\\mirrell");
}

TEST_F(FolderScopeDialogTest, StopInTheFolderSearchEndsTheStatistics) {
  MakeTree();
  Choose("C:\\data");
  Then(TicksOfSearch);
  Then([] {
    SendCommand(hSearchDlg, 2376);
    SendClose(TopDialog());
  });
  FolderStaticsDlgRun(nullptr);
  EXPECT_EQ(hMenuDlg, nullptr);
  Then([] { Press(TopDialog(), 2); });
  FolderStaticsDlg2Run(nullptr);
  EXPECT_EQ(hMenuDlg, nullptr);
  EXPECT_EQ(progressMode, 0);
  EXPECT_EQ(DiagnosticsLive().searches, 0);
}

TEST_F(FolderScopeDialogTest, AFolderWith3105EntriesClosesTheStatisticsAtOnceAndSilently) {
  MakeMany("C:\\many", 3105);
  Choose("C:\\many");
  Then(TicksOfSearch);
  Then(TicksOfSearch);
  FolderStaticsDlgRun(nullptr);
  EXPECT_EQ(hMenuDlg, nullptr);
  EXPECT_EQ(scopeFolderCount, -2);
  Then(TicksOfSearch);
  FolderStaticsDlg2Run(nullptr);
  EXPECT_EQ(hMenuDlg, nullptr);
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(FolderScopeDialogTest, AStepBehindTheEndOfASearchIsPassedOver) {
  Choose("C:\\");
  Then([] {
    const WindowHandle dialog = hSearchDlg;
    TicksOfSearch();
    SendCommand(dialog, 2376);
    SendCommand(dialog, 2);
  });
  EXPECT_EQ(ScopeSearchRun(nullptr, 1), 1);
  EXPECT_EQ(progressMode, 0);
}

TEST_F(FolderScopeDialogTest, ASecondSearchWhileOneIsRunningIsRefused) {
  Choose("C:\\");
  Then([] {
    SendCommand(hSearchDlg, 2376);
    EXPECT_EQ(ScopeSearchRun(nullptr, 2), -1);
    EXPECT_EQ(progressMode, 1);
    TicksOfSearch();
  });
  EXPECT_EQ(ScopeSearchRun(nullptr, 1), 1);  // "mirrell"
}

TEST_F(FolderScopeDialogTest, ASecondScopeWhileOneIsOpenIsRefused) {
  Then([] {
    FolderScopeCommand();
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
  Then([] { Press(TopDialog(), 3); });
  FolderScopeCommand();
}

TEST_F(FolderScopeDialogTest, EachWindowThatCannotBeMadeLeavesNothingBehind) {
  MakeTree();
  for (int nth = 1; nth < 5; ++nth) {
    Choose("C:\\data");
    FaultArm(FaultKind::Window, nth);
    if (nth > 2) Then(TicksOfSearch);
    if (nth > 3) Then(TicksOfSearch);
    if (nth > 3) Then([] { Press(TopDialog(), 2); });
    FolderStaticsDlgRun(nullptr);
    EXPECT_EQ(FaultWasMet(), nth < 4);
    EXPECT_EQ(hMenuDlg, nullptr);
    EXPECT_EQ(hSearchDlg, nullptr);
    EXPECT_EQ(progressMode, 0);
  }
  // The bars: the dialog, the search, the scroll bar.
  for (int nth = 1; nth < 5; ++nth) {
    FaultArm(FaultKind::Window, nth);
    if (nth > 2) Then(TicksOfSearch);
    if (nth > 2) Then([] { Press(TopDialog(), 2); });
    FolderStaticsDlg2Run(nullptr);
    EXPECT_EQ(FaultWasMet(), nth < 4);
    EXPECT_EQ(hMenuDlg, nullptr);
  }
}

// --- The pies.

TEST_F(FolderScopeDialogTest, ThePiesShowTheDriveAndTheChosenFolder) {
  MakeTree();
  Pies("C:\\data\\photos", [] {
    ExpectTexts({{"対 ルートドライブ 容量比", 60, 160},
                 {"ドライブ C 容量:8.0 M B", 60, 180},
                 {"1.( 1) data", 40, 420},
                 {"2.C:\\..\\photos", 40, 440},
                 {"3.( 2) music", 40, 460},
                 {"4.( 3) note.txt", 40, 480},
                 {"5.   その他", 40, 500},
                 {"6.   空き", 40, 520},
                 {" 2.0 M B", 228, 420},
                 {" 1024.0 K B", 228, 440},
                 {" 1024.0 K B", 228, 460},
                 {" 1.50 K B", 228, 480},
                 {" 3.99 M B", 228, 500},
                 {" 1024.0 K B", 228, 520},
                 {"指定フォルダー内容量比", 380, 160},
                 {"フォルダー容量:1024.0 K B", 380, 180},
                 {"1.( 1) p1.bin", 360, 420},
                 {"2.( 2) p2.bin", 360, 440},
                 {"3.   その他", 360, 460},
                 {" 640.0 K B", 588, 420},
                 {" 384.0 K B", 588, 440},
                 {" 0.0 K B", 588, 460}});
    for (const DrawCall& text : DrawnTexts(TopDialog())) {
      EXPECT_TRUE(text.transparent);
      EXPECT_EQ(text.textColour, 0U);
    }
  });
}

TEST_F(FolderScopeDialogTest, SlicesHaveTheColoursOfTheirLinesAndTheFreeShareStaysWhite) {
  MakeTree();
  Pies("C:\\data\\photos", [] {
    const std::vector<DrawCall> discs = Calls(DrawCall::Kind::Ellipse);
    ASSERT_EQ(discs.size(), 2U);
    EXPECT_EQ(discs[0].brush, 0xFFFFFFU);
    EXPECT_EQ(discs[0].x, 60);
    EXPECT_EQ(discs[0].y, 200);
    EXPECT_EQ(discs[0].x2, 260);
    EXPECT_EQ(discs[0].y2, 400);
    EXPECT_EQ(discs[1].x, 380);
    EXPECT_EQ(discs[1].x2, 580);
    const std::vector<DrawCall> pies = Calls(DrawCall::Kind::Pie);
    // "note.txt" is too thin for a slice, and "その他" of the folder is nothing.
    ASSERT_GE(pies.size(), 6U);
    ExpectPie(pies[0], 60, 200, {260, 300}, {160, 200}, kRed);
    ExpectPie(pies[1], 60, 200, {230, 229}, {160, 200}, kRed);
    ExpectPie(pies[2], 60, 200, {230, 370}, {260, 300}, 0x00C800);
    ExpectPie(pies[3], 60, 200, {89, 229}, {230, 370}, 0x00F0F0);
    ExpectPie(pies[4], 380, 200, {409, 370}, {480, 200}, kRed);
    EXPECT_EQ(pies[5].brush, kBlue);
    EXPECT_EQ(pies[5].bx, 409);
    EXPECT_EQ(pies[5].by, 370);
  });
}

TEST_F(FolderScopeDialogTest, LeaderLinesStandBesideTheSlices) {
  MakeTree();
  Pies("C:\\data\\photos", [] {
    const std::vector<DrawCall> lines = Calls(DrawCall::Kind::Line);
    ASSERT_EQ(lines.size(), 9U);
    ExpectLine(lines[0], 210, 250, 270);
    ExpectLine(lines[1], 195, 214, 270);
    ExpectLine(lines[2], 245, 335, 270);
    ExpectLine(lines[3], 230, 370, 270);
    ExpectLine(lines[4], 160, 398, 40);
    ExpectLine(lines[5], 124, 214, 40);
    ExpectLine(lines[6], 530, 285, 590);
    ExpectLine(lines[7], 444, 285, 360);
    ExpectTexts({{"1", 272, 246},
                 {"2", 272, 210},
                 {"3", 272, 331},
                 {"4", 272, 366},
                 {"5", 22, 394},
                 {"6", 22, 210},
                 {"1", 592, 281},
                 {"2", 342, 281},
                 {"3", 342, 196}});
  });
}

TEST_F(FolderScopeDialogTest, OfADriveRootThereIsNoRightPieAndNoFirstLevelRow) {
  MakeTree();
  Pies("C:\\", [] {
    EXPECT_STREQ(folderName, "");
    EXPECT_EQ(firstLevelIndex, -1);
    ExpectTexts({{"1.( 1) data", 40, 420},
                 {"2.( 2) music", 40, 440},
                 {"3.( 3) note.txt", 40, 460},
                 {"4.( 4) mirrell", 40, 480},
                 {"5.   その他", 40, 500},
                 {"6.   空き", 40, 520}});
    EXPECT_FALSE(HasText("指定フォルダー内容量比"));
    EXPECT_EQ(Calls(DrawCall::Kind::Ellipse).size(), 1U);
  });
}

TEST_F(FolderScopeDialogTest, OfAFirstLevelFolderTheRightPieShowsItsContent) {
  MakeTree();
  Pies("C:\\music", [] {
    ExpectTexts({{"1.( 2) music", 40, 420},
                 {"2.( 1) data", 40, 440},
                 {"フォルダー容量:1024.0 K B", 380, 180},
                 {"1.( 1) m", 360, 420},
                 {"2.   その他", 360, 440}});
    for (const std::string& text : Texts()) EXPECT_EQ(text.find("C:\\..\\"), std::string::npos);
  });
}

TEST_F(FolderScopeDialogTest, ASliceOfTheWholeIsNotDrawnSinceItsEndsMeet) {
  MakeTree();
  Pies("C:\\music", [] {
    // The one file of "music" is all of it: the right disc stays white.
    for (const DrawCall& pie : Calls(DrawCall::Kind::Pie)) EXPECT_LT(pie.x, 380);
  });
}

TEST_F(FolderScopeDialogTest, AFolderWithOneFileOfSizeZeroShowsZeroPointZero) {
  MakeFolder("C:\\empty");
  PutFile("C:\\empty\\nothing.txt", "");
  Pies("C:\\empty", [] {
    ExpectTexts({{"フォルダー容量:0.0 K B", 380, 180},
                 {"1.( 1) nothing.txt", 360, 420},
                 {" 0.0 K B", 588, 420},
                 {" 0.0 K B", 588, 440}});
  });
}

TEST_F(FolderScopeDialogTest, NamesAreCutAfter23BytesWithTheirPairsWhole) {
  MakeFolder("C:\\names");
  // 22 bytes, then a pair that would be split; and 24 plain letters.
  const std::string plain = std::string(24, 'a');
  const std::string mixed = std::string(22, 'b') + "あ";
  MakeSized("C:\\names\\" + plain, 200);
  MakeSized("C:\\names\\" + mixed, 100);
  Pies("C:\\names", [&] {
    ExpectTexts({{("1.( 1) " + std::string(23, 'a')).c_str(), 360, 420},
                 {("2.( 2) " + std::string(22, 'b')).c_str(), 360, 440}});
  });
  Bars("C:\\names", [&] {
    ExpectTexts({{std::string(23, 'a').c_str(), 20, 180}, {std::string(22, 'b').c_str(), 20, 200}});
  });
}

TEST_F(FolderScopeDialogTest, TheKeyEndsInFrontOfItsSizes) {
  MakeTree();
  Pies("C:\\data\\photos", [] {
    for (const DrawCall& text : DrawnTexts(TopDialog())) {
      if (text.text == "1.( 1) data") {
        EXPECT_EQ(text.clip.right, 224);
      } else if (text.text == "1.( 1) p1.bin") {
        EXPECT_EQ(text.clip.right, 584);
      }
    }
    EXPECT_TRUE(HasText("1.( 1) p1.bin"));
  });
}

TEST_F(FolderScopeDialogTest, OfManyEntriesSixRowsAreShown) {
  MakeFolder("C:\\data\\deep");
  for (int i = 1; i <= 9; ++i) {
    MakeFolder("C:\\f" + std::to_string(i));
    MakeSized("C:\\f" + std::to_string(i) + "\\x", static_cast<std::uintmax_t>(i) * 1024);
    MakeSized("C:\\data\\deep\\" + std::to_string(i), static_cast<std::uintmax_t>(i) * 1024);
  }
  Pies("C:\\data\\deep", [] {
    // "data" holds 45 KB: it comes first anyway, with the chosen folder below.
    ExpectTexts({{"1.( 1) data", 40, 420},
                 {"2.C:\\..\\deep", 40, 440},
                 {"3.( 2) f9", 40, 460},
                 {"6.( 5) f6", 40, 520},
                 {"7.   その他", 40, 540},
                 {"8.   空き", 40, 560},
                 {"6.( 6) 4", 360, 520},
                 {"7.   その他", 360, 540},
                 {" 6.0 K B", 588, 540}});
    // Line 6 has the seventh colour.
    const std::vector<DrawCall> pies = Calls(DrawCall::Kind::Pie);
    EXPECT_EQ(pies.back().brush, 0xFFFF00U);
  });
}

TEST_F(FolderScopeDialogTest, WithoutABitmapInMemoryTheChartIsDrawnStraightOnTheScreen) {
  MakeTree();
  Pies("C:\\music", [] {
    DrawingClear();
    FaultArm(FaultKind::Bitmap, 1);
    SendPaint(TopDialog());
    EXPECT_TRUE(FaultWasMet());
    EXPECT_TRUE(TextStands(TopDialog(), "1.( 2) music", 40, 420));
    EXPECT_TRUE(Calls(DrawCall::Kind::Copy).empty());
  });
}

TEST_F(FolderScopeDialogTest, PaintingLeavesNothingBehind) {
  MakeTree();
  Pies("C:\\data", [] {
    const std::string before = LiveText(DiagnosticsLive());
    for (int i = 0; i < 5; ++i) SendPaint(TopDialog());
    EXPECT_EQ(LiveText(DiagnosticsLive()), before);
  });
}

// --- The bars.

TEST_F(FolderScopeDialogTest, TheBarsShowTheFolderAndItsEntriesLargestFirst) {
  MakeFolder("C:\\data\\a");
  MakeSized("C:\\data\\a\\x", 3072);
  MakeSized("C:\\data\\b.txt", 1024);
  PosixDiskSpaceSet(40960, 1024);
  Bars("C:\\data", [] {
    ExpectTexts({{"指定フォルダ", 20, 160},
                 {"10.0%", 512, 160},
                 {"(4.0 K B)", 552, 160},
                 {"a", 20, 180},
                 {"75.0%", 512, 180},
                 {"(3.0 K B)", 552, 180},
                 {"b.txt", 20, 200},
                 {"25.0%", 512, 200},
                 {"(1.0 K B)", 552, 200}});
    EXPECT_EQ(DrawnTexts(TopDialog()).size(), 9U);
    std::vector<DrawCall> boxes = Calls(DrawCall::Kind::Rectangle);
    std::erase_if(boxes, [](const DrawCall& call) { return !call.edged; });
    ASSERT_EQ(boxes.size(), 6U);
    const int widths[] = {300, 30, 300, 225, 300, 75};
    const Colour colours[] = {0xFFFFFF, kRed, 0xFFFFFF, kBlue, 0xFFFFFF, kBlue};
    for (int i = 0; i < 6; ++i) {
      const DrawCall& box = boxes[static_cast<std::size_t>(i)];
      EXPECT_EQ(box.x, 212) << i;
      EXPECT_EQ(box.x2, 212 + widths[i]) << i;
      EXPECT_EQ(box.y, 160 + i / 2 * 20) << i;
      EXPECT_EQ(box.y2, 176 + i / 2 * 20) << i;
      EXPECT_EQ(box.brush, colours[i]) << i;
      EXPECT_TRUE(box.clipped);
    }
    // The list area less the scroll bar.
    const Rect client = WindowClientRect(TopDialog());
    EXPECT_EQ(boxes[0].clip.left, 0);
    EXPECT_EQ(boxes[0].clip.top, 160);
    EXPECT_EQ(boxes[0].clip.right, client.right - 2 - 16);
    EXPECT_EQ(boxes[0].clip.bottom, client.bottom - 60);
    EXPECT_FALSE(ScrollBarState(Control(TopDialog(), IDC_STATICS_SCROLL)).enabled);
  });
}

TEST_F(FolderScopeDialogTest, WithAFolderTotalOfZeroAllBarsAreEmpty) {
  MakeFolder("C:\\empty");
  PutFile("C:\\empty\\a", "");
  PutFile("C:\\empty\\b", "");
  Bars("C:\\empty", [] {
    for (int y = 160; y <= 200; y += 20) {
      ExpectTexts({{"0.0%", 512, y}, {"(0.0 K B)", 544, y}});
    }
    for (const DrawCall& box : Calls(DrawCall::Kind::Rectangle))
      EXPECT_FALSE(box.brush == kRed || box.brush == kBlue);
  });
}

TEST_F(FolderScopeDialogTest, ABarRunAfterAPieRunReadsNoEntriesOfTheDrive) {
  MakeTree();
  Pies("C:\\data\\photos", [] {});
  ASSERT_GT(scopeDriveCount, 0);
  Bars("C:\\data\\photos", [] {
    EXPECT_EQ(scopeDriveCount, 0);
    EXPECT_EQ(ScopePieFolder.count, 0);
    ExpectTexts({{"p1.bin", 20, 180}, {"62.50%", 512, 180}, {"(640.0 K B)", 560, 180}});
  });
}

class ScopeScrollTest : public FolderScopeDialogTest {
 protected:
  static constexpr int kFiles = 60;
  static constexpr int kRows = 21;  // (648 - 160 - 60) / 20

  void SetUp() override {
    FolderScopeDialogTest::SetUp();
    MakeFolder("C:\\long");
    for (int i = 1; i <= kFiles; ++i) {
      MakeSized("C:\\long\\" + std::to_string(i), static_cast<std::uintmax_t>(kFiles + 1 - i) * 1000);
    }
  }
  static WindowHandle Bar() { return Control(TopDialog(), IDC_STATICS_SCROLL); }
  // Scrolls; line `first` is then on top: 0 is the folder's own, n the entry "n".
  static void Expect(Scroll scroll, int first, int position = 0) {
    DrawingClear();
    ScrollBy(TopDialog(), Bar(), scroll, position);
    const std::string name = first == 0 ? std::string("指定フォルダ") : std::to_string(first);
    EXPECT_TRUE(TextStands(TopDialog(), name.c_str(), 20, 160)) << first;
  }
};

TEST_F(ScopeScrollTest, AsManyRowsAreDrawnAsFit) {
  Bars("C:\\long", [] {
    EXPECT_EQ(DrawnTexts(TopDialog()).size(), 3U * kRows);
    EXPECT_TRUE(TextStands(TopDialog(), "20", 20, 160 + 20 * 20));
    const ScrollState state = ScrollBarState(Bar());
    EXPECT_TRUE(state.enabled);
    EXPECT_EQ(state.lines, 61);
    EXPECT_EQ(state.page, kRows - 1);
    EXPECT_EQ(state.position, 0);
  });
}

TEST_F(ScopeScrollTest, LinesGoByOnePagesByTenAndStayWithinEntriesLessTwo) {
  Bars("C:\\long", [] {
    Expect(Scroll::LineUp, 0);
    Expect(Scroll::LineDown, 1);
    EXPECT_EQ(ScrollBarState(Bar()).position, 1);
    Expect(Scroll::PageDown, 11);
    Expect(Scroll::LineUp, 10);
    Expect(Scroll::PageUp, 0);
    Expect(Scroll::Thumb, 37, 37);
    Expect(Scroll::PageDown, 47);
    Expect(Scroll::PageDown, 57);
    Expect(Scroll::PageDown, 58);
    Expect(Scroll::LineDown, 58);
    EXPECT_EQ(DrawnTexts(TopDialog()).size(), 9U);  // "58", "59" and "60"
    Expect(Scroll::Top, 0);
    Expect(Scroll::Bottom, 58);
    Expect(Scroll::Thumb, 58, 1000);
    Expect(Scroll::Thumb, 0, -5);
  });
}

TEST_F(ScopeScrollTest, EveryOpeningBeginsAtTheTop) {
  Bars("C:\\long", [] { Expect(Scroll::Bottom, 58); });
  Bars("C:\\long", [] { EXPECT_TRUE(TextStands(TopDialog(), "指定フォルダ", 20, 160)); });
}

TEST_F(ScopeScrollTest, TheEndOfADragChangesNothing) {
  Bars("C:\\long", [] {
    Expect(Scroll::LineDown, 1);
    DrawingClear();
    ScrollBy(TopDialog(), Bar(), Scroll::End);
    EXPECT_TRUE(DrawnTexts(TopDialog()).empty());
    EXPECT_EQ(ScrollBarState(Bar()).position, 1);
  });
}

}  // namespace
