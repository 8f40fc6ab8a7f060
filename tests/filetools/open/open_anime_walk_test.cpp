// SetOpnFileAnimeDlg and the walk of a file that is being opened: what its close cuts
// short is still opened.
#include "character/character.h"
#include "character/walk.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/program.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

class OpenAnimeWalkTest : public OpenFixture {
 protected:
  void SetUp() override {
    OpenFixture::SetUp();
    AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\tools\\");
    OpnHistory.soundOn = 0;
    SaveHistory();
    OpnProgList.built = false;
  }

  // Asks from outside for the first file, and closes the dialog after as many ticks.
  static void CloseAfter(int ticks, int button) {
    ThenPress(IDC_OPN_ANIMATION);
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetOpnFileAnimeDlg);
      ASSERT_TRUE(OpnSelectionFill(0, 1));
      CommandSend(Command::OpenWalk);
      EXPECT_EQ(Walk.OpeningState, 1);
      EXPECT_TRUE(Walk.WalkActive);
      EXPECT_EQ(Started(), Rows{});
    });
    for (int i = 0; i < ticks; ++i) Then([] { Ticks(1); });
    ThenExpect([button] { Press(FindDialog(IDD_SetOpnFileAnimeDlg), button); });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnDialog);
      EXPECT_EQ(Walk.OpeningState, 0);
      EXPECT_FALSE(Walk.WalkActive);
      EXPECT_FALSE(Walk.WalkEndActive);
      EXPECT_EQ(Started(), Rows{"C:\\tools\\edit.exe \"C:\\data\\a.txt\""});
      EXPECT_EQ(OpnRecord.recCount, 1);
    });
    ThenPress(kCancel);
    OpenDialog();
  }
};

TEST_F(OpenAnimeWalkTest, AFileWhoseWalkHasNotBegunIsOpenedAtTheClose) {
  PutWalker();
  CloseAfter(0, kCancel);
}

TEST_F(OpenAnimeWalkTest, AFileWhoseWalkIsUnderWayIsOpenedAtTheClose) {
  PutWalker();
  CloseAfter(1, kCancel);
}

TEST_F(OpenAnimeWalkTest, AFileWhoseEndPictureStandsIsOpenedAtTheCloseAndOnlyOnce) {
  PutWalker();
  Character.CharaSet.EndWait[0] = 50;
  CloseAfter(2, kOk);
}

}  // namespace
