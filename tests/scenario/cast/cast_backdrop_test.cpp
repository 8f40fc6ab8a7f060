// SnryCharBackDlg: what stands behind the cast; and how a background gets into the folder.
#include "scenario/cast/cast_backdrop.h"

#include <algorithm>
#include <cstring>

#include "platform/diagnostics.h"
#include "platform/file.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "resources/scenario_cast_ids.h"
#include "scenario/cast/scenario_files.h"
#include "scenario/cast/snry_cast.h"
#include "services/text.h"
#include "tests/scenario/scenario_world.h"
#include "tests/support/bitmaps.h"

namespace {

int scrolled = 0;
void Scroll(WindowHandle) {
  ++scrolled;
}

class CastBackdropTest : public ScenarioWorldTest {
 protected:
  void SetUp() override {
    ScenarioWorldTest::SetUp();
    scrolled = 0;
    PutBack("空.bmp", 40, 30);
  }
  static void PutBack(const std::string& name, int width, int height) {
    const std::vector<int> pixels(static_cast<std::size_t>(width) * height * 3, 50);
    ASSERT_TRUE(PutFile("C:\\work\\背景\\" + name, BitmapOf(width, height, pixels)));
  }
  template <std::size_t N>
  static void Set(char (&field)[N], const char* text) {
    TextCopy(field, N, text);
  }
  static void Run() { SnryCharBackDlgRun(Program.hMainWnd, Scroll); }
  // Row of a file in the list, whatever the order of the search is.
  static int RowOf(const std::string& name) {
    const Rows rows = RowsIn(IDC_CAST_LIST);
    return static_cast<int>(std::find(rows.begin(), rows.end(), name) - rows.begin());
  }
  static std::vector<DrawCall> Painted() {
    DrawingClear();
    SendPaint(TopDialog());
    return Drawings(TopDialog());
  }
  static int Count(const std::vector<DrawCall>& calls, DrawCall::Kind kind) {
    return static_cast<int>(std::count_if(calls.begin(), calls.end(),
                                          [kind](const DrawCall& call) { return call.kind == kind; }));
  }
};

TEST(ScenarioFiles, OnlyThreeLettersInSmallAreTheExtension) {
  for (const char* name : {"a.bmp", "空.bmp", "a.b.bmp", "a.wav.bmp"})
    EXPECT_TRUE(ScenarioFileFits(name, 32, "bmp")) << name;
  for (const char* name :
       {"a.BMP", "a.Bmp", "abmp", "a.bmpx", "a.bm", ".bmp", "..", ".", "", "a.bmp.txt", "a."})
    EXPECT_FALSE(ScenarioFileFits(name, 32, "bmp")) << name;
  EXPECT_FALSE(ScenarioFileFits("a.bmp", kAttributeFolder, "bmp"));
  EXPECT_TRUE(ScenarioFileFits("a.wav", 32, "wav"));
}

TEST_F(CastBackdropTest, TheListHasNotSetAndTheBitmapsOfTheFolder) {
  PutBack("庭.bmp", 1, 1);
  PutBack("大.BMP", 1, 1);
  ASSERT_TRUE(PutFile("C:\\work\\背景\\メモ.txt", "x"));
  ASSERT_TRUE(PutFile("C:\\work\\背景\\.x.bmp", "x"));
  MakeFolder("C:\\work\\背景\\中.bmp");
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryCharBackDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::SnryCharBackDlg);
    Rows rows = RowsIn(IDC_CAST_LIST);
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(rows[0], "未設定");
    std::sort(rows.begin() + 1, rows.end());
    EXPECT_EQ(rows, (Rows{"未設定", "空.bmp", "庭.bmp"}));
    EXPECT_EQ(TextIn(IDC_CAST_BACK), "未設定");
    EXPECT_EQ(TextIn(IDC_CAST_DOOR), "未設定");
    EXPECT_EQ(TextIn(IDC_CAST_WINDOW), "未設定");
    EXPECT_EQ(RowsIn(IDC_CAST_DOOR_MODE), (Rows{"ドア中開き", "ドア左右開き"}));
    EXPECT_EQ(RowsIn(IDC_CAST_WINDOW_MODE), (Rows{"窓中開き", "窓左右開き", "窓上下開き"}));
  });
  ThenPress(2);
  Run();
}

TEST_F(CastBackdropTest, ABackgroundNameThatNoLongerExistsIsClearedWhenTheDialogOpens) {
  Set(SnryScene.backdrop.background, "消えた.bmp");
  Set(SnryScene.backdrop.door, "空.bmp");
  Set(SnryScene.backdrop.window, "..\\空.bmp");
  Then([] {
    EXPECT_EQ(TextIn(IDC_CAST_BACK), "未設定");
    EXPECT_EQ(TextIn(IDC_CAST_DOOR), "空.bmp");
    EXPECT_EQ(TextIn(IDC_CAST_WINDOW), "未設定");
  });
  ThenPress(2);
  Run();
  EXPECT_STREQ(SnryScene.backdrop.background, "");
  EXPECT_STREQ(SnryScene.backdrop.door, "空.bmp");
  EXPECT_STREQ(SnryScene.backdrop.window, "");
}

TEST_F(CastBackdropTest, NamesModesAndColourAreStoredWithTheEnd) {
  PutBack("扉.bmp", 10, 10);
  PutBack("窓.bmp", 10, 10);
  Then([] {
    const WindowHandle dialog = TopDialog();
    ChooseRow(dialog, IDC_CAST_LIST, RowOf("空.bmp"));
    Press(dialog, IDC_CAST_BACK_TAKE);
    ChooseRow(dialog, IDC_CAST_LIST, RowOf("扉.bmp"));
    Press(dialog, IDC_CAST_DOOR_TAKE);
    ChooseRow(dialog, IDC_CAST_LIST, RowOf("窓.bmp"));
    Press(dialog, IDC_CAST_WINDOW_TAKE);
    EXPECT_EQ(TextIn(IDC_CAST_BACK), "空.bmp");
    EXPECT_EQ(TextIn(IDC_CAST_DOOR), "扉.bmp");
    EXPECT_EQ(TextIn(IDC_CAST_WINDOW), "窓.bmp");
    ChooseRow(dialog, IDC_CAST_DOOR_MODE, 1);
    ChooseRow(dialog, IDC_CAST_WINDOW_MODE, 2);
    Type(dialog, IDC_CAST_RED, "12");
    Type(dialog, IDC_CAST_GREEN, "255");
    Type(dialog, IDC_CAST_BLUE, "999");
    Press(dialog, 1);
  });
  Run();
  const SnryBackdropRec& backdrop = SnryScene.backdrop;
  EXPECT_STREQ(backdrop.background, "空.bmp");
  EXPECT_STREQ(backdrop.door, "扉.bmp");
  EXPECT_STREQ(backdrop.window, "窓.bmp");
  EXPECT_EQ(backdrop.doorMode, 1);
  EXPECT_EQ(backdrop.windowMode, 2);
  EXPECT_EQ(SnrySceneNow().fallback[0], 12);
  EXPECT_EQ(SnrySceneNow().fallback[1], 255);
  EXPECT_EQ(SnrySceneNow().fallback[2], 255);
  EXPECT_TRUE(Scenario.changed);
  EXPECT_EQ(scrolled, 0);
}

TEST_F(CastBackdropTest, ACancelStoresNothing) {
  for (void (*leave)(WindowHandle) : {PressEscape, PressClose}) {
    Then([leave] {
      ChooseRow(TopDialog(), IDC_CAST_LIST, 1);
      Press(TopDialog(), IDC_CAST_BACK_TAKE);
      Type(TopDialog(), IDC_CAST_RED, "9");
      leave(TopDialog());
    });
    Run();
  }
  EXPECT_STREQ(SnryScene.backdrop.background, "");
  EXPECT_EQ(SnrySceneNow().fallback[0], 0);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastBackdropTest, TheFirstRowTakesTheNameAwayAndNoRowLeavesIt) {
  Set(SnryScene.backdrop.background, "空.bmp");
  Then([] {
    Press(TopDialog(), IDC_CAST_BACK_TAKE);  // no row
    EXPECT_EQ(TextIn(IDC_CAST_BACK), "空.bmp");
    ChooseRow(TopDialog(), IDC_CAST_LIST, 0);
    Press(TopDialog(), IDC_CAST_BACK_TAKE);
    EXPECT_EQ(TextIn(IDC_CAST_BACK), "未設定");
    EXPECT_EQ(Count(Painted(), DrawCall::Kind::Dib), 0);
  });
  ThenPress(1);
  Run();
  EXPECT_STREQ(SnryScene.backdrop.background, "");
}

TEST_F(CastBackdropTest, AnImageThatFitsIsShownAtItsSizeAndALargerOneIsScaled) {
  Set(SnryScene.backdrop.background, "空.bmp");
  PutBack("高.bmp", 100, 580);
  Then([] {
    std::vector<DrawCall> calls = Painted();
    EXPECT_EQ(Count(calls, DrawCall::Kind::Dib), 1);
    EXPECT_EQ(Count(calls, DrawCall::Kind::Stretch), 0);
    EXPECT_TRUE(DrawnTexts(TopDialog()).empty());
    ChooseRow(TopDialog(), IDC_CAST_LIST, RowOf("高.bmp"));
    DrawingClear();
    Press(TopDialog(), IDC_CAST_BACK_TAKE);  // shows it at once
    calls = Drawings(TopDialog());
    ASSERT_EQ(Count(calls, DrawCall::Kind::Stretch), 1);
    const auto stretch = std::find_if(calls.begin(), calls.end(), [](const DrawCall& call) {
      return call.kind == DrawCall::Kind::Stretch;
    });
    // 290 lines of 580 are the half.
    EXPECT_EQ(stretch->x2 - stretch->x, 50);
    EXPECT_EQ(stretch->y2 - stretch->y, 290);
    ASSERT_EQ(DrawnTexts(TopDialog()).size(), 1U);
    EXPECT_EQ(DrawnTexts(TopDialog())[0].text, "× 0.500000 縮尺");
  });
  ThenPress(2);
  Run();
}

TEST_F(CastBackdropTest, WithoutAnImageARectangleInTheFallbackColourIsShown) {
  SnrySceneNow().fallback[0] = 10;
  SnrySceneNow().fallback[1] = 20;
  SnrySceneNow().fallback[2] = 30;
  Then([] {
    const auto has = [](Colour colour) {
      const std::vector<DrawCall> calls = Painted();
      return std::any_of(calls.begin(), calls.end(), [colour](const DrawCall& call) {
        return call.kind == DrawCall::Kind::Rectangle && call.filled && call.brush == colour;
      });
    };
    EXPECT_EQ(TextIn(IDC_CAST_RED), "10");
    EXPECT_TRUE(has(MakeColour(10, 20, 30)));
    Type(TopDialog(), IDC_CAST_RED, "200");
    EXPECT_TRUE(has(MakeColour(200, 20, 30)));
  });
  ThenPress(2);
  Run();
}

TEST_F(CastBackdropTest, TheScrollSettingsStoreTooAndTheDialogOpensAgain) {
  Then([] {
    ChooseRow(TopDialog(), IDC_CAST_LIST, 1);
    Press(TopDialog(), IDC_CAST_BACK_TAKE);
    Press(TopDialog(), IDC_CAST_SCROLL);
  });
  Then([] {
    EXPECT_EQ(scrolled, 1);
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryCharBackDlg);
    EXPECT_EQ(TextIn(IDC_CAST_BACK), "空.bmp");
    EXPECT_STREQ(SnryScene.backdrop.background, "空.bmp");
    EXPECT_TRUE(Scenario.changed);
  });
  ThenPress(2);
  Run();
  EXPECT_EQ(scrolled, 1);
}

TEST_F(CastBackdropTest, WithoutTheFolderTheListHasNotSetAlone) {
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, "C:\\none");
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows{"未設定"}); });
  ThenPress(2);
  Run();
}

// --- "背景を追加"

TEST_F(CastBackdropTest, ABitmapIsCopiedIntoTheFolder) {
  MakeFolder("C:\\絵");
  ASSERT_TRUE(PutFile("C:\\絵\\丘.bmp", "hill"));
  ExpectFileDialog("C:\\絵\\丘.bmp");
  SnryBackgroundAdd(Program.hMainWnd);
  EXPECT_EQ(FileBytes("C:\\work\\背景\\丘.bmp"), "hill");
  ASSERT_EQ(FileDialogsShown().size(), 1U);
  EXPECT_EQ(FileDialogsShown()[0].filterText, "BitMap Files (*.BMP)");
  EXPECT_FALSE(FileDialogsShown()[0].save);
}

TEST_F(CastBackdropTest, AFileOfTheSameNameIsAskedAbout) {
  MakeFolder("C:\\絵");
  ASSERT_TRUE(PutFile("C:\\絵\\空.bmp", "new"));
  const std::string before = FileBytes("C:\\work\\背景\\空.bmp");
  ExpectFileDialog("C:\\絵\\空.bmp");
  ExpectBox("同じ名前のファイルがあります。コピーしますか?", "背景ファイルコピーの確認", BoxAnswer::Cancel);
  SnryBackgroundAdd(Program.hMainWnd);
  EXPECT_EQ(FileBytes("C:\\work\\背景\\空.bmp"), before);
  ExpectFileDialog("C:\\絵\\空.bmp");
  ExpectBox("同じ名前のファイルがあります。コピーしますか?", "背景ファイルコピーの確認");
  SnryBackgroundAdd(Program.hMainWnd);
  EXPECT_EQ(FileBytes("C:\\work\\背景\\空.bmp"), "new");
}

TEST_F(CastBackdropTest, AFileThatCannotBeCopiedIsTold) {
  ExpectFileDialog("C:\\絵\\無い.bmp");
  ExpectBox("ファイルをコピーできません", "ファイルバックアップエラー");
  SnryBackgroundAdd(Program.hMainWnd);
  EXPECT_EQ(BoxesLeft(), 0);
  ExpectFileDialog("");
  SnryBackgroundAdd(Program.hMainWnd);
  EXPECT_EQ(DialogsExpected(), 0);
}

}  // namespace
