#include "filetools/open/open_history.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <random>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "filetools/open/open_choice.h"
#include "filetools/open/open_commands.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_record.h"
#include "filetools/open/open_walk.h"
#include "platform/posix/faults.h"
#include "platform/posix/files_opened.h"
#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "services/sound_file.h"
#include "services/text.h"
#include "tests/support/desktop.h"
#include "tests/support/failing_writes.h"

namespace {

class OpenHistoryTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    FileResult.FileStatus = 0;
  }
  static std::string Path() { return InProgram("OpnFileHis.lis"); }
  // A file whose every field begins with a byte that tells it from its neighbours.
  static std::string Image() {
    std::string image(240804, '\0');
    image[0] = 3;
    image[1] = 9;
    image[200] = 8;
    for (int row = 0; row < 800; ++row)
      image[static_cast<std::size_t>(201 + 300 * row)] = static_cast<char>(row % 250 + 1);
    image[240201] = 0;
    image[240202] = 1;
    image[240203] = 'r';
    image[240503] = 's';
    image[240803] = 6;
    return image;
  }
};

TEST_F(OpenHistoryTest, EveryFieldReachesItsPlace) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  EXPECT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(OpnHistory.fileCount, 3);
  EXPECT_EQ(OpnHistory.openCount[0], 9);
  EXPECT_EQ(OpnHistory.openCount[199], 8);
  const auto first = [](const char* text) { return static_cast<unsigned char>(text[0]); };
  EXPECT_EQ(first(OpnHistory.fileName[0]), 1);
  EXPECT_EQ(first(OpnHistory.filePath[0]), 2);
  EXPECT_EQ(first(OpnHistory.fileName[199]), 398 % 250 + 1);
  EXPECT_EQ(first(OpnHistory.progName[0]), 400 % 250 + 1);
  EXPECT_EQ(first(OpnHistory.progPath[199]), 799 % 250 + 1);
  EXPECT_EQ(OpnHistory.animeOn, 0);
  EXPECT_EQ(OpnHistory.soundOn, 1);
  EXPECT_EQ(OpnHistory.reservedText[0], 'r');
  EXPECT_EQ(OpnHistory.soundName[0], 's');
  EXPECT_EQ(OpnHistory.balloonFlags, 6);
}

TEST(OpenHistoryRecord, LiesAsTold) {
  EXPECT_EQ(RecordSize<OpnHistoryRec>(), 240804);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::openCount>(), 1);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::fileName>(), 201);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::filePath>(), 501);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::progName>(), 120201);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::progPath>(), 120501);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::animeOn>(), 240201);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::soundOn>(), 240202);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::reservedText>(), 240203);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::soundName>(), 240503);
  EXPECT_EQ(RecordOffset<&OpnHistoryRec::balloonFlags>(), 240803);
}

TEST_F(OpenHistoryTest, WhatWasReadIsWrittenAsItStood) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  ASSERT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(OpnHisSave(), 0);
  EXPECT_EQ(FileBytes(Path()), Image());
}

TEST_F(OpenHistoryTest, TheFileIsReadForReadingAndReplacedForBoth) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  FilesOpenedClear();
  ASSERT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(FilesOpened(), (std::vector<FileOpened>{{Path(), false, OpenMode::Read}}));
  FilesOpenedClear();
  ASSERT_EQ(OpnHisSave(), 0);
  ASSERT_FALSE(FilesOpened().empty());
  EXPECT_EQ(FilesOpened().back(), (FileOpened{Path(), false, OpenMode::ReadWrite}));
}

TEST_F(OpenHistoryTest, AMissingFileGivesAnEmptyHistoryWithWalkAndSoundOn) {
  OpnHistory.fileCount = 7;
  OpnHistory.fileName[200][0] = 'x';
  OpnHistory.progPath[0][0] = 'x';
  EXPECT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(OpnHistory.fileCount, 0);
  EXPECT_EQ(OpnHistory.fileName[200][0], '\0');
  EXPECT_EQ(OpnHistory.progPath[0][0], '\0');
  EXPECT_EQ(OpnHistory.animeOn, 1);
  EXPECT_EQ(OpnHistory.soundOn, 1);
}

TEST_F(OpenHistoryTest, AShortFileFailsAtEveryFieldAndLeavesTheHistory) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  const std::string path = PosixPath(Path().c_str());
  std::vector<off_t> ends = {0, 1, 201};
  for (off_t row = 1; row <= 800; ++row) ends.push_back(201 + 300 * row);
  for (const off_t end : {240202, 240203, 240503, 240803, 240804}) ends.push_back(end);
  OpnHistory.fileCount = 77;
  OpnHistory.balloonFlags = 78;
  // From the end to the start: one byte less than each field's end, and the end itself.
  for (auto at = ends.rbegin(); at != ends.rend(); ++at) {
    for (const off_t end : {*at, *at - 1}) {
      if (end == 240804 || end < 0) continue;
      ASSERT_EQ(truncate(path.c_str(), end), 0);
      FileResult.FileStatus = 0;
      ASSERT_EQ(OpnHisLoad(), -1) << end;
      ASSERT_EQ(FileResult.FileStatus, -2) << end;
    }
  }
  EXPECT_EQ(OpnHistory.fileCount, 77);
  EXPECT_EQ(OpnHistory.balloonFlags, 78);
}

TEST_F(OpenHistoryTest, ACountBeyond200IsBadContent) {
  std::string image = Image();
  for (int count = 0; count < 256; ++count) {
    image[0] = static_cast<char>(count);
    ASSERT_TRUE(PutFile(Path(), image));
    OpnHistory.fileCount = 0;
    EXPECT_EQ(OpnHisLoad(), count <= 200 ? 0 : -1) << count;
    EXPECT_EQ(OpnHistory.fileCount, count <= 200 ? count : 0) << count;
  }
}

TEST_F(OpenHistoryTest, EveryFailingCallGivesItsResult) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  ASSERT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(FailingWrites(OpnHisSave, -1), 1);
  const auto save = [](FaultKind kind, int nth) {
    PutFile(Path(), std::string(300000, 'o'));
    FileResult.FileStatus = 5;
    FaultArm(kind, nth);
    const int result = OpnHisSave();
    EXPECT_TRUE(FaultWasMet());
    FaultClear();
    EXPECT_EQ(FileResult.FileStatus, result);
    return result;
  };
  EXPECT_EQ(save(FaultKind::Open, 1), 0) << "a file that does not open is made anew";
  EXPECT_EQ(FileBytes(Path()), Image());
  EXPECT_EQ(save(FaultKind::Delete, 1), 0) << "the create empties what could not be deleted";
  EXPECT_EQ(FileBytes(Path()), Image());
  EXPECT_EQ(save(FaultKind::Open, 2), -1);
  EXPECT_EQ(FileBytes(Path()), "") << "the old file is gone by then";
  EXPECT_EQ(save(FaultKind::Create, 1), -1);
  EXPECT_FALSE(FileThere(Path()));
  ASSERT_EQ(OpnHisSave(), 0);
  FaultArm(FaultKind::Read, 1);
  EXPECT_EQ(OpnHisLoad(), -1);
  EXPECT_EQ(FileResult.FileStatus, -2);
}

TEST_F(OpenHistoryTest, TheWalkOfACharacterGoesIntoTheFile) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  Character.CharaSet.WalkRow[0] = 50;
  CharaTables.WalkFlags[49] = 3;
  TextCopy(CharaTables.WalkCharas[49].sound, kWalkSoundSize, "ringout.wav");
  OpnHisTakeWalkSettings();
  std::string expected = Image();
  expected.replace(240503, 12, std::string("ringout.wav") + '\0');
  expected[240803] = 3;
  EXPECT_EQ(FileBytes(Path()), expected);
}

TEST_F(OpenHistoryTest, ACharacterWithoutASoundKeepsTheOneThatWasThere) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  Character.CharaSet.WalkRow[0] = 1;
  OpnHisTakeWalkSettings();
  EXPECT_EQ(OpnHistory.soundName[0], 's');
  EXPECT_EQ(OpnHistory.balloonFlags, 0);
}

TEST_F(OpenHistoryTest, WithoutAWalkingRowOrWithADamagedFileNothingIsWritten) {
  for (const int row : {0, 51, 65535}) {
    Character.CharaSet.WalkRow[0] = static_cast<std::uint16_t>(row);
    OpnHisTakeWalkSettings();
    EXPECT_FALSE(FileThere(Path())) << row;
  }
  Character.CharaSet.WalkRow[0] = 1;
  ASSERT_TRUE(PutFile(Path(), "damaged"));
  OpnHisTakeWalkSettings();
  EXPECT_EQ(FileBytes(Path()), "damaged");
}

TEST_F(OpenHistoryTest, ABrowsedFileThatWaitsOutlastsTheWalkOfACharacter) {
  std::string image = Image();
  ASSERT_TRUE(PutFile(Path(), image));
  ASSERT_EQ(OpnHisLoad(), 0);
  OpnBrowseFile("C:\\new.txt");
  Character.CharaSet.WalkRow[0] = 1;
  CharaTables.WalkFlags[0] = 5;
  OpnHisTakeWalkSettings();
  EXPECT_EQ(OpnHistory.workCount, 4);
  EXPECT_STREQ(OpnHistory.fileName[3], "new.txt");
  EXPECT_EQ(FileBytes(Path())[240803], 5);
  EXPECT_EQ(FileBytes(Path())[0], 3);
}

TEST_F(OpenHistoryTest, ASoundNameThatFillsItsFieldIsPlayedWith299Bytes) {
  std::string image = Image();
  image.replace(240503, 300, std::string(300, 'n'));
  image[240803] = 'x';
  ASSERT_TRUE(PutFile(Path(), image));
  ASSERT_EQ(OpnHisLoad(), 0);
  SoundFilePlay(OpnHistory.soundName);
  EXPECT_EQ(SoundsPlayed(), std::vector<std::string>{"C:\\mirrell\\サウンド\\" + std::string(299, 'n')});
}

// All that is done with a history of any bytes.
void UseEverything(std::mt19937& random) {
  const auto any = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  OpnProgList.built = false;
  OpnBuildProgList();
  OpnWorkReset();
  OpnBrowseFile(any(2) == 0 ? "C:\\x\\new.txt" : "C:\\x\\other.txt");
  OpnBrowseProgram("C:\\x\\new.exe");
  OpnWorkChoose(any(201));
  if (OpnSelectionFill(OpnWork.fileSel, OpnWork.progSel)) {
    OpnHisUpdate();
    OpnRecordAdd();
  }
  char text[kOpnRowSize];
  for (int row = 0; row < OpnHistory.workCount; ++row) {
    OpnRowText(text, sizeof text, OpnHistory.fileName[row], OpnHistory.filePath[row]);
  }
  OpnHisRemove(any(201));
}

TEST_F(OpenHistoryTest, RandomChangesOfTheFileHarmNothing) {
  ASSERT_TRUE(PutFile(Path(), Image()));
  const int file = open(PosixPath(Path().c_str()).c_str(), O_RDWR);
  const auto put = [&](std::size_t at, std::size_t value) {
    const auto byte = static_cast<unsigned char>(value);
    return pwrite(file, &byte, 1, static_cast<off_t>(at)) == 1;
  };
  std::mt19937 random(20261121);
  // 1000 rounds of 100 changes; one round in two has a count of any value too.
  for (int round = 0; round < 1000; ++round) {
    for (int change = 0; change < 100; ++change) {
      ASSERT_TRUE(put(random() % 240803 + 1, random()));
    }
    const std::size_t count = round % 2 == 0 ? random() % 201 : random() % 256;
    ASSERT_TRUE(put(0, count));
    ASSERT_EQ(OpnHisLoad(), count <= 200 ? 0 : -1);
    if (round % 10 == 0) UseEverything(random);
    ASSERT_LE(OpnHistory.fileCount, 200);
  }
  close(file);
  OpnRecord.recCount = 0;
  OpnProgList.progCount = 0;
  OpnProgList.built = false;
}

}  // namespace
