// What a scenario says of one parameter, through the real dialogs.
#include <gtest/gtest.h>

#include "resources/scenario_storage_ids.h"
#include "resources/scenario_trace_ids.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/scenario_fixture.h"

namespace {

const std::wstring kChoice = L"確認するパラメータの指定";
const std::wstring kChanges = L"パラメータを確認";
const std::wstring kTest = L"パラメータ状態テスト";

constexpr int kKey = 0;  // rows of the sample's parameters
constexpr int kFriends = 1;
constexpr int kNight = 2;
constexpr int kLoadGame = 3;

class ScenarioTraceTest : public ScenarioFixture {
 protected:
  void Open() {
    companion_.Start();
    rout_ = Load();
    ASSERT_TRUE(rout_);
    choice_ = OpenBy(companion_, rout_, IDC_SNRY_PARA_CHECK, kChoice);
    ASSERT_TRUE(choice_);
  }
  void Leave() {
    ASSERT_TRUE(EndBy(choice_, IDCANCEL));
    ASSERT_TRUE(EndBy(rout_, IDCANCEL));
  }
  // The listing of a parameter's changes.
  Texts Changes(int row) {
    SelectListRow(choice_, IDC_TRACE_PARAMETERS, row);
    const HWND dialog = OpenBy(companion_, choice_, IDC_TRACE_CHANGES, kChanges);
    if (!dialog) return {};
    const Texts texts = ListTexts(dialog, IDC_TRACE_LINES);
    name_ = EditText(dialog, IDC_TRACE_NAME);
    EXPECT_TRUE(EndBy(dialog, IDOK));
    return texts;
  }
  HWND OpenTest(int row) {
    SelectListRow(choice_, IDC_TRACE_PARAMETERS, row);
    return OpenBy(companion_, choice_, IDC_TRACE_PROGRESS, kTest);
  }
  // What would start if the parameter had the value.
  Texts Progress(int row, const std::wstring& value) {
    const HWND dialog = OpenTest(row);
    if (!dialog) return {};
    SetEdit(dialog, IDC_TRACE_VALUE, value);
    PressButton(dialog, IDC_TRACE_START);
    const Texts texts = ListTexts(dialog, IDC_TRACE_LINES);
    EXPECT_TRUE(EndBy(dialog, IDCANCEL));
    return texts;
  }

  HWND choice_ = nullptr;
  std::wstring name_;
};

}  // namespace

TEST_F(ScenarioTraceTest, WhereAParameterIsTestedAndSetIsListed) {
  Open();
  EXPECT_EQ(ListTexts(choice_, IDC_TRACE_PARAMETERS),
            (Texts{L"1. 書庫の鍵", L"2. なかよし度", L"3. 夜になった", L"4. ロード(&Load)",
                   L"5. セーブ(&Save)", L"6. おわる(&Exit)"}));
  EXPECT_EQ(Changes(kFriends), (Texts{L"   > 初期値  --> 値 = 5 ",
                                      L"[シナリオ-1] (森の朝)",
                                      L"   [場面-1] (朝の広場)",
                                      L"   > メニュー No.1 の項目1で変更--> 値 = 6 (川べりへ行く)",
                                      L"   > ランダム No.1 で変更--> 値 = 1～3",
                                      L"   [場面-2] > 起動条件 --> 値 = 6 (川べり)",
                                      L"   > メニュー No.1 の項目2で変更--> 値 = 5 (広場にもどる)",
                                      L"   > ランダム No.1 で変更--> 値 = 1～3",
                                      L"   [場面-3] (ふくろうの書庫)",
                                      L"   > メニュー No.1 の項目2で変更--> 値 = 7 (もうすこし読む)",
                                      L"   > イベント No.1 で変更--> 値 = 7",
                                      L"   > ランダム No.1 で変更--> 値 = 1～3",
                                      L"[シナリオ-2] (星の夜)",
                                      L"   [場面-1] (夕やけの丘)",
                                      L"   > メニュー No.1 の項目1で変更--> 値 = 8 (のぞく)",
                                      L"   > メニュー No.1 の項目2で変更--> 値 = 9 (広場におりる)",
                                      L"   > イベント No.1 で変更--> 値 = 8",
                                      L"   > ランダム No.1 で変更--> 値 = 1～3",
                                      L"   [場面-2] > 起動条件 --> 値 = 9 (星の広場)",
                                      L"   > ランダム No.1 で変更--> 値 = 1～3"}));
  EXPECT_EQ(name_, L"なかよし度");
  EXPECT_EQ(Changes(kKey),
            (Texts{L"   > 初期値  --> 値 = 0 ", L"[シナリオ-1] (森の朝)", L"   [場面-1] (朝の広場)",
                   L"   > メニュー No.1 の項目2で変更--> 値 = 1 (書庫へ行く)",
                   L"   > 人物 (かえる) 台詞--> 値 = 0 (けろけろ。鍵なら川べりで見たよ。)",
                   L"   [場面-2] (川べり)", L"   > メニュー No.1 の項目1で変更--> 値 = 1 (鍵をひろう)",
                   L"   > 人物 (配達員) 台詞--> 値 = 1 (ありがとう! 書庫にもどろう。)",
                   L"   [場面-3] > 起動条件 --> 値 = 1 (ふくろうの書庫)", L"[シナリオ-2] (星の夜)",
                   L"   [場面-1] (夕やけの丘)", L"   [場面-2] (星の広場)"}));
  // One that nothing uses: a line for each folder and scene. The menus' buttons, which do
  // use it, are not looked at.
  EXPECT_EQ(Changes(kLoadGame),
            (Texts{L"   > 初期値  --> 値 = 0 ", L"[シナリオ-1] (森の朝)", L"   [場面-1] (朝の広場)",
                   L"   [場面-2] (川べり)", L"   [場面-3] (ふくろうの書庫)", L"[シナリオ-2] (星の夜)",
                   L"   [場面-1] (夕やけの丘)", L"   [場面-2] (星の広場)"}));
  Leave();
}

TEST_F(ScenarioTraceTest, WhatWouldStartIsListedOncePerPress) {
  Open();
  EXPECT_EQ(Progress(kKey, L"0"), (Texts{L"[シナリオ-1] (森の朝)", L"[場面-1] (朝の広場)",
                                         L"   > 人物 (かえる) 台詞--> (けろけろ。鍵なら川べりで見たよ。)"}));
  // The second scene spoke under its own heading; the third needs none for its start.
  EXPECT_EQ(Progress(kKey, L"1"), (Texts{L"[シナリオ-1] (森の朝)", L"[場面-2] (川べり)",
                                         L"   > 人物 (配達員) 台詞--> (ありがとう! 書庫にもどろう。)",
                                         L"> [場面-3] が 起動 (ふくろうの書庫)"}));
  EXPECT_EQ(Progress(kNight, L"1"),
            (Texts{L"> [シナリオ-2] が 起動 (星の夜)", L"> [場面-1] が 起動 (夕やけの丘)"}));
  EXPECT_EQ(Progress(kLoadGame, L"1"), Texts());
  // Seven characters are read and five of them count: 00009.
  const Texts ninth{L"[シナリオ-2] (星の夜)", L"> [場面-2] が 起動 (星の広場)"};
  EXPECT_EQ(Progress(kFriends, L"0000987"), ninth);

  // Results pile up.
  const HWND dialog = OpenTest(kFriends);
  ASSERT_TRUE(dialog);
  EXPECT_EQ(EditText(dialog, IDC_TRACE_NAME), L"なかよし度");
  EXPECT_EQ(ListRowCount(dialog, IDC_TRACE_LINES), 0);
  SetEdit(dialog, IDC_TRACE_VALUE, L"9");
  PressButton(dialog, IDC_TRACE_START);
  PressButton(dialog, IDC_TRACE_START);
  EXPECT_EQ(ListTexts(dialog, IDC_TRACE_LINES), (Texts{ninth[0], ninth[1], ninth[0], ninth[1]}));
  ASSERT_TRUE(EndBy(dialog, IDCANCEL));
  Leave();
}

// The second scene is given all that can start, and the lines that are odd: an exit is
// found with the value of the entry, an entry of a random by its mode.
TEST_F(ScenarioTraceTest, EverythingOfASceneThatCanStartIsListed) {
  const std::wstring path = Sample(L"森の朝\\川べり.scd");
  FileImage scene = ReadWholeFile(path);
  const SceneLayout at(scene);
  ASSERT_EQ(scene.size(), at.end);
  const auto pair = [&scene](std::size_t where, int para, int value) {
    PutLowFirst(scene, where, para);
    PutLowFirst(scene, where + 2, value);
  };
  pair(35 + 2, 2, 4);  // the first menu
  scene[kEventsAt] = 1;
  pair(kEventsAt + 2, 2, 4);
  PutText(scene, kEventsAt + 171, L"石をめくる");
  const int operations[] = {0, 1, 2, 3, 4};
  for (std::size_t i = 0; i < 5; ++i) {
    PutLowFirst(scene, kEventsAt + 50 + 2 * i, 1);
    PutLowFirst(scene, kEventsAt + 90 + 2 * i, 10 + static_cast<int>(i));
    scene[kEventsAt + 150 + i] = static_cast<unsigned char>(operations[i]);
  }
  pair(kRandomsAt + 2, 2, 4);
  PutLowFirst(scene, kRandomsAt + 8 + 2, 6);
  PutLowFirst(scene, kRandomsAt + 128 + 2, 30);
  scene[kRandomsAt + 168 + 1] = 1;
  const std::size_t sparrow = at.Cast(6);
  pair(sparrow + 4, 2, 4);
  pair(sparrow + 10, 2, 8);
  PutLowFirst(scene, sparrow + 118, 2);
  PutLowFirst(scene, sparrow + 318, 300);
  const std::size_t frog = at.Cast(12);
  PutLowFirst(scene, frog + 718, 2);
  PutLowFirst(scene, frog + 918, 4);
  PutLowFirst(scene, frog + 1218, 3);
  PutLowFirst(scene, frog + 1418, 1);
  pair(at.sounds + 2, 2, 4);
  pair(at.title + 140, 2, 44);
  WriteWholeFile(path, scene);

  Open();
  const std::wstring motion = L"   > 人物 (すずめ便) 動作--> 値 = 300 (やってくる)";
  EXPECT_EQ(Progress(kFriends, L"4"),
            (Texts{L"[シナリオ-1] (森の朝)", L"[場面-2] (川べり)", L"   > メニュー No.1 の起動を起動",
                   L"   (鍵をひろう)", L"   (広場にもどる)", L"   > イベント No.1  を起動 (石をめくる)",
                   L"       パラメータ No.1 変更--> 値 = 10  (書庫の鍵)",
                   L"       パラメータ No.1 変更--> 入力値 x 11  (書庫の鍵)",
                   L"       パラメータ No.1 変更--> 入力値 ÷ 12  (書庫の鍵)",
                   L"       パラメータ No.1 変更--> ± 13  (書庫の鍵)",
                   L"   > ランダム No.1 を起動 (インタバル時間 300 x0.1 秒)",
                   L"       パラメータ No.0 変更--> 値 = 1～3  ()",
                   L"       パラメータ No.1 変更--> 値 = 現在値±30  (書庫の鍵)", L"   > 人物 (すずめ便) 登場",
                   L"   > 人物 (すずめ便) 退場 ",
                   L"   > 人物 (かえる) 台詞--> (この石の下に、ぴかぴかの鍵があったよ。)",
                   L"   > 台詞終了時パラメータ2 変更--> 値 = 1 (夜になった)", motion,
                   L"   > サウンド起動 (せせらぎ.wav)"}));
  // Not with its own value; the motion shows up with any, and without a heading.
  EXPECT_EQ(Progress(kFriends, L"8"), Texts{motion});
  const Texts changes = Changes(kFriends);
  ASSERT_GT(changes.size(), 17U);
  EXPECT_EQ(
      Texts(changes.begin() + 5, changes.begin() + 17),
      (Texts{L"   [場面-2] > 起動条件 --> 値 = 6 (川べり)", L"   > タイトル終了時変更 --> 値 44 (川べり)",
             L"   > メニュー No.1 の起動条件-->  値 = 4 ",
             L"   > メニュー No.1 の項目2で変更--> 値 = 5 (広場にもどる)",
             L"   > イベント No.1 の起動条件-->  値 = 4 (石をめくる)",
             L"   > ランダム No.1 の起動条件-->  値 = 4 (インタバル時間 300 x0.1 秒)",
             L"   > ランダム No.1 で変更--> 値 = 1～3", L"   > 人物 (すずめ便) 登場条件--> 値 = 4",
             L"   > 人物 (すずめ便) 退場条件--> 値 = 8",
             L"   > 人物 (かえる) 台詞--> 値 = 4 (この石の下に、ぴかぴかの鍵があったよ。)", motion,
             L"   > サウンド起動条件 --> 値 4 (せせらぎ.wav)"}));
  Leave();
  EXPECT_TRUE(ReadWholeFile(path) == scene);
}

TEST_F(ScenarioTraceTest, WithoutARowNothingOpensAndEachWayOutLeavesAlone) {
  Open();
  SendDlgItemMessageW(choice_, IDC_TRACE_PARAMETERS, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  PressButton(choice_, IDC_TRACE_CHANGES);
  PressButton(choice_, IDC_TRACE_PROGRESS);
  EXPECT_EQ(companion_.FindDialog(kChanges), nullptr);
  EXPECT_EQ(companion_.FindDialog(kTest), nullptr);
  // A second command opens nothing over them.
  companion_.Send(kScenarioLoad);
  companion_.Send(kScenarioNew);
  EXPECT_EQ(companion_.FindDialog(L"シナリオのロード"), nullptr);
  EXPECT_EQ(companion_.FindDialog(L"新規シナリオの作成"), nullptr);

  SelectListRow(choice_, IDC_TRACE_PARAMETERS, kKey);
  for (const Key key : {kEscape, kEnter, kAltF4}) {
    const HWND changes = OpenBy(companion_, choice_, IDC_TRACE_CHANGES, kChanges);
    ASSERT_TRUE(changes);
    EXPECT_TRUE(EndByKey(changes, key)) << key.code;
  }
  // Enter starts the test, the others leave it.
  const HWND test = OpenTest(kKey);
  ASSERT_TRUE(test);
  SetEdit(test, IDC_TRACE_VALUE, L"0");
  PostKey(test, kEnter);
  EXPECT_TRUE(WaitFor([&] { return ListRowCount(test, IDC_TRACE_LINES) == 3; }));
  EXPECT_TRUE(EndByKey(test, kEscape));
  const HWND again = OpenTest(kKey);
  ASSERT_TRUE(again);
  EXPECT_TRUE(EndByKey(again, kAltF4));
  EXPECT_TRUE(EndByKey(choice_, kAltF4));
  EXPECT_TRUE(EndByKey(rout_, kEscape));
}
