// Message boxes, popup menus, strings and the system's file dialogs.
#include "platform/dialog.h"
#include "platform/window.h"
#include "tests/platform/machinery.h"
#include "tests/support/test_dialogs.h"

namespace {

class BoxTest : public MachineryTest {};

BoxAnswer Ask(BoxButtons buttons) {
  return MessageBoxRun(nullptr, "消しますか？", "確認", buttons, BoxIcon::Question);
}

TEST_F(BoxTest, ExpectedBoxesAreAnsweredInOrder) {
  ExpectBox("消しますか？", "確認", BoxAnswer::Cancel);
  ExpectBox("消しますか？", "確認", BoxAnswer::Ok);
  EXPECT_EQ(BoxesLeft(), 2);
  EXPECT_EQ(Ask(BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_EQ(Ask(BoxButtons::OkCancel), BoxAnswer::Ok);
  EXPECT_EQ(BoxesLeft(), 0);
  ASSERT_EQ(BoxesShown().size(), 2U);
  EXPECT_EQ(BoxesShown()[0].text, "消しますか？");
  EXPECT_EQ(BoxesShown()[0].caption, "確認");
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::OkCancel);
  EXPECT_EQ(BoxesShown()[0].icon, BoxIcon::Question);
}

TEST_F(BoxTest, UnexpectedBoxIsAFailureAndAnsweredHarmlessly) {
  EXPECT_EQ(Ask(BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_EQ(Ask(BoxButtons::YesNo), BoxAnswer::No);
  EXPECT_EQ(Ask(BoxButtons::Ok), BoxAnswer::Ok);
  EXPECT_EQ(HeadlessFailures().size(), 3U);
  // The failure tells text and caption, readable: 10 bytes of UTF-8 here.
  EXPECT_EQ(
      HeadlessTakeFailures()[0],
      "nobody expected the box \"\xE6\xB6\x88\xE3\x81\x97\xE3\x81\xBE\xE3\x81\x99\xE3\x81\x8B\xEF\xBC\x9F\""
      " titled \"\xE7\xA2\xBA\xE8\xAA\x8D\"");
}

TEST_F(BoxTest, BoxWithAnotherTextOrCaptionIsAFailure) {
  ExpectBox("消しました", "確認", BoxAnswer::Ok);
  EXPECT_EQ(Ask(BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_NE(TheFailure().find("expected was"), std::string::npos);
  ExpectBox("消しますか？", "警告", BoxAnswer::Ok);
  EXPECT_EQ(Ask(BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_NE(TheFailure().find("expected was"), std::string::npos);
  EXPECT_EQ(BoxesLeft(), 0);
}

TEST_F(BoxTest, AnswerThatTheBoxDoesNotOfferIsAFailure) {
  ExpectBox("消しますか？", "確認", BoxAnswer::Yes);
  EXPECT_EQ(Ask(BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_NE(TheFailure().find("has no such button"), std::string::npos);
}

TEST_F(BoxTest, MeanwhileRunsWhileTheOwnerIsDisabled) {
  const WindowHandle owner = OpenControls();
  ExpectBox("a", "b", BoxAnswer::Ok, [owner] {
    Tick();
    Press(owner, 1);
    EXPECT_NE(TheFailure().find("another dialog stands in front"), std::string::npos);
  });
  EXPECT_EQ(MessageBoxRun(owner, "a", "b", BoxButtons::Ok, BoxIcon::Exclamation), BoxAnswer::Ok);
  EXPECT_EQ(BoxesShown()[0].owner, owner);
  Press(owner, 20);
  WindowDestroy(owner);
}

TEST_F(BoxTest, FileDialogIsUpWhileItRuns) {
  const WindowHandle owner = OpenControls();
  EXPECT_FALSE(FileDialogIsUp());
  ExpectFileDialog("", [owner] {
    EXPECT_TRUE(FileDialogIsUp());
    Press(owner, 1);
    EXPECT_NE(TheFailure().find("another dialog stands in front"), std::string::npos);
  });
  char path[100] = "";
  EXPECT_FALSE(FileDialogLoad(owner, "t", "f", "*.*", "", path, sizeof path));
  EXPECT_FALSE(FileDialogIsUp());
  Press(owner, 20);
  WindowDestroy(owner);
}

TEST_F(BoxTest, MenuReturnsItsCommand) {
  const WindowHandle window = OpenControls();
  ExpectMenu(IDM_Test, 501);
  EXPECT_EQ(MenuPopup(IDM_Test, window, 1, 2, true), 501U);
  EXPECT_TRUE(heard.empty());
  ExpectMenu(IDM_Test, 0);
  EXPECT_EQ(MenuPopup(IDM_Test, window, 1, 2, true), 0U);
  WindowDestroy(window);
}

TEST_F(BoxTest, MenuSendsItsCommand) {
  const WindowHandle window = OpenControls();
  ExpectMenu(IDM_Test, 503);  // of the inner popup
  EXPECT_EQ(MenuPopup(IDM_Test, window, 1, 2, false), 0U);
  EXPECT_EQ(heard, Names{"command 503"});
  WindowDestroy(window);
}

TEST_F(BoxTest, MenuThatNobodyExpectedOrWithoutThatEntryIsAFailure) {
  const WindowHandle window = OpenControls();
  EXPECT_EQ(MenuPopup(IDM_Test, window, 0, 0, true), 0U);
  EXPECT_EQ(TheFailure(), "nobody expected the popup menu 110");
  EXPECT_EQ(MenuPopup(999, window, 0, 0, true), 0U);
  EXPECT_EQ(TheFailure(), "the popup menu 999 is not in the resources");
  ExpectMenu(IDM_Test, 502);  // grey
  EXPECT_EQ(MenuPopup(IDM_Test, window, 0, 0, true), 0U);
  EXPECT_EQ(TheFailure(), "the popup menu 110 does not offer 502");
  ExpectMenu(IDM_Test, 77);
  EXPECT_EQ(MenuPopup(IDM_Test, window, 0, 0, true), 0U);
  EXPECT_EQ(TheFailure(), "the popup menu 110 does not offer 77");
  WindowDestroy(window);
}

TEST_F(BoxTest, StringIsLoadedAndCut) {
  char buffer[16];
  EXPECT_EQ(StringLoad(IDS_Test, buffer, sizeof buffer), 6);
  EXPECT_STREQ(buffer, "文字列");
  EXPECT_EQ(StringLoad(IDS_Test, buffer, 4), 3);
  EXPECT_EQ(buffer[3], '\0');
  EXPECT_EQ(StringLoad(999, buffer, sizeof buffer), 0);
  EXPECT_STREQ(buffer, "");
}

TEST_F(BoxTest, FileDialogEndsWithTheExpectedPathOrIsCancelled) {
  char path[64] = "old.BUP";
  ExpectFileDialog("C:\\mirrell\\a.BUP");
  EXPECT_EQ(DialogsExpected(), 1);
  EXPECT_TRUE(FileDialogLoad(nullptr, "開く", "BackUp Files (*.BUP)", "*.BUP", "C:\\", path, sizeof path));
  EXPECT_STREQ(path, "C:\\mirrell\\a.BUP");
  ExpectFileDialog("");
  EXPECT_FALSE(FileDialogSave(nullptr, "保存", "BackUp Files (*.BUP)", "*.BUP", "C:\\", path, sizeof path));
  EXPECT_STREQ(path, "C:\\mirrell\\a.BUP");
  ASSERT_EQ(FileDialogsShown().size(), 2U);
  EXPECT_FALSE(FileDialogsShown()[0].save);
  EXPECT_EQ(FileDialogsShown()[0].path, "old.BUP");
  EXPECT_EQ(FileDialogsShown()[0].mask, "*.BUP");
  EXPECT_TRUE(FileDialogsShown()[1].save);
  EXPECT_EQ(FileDialogsShown()[1].title, "保存");
}

TEST_F(BoxTest, FileDialogThatNobodyExpectedOrThatDoesNotFitIsAFailure) {
  char path[8] = "";
  EXPECT_FALSE(FileDialogLoad(nullptr, "t", "f", "*.*", "", path, sizeof path));
  EXPECT_EQ(TheFailure(), "nobody expected the file dialog \"t\"");
  ExpectFileDialog("C:\\a.txt");  // 8 bytes and a terminator
  EXPECT_FALSE(FileDialogLoad(nullptr, "t", "f", "*.*", "", path, sizeof path));
  EXPECT_NE(TheFailure().find("does not fit"), std::string::npos);
  EXPECT_STREQ(path, "");
}

}  // namespace
