// FolderStaticsDlg2: the entries of a folder as bars, and their scrolling.
#include "filetools/scope/folder_scope.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "tests/filetools/scope/scope_dialog_fixture.h"

namespace {

constexpr Colour kRed = 0x0000E6;
constexpr Colour kBlue = 0xFF0000;

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
  ASSERT_GT(Scope.scopeDriveCount, 0);
  Bars("C:\\data\\photos", [] {
    EXPECT_EQ(Scope.scopeDriveCount, 0);
    EXPECT_EQ(Scope.folderPie.count, 0);
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
