// The main file of a scenario.
#include "platform/file.h"
#include "scenario/logic/snry_paras.h"
#include "tests/scenario/scenario_fixture.h"

namespace {

// Where the sections begin, and the end.
constexpr std::size_t kSections[] = {0,       43,      343,     472,     474,     15354,   15414,   1488414,
                                     1488416, 1734176, 1734178, 2287138, 2287140, 2288164, 2288676, 2321444,
                                     2354212, 2354724, 2354726, 2371110, 2371430, 2371558};

class SnryMainFileTest : public ScenarioTest {
 protected:
  void SetUp() override {
    ScenarioTest::SetUp();
    TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, kTale);
  }

  // A file with another value in each byte; the counts are such as the tables can have.
  static std::string FullImage() {
    std::string image = RecordPattern(2371558, 9);
    At(image, 0, "ソルナーデリオン シナリオメイン設定ファイル");
    At(image, 43, Wide(kTale, 300));
    image[343 + 128] = '\0';
    At(image, 472, Big16(30));
    for (std::size_t i = 0; i < 30; ++i) At(image, 15354 + 2 * i, Big16(static_cast<unsigned>(i + 20)));
    for (std::size_t i = 0; i < 1500; ++i) image[15414 + 982 * i + 681] = '\0';
    At(image, 1488414, Big16(0x1234));
    At(image, 1734176, Big16(2047));
    At(image, 2287138, Big16(511));
    At(image, 2354724, Big16(255));
    return image;
  }
};

TEST_F(SnryMainFileTest, AnEmptyScenarioEqualsAFileMadeByHand) {
  SnryMainReset();
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_TRUE(FileBytes(kTaleMain) == MainImage());
}

TEST_F(SnryMainFileTest, EachTableLiesWhereTold) {
  SnryMainReset();
  std::string image = MainImage();
  SnryMain.folderCount = 2;
  At(image, 472, Big16(2));
  TextCopy(SnryMain.folders[1].name, 129, "第二章");
  At(image, 474 + 496 + 368, "第二章");
  SnryMain.sceneCounts[1] = 3;
  At(image, 15354 + 2, Big16(3));
  SnryMain.scenes[1][2].start = {5, 6};
  At(image, 15414 + (50 + 2) * 982 + 8, Little16(5));
  At(image, 15414 + (50 + 2) * 982 + 28, Little16(6));
  SnryMain.registeredCount = 258;
  At(image, 1488414, Big16(258));
  SnryMain.charMotions[511].figures[19] = 0x102;
  At(image, 1488416 + 511 * 480 + 260 + 38, Little16(0x102));
  SnryMain.paraCount = 700;
  At(image, 1734176, Big16(700));
  SnryMain.paras[2047].initial = 0x304;
  At(image, 1734178 + 2047 * 270 + 2, Little16(0x304));
  SnryMain.charaCount = 512;
  At(image, 2287138, Big16(512));
  SnryMain.charaOrders[1].value = 0x506;
  At(image, 2287142, Big16(0x506));
  SnryMain.registered[3] = 1;
  At(image, 2288167, "\1");
  TextCopy(SnryMain.charaNames[1].text, 65, "ミル");
  At(image, 2288676 + 64, "ミル");
  TextCopy(SnryMain.castNames[1].text, 65, "姫");
  At(image, 2321444 + 64, "姫");
  SnryMain.charaKept[4] = 7;
  At(image, 2354216, "\7");
  SnryMain.motionCount = 256;
  At(image, 2354724, Big16(256));
  TextCopy(SnryMain.motionNames[255].text, 65, "走る");
  At(image, 2354726 + 255 * 64, "走る");
  TextCopy(SnryMain.labels[9].text, 33, "戻る");
  At(image, 2371110 + 9 * 32, "戻る");
  SnryMain.options.stageWidth = 840;
  At(image, 2371430, Little16(840));
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_TRUE(FileBytes(kTaleMain) == image);
}

TEST_F(SnryMainFileTest, AFileWithAnotherValueInEachByteComesBackByteForByte) {
  const std::string image = FullImage();
  PutFile(kTaleMain, image);
  EXPECT_EQ(SnryMainRead(), 0);
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_TRUE(FileBytes(kTaleMain) == image);
}

TEST_F(SnryMainFileTest, AFolderThatWasMovedIsSavedWhereItIsNow) {
  PutFile(kTaleMain, MainImage("D:\\昔の場所", "題"));
  EXPECT_EQ(SnryMainRead(), 0);
  EXPECT_STREQ(Scenario.mainFolder, kTale);
  EXPECT_STREQ(SnryMain.title, "題");
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_TRUE(FileBytes(kTaleMain) == MainImage(kTale, "題"));
}

// "A main file has the same size with 0 scenarios and with 30."
TEST_F(SnryMainFileTest, TheSizeIsTheSameWithNoFolderAndWithThirty) {
  SnryMainReset();
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_EQ(FileBytes(kTaleMain).size(), 2371558U);
  for (int i = 0; i < 30; ++i) EXPECT_TRUE(SnryFolderAdd(("C:\\" + std::to_string(i)).c_str()));
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_EQ(FileBytes(kTaleMain).size(), 2371558U);
}

TEST_F(SnryMainFileTest, TheStatusTellsWhatIsThere) {
  EXPECT_EQ(SnryMainStatus(), -2);
  PutFile(kTaleMain, "ソルナーデリオン シナリオメイン");
  EXPECT_EQ(SnryMainStatus(), -3);
  PutFile(kTaleMain, std::string(100, 'x'));
  EXPECT_EQ(SnryMainStatus(), -3);
  PutFile(kTaleMain, "ソルナーデリオン シナリオメイン設定ファイル");
  EXPECT_EQ(SnryMainStatus(), 0);
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, "C:\\どこにもない");
  EXPECT_EQ(SnryMainStatus(), -1);
}

TEST_F(SnryMainFileTest, AFileWithAWrongMagicIsNotOverwritten) {
  PutFile(kTaleMain, std::string(1000, 'x'));
  EXPECT_EQ(SnrySaveMain(), -1);
  EXPECT_EQ(FileBytes(kTaleMain), std::string(1000, 'x'));
}

// "A save writes the file twice and reads it once; after it the tables hold what the file
// holds."
TEST_F(SnryMainFileTest, ASaveWritesTheFileTwiceAndReadsItOnce) {
  SnryMainReset();
  FaultClear();
  int writesOfOne = 0;
  FaultMeanwhile(FaultKind::Read, 1, [&writesOfOne] { writesOfOne = FaultCalls(FaultKind::Write); });
  EXPECT_EQ(SnrySaveMain(), 0);
  FaultClear();
  // What another program puts into the file between writing and reading is in the tables
  // then, and in the file.
  FaultMeanwhile(FaultKind::Read, 1, [] {
    std::string image = MainImage(kTale, "横から");
    PutFile(kTaleMain, image);
  });
  PutFile(kTaleMain, "");
  RemoveFile(kTaleMain);
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_STREQ(SnryMain.title, "横から");
  EXPECT_TRUE(FileBytes(kTaleMain) == MainImage(kTale, "横から"));
}

TEST_F(SnryMainFileTest, ASaveClearsTheFlagOfTheCastNames) {
  Scenario.castNamesChanged = true;
  EXPECT_EQ(SnrySaveMain(), 0);
  EXPECT_FALSE(Scenario.castNamesChanged);
}

TEST_F(SnryMainFileTest, ASaveThatCannotBeginLeavesWhatItFound) {
  SnryMainReset();
  EXPECT_EQ(SnrySaveMain(), 0);
  const std::string before = FileBytes(kTaleMain);
  FaultArm(FaultKind::Delete, 1);
  Scenario.castNamesChanged = true;
  EXPECT_EQ(SnrySaveMain(), -1);
  FaultClear();
  EXPECT_TRUE(FileBytes(kTaleMain) == before);
  EXPECT_TRUE(Scenario.castNamesChanged);
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(SnrySaveMain(), -1);
  FaultClear();
  EXPECT_FALSE(FileThere(kTaleMain));
  FaultArm(FaultKind::FolderSet, 1);
  EXPECT_EQ(SnrySaveMain(), 0) << "the folder cannot be entered, but a file can be made in it";
}

TEST_F(SnryMainFileTest, EachWriteThatFailsIsAShortTransfer) {
  SnryMainReset();
  MakePara("鍵");
  const std::string whole = [] {
    EXPECT_EQ(SnrySaveMain(), 0);
    return FileBytes(kTaleMain);
  }();
  FaultClear();
  EXPECT_EQ(SnrySaveMain(), 0);
  const int writes = FaultCalls(FaultKind::Write);
  EXPECT_EQ(writes % 2, 0);
  for (int nth = 1; nth <= writes; ++nth) {
    FaultArm(FaultKind::Write, nth);
    EXPECT_EQ(SnrySaveMain(), -3) << nth;
    FaultClear();
    const std::string left = FileBytes(kTaleMain);
    // The first time a part is left; the second time the first whole file is still there.
    EXPECT_TRUE(left == whole.substr(0, left.size())) << nth;
    EXPECT_EQ(left.size() == whole.size(), nth > writes / 2) << nth;
  }
}

TEST_F(SnryMainFileTest, WhatCannotBeReadBackEndsTheSave) {
  SnryMainReset();
  FaultArm(FaultKind::Read, 1);  // no file is there, so this is the reading back
  EXPECT_EQ(SnrySaveMain(), -3);
  FaultClear();
  EXPECT_TRUE(FileBytes(kTaleMain) == MainImage());
  RemoveFile(kTaleMain);
  FaultMeanwhile(FaultKind::Read, 1, [] {
    std::string image = MainImage();
    image[0] = 'x';
    PutFile(kTaleMain, image);
  });
  EXPECT_EQ(SnrySaveMain(), -4);
}

TEST_F(SnryMainFileTest, AFileCutAtOrInsideASectionIsShort) {
  const std::string image = FullImage();
  for (const std::size_t section : kSections) {
    for (const std::size_t cut : {section - 1, section, section + 1, section + 200}) {
      if (cut >= image.size()) continue;
      PutFile(kTaleMain, image.substr(0, cut));
      SnryMain.options.stageWidth = 77;
      EXPECT_EQ(SnryMainRead(), -3) << cut;
      EXPECT_EQ(SnryMain.options.stageWidth == 77, cut < 2371434) << cut;
    }
  }
  PutFile(kTaleMain, image);
  EXPECT_EQ(SnryMainRead(), 0);
}

TEST_F(SnryMainFileTest, WhatWasReadBeforeACutStays) {
  PutFile(kTaleMain, FullImage().substr(0, 15354 + 31));
  SnryMainReset();
  EXPECT_EQ(SnryMainRead(), -3);
  EXPECT_EQ(SnryMain.folderCount, 30);
  EXPECT_EQ(SnryMain.sceneCounts[14], 34);
  EXPECT_EQ(SnryMain.sceneCounts[15], 0);
}

TEST_F(SnryMainFileTest, AnotherFileIsNotRead) {
  std::string image = MainImage();
  image[42] = '?';
  PutFile(kTaleMain, image);
  SnryMain.folderCount = 7;
  EXPECT_EQ(SnryMainRead(), -4);
  EXPECT_EQ(SnryMain.folderCount, 7);
  RemoveFile(kTaleMain);
  EXPECT_EQ(SnryMainRead(), -1);
}

TEST_F(SnryMainFileTest, CountsBeyondTheirTablesAreHeldInside) {
  std::string image = MainImage();
  for (const std::size_t at : {472U, 15354U, 1734176U, 2287138U, 2354724U}) At(image, at, Big16(0xFFFF));
  PutFile(kTaleMain, image);
  EXPECT_EQ(SnryMainRead(), 0);
  EXPECT_EQ(SnryMain.folderCount, 30);
  EXPECT_EQ(SnryMain.sceneCounts[0], 50);
  EXPECT_EQ(SnryMain.paraCount, 2048);
  EXPECT_EQ(SnryMain.charaCount, 512);
  EXPECT_EQ(SnryMain.motionCount, 256);
}

TEST_F(SnryMainFileTest, MutatedFilesDoNoHarm) {
  const std::string image = FullImage();
  std::uint32_t seed = 72;
  const auto next = [&seed] { return (seed = seed * 1664525U + 1013904223U) >> 8U; };
  for (int round = 0; round < 40; ++round) {
    std::string bytes = image;
    for (int i = 0; i < 2000; ++i) bytes[43 + next() % (bytes.size() - 43)] = static_cast<char>(next());
    for (const std::size_t at : kSections) {
      if (at >= 472 && at < bytes.size()) bytes[at] = static_cast<char>(next());
    }
    PutFile(kTaleMain, bytes);
    EXPECT_EQ(SnryMainRead(), 0);
    ASSERT_LE(SnryMain.folderCount, 30);
    char text[600];
    for (int i = 0; i < SnryMain.folderCount; ++i) {
      SnryFolderRowText(i, text, sizeof text);
      Scenario.folderIndex = i;
      for (int s = 0; s < SnrySceneCountNow(); ++s) {
        SnrySceneRowText(s, text, sizeof text);
        Scenario.sceneIndex = s;
        for (int row = 0; row < SnryCastRows(SnryCastShow::All) && s < 2; ++row)
          SnryCastRowText(SnryCastShow::All, row, text, sizeof text);
      }
    }
    for (int row = 0; row < SnryParaUsedCount(); row += 400) SnryParaListText(row, text, sizeof text);
  }
}

}  // namespace
