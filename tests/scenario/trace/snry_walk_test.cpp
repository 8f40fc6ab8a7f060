#include "tests/scenario/trace/trace_fixture.h"

namespace {

using SnryWalkTest = TraceTest;

constexpr int kP = 7;

TEST_F(SnryWalkTest, NoScenarioFolderLeavesOnlyTheFirstLine) {
  UsePara(kP, "鍵", 12);
  EXPECT_EQ(Changes(kP), (Lines{"   > 初期値  --> 値 = 12 "}));
  EXPECT_EQ(Progress(kP, 12), Lines());
}

TEST_F(SnryWalkTest, AParameterUsedByNothingGivesALinePerFolderAndSceneAndNoProgress) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  AddScene("部屋", {});
  AddScene("廊下", {});
  AddFolder("終章");
  EXPECT_EQ(Changes(kP), (Lines{"   > 初期値  --> 値 = 0 ", "[シナリオ-1] (序章)", "   [場面-1] (部屋)",
                                "   [場面-2] (廊下)", "[シナリオ-2] (終章)"}));
  EXPECT_EQ(Progress(kP, 0), Lines());
}

TEST_F(SnryWalkTest, StartsOfFoldersAndScenes) {
  UsePara(kP, "鍵", 1);
  AddFolder("序章").start = {kP, 3};
  AddScene("部屋", {}).start = {kP, 4};
  EXPECT_EQ(Changes(kP), (Lines{"   > 初期値  --> 値 = 1 ", "[シナリオ-1] > 起動条件 --> 値 = 3 (序章)",
                                "   [場面-1] > 起動条件 --> 値 = 4 (部屋)"}));
  EXPECT_EQ(Progress(kP, 3), (Lines{"> [シナリオ-1] が 起動 (序章)"}));
  EXPECT_EQ(Progress(kP, 4), (Lines{"[シナリオ-1] (序章)", "> [場面-1] が 起動 (部屋)"}));
  EXPECT_EQ(Progress(kP, 5), Lines());
}

TEST_F(SnryWalkTest, TheTitleCountsOnlyWhenItIsShown) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.scene.title.end = {kP, 9};
  Put(data.scene.title.text, "第一話");
  AddScene("部屋", data);
  data.scene.title.shown = 1;
  AddScene("廊下", data);
  EXPECT_EQ(Changes(kP), (Lines{"   > 初期値  --> 値 = 0 ", "[シナリオ-1] (序章)", "   [場面-1] (部屋)",
                                "   [場面-2] (廊下)", "   > タイトル終了時変更 --> 値 9 (第一話)"}));
}

TEST_F(SnryWalkTest, FurtherMatchesOfAnItemShowMenuAndItem) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  SnryMenuRec& menu = data.scene.menus[2];
  menu.enabled = 1;
  menu.start = {kP, 8};
  menu.itemCount = 2;
  Put(menu.itemTexts[0], "開ける");
  Put(menu.itemTexts[1], "やめる");
  menu.itemParameters[1][0] = kP;
  menu.itemValues[1][0] = 40;
  menu.itemParameters[1][5] = kP;
  menu.itemValues[1][5] = 41;
  data.scene.menus[3].start = {kP, 1};  // is not enabled
  AddScene("部屋", data);
  EXPECT_EQ(Changes(kP),
            (Lines{"   > 初期値  --> 値 = 0 ", "[シナリオ-1] (序章)", "   [場面-1] (部屋)",
                   "   > メニュー No.3 の起動条件-->  値 = 8 ",
                   "   > メニュー No.3 の項目2で変更--> 値 = 40 >項目3で変更--> 値 = 2 (やめる)"}));
  EXPECT_EQ(Progress(kP, 8), (Lines{"[シナリオ-1] (序章)", "[場面-1] (部屋)",
                                    "   > メニュー No.3 の起動を起動", "   (開ける)", "   (やめる)"}));
}

TEST_F(SnryWalkTest, EventsByOperationAndSign) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  SnryEventRec& event = data.scene.events[0];
  event.enabled = 1;
  event.start = {kP, 2};
  Put(event.name, "合言葉");
  event.lowest = 1;
  event.highest = 6;
  for (int place = 0; place < 9; ++place) {
    event.parameters[place] = kP;
    event.values[place] = static_cast<std::uint16_t>(10 + place);
    event.operations[place] = static_cast<std::uint8_t>(place / 2);
    event.signs[place] = static_cast<std::uint8_t>(place % 2);
  }
  AddScene("部屋", data);
  EXPECT_EQ(Changes(kP),
            (Lines{"   > 初期値  --> 値 = 0 ", "[シナリオ-1] (序章)", "   [場面-1] (部屋)",
                   "   > イベント No.1 の起動条件-->  値 = 2 (合言葉)",
                   "   > イベント No.1 で変更--> 値 = 10", "   > イベント No.1 で変更--> 値 = 11",
                   "   > イベント No.1 で変更--> 現在値から(入力値×12)を足す(入力値=1～6)",
                   "   > イベント No.1 で変更--> 現在値から(入力値×13)を引く(入力値=1～6)",
                   "   > イベント No.1 で変更--> 現在値から(入力値÷14)を足す(入力値=1～6)",
                   "   > イベント No.1 で変更--> 現在値から(入力値÷15)を引く(入力値=1～6)",
                   "   > イベント No.1 で変更--> 現在値から 16 を足す",
                   "   > イベント No.1 で変更--> 現在値から 17 を引く"}));
  EXPECT_EQ(
      Progress(kP, 2),
      (Lines{"[シナリオ-1] (序章)", "[場面-1] (部屋)", "   > イベント No.1  を起動 (合言葉)",
             "       パラメータ No.7 変更--> 値 = 10  (鍵)", "       パラメータ No.7 変更--> 値 = 11  (鍵)",
             "       パラメータ No.7 変更--> 入力値 x 12  (鍵)",
             "       パラメータ No.7 変更--> 入力値 x 13  (鍵)",
             "       パラメータ No.7 変更--> 入力値 ÷ 14  (鍵)",
             "       パラメータ No.7 変更--> 入力値 ÷ 15  (鍵)", "       パラメータ No.7 変更--> ± 16  (鍵)",
             "       パラメータ No.7 変更--> ± 17  (鍵)"}));
}

TEST_F(SnryWalkTest, ARandomEntryOfModeOneOnParameterSevenListsAsParameterOne) {
  UsePara(1, "天気", 0);
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  SnryRandomRec& random = data.scene.randoms[4];
  random.enabled = 1;
  random.start = {kP, 2};
  random.interval = 50;
  random.parameters[0] = kP;
  random.modes[0] = 1;
  random.counts[0] = 6;
  random.parameters[1] = kP;
  random.ranges[1][0] = 3;
  random.ranges[1][1] = 9;
  AddScene("部屋", data);
  EXPECT_EQ(Progress(kP, 2), (Lines{"[シナリオ-1] (序章)", "[場面-1] (部屋)",
                                    "   > ランダム No.5 を起動 (インタバル時間 50 x0.1 秒)",
                                    "       パラメータ No.1 変更--> 値 = 現在値±6  (天気)",
                                    "       パラメータ No.0 変更--> 値 = 3～9  ()"}));
  EXPECT_EQ(Changes(kP),
            (Lines{"   > 初期値  --> 値 = 0 ", "[シナリオ-1] (序章)", "   [場面-1] (部屋)",
                   "   > ランダム No.5 の起動条件-->  値 = 2 (インタバル時間 50 x0.1 秒)",
                   "   > ランダム No.5 で変更--> 値 = 現在値±6 ", "   > ランダム No.5 で変更--> 値 = 3～9"}));
}

TEST_F(SnryWalkTest, ARandomThatCalculatesListsAsModeOne) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.scene.randoms[0].enabled = 1;
  data.scene.randoms[0].parameters[0] = kP;
  data.scene.randoms[0].modes[0] = 2;
  data.scene.randoms[0].counts[0] = 5;
  AddScene("部屋", data);
  EXPECT_EQ(Changes(kP).back(), "   > ランダム No.1 で変更--> 値 = 現在値±5 ");
}

TEST_F(SnryWalkTest, AnExitOnAValueIsFoundByTheValueOfTheEntry) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.casts[1].entry = {3, 11};
  data.casts[1].exit = {kP, 5};
  AddScene("部屋", data, {0, 2});
  EXPECT_EQ(Progress(kP, 5), Lines());
  EXPECT_EQ(Progress(kP, 11), (Lines{"[シナリオ-1] (序章)", "[場面-1] (部屋)", "   > 人物 (人物2) 退場 "}));
  EXPECT_EQ(Changes(kP).back(), "   > 人物 (人物2) 退場条件--> 値 = 5");
}

TEST_F(SnryWalkTest, LinesMotionsAndTheirEnds) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  SnryCastRec& cast = data.casts[0];
  data.lines[2].used = 1;
  Put(data.lines[2].text, "おはよう");
  cast.lines[5] = 3;
  cast.lineParameters[5] = kP;
  cast.lineValues[5] = 1;
  cast.endParameters[5] = kP;
  cast.endValues[5] = 2;
  cast.lineParameters[6] = kP;  // an empty place
  cast.motions[9] = 2;
  cast.motionParameters[9] = kP;
  cast.motionValues[9] = 30;
  AddScene("部屋", data, {1});
  EXPECT_EQ(Changes(kP), (Lines{"   > 初期値  --> 値 = 0 ", "[シナリオ-1] (序章)", "   [場面-1] (部屋)",
                                "   > 人物 (人物1) 台詞--> 値 = 1 (おはよう)",
                                "   > 人物 (人物1) 台詞終了時変更--> 値 = 2 (おはよう)",
                                "   > 人物 (人物1) 動作--> 値 = 30 (動作2)"}));
  EXPECT_EQ(
      Progress(kP, 1),
      (Lines{"[シナリオ-1] (序章)", "[場面-1] (部屋)", "   > 人物 (人物1) 台詞--> (おはよう)",
             "   > 台詞終了時パラメータ6 変更--> 値 = 2 (鍵)", "   > 人物 (人物1) 動作--> 値 = 30 (動作2)"}));
  // Whatever the value, and without a heading.
  EXPECT_EQ(Progress(kP, 99), (Lines{"   > 人物 (人物1) 動作--> 値 = 30 (動作2)"}));
}

TEST_F(SnryWalkTest, LinesAreCutAt128BytesBetweenCharacters) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.lines[0].used = 1;
  std::string text = "a";
  for (int i = 0; i < 70; ++i) text += "あ";
  Put(data.lines[0].text, text);
  data.casts[0].lines[0] = 1;
  data.casts[0].lineParameters[0] = kP;
  AddScene("部屋", data, {1});
  EXPECT_EQ(Changes(kP).back(), "   > 人物 (人物1) 台詞--> 値 = 0 (" + text.substr(0, 127) + ")");
}

TEST_F(SnryWalkTest, ACopyHasNoName) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.casts[512].master = 1;
  data.casts[512].entry = {kP, 4};
  AddScene("部屋", data, {513});
  EXPECT_EQ(Changes(kP).back(), "   > 人物 () 登場条件--> 値 = 4");
  EXPECT_EQ(Progress(kP, 4).back(), "   > 人物 () 登場");
}

TEST_F(SnryWalkTest, ASoundInTheProgressHasNoHeading) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.scene.sounds[0].used = 1;
  data.scene.sounds[0].start = {kP, 4};
  Put(data.scene.sounds[0].file, "bell.wav");
  AddScene("部屋", data);
  EXPECT_EQ(Progress(kP, 4), (Lines{"   > サウンド起動 (bell.wav)"}));
  EXPECT_EQ(Changes(kP).back(), "   > サウンド起動条件 --> 値 4 (bell.wav)");
}

TEST_F(SnryWalkTest, TheHeadingOfASceneIsWrittenAnewForTheNext) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.scene.events[0].enabled = 1;
  data.scene.events[0].start = {kP, 1};
  AddScene("部屋", data);
  AddScene("廊下", data);
  AddFolder("終章");
  AddScene("庭", data);
  EXPECT_EQ(Progress(kP, 1), (Lines{"[シナリオ-1] (序章)", "[場面-1] (部屋)", "   > イベント No.1  を起動 ()",
                                    "[場面-2] (廊下)", "   > イベント No.1  を起動 ()", "[シナリオ-2] (終章)",
                                    "[場面-1] (庭)", "   > イベント No.1  を起動 ()"}));
}

TEST_F(SnryWalkTest, ASceneThatCannotBeReadIsToldOfWithTheSceneBefore) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  data.scene.sounds[0].used = 1;
  data.scene.sounds[0].start = {kP, 4};
  Put(data.scene.sounds[0].file, "bell.wav");
  AddScene("部屋", data);
  Put(AddScene("廊下", {}).file, "gone.snf");
  EXPECT_EQ(Changes(kP), (Lines{"   > 初期値  --> 値 = 0 ", "[シナリオ-1] (序章)", "   [場面-1] (部屋)",
                                "   > サウンド起動条件 --> 値 4 (bell.wav)", "   [場面-2] (廊下)",
                                "   > サウンド起動条件 --> 値 4 (bell.wav)"}));
}

TEST_F(SnryWalkTest, AfterAWalkTheCurrentFolderAndSceneAreWhatTheyWere) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  AddScene("部屋", {});
  AddScene("廊下", {});
  Scenario.folderIndex = 0;
  Scenario.sceneIndex = 1;
  Scenario.paraSlot = 3;
  Changes(kP);
  Progress(kP, 0);
  EXPECT_EQ(Scenario.folderIndex, 0);
  EXPECT_EQ(Scenario.sceneIndex, 1);
  EXPECT_EQ(Scenario.paraSlot, 3);
}

TEST_F(SnryWalkTest, TheBuffersHoldTheLastSceneBehindAWalk) {
  UsePara(kP, "鍵", 0);
  AddFolder("序章");
  SceneData data;
  Put(data.scene.title.text, "初め");
  AddScene("部屋", data);
  Put(data.scene.title.text, "終り");
  AddScene("廊下", data);
  Fill({});
  Changes(kP);
  EXPECT_STREQ(SnryScene.title.text, "終り");
}

}  // namespace
