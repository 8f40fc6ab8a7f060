// The tables behind the open dialogs: programs, choice, record.
#include "tests/filetools/open/open_fixture.h"

namespace {

class OpenModelTest : public OpenFixture {};

Rows Programs() {
  Rows rows;
  for (int row = 0; row < OpnProgList.progCount; ++row) {
    rows.push_back(std::string(OpnProgList.progName[row]) + " [" + OpnProgList.progPath[row] + "]");
  }
  return rows;
}

// --- Texts

TEST_F(OpenModelTest, ATextGoesInWithItsFirst256Bytes) {
  char field[kOpnTextSize];
  std::memset(field, 'x', sizeof field);
  OpnTextSet(field, std::string(299, 'a').c_str());
  EXPECT_EQ(std::string(field), std::string(256, 'a'));
  for (int i = 256; i < kOpnTextSize; ++i) EXPECT_EQ(field[i], '\0') << i;
  OpnTextSet(field, "b");
  EXPECT_EQ(std::string(field, kOpnTextSize), "b" + std::string(299, '\0'));
}

TEST_F(OpenModelTest, TextsAreComparedInTheirFirst256Bytes) {
  const std::string same(256, 'a');
  EXPECT_TRUE(OpnTextSame((same + "b").c_str(), (same + "c").c_str()));
  EXPECT_FALSE(OpnTextSame((same.substr(1) + "b").c_str(), (same.substr(1) + "c").c_str()));
  EXPECT_FALSE(OpnTextSame("a", "A"));
  EXPECT_TRUE(OpnTextSame("", ""));
}

// --- Associations

TEST_F(OpenModelTest, EveryExtensionHasItsKey) {
  ClassValueSet("txtfile\\shell\\open\\command", "t");
  ClassValueSet("cfile\\shell\\&Open with MSDev\\command", "c");
  ClassValueSet("PDXFileType\\shell\\Open\\command", "p");
  ClassValueSet("DocShortcut\\shell\\open\\command", "d");
  const std::pair<const char*, const char*> expected[] = {
      {"txt", "t"}, {"cpp", "c"}, {"pdf", "p"}, {"doc", "d"}};
  for (const auto& [extension, value] : expected) {
    char command[kOpnCommandSize] = "";
    EXPECT_TRUE(OpnFindAssociation(extension, command, sizeof command)) << extension;
    EXPECT_STREQ(command, value) << extension;
  }
}

TEST_F(OpenModelTest, WithoutAnAssociationThereIsNone) {
  ClassValueSet("txtfile\\shell\\open\\command", std::string(600, 'x').c_str());
  for (const char* extension : {"txt", "cpp", "exe", "", "TXT"}) {
    char command[kOpnCommandSize] = "";
    EXPECT_FALSE(OpnFindAssociation(extension, command, sizeof command)) << extension;
    EXPECT_STREQ(command, "なし") << extension;
  }
}

struct Command {
  const char* command;
  const char* row;
};

TEST_F(OpenModelTest, ACommandIsCutIntoNameAndFolder) {
  const Command commands[] = {
      {"%SystemRoot%\\system32\\NOTEPAD.EXE %1", "NOTEPAD.EXE [C:\\WINDOWS\\system32\\]"},
      {"C:\\Windows\\notepad.exe", "notepad.exe [C:\\Windows\\]"},
      {"\"C:\\Program Files\\Editor\\edit.exe\" \"%1\"", "edit.exe [\"C:\\Program Files\\Editor\\]"},
      {"C:\\a\\my editor.exe \"%1\"", "my editor.exe [C:\\a\\]"},
      {"C:\\a\\edit.old.exe\"%1\"", "edit.old.exe [C:\\a\\]"},
      {"C:\\a\\no dot at all", "no dot at all [C:\\a\\]"},
      {"C:\\表\\ソ編集.exe %1", "ソ編集.exe [C:\\表\\]"},
      {"C:\\a\\表 示.exe %1", "表 示.exe [C:\\a\\]"},
      {"C:\\a\\edit.exe /f \\b c.ini", "b c.ini [C:\\a\\edit.exe /f \\]"},
      {"D:\\%SystemRoot%\\x.exe", "x.exe [D:\\%SystemRoot%\\]"},
      {"notepad.exe %1", " [notepad.exe %1]"},
      {"", " []"},
      {"C:\\folder\\", " [C:\\folder\\]"},
  };
  for (const Command& command : commands) {
    ClassValueSet("txtfile\\shell\\open\\command", command.command);
    OpnProgListForget();
    OpnBuildProgList();
    EXPECT_EQ(Programs(), Rows{command.row}) << command.command;
  }
}

TEST_F(OpenModelTest, AnAssociationOf599BytesFits) {
  const std::string name = std::string(500, 'n') + ".exe";
  ClassValueSet("txtfile\\shell\\open\\command", ("C:\\" + name + std::string(90, ' ')).c_str());
  OpnBuildProgList();
  EXPECT_EQ(Programs(), Rows{std::string(256, 'n') + " [C:\\]"});
}

// --- The program list

TEST_F(OpenModelTest, TheProgramListHoldsEachProgramOfTheHistoryOnceAndThenTheAssociations) {
  AddHistory("a.txt", "C:\\", "edit.exe", "C:\\ed\\");
  AddHistory("b.txt", "C:\\");
  AddHistory("c.txt", "C:\\", "edit.exe", "C:\\other\\");
  AddHistory("d.txt", "C:\\", "edit.exe", "C:\\ed\\");
  ClassValueSet("PDXFileType\\shell\\Open\\command", "C:\\pdf\\read.exe \"%1\"");
  ClassValueSet("txtfile\\shell\\open\\command", "C:\\ed\\edit.exe %1");
  ClassValueSet("cfile\\shell\\&Open with MSDev\\command", "C:\\vc\\msdev.exe");
  ClassValueSet("DocShortcut\\shell\\open\\command", "C:\\doc\\word.exe");
  OpnBuildProgList();
  EXPECT_EQ(Programs(), (Rows{"edit.exe [C:\\ed\\]", "edit.exe [C:\\other\\]", "msdev.exe [C:\\vc\\]",
                              "read.exe [C:\\pdf\\]"}));
}

TEST_F(OpenModelTest, TheProgramListIsBuiltOnceInARun) {
  OpnBuildProgList();
  EXPECT_EQ(Programs(), Rows{});
  AddHistory("a.txt", "C:\\", "edit.exe", "C:\\");
  OpnBuildProgList();
  EXPECT_EQ(Programs(), Rows{});
  OpnProgListForget();
  OpnBuildProgList();
  EXPECT_EQ(Programs(), Rows{"edit.exe [C:\\]"});
}

TEST_F(OpenModelTest, TwoHundredProgramsAndThreeAssociationsFit) {
  for (int i = 0; i < 200; ++i) AddHistory("f", "C:\\", "p" + std::to_string(i), "C:\\");
  ClassValueSet("txtfile\\shell\\open\\command", "C:\\1.exe");
  ClassValueSet("cfile\\shell\\&Open with MSDev\\command", "C:\\2.exe");
  ClassValueSet("PDXFileType\\shell\\Open\\command", "C:\\3.exe");
  OpnBuildProgList();
  ASSERT_EQ(OpnProgList.progCount, 203);
  EXPECT_EQ(Programs()[199], "p199 [C:\\]");
  EXPECT_EQ(Programs()[202], "3.exe [C:\\]");
  // A browsed one is too much; the list shows 199.
  OpnWorkReset();
  EXPECT_FALSE(OpnBrowseProgram("C:\\more.exe"));
  EXPECT_EQ(OpnProgList.workCount, 199);
  EXPECT_EQ(OpnWork.progSel, 199);
}

// --- Browsing

TEST_F(OpenModelTest, ABrowsedFileStandsBehindTheLastRow) {
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\");
  OpnBuildProgList();
  OpnWorkReset();
  EXPECT_EQ(OpnWork.progSel, 1);
  EXPECT_TRUE(OpnBrowseFile("C:\\書類\\表紙.txt"));
  EXPECT_EQ(OpnHistory.fileCount, 1);
  EXPECT_EQ(OpnHistory.workCount, 2);
  EXPECT_EQ(OpnWork.fileSel, 1);
  EXPECT_EQ(OpnWork.progSel, 0);
  EXPECT_STREQ(OpnHistory.fileName[1], "表紙.txt");
  EXPECT_STREQ(OpnHistory.filePath[1], "C:\\書類\\");
}

TEST_F(OpenModelTest, OnlyTheLastBrowsedFileStays) {
  AddHistories(3);
  OpnWorkReset();
  EXPECT_TRUE(OpnBrowseFile("C:\\one.txt"));
  EXPECT_TRUE(OpnBrowseFile("C:\\two.txt"));
  EXPECT_EQ(OpnHistory.workCount, 4);
  EXPECT_STREQ(OpnHistory.fileName[3], "two.txt");
  // The browsed one is known now.
  EXPECT_TRUE(OpnBrowseFile("C:\\two.txt"));
  EXPECT_EQ(OpnHistory.workCount, 4);
  EXPECT_EQ(OpnWork.fileSel, 3);
}

TEST_F(OpenModelTest, ABrowsedFileThatIsKnownIsChosenWithItsProgram) {
  AddHistory("a.txt", "C:\\data\\");
  AddHistory("b.txt", "C:\\data\\", "edit.exe", "C:\\");
  AddHistory("b.txt", "C:\\other\\", "edit.exe", "C:\\");
  OpnBuildProgList();
  OpnWorkReset();
  EXPECT_TRUE(OpnBrowseFile("C:\\data\\b.txt"));
  EXPECT_EQ(OpnHistory.workCount, 3);
  EXPECT_EQ(OpnWork.fileSel, 1);
  EXPECT_EQ(OpnWork.progSel, 1);
}

TEST_F(OpenModelTest, TheTwoHundredAndFirstFileIsDroppedAndTheLastOneChosen) {
  AddHistories(200);
  OpnWorkReset();
  EXPECT_FALSE(OpnBrowseFile("C:\\new.txt"));
  EXPECT_EQ(OpnHistory.fileCount, 200);
  EXPECT_EQ(OpnHistory.workCount, 200);
  EXPECT_EQ(OpnWork.fileSel, 199);
  EXPECT_EQ(OpnWork.progSel, 0);
  EXPECT_STREQ(OpnHistory.fileName[199], "name199.txt");
}

TEST_F(OpenModelTest, The199thProgramFitsAndTheNextDoesNot) {
  for (int i = 0; i < 198; ++i) AddHistory("f", "C:\\", "p" + std::to_string(i), "C:\\");
  OpnBuildProgList();
  OpnWorkReset();
  EXPECT_TRUE(OpnBrowseProgram("C:\\p198"));
  EXPECT_EQ(OpnProgList.workCount, 199);
  EXPECT_EQ(OpnWork.progSel, 199);
  OpnProgList.progCount = 199;
  EXPECT_FALSE(OpnBrowseProgram("C:\\p199"));
  EXPECT_EQ(OpnProgList.workCount, 199);
  EXPECT_EQ(OpnWork.progSel, 199);
  EXPECT_STREQ(OpnProgList.progName[198], "p198");
}

TEST_F(OpenModelTest, APathWithoutANameChangesNothing) {
  AddHistories(1);
  OpnWorkReset();
  const OpnWorkRec before = OpnWork;
  EXPECT_TRUE(OpnBrowseFile("C:\\data\\"));
  EXPECT_TRUE(OpnBrowseProgram("C:\\data\\"));
  EXPECT_EQ(std::memcmp(&before, &OpnWork, sizeof before), 0);
}

TEST_F(OpenModelTest, ALongFolderIsCutAndFoundAgain) {
  OpnWorkReset();
  const std::string folder = "C:\\" + std::string(300, 'd') + "\\";
  EXPECT_TRUE(OpnBrowseFile((folder + "a.txt").c_str()));
  EXPECT_EQ(std::string(OpnHistory.filePath[0]), folder.substr(0, 256));
  EXPECT_TRUE(OpnBrowseFile((folder + "a.txt").c_str()));
  EXPECT_EQ(OpnHistory.workCount, 1);
  EXPECT_EQ(OpnWork.fileSel, 0);
}

// --- Filling the selection

TEST_F(OpenModelTest, TheSelectionTakesFileAndProgram) {
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\ed\\");
  OpnBuildProgList();
  OpnWorkReset();
  EXPECT_TRUE(OpnSelectionFill(0, 1));
  EXPECT_STREQ(OpnSelection.fileName, "a.txt");
  EXPECT_STREQ(OpnSelection.filePath, "C:\\data\\");
  EXPECT_STREQ(OpnSelection.progName, "edit.exe");
  EXPECT_STREQ(OpnSelection.progPath, "C:\\ed\\");
  EXPECT_TRUE(OpnSelectionFill(0, 0));
  EXPECT_STREQ(OpnSelection.progName, "");
  EXPECT_STREQ(OpnSelection.progPath, "");
}

TEST_F(OpenModelTest, AFileOutsideTheListStopsAndAProgramOutsideCountsAsNone) {
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\ed\\");
  OpnBuildProgList();
  OpnWorkReset();
  Select("kept", "kept");
  for (const int file : {-1, 1, 200, 2147483647, -2147483647 - 1}) {
    EXPECT_FALSE(OpnSelectionFill(file, 1)) << file;
    EXPECT_STREQ(OpnSelection.fileName, "kept");
  }
  for (const int program : {-1, 2, 200, 2147483647}) {
    EXPECT_TRUE(OpnSelectionFill(0, program)) << program;
    EXPECT_STREQ(OpnSelection.progName, "");
  }
}

TEST_F(OpenModelTest, AProgramBeyondRow199CountsAsNone) {
  for (int i = 0; i < 200; ++i) AddHistory("f" + std::to_string(i), "C:\\", "p" + std::to_string(i), "C:\\");
  OpnBuildProgList();
  OpnWorkReset();
  EXPECT_TRUE(OpnSelectionFill(0, 199));
  EXPECT_STREQ(OpnSelection.progName, "p198");
  EXPECT_TRUE(OpnSelectionFill(0, 200));
  EXPECT_STREQ(OpnSelection.progName, "");
}

// --- After a start

void Start(int file, int program) {
  OpnWork.fileSel = file;
  OpnWork.progSel = program;
  ASSERT_TRUE(OpnSelectionFill(file, program));
}

TEST_F(OpenModelTest, ANewFileLandsOnTopWithItsProgram) {
  AddHistories(3);
  OpnHistory.openCount[0] = 5;
  ClassValueSet("txtfile\\shell\\open\\command", "C:\\ed\\edit.exe");
  OpnBuildProgList();
  OpnWorkReset();
  OpnBrowseFile("C:\\new.txt");
  Start(3, 1);
  EXPECT_TRUE(OpnHisUpdate());
  EXPECT_EQ(HistoryFiles(), (Rows{"new.txt", "name0.txt", "name1.txt", "name2.txt"}));
  EXPECT_STREQ(OpnHistory.filePath[0], "C:\\");
  EXPECT_STREQ(OpnHistory.progName[0], "edit.exe");
  EXPECT_STREQ(OpnHistory.progPath[0], "C:\\ed\\");
  EXPECT_STREQ(OpnHistory.progName[1], "");
  EXPECT_EQ(OpnHistory.openCount[0], 0);
  EXPECT_EQ(OpnHistory.openCount[1], 5);
  EXPECT_EQ(OpnHistory.workCount, 4);
  EXPECT_EQ(OpnWork.fileSel, 0);
}

TEST_F(OpenModelTest, AKnownFileStaysWhereItIsAndNothingIsToBeSaved) {
  AddHistories(3);
  OpnWorkReset();
  Start(2, 0);
  EXPECT_FALSE(OpnHisUpdate());
  EXPECT_EQ(HistoryFiles(), (Rows{"name0.txt", "name1.txt", "name2.txt"}));
  EXPECT_EQ(OpnWork.fileSel, 2);
}

TEST_F(OpenModelTest, AKnownFileReopenedWithAnotherProgramDoesNotMoveButTakesTheProgram) {
  AddHistories(3);
  AddHistory("x", "C:\\", "edit.exe", "C:\\ed\\");
  OpnBuildProgList();
  OpnWorkReset();
  Start(2, 1);
  EXPECT_TRUE(OpnHisUpdate());
  EXPECT_EQ(HistoryFiles(), (Rows{"name0.txt", "name1.txt", "name2.txt", "x"}));
  EXPECT_STREQ(OpnHistory.progName[2], "edit.exe");
  EXPECT_STREQ(OpnHistory.progPath[2], "C:\\ed\\");
  EXPECT_FALSE(OpnHisUpdate());
  Start(2, 0);
  EXPECT_TRUE(OpnHisUpdate());
  EXPECT_STREQ(OpnHistory.progName[2], "");
}

TEST_F(OpenModelTest, AnotherFileThatIsStartedWhileOneIsBrowsedGoesToTheTop) {
  AddHistories(3);
  OpnWorkReset();
  OpnBrowseFile("C:\\new.txt");
  Start(1, 0);
  EXPECT_TRUE(OpnHisUpdate());
  EXPECT_EQ(HistoryFiles(), (Rows{"name1.txt", "name0.txt", "name2.txt", "new.txt"}));
}

TEST_F(OpenModelTest, ANewProgramLandsOnTopOfItsList) {
  AddHistory("a", "C:\\", "one.exe", "C:\\");
  AddHistory("b", "C:\\", "two.exe", "C:\\");
  OpnBuildProgList();
  OpnWorkReset();
  OpnBrowseProgram("C:\\new.exe");
  EXPECT_EQ(OpnWork.progSel, 3);
  Start(0, 3);
  EXPECT_TRUE(OpnHisUpdate());
  EXPECT_EQ(Programs(), (Rows{"new.exe [C:\\]", "one.exe [C:\\]", "two.exe [C:\\]"}));
  EXPECT_EQ(OpnWork.progSel, 1);
  EXPECT_EQ(OpnProgList.workCount, 3);
}

TEST_F(OpenModelTest, ABrowsedProgramThatIsNotUsedStaysAsTheLastRow) {
  AddHistory("a", "C:\\", "one.exe", "C:\\");
  OpnBuildProgList();
  OpnWorkReset();
  OpnBrowseProgram("C:\\new.exe");
  Start(0, 0);
  EXPECT_TRUE(OpnHisUpdate());
  EXPECT_EQ(Programs(), (Rows{"one.exe [C:\\]", "new.exe [C:\\]"}));
}

TEST_F(OpenModelTest, AChoiceWhoseRowHasGoneChangesNothing) {
  AddHistories(3);
  OpnWorkReset();
  OpnBrowseFile("C:\\new.txt");
  Start(3, 0);
  OpnWorkReset();  // the dialog was opened anew meanwhile
  EXPECT_FALSE(OpnHisUpdate());
  EXPECT_EQ(HistoryFiles(), (Rows{"name0.txt", "name1.txt", "name2.txt"}));
}

TEST_F(OpenModelTest, TheTwoHundredthFileLandsOnTop) {
  AddHistories(199);
  OpnWorkReset();
  EXPECT_TRUE(OpnBrowseFile("C:\\new.txt"));
  Start(199, 0);
  EXPECT_TRUE(OpnHisUpdate());
  EXPECT_EQ(OpnHistory.fileCount, 200);
  EXPECT_STREQ(OpnHistory.fileName[0], "new.txt");
  EXPECT_STREQ(OpnHistory.fileName[199], "name198.txt");
}

// --- Taking rows out

TEST_F(OpenModelTest, RemovingARowClosesTheRowsUpWithTheBrowsedOne) {
  AddHistories(3);
  OpnHistory.openCount[2] = 9;
  OpnWorkReset();
  OpnBrowseFile("C:\\new.txt");
  OpnHisRemove(1);
  EXPECT_EQ(HistoryFiles(), (Rows{"name0.txt", "name2.txt"}));
  EXPECT_EQ(OpnHistory.openCount[1], 9);
  EXPECT_EQ(OpnHistory.workCount, 3);
  EXPECT_STREQ(OpnHistory.fileName[2], "new.txt");
  for (const int row : {-1, 2, 200}) OpnHisRemove(row);
  EXPECT_EQ(OpnHistory.fileCount, 2);
}

TEST_F(OpenModelTest, TheLastOf200RowsCanBeRemoved) {
  AddHistories(200);
  OpnWorkReset();
  OpnHisRemove(199);
  OpnHisRemove(0);
  EXPECT_EQ(OpnHistory.fileCount, 198);
  EXPECT_STREQ(OpnHistory.fileName[0], "name1.txt");
  EXPECT_STREQ(OpnHistory.fileName[197], "name198.txt");
}

TEST_F(OpenModelTest, ClearingEmptiesAllRowsAndKeepsTheWalk) {
  AddHistories(200);
  OpnTextSet(OpnHistory.fileName[200], "spare");
  OpnHistory.openCount[7] = 1;
  OpnHistory.animeOn = 0;
  OpnTextSet(OpnHistory.soundName, "foot1.wav");
  OpnHisClear();
  OpnHistoryRec expected{};
  expected.soundOn = 1;
  OpnTextSet(expected.soundName, "foot1.wav");
  EXPECT_EQ(std::memcmp(&expected, &OpnHistory, sizeof expected), 0);
}

// --- The record

Rows RecordRows() {
  Rows rows;
  for (int row = 0; row < OpnRecord.recCount; ++row) {
    char text[kOpnRecordRowSize];
    OpnRecordRowText(row, text, sizeof text);
    rows.emplace_back(text);
  }
  return rows;
}

TEST_F(OpenModelTest, TheSameFileWithAnEqualProgramOpenedTwiceInARunIsOneRecordRow) {
  Select("a.txt", "C:\\", "edit.exe", "C:\\ed\\");
  OpnRecordAdd();
  OpnRecordAdd();
  EXPECT_EQ(OpnRecord.recCount, 1);
  Select("a.txt", "C:\\", "edit.exe", "C:\\other\\");
  OpnRecordAdd();
  Select("a.txt", "C:\\", "other.exe", "C:\\ed\\");
  OpnRecordAdd();
  Select("a.txt", "D:\\", "edit.exe", "C:\\ed\\");
  OpnRecordAdd();
  Select("b.txt", "C:\\", "edit.exe", "C:\\ed\\");
  OpnRecordAdd();
  EXPECT_EQ(OpnRecord.recCount, 5);
  EXPECT_STREQ(OpnRecord.rows[0].fileName, "b.txt");
  EXPECT_STREQ(OpnRecord.rows[4].progPath, "C:\\ed\\");
}

TEST_F(OpenModelTest, With100RecordRowsTheOldestFallsOffForANewOne) {
  for (int i = 0; i < 100; ++i) {
    Select("f" + std::to_string(i), "C:\\");
    OpnRecordAdd();
  }
  EXPECT_EQ(OpnRecord.recCount, 100);
  EXPECT_STREQ(OpnRecord.rows[99].fileName, "f0");
  Select("new", "C:\\");
  OpnRecordAdd();
  EXPECT_EQ(OpnRecord.recCount, 100);
  EXPECT_STREQ(OpnRecord.rows[0].fileName, "new");
  EXPECT_STREQ(OpnRecord.rows[1].fileName, "f99");
  EXPECT_STREQ(OpnRecord.rows[99].fileName, "f1");
  // The one that fell off is new again.
  Select("f0", "C:\\");
  OpnRecordAdd();
  EXPECT_STREQ(OpnRecord.rows[99].fileName, "f2");
}

TEST_F(OpenModelTest, RecordRowsHaveColumnsOf36And70Characters) {
  Select("a.txt", "C:\\", "edit.exe", "C:\\ed\\");
  OpnRecordAdd();
  Select("表紙.txt", "C:\\");
  OpnRecordAdd();
  const Rows expected = {"表紙.txt" + std::string(28, ' ') + "関連プログラム" + std::string(56, ' '),
                         "a.txt" + std::string(31, ' ') + "edit.exe" + std::string(62, ' ')};
  EXPECT_EQ(RecordRows(), expected);
}

TEST_F(OpenModelTest, ALongNameInARecordRowKeepsItsLetters) {
  const std::string name(256, 'n');
  const std::string program(256, 'p');
  Select(name, "C:\\", program, "C:\\");
  OpnRecordAdd();
  Select(std::string(36, 'm'), "C:\\");
  OpnRecordAdd();
  EXPECT_EQ(RecordRows()[0], std::string(36, 'm') + "関連プログラム" + std::string(56, ' '));
  EXPECT_EQ(RecordRows()[1], name + program);
}

}  // namespace
