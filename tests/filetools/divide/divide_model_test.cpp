// The model itself, against numbers worked out by hand.
#include "tests/filetools/divide/divide_model.h"

#include <gtest/gtest.h>

TEST(DivideModelTest, ATableOfZerosIsPatternNought) {
  const std::string table = ModelTable(std::string(100, '\0'));
  ASSERT_EQ(table.size(), 160U);
  EXPECT_EQ(table.substr(0, 20), std::string("\0\1\2\3\4\5\6\7\x8\x9\1\1\2\2\3\3\4\4\5\5", 20));
  EXPECT_EQ(table.substr(140), table.substr(0, 20));
}

TEST(DivideModelTest, AByteGainsItsKeyAndLosesItsTable) {
  int cursor = 159;
  std::string table(160, '\1');
  table[159] = '\5';
  // 0 + 'a' - 5, then 255 + 'b' - 1, then 1 + 'a' - 1
  EXPECT_EQ(ModelScramble(std::string("\0\xFF\1", 3), "ab", table, 8, cursor), std::string("\x5C\x60\x61"));
  EXPECT_EQ(cursor, 2);
}

TEST(DivideModelTest, AJoiningFileTellsItsRecordsAndNumbers) {
  const std::string block = "block" + std::string(95, '\0');
  std::string name = "p2x17.div";
  name.resize(300);
  const std::string cof = '\0' + block + std::string("\0\0\0\0\0\0\0\1a", 9) + std::string(299, '\0') +
                          std::string("\0\0\0\1\0\0\1\2", 8) + name + "a record cut short";
  const std::vector<ModelRecord> records = ModelRecords(cof, "");
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].value, 1U);
  EXPECT_EQ(records[0].name, "a");
  EXPECT_EQ(records[1].number, 1U);
  EXPECT_EQ(records[1].value, 258U);
  EXPECT_EQ(records[1].name, "p2x17.div");
  const ModelChance chance = ModelChanceOf(cof, "");
  EXPECT_EQ(chance.keyBlock, block);
  EXPECT_EQ(chance.numbers, std::vector<int>{17});
}

TEST(DivideModelTest, WithFewerNumbersThanPiecesADivisionEndsBehindTheLastOne) {
  const ModelDivision division{"0123456789", "s", "p", 3, "", 0};
  const ModelResult whole = ModelDivide(division, {std::string(100, '\0'), {1, 2, 3}});
  ASSERT_EQ(whole.pieces.size(), 3U);
  EXPECT_EQ(whole.pieces[2].second, "6789");
  const ModelResult part = ModelDivide(division, {std::string(100, '\0'), {1, 2}});
  ASSERT_EQ(part.pieces.size(), 2U);
  EXPECT_EQ(part.pieces[1].second, "345");
  EXPECT_EQ(part.cof, whole.cof.substr(0, 101 + 3 * 308));
}
