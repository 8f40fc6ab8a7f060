// What scrambling rests on: the random numbers, the key block, and the bytes themselves.
#include "filetools/divide/div_scramble.h"

#include <cstring>
#include <random>

#include "filetools/divide/div_key_block.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

// --- Random numbers and the key block

TEST_F(DivideTest, RandomNumbersBelowTwoAreNought) {
  for (const int n : {-5, 0, 1}) EXPECT_EQ(DivRandom(n), 0);
  for (int i = 0; i < 1000; ++i) {
    const int value = DivRandom(255);
    ASSERT_GE(value, 0);
    ASSERT_LT(value, 255);
  }
}

TEST_F(DivideTest, TheKeyBlockNeverHoldsTheByte255AndKeepsItsTail) {
  std::memset(FileDivide.keyBlock, 0xFF, sizeof FileDivide.keyBlock);
  for (int i = 0; i < 200; ++i) {
    DivBuildKeyBlock();
    for (int at = 0; at < 96; ++at) ASSERT_NE(FileDivide.keyBlock[at], 255) << at;
    for (int at = 96; at < 100; ++at) ASSERT_EQ(FileDivide.keyBlock[at], 255);
  }
}

TEST_F(DivideTest, TheTableIsMadeAgainFromAnyKeyBlock) {
  std::mt19937 random(3);
  for (int i = 0; i < 300; ++i) {
    std::string block(100, '\0');
    for (char& byte : block) byte = static_cast<char>(i == 0 ? 0xFF : random());
    std::memcpy(FileDivide.keyBlock, block.data(), 100);
    DivLoadKeyBlock();
    const std::string table(reinterpret_cast<const char*>(FileDivide.scrambleTable), 160);
    ASSERT_TRUE(table == ModelTable(block));
  }
}

TEST_F(DivideTest, ANewTableIsTheOneOfItsKeyBlock) {
  for (int i = 0; i < 100; ++i) {
    DivBuildKeyBlock();
    std::uint8_t built[160];
    std::memcpy(built, FileDivide.scrambleTable, sizeof built);
    std::memset(FileDivide.scrambleTable, 0, sizeof built);
    DivLoadKeyBlock();
    ASSERT_EQ(std::memcmp(built, FileDivide.scrambleTable, sizeof built), 0);
  }
}

// --- Scrambling

class ScrambleTest : public DivideTest {
 protected:
  void SetUp() override {
    DivideTest::SetUp();
    FileDivide.encryptFlag = 1;
    RandomSeed(99);
    DivBuildKeyBlock();
    table_.assign(reinterpret_cast<const char*>(FileDivide.scrambleTable), 160);
  }
  static const std::uint8_t* In(const std::string& text) {
    return reinterpret_cast<const std::uint8_t*>(text.data());
  }
  static std::uint8_t* Out(std::string& text) { return reinterpret_cast<std::uint8_t*>(text.data()); }
  std::string table_;
};

TEST_F(ScrambleTest, EveryLengthPositionAndCursorAgreesWithTheModel) {
  const std::string bytes = Bytes(20000);
  for (const char* keyword : {"abcd", "abcde", "abcdef", "abcdefg", "abcdefgh", "秘密の鍵"}) {
    SetKeyword(keyword);
    for (const int length : {0,   1,    2,    3,    4,    7,    8,    95,   96,    97,    159,  160,
                             161, 3359, 3360, 3361, 5000, 6719, 6720, 6721, 10000, 13440, 13441}) {
      for (int keyPos = 0; keyPos <= 8; keyPos += 2) {
        for (const int start : {0, 1, 79, 158, 159}) {
          const std::string in = bytes.substr(0, static_cast<std::size_t>(length));
          std::string out(in.size(), '\0');
          std::int32_t cursor = start;
          int modelCursor = start;
          const std::int32_t end = DivScramble(keyPos, length, In(in), Out(out), cursor);
          ASSERT_TRUE(out == ModelScramble(in, keyword, table_, keyPos, modelCursor))
              << keyword << " " << length;
          ASSERT_EQ(cursor, modelCursor);
          // The position goes on where it ended.
          std::string next(1, 'x');
          std::int32_t nextCursor = cursor;
          DivScramble(end, 1, In("x"), Out(next), nextCursor);
          int wholeCursor = start;
          ASSERT_EQ(next[0], ModelScramble(in + "x", keyword, table_, keyPos, wholeCursor).back())
              << keyword << " " << length << " " << keyPos;
          cursor = start;
          EXPECT_EQ(DivUnscramble(keyPos, length, In(out), Out(out), cursor), end) << "in place";
          ASSERT_TRUE(out == in);
        }
      }
    }
  }
}

TEST_F(ScrambleTest, WithAKeywordOfFourTheFieldsAtFourAndEightBeginWithItsFirstByte) {
  SetKeyword("abcd");
  for (const int keyPos : {4, 8}) {
    std::string out(1, '\0');
    std::int32_t cursor = 0;
    DivScramble(keyPos, 1, In(std::string(1, '\0')), Out(out), cursor);
    EXPECT_EQ(out[0], static_cast<char>('a' - table_[0])) << keyPos;
  }
  SetKeyword("abcde");
  std::string out(1, '\0');
  std::int32_t cursor = 0;
  DivScramble(4, 1, In(std::string(1, '\0')), Out(out), cursor);
  EXPECT_EQ(out[0], static_cast<char>('e' - table_[0])) << "with five, 4 is a place of its own";
}

TEST_F(ScrambleTest, WithTheFlagOffBytesPassAndOnlyTheKeyPositionMoves) {
  FileDivide.encryptFlag = 0;
  SetKeyword("abcd");
  const std::string in = Bytes(10000);
  std::string out(in.size(), '\0');
  std::int32_t cursor = 17;
  EXPECT_EQ(DivScramble(3, 10000, In(in), Out(out), cursor), 10003);
  EXPECT_EQ(cursor, 17);
  EXPECT_TRUE(out == in);
}

TEST_F(ScrambleTest, AnEmptyKeywordCountsAsOneByteOfNought) {
  SetKeyword("");
  std::string out(3, '\0');
  std::int32_t cursor = 159;
  DivScramble(0, 3, In(std::string(3, '\0')), Out(out), cursor);
  EXPECT_EQ(out, (std::string{static_cast<char>(-table_[159]), static_cast<char>(-table_[0]),
                              static_cast<char>(-table_[1])}));
}

}  // namespace
