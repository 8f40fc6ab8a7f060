// SetOpnFileAnimeDlg and SetMailAnimeDlg: what a walk begins with.
#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_walk.h"
#include "resources/character_ids.h"
#include "resources/filetools_ids.h"
#include "resources/mail_music_ids.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "shell/panel.h"
#include "tests/filetools/open/open_fixture.h"
#include "world/world_list.h"

namespace {

class OpenAnimeTest : public OpenDialogTest {
 protected:
  void SetUp() override {
    OpenDialogTest::SetUp();
    MakeFolder("C:\\mirrell\\サウンド\\sub");
    PutFile(InProgram("サウンド\\foot2.wav"), "x");
    PutFile(InProgram("サウンド\\foot1.wav"), "x");
    PutFile(InProgram("サウンド\\鐘.wav"), "x");
    OpnTextSet(OpnHistory.soundName, "foot2.wav");
    OpnHistory.soundOn = 0;
    SaveHistory();
  }
  static std::string SavedSound() { return FileBytes(HistoryPath()).substr(240503, 300); }
};

TEST_F(OpenAnimeTest, ThePresentSettingsAreShown) {
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] {
      const WindowHandle dialog = TopDialog();
      EXPECT_EQ(TemplateOf(dialog), IDD_SetOpnFileAnimeDlg);
      EXPECT_EQ(WindowText(dialog), "ファイルオープン アニメーション/サウンド設定");
      EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SetOpnFileAnimeDlg);
      EXPECT_TRUE(ControlIsChecked(dialog, IDC_WALK_ANIME));
      EXPECT_FALSE(ControlIsChecked(dialog, IDC_WALK_SOUND));
      EXPECT_EQ(RowsOf(IDC_WALK_SOUND_FILE), (Rows{"foot1.wav", "foot2.wav", "鐘.wav"}));
      EXPECT_EQ(ChosenOf(IDC_WALK_SOUND_FILE), 1);
    });
    ThenPress(kCancel);
  });
}

TEST_F(OpenAnimeTest, TheSettingsAreStoredAndTheHistorySaved) {
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_WALK_ANIME);
    ThenPress(IDC_WALK_SOUND);
    ThenChoose(IDC_WALK_SOUND_FILE, 2);
    ThenPress(kOk);
  });
  const std::string file = FileBytes(HistoryPath());
  ASSERT_EQ(file.size(), 240804U);
  EXPECT_EQ(file[240201], 0);
  EXPECT_EQ(file[240202], 1);
  EXPECT_EQ(SavedSound(), std::string("鐘.wav") + std::string(294, '\0'));
}

TEST_F(OpenAnimeTest, ACancelChangesNothing) {
  const std::string before = FileBytes(HistoryPath());
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_WALK_ANIME);
    ThenChoose(IDC_WALK_SOUND_FILE, 0);
    ThenPress(kCancel);
  });
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_WALK_ANIME);
    Then([] { SendClose(TopDialog()); });
  });
  EXPECT_TRUE(FileBytes(HistoryPath()) == before);
  EXPECT_EQ(OpnHistory.animeOn, 1);
}

TEST_F(OpenAnimeTest, WithoutAChosenSoundTheStoredOneStays) {
  OpnTextSet(OpnHistory.soundName, "gone.wav");
  SaveHistory();
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_WALK_SOUND_FILE), -1); });
    ThenPress(kOk);
  });
  EXPECT_EQ(SavedSound(), std::string("gone.wav") + std::string(292, '\0'));
}

TEST_F(OpenAnimeTest, ACheckPlaysWhatTheDialogShowsAndStoresNothing) {
  PutWalker();
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_WALK_SOUND);
    ThenChoose(IDC_WALK_SOUND_FILE, 0);
    ThenExpect([] {
      Press(TopDialog(), IDC_WALK_CHECK);
      EXPECT_EQ(SoundsPlayed(), Rows{"C:\\mirrell\\サウンド\\foot1.wav"});
      EXPECT_EQ(Walk.OpeningState, 3);
      EXPECT_TRUE(Walk.WalkActive);
      EXPECT_EQ(OpnHistory.soundOn, 0);
      EXPECT_STREQ(OpnHistory.soundName, "foot2.wav");
      Press(TopDialog(), IDC_WALK_CHECK);  // one is running
      EXPECT_EQ(SoundsPlayed().size(), 1U);
    });
    // The tick that opens the walking window, and three inside of the walk's windows.
    for (int i = 0; i < 4; ++i) Then([] { Ticks(1); });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetOpnFileAnimeDlg);
      EXPECT_EQ(Walk.OpeningState, 0);
      EXPECT_FALSE(Walk.WalkActive);
    });
    ThenPress(kCancel);
  });
  EXPECT_EQ(Started(), Rows{});
}

TEST_F(OpenAnimeTest, ClosingTheDialogEndsTheCheckAtOnce) {
  PutWalker();
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_WALK_CHECK);
    Then([] { Ticks(1); });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FlyingBat1);
      Press(FindDialog(IDD_SetOpnFileAnimeDlg), kCancel);
    });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnDialog);
      EXPECT_EQ(Walk.OpeningState, 0);
      EXPECT_FALSE(Walk.WalkActive);
      EXPECT_FALSE(Walk.WalkEndActive);
    });
  });
}

TEST_F(OpenAnimeTest, ClosingTheDialogInTheEndPhaseOfTheCheckEndsItToo) {
  PutWalker();
  Character.CharaSet.EndWait[0] = 50;
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_WALK_CHECK);
    Then([] { Ticks(1); });
    Then([] { Ticks(1); });
    ThenExpect([] {
      EXPECT_TRUE(Walk.WalkEndActive);
      Press(FindDialog(IDD_SetOpnFileAnimeDlg), kOk);
    });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnDialog);
      EXPECT_EQ(Walk.OpeningState, 0);
      EXPECT_FALSE(Walk.WalkEndActive);
    });
  });
}

TEST_F(OpenAnimeTest, ACheckIsRefusedWhileANotificationIsRunning) {
  OpnHistory.soundOn = 1;
  SaveHistory();
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] {
      for (std::int32_t* running : {&Walk.OpeningState, &Walk.mailState}) {
        *running = 2;
        Press(TopDialog(), IDC_WALK_CHECK);
        *running = 0;
      }
      for (bool* running : {&Walk.WalkActive, &Walk.WalkEndActive}) {
        *running = true;
        Press(TopDialog(), IDC_WALK_CHECK);
        *running = false;
      }
      EXPECT_EQ(SoundsPlayed(), Rows{});
      Press(TopDialog(), IDC_WALK_CHECK);
      EXPECT_EQ(SoundsPlayed().size(), 1U);
    });
    ThenPress(kCancel);
  });
}

TEST_F(OpenAnimeTest, TheNameOfTheCharacterIsShown) {
  CharaTables.MainCharaCount = 1;
  CharaTables.MainCharas[0].charaNo = 2;
  World.WorldCharaCount = 2;
  TextCopy(World.WorldCharas[1].name, sizeof World.WorldCharas[1].name, "ミル");
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] { EXPECT_EQ(ControlText(TopDialog(), IDC_WALK_CHARA), "ミル"); });
    ThenPress(kCancel);
  });
  World.WorldCharaCount = 0;
  World.WorldCharas[1] = {};
}

TEST_F(OpenAnimeTest, TheDialogServesTheMailNoticeToo) {
  const std::string before = FileBytes(HistoryPath());
  MailSetting.soundOn = 1;
  TextCopy(MailSetting.soundName, sizeof MailSetting.soundName, "foot1.wav");
  ThenExpect([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SetMailAnimeDlg);
    EXPECT_EQ(WindowText(dialog), "メール受信時アニメーション設定");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SetOpnFileAnimeDlg);
    EXPECT_FALSE(ControlIsChecked(dialog, IDC_WALK_ANIME));
    EXPECT_TRUE(ControlIsChecked(dialog, IDC_WALK_SOUND));
    EXPECT_EQ(ChosenOf(IDC_WALK_SOUND_FILE), 0);
    Press(dialog, IDC_WALK_ANIME);
    ChooseRow(dialog, IDC_WALK_SOUND_FILE, 2);
    Press(dialog, IDC_WALK_CHECK);
    EXPECT_EQ(SoundsPlayed(), Rows{"C:\\mirrell\\サウンド\\鐘.wav"});
    EXPECT_STREQ(MailSetting.soundName, "foot1.wav");
    EXPECT_EQ(MailSetting.animeOn, 0);
    Press(dialog, kOk);
  });
  EXPECT_TRUE(SetMailAnimeDlgRun(Program.hMainWnd));
  EXPECT_EQ(MailSetting.animeOn, 1);
  EXPECT_EQ(MailSetting.soundOn, 1);
  EXPECT_STREQ(MailSetting.soundName, "鐘.wav");
  EXPECT_TRUE(FileBytes(HistoryPath()) == before);
  ThenPress(kCancel);
  EXPECT_FALSE(SetMailAnimeDlgRun(Program.hMainWnd));
}

}  // namespace
