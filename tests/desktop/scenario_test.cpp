// Scenarios made, kept and edited through the real dialogs.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include <prsht.h>

#include "resources/scenario_logic_ids.h"
#include "resources/scenario_storage_ids.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/scenario_fixture.h"

namespace {

constexpr std::size_t kSceneSize = 35 + 181800 + 47200 + 37600 + 4 + 902 + 154 + 62000 + 15200 + 2760 + 2736 +
                                   10800 + 248;  // without lines and cast

FileImage MainFile() {
  FileImage bytes(kMainSize);
  PutText(bytes, 0, L"ソルナーデリオン シナリオメイン設定ファイル");
  PutText(bytes, 343, L"見本の話");
  return bytes;
}

FileImage SceneFile() {
  FileImage bytes(kSceneSize);
  PutText(bytes, 0, L"ソルナーデリオン-場面データファイル");
  return bytes;
}

class ScenarioTest : public ScenarioFixture {
 protected:
  std::wstring Tale(const std::wstring& name = L"") const { return companion_.File(L"物語" + name); }

  // A scenario of the list, with its main file and the folder of its scenes.
  void PutTale(const FileImage& main) {
    CreateDirectoryW(companion_.File(L"ワールド").c_str(), nullptr);
    CreateDirectoryW(Tale().c_str(), nullptr);
    CreateDirectoryW(Tale(L"\\序章").c_str(), nullptr);
    FileImage list(50 + 464);
    PutText(list, 0, L"ソルナーデリオン メインシナリオファイル リスト");
    list[49] = 1;
    list[50] = 1;
    PutText(list, 51, Tale());
    PutText(list, 50 + 301, L"見本の話");
    WriteWholeFile(companion_.File(L"ワールド\\SNRYLIST.sli"), list);
    WriteWholeFile(Tale(L"\\シナリオメイン.cff"), main);
    WriteWholeFile(Tale(L"\\序章\\町.scd"), SceneFile());
  }
  FileImage TaleMain() const {
    FileImage main = MainFile();
    main[473] = 1;
    main[474] = 1;
    PutText(main, 474 + 68, Tale(L"\\序章"));
    main[15355] = 1;
    main[kScenesAt] = 1;
    PutText(main, kScenesAt + 602, L"町の朝");
    PutText(main, kScenesAt + 682, L"町.scd");
    return main;
  }

  HWND OpenSheet(HWND scene) {
    return OpenBy(companion_, scene, IDC_SNRY_SCENE_ADVANCE, L"場面進行方法設定");
  }
  static HWND Page(HWND sheet, int page) {
    SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
    HWND shown = nullptr;
    WaitFor([&] {
      shown = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
      return shown && IsWindowVisible(shown);
    });
    return shown;
  }
  // Presses a button that asks, and agrees.
  void Agree(HWND dialog, int button, const std::wstring& caption) {
    PostButton(dialog, button);
    AnswerBox(companion_, caption);
  }
  void AddPara(HWND rout, const std::wstring& name, const std::wstring& initial) {
    const HWND dialog = OpenBy(companion_, rout, IDC_SNRY_PARA_ADD, L"パラメータ追加");
    ASSERT_TRUE(dialog);
    SetEdit(dialog, IDC_PARA_NAME, name);
    SetEdit(dialog, IDC_PARA_INITIAL, initial);
    SetEdit(dialog, IDC_PARA_COMMENT, name + L"の説明");
    if (initial == L"2") PressButton(dialog, IDC_PARA_SAVE);
    ASSERT_TRUE(EndBy(dialog, 1));
  }
  // Ten items with a parameter each; the eleventh is refused.
  void FillMenu(HWND page) {
    SetChecked(page, IDC_PAGE_ENABLED, true);
    SelectListRow(page, IDC_PAGE_START_PARA, 2);
    SetEdit(page, IDC_PAGE_START_VALUE, L"-5");
    SelectListRow(page, IDC_MENU_METHOD, 4);
    SelectListRow(page, IDC_MENU_LABEL1, 10);
    SelectListRow(page, IDC_MENU_PARA1, 3);
    SetEdit(page, IDC_MENU_VALUE1, L"999");
    for (int i = 0; i < 10; ++i) {
      SetEdit(page, IDC_MENU_TEXT, L"項目" + std::to_wstring(i + 1));
      Agree(page, IDC_MENU_ADD, L"メニューの追加");
      ASSERT_TRUE(WaitFor([&] { return ListRowCount(page, IDC_MENU_ITEMS) == i + 1; }));
      SelectListRow(page, IDC_PAGE_PARA, 1 + i % 3);
      SetEdit(page, IDC_PAGE_VALUE, std::to_wstring(i));
      Agree(page, IDC_PAGE_PARA_ADD, L"パラメータの追加");
      ASSERT_TRUE(WaitFor([&] { return ListRowCount(page, IDC_PAGE_PLACES) == 1; }));
    }
    PostButton(page, IDC_MENU_ADD);
    EXPECT_EQ(AnswerBox(companion_, L"メニュー追加の中止"), L"メニューの最大数10項目を超えました");
  }
  void FillEvent(HWND page) {
    SetChecked(page, IDC_PAGE_ENABLED, true);
    SetEdit(page, IDC_EVENT_NAME, L"合い言葉");
    SetChecked(page, IDC_EVENT_NAME_SHOWN, true);
    SendDlgItemMessageW(page, IDC_EVENT_TIME, BM_SETCHECK, BST_UNCHECKED, 0);
    SetChecked(page, IDC_EVENT_TEXT, true);
    SetEdit(page, IDC_EVENT_COMPARISON, L"開けごま");
    SetEdit(page, IDC_EVENT_LOWEST, L"1");
    SetEdit(page, IDC_EVENT_HIGHEST, L"12");
    SetEdit(page, IDC_EVENT_MINUTES, L"3");
    SetEdit(page, IDC_EVENT_SECONDS, L"45");
    SelectListRow(page, IDC_PAGE_PARA, 3);
    SetEdit(page, IDC_PAGE_VALUE, L"7");
    SelectListRow(page, IDC_EVENT_SIGN, 1);
    SelectListRow(page, IDC_EVENT_OPERATION, 4);
    Agree(page, IDC_PAGE_PARA_ADD, L"パラメータの追加");
    EXPECT_TRUE(WaitFor([&] { return ListRowCount(page, IDC_PAGE_PLACES) == 1; }));
    EXPECT_EQ(ListRowText(page, IDC_PAGE_PLACES, 0), L"1. 宝");
  }
  void FillRandom(HWND page) {
    SetChecked(page, IDC_PAGE_ENABLED, true);
    SetEdit(page, IDC_RANDOM_INTERVAL, L"50");
    SetChecked(page, IDC_RANDOM_MODE_RANGE, false);
    SetChecked(page, IDC_RANDOM_MODE_SUM, true);
    SelectListRow(page, IDC_PAGE_PARA, 2);
    SetEdit(page, IDC_RANDOM_LOWEST, L"1");
    SetEdit(page, IDC_RANDOM_HIGHEST, L"6");
    SetEdit(page, IDC_RANDOM_COUNT, L"2");
    SelectListRow(page, IDC_RANDOM_OPERATION, 5);
    SelectListRow(page, IDC_RANDOM_OTHER, 1);
    Agree(page, IDC_PAGE_PARA_ADD, L"パラメータの追加");
    EXPECT_TRUE(WaitFor([&] { return ListRowCount(page, IDC_PAGE_PLACES) == 1; }));
  }
};

// Nothing of a page is cut off.
void ExpectWhole(HWND page) {
  RECT client{};
  GetClientRect(page, &client);
  for (HWND control = GetWindow(page, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
    RECT at{};
    GetWindowRect(control, &at);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&at), 2);
    EXPECT_LE(at.right, client.right) << GetDlgCtrlID(control);
    EXPECT_LE(at.bottom, client.bottom) << GetDlgCtrlID(control);
  }
}

// The folder, its scene and what they hold, typed through the dialogs of the first run.
void ExpectMain(const FileImage& main) {
  ASSERT_EQ(main.size(), kMainSize);
  EXPECT_EQ(TextAt(main, 343), Narrow(L"大冒険"));
  EXPECT_EQ(main[473], 1);
  EXPECT_EQ(TextAt(main, 474 + 368), Narrow(L"はじまり"));
  EXPECT_EQ(LowFirst(main, 474 + 2), 3);
  EXPECT_EQ(LowFirst(main, 474 + 22), 65531);
  EXPECT_EQ(main[15355], 1);
  EXPECT_EQ(TextAt(main, kScenesAt + 602), Narrow(L"町の夜"));
  EXPECT_EQ(TextAt(main, kScenesAt + 682), Narrow(L"シーン1.scd"));
  EXPECT_EQ(main[1734177], 3);
  EXPECT_EQ(TextAt(main, kParasAt + 6), Narrow(L"鍵"));
  EXPECT_EQ(TextAt(main, kParasAt + 270 + 70), Narrow(L"扉の説明"));
  EXPECT_EQ(main[kParasAt + 270 + 268], 2);
  EXPECT_EQ(LowFirst(main, kParasAt + 540 + 2), 300);
}

void ExpectScene(const FileImage& scene) {
  ASSERT_EQ(scene.size(), kSceneSize);
  EXPECT_EQ(scene[35], 1);
  EXPECT_EQ(LowFirst(scene, 35 + 2), 2);
  EXPECT_EQ(LowFirst(scene, 35 + 4), 65531);
  EXPECT_EQ(scene[35 + 6], 10);
  EXPECT_EQ(LowFirst(scene, 35 + 8), 3);
  EXPECT_EQ(LowFirst(scene, 35 + 12), 999);
  EXPECT_EQ(scene[35 + 16], 4);
  EXPECT_EQ(scene[35 + 17], 10);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(LowFirst(scene, 35 + 18 + 40 * i), static_cast<int>(1 + i % 3)) << i;
    EXPECT_EQ(LowFirst(scene, 35 + 418 + 40 * i), static_cast<int>(i)) << i;
    EXPECT_EQ(TextAt(scene, 35 + 818 + 100 * i), Narrow(L"項目" + std::to_wstring(i + 1)));
  }
  const std::size_t event = 181835;
  EXPECT_EQ(scene[event], 1);
  EXPECT_EQ(scene[event + 6], 0);
  EXPECT_EQ(TextAt(scene, event + 7), Narrow(L"開けごま"));
  EXPECT_EQ(LowFirst(scene, event + 42), 12);
  EXPECT_EQ(scene[event + 44], 3);
  EXPECT_EQ(scene[event + 45], 45);
  EXPECT_EQ(LowFirst(scene, event + 50), 3);
  EXPECT_EQ(LowFirst(scene, event + 90), 7);
  EXPECT_EQ(scene[event + 130], 1);
  EXPECT_EQ(scene[event + 150], 4);
  EXPECT_EQ(scene[event + 170], 1);
  EXPECT_EQ(TextAt(scene, event + 171), Narrow(L"合い言葉"));
  const std::size_t random = 229035;
  EXPECT_EQ(scene[random], 1);
  EXPECT_EQ(LowFirst(scene, random + 6), 50);
  EXPECT_EQ(LowFirst(scene, random + 8), 2);
  EXPECT_EQ(LowFirst(scene, random + 48), 1);
  EXPECT_EQ(LowFirst(scene, random + 50), 6);
  EXPECT_EQ(LowFirst(scene, random + 128), 2);
  EXPECT_EQ(scene[random + 168], 2);
  const std::size_t extension = 266639 + 902 + 154 + 62000;
  EXPECT_EQ(scene[extension + 6], 6);
  EXPECT_EQ(LowFirst(scene, extension + 26), 1);
}

}  // namespace

TEST_F(ScenarioTest, AScenarioMadeByHandIsKeptAndReadBackByASecondRun) {
  companion_.Start();
  companion_.Post(kScenarioNew);
  const HWND make = companion_.Dialog(L"新規シナリオの作成");
  ASSERT_TRUE(make);
  SetEdit(make, IDC_SNRY_NEW_NAME, L"冒険");
  PostButton(make, 1);
  EXPECT_EQ(AnswerBox(companion_, L"新規シナリオファイルを作成"), L"シナリオファイルを新規作成しました");
  HWND rout = companion_.Dialog(L"シナリオ設定");
  ASSERT_TRUE(rout);
  EXPECT_EQ(EditText(rout, IDC_SNRY_TITLE), L"無題");
  SetEdit(rout, IDC_SNRY_TITLE, L"大冒険");
  AddPara(rout, L"鍵", L"1");
  AddPara(rout, L"扉", L"2");
  AddPara(rout, L"宝", L"300");
  EXPECT_EQ(ListRowText(rout, IDC_SNRY_PARAS, 1), L"2. 扉(&Save)");

  const HWND place = OpenBy(companion_, rout, IDC_SNRY_FOLDER_NEW, L"シナリオフォルダー新規作成");
  ASSERT_TRUE(place);
  SetEdit(place, IDC_SNRY_FOLDER_NAME, L"第一章");
  PostButton(place, 1);
  EXPECT_EQ(AnswerBox(companion_, L"シナリオフォルダー新規作成"), L"フォルダーを新規作成しました");
  ASSERT_TRUE(WaitFor([&] { return ListRowCount(rout, IDC_SNRY_FOLDERS) == 1; }));
  const HWND folder = OpenFolder(rout);
  ASSERT_TRUE(folder);
  SetEdit(folder, IDC_SNRY_FOLDER_NAME, L"はじまり");
  const HWND start = OpenBy(companion_, folder, IDC_SNRY_FOLDER_START, L"シナリオ起動条件");
  ASSERT_TRUE(start);
  SelectListRow(start, IDC_START_PARA, 3);
  SetEdit(start, IDC_START_VALUE, L"-5");
  ASSERT_TRUE(EndBy(start, 1));
  const HWND file = OpenBy(companion_, folder, IDC_SNRY_SCENE_NEW, L"場面ファイル新規作成");
  ASSERT_TRUE(file);
  EXPECT_EQ(EditText(file, IDC_SNRY_SCENE_FILE), L"シーン1");
  PostButton(file, 1);
  EXPECT_EQ(AnswerBox(companion_, L"新規場面ファイル作成"), L"新規にファイルを作成しました");
  ASSERT_TRUE(WaitFor([&] { return ListRowCount(folder, IDC_SNRY_SCENES) == 1; }));

  const HWND scene = OpenScene(folder);
  ASSERT_TRUE(scene);
  SetEdit(scene, IDC_SNRY_SCENE_NAME, L"町の夜");
  const HWND sheet = OpenSheet(scene);
  ASSERT_TRUE(sheet);
  for (const int page : {0, 1, 2}) ExpectWhole(Page(sheet, page));
  FillMenu(Page(sheet, 0));
  FillEvent(Page(sheet, 1));
  FillRandom(Page(sheet, 2));
  ASSERT_TRUE(EndBy(sheet, IDOK));
  ASSERT_TRUE(EndBy(scene, 1));
  EXPECT_EQ(ListRowText(folder, IDC_SNRY_SCENES, 0), L"[シーン1.scd]-町の夜");
  ASSERT_TRUE(EndBy(folder, 1));
  ASSERT_TRUE(EndBy(rout, 1));
  EXPECT_EQ(companion_.Close(), 0);

  const std::wstring tale = companion_.File(L"ワールド\\冒険");
  const FileImage main = ReadWholeFile(tale + L"\\シナリオメイン.cff");
  const FileImage scenario = ReadWholeFile(tale + L"\\第一章\\シーン1.scd");
  ExpectMain(main);
  ExpectScene(scenario);

  // The second run shows what was typed, and saves the same bytes again.
  companion_.Start();
  rout = Load();
  ASSERT_TRUE(rout);
  EXPECT_EQ(EditText(rout, IDC_SNRY_TITLE), L"大冒険");
  EXPECT_EQ(ListRowText(rout, IDC_SNRY_PARAS, 2), L"3. 宝");
  EXPECT_EQ(ListRowText(rout, IDC_SNRY_FOLDERS, 0), L"[第一章]-はじまり");
  const HWND again = OpenFolder(rout);
  const HWND sceneAgain = OpenScene(again);
  ASSERT_TRUE(sceneAgain);
  EXPECT_EQ(EditText(sceneAgain, IDC_SNRY_SCENE_NAME), L"町の夜");
  const HWND sheetAgain = OpenSheet(sceneAgain);
  ASSERT_TRUE(sheetAgain);
  const HWND menu = Page(sheetAgain, 0);
  EXPECT_EQ(ListRowCount(menu, IDC_MENU_ITEMS), 10);
  EXPECT_EQ(EditText(menu, IDC_PAGE_START_VALUE), L"65531");
  EXPECT_EQ(Chosen(menu, IDC_PAGE_START_PARA), 2);
  SelectListRow(menu, IDC_MENU_ITEMS, 9);
  EXPECT_EQ(EditText(menu, IDC_MENU_TEXT), L"項目10");
  EXPECT_EQ(ListRowText(menu, IDC_PAGE_PLACES, 0), L"1.鍵");
  const HWND event = Page(sheetAgain, 1);
  EXPECT_EQ(EditText(event, IDC_EVENT_NAME), L"合い言葉");
  EXPECT_EQ(EditText(event, IDC_EVENT_COMPARISON), L"開けごま");
  EXPECT_TRUE(IsDlgButtonChecked(event, IDC_EVENT_TEXT));
  SelectListRow(event, IDC_PAGE_PLACES, 0);
  EXPECT_EQ(Chosen(event, IDC_EVENT_OPERATION), 4);
  const HWND random = Page(sheetAgain, 2);
  SelectListRow(random, IDC_PAGE_PLACES, 0);
  EXPECT_EQ(EditText(random, IDC_RANDOM_HIGHEST), L"6");
  EXPECT_EQ(Chosen(random, IDC_RANDOM_OPERATION), 5);
  EXPECT_TRUE(IsDlgButtonChecked(random, IDC_RANDOM_MODE_SUM));
  ASSERT_TRUE(EndBy(sheetAgain, IDCANCEL));
  ASSERT_TRUE(EndBy(sceneAgain, 1));
  ASSERT_TRUE(EndBy(again, 1));
  ASSERT_TRUE(EndBy(rout, 1));
  EXPECT_EQ(companion_.Close(), 0);
  EXPECT_TRUE(ReadWholeFile(tale + L"\\シナリオメイン.cff") == main);
  EXPECT_TRUE(ReadWholeFile(tale + L"\\第一章\\シーン1.scd") == scenario);
}

TEST_F(ScenarioTest, ACancelOfTheSheetTakesEverythingBack) {
  PutTale(TaleMain());
  companion_.Start();
  const HWND rout = Load();
  ASSERT_TRUE(rout);
  const HWND folder = OpenFolder(rout);
  const HWND scene = OpenScene(folder);
  ASSERT_TRUE(scene);
  for (const int apply : {0, 1}) {
    const HWND sheet = OpenSheet(scene);
    ASSERT_TRUE(sheet);
    const HWND menu = Page(sheet, 0);
    EXPECT_EQ(EditText(menu, IDC_PAGE_NUMBER), L"1");
    SetEdit(menu, IDC_PAGE_START_VALUE, L"77");
    SetChecked(menu, IDC_PAGE_ENABLED, true);
    PressButton(menu, IDC_PAGE_DOWN);
    EXPECT_EQ(EditText(menu, IDC_PAGE_NUMBER), L"100");
    PressButton(menu, IDC_PAGE_UP);
    EXPECT_EQ(EditText(menu, IDC_PAGE_START_VALUE), L"77");
    const HWND random = Page(sheet, 2);
    SetEdit(random, IDC_RANDOM_INTERVAL, L"9");
    if (apply == 1) PressButton(sheet, 0x3021);
    ASSERT_TRUE(EndBy(sheet, IDCANCEL));
  }
  ASSERT_TRUE(EndBy(scene, 1));
  ASSERT_TRUE(EndBy(folder, 2));
  ASSERT_TRUE(EndBy(rout, 2));
  EXPECT_TRUE(ReadWholeFile(Tale(L"\\序章\\町.scd")) == SceneFile());
}

TEST_F(ScenarioTest, ThirtyFoldersAndFiftyScenesAreTheLimits) {
  FileImage main = TaleMain();
  main[473] = 30;
  for (std::size_t i = 1; i < 30; ++i) {
    main[474 + 496 * i] = 1;
    PutText(main, 474 + 496 * i + 68, Tale(L"\\章" + std::to_wstring(i)));
  }
  main[15355] = 50;
  for (std::size_t i = 1; i < 50; ++i) {
    main[kScenesAt + 982 * i] = 1;
    PutText(main, kScenesAt + 982 * i + 682, std::to_wstring(i) + L".scd");
  }
  PutTale(main);
  companion_.Start();
  const HWND rout = Load();
  ASSERT_TRUE(rout);
  EXPECT_EQ(ListRowCount(rout, IDC_SNRY_FOLDERS), 30);
  EXPECT_EQ(ListRowText(rout, IDC_SNRY_FOLDERS, 29), L"[章29]-");
  PostButton(rout, IDC_SNRY_FOLDER_NEW);
  EXPECT_EQ(AnswerBox(companion_, L"新規フォルダー作成"), L"シナリオフォルダー数リミットの30個を超えました");
  const HWND folder = OpenFolder(rout);
  ASSERT_TRUE(folder);
  EXPECT_EQ(ListRowCount(folder, IDC_SNRY_SCENES), 50);
  PostButton(folder, IDC_SNRY_SCENE_NEW);
  EXPECT_EQ(AnswerBox(companion_, L"新規場面ファイル作成"), L"場面数リミットの50個を超えました");
  ASSERT_TRUE(EndBy(folder, 2));
  ASSERT_TRUE(EndBy(rout, 1));
  EXPECT_TRUE(ReadWholeFile(Tale(L"\\シナリオメイン.cff")).size() == kMainSize);
}

TEST_F(ScenarioTest, AMainFileThatMayNotBeWrittenStays) {
  PutTale(TaleMain());
  SetFileAttributesW(Tale(L"\\シナリオメイン.cff").c_str(), FILE_ATTRIBUTE_READONLY);
  companion_.Start();
  const HWND rout = Load();
  ASSERT_TRUE(rout);
  SetEdit(rout, IDC_SNRY_TITLE, L"別の題");
  PostButton(rout, IDC_SNRY_SAVE);
  EXPECT_EQ(AnswerBox(companion_, L"シナリオセーブエラー"), L"シナリオファイルに書き込めません!");
  ASSERT_TRUE(EndBy(rout, 2));
  EXPECT_TRUE(ReadWholeFile(Tale(L"\\シナリオメイン.cff")) == TaleMain());
}

TEST_F(ScenarioTest, AFileThatIsNoMainFileIsNotTouched) {
  PutTale(FileImage(5000, 'x'));
  companion_.Start();
  companion_.Post(kScenarioLoad);
  const HWND load = companion_.Dialog(L"シナリオのロード");
  ASSERT_TRUE(load);
  SelectListRow(load, IDC_SNRY_LIST, 0);
  PostButton(load, 1);
  EXPECT_EQ(AnswerBox(companion_, L"シナリオファイルロードエラー"),
            L"シナリオファイルーが正しくありません。");
  const HWND rout = companion_.Dialog(L"シナリオ設定");
  ASSERT_TRUE(rout);
  PostButton(rout, IDC_SNRY_SAVE);
  EXPECT_EQ(AnswerBox(companion_, L"シナリオセーブエラー"), L"シナリオファイルに書き込めません!");
  ASSERT_TRUE(EndBy(rout, 2));
  EXPECT_TRUE(ReadWholeFile(Tale(L"\\シナリオメイン.cff")) == FileImage(5000, 'x'));
}
