// A scenario with a scene whose looks are set.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "resources/scenario_looks_ids.h"
#include "scenario/looks/snry_looks.h"
#include "scenario/storage/scenario.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "services/state.h"
#include "services/text.h"
#include "tests/support/program.h"

class LooksTest : public ProgramTest {
 protected:
  using Lines = std::vector<std::string>;

  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    StateReset(SnryMain);
    StateReset(SnryScene);
    Put(Scenario.mainFolder, "C:\\mirrell\\scenario");
    MakeFolder("C:\\mirrell\\scenario\\背景");
    MakeFolder("C:\\mirrell\\scenario\\サウンド");
    SnryMain.folderCount = 1;
    SnryMain.sceneCounts[0] = 1;
    UsePara(1, "鍵");
    UsePara(3, "扉");
  }
  void TearDown() override {
    EXPECT_EQ(Dialogs.hSnryDlg, nullptr);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::None);
    ProgramTest::TearDown();
  }

  template <std::size_t N>
  static void Put(char (&field)[N], const std::string& text) {
    TextCopy(field, N, text.c_str());
  }
  static void UsePara(int id, const std::string& name) {
    SnryMain.paras[id - 1].used = 1;
    Put(SnryMain.paras[id - 1].name, name);
    if (SnryMain.paraCount < id) SnryMain.paraCount = static_cast<std::uint16_t>(id);
  }

  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenChoose(int id, int row) {
    Then([id, row] { ChooseRow(TopDialog(), id, row); });
  }
  // Files come in the order of the folder, which is nobody's: they are found by name.
  static int RowOf(int id, const std::string& text) {
    const Lines rows = ListRows(TopDialog(), id);
    return static_cast<int>(std::find(rows.begin(), rows.end(), text) - rows.begin());
  }
  static void ThenChooseText(int id, const std::string& text) {
    Then([id, text] { ChooseRow(TopDialog(), id, RowOf(id, text)); });
  }
  static Lines Sorted(Lines rows) {
    std::sort(rows.begin(), rows.end());
    return rows;
  }
  static void ThenType(int id, const std::string& text) {
    Then([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  // A press that asks, and is answered.
  static void ThenAsked(int id, const char* text, const char* caption, BoxAnswer answer = BoxAnswer::Ok) {
    Then([=] {
      ExpectBox(text, caption, answer);
      Press(TopDialog(), id);
    });
  }
  static std::string Shown(int id) { return ControlText(TopDialog(), id); }
};
