// Property sheets.
#include "platform/sheet.h"

#include <algorithm>

#include "platform/posix/faults.h"
#include "platform/window.h"
#include "tests/platform/machinery.h"
#include "tests/support/test_dialogs.h"

namespace {

// What the pages were told, by the number each has as its context.
Names told;

bool Page(const Event& event) {
  const std::string name = static_cast<const char*>(event.context);
  if (event.kind == EventKind::Init) told.push_back(name + " init");
  if (event.kind == EventKind::Apply) told.push_back(name + " apply");
  if (event.kind == EventKind::Destroy) told.push_back(name + " destroy");
  if (event.kind == EventKind::Edited) SheetChanged(event.window);
  if (IsPressed(event, 11)) MessageBoxRun(event.window, "a", "b", BoxButtons::Ok, BoxIcon::Exclamation);
  return true;
}

class SheetTest : public MachineryTest {
 protected:
  void SetUp() override {
    MachineryTest::SetUp();
    told.clear();
  }
  static bool Run(WindowHandle owner = nullptr, int count = 2) {
    static char one[] = "one";
    static char two[] = "two";
    static char three[] = "three";
    const SheetPage pages[] = {
        {IDD_TestPageOne, Page, one}, {IDD_TestPageTwo, Page, two}, {IDD_TestPageOne, Page, three}};
    return SheetRun(owner, "二枚", pages, count);
  }
  static WindowHandle One() { return FindDialog(IDD_TestPageOne); }
  static WindowHandle Two() { return FindDialog(IDD_TestPageTwo); }
};

TEST_F(SheetTest, OkAppliesThePagesThatWereShown) {
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "二枚");
    EXPECT_EQ(Two(), nullptr);
    EXPECT_TRUE(IsVisible(One()));
    Press(TopDialog(), 1);
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(told, (Names{"one init", "one apply", "one destroy"}));
  EXPECT_EQ(OpenWindowCount(), 0);
}

TEST_F(SheetTest, PagesKeepWhatTheyShowAndAreAppliedInOrder) {
  Then([] {
    Type(One(), 10, "x");
    SheetPageChoose(1);
    EXPECT_FALSE(IsVisible(One()));
    EXPECT_TRUE(IsVisible(Two()));
    SheetPageChoose(0);
    EXPECT_EQ(ControlText(One(), 10), "x");
    PressEnter(TopDialog());
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(told, (Names{"one init", "two init", "one apply", "two apply", "one destroy", "two destroy"}));
}

TEST_F(SheetTest, ThreePagesAreAppliedInTheirOrderWhateverTheOrderTheyWereShownIn) {
  Then([] {
    SheetPageChoose(2);
    SheetPageChoose(1);
    Press(TopDialog(), 1);
  });
  EXPECT_TRUE(Run(nullptr, 3));
  const Names applied = {"one apply", "two apply", "three apply"};
  const auto first = std::find(told.begin(), told.end(), "one apply");
  ASSERT_GE(told.end() - first, 3);
  EXPECT_EQ(Names(first, first + 3), applied);
}

TEST_F(SheetTest, CancelEscapeAndCloseApplyNothing) {
  const std::function<void()> ways[] = {[] { Press(TopDialog(), 2); }, [] { PressEscape(TopDialog()); },
                                        [] { PressClose(TopDialog()); }};
  for (const auto& way : ways) {
    told.clear();
    Then(way);
    EXPECT_FALSE(Run());
    EXPECT_EQ(told, (Names{"one init", "one destroy"}));
  }
}

TEST_F(SheetTest, ApplyCanBePressedOnceSomethingHasChanged) {
  Then([] {
    EXPECT_FALSE(ControlIsEnabled(TopDialog(), kSheetApplyButton));
    Type(One(), 10, "x");
    Press(TopDialog(), kSheetApplyButton);
    EXPECT_EQ(told.back(), "one apply");
    EXPECT_FALSE(ControlIsEnabled(TopDialog(), kSheetApplyButton));
    Press(TopDialog(), 2);
  });
  EXPECT_FALSE(Run());
}

TEST_F(SheetTest, NothingOfASheetIsReachedWhileABoxOfAPageIsUp) {
  const WindowHandle owner = OpenControls();
  Then([owner] {
    ExpectBox("a", "b", BoxAnswer::Ok, [] {
      Press(TopDialog(), 1);
      EXPECT_NE(TheFailure().find("another dialog stands in front"), std::string::npos);
      Type(One(), 10, "x");
      EXPECT_NE(TheFailure().find("another dialog stands in front"), std::string::npos);
    });
    Press(One(), 11);
    Press(owner, 1);
    EXPECT_NE(TheFailure().find("another dialog stands in front"), std::string::npos);
    Press(TopDialog(), 1);
  });
  EXPECT_TRUE(Run(owner));
  WindowDestroy(owner);
}

TEST_F(SheetTest, PageThatIsNotOnShowCannotBeReached) {
  Then([] {
    SheetPageChoose(1);
    Type(One(), 10, "x");
    EXPECT_EQ(TheFailure(), "Type 10 of dialog 107: the dialog is hidden");
    SheetPageChoose(2);
    EXPECT_EQ(TheFailure(), "SheetPageChoose: there is no page 2");
    Press(TopDialog(), 2);
  });
  EXPECT_FALSE(Run());
}

TEST_F(SheetTest, SheetThatCannotBeMadeIsFalse) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_FALSE(Run());
  EXPECT_TRUE(told.empty());
  EXPECT_FALSE(SheetRun(nullptr, "", nullptr, 0));
}

TEST_F(SheetTest, OnlyAPageChanges) {
  const WindowHandle dialog = OpenControls();
  SheetChanged(dialog);
  EXPECT_EQ(TheFailure(), "SheetChanged: the window is no page of a sheet");
  WindowDestroy(dialog);
}

}  // namespace
