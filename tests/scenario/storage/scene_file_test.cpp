// The file of a scene.
#include <functional>
#include <string_view>

#include "filetools/scope/scope_tables.h"
#include "services/work_blocks.h"
#include "tests/scenario/scenario_fixture.h"

namespace {

constexpr std::size_t kMenus = 35;
constexpr std::size_t kEvents = 181835;
constexpr std::size_t kRandoms = 229035;
constexpr std::size_t kLines = 266635;

class SnrySceneFileTest : public ScenarioTest {
 protected:
  void SetUp() override {
    ScenarioTest::SetUp();
    MakeTale();
  }

  // Where the sections begin behind so many lines and members of the cast, and the end.
  static std::vector<std::size_t> Sections(std::size_t lines, std::size_t casts) {
    std::vector<std::size_t> at = {kMenus, kEvents, kRandoms, kLines};
    for (const std::size_t size :
         {std::size_t{2}, lines * 181, std::size_t{2}, casts * 1638, std::size_t{300}, std::size_t{300},
          std::size_t{300}, std::size_t{1}, std::size_t{1}, std::size_t{154}, std::size_t{62000},
          std::size_t{15200}, std::size_t{2760}, std::size_t{2736}, std::size_t{10800}, std::size_t{248}}) {
      at.push_back(at.back() + size);
    }
    return at;
  }
  static std::size_t KeysAt(std::size_t lines, std::size_t casts) { return Sections(lines, casts)[15]; }

  // Another value in each byte, the counts as given.
  static std::string FullImage(unsigned lines, unsigned casts) {
    std::string image = RecordPattern(static_cast<int>(SceneImage(lines, casts).size()), 3);
    At(image, 0, "ソルナーデリオン-場面データファイル");
    At(image, kLines, Big16(lines));
    At(image, kLines + 2 + lines * 181, Big16(casts));
    return image;
  }
  static int Load() { return SnrySceneLoad(0, 0); }
  static std::size_t Sum(const void* bytes, std::size_t size) {
    return std::hash<std::string_view>{}({static_cast<const char*>(bytes), size});
  }
  static int Save() { return SnrySceneSave(0, 0); }
};

TEST_F(SnrySceneFileTest, ANewSceneEqualsAFileMadeByHand) {
  SnrySceneReset();
  SnryScene.backdrop = {};
  for (SnryKeyRec& key : SnryScene.keys) key = {};
  SnryScene.scroll = {};
  EXPECT_EQ(Save(), 0);
  std::string image = SceneImage();
  for (std::size_t i = 0; i < 200; ++i) image[kEvents + 236 * i + 6] = 2;
  const std::size_t table = image.size() - 248;
  At(image, table, "  項  目 ");
  At(image, table + 64, "  設  定 ");
  At(image, table + 128, "  データ ");
  At(image, table + 193, std::string(21, '\xFF') + std::string("\0\0\xFA\0\0\xFA\0\0\xFA", 9));
  image[table + 237] = 7;
  EXPECT_EQ(image.size(), FileBytes(kScene).size());
  EXPECT_TRUE(FileBytes(kScene) == image);
}

TEST_F(SnrySceneFileTest, EachTableLiesWhereTold) {
  std::string image = SceneImage(2, 513);
  PutFile(kScene, image);
  ASSERT_EQ(Load(), 0);
  const std::vector<std::size_t> at = Sections(2, 513);
  ASSERT_EQ(at.back(), image.size());
  SnryScene.menus[99].itemCount = 3;
  image[kMenus + 99 * 1818 + 17] = 3;
  SnryScene.events[199].highest = 0x102;
  At(image, kEvents + 199 * 236 + 42, Little16(0x102));
  SnryScene.randoms[1].interval = 0x304;
  At(image, kRandoms + 188 + 6, Little16(0x304));
  SnryLineAt(1).used = 1;
  TextCopy(SnryLineAt(1).text, 181, "やあ");
  At(image, kLines + 2 + 181, "\1やあ");
  Cast({513});
  SnryCastAt(512).master = 4;
  At(image, kLines + 2 + 362 + 2 + 512 * 1638, Little16(4));
  TextCopy(SnryScene.backdrop.door, 301, "扉.bmp");
  At(image, at[8], "扉.bmp");
  SnryScene.backdrop.windowMode = 2;
  image[at[11]] = 2;
  SnryScene.title.shown = 1;
  image[at[12]] = 1;
  SnryScene.sounds[199].seconds = 0x506;
  At(image, at[13] + 199 * 310 + 8, Little16(0x506));
  SnryScene.randomExs[199].replaced = 9;
  At(image, at[14] + 199 * 76 + 2, Little16(9));
  SnryScene.keys[19].key = 63;
  image[at[15] + 19 * 138] = 63;
  SnryScene.scroll.manualLeft = 1;
  image[at[16] + 2733] = 1;
  SnryScene.eventExs[199].remember = 1;
  image[at[17] + 199 * 54] = 1;
  SnryScene.table.dataRow = 3;
  image[at[18] + 232] = 3;
  EXPECT_EQ(Save(), 0);
  EXPECT_TRUE(FileBytes(kScene) == image);
}

TEST_F(SnrySceneFileTest, AFileWithAnotherValueInEachByteComesBackByteForByte) {
  const std::string image = FullImage(300, 712);
  Cast({712});
  PutFile(kScene, image);
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(Save(), 0);
  EXPECT_TRUE(FileBytes(kScene) == image);
}

TEST_F(SnrySceneFileTest, TheLinesReachToTheHighestThatIsUsed) {
  SnrySceneReset();
  EXPECT_EQ(SnryLineCount(), 0);
  SnryLineAt(0).used = 1;
  SnryLineAt(25599).used = 1;
  EXPECT_EQ(SnryLineCount(), 25600);
  SnryLineAt(25599).used = 0;
  EXPECT_EQ(SnryLineCount(), 1);
}

TEST_F(SnrySceneFileTest, TheCastReachesToTheHighestRegisteredCharacterOrCopy) {
  MakeChara(7, "a", "A");
  Cast({3, 7, 0, 500});
  EXPECT_EQ(SnryCastHighest(SnrySceneNow()), 7);
  Cast({3, 513});
  EXPECT_EQ(SnryCastHighest(SnrySceneNow()), 513);
  Cast({712, 713, 0xFFFF});
  EXPECT_EQ(SnryCastHighest(SnrySceneNow()), 712);
  SnrySceneNow().castCount = 0xFFFF;
  EXPECT_EQ(SnryCastHighest(SnrySceneNow()), 712);
}

TEST_F(SnrySceneFileTest, ASceneWithCopiesHasAtLeast513MembersOfTheCast) {
  SnrySceneReset();
  Cast({513});
  EXPECT_EQ(Save(), 0);
  EXPECT_EQ(FileBytes(kScene).size(), SceneImage(0, 513).size());
}

// "A scene file that ends right after the random extension section loads with cleared keys,
// scroll, event extension and table blocks."
TEST_F(SnrySceneFileTest, AFileThatEndsBehindTheRandomExtensionsLoadsWithTheRestCleared) {
  RecordFill(SnryScene.keys, 'k');
  RecordFill(SnryScene.scroll, 's');
  RecordFill(SnryScene.eventExs, 'e');
  RecordFill(SnryScene.table, 't');
  PutFile(kScene, FullImage(2, 3).substr(0, KeysAt(2, 3)));
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(RecordBytes(SnryScene.keys), std::string(2760, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.scroll), std::string(2736, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.eventExs), std::string(10800, '\0'));
  EXPECT_EQ(RecordBytes(SnryScene.table), std::string(248, '\0'));
  EXPECT_NE(SnryScene.randomExs[199].others[19], 0);
}

TEST_F(SnrySceneFileTest, EachOptionalSectionIsClearedByItself) {
  const std::string image = FullImage(0, 0);
  const std::size_t keys = KeysAt(0, 0);
  PutFile(kScene, image.substr(0, keys + 2759));
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(RecordBytes(SnryScene.keys), std::string(2760, '\0'));
  PutFile(kScene, image.substr(0, keys + 2760 + 2735));
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(RecordBytes(SnryScene.keys), image.substr(keys, 2760));
  EXPECT_EQ(RecordBytes(SnryScene.scroll), std::string(2736, '\0'));
  const std::size_t events = keys + 2760 + 2736;
  PutFile(kScene, image.substr(0, events + 3 * 54 + 53));
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(RecordBytes(SnryScene.scroll), image.substr(keys + 2760, 2736));
  EXPECT_EQ(RecordBytes(SnryScene.eventExs), image.substr(events, 162) + std::string(10800 - 162, '\0'));
  PutFile(kScene, image.substr(0, image.size() - 1));
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(RecordBytes(SnryScene.eventExs), image.substr(events, 10800));
  EXPECT_EQ(RecordBytes(SnryScene.table), std::string(248, '\0'));
}

// "A scene file cut inside the first section gives -4 and leaves the first records read in
// the buffers."
TEST_F(SnrySceneFileTest, AFileCutInsideTheFirstSectionGivesMinus4AndLeavesWhatWasRead) {
  const std::string image = FullImage(0, 0);
  SnrySceneReset();
  PutFile(kScene, image.substr(0, kMenus + 12 * 1818 + 5));
  EXPECT_EQ(Load(), -4);
  EXPECT_EQ(RecordBytes(SnryScene.menus[11]), image.substr(kMenus + 11 * 1818, 1818));
  EXPECT_EQ(RecordBytes(SnryScene.menus[13]), std::string(1818, '\0'));
}

TEST_F(SnrySceneFileTest, AFileCutAtOrInsideASectionIsShortUpToTheOptionalOnes) {
  const std::string image = FullImage(5, 3);
  const std::size_t keys = KeysAt(5, 3);
  std::vector<std::size_t> sections = Sections(5, 3);
  sections.push_back(0);
  for (const std::size_t section : sections) {
    for (const std::size_t cut : {section - 1, section, section + 1, section + 100}) {
      if (cut > image.size()) continue;
      PutFile(kScene, image.substr(0, cut));
      EXPECT_EQ(Load(), cut >= keys ? 0 : -4) << cut;
    }
  }
}

TEST_F(SnrySceneFileTest, AnotherFileGivesMinus5AndNoneMinus3) {
  EXPECT_EQ(Load(), -3);
  PutFile(kScene, std::string(300000, 'x'));
  EXPECT_EQ(Load(), -5);
}

TEST_F(SnrySceneFileTest, WhatLiesBehindTheTablesIsDroppedByALoad) {
  SnrySceneReset();
  SnryLineAt(5).used = 1;
  SnryLineAt(25599).used = 1;
  for (const int slot : {3, 4, 600}) {
    SnryCastAt(slot).master = 9;
    SnryCastAt(slot).copies = 2;
    SnryCastAt(slot).motions[7] = 8;
    SnryCastAt(slot).lines[99] = 6;
  }
  SnryCastAt(4).drops = 1;
  SnryCastAt(3).entry = {1, 2};
  PutFile(kScene, SceneImage(5, 2));
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(SnryLineAt(5).used, 0);
  EXPECT_EQ(SnryLineAt(25599).used, 0);
  EXPECT_EQ(SnryCastAt(3).master, 0);
  EXPECT_EQ(SnryCastAt(3).copies, 0);
  EXPECT_EQ(SnryCastAt(3).motions[7], 8) << "the rest of a character's record stays";
  EXPECT_EQ(SnryCastAt(3).entry.value, 2);
  EXPECT_EQ(SnryCastAt(4).motions[7], 0);
  EXPECT_EQ(SnryCastAt(4).lines[99], 0);
  EXPECT_EQ(RecordBytes(SnryCastAt(600)), std::string(1638, '\0')) << "copies are cleared whole";
}

TEST_F(SnrySceneFileTest, CountsThatTheTablesHaveNoRoomForAreBadContent) {
  for (const unsigned count : {25601U, 0xFFFFU}) {
    std::string image = SceneImage(0, 0);
    At(image, kLines, Big16(count));
    PutFile(kScene, image + std::string(66000 * 181, '\1'));
    EXPECT_EQ(Load(), -4) << count;
  }
  for (const unsigned count : {713U, 0xFFFFU}) {
    std::string image = SceneImage(0, 0);
    At(image, kLines + 2, Big16(count));
    PutFile(kScene, image + std::string(800 * 1638, '\1'));
    EXPECT_EQ(Load(), -4) << count;
  }
}

TEST_F(SnrySceneFileTest, TheLargestSceneGoesThere) {
  SnrySceneReset();
  for (int slot = 0; slot < 25600; ++slot) SnryLineAt(slot).used = 1;
  Cast({712});
  EXPECT_EQ(Save(), 0);
  EXPECT_EQ(FileBytes(kScene).size(), SceneImage(0, 0).size() + 25600 * 181 + 712 * 1638);
  SnrySceneReset();
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(SnryLineCount(), 25600);
}

TEST_F(SnrySceneFileTest, AnOldFileIsReplacedAlsoWhenItCannotBeDeleted) {
  SnrySceneReset();
  PutFile(kScene, std::string(400000, 'x'));
  EXPECT_EQ(Save(), 0);
  EXPECT_EQ(FileBytes(kScene).size(), SceneImage().size());
  PutFile(kScene, std::string(400000, 'x'));
  FaultArm(FaultKind::Delete, 1);
  EXPECT_EQ(Save(), 0);
  EXPECT_EQ(FileBytes(kScene).size(), SceneImage().size());
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(Save(), -1);
  EXPECT_FALSE(FileThere(kScene));
}

TEST_F(SnrySceneFileTest, EachWriteThatFailsLeavesWhatCameBefore) {
  SnrySceneReset();
  Cast({513});
  SnryLineAt(200).used = 1;
  EXPECT_EQ(Save(), 0);
  const std::string whole = FileBytes(kScene);
  const std::vector<std::size_t> at = Sections(201, 513);
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Write, nth);
    const int result = Save();
    const bool met = FaultWasMet();
    FaultClear();
    if (!met) break;
    const std::string left = FileBytes(kScene);
    ASSERT_LT(left.size(), whole.size());
    EXPECT_TRUE(left == whole.substr(0, left.size()));
    // The sounds have a result of their own.
    EXPECT_EQ(result, left.size() >= at[13] && left.size() < at[14] ? -3 : -4) << nth;
  }
  EXPECT_TRUE(FileBytes(kScene) == whole);
}

TEST_F(SnrySceneFileTest, ANameThatLeadsOutOfTheFolderIsNotFollowed) {
  TextCopy(SnrySceneNow().file, 301, "..\\町.scd");
  PutFile("C:\\mirrell\\物語\\町.scd", SceneImage());
  EXPECT_EQ(Load(), -3);
  EXPECT_EQ(Save(), -1);
  EXPECT_EQ(FileBytes("C:\\mirrell\\物語\\町.scd"), SceneImage());
}

TEST_F(SnrySceneFileTest, WithoutTheBlocksNothingIsReadOrWritten) {
  PutFile(kScene, SceneImage());
  ScopeBlockFree();
  CastBlockFree();
  EXPECT_EQ(Load(), -3);
  EXPECT_EQ(Save(), -1);
  EXPECT_EQ(FileBytes(kScene), SceneImage());
  SnryCastAt(0).master = 5;
  SnryLineAt(0).used = 1;
  EXPECT_EQ(SnryCastAt(0).master, 0);
  EXPECT_EQ(SnryLineAt(0).used, 0);
  EXPECT_EQ(SnryLineCount(), 0);
  SnryCastReset();
}

TEST_F(SnrySceneFileTest, SlotsThatThereAreNotBelongToNobody) {
  SnrySceneReset();
  SnryCastAt(-1).master = 5;
  SnryCastAt(713).master = 5;
  SnryLineAt(25600).used = 1;
  EXPECT_EQ(SnryCastAt(-1).master, 0);
  EXPECT_EQ(SnryLineCount(), 0);
  SnryCastAt(712).master = 5;
  EXPECT_EQ(SnryCastAt(712).master, 5) << "one slot lies behind the table";
  EXPECT_EQ(SnryCastAt(711).master, 0);
}

TEST_F(SnrySceneFileTest, WhatTheFolderScopeLeavesInTheBlocksIsLostAndDoesNoHarm) {
  std::fill(WorkBlocks.CastBlock, WorkBlocks.CastBlock + kCastBlockSize, static_cast<unsigned char>(0xA5));
  std::fill(WorkBlocks.ScopeBlock, WorkBlocks.ScopeBlock + kScopeBlockSize, static_cast<unsigned char>(0xA5));
  EXPECT_EQ(SnryLineCount(), 25600);
  EXPECT_EQ(TextLength(SnryLineAt(0).text, 181), 180U);
  Cast({513, 712});
  char text[300];
  SnryCastRowText(SnryCastShow::All, 0, text, sizeof text);
  EXPECT_STREQ(text, "-------未定義コピーキャラクタ---------");
}

// What has not been written since a load need not be cleared by the next. The same deeds are
// done with and without that knowledge; both tables have to come out the same, byte by byte.
TEST_F(SnrySceneFileTest, KnowingWhatWasWrittenChangesNothingThatALoadLeaves) {
  const std::string scenes[] = {FullImage(5, 2), FullImage(40, 600), FullImage(0, 0), FullImage(900, 700),
                                FullImage(900, 700).substr(0, 700000)};
  const auto tables = [&](bool knowing) {
    std::fill(WorkBlocks.CastBlock, WorkBlocks.CastBlock + kCastBlockSize, static_cast<unsigned char>(0));
    std::fill(WorkBlocks.ScopeBlock, WorkBlocks.ScopeBlock + kScopeBlockSize, static_cast<unsigned char>(0));
    SnryTouched = {};
    std::vector<std::size_t> left;
    std::uint32_t seed = 7;
    const auto next = [&seed](int below) {
      seed = seed * 1664525U + 1013904223U;
      return static_cast<int>((seed >> 8U) % static_cast<std::uint32_t>(below));
    };
    for (int deed = 0; deed < 60; ++deed) {
      SnryLineAt(next(deed % 7 == 0 ? 25600 : 1000)).used = 1;
      SnryCastRec& cast = SnryCastAt(next(713));
      cast.master = 9;
      cast.drops = static_cast<std::uint8_t>(next(2));
      cast.motions[3] = 4;
      if (deed % 11 == 10) {
        const ScopeEntry entry = {0, {}, {}, 2, 512, "scope", {}};
        for (int i = 0; i < 500; ++i)
          ScopeEntryPut(next(2) == 0 ? ScopeArea::Drive : ScopeArea::Folder, next(2000), entry);
        ScopeSort(ScopeArea::Drive, 40);
      }
      if (!knowing) SnryTouched = {};
      PutFile(kScene, scenes[next(5)]);
      Load();
      left.push_back(Sum(SnryLines(), 25600 * sizeof(SnryLineRec)));
      left.push_back(Sum(SnryCasts(), 712 * sizeof(SnryCastRec)));
    }
    return left;
  };
  EXPECT_EQ(tables(true), tables(false));
}

TEST_F(SnrySceneFileTest, AnythingThatTheFolderScopeLeftIsNoLineBehindALoad) {
  PutFile(kScene, SceneImage(5, 2));
  ASSERT_EQ(Load(), 0);
  ScopeEntry entry;
  std::memset(entry.unused, 1, sizeof entry.unused);
  for (int i = 0; i < 2000; ++i) ScopeEntryPut(ScopeArea::Drive, i, entry);
  ASSERT_GT(SnryLineCount(), 10000);
  ASSERT_EQ(Load(), 0);
  EXPECT_LE(SnryLineCount(), 5);
}

TEST_F(SnrySceneFileTest, MutatedFilesDoNoHarm) {
  const std::string image = FullImage(20, 20);
  std::uint32_t seed = 73;
  const auto next = [&seed] { return (seed = seed * 1664525U + 1013904223U) >> 8U; };
  const std::vector<std::size_t> sections = Sections(20, 20);
  for (int round = 0; round < 300; ++round) {
    std::string bytes = image;
    for (int i = 0; i < 300; ++i) bytes[35 + next() % (bytes.size() - 35)] = static_cast<char>(next());
    if (round % 3 == 0) At(bytes, kLines, Big16(next() % 40));
    if (round % 3 == 1) At(bytes, kLines + 2 + 20 * 181, Big16(next() % 40));
    bytes.resize(bytes.size() - (round % 5 == 0 ? next() % 40000 : 0));
    PutFile(kScene, bytes);
    const int result = Load();
    EXPECT_TRUE(result == 0 || result == -4) << result;
    Cast({513, 1, 20, 600});
    for (int row = 0; row < SnryCastRows(SnryCastShow::All); ++row) {
      char text[300];
      SnryCastRowText(SnryCastShow::All, row, text, sizeof text);
    }
  }
}

// Small records, many times: bytes as they come do no harm.
template <class T>
void Mutate(std::uint32_t seed) {
  const auto next = [&seed] { return (seed = seed * 1664525U + 1013904223U) >> 8U; };
  std::string bytes = RecordPattern(RecordSize<T>(), 4);
  const auto record = std::make_unique<T>();
  for (int round = 0; round < 100000; ++round) {
    bytes[next() % bytes.size()] = static_cast<char>(next());
    const int size = static_cast<int>(next() % (bytes.size() + 1));
    EXPECT_EQ(RecordTake(*record, bytes.data(), size), size == RecordSize<T>());
  }
}

TEST(SnrySceneRecords, MutatedAHundredThousandTimesDoNoHarm) {
  Mutate<SnryEventRec>(1);
  Mutate<SnryRandomRec>(2);
  Mutate<SnryTitleRec>(3);
  Mutate<SnryKeyRec>(4);
  Mutate<SnryTableRec>(5);
  Mutate<SnryParaRec>(6);
  Mutate<SnryListRec>(7);
}

}  // namespace
