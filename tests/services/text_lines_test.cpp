#include "services/text_lines.h"

#include <gtest/gtest.h>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/window.h"
#include "tests/support/desktop.h"

namespace {

class TextLinesTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    window = MainWindowCreate({"w", "w", 0, 0, 0, [](const Event&) { return true; }}, 0, 0, 500, 500);
    WindowShowFirst(window, 1);
  }

  // The lines that were drawn; each stands at x 7, 20 pixels below the one before,
  // the first at y 30, and the next line would stand at `next`.
  std::vector<std::string> Lines(const std::string& text, int columns, std::size_t bytes = 500) {
    DrawingClear();
    Canvas* canvas = CanvasGet(window);
    const int next = TextLinesDraw(canvas, 7, 30, 20, text.c_str(), bytes, columns);
    CanvasRelease(canvas);
    std::vector<std::string> lines;
    for (const DrawCall& call : DrawnTexts(window)) {
      EXPECT_EQ(call.x, 7);
      EXPECT_EQ(call.y, 30 + 20 * static_cast<int>(lines.size()));
      lines.push_back(call.text);
    }
    EXPECT_EQ(next, 30 + 20 * static_cast<int>(lines.size()));
    return lines;
  }

  WindowHandle window = nullptr;
};
using Texts = std::vector<std::string>;

TEST_F(TextLinesTest, AnEmptyTextHasNoLine) {
  EXPECT_EQ(Lines("", 10), Texts{});
}

TEST_F(TextLinesTest, TextIsCutAtTheColumns) {
  EXPECT_EQ(Lines("abcdefghij", 4), (Texts{"abcd", "efgh", "ij"}));
  EXPECT_EQ(Lines("abcdefgh", 4), (Texts{"abcd", "efgh"}));
  EXPECT_EQ(Lines("abc", 4), (Texts{"abc"}));
}

TEST_F(TextLinesTest, APairIsNotSplit) {
  EXPECT_EQ(Lines("aかきく", 4), (Texts{"aか", "きく"}));
  EXPECT_EQ(Lines("かきく", 5), (Texts{"かき", "く"}));
}

TEST_F(TextLinesTest, HalfWidthKatakanaIsOneColumn) {
  EXPECT_EQ(Lines("\xB6\xB7\xB8\xB9", 3), (Texts{"\xB6\xB7\xB8", "\xB9"}));
}

TEST_F(TextLinesTest, AtMostSoManyBytesAreTakenAndNoPairIsCut) {
  EXPECT_EQ(Lines("abcdefgh", 4, 6), (Texts{"abcd", "ef"}));
  EXPECT_EQ(Lines("かきく", 10, 5), (Texts{"かき"}));
}

TEST_F(TextLinesTest, AFirstByteWithoutItsSecondStaysALetterOfItsOwn) {
  EXPECT_EQ(Lines("ab\x83", 10), (Texts{"ab\x83"}));
}

TEST_F(TextLinesTest, TooFewColumnsStillTakeACharacterALine) {
  EXPECT_EQ(Lines("かき", 1), (Texts{"か", "き"}));
  EXPECT_EQ(Lines("かき", -3), (Texts{"か", "き"}));
}

}  // namespace
