#include "tests/filetools/divide_model.h"

#include <gtest/gtest.h>

#include "shell/random.h"

namespace {

// Runs of the key block: R random, D data.
constexpr char kRuns[] = "RDRDRDRDRDRDRDRDR";
constexpr int kLengths[] = {7, 7, 7, 7, 6, 7, 5, 7, 4, 7, 3, 7, 2, 7, 3, 7, 3};

constexpr const char* kPatterns[] = {
    "01234567891122334455", "02468135799012386741", "11122245682131337465", "31572486239012434357",
    "31572486237812536470", "24686682215152554429", "11119993350102030405", "01012309372222244444",
    "99335522181123374654", "88774310049190001357",
};

std::string BigEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift);
  return bytes;
}

char Draw(int bound) {
  return static_cast<char>(RandomBelow(bound));
}

std::string KeyBlock() {
  std::string block;
  for (int run = 0; run < 17; ++run) {
    if (kRuns[run] == 'D') {
      const char a = Draw(255);
      const char b = Draw(255);
      std::string four;
      for (int i = 0; i < 4; ++i) four += Draw(255);
      const char between = Draw(255);
      block += four + a + between + b;
    } else {
      for (int i = 0; i < kLengths[run]; ++i) block += Draw(255);
    }
  }
  return block + std::string(4, '\0');
}

}  // namespace

std::string ModelTable(const std::string& keyBlock) {
  std::string table;
  std::size_t at = 0;
  for (int run = 0; run < 17; ++run) {
    if (kRuns[run] == 'D') {
      const int a = static_cast<unsigned char>(keyBlock[at + 4]);
      const int b = static_cast<unsigned char>(keyBlock[at + 6]);
      for (int i = 0; i < 20; ++i) table += static_cast<char>(kPatterns[b % 10][i] - '0' + a);
    }
    at += static_cast<std::size_t>(kLengths[run]);
  }
  return table;
}

std::string ModelScramble(const std::string& in, const std::string& keyword, const std::string& table,
                          int keyPos, int& cursor, bool back) {
  if (table.empty()) return in;
  std::string out = in;
  for (char& byte : out) {
    if (keyPos >= static_cast<int>(keyword.size())) keyPos = 0;
    const int t = table[static_cast<std::size_t>(cursor)];
    if (++cursor > 159) cursor = 0;
    const int k = keyword[static_cast<std::size_t>(keyPos++)];
    byte = static_cast<char>(back ? byte - k + t : byte + k - t);
  }
  return out;
}

ModelResult ModelDivide(const ModelDivision& division) {
  RandomSeed(division.seed);
  ModelResult result;
  const bool scrambled = !division.keyword.empty();
  const int total = division.count < 1 ? 2 : division.count;
  const std::string block = KeyBlock();
  const std::string table = scrambled ? ModelTable(block) : "";
  int recordCursor = 0;
  int bodyCursor = 0;
  const auto record = [&](std::uint32_t number, std::uint32_t value, std::string name) {
    name.resize(300);
    result.cof += ModelScramble(BigEndian(number), division.keyword, table, 0, recordCursor);
    result.cof += ModelScramble(BigEndian(value), division.keyword, table, 4, recordCursor);
    result.cof += ModelScramble(name, division.keyword, table, 8, recordCursor);
  };
  result.cof = std::string(1, scrambled ? '\1' : '\0') + block;
  record(0, static_cast<std::uint32_t>(total), division.sourceName);
  std::vector<bool> used(100);
  const std::size_t nominal = division.source.size() / static_cast<std::size_t>(total);
  for (int i = 0; i < total; ++i) {
    int number = i + 1;
    if (scrambled && number <= 100) {
      do number = RandomBelow(100) + 1;
      while (used[static_cast<std::size_t>(number - 1)]);
      used[static_cast<std::size_t>(number - 1)] = true;
    }
    const std::size_t from = nominal * static_cast<std::size_t>(i);
    const std::string bytes = division.source.substr(from, i + 1 == total ? std::string::npos : nominal);
    const std::string name = division.baseName + std::to_string(number) + ".div";
    result.pieces.emplace_back(name, ModelScramble(bytes, division.keyword, table, 0, bodyCursor));
    record(static_cast<std::uint32_t>(i + 1), static_cast<std::uint32_t>(bytes.size()), name);
  }
  return result;
}

// The model itself, against numbers worked out by hand.

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
