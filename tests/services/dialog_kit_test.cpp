// The kit of dialogs: forms, tables of acts, rows, the list editor, progress.
#include <cstring>

#include "platform/window.h"
#include "services/dialog_acts.h"
#include "services/form.h"
#include "services/list_editor.h"
#include "services/progress.h"
#include "tests/support/desktop.h"
#include "tests/support/places.h"
#include "tests/support/test_dialogs.h"

namespace {

using Names = std::vector<std::string>;

bool Silent(const Event&) {
  return false;
}

class KitTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    HeadlessResourceFile(kTestResourceFile);
  }
};

// A form that stands open while a test lasts.
class FormTest : public KitTest {
 protected:
  void SetUp() override {
    KitTest::SetUp();
    dialog_ = DialogOpen(IDD_TestForm, nullptr, Silent);
    WindowShow(dialog_, true);
  }
  void TearDown() override {
    WindowDestroy(dialog_);
    KitTest::TearDown();
  }
  WindowHandle dialog_ = nullptr;
};

// --- Rows

constexpr const char* kSizes[] = {"大", "中", "小"};

TEST_F(FormTest, RowsComeFromATableAFunctionOrNumbers) {
  RowsShow(dialog_, 30, RowsOf(kSizes), 1);
  EXPECT_EQ(ListRows(dialog_, 30), (Names{"大", "中", "小"}));
  EXPECT_EQ(ListSelected(dialog_, 30), 1);
  RowsShow(dialog_, 30, RowsOf(3, [](int row, char* text, int size) {
             std::snprintf(text, static_cast<std::size_t>(size), "<%d>", row);
           }));
  EXPECT_EQ(ListRows(dialog_, 30), (Names{"<0>", "<1>", "<2>"}));
  RowsShow(dialog_, 30, RowsOf(3, [](int row, char* text, int) {
             text[0] = static_cast<char>('a' + row);
             text[1] = '\0';
             return row != 1;
           }));
  EXPECT_EQ(ListRows(dialog_, 30), (Names{"a", "c"}));
  EXPECT_EQ(ListSelected(dialog_, 30), -1);
  RowsShow(dialog_, 30, kHourRows, 23);
  EXPECT_EQ(ListCount(dialog_, 30), 24);
  EXPECT_EQ(ListRows(dialog_, 30)[9], " 9");
  EXPECT_EQ(ListRows(dialog_, 30)[23], "23");
  EXPECT_EQ(ListSelected(dialog_, 30), 23);
  RowsShow(dialog_, 30, kMinuteRows, 60);
  EXPECT_EQ(ListCount(dialog_, 30), 60);
  EXPECT_EQ(ListSelected(dialog_, 30), -1);
}

TEST_F(FormTest, RowsAreDrawnOnce) {
  const int before = ListDrawings(dialog_, 30);
  RowsShow(dialog_, 30, kMinuteRows);
  EXPECT_EQ(ListDrawings(dialog_, 30), before + 1);
}

// --- Forms

struct Sample {
  std::uint8_t enabled = 1;
  std::uint16_t flags = 0x0105;
  char name[8] = {'a', 'b', 'c', '\0', 'x', 'x', 'x', 'x'};
  std::uint16_t value = 42;
  std::int32_t size = 2;
  std::uint8_t kind = 1;
};

constexpr int kKinds[] = {25, 26};

void Exchange(Form& form, Sample& sample) {
  form.Check(20, sample.enabled);
  form.Bit(21, sample.flags, std::uint16_t{4});
  form.Text(22, sample.name, 7);
  form.Number(23, sample.value, 3);
  form.Choice(24, sample.size, RowsOf(kSizes));
  form.Radio(kKinds, sample.kind);
}

TEST_F(FormTest, ShowsARecord) {
  Sample sample;
  FormShow(dialog_, sample, Exchange);
  EXPECT_TRUE(ControlIsChecked(dialog_, 20));
  EXPECT_TRUE(ControlIsChecked(dialog_, 21));
  EXPECT_EQ(ControlText(dialog_, 22), "abc");
  EXPECT_EQ(ControlText(dialog_, 23), "42");
  EXPECT_EQ(ControlText(dialog_, 24), "小");
  EXPECT_FALSE(ControlIsChecked(dialog_, 25));
  EXPECT_TRUE(ControlIsChecked(dialog_, 26));
}

TEST_F(FormTest, WhatWasShownIsTakenBackByteForByte) {
  Sample sample;
  FormShow(dialog_, sample, Exchange);
  Sample taken = sample;
  FormTake(dialog_, taken, Exchange);
  EXPECT_EQ(taken.enabled, 1);
  EXPECT_EQ(taken.flags, 0x0105);
  EXPECT_EQ(std::memcmp(taken.name, sample.name, sizeof taken.name), 0);
  EXPECT_EQ(taken.value, 42);
  EXPECT_EQ(taken.size, 2);
  EXPECT_EQ(taken.kind, 1);
}

TEST_F(FormTest, TakesWhatTheUserHasChanged) {
  Sample sample;
  FormShow(dialog_, sample, Exchange);
  Press(dialog_, 20);
  Press(dialog_, 21);
  Type(dialog_, 22, "日本語名");  // 8 bytes, of which 7 are taken
  Type(dialog_, 23, "1234");      // three characters can be typed
  ChooseRow(dialog_, 24, 0);
  Press(dialog_, 25);
  FormTake(dialog_, sample, Exchange);
  EXPECT_EQ(sample.enabled, 0);
  EXPECT_EQ(sample.flags, 0x0101);
  EXPECT_EQ(std::string(sample.name), std::string("日本語名").substr(0, 7));
  EXPECT_EQ(sample.value, 123);
  EXPECT_EQ(sample.size, 0);
  EXPECT_EQ(sample.kind, 0);
}

TEST_F(FormTest, NumbersFollowTheRuleOfTheSystem) {
  Sample sample;
  FormShow(dialog_, sample, Exchange);
  Type(dialog_, 23, "-5");
  FormTake(dialog_, sample, Exchange);
  EXPECT_EQ(sample.value, 65531);
  Type(dialog_, 23, "1a");  // "a" lies 49 above "0"
  FormTake(dialog_, sample, Exchange);
  EXPECT_EQ(sample.value, 59);
  Type(dialog_, 23, "");
  FormTake(dialog_, sample, Exchange);
  EXPECT_EQ(sample.value, 0);
}

TEST_F(FormTest, ANumberThatIsLongerThanItsFieldStaysUntilAnotherIsTyped) {
  Sample sample;
  FormShow(dialog_, sample, Exchange);
  Type(dialog_, 23, "-5");
  FormTake(dialog_, sample, Exchange);
  FormShow(dialog_, sample, Exchange);
  EXPECT_EQ(ControlText(dialog_, 23), "65531");
  FormTake(dialog_, sample, Exchange);
  EXPECT_EQ(sample.value, 65531);
  ControlSetText(dialog_, 23, "65532");  // as if a digit of it were typed over
  FormTake(dialog_, sample, Exchange);
  EXPECT_EQ(sample.value, 655);
}

void Bounded(Form& form, std::int32_t& value) {
  form.NumberIn(23, value, 3, 0, 60, "%02d");
}

TEST_F(FormTest, NumberIsHeldBetweenItsBounds) {
  std::int32_t value = 7;
  FormShow(dialog_, value, Bounded);
  EXPECT_EQ(ControlText(dialog_, 23), "07");
  Type(dialog_, 23, "61");
  FormTake(dialog_, value, Bounded);
  EXPECT_EQ(value, 60);
  Type(dialog_, 23, "-1");
  FormTake(dialog_, value, Bounded);
  EXPECT_EQ(value, 0);
}

TEST_F(FormTest, NumberBeyondTheRowsShowsNoneAndStays) {
  Sample sample;
  sample.size = 9;
  sample.kind = 2;
  FormShow(dialog_, sample, Exchange);
  EXPECT_EQ(ListSelected(dialog_, 24), -1);
  FormTake(dialog_, sample, Exchange);
  EXPECT_EQ(sample.size, 9);
  EXPECT_EQ(sample.kind, 2);
}

struct Full {
  char name[4] = {'a', 'b', 'c', 'd'};
  char behind = 'z';
};
void ExchangeFull(Form& form, Full& full) {
  form.Text(22, full.name, 4);
}

TEST_F(FormTest, TextMayFillItsFieldToTheLastByte) {
  Full full;
  FormShow(dialog_, full, ExchangeFull);
  EXPECT_EQ(ControlText(dialog_, 22), "abcd");
  Type(dialog_, 22, "vwxyz");
  FormTake(dialog_, full, ExchangeFull);
  EXPECT_EQ(std::string(full.name, 4), "vwxy");
  EXPECT_EQ(full.behind, 'z');
  Type(dialog_, 22, "v");
  FormTake(dialog_, full, ExchangeFull);
  EXPECT_EQ(std::string(full.name, 4), std::string("v\0xy", 4));
}

// --- Acts

Names done;

constexpr DialogAct kActs[] = {
    {EventKind::Init, [](const Event&) { done.emplace_back("init"); }},
    {31, [] { done.emplace_back("added"); }},
    {32, [](WindowHandle dialog) { done.push_back("deleted " + std::to_string(TemplateOf(dialog))); }},
    {30, EventKind::Chosen, [](const Event& event) { done.push_back("chosen " + std::to_string(event.id)); }},
    {30, EventKind::Opened, [] { done.emplace_back("opened"); }},
    {31, [] { done.emplace_back("never"); }},
    {Command::WorkStep, [] { done.emplace_back("command"); }},
};
bool Acting(const Event& event) {
  return DialogActRun(event, kActs);
}

TEST_F(KitTest, TheFirstActThatFitsIsRun) {
  done.clear();
  const WindowHandle dialog = DialogOpen(IDD_TestForm, nullptr, Acting);
  WindowShow(dialog, true);
  ListAdd(dialog, 30, "a");
  Press(dialog, 31);
  Press(dialog, 32);
  DoubleClickRow(dialog, 30, 0);
  CommandSendTo(dialog, Command::WorkStep);
  SendCommand(dialog, 31);  // a number that is sent is no button
  EXPECT_EQ(done, (Names{"init", "added", "deleted 105", "chosen 30", "opened", "command"}));
  WindowDestroy(dialog);
}

TEST_F(KitTest, WhatNoActFitsIsLeft) {
  Event event;
  event.kind = EventKind::Pressed;
  event.id = 99;
  EXPECT_FALSE(DialogActRun(event, kActs));
  event.id = 31;
  EXPECT_TRUE(DialogActRun(event, kActs));
}

// --- The list editor

std::vector<std::string> items;
constexpr ListEditor kEditor{30, [] { return static_cast<int>(items.size()); },
                             [](int row, char* text, int size) {
                               std::snprintf(text, static_cast<std::size_t>(size), "%s",
                                             items[static_cast<std::size_t>(row)].c_str());
                             }};

constexpr ListDeed kAdd{.may = [] { return items.size() < 3; },
                        .mayNot = {"もう入りません", "追加の中止"},
                        .question = {"追加します。", "追加"},
                        .act =
                            [](WindowHandle dialog, int) {
                              const std::string text = ControlText(dialog, 22);
                              if (!text.empty()) items.push_back(text);
                              return !text.empty();
                            },
                        .failed = {"空です", "追加の中止"}};
constexpr ListDeed kDelete{.needsRow = true,
                           .noRow = {"項目を選択してください", "削除の中止"},
                           .question = {"削除します。", "削除"},
                           .act = [](WindowHandle, int row) {
                             items.erase(items.begin() + row);
                             return true;
                           }};

TEST_F(FormTest, DeedIsAskedDoneAndShown) {
  items = {"a"};
  ListEditorShow(dialog_, kEditor, 0);
  EXPECT_EQ(ListEditorChosen(dialog_, kEditor), 0);
  Type(dialog_, 22, "b");
  ExpectBox("追加します。", "追加", BoxAnswer::Ok);
  EXPECT_TRUE(ListDeedRun(dialog_, kEditor, kAdd));
  EXPECT_EQ(ListRows(dialog_, 30), (Names{"a", "b"}));
  EXPECT_EQ(ListEditorChosen(dialog_, kEditor), -1);
  ChooseRow(dialog_, 30, 0);
  ExpectBox("削除します。", "削除", BoxAnswer::Ok);
  EXPECT_TRUE(ListDeedRun(dialog_, kEditor, kDelete));
  EXPECT_EQ(ListRows(dialog_, 30), Names{"b"});
}

TEST_F(FormTest, DeedThatIsDeclinedChangesNothing) {
  items = {"a"};
  ListEditorShow(dialog_, kEditor, 0);
  ExpectBox("削除します。", "削除", BoxAnswer::Cancel);
  EXPECT_FALSE(ListDeedRun(dialog_, kEditor, kDelete));
  EXPECT_EQ(items, Names{"a"});
  EXPECT_EQ(ListEditorChosen(dialog_, kEditor), 0);
}

TEST_F(FormTest, EachRefusalHasItsWords) {
  items = {};
  ListEditorShow(dialog_, kEditor);
  ExpectBox("項目を選択してください", "削除の中止");
  EXPECT_FALSE(ListDeedRun(dialog_, kEditor, kDelete));
  ExpectBox("追加します。", "追加", BoxAnswer::Ok);
  ExpectBox("空です", "追加の中止");
  EXPECT_FALSE(ListDeedRun(dialog_, kEditor, kAdd));
  items = {"a", "b", "c"};
  ExpectBox("もう入りません", "追加の中止");
  EXPECT_FALSE(ListDeedRun(dialog_, kEditor, kAdd));
}

TEST_F(FormTest, DeedWithoutWordsSaysNothing) {
  items = {"a"};
  ListEditorShow(dialog_, kEditor);
  ListDeed silent = kDelete;
  silent.noRow = {};
  silent.question = {};
  EXPECT_FALSE(ListDeedRun(dialog_, kEditor, silent));
  ChooseRow(dialog_, 30, 0);
  EXPECT_TRUE(ListDeedRun(dialog_, kEditor, silent));
  EXPECT_TRUE(items.empty());
}

TEST_F(FormTest, AQuestionMayNameItsRow) {
  items = {"a", "b"};
  ListEditorShow(dialog_, kEditor, 1);
  ListDeed named = kDelete;
  named.questionOf = [](int row, char* text, int size) {
    std::snprintf(text, static_cast<std::size_t>(size), "%dを削除", row);
  };
  ExpectBox("1を削除", "削除", BoxAnswer::Ok);
  EXPECT_TRUE(ListDeedRun(dialog_, kEditor, named));
  EXPECT_EQ(items, Names{"a"});
}

TEST_F(FormTest, RowThatWentAwayBehindTheQuestionIsNone) {
  items = {"a", "b"};
  ListEditorShow(dialog_, kEditor, 1);
  ExpectBox("削除します。", "削除", BoxAnswer::Ok, [] { items.pop_back(); });
  EXPECT_FALSE(ListDeedRun(dialog_, kEditor, kDelete));
  EXPECT_EQ(items, Names{"a"});
}

// --- Progress

WindowHandle working;
int stepsLeft;
Names ran;

constexpr Progress kWork{
    .templateId = IDD_TestProgress,
    .handle = &working,
    .stepCommand = Command::WorkStep,
    .begin = [] { ran.emplace_back("begin"); },
    .step =
        [](int* result) {
          ran.emplace_back("step");
          if (--stepsLeft > 0) return false;
          *result = 5;
          return true;
        },
    .end = [](bool stopped) { ran.emplace_back(stopped ? "stopped" : "through"); },
    .tell = [](WindowHandle dialog,
               int) { MessageBoxRun(dialog, "終了", "実行", BoxButtons::Ok, BoxIcon::Exclamation); },
    .stopped = -1};

class ProgressTest : public KitTest {
 protected:
  void SetUp() override {
    KitTest::SetUp();
    working = nullptr;
    stepsLeft = 2;
    ran.clear();
  }
  static void TickOnce() { CommandSendTo(working, Command::WorkStep); }
};

TEST_F(ProgressTest, StepsComeFromTheTickUntilTheWorkIsThrough) {
  Then(TickOnce);
  Then(TickOnce);
  // The tick that comes while the end is told finds no work any more.
  ExpectBox("終了", "実行", BoxAnswer::Ok, TickOnce);
  EXPECT_EQ(ProgressRun(kWork, nullptr), 5);
  EXPECT_EQ(ran, (Names{"begin", "step", "step", "through"}));
  EXPECT_EQ(working, nullptr);
}

TEST_F(ProgressTest, TheUserStopsItByAnyWayOut) {
  const std::function<void()> ways[] = {[] { Press(TopDialog(), 2); }, [] { PressEscape(TopDialog()); },
                                        [] { PressClose(TopDialog()); }, [] { PressEnter(TopDialog()); }};
  for (const auto& way : ways) {
    ran.clear();
    Then(way);
    EXPECT_EQ(ProgressRun(kWork, nullptr), -1);
    EXPECT_EQ(ran, (Names{"begin", "stopped"}));
    EXPECT_EQ(working, nullptr);
  }
}

TEST_F(ProgressTest, TheEndOfTheProgramStopsIt) {
  Then([] { MessageQuit(0); });
  ProgressRun(kWork, nullptr);
  EXPECT_EQ(ran, (Names{"begin", "stopped"}));
  EXPECT_EQ(working, nullptr);
}

TEST_F(ProgressTest, ASecondWorkIsNotBegunWhileOneRuns) {
  Then([] {
    EXPECT_EQ(ProgressRun(kWork, nullptr), -1);
    EXPECT_EQ(ran, Names{"begin"});
    Press(TopDialog(), 2);
  });
  EXPECT_EQ(ProgressRun(kWork, nullptr), -1);
}

TEST_F(ProgressTest, DialogThatCannotBeMadeBeginsNothing) {
  HeadlessResourceFile(kResourceFile);  // without that template
  EXPECT_EQ(ProgressRun(kWork, nullptr), -1);
  EXPECT_EQ(HeadlessTakeFailures().size(), 1U);
  EXPECT_TRUE(ran.empty());
}

}  // namespace
