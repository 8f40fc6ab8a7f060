// The list of scenarios, and what makes sure that it is there.
#include "platform/file.h"
#include "tests/scenario/scenario_fixture.h"

namespace {

class SnryListTest : public ScenarioTest {
 protected:
  static void PutList(const std::string& bytes) {
    MakeFolder("C:\\mirrell\\ワールド");
    PutFile(kListFile, bytes);
  }
  static void SetRows(int count) {
    SnryList.count = count;
    for (int row = 0; row < count; ++row) {
      SnryList.rows[row] = {};
      SnryList.rows[row].used = 1;
      TextFormat(SnryList.rows[row].folder, sizeof SnryList.rows[row].folder, "C:\\話%d", row);
      TextFormat(SnryList.rows[row].title, sizeof SnryList.rows[row].title, "題%d", row);
    }
  }
};

TEST_F(SnryListTest, AnEmptyListIsMadeWithItsFolder) {
  EXPECT_EQ(SnryOpenList(nullptr), 0);
  EXPECT_EQ(FileBytes(kListFile), ListImage({}));
  EXPECT_EQ(FileBytes(kListFile).size(), 50U);
  EXPECT_EQ(SnryList.count, 0);
}

TEST_F(SnryListTest, WhatIsWrittenEqualsAListMadeByHand) {
  SnryOpenList(nullptr);
  SetRows(3);
  EXPECT_EQ(SnryListWrite(), 0);
  const std::string expected = ListImage({{"C:\\話0", "題0"}, {"C:\\話1", "題1"}, {"C:\\話2", "題2"}});
  EXPECT_EQ(expected.size(), 50U + 3 * 464);
  EXPECT_EQ(FileBytes(kListFile), expected);
}

TEST_F(SnryListTest, AListMadeByHandIsRead) {
  PutList(ListImage({{"C:\\a", "甲"}, {"D:\\b", "乙"}}));
  EXPECT_EQ(SnryOpenList(nullptr), 0);
  ASSERT_EQ(SnryList.count, 2);
  EXPECT_STREQ(SnryList.rows[1].folder, "D:\\b");
  EXPECT_STREQ(SnryList.rows[1].title, "乙");
  EXPECT_EQ(SnryList.rows[0].used, 1);
}

// "A list file with a count above 1024 yields 1024 rows."
TEST_F(SnryListTest, ACountAbove1024Yields1024Rows) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (int i = 0; i < 1030; ++i) rows.emplace_back("C:\\" + std::to_string(i), "t");
  PutList(ListImage(rows));
  EXPECT_EQ(SnryOpenList(nullptr), 0);
  EXPECT_EQ(SnryList.count, 1024);
  EXPECT_STREQ(SnryList.rows[1023].folder, "C:\\1023");
}

TEST_F(SnryListTest, ACountThatNoFileCouldHoldIsReadAs1024Too) {
  std::string image = ListImage(std::vector<std::pair<std::string, std::string>>(1024, {"C:\\", "t"}));
  At(image, 46, Big32(0xFFFFFFFF));
  PutList(image);
  EXPECT_EQ(SnryOpenList(nullptr), 0);
  EXPECT_EQ(SnryList.count, 1024);
}

TEST_F(SnryListTest, AFullListTakesNoFurtherScenario) {
  SetRows(1024);
  Scenario.listIndex = 1024;
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, kTale);
  SnryListPut();
  EXPECT_EQ(SnryList.count, 1024);
  EXPECT_STREQ(SnryList.rows[1023].folder, "C:\\話1023");
}

TEST_F(SnryListTest, ARowIsPutInItsPlaceOrBehindTheOthers) {
  SetRows(2);
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, kTale);
  TextCopy(SnryMain.title, sizeof SnryMain.title, "物語");
  Scenario.listIndex = 2;
  SnryListPut();
  EXPECT_EQ(SnryList.count, 3);
  EXPECT_STREQ(SnryList.rows[2].folder, kTale);
  EXPECT_STREQ(SnryList.rows[2].title, "物語");
  TextCopy(SnryMain.title, sizeof SnryMain.title, "次の題");
  SnryListPut();
  EXPECT_EQ(SnryList.count, 3);
  EXPECT_STREQ(SnryList.rows[2].title, "次の題");
}

TEST_F(SnryListTest, ARowOfAnotherScenarioIsNeverTaken) {
  SetRows(2);
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, kTale);
  Scenario.listIndex = 0;  // as a list that did not open leaves it
  SnryListPut();
  ASSERT_EQ(SnryList.count, 3);
  EXPECT_STREQ(SnryList.rows[0].folder, "C:\\話0");
  EXPECT_STREQ(SnryList.rows[2].folder, kTale);
}

TEST_F(SnryListTest, AScenarioIsAddedOnceToAListThatWasMadeAnew) {
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, kTale);
  Scenario.listIndex = 5;  // of the list before
  for (int save = 0; save < 2; ++save) SnryListPut();
  EXPECT_EQ(SnryList.count, 1);
}

TEST_F(SnryListTest, ARowIsFoundByItsWholeFolder) {
  SetRows(12);
  EXPECT_EQ(SnryListFind("C:\\話11"), 11);
  EXPECT_EQ(SnryListFind("C:\\話"), -1);
}

TEST_F(SnryListTest, ARowReadsTitleThenPath) {
  SetRows(1);
  char text[100];
  SnryListRowText(0, text, sizeof text);
  EXPECT_STREQ(text, "[題0]-C:\\話0");
  SnryListRowText(0, text, 3);  // "[" and half of a character
  EXPECT_STREQ(text, "[");
}

TEST_F(SnryListTest, AWrongListIsMadeAnewWhenTheUserAgrees) {
  PutList("これはリストではありません。これはリストではありません。");
  ExpectBox("シナリオメインリストファイルが正しくありません。削除して新規作成しますか?",
            "シナリオリスト読み込みエラー", BoxAnswer::Ok);
  EXPECT_EQ(SnryOpenList(nullptr), 0);
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::OkCancel);
  EXPECT_EQ(FileBytes(kListFile), ListImage({}));
}

TEST_F(SnryListTest, AWrongListThatIsKeptCannotBeOpened) {
  PutList("short");
  ExpectBox("シナリオメインリストファイルが正しくありません。削除して新規作成しますか?",
            "シナリオリスト読み込みエラー", BoxAnswer::Cancel);
  ExpectBox("シナリオメインリストファイルを開けません", "シナリオセーブ失敗");
  EXPECT_EQ(SnryOpenList(nullptr), -4);
  EXPECT_EQ(FileBytes(kListFile), "short");
}

TEST_F(SnryListTest, EachStepThatFailsIsTold) {
  FaultArm(FaultKind::Folder, 1);
  ExpectBox("シナリオメインフォルダーを作成できません", "シナリオセーブ失敗");
  EXPECT_EQ(SnryOpenList(nullptr), -1);
  FaultArm(FaultKind::Create, 1);
  ExpectBox("シナリオメインリストファイルを作成できません", "シナリオセーブ失敗");
  EXPECT_EQ(SnryOpenList(nullptr), -2);
  FaultClear();
  PutList("short");
  FaultArm(FaultKind::Create, 1);
  ExpectBox("シナリオメインリストファイルが正しくありません。削除して新規作成しますか?",
            "シナリオリスト読み込みエラー", BoxAnswer::Ok);
  ExpectBox("シナリオメインリストファイルを作成できません", "シナリオセーブ失敗");
  EXPECT_EQ(SnryOpenList(nullptr), -3);
  EXPECT_FALSE(FileThere(kListFile));
}

// "SnryOpenList leaves the current directory at the world folder."
TEST_F(SnryListTest, TheWorldIsTheCurrentFolderThen) {
  SnryOpenList(nullptr);
  char current[300];
  FolderGetCurrent(current, sizeof current);
  EXPECT_STREQ(current, "C:\\mirrell\\ワールド");
}

TEST_F(SnryListTest, EachWriteThatFailsLeavesWhatCameBefore) {
  SnryOpenList(nullptr);
  SetRows(40);  // the rows need two transfers
  const std::string whole = [] {
    std::vector<std::pair<std::string, std::string>> rows;
    for (int i = 0; i < 40; ++i) rows.emplace_back("C:\\話" + std::to_string(i), "題" + std::to_string(i));
    return ListImage(rows);
  }();
  std::size_t before = 0;
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Write, nth);
    const int result = SnryListWrite();
    const bool met = FaultWasMet();
    FaultClear();
    const std::string left = FileBytes(kListFile);
    EXPECT_EQ(left, whole.substr(0, left.size()));
    EXPECT_GT(left.size(), before);
    before = left.size();
    EXPECT_EQ(result, met ? -1 : 0);
    if (!met) break;
    EXPECT_LT(left.size(), whole.size());
  }
  EXPECT_EQ(FileBytes(kListFile), whole);
}

TEST_F(SnryListTest, AListCutAnywhereIsShort) {
  const std::string whole = ListImage({{"C:\\a", "甲"}, {"D:\\b", "乙"}});
  for (std::size_t cut = 0; cut < whole.size(); cut += cut < 60 ? 1 : 23) {
    PutList(whole.substr(0, cut));
    EXPECT_EQ(SnryListRead(), -3) << cut;
  }
}

TEST_F(SnryListTest, MutatedListsDoNoHarm) {
  const std::string whole = ListImage({{"C:\\a", "甲"}, {"D:\\b", "乙"}, {"E:\\c", "丙"}});
  std::uint32_t seed = 71;
  const auto next = [&seed] { return seed = seed * 1664525U + 1013904223U; };
  MakeFolder("C:\\mirrell\\ワールド");
  for (int round = 0; round < 400; ++round) {
    std::string bytes = whole;
    for (unsigned i = 0; i <= next() % 4; ++i)
      bytes[(next() >> 8U) % bytes.size()] = static_cast<char>(next() >> 24U);
    PutFile(kListFile, bytes);
    SnryListRead();
    ASSERT_GE(SnryList.count, 0);
    ASSERT_LE(SnryList.count, 1024);
    char text[600];
    for (int row = 0; row < SnryList.count; ++row) SnryListRowText(row, text, sizeof text);
  }
}

}  // namespace
