// Controls of dialogs and what the scripted user does with them.
#include "platform/dialog.h"
#include "platform/file.h"
#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "platform/window.h"
#include "tests/platform/machinery.h"
#include "tests/support/test_dialogs.h"

namespace {

class ControlTest : public MachineryTest {
 protected:
  void SetUp() override {
    MachineryTest::SetUp();
    dialog_ = OpenControls();
  }
  void TearDown() override {
    WindowDestroy(dialog_);
    MachineryTest::TearDown();
  }

  std::string GetText(int id, int size) const {
    char buffer[100];
    std::fill(std::begin(buffer), std::end(buffer), '#');
    const int length = ControlGetText(dialog_, id, buffer, size);
    EXPECT_EQ(buffer[size], '#');
    EXPECT_EQ(length, static_cast<int>(std::char_traits<char>::length(buffer)));
    return buffer;
  }

  WindowHandle dialog_ = nullptr;
};

// --- Buttons

TEST_F(ControlTest, AutomaticCheckBoxTurnsOverBeforeTheCommand) {
  bool seen = false;
  reaction = [&](const Event& event) {
    seen = ControlIsChecked(event.window, 20);
    return true;
  };
  Press(dialog_, 20);
  EXPECT_TRUE(seen);
  Press(dialog_, 20);
  EXPECT_FALSE(seen);
  reaction = nullptr;
  EXPECT_EQ(heard, (Names{"pressed 20", "pressed 20"}));
}

TEST_F(ControlTest, PlainCheckBoxStaysAsItIs) {
  Press(dialog_, 21);
  EXPECT_FALSE(ControlIsChecked(dialog_, 21));
  ControlSetChecked(dialog_, 21, true);
  Press(dialog_, 21);
  EXPECT_TRUE(ControlIsChecked(dialog_, 21));
}

TEST_F(ControlTest, AutomaticRadioButtonReleasesTheOthersOfItsGroup) {
  ControlSetChecked(dialog_, 30, true);
  ControlSetChecked(dialog_, 34, true);
  Press(dialog_, 32);
  EXPECT_FALSE(ControlIsChecked(dialog_, 30));
  EXPECT_FALSE(ControlIsChecked(dialog_, 31));
  EXPECT_TRUE(ControlIsChecked(dialog_, 32));
  EXPECT_TRUE(ControlIsChecked(dialog_, 34));
  Press(dialog_, 33);
  EXPECT_TRUE(ControlIsChecked(dialog_, 32));
  EXPECT_TRUE(ControlIsChecked(dialog_, 33));
  EXPECT_FALSE(ControlIsChecked(dialog_, 34));
}

TEST_F(ControlTest, SetCheckedTouchesOneButtonOnly) {
  ControlSetChecked(dialog_, 30, true);
  ControlSetChecked(dialog_, 31, true);
  EXPECT_TRUE(ControlIsChecked(dialog_, 30));
  ControlSetChecked(dialog_, 1, true);
  EXPECT_EQ(TheFailure(), "ControlSetChecked 1 of dialog 100: the control has no mark");
  EXPECT_FALSE(ControlIsChecked(dialog_, 1));
  EXPECT_TRUE(heard.empty());
}

TEST_F(ControlTest, PressOnADisabledControlIsAFailure) {
  Press(dialog_, 81);
  EXPECT_EQ(TheFailure(), "Press 81 of dialog 100: the control is disabled");
  ControlEnable(dialog_, 81, true);
  Press(dialog_, 81);
  EXPECT_EQ(heard, Names{"pressed 81"});
}

TEST_F(ControlTest, PressOnAHiddenControlIsAFailure) {
  Press(dialog_, 80);
  EXPECT_EQ(TheFailure(), "Press 80 of dialog 100: the control is hidden");
  ControlShow(dialog_, 80, true);
  EXPECT_TRUE(ControlIsVisible(dialog_, 80));
  Press(dialog_, 80);
  EXPECT_EQ(heard, Names{"pressed 80"});
}

TEST_F(ControlTest, PressInAHiddenDialogIsAFailure) {
  WindowShow(dialog_, false);
  Press(dialog_, 1);
  EXPECT_EQ(TheFailure(), "Press 1 of dialog 100: the dialog is hidden");
}

TEST_F(ControlTest, PressOnWhatIsNotThereIsAFailure) {
  Press(dialog_, 999);
  EXPECT_EQ(TheFailure(), "Press 999 of dialog 100: there is no such control");
  Press(nullptr, 1);
  EXPECT_EQ(TheFailure(), "Press 1: no dialog is open");
  Press(dialog_, 10);
  EXPECT_EQ(TheFailure(), "Press 10 of dialog 100: the control cannot be pressed");
}

TEST_F(ControlTest, LabelThatReportsCanBePressed) {
  Press(dialog_, 70);
  EXPECT_EQ(heard, Names{"pressed 70"});
}

// --- Edit fields

TEST_F(ControlTest, TypingReplacesTheTextAndReportsTheChange) {
  Type(dialog_, 10, "日本");
  EXPECT_EQ(ControlText(dialog_, 10), "日本");
  EXPECT_EQ(heard, Names{"edited 10"});
  EXPECT_TRUE(WindowHasFocus(Control(dialog_, 10)));
}

TEST_F(ControlTest, LimitCountsCharactersThatAreTyped) {
  ControlSetLimit(dialog_, 10, 3);
  Type(dialog_, 10, "日本a語");
  EXPECT_EQ(ControlText(dialog_, 10), "日本a");
  ControlSetText(dialog_, 10, "longer than three");  // the program may
  EXPECT_EQ(ControlText(dialog_, 10), "longer than three");
}

TEST_F(ControlTest, NumberFieldTakesDigitsOnly) {
  Type(dialog_, 11, "-1a2０３");
  EXPECT_EQ(ControlText(dialog_, 11), "12");
}

TEST_F(ControlTest, OneLineFieldTakesNoLineBreaks) {
  Type(dialog_, 10, "a\r\nb");
  EXPECT_EQ(ControlText(dialog_, 10), "ab");
  Type(dialog_, 12, "a\r\nb");
  EXPECT_EQ(ControlText(dialog_, 12), "a\r\nb");
}

TEST_F(ControlTest, TypingWhereNothingCanBeTypedIsAFailure) {
  Type(dialog_, 13, "a");
  EXPECT_EQ(TheFailure(), "Type 13 of dialog 100: the control takes no text");
  Type(dialog_, 50, "a");
  EXPECT_EQ(TheFailure(), "Type 50 of dialog 100: the control takes no text");
  Type(dialog_, 1, "a");
  EXPECT_EQ(TheFailure(), "Type 1 of dialog 100: the control takes no text");
}

TEST_F(ControlTest, TextSetByTheProgramIsReportedByAOneLineField) {
  ControlSetText(dialog_, 10, "x");
  EXPECT_EQ(heard, Names{"edited 10"});
  heard.clear();
  ControlSetText(dialog_, 12, "x");
  ControlSetText(dialog_, 1, "x");
  EXPECT_TRUE(heard.empty());
}

TEST_F(ControlTest, TextIsCutByBytesEvenInsideAPair) {
  ControlSetText(dialog_, 10, "日本");  // 4 bytes
  EXPECT_EQ(GetText(10, 5), "日本");
  EXPECT_EQ(GetText(10, 4), std::string("日本").substr(0, 3));
  EXPECT_EQ(GetText(10, 1), "");
}

TEST_F(ControlTest, UseOfAControlThatIsNotThereIsAFailureAndPassedOver) {
  char buffer[8] = "x";
  ControlSetText(dialog_, 999, "a");
  EXPECT_EQ(TheFailure(), "ControlSetText 999 of dialog 100: there is no such control");
  ControlEnable(dialog_, 999, false);
  ControlShow(dialog_, 999, false);
  ControlSetFocus(dialog_, 999);
  ControlSetLimit(dialog_, 999, 4);
  ControlSetChecked(dialog_, 999, true);
  EXPECT_EQ(ControlGetText(dialog_, 999, buffer, sizeof buffer), 0);
  EXPECT_STREQ(buffer, "");
  EXPECT_FALSE(ControlIsChecked(dialog_, 999));
  EXPECT_EQ(Control(dialog_, 999), nullptr);
  ListDraw(dialog_, 999, false);
  EXPECT_EQ(ListAdd(dialog_, 999, "a"), -1);
  EXPECT_EQ(ListCount(dialog_, 999), 0);
  EXPECT_EQ(ListSelected(dialog_, 999), -1);
  EXPECT_EQ(ListText(dialog_, 999, 0, buffer, sizeof buffer), -1);
  EXPECT_EQ(HeadlessTakeFailures().size(), 13U);  // one for each call
}

TEST_F(ControlTest, ControlsOfADialogThatIsNotOpenArePassedOverInSilence) {
  ControlSetText(nullptr, 10, "a");
  EXPECT_EQ(Control(nullptr, 10), nullptr);
  EXPECT_EQ(ListAdd(nullptr, 40, "a"), -1);
}

TEST_F(ControlTest, AskingAboutWhatIsNotThereIsAFailure) {
  EXPECT_FALSE(ControlIsEnabled(dialog_, 999));
  EXPECT_EQ(TheFailure(), "ControlIsEnabled 999 of dialog 100: there is no such control");
  EXPECT_EQ(ControlText(nullptr, 10), "");
  EXPECT_EQ(TheFailure(), "ControlText 10: no dialog is open");
}

TEST_F(ControlTest, ControlOfAnotherKindIsAFailure) {
  EXPECT_EQ(ListAdd(dialog_, 10, "a"), -1);
  EXPECT_EQ(TheFailure(), "ListAdd 10 of dialog 100: the control is no list");
  ControlSetLimit(dialog_, 20, 3);
  EXPECT_EQ(TheFailure(), "ControlSetLimit 20 of dialog 100: the control takes no text");
}

TEST_F(ControlTest, MouseMeantForTheDialogMustNotMeetAControl) {
  // Edit 10 stands at (50, 4) to (130, 16) units, the label before it at (6, 6).
  Mouse(dialog_, EventKind::LeftDown, 101, 9);
  EXPECT_EQ(TheFailure(), "Mouse at 101, 9: a control stands there");
  Mouse(dialog_, EventKind::MouseMove, 400, 10);
  EXPECT_EQ(TheFailure(), "Mouse at 400, 10: the point lies outside");
  Mouse(dialog_, EventKind::MouseMove, 13, 13);  // a label lets it through
  ControlEnable(dialog_, 10, false);
  Mouse(dialog_, EventKind::MouseMove, 101, 9);  // so does a disabled control
  ControlShow(dialog_, 10, false);
  EXPECT_EQ(heard, (Names{"move 13 13", "move 101 9"}));
}

TEST_F(ControlTest, ListThatScrollsSidewaysReachesItsLongestRow) {
  const WindowHandle form = DialogOpen(IDD_TestForm, nullptr, Listen);
  ListAdd(form, 30, "abc");
  EXPECT_EQ(ListExtent(form, 30), 3 * 8 + 4);
  ListAdd(form, 30, "日本語abc");
  ListAdd(form, 30, "a");
  EXPECT_EQ(ListExtent(form, 30), 9 * 8 + 4);
  ListClear(form, 30);
  EXPECT_EQ(ListExtent(form, 30), 0);
  ListAdd(dialog_, 40, "one that does not scroll");
  EXPECT_EQ(ListExtent(dialog_, 40), 0);
  WindowDestroy(form);
}

// --- Lists

TEST_F(ControlTest, ChosenRowIsSelectedAndReported) {
  ListAdd(dialog_, 40, "b");
  ListAdd(dialog_, 40, "a");
  EXPECT_EQ(ListSelected(dialog_, 40), -1);
  ChooseRow(dialog_, 40, 1);
  EXPECT_EQ(ListSelected(dialog_, 40), 1);
  EXPECT_EQ(heard, Names{"chosen 40"});
}

TEST_F(ControlTest, AQuietListDrawsItsRowsOnceAndLeavesTheOthersAlone) {
  const int before = ListDrawings(dialog_, 40);
  ListAdd(dialog_, 40, "a");
  EXPECT_EQ(ListDrawings(dialog_, 40), before + 1);
  {
    const ListQuiet quiet(dialog_, 40);
    ListClear(dialog_, 40);
    for (int i = 0; i < 100; ++i) ListAdd(dialog_, 40, "b");
    EXPECT_EQ(ListDrawings(dialog_, 40), before + 1);
    ListAdd(dialog_, 50, "c");
    EXPECT_EQ(ListDrawings(dialog_, 50), 1);
  }
  EXPECT_EQ(ListDrawings(dialog_, 40), before + 2);
  EXPECT_EQ(ListCount(dialog_, 40), 100);
  ListAdd(dialog_, 40, "d");
  EXPECT_EQ(ListDrawings(dialog_, 40), before + 3);
}

TEST_F(ControlTest, DoubleClickSelectsFirst) {
  ListAdd(dialog_, 40, "a");
  ListAdd(dialog_, 40, "b");
  DoubleClickRow(dialog_, 40, 1);
  EXPECT_EQ(heard, (Names{"chosen 40", "opened 40"}));
  heard.clear();
  DoubleClickRow(dialog_, 40, 1);
  EXPECT_EQ(heard, Names{"opened 40"});
}

TEST_F(ControlTest, SelectByTheProgramTellsNobody) {
  ListAdd(dialog_, 40, "a");
  ListSelect(dialog_, 40, 0);
  EXPECT_EQ(ListSelected(dialog_, 40), 0);
  ListSelect(dialog_, 40, -1);
  EXPECT_EQ(ListSelected(dialog_, 40), -1);
  EXPECT_TRUE(heard.empty());
}

TEST_F(ControlTest, BadRowLeavesAListBoxAndClearsAComboBox) {
  ListAdd(dialog_, 40, "a");
  ListAdd(dialog_, 50, "a");
  ListSelect(dialog_, 40, 0);
  ListSelect(dialog_, 50, 0);
  ListSelect(dialog_, 40, 1);
  ListSelect(dialog_, 50, 1);
  EXPECT_EQ(ListSelected(dialog_, 40), 0);
  EXPECT_EQ(ListSelected(dialog_, 50), -1);
  EXPECT_EQ(ControlText(dialog_, 50), "");
}

TEST_F(ControlTest, ListThatReportsNothingStaysSilent) {
  ListAdd(dialog_, 42, "a");
  DoubleClickRow(dialog_, 42, 0);
  EXPECT_EQ(ListSelected(dialog_, 42), 0);
  EXPECT_TRUE(heard.empty());
}

TEST_F(ControlTest, RowThatIsNotThereIsAFailure) {
  ListAdd(dialog_, 40, "a");
  ChooseRow(dialog_, 40, 1);
  EXPECT_EQ(TheFailure(), "ChooseRow 40 of dialog 100: there is no row 1 of 1");
  DoubleClickRow(dialog_, 40, -1);
  EXPECT_EQ(TheFailure(), "DoubleClickRow 40 of dialog 100: there is no row -1 of 1");
  ChooseRow(dialog_, 10, 0);
  EXPECT_EQ(TheFailure(), "ChooseRow 10 of dialog 100: the control is no list");
}

TEST_F(ControlTest, SortedListTakesRowsInOrderWithoutRegardToCapitals) {
  EXPECT_EQ(ListAdd(dialog_, 41, "b"), 0);
  EXPECT_EQ(ListAdd(dialog_, 41, "C"), 1);
  EXPECT_EQ(ListAdd(dialog_, 41, "A"), 0);
  EXPECT_EQ(ListAdd(dialog_, 41, "B"), 2);
  EXPECT_EQ(ListRows(dialog_, 41), (Names{"A", "b", "B", "C"}));
  EXPECT_EQ(ListAdd(dialog_, 51, "z"), 0);
  EXPECT_EQ(ListAdd(dialog_, 51, "y"), 0);
  EXPECT_EQ(ListAdd(dialog_, 40, "z"), 0);
  EXPECT_EQ(ListAdd(dialog_, 40, "y"), 1);
}

TEST_F(ControlTest, SelectionStaysWithItsRowWhenOneIsPutInFront) {
  ListAdd(dialog_, 41, "b");
  ListSelect(dialog_, 41, 0);
  ListAdd(dialog_, 41, "a");
  EXPECT_EQ(ListSelected(dialog_, 41), 1);
}

TEST_F(ControlTest, RowTextIsCutAndTerminated) {
  ListAdd(dialog_, 40, "日本語");
  char buffer[6];
  EXPECT_EQ(ListText(dialog_, 40, 0, buffer, sizeof buffer), 5);
  EXPECT_EQ(buffer[5], '\0');
  EXPECT_EQ(ListText(dialog_, 40, 1, buffer, sizeof buffer), -1);
  EXPECT_STREQ(buffer, "");
  EXPECT_EQ(ListText(dialog_, 40, -1, buffer, sizeof buffer), -1);
}

TEST_F(ControlTest, ComboBoxShowsItsSelection) {
  ListAdd(dialog_, 50, "一");
  ListAdd(dialog_, 50, "二");
  ChooseRow(dialog_, 50, 1);
  EXPECT_EQ(ControlText(dialog_, 50), "二");
  EXPECT_EQ(heard, Names{"chosen 50"});
  ControlSetText(dialog_, 50, "三");  // a list without a field keeps its row
  EXPECT_EQ(ControlText(dialog_, 50), "二");
  ListClear(dialog_, 50);
  EXPECT_EQ(ControlText(dialog_, 50), "");
  EXPECT_EQ(ListSelected(dialog_, 50), -1);
  EXPECT_EQ(ListCount(dialog_, 50), 0);
}

TEST_F(ControlTest, ComboBoxWithAFieldTakesText) {
  ListAdd(dialog_, 51, "一");
  ChooseRow(dialog_, 51, 0);
  Type(dialog_, 51, "九");
  EXPECT_EQ(ControlText(dialog_, 51), "九");
  EXPECT_EQ(ListSelected(dialog_, 51), -1);
  EXPECT_EQ(heard, (Names{"chosen 51", "edited 51"}));
}

TEST_F(ControlTest, FolderListHasUpFoldersAndDrives) {
  MakeFolder("C:\\mirrell\\beta");
  MakeFolder("C:\\mirrell\\Alpha");
  MakeFolder("C:\\mirrell\\表");
  PutFile("C:\\mirrell\\file.txt", "x");
  ListAdd(dialog_, 40, "before");
  ListFolders(dialog_, 40);
  EXPECT_EQ(ListRows(dialog_, 40), (Names{"before", "[..]", "[Alpha]", "[beta]", "[表]", "[-c-]", "[-z-]"}));
}

TEST_F(ControlTest, FolderListOfADriveRootHasNoUp) {
  MakeFolder("C:\\mirrell\\d\\inside");
  PosixDriveSet('D', Folder() + "/d");
  ASSERT_TRUE(FolderSetCurrent("D:\\"));
  ListFolders(dialog_, 40);
  EXPECT_EQ(ListRows(dialog_, 40), (Names{"[inside]", "[-c-]", "[-d-]", "[-z-]"}));
}

// --- Controls made at run time, and scroll bars

TEST_F(ControlTest, ControlMadeAtRunTimeIsOneOfTheDialogs) {
  const WindowHandle button = ControlCreate(dialog_, ControlKind::Button, 900, {10, 20, 50, 40}, "新");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(Control(dialog_, 900), button);
  Press(dialog_, 900);
  EXPECT_EQ(heard, Names{"pressed 900"});
  const Rect frame = WindowRect(dialog_);
  EXPECT_EQ(WindowRect(button).left, frame.left + 3 + 10);
  EXPECT_EQ(WindowRect(button).bottom, frame.top + 22 + 40);
  WindowDestroy(button);
  EXPECT_EQ(Control(dialog_, 900), nullptr);
  EXPECT_EQ(TheFailure(), "Control 900 of dialog 100: there is no such control");
}

TEST_F(ControlTest, ListMadeAtRunTimeSortsAndReports) {
  ControlCreate(dialog_, ControlKind::ListBox, 901, {0, 0, 10, 10}, "");
  ListAdd(dialog_, 901, "b");
  ListAdd(dialog_, 901, "a");
  EXPECT_EQ(ListRows(dialog_, 901), (Names{"a", "b"}));
  ChooseRow(dialog_, 901, 0);
  EXPECT_EQ(heard, Names{"chosen 901"});
}

TEST_F(ControlTest, ControlGoesWithItsParent) {
  const WindowHandle other = DialogOpen(IDD_TestPanel, nullptr, Listen);
  const WindowHandle bar = ControlCreate(other, ControlKind::VerticalScrollBar, 5, {0, 0, 18, 90}, "");
  WindowDestroy(other);
  EXPECT_FALSE(WindowIsOpen(bar));
}

TEST_F(ControlTest, ControlThatCannotBeMadeIsNull) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(ControlCreate(dialog_, ControlKind::Button, 900, {0, 0, 9, 9}, ""), nullptr);
  Press(dialog_, 900);
  EXPECT_EQ(TheFailure(), "Press 900 of dialog 100: there is no such control");
}

TEST_F(ControlTest, ScrollBarKeepsItsThumbInRange) {
  const WindowHandle bar = ControlCreate(dialog_, ControlKind::VerticalScrollBar, 5, {0, 0, 18, 90}, "");
  ScrollBarSet(bar, 100, 10, 95);
  EXPECT_EQ(ScrollBarState(bar).lines, 100);
  EXPECT_EQ(ScrollBarState(bar).page, 10);
  EXPECT_EQ(ScrollBarState(bar).position, 90);
  ScrollBarSet(bar, 100, 10, -3);
  EXPECT_EQ(ScrollBarState(bar).position, 0);
  ScrollBarSet(bar, 0, 10, 7);
  EXPECT_EQ(ScrollBarState(bar).page, 0);
  EXPECT_EQ(ScrollBarState(bar).position, 0);
}

TEST_F(ControlTest, ScrollingReachesTheWindowWithTheBarAndThePlace) {
  const WindowHandle bar = Control(dialog_, 60);
  WindowHandle control = nullptr;
  Scroll kind = Scroll::End;
  reaction = [&](const Event& event) {
    control = event.control;
    kind = event.scroll;
    return true;
  };
  ScrollBy(dialog_, bar, Scroll::Thumb, 42);
  EXPECT_EQ(control, bar);
  EXPECT_EQ(kind, Scroll::Thumb);
  ScrollBy(dialog_, bar, Scroll::LineDown, 42);
  EXPECT_EQ(heard, (Names{"scroll 42", "scroll 0"}));
  ScrollBarEnable(bar, false);
  EXPECT_FALSE(ScrollBarState(bar).enabled);
  ScrollBy(dialog_, bar, Scroll::LineUp);
  EXPECT_EQ(TheFailure(), "ScrollBy: the bar is hidden or disabled");
  reaction = nullptr;
}

TEST_F(ControlTest, FocusDoesNotGoToADisabledControl) {
  ControlSetFocus(dialog_, 12);
  ControlSetFocus(dialog_, 81);
  EXPECT_TRUE(WindowHasFocus(Control(dialog_, 12)));
  EXPECT_FALSE(WindowHasFocus(nullptr));
}

}  // namespace
