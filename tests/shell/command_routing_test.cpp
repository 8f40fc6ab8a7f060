// Every numbered command has a route, and no other number has one; the panel's
// entries, carried out by the whole program.
#include <algorithm>
#include <set>

#include "mail_music/mail/mail.h"
#include "platform/file.h"
#include "platform/headless/resource_file.h"
#include "platform/window.h"
#include "resources/shell_ids.h"
#include "services/program.h"
#include "shell/panel.h"
#include "shell/shell_commands.h"
#include "tests/support/places.h"
#include "tests/support/program.h"

namespace {

#define COMMAND(number, name, shownName, handler) number,
const std::vector<std::uint32_t> kRouted = {
#include "services/command_table.inc"
};
#undef COMMAND

const std::vector<std::uint32_t> kNumbers = {
    // of the first data format; the program itself
    5, 6, 8, 9, 47, 50,
    // the panel's levels and entries
    1900, 1901, 1902, 1903, 1904, 1905, 1906, 1907, 1908, 1910, 1911, 1912, 1913, 1914, 1915, 1918, 1920,
    1921, 1922, 1923, 1924, 1926, 1927,
    // file tools
    2002, 2003, 2004, 2008, 2041, 2042, 2044, 2045, 2066, 2067, 2068, 2069, 2070, 2071, 2094, 2202,
    // schedule
    2017, 2019, 2020, 2021, 2022, 2023, 2024, 2025, 2026, 2027, 2028, 2035, 2039, 2040, 2085, 2086, 2087,
    2088, 2089, 2090, 2091, 2209, 2210, 2211, 2217, 2218, 2257, 2264, 2265, 2294, 2324, 2342, 2344, 2345,
    2366, 2367, 2368, 2369, 2370, 2371, 2372,
    // clock and calendar
    2106, 2107, 2108, 2254, 2276, 2277, 2278, 2279, 2330, 2336, 2337, 2339, 2379, 2381, 2382,
    // notices, walkers, options
    2079, 2198, 2199, 2203, 2208, 2281, 2282, 2283, 2293, 2374,
    // scenario world
    2117, 2272,
    // programs beside this one, and the first run
    2365, 2373, 2377};

TEST(CommandRoutingTest, EveryCommandNumberIsRouted) {
  for (const std::uint32_t number : kNumbers) {
    EXPECT_EQ(std::count(kRouted.begin(), kRouted.end(), number), 1) << number;
  }
}

TEST(CommandRoutingTest, NoOtherNumberIsRouted) {
  const std::set<std::uint32_t> known(kNumbers.begin(), kNumbers.end());
  EXPECT_EQ(known.size(), kNumbers.size());
  for (const std::uint32_t number : kRouted) EXPECT_TRUE(known.contains(number)) << number;
}

TEST(CommandRoutingTest, UnknownNumbersAreIgnored) {
  const std::set<std::uint32_t> known(kNumbers.begin(), kNumbers.end());
  for (std::uint32_t number = 0; number < 3000; ++number) {
    if (known.contains(number)) continue;
    EXPECT_FALSE(CommandRoute(number)) << number;
  }
  EXPECT_FALSE(CommandRoute(0xFFFFFFFF));
}

TEST(CommandRoutingTest, TheNumberCountsWholeAndNotItsLowSixteenBits) {
  for (const std::uint32_t number : kNumbers) EXPECT_FALSE(CommandRoute(number + 0x10000)) << number;
}

// --- Popup menus in the resources

struct MenuExpected {
  int menu;
  std::vector<std::pair<std::uint32_t, const char*>> entries;
};

TEST(PopupResourcesTest, EntriesHaveTheirTextsAndCommands) {
  const MenuExpected expected[] = {
      {2038,
       {{2209, "削除"},
        {2040, "挿入"},
        {2210, "コピー"},
        {2211, "貼り付け"},
        {2344, "マップ設定"},
        {2345, "ステータス設定"}}},
      {2280, {{2276, "設定変更"}, {2277, "書き込む"}, {2278, "実行スケジュール"}}},
      {2338, {{2330, "アラーム設定"}, {2339, "イベントの実行"}, {1911, "時計設定"}}},
  };
  ResourceSet set;
  ASSERT_EQ(ResourceLoad(kResourceFile, &set), nullptr);
  for (const MenuExpected& menu : expected) {
    ASSERT_TRUE(set.menus.contains(menu.menu));
    const std::vector<ResourceMenuItem>& items = set.menus.at(menu.menu).at(0).items;
    ASSERT_EQ(items.size(), menu.entries.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
      EXPECT_EQ(items[i].command, menu.entries[i].first);
      EXPECT_EQ(items[i].text, menu.entries[i].second);
    }
  }
}

// --- The panel of the running program

class PanelProgramTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    SetPointer(505, 305);
  }
  static void TouchStage() { Mouse(Program.hMainWnd, EventKind::MouseMove, 5, 5); }
  static void ClickRow(int row) { Mouse(TopDialog(), EventKind::LeftDown, 20, 15 + 20 * row, kLeftHeld); }
};

TEST_F(PanelProgramTest, TouchingTheStageOpensThePanelAndLeavingItAloneClosesIt) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspDiskMenu);
    Tick(39);
    EXPECT_NE(Panel.hDiskMenu, nullptr);
    Tick(1);
  });
  TouchStage();
  EXPECT_EQ(Panel.hDiskMenu, nullptr);
  EXPECT_EQ(Panel.MenuPanelState, 0);
}

TEST_F(PanelProgramTest, TheManualStartsAndThePanelCloses) {
  Then([] { ClickRow(3); });
  TouchStage();
  EXPECT_EQ(Panel.hDiskMenu, nullptr);
  EXPECT_EQ(Panel.MenuPanelState, 0);
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  const StartedProcess& manual = ProcessesStarted()[0];
  EXPECT_EQ(manual.commandLine, "使用手引.exe");
  EXPECT_EQ(manual.folder, "C:\\mirrell");
  EXPECT_EQ(manual.waited, 5000U);
  EXPECT_TRUE(manual.closed);
}

TEST_F(PanelProgramTest, WriterAndEditorStartFromTheApplicationsLevel) {
  const char* const programs[] = {"MOVEPLAY.exe", "REALM_EDITOR.exe"};
  for (int row = 0; row < 2; ++row) {
    Then([] { ClickRow(5); });
    Then([row] { ClickRow(row); });
    TouchStage();
    EXPECT_EQ(Panel.hDiskMenu, nullptr);
    EXPECT_EQ(Panel.MenuPanelState, 0);
    ASSERT_EQ(ProcessesStarted().size(), static_cast<std::size_t>(row + 1));
    EXPECT_EQ(ProcessesStarted()[static_cast<std::size_t>(row)].commandLine, programs[row]);
  }
}

// From outside too: the panel goes as from its own row, and another one can be opened.
TEST_F(PanelProgramTest, AProgramStartedFromOutsideClosesTheOpenPanel) {
  for (const std::uint32_t command : {1927U, 2365U, 2377U}) {
    Then([command] {
      ASSERT_NE(Panel.hDiskMenu, nullptr);
      SendCommand(Program.hMainWnd, command);
      EXPECT_EQ(Panel.hDiskMenu, nullptr) << command;
      EXPECT_EQ(Panel.MenuPanelState, 0) << command;
    });
    TouchStage();
    EXPECT_EQ(FindDialog(IDD_DspDiskMenu), nullptr) << command;
  }
  EXPECT_EQ(ProcessesStarted().size(), 3U);
}

TEST_F(PanelProgramTest, AProgramStartsInTheProgramFolderWhateverTheCurrentOne) {
  MakeFolder("C:\\elsewhere");
  ASSERT_TRUE(FolderSetCurrent("C:\\elsewhere"));
  SendCommand(Program.hMainWnd, 2377);
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  EXPECT_EQ(ProcessesStarted()[0].folder, "C:\\mirrell");
}

// What the tick asks for is no entry of the panel: a panel that stands open stays.
TEST_F(PanelProgramTest, WhatTheTickSendsLeavesThePanelOpen) {
  Mail.mailStopped = true;  // no server is asked
  for (const std::uint32_t command : {2079U, 2372U, 2265U, 2293U, 2336U}) {
    Then([command] {
      SendCommand(Program.hMainWnd, command);
      EXPECT_EQ(Panel.hDiskMenu, FindDialog(IDD_DspDiskMenu)) << command;
      EXPECT_NE(Panel.hDiskMenu, nullptr) << command;
      EXPECT_EQ(Panel.MenuPanelState, kPanelTop) << command;
      SendCommand(Panel.hDiskMenu, 2);
    });
    TouchStage();
  }
}

TEST_F(PanelProgramTest, EndingTheProgramIsAskedForAndCancelClearsTheState) {
  Then([] { ClickRow(7); });
  ExpectBox("プログラムを終了します。", "プログラム終了", BoxAnswer::Cancel,
            [] { EXPECT_EQ(Panel.hDiskMenu, nullptr) << "the panel has closed by then"; });
  TouchStage();
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_FALSE(QuitWasAsked());
  EXPECT_EQ(BoxesShown().at(0).buttons, BoxButtons::OkCancel);
}

TEST_F(PanelProgramTest, EndingTheProgramEndsIt) {
  Then([] { ClickRow(7); });
  ExpectBox("プログラムを終了します。", "プログラム終了", BoxAnswer::Ok);
  TouchStage();
  EXPECT_TRUE(QuitWasAsked());
}

TEST_F(PanelProgramTest, ThePanelOpensAgainAfterASubLevelWasCancelled) {
  for (int round = 0; round < 3; ++round) {
    Then([] { ClickRow(2); });
    Then([] { ClickRow(2); });
    TouchStage();
    EXPECT_EQ(Panel.MenuPanelState, 0);
  }
}

}  // namespace
