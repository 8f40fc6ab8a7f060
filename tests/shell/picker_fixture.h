// A drive C: with a small tree of files, and what a user does in a folder list.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/window.h"
#include "shell/folder_list.h"
#include "shell/shell.h"
#include "tests/shell/folders.h"
#include "tests/support/desktop.h"

using Rows = std::vector<std::string>;

class PickerFixture : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    CharWidth = 8;
    MakeFolder("C:\\start");
    MakeFolder("C:\\start\\sub");
    MakeFolder("C:\\start\\sub\\deep");
    // A folder and a file whose names hold a byte 0x5C that is no separator.
    MakeFolder("C:\\start\\\x95\x5C");
    PutFile("C:\\start\\\x95\x5C\\\x94\x5C.txt", "");
    for (const char* name : {"a.txt", "b.bmp", "c.CPP", "d.h", ".hidden.txt", "plain", "e.f.txt", "g.bup"}) {
      PutFile(std::string("C:\\start\\") + name, "");
    }
    PutFile("C:\\start\\sub\\inner.txt", "");
    PutFile("C:\\top.txt", "");
    GoTo("C:\\start");
  }

  static Rows Folders() { return ListRows(TopDialog(), kFolderListId); }

  // Double clicks the row with that text.
  static void OpenFolderRow(const std::string& text) {
    const Rows rows = Folders();
    const auto at = std::find(rows.begin(), rows.end(), text);
    ASSERT_NE(at, rows.end()) << text;
    DoubleClickRow(TopDialog(), kFolderListId, static_cast<int>(at - rows.begin()));
  }

  static bool UpIsEnabled() { return ControlIsEnabled(TopDialog(), kFolderUpId); }

  // The path that was drawn last.
  static std::string PathShown() {
    const std::vector<DrawCall> texts = DrawnTexts(TopDialog());
    return texts.empty() ? std::string() : texts.back().text;
  }

  // Where a control stands in the client area of the open dialog.
  static Rect PlaceOf(int id) {
    const Rect client = WindowRect(Control(TopDialog(), kFolderListId));
    const Rect rect = WindowRect(Control(TopDialog(), id));
    return {rect.left - client.left, rect.top - client.top, rect.right - client.left,
            rect.bottom - client.top};
  }

  static void Escape() { SendCommand(TopDialog(), 2); }
};
