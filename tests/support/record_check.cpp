#include "tests/support/record_check.h"

#include <random>

std::string RecordPattern(int size, unsigned seed) {
  std::string bytes;
  for (unsigned i = 0; i < static_cast<unsigned>(size); ++i) {
    bytes += static_cast<char>(1 + (i * 7 + seed * 83) % 251);
  }
  return bytes;
}

std::string RecordNoise(int size, unsigned seed) {
  std::mt19937 generator(seed);
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(generator());
  return bytes;
}

namespace {

void TidyFlag(std::string& tidied, const RecordSpot& spot, const std::string& bytes) {
  const auto at = static_cast<std::size_t>(spot.offset);
  const auto size = static_cast<std::size_t>(spot.size);
  const bool set = bytes.find_first_not_of('\0', at) < at + size;
  // Low byte first; no record has a flag that begins with its high byte.
  tidied.replace(at, size, std::string(set ? "\1" : "\0", 1) + std::string(size - 1, '\0'));
}

}  // namespace

std::string RecordTidied(const std::vector<RecordSpot>& spots, const std::string& bytes) {
  std::string tidied(bytes.size(), '\0');
  for (const RecordSpot& spot : spots) {
    const auto at = static_cast<std::size_t>(spot.offset);
    const auto size = static_cast<std::size_t>(spot.size);
    tidied.replace(at, size, bytes, at, size);
    if (spot.flag) TidyFlag(tidied, spot, bytes);
    if (spot.text == spot.size) tidied[at + size - 1] = '\0';
  }
  return tidied;
}

std::string RecordCut(const std::vector<RecordSpot>& spots, const std::string& before,
                      const std::string& after, int cut) {
  int from = cut;
  for (const RecordSpot& spot : spots) {
    if (spot.number && spot.offset < cut && spot.offset + spot.size > cut) from = spot.offset;
  }
  return after.substr(0, static_cast<std::size_t>(from)) + before.substr(static_cast<std::size_t>(from));
}

std::vector<int> RecordCuts(const std::vector<RecordSpot>& spots, int size) {
  constexpr int kAllUpTo = 6000;
  std::vector<int> cuts;
  for (int cut = 0; size <= kAllUpTo && cut <= size; ++cut) cuts.push_back(cut);
  if (!cuts.empty()) return cuts;
  for (const RecordSpot& spot : spots) {
    cuts.push_back(spot.offset);
    if (spot.size > 1) cuts.push_back(spot.offset + spot.size / 2);
    if (spot.size > 2) cuts.push_back(spot.offset + spot.size - 1);
  }
  cuts.push_back(size);
  return cuts;
}

std::string RecordText(const std::vector<RecordSpot>& spots, const std::string& bytes) {
  constexpr int kBytesShown = 32;
  std::string text;
  char part[32];
  for (const RecordSpot& spot : spots) {
    std::snprintf(part, sizeof part, "%6d %5d  ", spot.offset, spot.size);
    text += part;
    for (int i = 0; i < std::min(spot.size, kBytesShown); ++i) {
      std::snprintf(part, sizeof part, "%02x",
                    static_cast<unsigned char>(bytes[static_cast<std::size_t>(spot.offset + i)]));
      text += part;
    }
    text += spot.size > kBytesShown ? "...\n" : "\n";
  }
  return text;
}
