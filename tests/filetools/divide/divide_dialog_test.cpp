// FileDivideSetDlg, the choice, and FileDivideSetDlg2, a division, with its progress.
#include <filesystem>
#include <map>

#include "filetools/stepped_work.h"
#include "platform/headless/resource_file.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "shell/panel.h"
#include "tests/filetools/divide/divide_fixture.h"
#include "tests/support/places.h"

namespace {

constexpr char kErrorCaption[] = "分割エラー";
constexpr char kCannotWrite[] = "分割データファイルに書き込めません";

// --- The choice

TEST_F(DivideDialogTest, TheChoiceOpensFromItsCommandAndCanBeLeft) {
  Panel.MenuPanelState = 401;
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivideSetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル 分割/復元選択");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_CHOOSE_DIVIDE), "ファイルを分割する");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_CHOOSE_RESTORE), "分割ファイルを復元する");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileDivideSetDlg);
    EXPECT_EQ(Panel.FuncNo, 7);
    SendClose(TopDialog());
  });
  CommandSend(Command::DivideRestore);
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(Panel.MenuPanelState, 0);
}

TEST_F(DivideDialogTest, TheChoiceClosesAndItsDialogOpens) {
  In([] {
    EXPECT_EQ(Dialogs.hToolDlg, nullptr);
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivideSetDlg2);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル 分割");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::FileDivideSetDlg2);
    EXPECT_EQ(Panel.FuncNo, 8);
    EXPECT_EQ(FindDialog(IDD_FileDivideSetDlg), nullptr);
  });
  RunDivide();
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivideSetDlg3);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル 復元");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::FileDivideSetDlg3);
    EXPECT_EQ(Panel.FuncNo, 9);
  });
  RunRestore();
}

TEST_F(DivideDialogTest, LabelsReadAsTold) {
  In([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_PICK), "分割するファイルを選択");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_PICK_FOLDER), "分割ファイル格納先選択");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_RUN), "ファイル分割を実行");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_ENCRYPT), "分割時に暗号化する");
  });
  RunDivide();
  In([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_PICK), "合成ファイル選択");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_PICK_FOLDER), "復元ファイル格納先選択");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_RUN), "分割ファイルを復元");
  });
  RunRestore();
}

// --- The division's dialog

TEST_F(DivideDialogTest, TheCountFirstShowsNought) {
  In([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_COUNT), "0");
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_SOURCE), "");
    EXPECT_FALSE(ControlIsChecked(TopDialog(), IDC_DIVIDE_ENCRYPT));
    EXPECT_TRUE(TextStands(TopDialog(), "0 Byte", 210, 136));
    EXPECT_TRUE(TextStands(TopDialog(), "0 Byte", 210, 180));
  });
  RunDivide();
}

TEST_F(DivideDialogTest, APickedSourceShowsWithItsSizeAtOnce) {
  PutFile(InProgram("表.txt"), Bytes(12345));
  InPress(IDC_DIVIDE_PICK);
  InPick("表.txt");
  In([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_SOURCE), "表.txt [C:\\mirrell\\]");
    EXPECT_TRUE(TextStands(TopDialog(), "12345 Byte", 210, 136));
  });
  RunDivide();
  EXPECT_STREQ(FileDivide.sourcePath, "C:\\mirrell\\表.txt");
  EXPECT_EQ(FileDivide.sourceSize, 12345U);
}

TEST_F(DivideDialogTest, ACancelledPickerChangesNothing) {
  Set(FileDivide.sourcePath, sizeof FileDivide.sourcePath, "C:\\a");
  FileDivide.sourceSize = 5;
  InPress(IDC_DIVIDE_PICK);
  InPress(kFolderCancelId);
  InPress(IDC_DIVIDE_PICK_FOLDER);
  InPress(kFolderCancelId);
  RunDivide();
  EXPECT_STREQ(FileDivide.sourcePath, "C:\\a");
  EXPECT_EQ(FileDivide.sourceSize, 5U);
  EXPECT_STREQ(FileDivide.storeDir, "");
}

TEST_F(DivideDialogTest, BothDialogsChooseTheOneFolder) {
  InPress(IDC_DIVIDE_PICK_FOLDER);
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivFileDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileDivFileDlg);
    Press(TopDialog(), 1);
  });
  In([] { EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_FOLDER), "C:\\mirrell"); });
  RunDivide();
  In([] { EXPECT_EQ(ControlText(TopDialog(), IDC_DIVIDE_FOLDER), "C:\\mirrell"); });
  InPress(IDC_DIVIDE_PICK_FOLDER);
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileUDivFileDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileUDivFileDlg);
    Press(TopDialog(), 1);
  });
  RunRestore();
}

TEST_F(DivideDialogTest, ADivisionRunsAPieceATickAndTellsTheEnd) {
  PutFile(InProgram("source.bin"), Bytes(10));
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, kPieces);
  InPress(IDC_DIVIDE_PICK);
  InPick("source.bin");
  InType(IDC_DIVIDE_NAME, "part");
  InType(IDC_DIVIDE_COUNT, "3");
  InPress(IDC_DIVIDE_RUN);
  In([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileDivExeDlg);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル分割中");
    EXPECT_EQ(ControlText(TopDialog(), 2), "中止");
    EXPECT_EQ(Stepped.hSearchDlg, TopDialog());
    EXPECT_EQ(Stepped.progressMode, 3);
    EXPECT_EQ(Stepped.stepCounter, 2);
    EXPECT_EQ(FolderNames(kPieces), (Rows{"part0.cof"}));
    EXPECT_TRUE(TextStands(Dialogs.hMenuDlg, "3 Byte", 210, 180));
    MainTick();
    EXPECT_EQ(Stepped.stepCounter, 3);
    EXPECT_EQ(FolderNames(kPieces), (Rows{"part0.cof", "part1.div"}));
  });
  InTicks(2);
  ExpectBox("ファイル分割を終了しました", "分割を正常終了");
  InTicks(1);
  In([] {
    EXPECT_EQ(Stepped.hSearchDlg, nullptr);
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_EQ(Stepped.stepCounter, 0);
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
  });
  RunDivide();
  EXPECT_EQ(PieceNo(1) + PieceNo(2) + PieceNo(3), Bytes(10));
  EXPECT_EQ(FileDivide.divideCount, 3);
}

TEST_F(DivideDialogTest, AStepCommandUnderTheLastBoxEndsTheDialogThere) {
  Prepare(Simple(10, 1));
  InPress(IDC_DIVIDE_RUN);
  InTicks(1);
  ExpectBox("ファイル分割を終了しました", "分割を正常終了", BoxAnswer::Ok, [] {
    MainTick();
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_EQ(Stepped.hSearchDlg, nullptr);
    MainTick();
  });
  InTicks(1);
  In([] { EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg); });
  RunDivide();
}

TEST_F(DivideDialogTest, TheCountIsReadFromTwoCharactersAndCutAt200) {
  const std::pair<const char*, int> counts[] = {{"0", 0},    {"-5", -5}, {"1", 1},    {"12", 12}, {" 7", 7},
                                                {"123", 12}, {"", 0},    {"zz", 200}, {"-", 0},   {"  3", 0}};
  for (const auto& [text, count] : counts) {
    In([text = text] { Type(TopDialog(), IDC_DIVIDE_COUNT, text); });
    ExpectBox("分割ソースファイルが開けません", kErrorCaption);
    ExpectBox(kCannotWrite, kErrorCaption);
    InPress(IDC_DIVIDE_RUN);
    In([count = count, text = text] { EXPECT_EQ(FileDivide.divideCount, count) << text; });
  }
  RunDivide();
}

TEST_F(DivideDialogTest, TheBannerStandsDuringTheFirstStepAndIsWipedAfterIt) {
  Prepare(Simple(10, 2));
  In([] {
    FileDivide.banner = true;
    SendPaint(Dialogs.hMenuDlg);
    const std::vector<DrawCall> texts = DrawnTexts(Dialogs.hMenuDlg);
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.back().text, "ファイル分割中です !");
    EXPECT_EQ(texts.back().textColour, 0x0000FFU);
    EXPECT_TRUE(texts.back().transparent);
    EXPECT_TRUE(TextStands(Dialogs.hMenuDlg, "ファイル分割中です !", 432, 218));
    FileDivide.banner = false;
    DrawingClear();
    SendPaint(Dialogs.hMenuDlg);
    const DrawCall wipe = Drawings(Dialogs.hMenuDlg).back();
    EXPECT_EQ(wipe.kind, DrawCall::Kind::Rectangle);
    EXPECT_EQ(wipe.x, 430);
    EXPECT_EQ(wipe.y, 216);
    EXPECT_EQ(wipe.x2, 750);
    EXPECT_EQ(wipe.y2, 286);
    EXPECT_FALSE(wipe.edged);
    DrawingClear();
  });
  InType(IDC_DIVIDE_NAME, "part");
  InPress(IDC_DIVIDE_RUN);
  In([] {
    bool shown = false;
    for (const DrawCall& text : DrawnTexts(Dialogs.hMenuDlg))
      shown = shown || text.text == "ファイル分割中です !";
    EXPECT_TRUE(shown) << "it stood";
    EXPECT_FALSE(TextStands(Dialogs.hMenuDlg, "ファイル分割中です !", 432, 218)) << "and is gone";
    Press(TopDialog(), 2);
  });
  RunDivide();
  In([] {
    FileDivide.banner = true;
    SendPaint(Dialogs.hMenuDlg);
    EXPECT_TRUE(TextStands(Dialogs.hMenuDlg, "ファイル合成中です!", 556, 118));
    FileDivide.banner = false;
    SendPaint(Dialogs.hMenuDlg);
    const DrawCall wipe = Drawings(Dialogs.hMenuDlg).back();
    EXPECT_EQ(wipe.x, 554);
    EXPECT_EQ(wipe.y, 116);
    EXPECT_EQ(wipe.x2, 740);
    EXPECT_EQ(wipe.y2, 186);
  });
  RunRestore();
}

TEST_F(DivideDialogTest, AStoppedDivisionKeepsItsFilesWithoutAWord) {
  Prepare(Simple(10, 3));
  InType(IDC_DIVIDE_COUNT, "3");
  InPress(IDC_DIVIDE_RUN);
  InTicks(1);
  InPress(2);
  In([] {
    EXPECT_EQ(Stepped.stepCounter, 0);
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_EQ(Stepped.hSearchDlg, nullptr);
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
  });
  RunDivide();
  EXPECT_EQ(FolderNames(kPieces), (Rows{"part0.cof", "part1.div"}));
}

TEST_F(DivideDialogTest, ClosingTheProgressWithOkJustEndsIt) {
  Prepare(Simple(10, 3));
  InType(IDC_DIVIDE_COUNT, "3");
  InPress(IDC_DIVIDE_RUN);
  In([] { SendCommand(TopDialog(), 1); });
  In([] {
    EXPECT_EQ(Stepped.stepCounter, 2) << "the run stays where it is";
    EXPECT_EQ(Stepped.hSearchDlg, nullptr);
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
  });
  RunDivide();
}

TEST_F(DivideDialogTest, AProgressDialogThatCannotBeMadeStopsTheRun) {
  Prepare(Simple(10, 3));
  In([] {
    FaultArm(FaultKind::Window, 1);
    Press(TopDialog(), IDC_DIVIDE_RUN);
    FaultClear();
    EXPECT_EQ(Stepped.stepCounter, 0);
    EXPECT_EQ(Stepped.progressMode, 0);
  });
  RunDivide();
}

// --- Failures of a division

TEST_F(DivideDialogTest, ASourceThatCannotBeOpenedGivesTwoBoxes) {
  ExpectBox("分割ソースファイルが開けません", kErrorCaption);
  ExpectBox(kCannotWrite, kErrorCaption);
  InPress(IDC_DIVIDE_RUN);
  In([] {
    EXPECT_EQ(Stepped.stepCounter, 0);
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg) << "no progress dialog";
  });
  RunDivide();
  for (const Box& box : BoxesShown()) EXPECT_EQ(box.icon, BoxIcon::Exclamation);
}

TEST_F(DivideDialogTest, ASourceOfTwoGigabytesAndMoreIsRefusedBeforeAnythingIsWritten) {
  constexpr std::uintmax_t kTwo = 2147483648U;
  // As picked and as it is when the run is asked for.
  const std::pair<std::uintmax_t, std::uintmax_t> sizes[] = {
      {kTwo, kTwo}, {2 * kTwo, 2 * kTwo}, {2 * kTwo + 10, 2 * kTwo + 10}, {kTwo, 10}, {10, kTwo}};
  Prepare(Simple(10, 2, "abcd"));
  const std::string path = PosixPath(FileDivide.sourcePath);
  for (const auto& [picked, now] : sizes) {
    In([&path, picked = picked, now = now] {
      std::filesystem::resize_file(path, picked);
      FileDivide.sourceSize = DivFileSize(FileDivide.sourcePath);
      std::filesystem::resize_file(path, now);
    });
    ExpectBox("分割ソースファイルが大きすぎます(2GB未満のファイルを分割できます)", kErrorCaption);
    InPress(IDC_DIVIDE_RUN);
    In([] { EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg) << "no keyword is asked for"; });
  }
  RunDivide();
  EXPECT_EQ(FolderNames(kPieces), Rows());
}

TEST_F(DivideDialogTest, ASourceOfLessThanTwoGigabytesIsNotTooLarge) {
  Prepare(Simple(10, 2));
  std::filesystem::resize_file(PosixPath(FileDivide.sourcePath), 2147483647U);
  FileDivide.sourceSize = DivFileSize(FileDivide.sourcePath);
  EXPECT_FALSE(DivSourceTooLarge());
}

// The desktop's font makes a unit of 17 / 8 pixels of the height.
TEST_F(DivideDialogTest, TheSizesStandBesideTheirLabelsOnTheDesktop) {
  ResourceSet set;
  ASSERT_EQ(ResourceLoad(kResourceFile, &set), nullptr);
  std::map<std::string, int> tops;
  for (const ResourceControl& control : set.dialogs.at(IDD_FileDivideSetDlg2).controls) {
    tops[control.text] = control.y * 17 / 8;
  }
  EXPECT_NEAR(tops.at("ソースファイルサイス: "), 136, 1);
  EXPECT_NEAR(tops.at("分割サイズ: "), 180, 1);
}

TEST_F(DivideDialogTest, AJoiningFileThatCannotBeMadeGivesTwoBoxes) {
  Prepare(Simple(10, 2));
  MakeFolder(kCof);
  ExpectBox("合成用ファイルが開けません", kErrorCaption);
  ExpectBox(kCannotWrite, kErrorCaption);
  InPress(IDC_DIVIDE_RUN);
  RunDivide();
}

TEST_F(DivideDialogTest, AShortWriteOfTheHeadGivesTheGeneralBoxAlone) {
  Prepare(Simple(10, 2));
  ExpectBox(kCannotWrite, kErrorCaption);
  In([] {
    FaultArm(FaultKind::Write, 2);
    Press(TopDialog(), IDC_DIVIDE_RUN);
  });
  RunDivide();
}

TEST_F(DivideDialogTest, AFailedPieceEndsTheProgressWithItsBox) {
  Prepare(Simple(10, 3));
  InType(IDC_DIVIDE_COUNT, "3");
  InPress(IDC_DIVIDE_RUN);
  InTicks(1);
  In([] { MakeFolder("C:\\mirrell\\pieces\\part2.div"); });
  ExpectBox(kCannotWrite, kErrorCaption, BoxAnswer::Ok, [] {
    EXPECT_EQ(Stepped.stepCounter, 0);
    // Whatever else reads a file meanwhile: the run has failed all the same.
    FileResult.FileStatus = 0;
  });
  InTicks(1);
  In([] {
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
  });
  RunDivide();
}

TEST_F(DivideDialogTest, AFileErrorOfAnotherFeatureDoesNotFailTheRun) {
  Prepare(Simple(10, 1));
  InType(IDC_DIVIDE_COUNT, "1");
  InPress(IDC_DIVIDE_RUN);
  In([] {
    FileResult.FileStatus = -1;
    MainTick();
    FileResult.FileStatus = -2;
  });
  ExpectBox("ファイル分割を終了しました", "分割を正常終了");
  InTicks(1);
  RunDivide();
}

// --- Guards

TEST_F(DivideDialogTest, TheRunCommandNeedsOneOfTheTwoDialogs) {
  CommandSend(Command::DivideRun);
  EXPECT_EQ(Stepped.stepCounter, 0);
}

TEST_F(DivideDialogTest, NoCommandStartsASecondRunUnderTheFirst) {
  Prepare(Simple(10, 3));
  InType(IDC_DIVIDE_COUNT, "3");
  InPress(IDC_DIVIDE_RUN);
  InTicks(1);
  In([] {
    const int windows = OpenWindowCount();
    for (const Command command : {Command::DivideRun, Command::DividePick, Command::RestorePick,
                                  Command::DivideFolder, Command::RestoreFolder}) {
      CommandSend(command);
    }
    EXPECT_EQ(OpenWindowCount(), windows);
    EXPECT_EQ(Stepped.stepCounter, 3);
    Press(TopDialog(), 2);
  });
  RunDivide();
}

}  // namespace
