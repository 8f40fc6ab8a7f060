#include "tests/filetools/divide/divide_model.h"

#include <cstdlib>

namespace {

constexpr std::size_t kHead = 101;  // flag and key block
constexpr std::size_t kRecord = 308;

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

std::uint32_t Number(const std::string& bytes) {
  std::uint32_t number = 0;
  for (const char byte : bytes) number = number << 8U | static_cast<unsigned char>(byte);
  return number;
}

std::string TableFor(const std::string& keyword, const std::string& keyBlock) {
  return keyword.empty() ? "" : ModelTable(keyBlock);
}

}  // namespace

std::string ModelTable(const std::string& keyBlock) {
  std::string table;
  std::size_t at = 0;
  for (int run = 0; run < kModelRunCount; ++run) {
    if (run % 2 == 1) {
      const int a = static_cast<unsigned char>(keyBlock[at + 4]);
      const int b = static_cast<unsigned char>(keyBlock[at + 6]);
      for (int i = 0; i < 20; ++i) table += static_cast<char>(kPatterns[b % 10][i] - '0' + a);
    }
    at += static_cast<std::size_t>(kModelRuns[run]);
  }
  return table;
}

std::string ModelScramble(const std::string& in, const std::string& keyword, const std::string& table,
                          int keyPos, int& cursor, bool back) {
  if (table.empty()) return in;
  std::string out = in;
  const char* const tableAt = table.data();
  const char* const keyAt = keyword.data();
  const int keySize = static_cast<int>(keyword.size());
  char* const end = out.data() + out.size();
  for (char* at = out.data(); at < end; ++at) {
    if (keyPos >= keySize) keyPos = 0;
    const int t = tableAt[cursor];
    if (++cursor > 159) cursor = 0;
    const int k = keyAt[keyPos++];
    *at = static_cast<char>(back ? *at - k + t : *at + k - t);
  }
  return out;
}

std::vector<ModelRecord> ModelRecords(const std::string& cof, const std::string& keyword) {
  const std::string table = TableFor(keyword, cof.substr(1, 100));
  std::vector<ModelRecord> records;
  int cursor = 0;
  for (std::size_t at = kHead; at + kRecord <= cof.size(); at += kRecord) {
    const auto field = [&](std::size_t offset, std::size_t size, int keyPos) {
      return ModelScramble(cof.substr(at + offset, size), keyword, table, keyPos, cursor, true);
    };
    const std::string number = field(0, 4, 0);
    const std::string value = field(4, 4, 4);
    const std::string name = field(8, 300, 8);
    records.push_back({Number(number), Number(value), name.c_str()});
  }
  return records;
}

ModelChance ModelChanceOf(const std::string& cof, const std::string& keyword) {
  ModelChance chance{cof.substr(1, 100), {}};
  for (const ModelRecord& record : ModelRecords(cof, keyword)) {
    if (record.number == 0) continue;
    const std::size_t digits = record.name.find_last_not_of("0123456789", record.name.rfind('.') - 1) + 1;
    chance.numbers.push_back(std::atoi(record.name.c_str() + digits));
  }
  return chance;
}

ModelResult ModelDivide(const ModelDivision& division, const ModelChance& chance) {
  ModelResult result;
  const bool scrambled = !division.keyword.empty();
  const int total = division.count < 1 ? 2 : division.count;
  const std::string table = TableFor(division.keyword, chance.keyBlock);
  int recordCursor = 0;
  int bodyCursor = 0;
  const auto record = [&](std::uint32_t number, std::uint32_t value, std::string name) {
    name.resize(300);
    result.cof += ModelScramble(BigEndian(number), division.keyword, table, 0, recordCursor);
    result.cof += ModelScramble(BigEndian(value), division.keyword, table, 4, recordCursor);
    result.cof += ModelScramble(name, division.keyword, table, 8, recordCursor);
  };
  result.cof = std::string(1, scrambled ? '\1' : '\0') + chance.keyBlock;
  record(0, static_cast<std::uint32_t>(total), division.sourceName);
  const std::size_t nominal = division.source.size() / static_cast<std::size_t>(total);
  int ordinal = 0;
  for (const int number : chance.numbers) {
    const std::size_t from = nominal * static_cast<std::size_t>(ordinal);
    ++ordinal;
    const std::string bytes = division.source.substr(from, ordinal == total ? std::string::npos : nominal);
    const std::string name = division.baseName + std::to_string(number) + ".div";
    result.pieces.emplace_back(name, ModelScramble(bytes, division.keyword, table, 0, bodyCursor));
    record(static_cast<std::uint32_t>(ordinal), static_cast<std::uint32_t>(bytes.size()), name);
  }
  return result;
}
