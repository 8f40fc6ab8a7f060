// A user of the folder scope's dialogs, who looks at the charts of a small drive.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "filetools/scope/scope_dialogs.h"
#include "tests/filetools/scope/scope_fixture.h"

using Names = std::vector<std::string>;

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
