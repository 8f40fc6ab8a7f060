// The whole program with empty open tables, and a user for its open dialogs.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "filetools/open/group_open.h"
#include "filetools/open/open_choice.h"
#include "filetools/open/open_commands.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_groups.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_launch.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_record.h"
#include "filetools/open/open_search.h"
#include "filetools/open/open_selection.h"
#include "filetools/open/open_walk.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/file_picker.h"
#include "services/folder_list.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/panel.h"
#include "shell/tick.h"
#include "tests/support/program.h"

using Rows = std::vector<std::string>;

constexpr int kOk = 1;
constexpr int kCancel = 2;

class OpenFixture : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    OpnHisReset();
    StartProgram();
    SetPointer(0, 0);
  }
  void TearDown() override {
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
    EXPECT_EQ(Dialogs.hToolDlg, nullptr);
    EXPECT_EQ(Dialogs.hSubDlg, nullptr);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::None);
    EXPECT_EQ(Panel.FuncNo, 0);
    EXPECT_EQ(Panel.MenuPanelState, 0);
    ProgramTest::TearDown();
  }

  static std::string HistoryPath() { return InProgram("OpnFileHis.lis"); }
  static std::string GroupPath() { return InProgram("OpnGrpFile.lis"); }

  // --- Tables

  static void AddHistory(const std::string& name, const std::string& folder, const std::string& program = "",
                         const std::string& programFolder = "") {
    const int row = OpnHistory.fileCount++;
    OpnTextSet(OpnHistory.fileName[row], name.c_str());
    OpnTextSet(OpnHistory.filePath[row], folder.c_str());
    OpnTextSet(OpnHistory.progName[row], program.c_str());
    OpnTextSet(OpnHistory.progPath[row], programFolder.c_str());
    OpnHistory.workCount = OpnHistory.fileCount;
  }
  // name0.txt, name1.txt ... of "C:\data\".
  static void AddHistories(int count) {
    for (int i = 0; i < count; ++i) AddHistory("name" + std::to_string(i) + ".txt", "C:\\data\\");
  }
  static void SaveHistory() { ASSERT_EQ(OpnHisSave(), 0); }

  static void Select(const std::string& name, const std::string& folder, const std::string& program = "",
                     const std::string& programFolder = "") {
    OpnSelectionSet(name.c_str(), folder.c_str(), program.c_str(), programFolder.c_str());
  }
  static void AddToGroup(int group, const std::string& name, const std::string& folder = "C:\\data\\",
                         const std::string& program = "", const std::string& programFolder = "") {
    const OpnSelectionRec kept = OpnSelection;
    Select(name, folder, program, programFolder);
    EXPECT_EQ(OpnGroupAddFile(group), 0);
    OpnSelection = kept;
  }
  static void SaveGroups() { ASSERT_EQ(OpnGroupSave(), 0); }
  // The group's files as "name [folder]", then " name" of the program if there is one.
  static Rows GroupFiles(int group) {
    Rows rows;
    const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
    for (int row = 0; row < g.fileCount; ++row) {
      const std::string program = g.progName[row];
      rows.push_back(std::string(g.fileName[row]) + " [" + g.filePath[row] + "]" +
                     (program.empty() ? "" : " " + program));
    }
    return rows;
  }
  static Rows HistoryFiles() {
    Rows rows;
    for (int row = 0; row < OpnHistory.fileCount; ++row) rows.emplace_back(OpnHistory.fileName[row]);
    return rows;
  }
  static Rows Started() {
    Rows lines;
    for (const StartedProcess& process : ProcessesStarted()) lines.push_back(process.commandLine);
    return lines;
  }

  // --- A character that walks: one step, then an end picture of two ticks.
  static void PutWalker() {
    CharaTables.WalkCharaCount = 1;
    CharaTables.WalkCharas[0].number = 10;
    Character.CharaSet.WalkRow[0] = 1;
    Character.CharaSet.WalkPeriod[0] = 1;
    Character.CharaSet.WalkCount[0] = 1;
    Character.CharaSet.WalkFrames[0][0] = 1;
    Character.CharaSet.EndFrames[0][0] = 1;
    Character.CharaSet.EndWait[0] = 2;
  }
  // Lets the walk of PutWalker go through: the tick that opens its window, and three
  // inside of its windows' loops.
  static void WalkThrough() {
    for (int i = 0; i < 3; ++i) Then([] { Ticks(1); });
    Ticks(1);
  }

  // --- The user

  // Runs FileOpnDialog with the steps that were scripted.
  static void OpenDialog() { CommandSend(Command::FileOpen); }
  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenChoose(int id, int row) {
    Then([id, row] { ChooseRow(TopDialog(), id, row); });
  }
  static void ThenType(int id, const std::string& text) {
    Then([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  static void ThenExpect(std::function<void()> check) { Then(std::move(check)); }
  // In the picker that is up then: types the path and presses OK.
  static void ThenPick(const std::string& name) {
    Then([name] {
      Type(TopDialog(), kPickNameId, name.c_str());
      Press(TopDialog(), kOk);
    });
  }
  static Rows RowsOf(int id) { return ListRows(TopDialog(), id); }
  static int ChosenOf(int id) { return ListSelected(TopDialog(), id); }
};

// A user who works through FileOpnDialog.
class OpenDialogTest : public OpenFixture {
 protected:
  void SetUp() override {
    OpenFixture::SetUp();
    MakeFolder("C:\\data");
  }
  // Presses the button that leads to a dialog, lets `steps` script that one, and
  // cancels FileOpnDialog.
  static void In(int button, const std::function<void()>& steps) {
    ThenPress(button);
    steps();
    ThenPress(kCancel);
    OpenDialog();
  }
};
