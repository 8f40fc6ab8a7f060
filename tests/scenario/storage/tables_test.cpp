// Folders, scenes and the cast as tables, and what is made new.
#include "scenario/storage/snry_folders.h"
#include "tests/scenario/scenario_fixture.h"
#include "world/world_list.h"

namespace {

class SnryTablesTest : public ScenarioTest {};

std::string FolderRow(int folder) {
  char text[200];
  SnryFolderRowText(folder, text, sizeof text);
  return text;
}
std::string SceneRow(int scene) {
  char text[200];
  SnrySceneRowText(scene, text, sizeof text);
  return text;
}

// --- Folders

TEST_F(SnryTablesTest, AFolderIsAddedOnceAndThirtyTimesAtMost) {
  EXPECT_TRUE(SnryFolderAdd("C:\\a"));
  EXPECT_FALSE(SnryFolderAdd("C:\\a"));
  EXPECT_EQ(SnryMain.folderCount, 1);
  EXPECT_EQ(SnryMain.folders[0].used, 1);
  for (int i = 1; i < 30; ++i) EXPECT_TRUE(SnryFolderAdd(("C:\\" + std::to_string(i)).c_str()));
  EXPECT_FALSE(SnryFolderAdd("C:\\31"));
  EXPECT_EQ(SnryMain.folderCount, 30);
}

TEST_F(SnryTablesTest, ARemovedFolderTakesItsScenesAndTheLaterOnesMoveUp) {
  for (const char* path : {"C:\\a", "C:\\b", "C:\\c"}) SnryFolderAdd(path);
  for (int folder = 0; folder < 3; ++folder) {
    SnryMain.sceneCounts[folder] = static_cast<std::uint16_t>(folder + 1);
    TextCopy(SnryMain.scenes[folder][49].name, 80, std::to_string(folder).c_str());
  }
  SnryFolderRemove(0);
  EXPECT_EQ(SnryMain.folderCount, 2);
  EXPECT_STREQ(SnryMain.folders[0].path, "C:\\b");
  EXPECT_STREQ(SnryMain.folders[1].path, "C:\\c");
  EXPECT_EQ(SnryMain.folders[2].used, 0);
  EXPECT_STREQ(SnryMain.folders[2].path, "");
  EXPECT_EQ(SnryMain.sceneCounts[0], 2);
  EXPECT_EQ(SnryMain.sceneCounts[1], 3);
  EXPECT_STREQ(SnryMain.scenes[1][49].name, "2");
  EXPECT_STREQ(SnryMain.scenes[2][49].name, "2") << "the scenes of the last place stay as they were";
  SnryFolderRemove(2);
  SnryFolderRemove(-1);
  EXPECT_EQ(SnryMain.folderCount, 2);
}

TEST_F(SnryTablesTest, RemovingTheLastOfThirtyFoldersStaysInside) {
  for (int i = 0; i < 30; ++i) SnryFolderAdd(("C:\\" + std::to_string(i)).c_str());
  SnryFolderRemove(29);
  SnryFolderRemove(0);
  EXPECT_EQ(SnryMain.folderCount, 28);
  EXPECT_STREQ(SnryMain.folders[27].path, "C:\\28");
}

TEST_F(SnryTablesTest, AFolderAddedBehindARemovedOneHasNoScenes) {
  SnryFolderAdd("C:\\a");
  SnryMain.sceneCounts[0] = 4;
  SnryFolderRemove(0);
  SnryFolderAdd("C:\\b");
  EXPECT_EQ(SnryMain.sceneCounts[0], 0);
}

TEST_F(SnryTablesTest, AFoldersRowIsTheLastPartOfItsPathAndItsName) {
  SnryFolderAdd("C:\\物語\\序章");
  TextCopy(SnryMain.folders[0].name, 129, "はじまり");
  EXPECT_EQ(FolderRow(0), "[序章]-はじまり");
}

// 25 and 24 bytes; a double-byte character that does not fit is a blank.
TEST_F(SnryTablesTest, RowsAreCutAndNoCharacterIsSplit) {
  SnryFolderAdd("C:\\12345678901234567890123456");
  TextCopy(SnryMain.folders[0].name, 129, "1234567890123456789012345");
  EXPECT_EQ(FolderRow(0), "[1234567890123456789012345]-123456789012345678901234");
  SnryFolderAdd("C:\\あいうえおかきくけこさしすせ");  // 28 bytes: the 13th character would need 26
  TextCopy(SnryMain.folders[1].name, 129, "aあいうえおかきくけこさし");
  EXPECT_EQ(FolderRow(1), "[あいうえおかきくけこさし ]-aあいうえおかきくけこさ ");
  SnryFolderAdd("C:\\a");
  TextCopy(SnryMain.folders[2].name, 129, "あいうえおかきくけこさし");
  EXPECT_EQ(FolderRow(2), "[a]-あいうえおかきくけこさし");
}

// --- Scenes

TEST_F(SnryTablesTest, ASceneIsAddedFiftyTimesAtMost) {
  SnryFolderAdd(kChapter);
  for (int i = 0; i < 50; ++i) EXPECT_TRUE(SnrySceneAdd((std::to_string(i) + ".scd").c_str()));
  EXPECT_FALSE(SnrySceneAdd("51.scd"));
  EXPECT_EQ(SnrySceneCountNow(), 50);
  EXPECT_TRUE(SnrySceneHasFile("49.scd"));
  EXPECT_FALSE(SnrySceneHasFile("51.scd"));
}

TEST_F(SnryTablesTest, ARemovedScenesLaterOnesMoveUpAndTheLastLosesItsFlagOnly) {
  SnryFolderAdd(kChapter);
  for (const char* file : {"a", "b", "c"}) SnrySceneAdd(file);
  SnrySceneRemove(0);
  EXPECT_EQ(SnrySceneCountNow(), 2);
  EXPECT_STREQ(SnryMain.scenes[0][0].file, "b");
  EXPECT_STREQ(SnryMain.scenes[0][1].file, "c");
  EXPECT_EQ(SnryMain.scenes[0][2].used, 0);
  EXPECT_STREQ(SnryMain.scenes[0][2].file, "c");
  SnrySceneRemove(2);
  EXPECT_EQ(SnrySceneCountNow(), 2);
}

TEST_F(SnryTablesTest, AScenesRowIsItsFileAndItsName) {
  SnryFolderAdd(kChapter);
  SnrySceneAdd("町.scd");
  TextCopy(SnrySceneNow().name, 80, "町の朝");
  EXPECT_EQ(SceneRow(0), "[町.scd]-町の朝");
}

// --- The cast

class SnryCastListTest : public ScenarioTest {
 protected:
  void SetUp() override {
    ScenarioTest::SetUp();
    MakeTale();
    SnrySceneReset();
    MakeChara(1, "ミル", "姫");
    MakeChara(4, "レル", "王");
    TextCopy(SnryMain.charaNames[8].text, 65, "消えた人");
    Cast({0, 1, 9, 513, 4, 514, 515, 713, 0});
    SnryCastAt(0).copies = 1;
    SnryCastAt(512).master = 1;
    SnryCastAt(513).master = 9;
    SnryCastAt(513).copies = 2;
  }
  static std::string Row(SnryCastShow show, int row) {
    char text[300];
    SnryCastRowText(show, row, text, sizeof text);
    return text;
  }
};

TEST_F(SnryCastListTest, EmptyPlacesAndUnregisteredCharactersAreNotShown) {
  ASSERT_EQ(SnryCastRows(SnryCastShow::All), 5);
  EXPECT_EQ(Row(SnryCastShow::All, 0), "1. ミル [登場名: 姫]");
  EXPECT_EQ(Row(SnryCastShow::All, 1), "2. ミルのコピー1 [登場名: 姫]");
  EXPECT_EQ(Row(SnryCastShow::All, 2), "3. レル [登場名: 王]");
  EXPECT_EQ(Row(SnryCastShow::All, 3), "4. 消えた人のコピー3");
  EXPECT_EQ(Row(SnryCastShow::All, 4), "-------未定義コピーキャラクタ---------");
  EXPECT_EQ(Row(SnryCastShow::All, 5), "");
}

TEST_F(SnryCastListTest, AmongTheCharactersOneWithCopiesStandsForThemToo) {
  ASSERT_EQ(SnryCastRows(SnryCastShow::Characters), 2);
  EXPECT_EQ(Row(SnryCastShow::Characters, 0), "1. ミル(コピー含む) [登場名: 姫]");
  EXPECT_EQ(Row(SnryCastShow::Characters, 1), "2. レル [登場名: 王]");
}

TEST_F(SnryCastListTest, ARowIsNoPlace) {
  EXPECT_EQ(SnryCastPlaceOfRow(SnryCastShow::All, 0), 1);
  EXPECT_EQ(SnryCastPlaceOfRow(SnryCastShow::All, 2), 4);
  EXPECT_EQ(SnryCastPlaceOfRow(SnryCastShow::All, 5), -1);
  EXPECT_EQ(SnryCastIdOfRow(SnryCastShow::All, 3), 514);
  EXPECT_EQ(SnryCastIdOfRow(SnryCastShow::Characters, 1), 4);
  EXPECT_EQ(SnryCastIdOfRow(SnryCastShow::Characters, 2), 0);
  EXPECT_EQ(SnryCastRowOfId(SnryCastShow::All, 4), 2);
  EXPECT_EQ(SnryCastRowOfId(SnryCastShow::Characters, 513), -1);
  EXPECT_EQ(SnryCastRowOfId(SnryCastShow::All, 9), -1);
}

// --- What is made new

TEST_F(SnryTablesTest, ANewScenarioInheritsWhatItDoesNotReset) {
  SnryMain.folderCount = 3;
  SnryMain.registeredCount = 2;
  SnryMain.paraCount = 5;
  SnryMain.registered[7] = 1;
  SnryMain.paras[4].used = 1;
  SnryMain.scenes[29][49].used = 1;
  SnryMain.charMotions[1].figures[0] = 9;
  TextCopy(SnryMain.castNames[0].text, 65, "姫");
  TextCopy(SnryMain.labels[0].text, 33, "次へ");
  SnryMain.options.statusBar = 1;
  SnryMainReset();
  EXPECT_STREQ(SnryMain.title, "無題");
  EXPECT_EQ(SnryMain.folderCount + SnryMain.registeredCount + SnryMain.paraCount, 0);
  EXPECT_EQ(SnryMain.registered[7] + SnryMain.paras[4].used + SnryMain.scenes[29][49].used, 0);
  EXPECT_EQ(SnryMain.charMotions[1].figures[0], 9);
  EXPECT_STREQ(SnryMain.castNames[0].text, "姫");
  EXPECT_STREQ(SnryMain.labels[0].text, "次へ");
  EXPECT_EQ(SnryMain.options.statusBar, 1);
}

TEST_F(SnryTablesTest, ANewSceneInheritsBackdropKeysAndScroll) {
  RecordFill(SnryScene.menus, 'm');
  RecordFill(SnryScene.events, 'e');
  RecordFill(SnryScene.randoms, 'r');
  RecordFill(SnryScene.randomExs, 'x');
  RecordFill(SnryScene.eventExs, 'y');
  RecordFill(SnryScene.title, 't');
  RecordFill(SnryScene.sounds, 's');
  RecordFill(SnryScene.table, 'f');
  RecordFill(SnryScene.keys, 'k');
  RecordFill(SnryScene.scroll, 'o');
  RecordFill(SnryScene.backdrop, 'b');
  SnrySceneReset();
  EXPECT_EQ(RecordBytes(SnryScene.menus), std::string(181800, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.randoms), std::string(37600, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.randomExs), std::string(15200, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.eventExs), std::string(10800, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.title), std::string(154, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.sounds), std::string(62000, '\0'));
  std::string event(236, '\0');
  event[6] = 2;
  EXPECT_EQ(RecordBytes(SnryScene.events[0]), event);
  EXPECT_EQ(RecordBytes(SnryScene.events[199]), event);
  EXPECT_EQ(RecordBytes(SnryScene.keys), std::string(2760, 'k'));
  EXPECT_EQ(RecordBytes(SnryScene.scroll), std::string(2736, 'o'));
  EXPECT_EQ(RecordBytes(SnryScene.backdrop), std::string(902, 'b'));
  EXPECT_STREQ(SnryScene.table.settingTitle, "  設  定 ");
  EXPECT_EQ(SnryScene.table.colours[6][0], 255);
  EXPECT_EQ(SnryScene.table.colours[7][2], 250);
  EXPECT_EQ(SnryScene.table.colours[12][2], 0);
  EXPECT_EQ(SnryScene.table.kept236[0], 0);
  EXPECT_EQ(SnryScene.table.kept236[1], 7);
}

TEST_F(SnryTablesTest, TheCastBeginsWithItsFiguresAsMotions) {
  for (const int slot : {0, 511, 512}) RecordFill(SnryCastAt(slot), 'c');
  World.WorldCharas[511].figureIds[0] = 0x0102;
  World.WorldCharas[511].figureIds[19] = 7;
  SnryMain.charMotions[511].figures[0] = 3;  // of the last edit of a scene
  SnryLineAt(25599).used = 1;
  SnryCastReset();
  const SnryCastRec& cast = SnryCastAt(511);
  EXPECT_EQ(cast.lines[99] + cast.lineParameters[0] + cast.lineValues[50], 0);
  EXPECT_EQ(cast.entry.parameter + cast.entry.value, 0);
  EXPECT_EQ(cast.motions[0], 2) << "the low byte of a figure's id";
  EXPECT_EQ(cast.motions[19], 7);
  EXPECT_EQ(cast.motions[20], 'c');
  EXPECT_EQ(cast.motionParameters[19], 0);
  EXPECT_NE(cast.motionParameters[20], 0);
  EXPECT_EQ(cast.lineEnds[0], 'c');
  EXPECT_NE(cast.exit.parameter, 0);
  EXPECT_EQ(SnryCastAt(512).motions[0], 'c') << "copies are left alone";
  EXPECT_EQ(SnryLineAt(25599).used, 0);
}

TEST_F(SnryTablesTest, OnlyAHighStageKeepsItsOptions) {
  struct Row {
    int width, height;
    bool kept;
  };
  const Row rows[] = {{840, 400, false}, {1, 1000, true},   {1200, 5000, true}, {1201, 1000, false},
                      {0, 1000, false},  {600, 999, false}, {600, 0, false},    {600, -1, false},
                      {-5, 1000, false}, {1200, 1000, true}};
  for (const Row& row : rows) {
    SnryMain.options = {};
    SnryMain.options.stageWidth = row.width;
    SnryMain.options.stageHeight = row.height;
    SnryMain.options.menuPosition = 9;
    SnryMain.options.statusBar = 1;
    SnryMain.options.statusTime = 4;
    SnryOptionCheck();
    EXPECT_EQ(SnryMain.options.menuPosition, row.kept ? 9 : 0) << row.width << " " << row.height;
    EXPECT_EQ(SnryMain.options.stageWidth, row.kept ? row.width : 840);
    EXPECT_EQ(SnryMain.options.stageHeight, row.kept ? row.height : 400);
    EXPECT_EQ(SnryMain.options.menuHeight, row.kept ? 0 : 200);
    EXPECT_EQ(SnryMain.options.readingSpeed, row.kept ? 0 : 1);
    EXPECT_EQ(SnryMain.options.statusBar, 1);
    EXPECT_EQ(SnryMain.options.statusTime, 4);
  }
}

TEST_F(SnryTablesTest, TheWorldGivesTheCharactersTheirNamesAndFigures) {
  MakeFolder("C:\\mirrell\\キャラクタ");
  PutFile("C:\\mirrell\\キャラクタ\\EDTCFLAG.edf", std::string(4, '\0') + Big32(2) + Big32(0));
  std::string data(2 * 1520, '\0');
  At(data, 1, "ミル");
  At(data, 1520 + 1, "レル");
  At(data, 1520 + 1440 + 4 * 3, Little16(5));
  PutFile("C:\\mirrell\\キャラクタ\\EDTCDATA.edf", data);
  TextCopy(SnryMain.charaNames[2].text, 65, "前の人");
  SnryWorldLoad();
  EXPECT_EQ(SnryMain.charaCount, 2);
  EXPECT_STREQ(SnryMain.charaNames[1].text, "レル");
  EXPECT_STREQ(SnryMain.charaNames[2].text, "前の人");
  SnryFiguresTake();
  EXPECT_EQ(SnryMain.charMotions[1].figures[3], 5);
}

TEST_F(SnryTablesTest, ANameThatTheWorldDoesNotGiveStays) {
  MakeFolder("C:\\mirrell\\キャラクタ");
  PutFile("C:\\mirrell\\キャラクタ\\EDTCFLAG.edf", std::string(4, '\0') + Big32(2) + Big32(0));
  std::string data(2 * 1520 - 1, '\0');
  At(data, 1, "ミル");
  for (int i = 0; i < 2; ++i) TextCopy(SnryMain.charaNames[i].text, 65, "前の人");
  SnryWorldLoad();
  EXPECT_EQ(SnryMain.charaCount, 2);
  EXPECT_STREQ(SnryMain.charaNames[0].text, "前の人") << "the second file is missing";
  PutFile("C:\\mirrell\\キャラクタ\\EDTCDATA.edf", data);
  SnryWorldLoad();
  EXPECT_STREQ(SnryMain.charaNames[0].text, "ミル");
  EXPECT_STREQ(SnryMain.charaNames[1].text, "前の人") << "its record is short";
}

TEST_F(SnryTablesTest, WithoutTheWorldsFilesTheNamesOfTheMainFileStay) {
  SnryMain.charaCount = 3;
  TextCopy(SnryMain.charaNames[2].text, 65, "前の人");
  SnryWorldLoad();
  EXPECT_EQ(SnryMain.charaCount, 3);
  EXPECT_STREQ(SnryMain.charaNames[2].text, "前の人");
}

}  // namespace
