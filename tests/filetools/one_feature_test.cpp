#include <tuple>
// Commands from outside that would open the dialog of a feature over the one of
// another.
#include "resources/calendar_ids.h"
#include "resources/character_ids.h"
#include "resources/clock_ids.h"
#include "resources/filetools_ids.h"
#include "resources/mail_music_ids.h"
#include "resources/scenario_storage_ids.h"
#include "resources/schedule_applications_ids.h"
#include "resources/schedule_table_ids.h"
#include "resources/shell_ids.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "shell/panel.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

struct FeatureRow {
  std::uint32_t command;
  int templateId;
};
constexpr FeatureRow kFeatures[] = {
    {1900, IDD_FileOpnDialog},    {1901, IDD_FileBackUpSetDlg},  {1914, IDD_FolderScopeSetDlg},
    {1915, IDD_FileDivideSetDlg}, {1920, IDD_FileDesktopClrDlg}, {1922, IDD_DesktopIconSetDlg},
    {2008, IDD_FileOpnGrpSetDlg}, {2066, IDD_FileDivideSetDlg2}, {2067, IDD_FileDivideSetDlg3},
    {1912, IDD_MyAplicationDlg},  {2020, IDD_SclApliListDialog}, {2367, IDD_SclRegiApliListDialog},
    {1911, IDD_SelWatchDlg},      {2106, IDD_WatchListAddDlg},   {2107, IDD_WatchListDelDlg},
    {2108, IDD_WatchListChgDlg},  {2330, IDD_SetClockAlarmDlg},  {2339, IDD_SetClockEventDlg},
    {2281, IDD_OptionSelDlg1_2},  {2282, IDD_OptionSelDlg2},     {2283, IDD_OptionSelDlg3},
    {1910, IDD_ScheduleSelDlg2},  {2019, IDD_ScheduleSelDlg},    {1918, IDD_MailSettingMenuDlg},
    {1913, IDD_SelCalenderDlg},   {2276, IDD_SelCalenderDlg},    {1923, IDD_SnryMainLoad},
    {1924, IDD_SnryMainDelete},   {1926, IDD_NewSnryMainDlg},
};

class OneFeatureTest : public OpenFixture {
 protected:
  // Which feature tells, as it is left, that nothing was chosen.
  static void Leave(WindowHandle dialog) {
    if (TemplateOf(dialog) == IDD_SnryMainLoad)
      ExpectBox("シナリオフォルダーがありません。", "シナリオロードの中止");
    SendClose(dialog);
  }
};

using Marks = std::tuple<MenuDialog, ToolDialog, std::int32_t>;
Marks MarksNow() {
  return {Dialogs.DlgIdMenu, Dialogs.DlgIdTool, Panel.FuncNo};
}

TEST_F(OneFeatureTest, NoFeatureOpensOverAnother) {
  for (const FeatureRow& first : kFeatures) {
    Then([first] {
      const WindowHandle dialog = TopDialog();
      ASSERT_EQ(TemplateOf(dialog), first.templateId);
      const int windows = OpenWindowCount();
      const WindowHandle menu = Dialogs.hMenuDlg;
      const WindowHandle tool = Dialogs.hToolDlg;
      const Marks marks = MarksNow();
      for (const FeatureRow& second : kFeatures) {
        // FileOpnDialog has the groups as a button of its own.
        if (first.command == 1900 && second.command == 2008) continue;
        SendCommand(Program.hMainWnd, second.command);
        EXPECT_EQ(OpenWindowCount(), windows) << second.command << " over " << first.command;
        EXPECT_EQ(TopDialog(), dialog);
        EXPECT_EQ(Dialogs.hMenuDlg, menu);
        EXPECT_EQ(Dialogs.hToolDlg, tool);
        EXPECT_EQ(MarksNow(), marks);
      }
      Leave(dialog);
    });
    SendCommand(Program.hMainWnd, first.command);
    EXPECT_EQ(Panel.FuncNo, 0);
  }
}

TEST_F(OneFeatureTest, NoFeatureOpensOverAFileDialogOfTheSystem) {
  ExpectFileDialog("", [] {
    for (const FeatureRow& feature : kFeatures) {
      SendCommand(Program.hMainWnd, feature.command);
      EXPECT_EQ(TopDialog(), nullptr) << feature.command;
    }
  });
  char path[100] = "";
  FileDialogLoad(Program.hMainWnd, "", "", "*.*", "", path, sizeof path);
}

TEST_F(OneFeatureTest, EachFeatureOpensAgainWhenTheOtherHasClosed) {
  for (int round = 0; round < 2; ++round) {
    for (const FeatureRow& feature : kFeatures) {
      Then([feature] {
        EXPECT_EQ(TemplateOf(TopDialog()), feature.templateId);
        Leave(TopDialog());
      });
      SendCommand(Program.hMainWnd, feature.command);
    }
  }
}

}  // namespace
