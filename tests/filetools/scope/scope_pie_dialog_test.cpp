// FolderStaticsDlg: the drive and the chosen folder as pies.
#include "filetools/scope/folder_scope.h"
#include "platform/posix/faults.h"
#include "tests/filetools/scope/scope_dialog_fixture.h"

namespace {

constexpr Colour kRed = 0x0000E6;
constexpr Colour kBlue = 0xFF0000;

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
    ExpectLine(lines[6], 480, 398, 590);
    ExpectLine(lines[7], 444, 285, 360);
    ExpectTexts({{"1", 272, 246},
                 {"2", 272, 210},
                 {"3", 272, 331},
                 {"4", 272, 366},
                 {"5", 22, 394},
                 {"6", 22, 210},
                 {"1", 592, 394},
                 {"2", 342, 281},
                 {"3", 342, 196}});
  });
}

TEST_F(FolderScopeDialogTest, OfADriveRootThereIsNoRightPieAndNoFirstLevelRow) {
  MakeTree();
  Pies("C:\\", [] {
    EXPECT_STREQ(Scope.folderName, "");
    EXPECT_EQ(Scope.firstLevelIndex, -1);
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
  // 23 columns on the left, 28 on the right; the lines' heads take 8 and 7 of them, and
  // a character of two columns is whole or not there.
  MakeFolder("C:\\data\\春夏秋冬東西南北上下");
  MakeSized("C:\\data\\春夏秋冬東西南北上下\\一二三四五六七八九十百千", 4096);
  Pies("C:\\data\\春夏秋冬東西南北上下", [] {
    int seen = 0;
    for (const DrawCall& text : DrawnTexts(TopDialog())) {
      if (text.text.starts_with("2.C:\\..\\春夏")) {
        EXPECT_EQ(text.clip.right, 40 + (8 + 7 * 2) * 8);
        ++seen;
      } else if (text.text.starts_with("1.( 1) 一二")) {
        EXPECT_EQ(text.clip.right, 360 + (7 + 10 * 2) * 8);
        ++seen;
      }
    }
    EXPECT_EQ(seen, 2);
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

}  // namespace
