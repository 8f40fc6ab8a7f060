// The program, started without data files, and a user of its file tools.
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
#include "services/text.h"
#include "shell/tick.h"
#include "tests/support/program.h"

using Rows = std::vector<std::string>;

class FileToolsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    FileResult.FileStatus = 0;
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
    ProgramTest::TearDown();
  }

  static void ThenTicks(int count) {
    for (int i = 0; i < count; ++i) Then(MainTick);
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
