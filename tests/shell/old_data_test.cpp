// The first data format, loaded and saved as it came: commands 5, 6 and 9.
#include "shell/old_data.h"

#include "platform/posix/faults.h"
#include "platform/window.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/program.h"
#include "shell/popups.h"
#include "shell/shell_commands.h"
#include "shell/tick_timer.h"
#include "tests/support/program.h"

namespace {

constexpr std::uint32_t kLoad = 5;
constexpr std::uint32_t kSave = 6;
constexpr std::uint32_t kSaveAs = 9;

class OldDataTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
  }

  static void Load(const std::string& path) {
    ExpectFileDialog(path.c_str());
    CommandRoute(kLoad);
  }
  static void SaveAs(const std::string& path) {
    ExpectFileDialog(path.c_str());
    CommandRoute(kSaveAs);
  }
  static void ExpectError(const char* caption) { ExpectBox("ミルレール", caption); }
  static std::string Block() {
    return OldFormat.OldData ? std::string(reinterpret_cast<char*>(OldFormat.OldData),
                                           static_cast<std::size_t>(OldFormat.OldDataSize))
                             : "none";
  }

  const std::string file_ = InProgram("old.mot");
  const std::string copy_ = InProgram("copy.mot");
};

TEST_F(OldDataTest, WhatWasLoadedIsSavedByteForByte) {
  const std::string bytes("\0\xffMOT\r\n\x1a", 8);
  PutFile(file_, bytes);
  Load(file_);
  EXPECT_EQ(Block(), bytes);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_EQ(FileDialogsShown().back().title, "ﾌｧｲﾙﾛｰﾄﾞ");
  EXPECT_FALSE(FileDialogsShown().back().save);
  SaveAs(copy_);
  EXPECT_EQ(FileDialogsShown().back().title, "ﾌｧｲﾙﾛｰﾄﾞ");
  EXPECT_TRUE(FileDialogsShown().back().save);
  EXPECT_EQ(FileBytes(copy_), bytes);
  EXPECT_EQ(FileResult.FileStatus, 0);
}

TEST_F(OldDataTest, SaveWritesUnderTheLastNameWithoutAsking) {
  PutFile(file_, "abc");
  Load(file_);
  RemoveFile(file_);
  CommandRoute(kSave);
  EXPECT_EQ(FileBytes(file_), "abc");
  SaveAs(copy_);
  RemoveFile(file_);
  RemoveFile(copy_);
  CommandRoute(kSave);
  EXPECT_EQ(FileBytes(copy_), "abc");
  EXPECT_FALSE(FileThere(file_));
}

TEST_F(OldDataTest, WithNoBlockThereIsNothingToSave) {
  CommandRoute(kSave);
  CommandRoute(kSaveAs);
  EXPECT_TRUE(FileDialogsShown().empty());
}

TEST_F(OldDataTest, PickingNoFileLeavesTheStatusAt1AndTheBlockAsItIs) {
  PutFile(file_, "abc");
  Load(file_);
  Load("");
  EXPECT_EQ(FileResult.FileStatus, 1);
  EXPECT_EQ(Block(), "abc");
  SaveAs("");
  EXPECT_EQ(FileResult.FileStatus, 1);
}

TEST_F(OldDataTest, AMissingFileCannotBeOpened) {
  ExpectError("Coud not open MOT file");
  Load(file_);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_EQ(Block(), "none");
}

TEST_F(OldDataTest, SixtyFourKilobytesAreTheMost) {
  PutFile(file_, std::string(65536, 'a'));
  Load(file_);
  EXPECT_EQ(OldFormat.OldDataSize, 65536);
  PutFile(copy_, std::string(65537, 'b'));
  ExpectError("DATA Size over 64k byte");
  Load(copy_);
  EXPECT_EQ(FileResult.FileStatus, 2);
  EXPECT_EQ(Block(), std::string(65536, 'a')) << "the block in memory stays";
}

TEST_F(OldDataTest, AnEmptyFileIsAnEmptyBlock) {
  PutFile(file_, "");
  Load(file_);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_EQ(Block(), "");
  SaveAs(copy_);
  EXPECT_TRUE(FileThere(copy_));
}

TEST_F(OldDataTest, NoMemoryIsTold) {
  PutFile(file_, "abc");
  FaultArm(FaultKind::Memory, 1);
  ExpectError("Not enough Memory");
  Load(file_);
  EXPECT_EQ(FileResult.FileStatus, 3);
  EXPECT_EQ(Block(), "none");
}

TEST_F(OldDataTest, AShortReadIsTold) {
  PutFile(file_, "abc");
  FaultArm(FaultKind::Read, 1);
  ExpectError("Read DATA Error");
  Load(file_);
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_EQ(Block(), "none");
}

TEST_F(OldDataTest, EveryCallOfSavingFailingInTurnIsTold) {
  PutFile(file_, "abc");
  Load(file_);
  for (const FaultKind kind : {FaultKind::Create, FaultKind::Write}) {
    FaultArm(kind, 1);
    ExpectError(kind == FaultKind::Create ? "Coud not open MOT file" : "Write DATA Error");
    SaveAs(copy_);
    EXPECT_EQ(FileResult.FileStatus, kind == FaultKind::Create ? -1 : -2);
    FaultClear();
  }
  // The open after the creation; the one before it only asks whether there is an old file.
  RemoveFile(copy_);
  FaultArm(FaultKind::Open, 2);
  ExpectError("Coud not open MOT file");
  SaveAs(copy_);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultClear();
  // A name that could not be written is not kept.
  RemoveFile(file_);
  CommandRoute(kSave);
  EXPECT_EQ(FileBytes(file_), "abc");
}

// The file dialog counts like a feature's: nothing opens over it.
TEST_F(OldDataTest, WhileItsFileDialogIsUpNoFeatureOpens) {
  PutFile(file_, "abc");
  bool asked = false;
  ExpectFileDialog(file_.c_str(), [&asked] {
    asked = true;
    for (const std::uint32_t feature : {1900U, 1901U, 1914U, 1915U, 1920U, 2281U, 2282U, 2283U}) {
      SendCommand(Program.hMainWnd, feature);
      EXPECT_EQ(TopDialog(), nullptr) << feature;
    }
    for (const std::uint32_t again : {kLoad, kSave, kSaveAs}) SendCommand(Program.hMainWnd, again);
    EXPECT_FALSE(PopupMayOpen());
    TickTimerFired();
    EXPECT_EQ(TimerPeriod(Program.hMainWnd, kTickTimer), 30);
  });
  CommandRoute(kLoad);
  EXPECT_TRUE(asked);
  EXPECT_EQ(FileDialogsShown().size(), 1U);
  EXPECT_EQ(Block(), "abc");
  EXPECT_TRUE(PopupMayOpen());
}

TEST_F(OldDataTest, WhileAFeaturesDialogIsUpItsFileDialogDoesNotOpen) {
  Then([] {
    ASSERT_NE(Dialogs.hMenuDlg, nullptr);
    for (const std::uint32_t command : {kLoad, kSave, kSaveAs}) SendCommand(Program.hMainWnd, command);
    EXPECT_TRUE(FileDialogsShown().empty());
    Press(TopDialog(), 2);
  });
  SendCommand(Program.hMainWnd, 2283);
  EXPECT_TRUE(FileDialogsShown().empty());
}

TEST_F(OldDataTest, WhileTheProgramsPickerIsUpItsFileDialogDoesNotOpen) {
  Then([] {
    ASSERT_NE(Picker.hFilePickDlg, nullptr);
    for (const std::uint32_t command : {kLoad, kSave, kSaveAs}) SendCommand(Program.hMainWnd, command);
    EXPECT_TRUE(FileDialogsShown().empty());
    PressEscape(TopDialog());
  });
  char path[kPickPathSize] = "";
  PickFileForLoad(Program.hMainWnd, "", path);
  EXPECT_TRUE(FileDialogsShown().empty());
}

}  // namespace
