// A desktop with a stage that routes the commands of the file tools, and with a
// tick that drives their stepped work.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "filetools/back_up/back_up.h"
#include "filetools/stepped_work.h"
#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "resources/program_ids.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/file_picker.h"
#include "services/folder_list.h"
#include "services/program.h"
#include "services/random.h"
#include "services/screen_figures.h"
#include "services/text.h"
#include "shell/shell_commands.h"
#include "tests/support/desktop.h"

using Rows = std::vector<std::string>;

class FileToolsTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    Screen.CharWidth = 8;
    FileResult.FileStatus = 0;
    Stepped.stepCounter = 0;
    Stepped.progressMode = 0;
    Program.hMainWnd =
        MainWindowCreate({"stage", "stage", IDI_MAIN, IDI_SMALL, IDR_MAIN, Stage}, 0, 0, 120, 160);
    ASSERT_NE(Program.hMainWnd, nullptr);
  }

  void TearDown() override {
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
    EXPECT_EQ(Dialogs.hToolDlg, nullptr);
    EXPECT_EQ(BackUpRun.hBackUpDlg, nullptr);
    EXPECT_EQ(Stepped.hSearchDlg, nullptr);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_FALSE(BackUpRun.BackUpActive);
    DesktopTest::TearDown();
    Program.hMainWnd = nullptr;
  }

  static bool Stage(const Event& event) {
    return event.kind == EventKind::Command && CommandRoute(event.command);
  }

  // One tick, as far as stepped work goes.
  static void StepTick() {
    if (BackUpRun.BackUpActive && BackUpRun.hBackUpDlg)
      CommandSendTo(BackUpRun.hBackUpDlg, Command::BackUpStep);
    if (Stepped.progressMode >= 1 && Stepped.progressMode <= 4 && Stepped.hSearchDlg)
      CommandSendTo(Stepped.hSearchDlg, Command::WorkStep);
  }
  static void ThenTicks(int count) {
    for (int i = 0; i < count; ++i) Then(StepTick);
  }

  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  // In the picker that is up then: types the name and presses OK, or cancels.
  static void ThenPick(const std::string& name) {
    Then([name] {
      Type(TopDialog(), kPickNameId, name.c_str());
      Press(TopDialog(), 1);
    });
  }
  static void ThenCancelPicker() { ThenPress(kFolderCancelId); }
  // In the folder list that is up then: opens that row, then presses OK.
  static void ThenPickFolder(const std::string& row) {
    Then([row] {
      const Rows rows = ListRows(TopDialog(), kFolderListId);
      for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] == row) DoubleClickRow(TopDialog(), kFolderListId, static_cast<int>(i));
      }
      Press(TopDialog(), 1);
    });
  }

  static void Set(char* field, std::size_t size, const std::string& text) {
    TextCopy(field, size, text.c_str());
  }
};
