// How a scene looks and sounds, through its real dialogs: title, sounds, table, keys,
// backdrop and scroll, and the options of the whole scenario.
#include <gtest/gtest.h>

#include "resources/scenario_cast_ids.h"
#include "resources/scenario_looks_ids.h"
#include "resources/scenario_storage_ids.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/scenario_fixture.h"

namespace {

const std::wstring kSquare = L"森の朝\\広場.scd";
const std::wstring kTitle = L"タイトル画面設定";
const std::wstring kSounds = L"サウンド設定";
const std::wstring kTable = L"表形式選択";
const std::wstring kKeys = L"キー、マウス割付";
const std::wstring kBackdrop = L"場面背景設定";
const std::wstring kScroll = L"スクロール設定";
const std::wstring kOptions = L"オプション設定";
const std::wstring kStatusBar = L"ステータスバー設定";

using Numbers = std::vector<int>;

Numbers Part(const FileImage& bytes, std::size_t at, std::size_t count) {
  if (at + count > bytes.size()) return {};
  const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(at);
  return {from, from + static_cast<std::ptrdiff_t>(count)};
}

class ScenarioLooksTest : public ScenarioFixture {
 protected:
  FileImage Square() const { return ReadWholeFile(Sample(kSquare)); }
  HWND OpenLook(int button, const std::wstring& title) { return OpenBy(companion_, scene_, button, title); }
  bool HasRows(HWND dialog, int list, int count) {
    return WaitFor([&] { return ListRowCount(dialog, list) == count; });
  }

  // What the first test sets, dialog by dialog.
  void SetTitle();
  void SetSounds();
  void SetTable();
  void SetKeys();
  void SetBackdrop();
  void SetScroll(HWND scroll);
  void ExpectFiles();
  void ExpectDialogs();
};

void ScenarioLooksTest::SetTitle() {
  const HWND title = OpenLook(IDC_SNRY_SCENE_TITLE, kTitle);
  ASSERT_TRUE(title);
  EXPECT_EQ(EditText(title, IDC_TITLE_TEXT), L"朝の広場");
  EXPECT_EQ(ListRowCount(title, IDC_TITLE_TIME), 10);
  SetEdit(title, IDC_TITLE_TEXT, std::wstring(63, L'題') + L"ab");  // one byte too long
  ChooseText(title, IDC_TITLE_COLOUR, L"ｵﾚﾝｼﾞ");
  ChooseText(title, IDC_TITLE_BACK, L"明るいｸﾞﾚｲ");
  ChooseText(title, IDC_TITLE_SIZE, L"72");
  ChooseText(title, IDC_TITLE_STYLE, L"行書太字");
  ChooseText(title, IDC_TITLE_METHOD, L"縦ワイプ");
  ChooseText(title, IDC_TITLE_TIME, L"1分30秒");
  SelectListRow(title, IDC_TITLE_PARA, 2);
  SetEdit(title, IDC_TITLE_VALUE, L"1234");
  ASSERT_TRUE(EndBy(title, IDOK));
}

// The row of the repeats goes to the files when a sound is chosen, and a change stores it.
void ScenarioLooksTest::SetSounds() {
  const HWND sounds = OpenLook(IDC_SNRY_SCENE_SOUNDS, kSounds);
  ASSERT_TRUE(sounds);
  EXPECT_EQ(ListTexts(sounds, IDC_SOUND_ROWS), Texts{L"1. 小鳥.wav (起動条件: 未設定)"});
  EXPECT_EQ(ListRowCount(sounds, IDC_SOUND_FILE), 3);
  EXPECT_EQ(ListTexts(sounds, IDC_SOUND_REPEAT), (Texts{L"繰り返さない", L"2 回", L"3 回", L"4 回", L"5 回",
                                                        L"5 回", L"10 回", L"起動条件が一致してる間"}));
  ChooseText(sounds, IDC_SOUND_FILE, L"とびら.wav");
  SelectListRow(sounds, IDC_SOUND_PARA, 1);
  SetEdit(sounds, IDC_SOUND_VALUE, L"5");
  SelectListRow(sounds, IDC_SOUND_REPEAT, 7);
  SetEdit(sounds, IDC_SOUND_SECONDS, L"4321");
  Answer(sounds, IDC_SOUND_ADD, L"サウンドの追加", L"サウンドを追加します", IDCANCEL);
  for (int rows = 2; rows <= 3; ++rows) {
    Answer(sounds, IDC_SOUND_ADD, L"サウンドの追加", L"サウンドを追加します");
    ASSERT_TRUE(HasRows(sounds, IDC_SOUND_ROWS, rows));
  }
  EXPECT_EQ(ListRowText(sounds, IDC_SOUND_ROWS, 2), L"3. とびら.wav (起動条件: 書庫の鍵 = 5)");
  SelectListRow(sounds, IDC_SOUND_ROWS, 0);
  EXPECT_EQ(EditText(sounds, IDC_SOUND_SECONDS), L"20");
  EXPECT_EQ(Chosen(sounds, IDC_SOUND_FILE), 1);
  EXPECT_EQ(Chosen(sounds, IDC_SOUND_REPEAT), 7);
  Answer(sounds, IDC_SOUND_DELETE, L"サウンドの削除", L"サウンドを削除します");
  ASSERT_TRUE(HasRows(sounds, IDC_SOUND_ROWS, 2));
  SelectListRow(sounds, IDC_SOUND_ROWS, 1);
  ChooseText(sounds, IDC_SOUND_FILE, L"小鳥.wav");
  SelectListRow(sounds, IDC_SOUND_REPEAT, 5);
  SelectListRow(sounds, IDC_SOUND_PARA, 0);
  Answer(sounds, IDC_SOUND_CHANGE, L"サウンドの変更", L"サウンドを変更します");
  EXPECT_TRUE(
      WaitFor([&] { return ListRowText(sounds, IDC_SOUND_ROWS, 1) == L"2. 小鳥.wav (起動条件: 未設定)"; }));
  ASSERT_TRUE(EndBy(sounds, IDOK));
}

// The rows of colours and of data are asked for, and dropped.
void ScenarioLooksTest::SetTable() {
  const HWND table = OpenLook(IDC_SNRY_SCENE_TABLE, kTable);
  ASSERT_TRUE(table);
  EXPECT_EQ(EditText(table, IDC_TABLE_ITEM), L"  項  目 ");
  SetChecked(table, IDC_TABLE_ENABLED, true);
  SetChecked(table, IDC_TABLE_HIDE, true);
  ChooseText(table, IDC_TABLE_FORMAT, L"ユーザー設定モード(拡張機能)");
  SelectListRow(table, IDC_TABLE_COLOUR, 2);
  SelectListRow(table, IDC_TABLE_ROW, 3);
  SetEdit(table, IDC_TABLE_ITEM, L"こうもく");
  SetEdit(table, IDC_TABLE_SETTING, L"せってい");
  SetEdit(table, IDC_TABLE_DATA, std::wstring(40, L'表'));  // 63 bytes of it fit
  ASSERT_TRUE(EndBy(table, IDOK));
}

void ScenarioLooksTest::SetKeys() {
  const HWND keys = OpenLook(IDC_SNRY_SCENE_KEYS, kKeys);
  ASSERT_TRUE(keys);
  EXPECT_EQ(ListRowCount(keys, IDC_KEY_KEY), 63);
  EXPECT_EQ(ListRowCount(keys, IDC_KEY_SPEED), 20);
  for (const wchar_t* key : {L"Enter", L"f12"}) {
    ChooseText(keys, IDC_KEY_KEY, key);
    SetEdit(keys, IDC_KEY_NAME, std::wstring(L"動く ") + key);
    ChooseText(keys, IDC_KEY_SPEED, L"2.0秒");
    SelectListRow(keys, IDC_KEY_CAST, 2);
    if (!IsChecked(keys, IDC_KEY_SYNC_START)) PressButton(keys, IDC_KEY_SYNC_START);
    const int rows = ListRowCount(keys, IDC_KEY_ROWS);
    Answer(keys, IDC_KEY_ADD, L"割付の追加", L"キー/マウス割付を追加します");
    ASSERT_TRUE(HasRows(keys, IDC_KEY_ROWS, rows + 1));
  }
  EXPECT_EQ(ListTexts(keys, IDC_KEY_ROWS), (Texts{L"[ Enter ] - 動く Enter", L"[ f12 ] - 動く f12"}));
  // Only a change gives a record the cursor sync.
  SelectListRow(keys, IDC_KEY_ROWS, 1);
  EXPECT_FALSE(IsChecked(keys, IDC_KEY_SYNC_START));
  PressButton(keys, IDC_KEY_SYNC_START);
  PressButton(keys, IDC_KEY_SYNC_END);
  EXPECT_FALSE(IsChecked(keys, IDC_KEY_SYNC_START));
  EXPECT_TRUE(IsChecked(keys, IDC_KEY_SYNC_END));
  PressButton(keys, IDC_KEY_UP_DOWN);
  ChooseText(keys, IDC_KEY_KEY, L"マウス右ドラッグ");
  Answer(keys, IDC_KEY_CHANGE, L"割付の変更", L"キー/マウス割付を変更します。");
  EXPECT_TRUE(
      WaitFor([&] { return ListRowText(keys, IDC_KEY_ROWS, 1) == L"[ マウス右ドラッグ ] - 動く f12"; }));
  SelectListRow(keys, IDC_KEY_ROWS, 1);
  const wchar_t* const values[] = {L"65535", L"-3", L"7"};
  for (int i = 0; i < 3; ++i) {
    SelectListRow(keys, IDC_KEY_PARA, 1 + i);
    SetEdit(keys, IDC_KEY_VALUE, values[i]);
    Answer(keys, IDC_KEY_PLACE_ADD, L"パラメータの追加", L"パラメータを追加");
    ASSERT_TRUE(HasRows(keys, IDC_KEY_PLACES, i + 1));
  }
  SelectListRow(keys, IDC_KEY_PLACES, 2);
  EXPECT_EQ(EditText(keys, IDC_KEY_VALUE), L"7");
  SetEdit(keys, IDC_KEY_VALUE, L"70");
  Answer(keys, IDC_KEY_PLACE_CHANGE, L"パラメータの変更", L"パラメータを変更します。");
  SelectListRow(keys, IDC_KEY_PLACES, 0);
  Answer(keys, IDC_KEY_PLACE_DELETE, L"パラメータの削除", L"パラメータを削除します。");
  EXPECT_TRUE(HasRows(keys, IDC_KEY_PLACES, 2));
  EXPECT_EQ(ListTexts(keys, IDC_KEY_PLACES), (Texts{L"1.なかよし度", L"2.夜になった"}));
  SelectListRow(keys, IDC_KEY_ROWS, 0);
  Answer(keys, IDC_KEY_DELETE, L"割付の削除", L"キー/マウス割付を削除します。");
  ASSERT_TRUE(HasRows(keys, IDC_KEY_ROWS, 1));
  ASSERT_TRUE(EndBy(keys, IDOK));
}

// Up to ten backgrounds; with ten of them a deletion asks.
void ScenarioLooksTest::SetScroll(HWND scroll) {
  SetChecked(scroll, IDC_SCROLL_ENABLED, true);
  EXPECT_EQ(ListRowCount(scroll, IDC_SCROLL_FILES), 8);
  EXPECT_EQ(ListRowText(scroll, IDC_SCROLL_FILES, 0), L"未設定");
  ChooseText(scroll, IDC_SCROLL_FILES, L"丘.bmp");
  PressButton(scroll, IDC_SCROLL_CHANGE);  // no background to change
  for (int i = 0; i < 10; ++i) {
    if (i == 1) ChooseText(scroll, IDC_SCROLL_FILES, L"書庫.bmp");
    Answer(scroll, IDC_SCROLL_ADD, L"スクロール背景追加", L"スクロール背景を追加します");
    ASSERT_TRUE(HasRows(scroll, IDC_SCROLL_CHOSEN, i + 1));
  }
  Answer(scroll, IDC_SCROLL_ADD, L"スクロール背景追加エラー", L"設定できるスクロール背景は最大10個です");
  SelectListRow(scroll, IDC_SCROLL_CHOSEN, 9);
  Answer(scroll, IDC_SCROLL_DELETE, L"スクロール背景削除", L"スクロール背景を削除します");
  for (int left = 8; left >= 2; --left) {
    ASSERT_TRUE(HasRows(scroll, IDC_SCROLL_CHOSEN, left + 1));
    SelectListRow(scroll, IDC_SCROLL_CHOSEN, 1);
    PressButton(scroll, IDC_SCROLL_DELETE);
  }
  SelectListRow(scroll, IDC_SCROLL_CHOSEN, 1);
  ChooseText(scroll, IDC_SCROLL_FILES, L"川べり.bmp");
  Answer(scroll, IDC_SCROLL_CHANGE, L"スクロール背景変更", L"スクロール背景を変更します");
  EXPECT_TRUE(WaitFor([&] {
    return ListTexts(scroll, IDC_SCROLL_CHOSEN) == Texts{L"丘.bmp", L"川べり.bmp"};
  }));

  EXPECT_EQ(ListRowCount(scroll, IDC_SCROLL_SPEED), 26);
  const int directions[] = {IDC_SCROLL_UP, IDC_SCROLL_LEFT, IDC_SCROLL_RIGHT};
  for (int i = 0; i < 3; ++i) {
    SelectListRow(scroll, IDC_SCROLL_PARA, 1 + i);
    SetEdit(scroll, IDC_SCROLL_VALUE, std::to_wstring(60000 + i));
    SelectListRow(scroll, IDC_SCROLL_SPEED, 23 + i);
    PressButton(scroll, directions[i]);
    Answer(scroll, IDC_SCROLL_PLACE_ADD, L"パラメータ追加", L"パラメータを追加します");
    ASSERT_TRUE(HasRows(scroll, IDC_SCROLL_PLACES, i + 1));
  }
  SelectListRow(scroll, IDC_SCROLL_PLACES, 1);
  EXPECT_TRUE(IsChecked(scroll, IDC_SCROLL_LEFT));
  PressButton(scroll, IDC_SCROLL_DOWN);
  Answer(scroll, IDC_SCROLL_PLACE_CHANGE, L"パラメータ変更", L"パラメータを変更します");
  SelectListRow(scroll, IDC_SCROLL_PLACES, 0);
  Answer(scroll, IDC_SCROLL_PLACE_DELETE, L"パラメータ削除", L"パラメータを削除します");
  ASSERT_TRUE(HasRows(scroll, IDC_SCROLL_PLACES, 2));
  SetChecked(scroll, IDC_SCROLL_MANUAL_DOWN, true);
  SetChecked(scroll, IDC_SCROLL_MANUAL_LEFT, true);
  ChooseText(scroll, IDC_SCROLL_CHARACTER, L"若葉のちび竜 メンティ");
  ASSERT_TRUE(EndBy(scroll, IDOK));
}

void ScenarioLooksTest::SetBackdrop() {
  HWND backdrop = OpenLook(IDC_SNRY_SCENE_BACKDROP, kBackdrop);
  ASSERT_TRUE(backdrop);
  EXPECT_EQ(EditText(backdrop, IDC_CAST_BACK), L"広場.bmp");
  EXPECT_EQ(EditText(backdrop, IDC_CAST_RED), L"200");
  ChooseText(backdrop, IDC_CAST_LIST, L"星の広場.bmp");
  PressButton(backdrop, IDC_CAST_BACK_TAKE);
  ChooseText(backdrop, IDC_CAST_LIST, L"窓.bmp");
  PressButton(backdrop, IDC_CAST_DOOR_TAKE);
  SelectListRow(backdrop, IDC_CAST_LIST, 0);
  PressButton(backdrop, IDC_CAST_WINDOW_TAKE);
  EXPECT_EQ(EditText(backdrop, IDC_CAST_WINDOW), L"未設定");
  ChooseText(backdrop, IDC_CAST_DOOR_MODE, L"ドア左右開き");
  ChooseText(backdrop, IDC_CAST_WINDOW_MODE, L"窓上下開き");
  SetEdit(backdrop, IDC_CAST_RED, L"300");
  SetEdit(backdrop, IDC_CAST_GREEN, L"0");
  SetEdit(backdrop, IDC_CAST_BLUE, L"77");
  // The way to the scroll stores it all, and the dialog comes back.
  const HWND scroll = OpenBy(companion_, backdrop, IDC_CAST_SCROLL, kScroll);
  ASSERT_TRUE(scroll);
  SetScroll(scroll);
  backdrop = companion_.Dialog(kBackdrop);
  ASSERT_TRUE(backdrop);
  EXPECT_EQ(EditText(backdrop, IDC_CAST_BACK), L"星の広場.bmp");
  EXPECT_EQ(EditText(backdrop, IDC_CAST_RED), L"255");
  ASSERT_TRUE(EndBy(backdrop, IDOK));
}

void ScenarioLooksTest::ExpectFiles() {
  const FileImage main = SampleMain();
  ASSERT_EQ(main.size(), kMainSize);
  EXPECT_EQ(main[kScenesAt + 594], 4);
  EXPECT_EQ(main[kScenesAt + 596], 1 + 4);
  EXPECT_EQ(main[kScenesAt + 597], 0);
  EXPECT_EQ(Part(main, kScenesAt + 598, 3), (Numbers{255, 0, 77}));

  const FileImage scene = Square();
  const SceneLayout at(scene);
  ASSERT_EQ(scene.size(), at.end);
  EXPECT_EQ(TextAt(scene, at.backdrop), Narrow(L"星の広場.bmp"));
  EXPECT_EQ(TextAt(scene, at.backdrop + 300), Narrow(L"窓.bmp"));
  EXPECT_EQ(TextAt(scene, at.backdrop + 600), "");
  EXPECT_EQ(Part(scene, at.backdrop + 900, 2), (Numbers{1, 2}));

  EXPECT_EQ(scene[at.title], 1);
  EXPECT_EQ(TextAt(scene, at.title + 1), Narrow(std::wstring(63, L'題') + L"a"));
  EXPECT_EQ(Part(scene, at.title + 129, 9), (Numbers{200, 0, 0, 210, 210, 210, 13, 9, 8}));
  EXPECT_EQ(LowFirsts(scene, at.title + 138, 3), (Numbers{9, 2, 123}));

  EXPECT_EQ(scene[at.sounds], 1);
  EXPECT_EQ(LowFirsts(scene, at.sounds + 2, 4), (Numbers{1, 5, 7, 4321}));
  EXPECT_EQ(TextAt(scene, at.sounds + 10), Narrow(L"とびら.wav"));
  EXPECT_EQ(LowFirsts(scene, at.sounds + 310 + 2, 4), (Numbers{0, 5, 5, 4321}));
  EXPECT_EQ(TextAt(scene, at.sounds + 310 + 10), Narrow(L"小鳥.wav"));
  EXPECT_EQ(scene[at.sounds + 620], 0);

  EXPECT_EQ(scene[at.keys], 63);
  EXPECT_EQ(LowFirst(scene, at.keys + 2), 19);
  EXPECT_EQ(LowFirsts(scene, at.keys + 4, 3), (Numbers{2, 3, 0}));
  EXPECT_EQ(LowFirsts(scene, at.keys + 44, 3), (Numbers{0, 70, 0}));
  EXPECT_EQ(TextAt(scene, at.keys + 84), Narrow(L"動く f12"));
  EXPECT_EQ(Part(scene, at.keys + 117, 2), (Numbers{2, 2}));
  EXPECT_EQ(LowFirst(scene, at.keys + 120), 12);
  EXPECT_EQ(scene[at.keys + 138], 0);

  EXPECT_EQ(Part(scene, at.scroll, 5), (Numbers{1, 2, 1, 2, 0}));
  EXPECT_EQ(Part(scene, at.scroll + 22, 3), (Numbers{24, 25, 0}));
  EXPECT_EQ(LowFirsts(scene, at.scroll + 42, 3), (Numbers{2, 3, 0}));
  EXPECT_EQ(LowFirsts(scene, at.scroll + 82, 3), (Numbers{60001, 60002, 0}));
  EXPECT_EQ(TextAt(scene, at.scroll + 155), Narrow(L"丘.bmp"));
  EXPECT_EQ(TextAt(scene, at.scroll + 155 + 256), Narrow(L"川べり.bmp"));
  EXPECT_EQ(TextAt(scene, at.scroll + 155 + 512), "");
  EXPECT_EQ(Part(scene, at.scroll + 2730, 5), (Numbers{0, 1, 0, 1, 3}));

  EXPECT_EQ(TextAt(scene, at.table), Narrow(L"こうもく"));
  EXPECT_EQ(TextAt(scene, at.table + 64), Narrow(L"せってい"));
  EXPECT_EQ(TextAt(scene, at.table + 128), Narrow(std::wstring(31, L'表')) + '\x95');
  EXPECT_EQ(scene[at.table + 192], 0);
  EXPECT_EQ(Part(scene, at.table + 193 + 18, 18),
            (Numbers{255, 255, 255, 0, 0, 250, 0, 0, 250, 0, 0, 250, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(scene[at.table + 232], 0);
  EXPECT_EQ(Part(scene, at.table + 236, 2), (Numbers{0, 7}));
}

void ScenarioLooksTest::ExpectDialogs() {
  const HWND title = OpenLook(IDC_SNRY_SCENE_TITLE, kTitle);
  ASSERT_TRUE(title);
  EXPECT_TRUE(IsChecked(title, IDC_TITLE_SHOWN));
  EXPECT_EQ(EditText(title, IDC_TITLE_TEXT), std::wstring(63, L'題') + L"a");
  EXPECT_EQ(
      (Numbers{Chosen(title, IDC_TITLE_COLOUR), Chosen(title, IDC_TITLE_BACK), Chosen(title, IDC_TITLE_SIZE),
               Chosen(title, IDC_TITLE_STYLE), Chosen(title, IDC_TITLE_METHOD), Chosen(title, IDC_TITLE_TIME),
               Chosen(title, IDC_TITLE_PARA)}),
      (Numbers{5, 9, 13, 9, 8, 9, 2}));
  EXPECT_EQ(EditText(title, IDC_TITLE_VALUE), L"123");
  ASSERT_TRUE(EndBy(title, IDCANCEL));
  const HWND sounds = OpenLook(IDC_SNRY_SCENE_SOUNDS, kSounds);
  ASSERT_TRUE(sounds);
  EXPECT_EQ(ListTexts(sounds, IDC_SOUND_ROWS),
            (Texts{L"1. とびら.wav (起動条件: 書庫の鍵 = 5)", L"2. 小鳥.wav (起動条件: 未設定)"}));
  SelectListRow(sounds, IDC_SOUND_ROWS, 0);
  EXPECT_EQ(EditText(sounds, IDC_SOUND_SECONDS), L"4321");
  ASSERT_TRUE(EndBy(sounds, IDOK));
  const HWND table = OpenLook(IDC_SNRY_SCENE_TABLE, kTable);
  ASSERT_TRUE(table);
  EXPECT_TRUE(IsChecked(table, IDC_TABLE_ENABLED));
  EXPECT_FALSE(IsChecked(table, IDC_TABLE_STAGE));
  EXPECT_TRUE(IsChecked(table, IDC_TABLE_HIDE));
  EXPECT_EQ(Chosen(table, IDC_TABLE_FORMAT), 4);
  EXPECT_EQ(Chosen(table, IDC_TABLE_COLOUR), 0);
  EXPECT_EQ(Chosen(table, IDC_TABLE_ROW), 0);
  EXPECT_EQ(EditText(table, IDC_TABLE_SETTING), L"せってい");
  ASSERT_TRUE(EndBy(table, IDCANCEL));
  const HWND keys = OpenLook(IDC_SNRY_SCENE_KEYS, kKeys);
  ASSERT_TRUE(keys);
  SelectListRow(keys, IDC_KEY_ROWS, 0);
  EXPECT_EQ(EditText(keys, IDC_KEY_NAME), L"動く f12");
  EXPECT_EQ((Numbers{Chosen(keys, IDC_KEY_KEY), Chosen(keys, IDC_KEY_SPEED), Chosen(keys, IDC_KEY_CAST)}),
            (Numbers{62, 19, 2}));
  EXPECT_TRUE(IsChecked(keys, IDC_KEY_SYNC_END));
  EXPECT_FALSE(IsChecked(keys, IDC_KEY_SIDEWARDS));
  EXPECT_TRUE(IsChecked(keys, IDC_KEY_UP_DOWN));
  SelectListRow(keys, IDC_KEY_PLACES, 1);
  EXPECT_EQ(Chosen(keys, IDC_KEY_PARA), 3);
  EXPECT_EQ(EditText(keys, IDC_KEY_VALUE), L"70");
  ASSERT_TRUE(EndBy(keys, IDOK));
  const HWND backdrop = OpenLook(IDC_SNRY_SCENE_BACKDROP, kBackdrop);
  ASSERT_TRUE(backdrop);
  EXPECT_EQ(EditText(backdrop, IDC_CAST_DOOR), L"窓.bmp");
  EXPECT_EQ(EditText(backdrop, IDC_CAST_WINDOW), L"未設定");
  EXPECT_EQ(Chosen(backdrop, IDC_CAST_DOOR_MODE), 1);
  EXPECT_EQ(Chosen(backdrop, IDC_CAST_WINDOW_MODE), 2);
  EXPECT_EQ(EditText(backdrop, IDC_CAST_BLUE), L"77");
  const HWND scroll = OpenBy(companion_, backdrop, IDC_CAST_SCROLL, kScroll);
  ASSERT_TRUE(scroll);
  EXPECT_TRUE(IsChecked(scroll, IDC_SCROLL_ENABLED));
  EXPECT_EQ(ListTexts(scroll, IDC_SCROLL_CHOSEN), (Texts{L"丘.bmp", L"川べり.bmp"}));
  EXPECT_EQ(ListTexts(scroll, IDC_SCROLL_PLACES), (Texts{L"1.なかよし度", L"2.夜になった"}));
  SelectListRow(scroll, IDC_SCROLL_PLACES, 0);
  EXPECT_EQ(EditText(scroll, IDC_SCROLL_VALUE), L"60001");
  EXPECT_EQ(Chosen(scroll, IDC_SCROLL_SPEED), 24);
  EXPECT_TRUE(IsChecked(scroll, IDC_SCROLL_DOWN));
  EXPECT_TRUE(IsChecked(scroll, IDC_SCROLL_MANUAL_DOWN));
  EXPECT_FALSE(IsChecked(scroll, IDC_SCROLL_MANUAL_UP));
  EXPECT_EQ(Chosen(scroll, IDC_SCROLL_CHARACTER), 3);
  ASSERT_TRUE(EndBy(scroll, IDOK));
  const HWND back = companion_.Dialog(kBackdrop);
  ASSERT_TRUE(back);
  ASSERT_TRUE(EndBy(back, IDCANCEL));
}

}  // namespace

TEST_F(ScenarioLooksTest, LooksThatWereSetAreKeptAndReadBackByASecondRun) {
  InARunOfItsOwn([this] {
    SetTitle();
    SetSounds();
    SetTable();
    SetKeys();
    SetBackdrop();
  });
  ExpectFiles();
  const FileImage main = SampleMain();
  const FileImage scene = Square();
  InARunOfItsOwn([this] { ExpectDialogs(); });
  EXPECT_TRUE(SampleMain() == main);
  EXPECT_TRUE(Square() == scene);
}

TEST_F(ScenarioLooksTest, OptionsHaveTheirBoundsAndAreReadBackByASecondRun) {
  companion_.Start();
  rout_ = Load();
  ASSERT_TRUE(rout_);
  HWND options = OpenBy(companion_, rout_, IDC_SNRY_OPTIONS, kOptions);
  ASSERT_TRUE(options);
  EXPECT_EQ(EditText(options, IDC_OPTION_STAGE_WIDTH), L"840");
  EXPECT_EQ(EditText(options, IDC_OPTION_MENU_HEIGHT), L"200");
  SetEdit(options, IDC_OPTION_STAGE_WIDTH, L"1");
  // A cancel drops what was typed, and the status bar that was set meanwhile stays set.
  HWND bar = OpenBy(companion_, options, IDC_OPTION_STATUS_BAR, kStatusBar);
  ASSERT_TRUE(bar);
  SetChecked(bar, IDC_STATUS_SHOWN, true);
  ASSERT_TRUE(EndBy(bar, IDCANCEL));
  bar = OpenBy(companion_, options, IDC_OPTION_STATUS_BAR, kStatusBar);
  ASSERT_TRUE(bar);
  EXPECT_FALSE(IsChecked(bar, IDC_STATUS_SHOWN));
  SetChecked(bar, IDC_STATUS_SHOWN, true);
  ChooseText(bar, IDC_STATUS_TIME, L"2分30秒");
  ASSERT_TRUE(EndBy(bar, IDOK));
  ASSERT_TRUE(EndBy(options, IDCANCEL));
  options = OpenBy(companion_, rout_, IDC_SNRY_OPTIONS, kOptions);
  ASSERT_TRUE(options);
  EXPECT_EQ(EditText(options, IDC_OPTION_STAGE_WIDTH), L"840");
  SetEdit(options, IDC_OPTION_STAGE_WIDTH, L"49");
  SetEdit(options, IDC_OPTION_STAGE_HEIGHT, L"1001");
  SetEdit(options, IDC_OPTION_MENU_WIDTH, L"0");
  SetEdit(options, IDC_OPTION_MENU_HEIGHT, L"9999");
  ChooseText(options, IDC_OPTION_MENU_POSITION, L"右下ポップアップウインドウ");
  ChooseText(options, IDC_OPTION_MENU_FORMAT, L"バック=青  文字=白  枠=赤");
  ChooseText(options, IDC_OPTION_READING, L"1文字/1秒");
  ChooseText(options, IDC_OPTION_BALLOON, L"雲形  バック=グレイ  文字=黒");
  ASSERT_TRUE(EndBy(options, IDOK));
  ASSERT_TRUE(EndBy(rout_, IDOK));
  EXPECT_EQ(companion_.Close(), 0);

  const FileImage main = SampleMain();
  ASSERT_EQ(main.size(), kMainSize);
  EXPECT_EQ(LowFirsts(main, kOptionsAt, 8), (Numbers{50, 0, 1000, 0, 0, 0, 1000, 0}));
  EXPECT_EQ(Part(main, kOptionsAt + 16, 2), (Numbers{16, 8}));
  EXPECT_EQ(LowFirsts(main, kOptionsAt + 20, 2), (Numbers{8, 0}));
  EXPECT_EQ(Part(main, kOptionsAt + 24, 3), (Numbers{11, 1, 8}));

  companion_.Start();
  rout_ = Load();
  ASSERT_TRUE(rout_);
  options = OpenBy(companion_, rout_, IDC_SNRY_OPTIONS, kOptions);
  ASSERT_TRUE(options);
  EXPECT_EQ(EditText(options, IDC_OPTION_STAGE_WIDTH), L"50");
  EXPECT_EQ(EditText(options, IDC_OPTION_STAGE_HEIGHT), L"1000");
  EXPECT_EQ(EditText(options, IDC_OPTION_MENU_WIDTH), L"0");
  EXPECT_EQ(EditText(options, IDC_OPTION_MENU_HEIGHT), L"1000");
  EXPECT_EQ((Numbers{Chosen(options, IDC_OPTION_MENU_POSITION), Chosen(options, IDC_OPTION_MENU_FORMAT),
                     Chosen(options, IDC_OPTION_READING), Chosen(options, IDC_OPTION_BALLOON)}),
            (Numbers{16, 8, 8, 11}));
  bar = OpenBy(companion_, options, IDC_OPTION_STATUS_BAR, kStatusBar);
  ASSERT_TRUE(bar);
  EXPECT_TRUE(IsChecked(bar, IDC_STATUS_SHOWN));
  EXPECT_EQ(Chosen(bar, IDC_STATUS_TIME), 8);
  ASSERT_TRUE(EndBy(bar, IDCANCEL));
  ASSERT_TRUE(EndBy(options, IDCANCEL));
  ASSERT_TRUE(EndBy(rout_, IDCANCEL));
}

// Every dialog of a scene left by Escape, by Alt+F4 and by Enter, which confirms what is
// shown: the scene's file is the same afterwards. A command opens nothing over any of them.
TEST_F(ScenarioLooksTest, EachDialogOfASceneHasItsWaysOutAndKeepsOthersAway) {
  struct Door {
    int button;
    const wchar_t* title;
    bool enterIsHarmless;
  };
  constexpr Door kDoors[] = {
      {IDC_SNRY_CAST_ADD, L"登場キャラクター追加", true},
      {IDC_SNRY_CAST_DELETE, L"登場キャラクター削除", false},
      {IDC_SNRY_CAST_COPY, L"コピーの作成", true},
      {IDC_SNRY_CAST_LINES, L"キャラクター台詞設定", true},
      {IDC_SNRY_CAST_MOTIONS, L"キャラクター動作設定", true},
      {IDC_SNRY_CAST_ENTRY, L"キャラクター登場/退場", true},
      {IDC_SNRY_CAST_DEPTH, L"前後関係と衝突検知", true},
      {IDC_SNRY_SCENE_BACKDROP, L"場面背景設定", true},
      {IDC_SNRY_SCENE_TITLE, L"タイトル画面設定", true},
      {IDC_SNRY_SCENE_SOUNDS, L"サウンド設定", true},
      {IDC_SNRY_SCENE_TABLE, L"表形式選択", true},
      {IDC_SNRY_SCENE_KEYS, L"キー、マウス割付", true},
  };
  const FileImage main = SampleMain();
  const FileImage scene = Square();
  companion_.Start();
  ASSERT_TRUE(LoadScene());
  for (const Door& door : kDoors) {
    for (const Key key : {kEscape, kAltF4, kEnter}) {
      if (key.code == kEnter.code && !door.enterIsHarmless) continue;
      const HWND dialog = OpenFor(0, door.button, door.title);
      ASSERT_TRUE(dialog) << Narrow(door.title);
      if (key.code == kEscape.code) {
        for (const unsigned command : {kScenarioLoad, kScenarioNew, kScenarioDelete})
          companion_.Send(command);
        EXPECT_EQ(companion_.FindDialog(L"シナリオのロード"), nullptr);
        EXPECT_EQ(companion_.FindDialog(L"新規シナリオの作成"), nullptr);
        EXPECT_EQ(companion_.FindDialog(L"シナリオの削除"), nullptr);
      }
      EXPECT_TRUE(EndByKey(dialog, key)) << Narrow(door.title) << " " << key.code;
    }
  }
  ASSERT_TRUE(EndByKey(scene_, kEnter));
  ASSERT_TRUE(EndByKey(folder_, kEnter));
  ASSERT_TRUE(EndByKey(rout_, kEnter));
  EXPECT_TRUE(Square() == scene);
  EXPECT_TRUE(SampleMain() == main);
}
