// Modal and modeless dialogs and the script that drives them.
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "tests/platform/machinery.h"
#include "tests/support/test_dialogs.h"

namespace {

class DialogRunTest : public MachineryTest {};

TEST_F(DialogRunTest, ModalDialogRunsTheScriptUntilItEnds) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_TestControls);
    EXPECT_TRUE(IsVisible(TopDialog()));
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 10);
  EXPECT_EQ(heard, (Names{"init", "size 400 320", "paint", "pressed 1", "destroy"}));
  EXPECT_EQ(TopDialog(), nullptr);
  EXPECT_EQ(OpenWindowCount(), 0);
}

TEST_F(DialogRunTest, InitRunsBeforeTheDialogIsVisible) {
  reaction = [](const Event& event) {
    if (event.kind == EventKind::Init) {
      EXPECT_FALSE(IsVisible(event.window));
      EXPECT_EQ(TopDialog(), event.window);
      EXPECT_NE(Control(event.window, 10), nullptr);
    }
    return false;
  };
  Then([] { DialogEnd(TopDialog(), 3); });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 3);
}

TEST_F(DialogRunTest, EndInsideInitNeverShowsTheDialog) {
  reaction = [](const Event& event) {
    if (event.kind == EventKind::Init) DialogEnd(event.window, 77);
    return false;
  };
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 77);
  EXPECT_EQ(heard, (Names{"init", "destroy"}));
}

TEST_F(DialogRunTest, EndHidesAtOnceAndTheLoopReturnsWhenTheStepIsThrough) {
  Then([] {
    const WindowHandle dialog = TopDialog();
    DialogEnd(dialog, 5);
    EXPECT_FALSE(IsVisible(dialog));
    EXPECT_TRUE(WindowIsOpen(dialog));
    DialogEnd(dialog, 6);  // the first end counts
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 5);
}

TEST_F(DialogRunTest, NestedDialogsTakeTheStepsInOrder) {
  reaction = [](const Event& event) {
    if (IsPressed(event, 20)) {
      EXPECT_EQ(DialogRun(IDD_TestPlain, event.window, Listen), 31);
      return true;
    }
    if (IsPressed(event, 1)) {
      DialogEnd(event.window, TemplateOf(event.window) == IDD_TestPlain ? 31 : 32);
      return true;
    }
    return false;
  };
  Names order;
  Then([&] {
    order.push_back("outer");
    Press(TopDialog(), 20);
    order.push_back("outer again");
  });
  Then([&] {
    order.push_back("inner");
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_TestPlain);
    Press(TopDialog(), 1);
  });
  Then([&] {
    order.push_back("last");
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_TestControls);
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 32);
  EXPECT_EQ(order, (Names{"outer", "inner", "outer again", "last"}));
}

TEST_F(DialogRunTest, OwnerIsDisabledMeanwhile) {
  const WindowHandle owner = OpenControls();
  Then([owner] {
    Press(owner, 1);
    EXPECT_NE(TheFailure().find("another dialog stands in front"), std::string::npos);
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(DialogRun(IDD_TestPlain, owner, Listen), 10);
  Press(owner, 20);
  EXPECT_TRUE(ControlIsChecked(owner, 20));
  WindowDestroy(owner);
}

TEST_F(DialogRunTest, OuterDialogEndedFromInsideWaitsForTheInnerOne) {
  reaction = [](const Event& event) {
    if (IsPressed(event, 20)) {
      EXPECT_EQ(DialogRun(IDD_TestPlain, event.window, Listen), 8);
      return true;
    }
    return false;
  };
  Then([] { Press(TopDialog(), 20); });
  Then([] { DialogEnd(FindDialog(IDD_TestControls), 9); });
  Then([] { DialogEnd(FindDialog(IDD_TestPlain), 8); });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 9);
}

TEST_F(DialogRunTest, EmptyScriptIsAFailureAndForcesTheEnd) {
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 2);
  EXPECT_NE(TheFailure().find("the script is empty while dialog 100"), std::string::npos);
  EXPECT_EQ(heard.back(), "destroy");
}

TEST_F(DialogRunTest, UnknownTemplateIsAFailureAndMinusOne) {
  EXPECT_EQ(DialogRun(999, nullptr, Listen), -1);
  EXPECT_EQ(TheFailure(), "no dialog template 999 in the resources");
  EXPECT_EQ(DialogOpen(999, nullptr, Listen), nullptr);
  HeadlessTakeFailures();
  EXPECT_TRUE(heard.empty());
}

TEST_F(DialogRunTest, DialogThatCannotBeMadeIsMinusOneOrNull) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), -1);
  EXPECT_TRUE(FaultWasMet());
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(DialogOpen(IDD_TestControls, nullptr, Listen), nullptr);
  EXPECT_TRUE(heard.empty());
}

TEST_F(DialogRunTest, CloseThatNobodyHandlesBecomesCommandTwo) {
  Then([] { SendClose(TopDialog()); });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 20);
  EXPECT_EQ(heard, (Names{"init", "size 400 320", "paint", "close", "pressed 2", "destroy"}));
}

TEST_F(DialogRunTest, CloseThatIsHandledStaysWithoutEffect) {
  reaction = [](const Event& event) { return event.kind == EventKind::Close; };
  Then([] {
    SendClose(TopDialog());
    DialogEnd(TopDialog(), 4);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 4);
}

TEST_F(DialogRunTest, CloseDoesNothingWhileButtonTwoIsDisabled) {
  Then([] {
    ControlEnable(TopDialog(), 2, false);
    SendClose(TopDialog());
    EXPECT_EQ(heard.back(), "close");
    DialogEnd(TopDialog(), 4);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 4);
}

TEST_F(DialogRunTest, ModelessDialogIsVisibleOnlyIfItsTemplateSaysSo) {
  const WindowHandle hidden = DialogOpen(IDD_TestControls, nullptr, Listen);
  EXPECT_FALSE(IsVisible(hidden));
  const WindowHandle shown = DialogOpen(IDD_TestPlain, nullptr, Listen);
  EXPECT_TRUE(IsVisible(shown));
  EXPECT_EQ(OpenWindowCount(), 2);
  WindowDestroy(hidden);
  WindowDestroy(shown);
  EXPECT_FALSE(WindowIsOpen(shown));
}

TEST_F(DialogRunTest, ModelessDialogIsOnlyHiddenByDialogEnd) {
  const WindowHandle dialog = OpenControls();
  DialogEnd(dialog, 1);
  EXPECT_FALSE(IsVisible(dialog));
  EXPECT_TRUE(WindowIsOpen(dialog));
  WindowDestroy(dialog);
  EXPECT_EQ(heard, Names{"destroy"});
}

TEST_F(DialogRunTest, ModalDialogIsNotDestroyedByHand) {
  Then([] {
    WindowDestroy(TopDialog());
    EXPECT_EQ(TheFailure(), "WindowDestroy: a modal dialog ends with DialogEnd");
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 10);
}

TEST_F(DialogRunTest, UseOfADestroyedDialogIsAFailureAndNoCrash) {
  const WindowHandle dialog = OpenControls();
  WindowDestroy(dialog);
  ControlSetText(dialog, 10, "a");
  EXPECT_EQ(TheFailure(), "ControlSetText: the window is no more");
  EXPECT_EQ(WindowRect(dialog).right, 0);
  EXPECT_EQ(TheFailure(), "WindowRect: the window is no more");
  SendCommand(dialog, 1);
  EXPECT_EQ(TheFailure(), "SendCommand: the window is no more");
  WindowDestroy(dialog);
  EXPECT_EQ(TheFailure(), "WindowDestroy: the window is no more");
  EXPECT_EQ(DialogRun(IDD_TestPlain, dialog, Listen), -1);
  EXPECT_EQ(TheFailure(), "the owner of a dialog: the window is no more");
  EXPECT_FALSE(WindowIsOpen(dialog));  // a question, no use
}

TEST_F(DialogRunTest, NullWindowIsAcceptedEverywhere) {
  SendCommand(nullptr, 1);
  SendPaint(nullptr);
  SendClose(nullptr);
  SendDestroy(nullptr);
  WindowDestroy(nullptr);
  WindowShow(nullptr, true);
  ControlSetText(nullptr, 1, "a");
  EXPECT_EQ(CanvasGet(nullptr), nullptr);
}

TEST_F(DialogRunTest, SendCommandRunsTheHandlerNestedAndWhole) {
  const WindowHandle dialog = OpenControls();
  reaction = [](const Event& event) {
    if (event.command == 70000) SendCommand(event.window, 5);
    heard.push_back("after");
    return true;
  };
  SendCommand(dialog, 70000);
  EXPECT_EQ(heard, (Names{"command 70000", "command 5", "after", "after"}));
  reaction = nullptr;
  WindowDestroy(dialog);
}

TEST_F(DialogRunTest, EventsThatNestWithoutEndAreStopped) {
  const WindowHandle dialog = OpenControls();
  reaction = [](const Event& event) {
    if (event.kind == EventKind::Command) SendCommand(event.window, event.command);
    return true;
  };
  SendCommand(dialog, 3);
  EXPECT_EQ(TheFailure(), "events nest without end");
  reaction = nullptr;
  WindowDestroy(dialog);
}

TEST_F(DialogRunTest, OwnedDialogGoesBeforeItsOwner) {
  const WindowHandle owner = OpenControls();
  const WindowHandle owned = DialogOpen(IDD_TestPlain, owner, Listen);
  Names gone;
  reaction = [&](const Event& event) {
    if (event.kind == EventKind::Destroy) gone.push_back(event.window == owner ? "owner" : "owned");
    return false;
  };
  WindowDestroy(owner);
  EXPECT_EQ(gone, (Names{"owned", "owner"}));
  EXPECT_FALSE(WindowIsOpen(owned));
}

TEST_F(DialogRunTest, DialogInTheMiddleOfTheScreen) {
  const WindowHandle dialog = OpenControls();
  // 200 x 160 units are 400 x 320 pixels; edges of 3 and a caption of 19.
  const Rect client = WindowClientRect(dialog);
  EXPECT_EQ(client.right, 400);
  EXPECT_EQ(client.bottom, 320);
  const Rect rect = WindowRect(dialog);
  EXPECT_EQ(RectWidth(rect), 406);
  EXPECT_EQ(RectHeight(rect), 345);
  EXPECT_EQ(rect.left, (1024 - 406) / 2);
  EXPECT_EQ(rect.top, (768 - 345) / 2);
  WindowDestroy(dialog);
}

TEST_F(DialogRunTest, DialogWithoutCentreStandsBesideItsOwner) {
  const WindowHandle owner = OpenControls();
  WindowMove(owner, 100, 200, 406, 345, false);
  const WindowHandle dialog = DialogOpen(IDD_TestPlain, owner, Listen);
  const Rect rect = WindowRect(dialog);
  // The owner's client area begins 3 and 22 inside; (10, 20) units are (20, 40).
  EXPECT_EQ(rect.left, 100 + 3 + 20);
  EXPECT_EQ(rect.top, 200 + 22 + 40);
  EXPECT_EQ(RectWidth(rect), 120 + 2);  // a thin border
  EXPECT_EQ(RectHeight(rect), 80 + 2);
  EXPECT_EQ(ControlText(dialog, 1), "表");
  WindowDestroy(owner);
}

TEST_F(DialogRunTest, DialogUnitsAreTwoPixels) {
  const WindowHandle dialog = OpenControls();
  const Rect pixels = DialogUnits(dialog, {1, 2, 30, 40});
  EXPECT_EQ(pixels.left, 2);
  EXPECT_EQ(pixels.top, 4);
  EXPECT_EQ(pixels.right, 60);
  EXPECT_EQ(pixels.bottom, 80);
  const Rect edit = WindowRect(Control(dialog, 10));
  const Rect frame = WindowRect(dialog);
  EXPECT_EQ(edit.left, frame.left + 3 + 100);
  EXPECT_EQ(edit.top, frame.top + 22 + 8);
  EXPECT_EQ(RectWidth(edit), 160);
  WindowDestroy(dialog);
}

TEST_F(DialogRunTest, KeyboardStartsAtTheFirstControlUnlessInitMovesIt) {
  const WindowHandle dialog = DialogOpen(IDD_TestControls, nullptr, Listen);
  EXPECT_TRUE(WindowHasFocus(Control(dialog, 10)));
  WindowDestroy(dialog);
  reaction = [](const Event& event) {
    if (event.kind == EventKind::Init) ControlSetFocus(event.window, 12);
    return true;
  };
  const WindowHandle second = DialogOpen(IDD_TestControls, nullptr, Listen);
  EXPECT_TRUE(WindowHasFocus(Control(second, 12)));
  reaction = nullptr;
  WindowDestroy(second);
  const WindowHandle bare = DialogOpen(IDD_TestPanel, nullptr, Listen);
  EXPECT_TRUE(WindowHasFocus(bare));
  WindowDestroy(bare);
}

TEST_F(DialogRunTest, InvalidWindowIsPaintedBeforeTheNextStep) {
  Then([] {
    heard.clear();
    WindowInvalidate(TopDialog(), true);
    EXPECT_TRUE(heard.empty());
  });
  Then([] {
    EXPECT_EQ(heard, Names{"paint"});
    WindowInvalidate(TopDialog(), true);
    SendPaint(TopDialog());  // paints what is due as well
    heard.clear();
  });
  Then([] {
    EXPECT_TRUE(heard.empty());
    Press(TopDialog(), 1);
  });
  DialogRun(IDD_TestControls, nullptr, Listen);
}

TEST_F(DialogRunTest, StepAddedInsideAStepRunsLast) {
  Names order;
  Then([&] {
    order.push_back("first");
    Then([&] {
      order.push_back("added");
      Press(TopDialog(), 2);
    });
  });
  Then([&] { order.push_back("second"); });
  EXPECT_EQ(StepsLeft(), 2);
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 20);
  EXPECT_EQ(order, (Names{"first", "second", "added"}));
  EXPECT_EQ(StepsLeft(), 0);
}

// --- Enter and Escape

TEST_F(DialogRunTest, EnterPressesTheDefaultButton) {
  Then([] { PressEnter(TopDialog()); });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 10);
  EXPECT_EQ(heard, (Names{"init", "size 400 320", "paint", "pressed 1", "destroy"}));
}

TEST_F(DialogRunTest, EnterPressesTheButtonThatHasTheFocus) {
  Then([] {
    ControlSetFocus(TopDialog(), 2);
    PressEnter(TopDialog());
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 20);
}

TEST_F(DialogRunTest, EnterIsOneWhereNoButtonIsTheDefault) {
  Then([] { PressEnter(TopDialog()); });
  EXPECT_EQ(DialogRun(IDD_TestPanel, nullptr, Listen), 10);
}

TEST_F(DialogRunTest, EnterInAFieldThatWantsItIsANewLine) {
  Then([] {
    ControlSetFocus(TopDialog(), 12);
    heard.clear();
    PressEnter(TopDialog());
    EXPECT_EQ(heard, Names{"edited 12"});
    EXPECT_EQ(ControlText(TopDialog(), 12), "\r\n");
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 10);
}

TEST_F(DialogRunTest, EscapeIsTwoWhetherThereIsSuchAButtonOrNot) {
  Then([] { PressEscape(TopDialog()); });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 20);
  Then([] { PressEscape(TopDialog()); });
  EXPECT_EQ(DialogRun(IDD_TestPanel, nullptr, Listen), 20);
}

TEST_F(DialogRunTest, EnterAndEscapePressNoDisabledButton) {
  Then([] {
    ControlEnable(TopDialog(), 1, false);
    ControlEnable(TopDialog(), 2, false);
    heard.clear();
    PressEnter(TopDialog());
    PressEscape(TopDialog());
    EXPECT_TRUE(heard.empty());
    DialogEnd(TopDialog(), 4);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 4);
}

TEST_F(DialogRunTest, KeysOfTheDialogManagerReachNothingElse) {
  PressEscape(nullptr);
  EXPECT_EQ(TheFailure(), "PressEscape: no dialog is open");
  const WindowHandle owner = OpenControls();
  PressEnter(owner);
  EXPECT_EQ(TheFailure(), "PressEnter: only a modal dialog hears this key");
  Then([] {
    PressKey(TopDialog(), 27);
    EXPECT_EQ(TheFailure(), "PressKey: the dialog manager takes this key");
    PressKey(TopDialog(), 'a');
    EXPECT_EQ(TheFailure(), "PressKey: control 10 has the keyboard");
    const WindowHandle outer = TopDialog();
    Then([outer] {
      PressEscape(outer);
      EXPECT_EQ(TheFailure(), "PressEscape: another dialog stands in front");
      DialogEnd(TopDialog(), 1);
      DialogEnd(outer, 1);
    });
    DialogRun(IDD_TestPlain, outer, Listen);
  });
  DialogRun(IDD_TestControls, owner, Listen);
  WindowDestroy(owner);
}

TEST_F(DialogRunTest, NumbersOneAndTwoThatAreSentToADialogAreItsButtons) {
  const WindowHandle dialog = OpenControls();
  reaction = [](const Event&) { return true; };
  SendCommand(dialog, 1);
  SendCommand(dialog, 2);
  SendCommand(dialog, 3);
  EXPECT_EQ(heard, (Names{"pressed 1", "pressed 2", "command 3"}));
  reaction = nullptr;
  WindowDestroy(dialog);
}

TEST_F(DialogRunTest, EveryEventBringsTheContextOfItsDialog) {
  int number = 7;
  static std::vector<void*> contexts;
  contexts.clear();
  const auto keep = [](const Event& event) {
    contexts.push_back(event.context);
    return false;
  };
  const WindowHandle dialog = DialogOpen(IDD_TestControls, nullptr, keep, &number);
  WindowShow(dialog, true);
  Press(dialog, 20);
  SendCommand(dialog, 5);
  WindowDestroy(dialog);
  EXPECT_EQ(contexts.size(), 5U);  // init, size, pressed, command, destroy
  for (void* context : contexts) EXPECT_EQ(context, &number);
}

TEST_F(DialogRunTest, QuitLeavesTheModalLoop) {
  Then([] { MessageQuit(3); });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 0);
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_EQ(heard.back(), "destroy");
}

}  // namespace
