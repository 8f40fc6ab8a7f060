// What a division must leave, worked out byte by byte from the tables of the
// format and the same random numbers.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

struct ModelDivision {
  std::string source;  // the bytes
  std::string sourceName;
  std::string baseName;
  int count = 0;           // as typed
  std::string keyword;     // empty: not scrambled
  std::uint32_t seed = 0;  // of the random numbers
};

struct ModelResult {
  std::string cof;
  std::vector<std::pair<std::string, std::string>> pieces;  // name and bytes, in order
};

ModelResult ModelDivide(const ModelDivision& division);

// The table that a key block of 96 bytes or more stands for.
std::string ModelTable(const std::string& keyBlock);

// One field or piece, byte by byte. `table` empty: as it is.
std::string ModelScramble(const std::string& in, const std::string& keyword, const std::string& table,
                          int keyPos, int& cursor, bool back = false);
