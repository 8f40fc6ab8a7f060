// The edit files that the world's editors leave beside an application.
#include <gtest/gtest.h>
#include <unistd.h>

#include <random>

#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "tests/support/record_check.h"
#include "tests/support/records.h"
#include "world/sef_file.h"
#include "world/wef_file.h"

namespace {

std::string BE32(std::uint32_t value) {
  return {static_cast<char>(value >> 24U), static_cast<char>(value >> 16U), static_cast<char>(value >> 8U),
          static_cast<char>(value)};
}
std::string LE16(std::uint32_t value) {
  return {static_cast<char>(value), static_cast<char>(value >> 8U)};
}
std::string LE32(std::uint32_t value) {
  return LE16(value & 0xFFFFU) + LE16(value >> 16U);
}

// Text in a field of `size` bytes.
std::string Field(std::string text, std::size_t size) {
  text.resize(size);
  return text;
}

constexpr char kSefMagic[] = "シナリオ シーン 編集ファイル";
constexpr char kWefMagic[] = "シナリオ作業 編集ファイル";

std::string Grid() {
  return std::string(12, 'g') + LE32(0x12345) + LE32(7) + "gg" + LE16(0x130) + LE16(48) + "gg" +
         "\x01\x02\x03\x01\x04\x05\x06" + std::string(5, 'g');
}
std::string Object(std::uint32_t chara, std::uint32_t frame) {
  return std::string(8, 'o') + LE32(chara) + LE16(frame) + std::string(438, 'o');
}
std::string Stage(const std::string& name, std::uint32_t width, std::uint32_t height) {
  return Field(name, 32) + LE16(width) + LE16(height);
}
std::string Types(unsigned char count) {
  std::string types = std::string(25, 't') + static_cast<char>(count);
  for (char number = 1; number <= 10; ++number) types += number;
  for (int type = 1; type <= 10; ++type) types += Field("型" + std::to_string(type), 33);
  types += std::string(30, 't');
  for (std::uint32_t type = 1; type <= 10; ++type) types += LE16(type * 0x101);
  return types + std::string(40, 't');
}

std::string SefBytes(std::uint32_t objects, const std::vector<std::string>& stages, unsigned char types = 3) {
  std::string file = kSefMagic + BE32(objects) + Grid();
  for (std::uint32_t i = 1; i <= objects; ++i) file += Object(i * 0x10001, i * 0x102);
  file += BE32(static_cast<std::uint32_t>(stages.size()));
  for (const std::string& stage : stages) file += stage;
  return file + Types(types);
}

std::string Scene(const std::string& background, char red) {
  return std::string(1780, 's') + Field(background, 257) + red + "\x02\x03" + std::string(316, 's');
}

// `counts`: scenes of each area; the scenes follow as they are told.
std::string WefBytes(const std::vector<std::uint32_t>& counts, const std::vector<std::string>& scenes) {
  std::string file = kWefMagic + BE32(1) + BE32(2) + BE32(static_cast<std::uint32_t>(counts.size()));
  for (std::uint32_t i = 0; i < 100; ++i) file += BE32(i);
  for (const std::uint32_t count : counts) file += BE32(count);
  file += std::string(6874, 'b') + std::string(counts.size() * 842, 'a');
  for (const std::string& scene : scenes) file += scene;
  return file;
}

class EditFilesTest : public RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    MakeFolder("C:\\app");
  }
  static void PutSef(const std::string& bytes) { ASSERT_TRUE(PutFile("C:\\app\\地図_1_1.sef", bytes)); }
  static void PutWef(const std::string& bytes) { ASSERT_TRUE(PutFile("C:\\app\\地図.wef", bytes)); }
  static int ReadSef() { return SefRead("C:\\app", "地図", 0); }
  static int ReadWef() { return WefRead("C:\\app", "地図"); }
};

TEST(EditRecords, LieAsTold) {
  RecordCheck<SefGrid>();
  RecordCheck<SefObject>();
  RecordCheck<SefStage>();
  RecordCheck<SefTypes>();
  RecordCheck<WefHead>();
  RecordCheck<WefScene>();
  EXPECT_EQ(RecordOffset<&SefGrid::columns>(), 12);
  EXPECT_EQ(RecordOffset<&SefGrid::rows>(), 16);
  EXPECT_EQ(RecordOffset<&SefGrid::cellWidth>(), 22);
  EXPECT_EQ(RecordOffset<&SefGrid::cellHeight>(), 24);
  EXPECT_EQ(RecordOffset<&SefGrid::pen>(), 28);
  EXPECT_EQ(RecordOffset<&SefGrid::filled>(), 31);
  EXPECT_EQ(RecordOffset<&SefGrid::fill>(), 32);
  EXPECT_EQ(RecordOffset<&SefObject::chara>(), 8);
  EXPECT_EQ(RecordOffset<&SefObject::frame>(), 12);
  EXPECT_EQ(RecordOffset<&SefStage::name>(), 0);
  EXPECT_EQ(RecordOffset<&SefStage::width>(), 32);
  EXPECT_EQ(RecordOffset<&SefStage::height>(), 34);
  EXPECT_EQ(RecordOffset<&SefTypes::count>(), 25);
  EXPECT_EQ(RecordOffset<&SefTypes::numbers>(), 26);
  EXPECT_EQ(RecordOffset<&SefTypes::names>(), 36);
  EXPECT_EQ(RecordOffset<&SefTypes::objects>(), 396);
  EXPECT_EQ(RecordOffset<&WefHead::areaCount>(), 8);
  EXPECT_EQ(RecordOffset<&WefScene::background>(), 1780);
  EXPECT_EQ(RecordOffset<&WefScene::fallback>(), 2037);
}

TEST_F(EditFilesTest, TheMagicsHaveTheLengthsOfTheFormats) {
  EXPECT_EQ(sizeof kSefMagic, 29U);
  EXPECT_EQ(sizeof kWefMagic, 26U);
  EXPECT_EQ(SefBytes(2, {Stage("a", 1, 2)}).size(), 72U + 2 * 452 + 4 + 36 + 456);
  EXPECT_EQ(WefBytes({1}, {}).size(), 437U + 4 + 6874 + 842);
  EXPECT_EQ(Scene("a", 'r').size(), 2356U);
}

// --- Scene edit files

TEST_F(EditFilesTest, ASceneEditFileIsRead) {
  PutSef(SefBytes(2, {Stage("広場", 640, 480), Stage("小道", 1, 65535), Stage("c", 3, 4)}));
  EXPECT_EQ(ReadSef(), 0);
  EXPECT_EQ(Sef.grid.columns, 0x12345U);
  EXPECT_EQ(Sef.grid.rows, 7U);
  EXPECT_EQ(Sef.grid.cellWidth, 0x130);
  EXPECT_EQ(Sef.grid.cellHeight, 48);
  EXPECT_EQ(Sef.grid.pen[2], 3);
  EXPECT_EQ(Sef.grid.filled, 1);
  EXPECT_EQ(Sef.grid.fill[0], 4);
  ASSERT_EQ(Sef.objectCount, 2);
  EXPECT_EQ(SefObjectAt(1)->chara, 0x10001U);
  EXPECT_EQ(SefObjectAt(2)->frame, 0x204);
  ASSERT_EQ(Sef.stageCount, 3);
  EXPECT_STREQ(Sef.stages[0].name, "広場");
  EXPECT_EQ(Sef.stages[0].width, 640);
  EXPECT_EQ(Sef.stages[1].height, 65535);
  EXPECT_EQ(SefTypeCount(), 3);
  EXPECT_EQ(Sef.types.numbers[9], 10);
  EXPECT_STREQ(Sef.types.names[9], "型10");
  EXPECT_EQ(Sef.types.objects[1], 0x202);
}

TEST_F(EditFilesTest, TheFirstFileIsNumberedOneAndOneAndTheArea301IsTheSecond) {
  for (const char* name : {"1_1", "1_300", "2_1", "3_2"}) {
    ASSERT_TRUE(PutFile(std::string("C:\\app\\m_") + name + ".sef", SefBytes(0, {Stage(name, 1, 1)})));
  }
  const std::pair<int, const char*> scenes[] = {{0, "1_1"}, {299, "1_300"}, {300, "2_1"}, {601, "3_2"}};
  for (const auto& [scene, name] : scenes) {
    ASSERT_EQ(SefRead("C:\\app", "m", scene), 0) << scene;
    EXPECT_STREQ(Sef.stages[0].name, name);
  }
  EXPECT_EQ(SefRead("C:\\app", "m", 1), -1);
}

TEST_F(EditFilesTest, AFileThatIsNotThereAShortOneAndAWrongOneAreToldApart) {
  EXPECT_EQ(ReadSef(), -1);
  EXPECT_EQ(ReadWef(), -1);
  PutSef(std::string(kSefMagic).substr(0, 27));
  PutWef(std::string(kWefMagic).substr(0, 24));
  EXPECT_EQ(ReadSef(), -3);
  EXPECT_EQ(ReadWef(), -3);
  std::string sef = SefBytes(1, {});
  std::string wef = WefBytes({0}, {});
  sef[27] = 'x';
  wef[0] = 'x';
  PutSef(sef);
  PutWef(wef);
  EXPECT_EQ(ReadSef(), -4);
  EXPECT_EQ(ReadWef(), -4);
}

TEST_F(EditFilesTest, WhatAnEarlierFileHeldIsGoneWhenTheNextCannotBeRead) {
  PutSef(SefBytes(2, {Stage("a", 1, 1)}));
  PutWef(WefBytes({1}, {Scene("a.bmp", 'r')}));
  ASSERT_EQ(ReadSef(), 0);
  ASSERT_EQ(ReadWef(), 0);
  EXPECT_EQ(SefRead("C:\\app", "none", 0), -1);
  EXPECT_EQ(WefRead("C:\\app", "none"), -1);
  EXPECT_EQ(Sef.objectCount, 0);
  EXPECT_EQ(Sef.stageCount, 0);
  EXPECT_EQ(Sef.grid.columns, 0U);
  EXPECT_EQ(SefTypeCount(), 0);
  EXPECT_EQ(Wef.sceneCount, 0);
}

TEST_F(EditFilesTest, NumbersThatTheFileDoesNotHaveHaveNoObject) {
  PutSef(SefBytes(1, {}, 255));
  ASSERT_EQ(ReadSef(), 0);
  for (const int number : {0, 2, -1, 65535, 65536, 2147483647}) EXPECT_EQ(SefObjectAt(number), nullptr);
  EXPECT_EQ(SefTypeCount(), 10);  // there is room for ten
}

TEST_F(EditFilesTest, NamesThatFillTheirFieldsAreWhole) {
  std::string types = Types(1);
  types.replace(36, 33, std::string(33, 'n'));
  PutSef(kSefMagic + BE32(0) + Grid() + BE32(1) + Stage(std::string(32, 'm'), 1, 1) + types);
  ASSERT_EQ(ReadSef(), 0);
  EXPECT_EQ(Sef.stages[0].name, std::string(32, 'm'));
  EXPECT_EQ(Sef.types.names[0], std::string(33, 'n'));
}

TEST_F(EditFilesTest, MoreStageSizesThanThereIsRoomForArePassedOver) {
  std::vector<std::string> stages;
  for (int i = 1; i <= 1026; ++i) stages.push_back(Stage(std::to_string(i), 1, 1));
  PutSef(SefBytes(0, stages, 5));
  EXPECT_EQ(ReadSef(), 0);
  EXPECT_EQ(Sef.stageCount, 1024);
  EXPECT_STREQ(Sef.stages[1023].name, "1024");
  EXPECT_EQ(SefTypeCount(), 5);  // what follows is still read
}

TEST_F(EditFilesTest, AbsurdCountsAreAShortRead) {
  for (const std::uint32_t count : {3U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    PutSef(kSefMagic + BE32(count) + Grid() + Object(1, 1) + Object(2, 2));
    EXPECT_EQ(ReadSef(), -3);
    EXPECT_EQ(Sef.objectCount, 2);
    PutSef(kSefMagic + BE32(0) + Grid() + BE32(count) + Stage("a", 1, 1) + Stage("b", 1, 1));
    EXPECT_EQ(ReadSef(), -3);
    EXPECT_EQ(Sef.stageCount, 2);
    std::string wef = WefBytes({1}, {Scene("a", 'r')});
    wef.replace(33, 4, BE32(count));
    PutWef(wef);
    EXPECT_EQ(ReadWef(), -3);
    wef = WefBytes({count}, {Scene("a", 'r'), Scene("b", 'r')});
    PutWef(wef);
    EXPECT_EQ(ReadWef(), -3);
    EXPECT_EQ(Wef.sceneCount, 2);
  }
}

TEST_F(EditFilesTest, ASceneEditFileCutAnywhereKeepsWhatCameWhole) {
  const std::string file = SefBytes(2, {Stage("a", 1, 1), Stage("b", 2, 2)}, 4);
  PutSef(file);
  const std::string native = PosixPath("C:\\app\\地図_1_1.sef");
  const std::size_t objects = 72;
  const std::size_t stages = objects + 2 * 452 + 4;
  for (std::size_t size = file.size() + 1; size-- > 0;) {
    ASSERT_EQ(truncate(native.c_str(), static_cast<off_t>(size)), 0);
    ASSERT_EQ(ReadSef(), size == file.size() ? 0 : -3) << size;
    ASSERT_EQ(Sef.objectCount, size >= objects + 904 ? 2 : size >= objects + 452 ? 1 : 0) << size;
    ASSERT_EQ(Sef.stageCount, size >= stages + 72 ? 2 : size >= stages + 36 ? 1 : 0) << size;
    ASSERT_EQ(SefTypeCount(), size == file.size() ? 4 : 0) << size;
  }
}

// --- World edit files

TEST_F(EditFilesTest, OnlyTheFirstThreeScenesOfTheFirstAreaOfAWorldEditFileReachMemory) {
  PutWef(
      WefBytes({5, 2}, {Scene("1.bmp", 'p'), Scene("2.bmp", 'q'), Scene("3.bmp", 'r'), Scene("4.bmp", 's')}));
  EXPECT_EQ(ReadWef(), 0);  // though the fifth is not there
  ASSERT_EQ(Wef.sceneCount, 3);
  EXPECT_STREQ(Wef.scenes[0].background, "1.bmp");
  EXPECT_STREQ(Wef.scenes[2].background, "3.bmp");
  EXPECT_EQ(Wef.scenes[2].fallback[0], 'r');
  EXPECT_EQ(Wef.scenes[2].fallback[2], 3);
}

TEST_F(EditFilesTest, AFirstAreaOfFewerScenesEndsTheReadingThere) {
  PutWef(WefBytes({2, 3}, {Scene("1.bmp", 'p'), Scene("2.bmp", 'q'), Scene("of area 2", 'r')}));
  EXPECT_EQ(ReadWef(), 0);
  EXPECT_EQ(Wef.sceneCount, 2);
  PutWef(WefBytes({0, 3}, {Scene("of area 2", 'r')}));
  EXPECT_EQ(ReadWef(), 0);
  EXPECT_EQ(Wef.sceneCount, 0);
  PutWef(WefBytes({}, {}));
  EXPECT_EQ(ReadWef(), 0);
  EXPECT_EQ(Wef.sceneCount, 0);
}

TEST_F(EditFilesTest, ABackgroundNameThatFillsItsFieldIsWhole) {
  PutWef(WefBytes({1}, {Scene(std::string(257, 'b'), 'r')}));
  ASSERT_EQ(ReadWef(), 0);
  EXPECT_EQ(Wef.scenes[0].background, std::string(257, 'b'));
}

TEST_F(EditFilesTest, AWorldEditFileCutAnywhereKeepsWhatCameWhole) {
  const std::string file = WefBytes({3}, {Scene("1", 'p'), Scene("2", 'q'), Scene("3", 'r')});
  PutWef(file);
  const std::string native = PosixPath("C:\\app\\地図.wef");
  const std::size_t scenes = file.size() - 3 * 2356;
  for (std::size_t size = file.size() + 1; size-- > 0;) {
    ASSERT_EQ(truncate(native.c_str(), static_cast<off_t>(size)), 0);
    ASSERT_EQ(ReadWef(), size == file.size() ? 0 : -3) << size;
    const std::size_t whole = size >= scenes ? (size - scenes) / 2356 : 0;
    ASSERT_EQ(Wef.sceneCount, static_cast<int>(whole)) << size;
  }
}

// --- Both under attack

// Changes six bytes of a file at a time, reads it, and puts them back.
void Mutate(const std::string& native, const std::string& image, unsigned seed, std::size_t head,
            const std::function<void()>& read) {
  std::FILE* file = std::fopen(native.c_str(), "r+b");
  ASSERT_NE(file, nullptr);
  std::mt19937 random(seed);
  for (int round = 0; round < 100000; ++round) {
    off_t places[6];
    for (off_t& place : places) {
      place = static_cast<off_t>(random() % (random() % 4 == 0 ? head : image.size()));
      const char byte = static_cast<char>(random());
      ASSERT_EQ(pwrite(fileno(file), &byte, 1, place), 1);
    }
    read();
    for (const off_t place : places) {
      ASSERT_EQ(pwrite(fileno(file), &image[static_cast<std::size_t>(place)], 1, place), 1);
    }
  }
  std::fclose(file);
}

TEST_F(EditFilesTest, RandomMutationsOfASceneEditFileStayInsideTheTables) {
  const std::string file = SefBytes(3, {Stage("広場", 1, 2), Stage("b", 3, 4)});
  PutSef(file);
  Mutate(PosixPath("C:\\app\\地図_1_1.sef"), file, 5, 76, [] {
    const int result = ReadSef();
    ASSERT_TRUE(result == 0 || result == -3 || result == -4);
    // A fourth object takes up what stands behind the third.
    ASSERT_TRUE(Sef.objectCount >= 0 && Sef.objectCount <= 4 && Sef.stageCount >= 0 && Sef.stageCount <= 60);
    ASSERT_TRUE(SefTypeCount() <= 10);
    for (int i = 0; i < Sef.stageCount; ++i) ASSERT_EQ(Sef.stages[i].name[32], '\0');
    for (const auto& name : Sef.types.names) ASSERT_EQ(name[33], '\0');
  });
}

TEST_F(EditFilesTest, RandomMutationsOfAWorldEditFileStayInsideTheTables) {
  const std::string file = WefBytes({3, 1}, {Scene("背景.bmp", 'p'), Scene("2", 'q'), Scene("3", 'r')});
  PutWef(file);
  Mutate(PosixPath("C:\\app\\地図.wef"), file, 6, 445, [] {
    const int result = ReadWef();
    ASSERT_TRUE(result == 0 || result == -3 || result == -4);
    ASSERT_TRUE(Wef.sceneCount >= 0 && Wef.sceneCount <= 3);
    for (int i = 0; i < Wef.sceneCount; ++i) ASSERT_EQ(Wef.scenes[i].background[257], '\0');
  });
}

TEST_F(EditFilesTest, EveryFailingReadIsAShortRead) {
  PutSef(SefBytes(1, {Stage("a", 1, 1)}));
  PutWef(WefBytes({1}, {Scene("a", 'r')}));
  for (int (*read)() : {ReadSef, ReadWef}) {
    FaultArm(FaultKind::Open, 1);
    EXPECT_EQ(read(), -1);
    FaultClear();
    int failed = 0;
    for (bool met = true; met; ++failed) {
      FaultArm(FaultKind::Read, failed + 1);
      const int result = read();
      met = FaultWasMet();
      FaultClear();
      EXPECT_EQ(result, met ? -3 : 0) << failed;
    }
    EXPECT_GT(failed, 6);
  }
}

}  // namespace
