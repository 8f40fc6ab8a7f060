#include "tests/scenario/looks/looks_fixture.h"

namespace {

constexpr char kAddText[] = "サウンドを追加します";
constexpr char kAddCaption[] = "サウンドの追加";
constexpr char kChangeText[] = "サウンドを変更します";
constexpr char kChangeCaption[] = "サウンドの変更";
constexpr char kDeleteText[] = "サウンドを削除します";
constexpr char kDeleteCaption[] = "サウンドの削除";

class SoundSetDlgTest : public LooksTest {
 protected:
  void SetUp() override {
    LooksTest::SetUp();
    for (const char* name : {"bell.wav", "door.wav", "rain.wav", "note.txt"}) {
      PutFile("C:\\mirrell\\scenario\\サウンド\\" + std::string(name), "x");
    }
  }
  static void Run() { SoundSetDlgRun(Program.hMainWnd); }
  static void Use(int slot, const std::string& file, int parameter = 0, int value = 0, int repeat = 0) {
    SnrySoundRec& sound = SnryScene.sounds[slot];
    sound.used = 1;
    Put(sound.file, file);
    sound.start = {static_cast<std::uint16_t>(parameter), static_cast<std::uint16_t>(value)};
    sound.repeat = static_cast<std::uint8_t>(repeat);
  }
  static Lines Rows() { return ListRows(TopDialog(), IDC_SOUND_ROWS); }
};

TEST_F(SoundSetDlgTest, RowsTellTheFileAndTheCondition) {
  Use(0, "bell.wav", 3, 12);
  Use(5, "door.wav");
  Use(6, "rain.wav", 2, 4);  // no parameter any more
  Then([] {
    EXPECT_EQ(Rows(), (Lines{"1. bell.wav (起動条件: 扉 = 12)", "2. door.wav (起動条件: 未設定)",
                             "3. rain.wav (起動条件: 未設定)"}));
    EXPECT_EQ(Sorted(ListRows(TopDialog(), IDC_SOUND_FILE)), (Lines{"bell.wav", "door.wav", "rain.wav"}));
    EXPECT_EQ(ListRows(TopDialog(), IDC_SOUND_REPEAT), (Lines{"繰り返さない", "2 回", "3 回", "4 回", "5 回",
                                                              "5 回", "10 回", "起動条件が一致してる間"}));
    PressEscape(TopDialog());
  });
  Run();
}

TEST_F(SoundSetDlgTest, AddFillsTheFirstFreeRecord) {
  Use(0, "bell.wav");
  Use(2, "rain.wav");
  ThenChooseText(IDC_SOUND_FILE, "door.wav");
  ThenChoose(IDC_SOUND_PARA, 1);
  ThenType(IDC_SOUND_VALUE, "7");
  ThenChoose(IDC_SOUND_REPEAT, 6);
  ThenType(IDC_SOUND_SECONDS, "30");
  ThenAsked(IDC_SOUND_ADD, kAddText, kAddCaption);
  Then([] { EXPECT_EQ(Rows().at(1), "2. door.wav (起動条件: 鍵 = 7)"); });
  ThenPress(kOkButton);
  Run();
  const SnrySoundRec& sound = SnryScene.sounds[1];
  EXPECT_EQ(sound.used, 1);
  EXPECT_EQ(sound.repeat, 6);
  EXPECT_EQ(sound.seconds, 30);
}

TEST_F(SoundSetDlgTest, ARefusedQuestionAddsNothing) {
  ThenChoose(IDC_SOUND_FILE, 1);
  ThenAsked(IDC_SOUND_ADD, kAddText, kAddCaption, BoxAnswer::Cancel);
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnryScene.sounds[0].used, 0);
}

TEST_F(SoundSetDlgTest, AFullTableStopsSilently) {
  for (int slot = 0; slot < 200; ++slot) Use(slot, "bell.wav");
  ThenPress(IDC_SOUND_ADD);
  ThenPress(kOkButton);
  Run();
}

TEST_F(SoundSetDlgTest, ChoosingASoundAppliesItsRepeatToTheFiles) {
  Use(0, "bell.wav", 1, 9, 2);
  ThenChoose(IDC_SOUND_REPEAT, 7);
  ThenChoose(IDC_SOUND_ROWS, 0);
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SOUND_FILE), 2);
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SOUND_REPEAT), 7);
    EXPECT_EQ(Shown(IDC_SOUND_VALUE), "9");
  });
  // What a change stores is what stands there.
  std::string third;
  Then([&third] { third = ListRows(TopDialog(), IDC_SOUND_FILE).at(2); });
  ThenAsked(IDC_SOUND_CHANGE, kChangeText, kChangeCaption);
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnryScene.sounds[0].file, third);
  EXPECT_EQ(SnryScene.sounds[0].repeat, 7);
}

TEST_F(SoundSetDlgTest, ARepeatBeyondTheFilesChoosesNone) {
  Use(0, "bell.wav", 0, 0, 7);
  ThenChoose(IDC_SOUND_ROWS, 0);
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SOUND_FILE), -1);
    PressEscape(TopDialog());
  });
  Run();
}

TEST_F(SoundSetDlgTest, DeleteMovesTheLaterRecordsDown) {
  Use(0, "bell.wav");
  Use(1, "door.wav");
  Use(2, "rain.wav");
  ThenPress(IDC_SOUND_DELETE);  // without a row nothing happens
  ThenChoose(IDC_SOUND_ROWS, 1);
  ThenAsked(IDC_SOUND_DELETE, kDeleteText, kDeleteCaption);
  Then([] {
    EXPECT_EQ(Rows().size(), 2u);
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SOUND_ROWS), 0);
  });
  ThenPress(kOkButton);
  Run();
  EXPECT_STREQ(SnryScene.sounds[1].file, "rain.wav");
  EXPECT_EQ(SnryScene.sounds[2].used, 0);
}

}  // namespace
