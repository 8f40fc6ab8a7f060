// A drive C: with a small tree of files, and what a user does in a folder list.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/window.h"
#include "services/file_picker.h"
#include "services/folder_list.h"
#include "services/screen_figures.h"
#include "tests/services/folders.h"
#include "tests/support/desktop.h"

using Rows = std::vector<std::string>;

class PickerFixture : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    Screen.CharWidth = 8;
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

// A user of the file picker.
class FilePickerTest : public PickerFixture {
 protected:
  void TearDown() override {
    EXPECT_EQ(Picker.hFilePickDlg, nullptr);
    EXPECT_EQ(Picker.PickActive, 0);
    EXPECT_STREQ(Picker.PickStartFolder, "");
    EXPECT_STREQ(Picker.PickName, "");
    PickerFixture::TearDown();
  }

  static Rows Files() {
    Rows rows = ListRows(TopDialog(), kPickFilesId);
    std::sort(rows.begin(), rows.end());
    return rows;
  }
  static std::string Name() { return ControlText(TopDialog(), kPickNameId); }
  static void ChooseFile(const std::string& name, bool twice = false) {
    const Rows rows = ListRows(TopDialog(), kPickFilesId);
    const auto at = std::find(rows.begin(), rows.end(), name);
    ASSERT_NE(at, rows.end()) << name;
    (twice ? DoubleClickRow : ChooseRow)(TopDialog(), kPickFilesId, static_cast<int>(at - rows.begin()));
  }
  static void TypeName(const char* name) { Type(TopDialog(), kPickNameId, name); }
  static void PressOk() { Press(TopDialog(), 1); }
  static void PressCancel() { Press(TopDialog(), kFolderCancelId); }

  int Load(const char* filter = "*.*") { return PickFileForLoad(nullptr, filter, path); }
  int Save(const char* filter = "*.*") { return PickFileForSave(nullptr, filter, path); }
  void Propose(const char* text) { std::snprintf(path, sizeof path, "%s", text); }
  // Saves under a name that the user types.
  std::string SaveAs(const char* name, const char* filter) {
    Then([=] { TypeName(name); });
    Then(PressOk);
    EXPECT_EQ(Save(filter), 1);
    return path;
  }

  char path[kPickPathSize] = "";
};
