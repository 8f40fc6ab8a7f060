#include "world/world_list.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <random>

#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "tests/support/records.h"

namespace {

std::string BE32(std::uint32_t value) {
  return {static_cast<char>(value >> 24U), static_cast<char>(value >> 16U), static_cast<char>(value >> 8U),
          static_cast<char>(value)};
}
// Numbers inside a record.
std::string LE32(std::uint32_t value) {
  return {static_cast<char>(value), static_cast<char>(value >> 8U), static_cast<char>(value >> 16U),
          static_cast<char>(value >> 24U)};
}

std::string Field(const std::string& text, std::size_t size) {
  std::string field = text;
  field.resize(size);
  return field;
}

std::string Figure(bool used, const std::string& name) {
  return std::string(1, used ? 1 : 0) + Field(name, 128) + std::string(13, 'f');
}

std::string FlagFile(std::uint32_t charas, const std::vector<std::string>& figures) {
  std::string file = "....";
  file += BE32(charas) + BE32(static_cast<std::uint32_t>(figures.size()));
  for (const std::string& figure : figures) file += figure;
  return file;
}

// A character record, 1520 bytes; ids count up from `id`.
std::string Chara(const std::string& name, const std::string& frame, std::uint32_t id) {
  std::string record = "\x11" + Field(name, 64) + std::string(11, 'x') + "\x22";
  for (int i = 0; i < 20; ++i) record += Field(frame + std::to_string(i + 1), 64);
  record += std::string(1440 - 77 - 20 * 64, 'y');
  for (std::uint32_t i = 0; i < 20; ++i) record += LE32(id + i);
  return record;
}

class WorldListTest : public RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    MakeFolder(InProgram("キャラクタ"));
  }
  static void Put(const std::string& flags, const std::string& data) {
    char path[400];
    WorldFlagPath(path, sizeof path);
    ASSERT_TRUE(PutFile(path, flags));
    WorldDataPath(path, sizeof path);
    ASSERT_TRUE(PutFile(path, data));
  }
};

TEST_F(WorldListTest, BothFilesLieInTheCharacterFolder) {
  char path[400];
  WorldFlagPath(path, sizeof path);
  EXPECT_STREQ(path, "C:\\mirrell\\キャラクタ\\EDTCFLAG.edf");
  WorldDataPath(path, sizeof path);
  EXPECT_STREQ(path, "C:\\mirrell\\キャラクタ\\EDTCDATA.edf");
}

TEST_F(WorldListTest, CharactersFramesAndFiguresAreRead) {
  const std::string data = Chara("みるる", "立つ", 1) + Chara("b", "f", 0x12340005);
  ASSERT_EQ(data.size(), 3040U);
  Put(FlagFile(2, {Figure(true, "左へ歩く"), Figure(false, "止まる")}), data);
  FileResult.FileStatus = 55;
  WorldListRead();
  EXPECT_EQ(FileResult.FileStatus, 55);  // it reports nothing
  EXPECT_EQ(World.WorldCharaCount, 2);
  EXPECT_EQ(World.WorldFigureCount, 2);
  EXPECT_TRUE(World.WorldFigures[0].used);
  EXPECT_FALSE(World.WorldFigures[1].used);
  EXPECT_STREQ(WorldFigureName(1), "左へ歩く");
  EXPECT_STREQ(WorldFigureName(2), "止まる");
  EXPECT_STREQ(WorldCharaName(1), "みるる");
  EXPECT_STREQ(WorldCharaName(2), "b");
  EXPECT_STREQ(WorldFrameName(1, 1), "立つ1");
  EXPECT_STREQ(WorldFrameName(1, 20), "立つ20");
  EXPECT_EQ(World.WorldCharas[0].firstKept, 0x11);
  EXPECT_EQ(World.WorldCharas[0].secondKept, 0x22);
  EXPECT_EQ(World.WorldCharas[0].figureIds[0], 1);
  EXPECT_EQ(World.WorldCharas[0].figureIds[19], 20);
  // Of an id only the low 16 bits count.
  EXPECT_EQ(World.WorldCharas[1].figureIds[0], 5);
}

TEST_F(WorldListTest, NumbersThatTheListDoesNotHoldHaveEmptyNames) {
  Put(FlagFile(1, {Figure(true, "a")}), Chara("one", "f", 1));
  WorldListRead();
  for (const int number : {0, 2, -1, 513, 2147483647, -2147483647 - 1}) {
    EXPECT_STREQ(WorldCharaName(number), "") << number;
    EXPECT_STREQ(WorldFrameName(number, 1), "") << number;
    EXPECT_STREQ(WorldFigureName(number), "") << number;
  }
  EXPECT_STREQ(WorldFrameName(1, 0), "");
  EXPECT_STREQ(WorldFrameName(1, 21), "");
}

TEST_F(WorldListTest, WithACountOf5AndAShorterDataFileTheCharactersReadSoFarStayAndTheCountStays5) {
  Put(FlagFile(5, {}), Chara("one", "f", 1) + Chara("two", "f", 1) + Chara("three", "f", 1).substr(0, 1519));
  WorldListRead();
  EXPECT_EQ(World.WorldCharaCount, 5);
  EXPECT_STREQ(WorldCharaName(1), "one");
  EXPECT_STREQ(WorldCharaName(2), "two");
  EXPECT_STREQ(WorldCharaName(3), "");
}

TEST_F(WorldListTest, AFrameNameOf64BytesIsCutTo24AtACharacterBoundary) {
  std::string record = Chara("x", "f", 1);
  // Single bytes up to the 23rd, then a pair that would end past the 24th.
  const std::string odd = std::string(23, 'a') + "日本";
  record.replace(77, 64, Field(odd, 64));
  // Pairs all through: 12 of them are 24 bytes.
  std::string pairs;
  for (int i = 0; i < 32; ++i) pairs += "日";
  ASSERT_EQ(pairs.size(), 64U);
  record.replace(77 + 64, 64, pairs);
  record.replace(77 + 128, 64, std::string(64, 'b'));
  // A pair that ends on the 24th byte stays.
  record.replace(77 + 192, 64, Field(std::string(22, 'c') + "日d", 64));
  Put(FlagFile(1, {}), record);
  WorldListRead();
  EXPECT_EQ(std::string(WorldFrameName(1, 1)), std::string(23, 'a'));
  EXPECT_EQ(std::string(WorldFrameName(1, 2)), pairs.substr(0, 24));
  EXPECT_EQ(std::string(WorldFrameName(1, 3)), std::string(24, 'b'));
  EXPECT_EQ(std::string(WorldFrameName(1, 4)), std::string(22, 'c') + "日");
}

TEST_F(WorldListTest, ANameThatFillsItsFieldIsTerminated) {
  std::string record = Chara("x", "f", 1);
  record.replace(1, 64, std::string(64, 'n'));
  Put(FlagFile(1, {std::string(1, 1) + std::string(141, 'g')}), record);
  WorldListRead();
  EXPECT_EQ(std::string(WorldCharaName(1)), std::string(64, 'n'));
  EXPECT_EQ(std::string(WorldFigureName(1)), std::string(128, 'g'));
}

TEST_F(WorldListTest, AMissingOrShortListFileEndsTheLoadThereWithoutAWord) {
  Put(FlagFile(1, {Figure(true, "a")}), Chara("one", "f", 1));
  WorldListRead();
  char path[400];
  WorldFlagPath(path, sizeof path);
  RemoveFile(path);
  Put(FlagFile(2, {Figure(true, "b"), Figure(true, "c")}).substr(0, 12 + 142 + 141),
      Chara("new", "f", 1) + Chara("two", "f", 1));
  WorldListRead();
  // The figure table ended inside its second record: the characters are not read.
  EXPECT_EQ(World.WorldCharaCount, 2);
  EXPECT_STREQ(WorldFigureName(1), "b");
  EXPECT_STREQ(WorldCharaName(1), "one");
  RemoveFile(path);
  WorldListRead();
  EXPECT_EQ(World.WorldCharaCount, 2);
  EXPECT_STREQ(WorldCharaName(1), "one");
  WorldDataPath(path, sizeof path);
  RemoveFile(path);
  WorldListRead();
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(WorldListTest, ItIsKnownHowManyCharactersCame) {
  EXPECT_EQ(WorldListRead(), -1) << "without the counts";
  Put(FlagFile(1, {Figure(true, "a")}).substr(0, 11), "");
  EXPECT_EQ(WorldListRead(), -1);
  Put(FlagFile(1, {Figure(true, "a")}).substr(0, 12), Chara("c", "f", 1));
  EXPECT_EQ(WorldListRead(), 0) << "the load ends in the figures";
  Put(FlagFile(513, {}), "");
  EXPECT_EQ(WorldListRead(), -1);
  const std::string two = Chara("c", "f", 1) + Chara("d", "f", 1);
  Put(FlagFile(3, {Figure(true, "a")}), two);
  EXPECT_EQ(WorldListRead(), 2);
  Put(FlagFile(3, {Figure(true, "a")}), two.substr(0, two.size() - 1));
  EXPECT_EQ(WorldListRead(), 1);
}

TEST_F(WorldListTest, MoreCharactersThanThereCanBeEndTheLoad) {
  for (const std::uint32_t charas : {513U, 0xFFFFFFFFU, 0x80000000U}) {
    World.WorldCharaCount = 3;
    World.WorldFigureCount = 4;
    Put("...." + BE32(charas) + BE32(1) + Figure(true, "f"), "");
    WorldListRead();
    EXPECT_EQ(World.WorldCharaCount, 3) << charas;
    EXPECT_EQ(World.WorldFigureCount, 4) << charas;
  }
}

TEST_F(WorldListTest, FiveHundredAndTwelveCharactersFit) {
  std::string charas;
  for (int i = 1; i <= 512; ++i) charas += Chara("c" + std::to_string(i), "f", 1);
  Put(FlagFile(512, {Figure(true, "f")}), charas);
  WorldListRead();
  EXPECT_EQ(World.WorldCharaCount, 512);
  EXPECT_STREQ(WorldCharaName(1), "c1");
  EXPECT_STREQ(WorldCharaName(512), "c512");
}

// 512 characters of 20 frames each can have as many figures of their own.
TEST_F(WorldListTest, TenThousandAndMoreFiguresFitAndOneMoreCostsNoNames) {
  for (const std::uint32_t figures : {1001U, 10240U, 10241U}) {
    ClearRecords();
    std::string file = "...." + BE32(1) + BE32(figures);
    for (std::uint32_t i = 1; i <= figures; ++i) file += Figure(true, "f" + std::to_string(i));
    Put(file, Chara("one", "f", 1));
    WorldListRead();
    const int kept = static_cast<int>(std::min(figures, 10240U));
    EXPECT_EQ(World.WorldFigureCount, kept);
    EXPECT_EQ(WorldFigureName(kept), "f" + std::to_string(kept));
    EXPECT_STREQ(WorldFigureName(kept + 1), "");
    EXPECT_STREQ(WorldCharaName(1), "one") << figures;
  }
}

TEST_F(WorldListTest, EveryTruncationKeepsWholeRecordsOnly) {
  const std::string flags = FlagFile(2, {Figure(true, "one"), Figure(true, "two")});
  const std::string data = Chara("one", "f", 1) + Chara("two", "f", 1);
  char path[400];
  Put(flags, data);
  WorldDataPath(path, sizeof path);
  const std::string nativeData = PosixPath(path);
  for (std::size_t size = data.size() + 1; size-- > 0;) {
    ASSERT_EQ(truncate(nativeData.c_str(), static_cast<off_t>(size)), 0);
    std::memset(static_cast<void*>(World.WorldCharas), 0, sizeof World.WorldCharas[0] * 2);
    WorldListRead();
    ASSERT_EQ(World.WorldCharaCount, 2);
    ASSERT_STREQ(WorldCharaName(1), size >= 1520 ? "one" : "") << size;
    ASSERT_STREQ(WorldCharaName(2), size >= 3040 ? "two" : "") << size;
  }
  Put(flags, data);
  WorldFlagPath(path, sizeof path);
  const std::string nativeFlags = PosixPath(path);
  for (std::size_t size = flags.size() + 1; size-- > 0;) {
    ASSERT_EQ(truncate(nativeFlags.c_str(), static_cast<off_t>(size)), 0);
    ClearRecords();
    WorldListRead();
    ASSERT_EQ(World.WorldCharaCount, size >= 12 ? 2 : 0) << size;
    ASSERT_STREQ(WorldFigureName(1), size >= 12 + 142 ? "one" : "") << size;
    ASSERT_STREQ(WorldFigureName(2), size >= 12 + 284 ? "two" : "") << size;
    ASSERT_STREQ(WorldCharaName(2), size >= 12 + 284 ? "two" : "") << size;
  }
}

TEST_F(WorldListTest, RandomMutationsStayInsideTheTables) {
  const std::string flags = FlagFile(2, {Figure(true, "one"), Figure(true, "two")});
  const std::string data = Chara("日本", "日本", 1) + Chara("two", "日本", 1);
  Put(flags, data);
  char path[400];
  WorldFlagPath(path, sizeof path);
  std::FILE* flagFile = std::fopen(PosixPath(path).c_str(), "r+b");
  WorldDataPath(path, sizeof path);
  std::FILE* dataFile = std::fopen(PosixPath(path).c_str(), "r+b");
  ASSERT_NE(flagFile, nullptr);
  ASSERT_NE(dataFile, nullptr);
  std::mt19937 random(3);
  for (int round = 0; round < 100000; ++round) {
    std::FILE* file = round % 2 == 0 ? flagFile : dataFile;
    const std::string& image = round % 2 == 0 ? flags : data;
    off_t places[6];
    for (off_t& place : places) {
      // The head of the figure table is where the counts are.
      place = static_cast<off_t>(random() % (random() % 4 == 0 ? 16 : image.size()));
      const char byte = static_cast<char>(random());
      ASSERT_EQ(pwrite(fileno(file), &byte, 1, place), 1);
    }
    WorldListRead();
    ASSERT_TRUE(World.WorldCharaCount >= 0 && World.WorldCharaCount <= kWorldCharaMax);
    ASSERT_TRUE(World.WorldFigureCount >= 0 && World.WorldFigureCount <= kWorldFigureMax);
    for (int i = 0; i < 2; ++i) {
      ASSERT_EQ(World.WorldCharas[i].name[kWorldNameSize], '\0');
      ASSERT_EQ(World.WorldFigures[i].name[kWorldFigureNameSize], '\0');
      for (const auto& name : World.WorldCharas[i].frameNames) ASSERT_EQ(name[kWorldFrameNameMax], '\0');
    }
    for (const off_t place : places) {
      ASSERT_EQ(pwrite(fileno(file), &image[static_cast<std::size_t>(place)], 1, place), 1);
    }
  }
  std::fclose(flagFile);
  std::fclose(dataFile);
}

TEST_F(WorldListTest, EveryFailingOpenAndReadEndsTheLoadThere) {
  Put(FlagFile(2, {Figure(true, "one")}), Chara("one", "f", 1) + Chara("two", "f", 1));

  for (int nth = 1; nth <= 2; ++nth) {
    ClearRecords();
    FaultArm(FaultKind::Open, nth);
    WorldListRead();
    FaultClear();
    EXPECT_STREQ(WorldFigureName(1), nth == 2 ? "one" : "") << nth;
    EXPECT_STREQ(WorldCharaName(1), "") << nth;
  }
  // Reads: the head, one figure, two characters.
  for (int nth = 1; nth <= 4; ++nth) {
    ClearRecords();
    FaultArm(FaultKind::Read, nth);
    WorldListRead();
    EXPECT_TRUE(FaultWasMet()) << nth;
    FaultClear();
    EXPECT_EQ(World.WorldCharaCount, nth > 1 ? 2 : 0) << nth;
    EXPECT_STREQ(WorldFigureName(1), nth > 2 ? "one" : "") << nth;
    EXPECT_STREQ(WorldCharaName(1), nth > 3 ? "one" : "") << nth;
    EXPECT_STREQ(WorldCharaName(2), "") << nth;
  }
}

}  // namespace
