// The cast of a scene through its real dialogs: who is in it, how often, what they say
// and do, when they come and go.
#include <gtest/gtest.h>

#include "resources/scenario_cast_ids.h"
#include "resources/scenario_storage_ids.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/pointer.h"
#include "tests/desktop/scenario_fixture.h"

namespace {

// The sample's first scene: characters 1, 8 and 12, and two copies of the last.
const std::wstring kSquare = L"森の朝\\広場.scd";
const std::wstring kMilru = L"どんぐり配達員 ミルル";
const std::wstring kFrog = L"かっぱ着のかえる ケロップ";
const std::wstring kFrogNamed = kFrog + L" [登場名: かえる]";

const std::wstring kAdd = L"登場キャラクター追加";
const std::wstring kDelete = L"登場キャラクター削除";
const std::wstring kCopies = L"コピーの作成";
const std::wstring kLines = L"キャラクター台詞設定";
const std::wstring kMotions = L"キャラクター動作設定";
const std::wstring kEntry = L"キャラクター登場/退場";
const std::wstring kDepth = L"前後関係と衝突検知";

// Places in the record of a member, and of a scene in the main file.
constexpr std::size_t kEntryAt = 4;
constexpr std::size_t kMotionsAt = 17;
constexpr std::size_t kMotionParasAt = 118;
constexpr std::size_t kMotionValuesAt = 318;
constexpr std::size_t kLinesAt = 518;
constexpr std::size_t kLineParasAt = 718;
constexpr std::size_t kLineValuesAt = 918;
constexpr std::size_t kLineEndsAt = 1118;
constexpr std::size_t kEndParasAt = 1218;
constexpr std::size_t kEndValuesAt = 1418;
constexpr std::size_t kStandAt = 1618;
constexpr std::size_t kCastCountAt = kScenesAt + 68;
constexpr std::size_t kCastAt = kScenesAt + 70;

using Numbers = std::vector<int>;

class ScenarioCastTest : public ScenarioFixture {
 protected:
  FileImage Square() const { return ReadWholeFile(Sample(kSquare)); }
  Texts Cast() const { return ListTexts(scene_, IDC_SNRY_CAST); }

  void SetCopies(int row, const std::wstring& count) {
    const HWND dialog = OpenFor(row, IDC_SNRY_CAST_COPY, kCopies);
    ASSERT_TRUE(dialog);
    SetEdit(dialog, IDC_CAST_COPIES, count);
    PostButton(dialog, IDOK);
    // Question and dialog have the same title.
    EXPECT_EQ(AnswerBox(companion_, kCopies), L"設定数分のコピーを作成します");
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
  }
  void TypeLine(HWND dialog, const std::wstring& text, int para, const std::wstring& value, int end,
                int endPara, const std::wstring& endValue) {
    SetEdit(dialog, IDC_CAST_LINE_TEXT, text);
    SelectListRow(dialog, IDC_CAST_START_PARA, para);
    SetEdit(dialog, IDC_CAST_START_VALUE, value);
    SelectListRow(dialog, IDC_CAST_LINE_END, end);
    SelectListRow(dialog, IDC_CAST_END_PARA, endPara);
    SetEdit(dialog, IDC_CAST_END_VALUE, endValue);
  }
  void TypeMotion(HWND dialog, const std::wstring& figure, int para, const std::wstring& value) {
    ChooseText(dialog, IDC_CAST_FIGURE, figure);
    SelectListRow(dialog, IDC_CAST_START_PARA, para);
    SetEdit(dialog, IDC_CAST_START_VALUE, value);
  }
  bool HasRows(HWND dialog, int count) {
    return WaitFor([&] { return ListRowCount(dialog, IDC_CAST_LIST) == count; });
  }
  void Say(HWND dialog) { Answer(dialog, IDC_CAST_ADD, L"台詞の追加", L"台詞を追加します。"); }

  // What the first test sets, dialog by dialog.
  void SetMembers();
  void SetLines();
  void SetMotions();
  void SetEntry();
  void SetDepth();
  void ExpectFiles();
  void ExpectDialogs();
};

// 3 joins, 1 gets two copies, one copy of 12 goes, 8 leaves its place empty.
void ScenarioCastTest::SetMembers() {
  const HWND add = OpenBy(companion_, scene_, IDC_SNRY_CAST_ADD, kAdd);
  ASSERT_TRUE(add);
  EXPECT_EQ(ListTexts(add, IDC_CAST_LIST), (Texts{L"1. 書庫番ふくろう ホーリオ [登場名: 書庫番]",
                                                  L"2. 若葉のちび竜 メンティ [登場名: ちび竜]",
                                                  L"3. 月夜のトビネズミ ツキハ [登場名: 月の使い]",
                                                  L"4. すずめ郵便 ピチュ便 [登場名: すずめ便]"}));
  SelectListRow(add, IDC_CAST_LIST, 1);
  EXPECT_EQ(EditText(add, IDC_CAST_NAME), L"若葉のちび竜 メンティ");
  EXPECT_EQ(EditText(add, IDC_CAST_STAGE_NAME), L"ちび竜");
  ASSERT_TRUE(EndBy(add, IDOK));
  EXPECT_TRUE(WaitFor([&] { return Cast().size() == 6; }));

  const HWND copies = OpenFor(0, IDC_SNRY_CAST_COPY, kCopies);
  ASSERT_TRUE(copies);
  EXPECT_EQ(EditText(copies, IDC_CAST_COPIES), L"0");
  EXPECT_EQ(EditText(copies, IDC_CAST_COPIES_MOST), L"198");
  ASSERT_TRUE(EndBy(copies, IDCANCEL));
  SetCopies(0, L"2");
  SetCopies(4, L"1");
  EXPECT_TRUE(WaitFor([&] { return Cast().size() == 7; }));

  const HWND leave = OpenFor(3, IDC_SNRY_CAST_DELETE, kDelete);
  ASSERT_TRUE(leave);
  EXPECT_EQ(EditText(leave, IDC_CAST_NAME), L"予定係ハムスター コロモン");
  ASSERT_TRUE(EndBy(leave, IDOK));
  EXPECT_TRUE(WaitFor([&] { return Cast().size() == 6; }));
}

void ScenarioCastTest::SetLines() {
  const HWND lines = OpenFor(0, IDC_SNRY_CAST_LINES, kLines);
  ASSERT_TRUE(lines);
  EXPECT_EQ(EditText(lines, IDC_CAST_NAME), kMilru);
  EXPECT_EQ(EditText(lines, IDC_CAST_STAGE_NAME), L"配達員");
  TypeLine(lines, L"二つめ", 2, L"1234", 3, 3, L"7");
  Say(lines);
  ASSERT_TRUE(HasRows(lines, 2));
  TypeLine(lines, std::wstring(89, L'あ') + L"xy", 0, L"0", 4, 0, L"0");
  Say(lines);
  ASSERT_TRUE(HasRows(lines, 3));
  EXPECT_EQ(ListTexts(lines, IDC_CAST_LIST),
            (Texts{L"「おはよう! どんぐりを届けにきたよ」", L"「二つめ」-> なかよし度=1234",
                   L"「" + std::wstring(16, L'あ') + L"」"}));
  // The field is emptied, the lines stay.
  PressButton(lines, IDC_CAST_CLEAR);
  EXPECT_EQ(EditText(lines, IDC_CAST_LINE_TEXT), L"");
  Say(lines);
  EXPECT_TRUE(HasRows(lines, 3));
  SelectListRow(lines, IDC_CAST_LIST, 1);
  EXPECT_EQ(EditText(lines, IDC_CAST_LINE_TEXT), L"二つめ");
  EXPECT_EQ(Chosen(lines, IDC_CAST_LINE_END), 3);
  SetEdit(lines, IDC_CAST_LINE_TEXT, L"言い直し");
  Answer(lines, IDC_CAST_CHANGE, L"台詞の変更", L"台詞を変更します。");
  SelectListRow(lines, IDC_CAST_LIST, 0);
  Answer(lines, IDC_CAST_DELETE, L"台詞の削除", L"台詞を削除します。", IDCANCEL);
  Answer(lines, IDC_CAST_DELETE, L"台詞の削除", L"台詞を削除します。");
  ASSERT_TRUE(HasRows(lines, 2));
  ASSERT_TRUE(EndBy(lines, IDCANCEL));
}

// A copy has its character's figures, and its motions from the start.
void ScenarioCastTest::SetMotions() {
  const HWND motions = OpenFor(1, IDC_SNRY_CAST_MOTIONS, kMotions);
  ASSERT_TRUE(motions);
  EXPECT_EQ(EditText(motions, IDC_CAST_NAME), kMilru + L"のコピー1");
  EXPECT_EQ(ListRowCount(motions, IDC_CAST_FIGURE), 10);
  ASSERT_TRUE(HasRows(motions, 10));
  TypeMotion(motions, L"びっくり", 1, L"55");
  Answer(motions, IDC_CAST_ADD, L"動作の追加", L"動作を追加します。");
  ASSERT_TRUE(HasRows(motions, 11));
  SelectListRow(motions, IDC_CAST_LIST, 0);
  TypeMotion(motions, L"もぐもぐ", 3, L"1");
  Answer(motions, IDC_CAST_CHANGE, L"動作の変更", L"動作を変更します。");
  SelectListRow(motions, IDC_CAST_LIST, 1);
  Answer(motions, IDC_CAST_DELETE, L"動作の削除", L"動作を削除します。");
  ASSERT_TRUE(HasRows(motions, 10));
  EXPECT_EQ(ListRowText(motions, IDC_CAST_LIST, 0), L"[ もぐもぐ ]-> 夜になった=1");
  EXPECT_EQ(ListRowText(motions, IDC_CAST_LIST, 9), L"[ びっくり ]-> 書庫の鍵=55");
  ASSERT_TRUE(EndBy(motions, IDCANCEL));
}

void ScenarioCastTest::SetEntry() {
  const HWND entry = OpenFor(1, IDC_SNRY_CAST_ENTRY, kEntry);
  ASSERT_TRUE(entry);
  EXPECT_EQ(EditText(entry, IDC_CAST_X), L"100");
  EXPECT_EQ(EditText(entry, IDC_CAST_Y), L"280");
  SelectListRow(entry, IDC_CAST_START_PARA, 2);
  SetEdit(entry, IDC_CAST_START_VALUE, L"6");
  SelectListRow(entry, IDC_CAST_ENTRY, 15);
  SetEdit(entry, IDC_CAST_X, L"1999");
  SetEdit(entry, IDC_CAST_Y, L"-20");
  SetChecked(entry, IDC_CAST_SCROLL_SYNC, true);
  SetChecked(entry, IDC_CAST_SCORE, true);
  ChooseText(entry, IDC_CAST_SYNC, L"5. " + kFrog + L"のコピー1 [登場名: かえる]");
  SelectListRow(entry, IDC_CAST_END_PARA, 3);
  SetEdit(entry, IDC_CAST_END_VALUE, L"999");
  SelectListRow(entry, IDC_CAST_EXIT, 11);
  ASSERT_TRUE(EndBy(entry, IDOK));
}

void ScenarioCastTest::SetDepth() {
  const HWND depth = OpenFor(3, IDC_SNRY_CAST_DEPTH, kDepth);
  ASSERT_TRUE(depth);
  EXPECT_EQ(EditText(depth, IDC_CAST_NAME), kFrog);
  SelectListRow(depth, IDC_CAST_DEPTH, 3);
  SelectListRow(depth, IDC_CAST_COLLISION, 4);
  ASSERT_TRUE(EndBy(depth, IDOK));
}

void ScenarioCastTest::ExpectFiles() {
  const FileImage main = SampleMain();
  ASSERT_EQ(main.size(), kMainSize);
  EXPECT_EQ(LowFirst(main, kCastCountAt), 7);
  EXPECT_EQ(LowFirsts(main, kCastAt, 8), (Numbers{1, 514, 515, 0, 12, 513, 3, 0}));

  const FileImage scene = Square();
  const SceneLayout at(scene);
  ASSERT_EQ(scene.size(), at.end);
  EXPECT_EQ(at.lines, 5);
  EXPECT_EQ(at.casts, 515);
  EXPECT_EQ(scene[at.Line(1)], 0);
  EXPECT_EQ(TextAt(scene, at.Line(4) + 1), Narrow(L"言い直し"));
  EXPECT_EQ(TextAt(scene, at.Line(5) + 1), Narrow(std::wstring(89, L'あ') + L"x"));

  // The ends of lines stay at their places when the line before them goes.
  const std::size_t first = at.Cast(1);
  EXPECT_EQ(scene[first + 3], 2);
  EXPECT_EQ(LowFirsts(scene, first + kLinesAt, 3), (Numbers{4, 5, 0}));
  EXPECT_EQ(LowFirsts(scene, first + kLineParasAt, 3), (Numbers{2, 0, 0}));
  EXPECT_EQ(LowFirsts(scene, first + kLineValuesAt, 3), (Numbers{1234, 0, 0}));
  EXPECT_EQ(scene[first + kLineEndsAt], 1);
  EXPECT_EQ(scene[first + kLineEndsAt + 1], 3);
  EXPECT_EQ(scene[first + kLineEndsAt + 2], 4);
  EXPECT_EQ(LowFirsts(scene, first + kEndParasAt, 3), (Numbers{0, 3, 0}));
  EXPECT_EQ(LowFirsts(scene, first + kEndValuesAt, 3), (Numbers{0, 7, 0}));

  const std::size_t copy = at.Cast(514);
  EXPECT_EQ(LowFirst(scene, copy), 1);
  EXPECT_EQ(scene[copy + 3], 0);
  EXPECT_EQ(LowFirsts(scene, copy + kEntryAt, 6), (Numbers{2, 6, 15, 3, 999, 11}));
  // Of the ten figures 1 to 10 the first is 10 now, the second went, and 7 stands at the end.
  EXPECT_EQ((Numbers(scene.begin() + static_cast<std::ptrdiff_t>(copy + kMotionsAt),
                     scene.begin() + static_cast<std::ptrdiff_t>(copy + kMotionsAt + 11))),
            (Numbers{10, 3, 4, 5, 6, 7, 8, 9, 10, 7, 0}));
  EXPECT_EQ(LowFirsts(scene, copy + kMotionParasAt, 10), (Numbers{3, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(LowFirsts(scene, copy + kMotionValuesAt, 10), (Numbers{1, 0, 0, 0, 0, 0, 0, 0, 0, 55}));
  EXPECT_EQ(LowFirsts(scene, copy + kLinesAt, 3), (Numbers{0, 0, 0}));
  EXPECT_EQ(LowFirsts(scene, copy + kStandAt, 2), (Numbers{1999, 65516}));
  EXPECT_EQ(scene[copy + 1622], 1);
  EXPECT_EQ(scene[copy + 1624], 1);
  EXPECT_EQ(LowFirst(scene, copy + 1626), 513);
  EXPECT_EQ(LowFirst(scene, at.Cast(515)), 1);
  EXPECT_EQ(scene[at.Cast(515) + 3], 1);
  EXPECT_EQ(LowFirst(scene, at.Cast(513)), 12);

  EXPECT_EQ(scene[at.Cast(12) + 3], 1);
  EXPECT_EQ(scene[at.Cast(12) + 1625], 3);
  EXPECT_EQ(scene[at.Cast(12) + 1623], 4);
}

void ScenarioCastTest::ExpectDialogs() {
  EXPECT_EQ(
      Cast(),
      (Texts{L"1. " + kMilru + L" [登場名: 配達員]", L"2. " + kMilru + L"のコピー1 [登場名: 配達員]",
             L"3. " + kMilru + L"のコピー2 [登場名: 配達員]", L"4. " + kFrogNamed,
             L"5. " + kFrog + L"のコピー1 [登場名: かえる]", L"6. 若葉のちび竜 メンティ [登場名: ちび竜]"}));
  const HWND lines = OpenFor(0, IDC_SNRY_CAST_LINES, kLines);
  ASSERT_TRUE(lines);
  EXPECT_EQ(ListTexts(lines, IDC_CAST_LIST),
            (Texts{L"「言い直し」-> なかよし度=1234", L"「" + std::wstring(16, L'あ') + L"」"}));
  SelectListRow(lines, IDC_CAST_LIST, 1);
  EXPECT_EQ(EditText(lines, IDC_CAST_LINE_TEXT), std::wstring(89, L'あ') + L"x");
  EXPECT_EQ(Chosen(lines, IDC_CAST_START_PARA), 0);
  EXPECT_EQ(Chosen(lines, IDC_CAST_LINE_END), 3);
  EXPECT_EQ(Chosen(lines, IDC_CAST_END_PARA), 3);
  EXPECT_EQ(EditText(lines, IDC_CAST_END_VALUE), L"7");
  ASSERT_TRUE(EndBy(lines, IDCANCEL));
  const HWND motions = OpenFor(1, IDC_SNRY_CAST_MOTIONS, kMotions);
  ASSERT_TRUE(motions);
  SelectListRow(motions, IDC_CAST_LIST, 9);
  EXPECT_EQ(ListRowText(motions, IDC_CAST_FIGURE, Chosen(motions, IDC_CAST_FIGURE)), L"びっくり");
  EXPECT_EQ(Chosen(motions, IDC_CAST_START_PARA), 1);
  EXPECT_EQ(EditText(motions, IDC_CAST_START_VALUE), L"55");
  ASSERT_TRUE(EndBy(motions, IDCANCEL));
  const HWND entry = OpenFor(1, IDC_SNRY_CAST_ENTRY, kEntry);
  ASSERT_TRUE(entry);
  EXPECT_EQ(Chosen(entry, IDC_CAST_START_PARA), 2);
  EXPECT_EQ(EditText(entry, IDC_CAST_START_VALUE), L"6");
  EXPECT_EQ(ListRowText(entry, IDC_CAST_ENTRY, Chosen(entry, IDC_CAST_ENTRY)), L"同期キャラクタ位置の-X,-Y");
  EXPECT_EQ(EditText(entry, IDC_CAST_X), L"1999");
  EXPECT_EQ(EditText(entry, IDC_CAST_Y), L"65516");
  EXPECT_TRUE(IsChecked(entry, IDC_CAST_SCROLL_SYNC));
  EXPECT_TRUE(IsChecked(entry, IDC_CAST_SCORE));
  EXPECT_EQ(Chosen(entry, IDC_CAST_SYNC), 4);
  EXPECT_EQ(Chosen(entry, IDC_CAST_END_PARA), 3);
  EXPECT_EQ(EditText(entry, IDC_CAST_END_VALUE), L"999");
  EXPECT_EQ(ListRowText(entry, IDC_CAST_EXIT, Chosen(entry, IDC_CAST_EXIT)), L"現在位置で消える");
  ASSERT_TRUE(EndBy(entry, IDCANCEL));
  const HWND depth = OpenFor(3, IDC_SNRY_CAST_DEPTH, kDepth);
  ASSERT_TRUE(depth);
  EXPECT_EQ(ListRowText(depth, IDC_CAST_DEPTH, Chosen(depth, IDC_CAST_DEPTH)), L"レベル3 = (手前)");
  EXPECT_EQ(ListRowText(depth, IDC_CAST_COLLISION, Chosen(depth, IDC_CAST_COLLISION)),
            L"レベルが同じキャラクタ衝突で相手移動に同期");
  ASSERT_TRUE(EndBy(depth, IDCANCEL));
}

}  // namespace

TEST_F(ScenarioCastTest, ACastThatWasSetIsKeptAndReadBackByASecondRun) {
  InARunOfItsOwn([this] {
    SetMembers();
    SetLines();
    SetMotions();
    SetEntry();
    SetDepth();
  });
  ExpectFiles();
  const FileImage main = SampleMain();
  const FileImage scene = Square();
  InARunOfItsOwn([this] { ExpectDialogs(); });
  EXPECT_TRUE(SampleMain() == main);
  EXPECT_TRUE(Square() == scene);
}

TEST_F(ScenarioCastTest, TwoHundredCopiesAreTheLimitOfAllTogether) {
  companion_.Start();
  ASSERT_TRUE(LoadScene());
  // Neither is a copy removed by itself nor copied.
  SelectListRow(scene_, IDC_SNRY_CAST, 3);
  Answer(scene_, IDC_SNRY_CAST_DELETE, L"キャラクタ削除の無効",
         L"コピーキャラクタはコピー数の変更で調整できます");
  Answer(scene_, IDC_SNRY_CAST_COPY, L"キャラクタコピーの無効", L"コピーキャラクタはコピー出来ません");

  const HWND copies = OpenFor(2, IDC_SNRY_CAST_COPY, kCopies);
  ASSERT_TRUE(copies);
  EXPECT_EQ(EditText(copies, IDC_CAST_COPIES), L"2");
  EXPECT_EQ(EditText(copies, IDC_CAST_COPIES_MOST), L"200");
  SetEdit(copies, IDC_CAST_COPIES, L"201");
  Answer(copies, IDOK, L"コピー数設定エラー", L"コピー最大数を超えています。");
  SetEdit(copies, IDC_CAST_COPIES, L"3");
  Answer(copies, IDOK, kCopies, L"設定数分のコピーを作成します", IDCANCEL);
  ASSERT_TRUE(IsWindow(copies));
  // The number that there is closes the dialog without a question.
  SetEdit(copies, IDC_CAST_COPIES, L"2");
  ASSERT_TRUE(EndBy(copies, IDOK));
  EXPECT_EQ(Cast().size(), 5U);

  // What is left is for the others: more of them is refused, as the number says.
  SetCopies(2, L"180");
  EXPECT_TRUE(WaitFor([&] { return Cast().size() == 183; }));
  EXPECT_EQ(Cast().back(), L"183. " + kFrog + L"のコピー180 [登場名: かえる]");
  const HWND rest = OpenFor(0, IDC_SNRY_CAST_COPY, kCopies);
  ASSERT_TRUE(rest);
  EXPECT_EQ(EditText(rest, IDC_CAST_COPIES_MOST), L"20");
  SetEdit(rest, IDC_CAST_COPIES, L"21");
  Answer(rest, IDOK, L"コピー数設定エラー", L"コピー最大数を超えています。");
  ASSERT_TRUE(EndBy(rest, IDCANCEL));

  // With the character go all of its copies.
  const HWND leave = OpenFor(2, IDC_SNRY_CAST_DELETE, kDelete);
  ASSERT_TRUE(leave);
  ASSERT_TRUE(EndBy(leave, IDOK));
  EXPECT_TRUE(WaitFor([&] { return Cast().size() == 2; }));
  EndScene();
  EXPECT_EQ(companion_.Close(), 0);
  EXPECT_EQ(LowFirst(SampleMain(), kCastCountAt), 2);
  EXPECT_EQ(LowFirsts(SampleMain(), kCastAt, 4), (Numbers{1, 8, 0, 0}));
  EXPECT_EQ(SceneLayout(Square()).casts, 8);
}

TEST_F(ScenarioCastTest, ACancelDropsWhatWasSetAndASceneThatIsLeftIsNotWritten) {
  const FileImage main = SampleMain();
  const FileImage scene = Square();
  companion_.Start();
  ASSERT_TRUE(LoadScene());
  const HWND add = OpenBy(companion_, scene_, IDC_SNRY_CAST_ADD, kAdd);
  ASSERT_TRUE(add);
  SelectListRow(add, IDC_CAST_LIST, 0);
  ASSERT_TRUE(EndBy(add, IDCANCEL));
  const HWND leave = OpenFor(0, IDC_SNRY_CAST_DELETE, kDelete);
  ASSERT_TRUE(leave);
  ASSERT_TRUE(EndBy(leave, IDCANCEL));
  const HWND copies = OpenFor(0, IDC_SNRY_CAST_COPY, kCopies);
  ASSERT_TRUE(copies);
  SetEdit(copies, IDC_CAST_COPIES, L"9");
  ASSERT_TRUE(EndBy(copies, IDCANCEL));
  const HWND entry = OpenFor(0, IDC_SNRY_CAST_ENTRY, kEntry);
  ASSERT_TRUE(entry);
  SelectListRow(entry, IDC_CAST_ENTRY, 7);
  SetEdit(entry, IDC_CAST_X, L"3");
  ASSERT_TRUE(EndBy(entry, IDCANCEL));
  const HWND depth = OpenFor(0, IDC_SNRY_CAST_DEPTH, kDepth);
  ASSERT_TRUE(depth);
  SelectListRow(depth, IDC_CAST_DEPTH, 2);
  ASSERT_TRUE(EndBy(depth, IDCANCEL));
  EXPECT_EQ(Cast().size(), 5U);
  // Confirmed, none of that is in the files.
  ASSERT_TRUE(EndBy(scene_, IDOK));
  EXPECT_TRUE(Square() == scene);

  // Lines and motions count with the scene; it is left without them.
  scene_ = OpenScene(folder_);
  ASSERT_TRUE(scene_);
  const HWND lines = OpenFor(0, IDC_SNRY_CAST_LINES, kLines);
  ASSERT_TRUE(lines);
  TypeLine(lines, L"言わない", 0, L"0", 0, 0, L"0");
  Answer(lines, IDC_CAST_ADD, L"台詞の追加", L"台詞を追加します。", IDCANCEL);
  EXPECT_TRUE(HasRows(lines, 1));
  Say(lines);
  EXPECT_TRUE(HasRows(lines, 2));
  ASSERT_TRUE(EndBy(lines, IDCANCEL));
  EndScene(IDCANCEL);
  EXPECT_TRUE(Square() == scene);
  EXPECT_TRUE(SampleMain() == main);
  // Opened once more, it says what its file says.
  ASSERT_TRUE(LoadScene());
  const HWND again = OpenFor(0, IDC_SNRY_CAST_LINES, kLines);
  ASSERT_TRUE(again);
  EXPECT_EQ(ListRowCount(again, IDC_CAST_LIST), 1);
  ASSERT_TRUE(EndBy(again, IDCANCEL));
  EndScene(IDCANCEL);
}

TEST_F(ScenarioCastTest, ALineIsTypedOnTheKeyboard) {
  PointerAway();
  companion_.Start();
  ASSERT_TRUE(LoadScene());
  const HWND lines = OpenFor(1, IDC_SNRY_CAST_LINES, kLines);
  ASSERT_TRUE(lines);
  // Alt and the letters behind the words lead to the fields; a value takes four digits.
  KeyPress("alt+t");
  ASSERT_TRUE(GetsFocus(lines, IDC_CAST_LINE_TEXT));
  KeysType("hello");
  EXPECT_TRUE(WaitFor([&] { return EditText(lines, IDC_CAST_LINE_TEXT) == L"hello"; }));
  KeyPress("alt+j");
  ASSERT_TRUE(GetsFocus(lines, IDC_CAST_START_PARA));
  KeyPress("Down");
  EXPECT_TRUE(WaitFor([&] { return Chosen(lines, IDC_CAST_START_PARA) == 1; }));
  KeyPress("alt+v");
  ASSERT_TRUE(GetsFocus(lines, IDC_CAST_START_VALUE));
  KeysType("12345");
  EXPECT_TRUE(WaitFor([&] { return EditText(lines, IDC_CAST_START_VALUE).size() == 4; }));
  SetEdit(lines, IDC_CAST_START_VALUE, L"77");
  Say(lines);
  ASSERT_TRUE(HasRows(lines, 2));
  EXPECT_EQ(ListRowText(lines, IDC_CAST_LIST, 1), L"「hello」-> 書庫の鍵=77");
  KeyPress("alt+x");
  EXPECT_TRUE(WaitFor([&] { return !IsWindow(lines); }));
  EndScene(IDCANCEL);
}
