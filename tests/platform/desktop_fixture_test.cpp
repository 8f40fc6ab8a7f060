// The fixture itself: what it sets up, and that it notices what is left.
#include <gtest/gtest-spi.h>

#include "platform/file.h"
#include "platform/memory.h"
#include "platform/window.h"
#include "services/program.h"
#include "tests/platform/machinery.h"
#include "tests/support/desktop.h"
#include "tests/support/test_dialogs.h"

namespace {

class DesktopFixtureTest : public MachineryTest {};

TEST_F(DesktopFixtureTest, ProgramFolderIsCurrentAndOnDriveC) {
  char folder[300];
  ASSERT_GT(FolderGetCurrent(folder, sizeof folder), 0);
  EXPECT_STREQ(folder, "C:\\mirrell");
  EXPECT_STREQ(Program.RootFolder, "C:\\mirrell");
  EXPECT_TRUE(FolderNames("C:\\mirrell").empty());
  EXPECT_EQ(InProgram("a.bin"), "C:\\mirrell\\a.bin");
}

TEST_F(DesktopFixtureTest, FilesByPathsOfTheProgram) {
  EXPECT_TRUE(PutFile(InProgram("表.bin"), std::string("\0\x80", 2)));
  EXPECT_EQ(FileBytes("表.bin"), std::string("\0\x80", 2));
  EXPECT_TRUE(FileThere("表.bin"));
  RemoveFile("表.bin");
  EXPECT_FALSE(FileThere("表.bin"));
  MakeFolder("a\\b");
  EXPECT_TRUE(FolderThere(InProgram("a\\b")));
  EXPECT_FALSE(PutFile("none\\a", "x"));
}

TEST_F(DesktopFixtureTest, LiveCountsAreReadable) {
  LiveObjects live{};
  EXPECT_EQ(LiveText(live), "");
  live.brushes = 2;
  live.files = 1;
  EXPECT_EQ(LiveText(live), "brushes 2, files 1");
}

TEST_F(DesktopFixtureTest, ResetForgetsEverything) {
  Then([] {});
  ExpectBox("a", "b");
  ExpectFileDialog("x");
  ExpectMenu(1, 2);
  OpenControls();
  BrushCreate(0);
  Press(nullptr, 1);
  SetPointer(5, 5);
  HeadlessReset();
  EXPECT_EQ(StepsLeft(), 0);
  EXPECT_EQ(BoxesLeft(), 0);
  EXPECT_EQ(DialogsExpected(), 0);
  EXPECT_EQ(OpenWindowCount(), 0);
  EXPECT_TRUE(HeadlessFailures().empty());
  EXPECT_EQ(LiveText(DiagnosticsLive()), "");
}

// Each is run inside a fixture of its own, whose end must fail.
class LeftBehindTest : public MachineryTest {
 public:
  void TestBody() override { body(); }
  static std::function<void()> body;
};
std::function<void()> LeftBehindTest::body;

bool EndFails(const std::function<void()>& body) {
  LeftBehindTest::body = body;
  ::testing::TestPartResultArray results;
  {
    ::testing::ScopedFakeTestPartResultReporter reporter(
        ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
    struct Run : LeftBehindTest {
      using MachineryTest::SetUp;
      using MachineryTest::TearDown;
    } run;
    run.SetUp();
    run.TestBody();
    run.TearDown();
  }
  return results.size() > 0;
}

TEST(LeftBehind, NothingLeftIsNoFailure) {
  EXPECT_FALSE(EndFails([] {}));
}
TEST(LeftBehind, AStepThatNobodyRanIsAFailure) {
  EXPECT_TRUE(EndFails([] { Then([] {}); }));
}
TEST(LeftBehind, ABoxThatDidNotComeIsAFailure) {
  EXPECT_TRUE(EndFails([] { ExpectBox("a", "b"); }));
}
TEST(LeftBehind, AMenuOrFileDialogThatDidNotComeIsAFailure) {
  EXPECT_TRUE(EndFails([] { ExpectMenu(1, 1); }));
  EXPECT_TRUE(EndFails([] { ExpectFileDialog("a"); }));
}
TEST(LeftBehind, AFailureAgainstTheScriptIsAFailure) {
  EXPECT_TRUE(EndFails([] { Press(nullptr, 1); }));
}
TEST(LeftBehind, ABrushIsAFailure) {
  EXPECT_TRUE(EndFails([] { BrushCreate(0); }));
}
TEST(LeftBehind, ADialogIsAFailure) {
  EXPECT_TRUE(EndFails([] { DialogOpen(IDD_TestPanel, nullptr, Listen); }));
}
TEST(LeftBehind, AnOpenFileOrSearchIsAFailure) {
  int file = kNoFile;
  EXPECT_TRUE(EndFails([&] { file = FileCreate("a"); }));
  FileClose(file);
  SearchHandle search = kNoSearch;
  SearchEntry entry;
  EXPECT_TRUE(EndFails([&] { search = SearchFirst("*.*", &entry); }));
  SearchClose(search);
}
TEST(LeftBehind, AMemoryBlockIsAFailure) {
  void* block = nullptr;
  EXPECT_TRUE(EndFails([&] { block = MemoryAllocate(4); }));
  MemoryFree(block);
}
TEST(LeftBehind, AMainWindowIsNone) {
  EXPECT_FALSE(EndFails([] { MainWindowCreate({"c", "t", 0, 0, 0, Listen}, 0, 0, 10, 10); }));
}

}  // namespace
