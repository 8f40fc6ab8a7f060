// A desktop with a stage that routes the commands of the file tools, and with a
// tick that drives their stepped work.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_commands.h"
#include "filetools/divide/divide_commands.h"
#include "filetools/stepped_work.h"
#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/folder_list.h"
#include "services/program.h"
#include "services/random.h"
#include "services/screen_figures.h"
#include "services/text.h"
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
    EXPECT_EQ(Dialogs.DlgIdMenu, 0);
    EXPECT_EQ(Dialogs.DlgIdTool, 0);
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_FALSE(BackUpRun.BackUpActive);
    DesktopTest::TearDown();
    Program.hMainWnd = nullptr;
  }

  static bool Stage(const Event& event) {
    struct Route {
      int number;
      void (*command)();
    };
    static constexpr Route kRoutes[] = {
        {kCommandBackUp, BackUpCommand},
        {kCommandBackUpAdd, BackUpAddCommand},
        {kCommandBackUpFolder, BackUpFolderCommand},
        {kCommandBackUpLoad, BackUpLoadCommand},
        {kCommandBackUpSave, BackUpSaveCommand},
        {kCommandDivideMenu, DivideMenuCommand},
        {kCommandDivide, DivideCommand},
        {kCommandRestore, RestoreCommand},
        {kCommandDividePick, DividePickCommand},
        {kCommandDivideFolder, DivideFolderCommand},
        {kCommandDivideRun, DivideRunCommand},
        {kCommandRestorePick, RestorePickCommand},
        {kCommandRestoreFolder, RestoreFolderCommand},
    };
    if (event.kind != EventKind::Command) return false;
    for (const Route& route : kRoutes) {
      if (static_cast<std::uint32_t>(route.number) != event.command) continue;
      route.command();
      return true;
    }
    return false;
  }

  // One tick, as far as stepped work goes.
  static void StepTick() {
    if (BackUpRun.BackUpActive && BackUpRun.hBackUpDlg) SendCommand(BackUpRun.hBackUpDlg, 2375);
    if (Stepped.progressMode >= 1 && Stepped.progressMode <= 4 && Stepped.hSearchDlg)
      SendCommand(Stepped.hSearchDlg, 2376);
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
