// What a division must leave, worked out byte by byte from the tables of the
// format.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Lengths of the runs of the key block, random and data by turns.
inline constexpr int kModelRuns[] = {7, 7, 7, 7, 6, 7, 5, 7, 4, 7, 3, 7, 2, 7, 3, 7, 3};
inline constexpr int kModelRunCount = 17;

struct ModelDivision {
  std::string source;  // the bytes
  std::string sourceName;
  std::string baseName;
  int count = 0;           // as typed
  std::string keyword;     // empty: not scrambled
  std::uint32_t seed = 0;  // of the random numbers, where they are known
};

// What chance brings to a division.
struct ModelChance {
  std::string keyBlock;      // all 100 bytes
  std::vector<int> numbers;  // in the names of the pieces that are made, in their order
};

struct ModelResult {
  std::string cof;
  std::vector<std::pair<std::string, std::string>> pieces;  // name and bytes, in order
};

// With fewer numbers than pieces the division ends behind the last one.
ModelResult ModelDivide(const ModelDivision& division, const ModelChance& chance);

struct ModelRecord {
  std::uint32_t number;
  std::uint32_t value;
  std::string name;
};

// The whole records of a joining file, the head first.
std::vector<ModelRecord> ModelRecords(const std::string& cof, const std::string& keyword);

// The chance that a joining file tells of.
ModelChance ModelChanceOf(const std::string& cof, const std::string& keyword);

// The table that a key block of 96 bytes or more stands for.
std::string ModelTable(const std::string& keyBlock);

// One field or piece, byte by byte. `table` empty: as it is.
std::string ModelScramble(const std::string& in, const std::string& keyword, const std::string& table,
                          int keyPos, int& cursor, bool back = false);
