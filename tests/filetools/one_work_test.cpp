// The tick drives one work at a time: a division that is asked for while the search of
// the folder scope is running.
#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_dialogs.h"
#include "filetools/stepped_work.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/drawing_objects.h"
#include "services/program.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

class OneWorkTest : public DivideFixture {
 protected:
  // Runs a step while a folder search is up, then lets the user stop the search.
  static void DuringASearch(std::function<void()> step) {
    Set(Scope.scopeFolder, sizeof Scope.scopeFolder, "C:\\mirrell");
    ScopeSplitPath();
    Then([step] {
      const WindowHandle search = TopDialog();
      ASSERT_EQ(TemplateOf(search), IDD_SerchFolderDlg);
      step();
      EXPECT_EQ(TopDialog(), search);
      EXPECT_EQ(Stepped.hSearchDlg, search);
      EXPECT_EQ(Stepped.progressMode, 2);
      EXPECT_EQ(Stepped.stepCounter, 0);
      Press(search, 2);
    });
    EXPECT_EQ(ScopeSearchRun(Program.hMainWnd, kStepFolderSearch), -1);
  }
};

TEST_F(OneWorkTest, TheProgressOfADivisionDoesNotTakeTheTickFromASearch) {
  const int files = DiagnosticsLive().files;
  for (auto* run : {FileDivExeDlgRun, FileUnDivExeDlgRun}) {
    DuringASearch([run, files] {
      Prepare(Simple(10, 2));
      SteppedNext(1);
      ASSERT_EQ(FileDivideStep(), 0);
      run(Program.hMainWnd);
      EXPECT_EQ(DiagnosticsLive().files, files) << "the run is over, its files closed";
    });
  }
}

TEST_F(OneWorkTest, TheRunCommandTouchesNoFileWhileASearchIsRunning) {
  Prepare(Simple(10, 2));
  Then([] {
    DuringASearch([] { CommandSend(Command::DivideRun); });
    Press(FindDialog(IDD_FileDivideSetDlg2), 2);
  });
  CommandSend(Command::Divide);
  EXPECT_EQ(FolderNames(kPieces), Rows());
}

}  // namespace
