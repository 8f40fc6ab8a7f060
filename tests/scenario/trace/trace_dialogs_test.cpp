#include "scenario/trace/trace_dialogs.h"

#include "platform/headless/headless.h"
#include "resources/scenario_trace_ids.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "tests/scenario/trace/trace_fixture.h"

namespace {

class TraceDialogsTest : public TraceTest {
 protected:
  void SetUp() override {
    TraceTest::SetUp();
    UsePara(1, "鍵", 3);
    UsePara(3, "扉", 5);
    AddFolder("序章").start = {3, 12};
  }
  static void Run() { CheckParameterDlgRun(Program.hMainWnd); }
  static Lines Listed() { return ListRows(TopDialog(), IDC_TRACE_LINES); }
  static void ThenChoose(int row) {
    Then([row] { ChooseRow(TopDialog(), IDC_TRACE_PARAMETERS, row); });
  }
  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
};

TEST_F(TraceDialogsTest, TheParametersAreListedAndNothingIsChosen) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_CheckParameterDlg);
    EXPECT_EQ(WindowText(TopDialog()), "確認するパラメータの指定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::CheckParameterDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_TRACE_PARAMETERS), (Lines{"1. 鍵", "2. 扉"}));
  });
  // Without a choice both buttons do nothing.
  ThenPress(IDC_TRACE_CHANGES);
  ThenPress(IDC_TRACE_PROGRESS);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_CheckParameterDlg);
    PressEscape(TopDialog());
  });
  Run();
  EXPECT_EQ(Dialogs.hToolDlg, nullptr);
}

TEST_F(TraceDialogsTest, TheChangesAreListedWhenTheDialogOpens) {
  ThenChoose(1);
  ThenPress(IDC_TRACE_CHANGES);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_CheckParameterDlg2);
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::CheckParameterDlg2);
    EXPECT_EQ(WindowText(TopDialog()), "パラメータを確認");
    EXPECT_EQ(ControlText(TopDialog(), IDC_TRACE_NAME), "扉");
    EXPECT_EQ(Listed(), (Lines{"   > 初期値  --> 値 = 5 ", "[シナリオ-1] > 起動条件 --> 値 = 12 (序章)"}));
    PressEnter(TopDialog());
  });
  ThenPress(2);
  Run();
}

TEST_F(TraceDialogsTest, PressingTheStartTwiceListsEverythingTwice) {
  ThenChoose(1);
  ThenPress(IDC_TRACE_PROGRESS);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_CheckParameterDlg3);
    EXPECT_EQ(ControlText(TopDialog(), IDC_TRACE_NAME), "扉");
    EXPECT_EQ(Listed(), Lines());
    Type(TopDialog(), IDC_TRACE_VALUE, "12");
    Press(TopDialog(), IDC_TRACE_START);
    EXPECT_EQ(Listed(), (Lines{"> [シナリオ-1] が 起動 (序章)"}));
    PressEnter(TopDialog());
    EXPECT_EQ(Listed(), (Lines{"> [シナリオ-1] が 起動 (序章)", "> [シナリオ-1] が 起動 (序章)"}));
    PressClose(TopDialog());
  });
  ThenPress(2);
  Run();
}

TEST_F(TraceDialogsTest, OnlyFiveCharactersOfTheValueCount) {
  ThenChoose(1);
  ThenPress(IDC_TRACE_PROGRESS);
  Then([] {
    Type(TopDialog(), IDC_TRACE_VALUE, "000129");  // 00012
    Press(TopDialog(), IDC_TRACE_START);
    EXPECT_EQ(Listed().size(), 1u);
    Type(TopDialog(), IDC_TRACE_VALUE, "0000129");  // 00001
    Press(TopDialog(), IDC_TRACE_START);
    EXPECT_EQ(Listed().size(), 1u);
    PressEscape(TopDialog());
  });
  ThenPress(2);
  Run();
}

}  // namespace
