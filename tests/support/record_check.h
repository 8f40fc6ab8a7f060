// What holds for every record, asked of each with one line:
//
//   TEST(TimedRowRecord, LiesAsTold) { RecordCheck<TimedRow>(); }
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "services/record.h"

// One field as it lies in the bytes: a number, or a run of bytes. `text` is the room
// of a text's array, 0 for anything else.
struct RecordSpot {
  int offset;
  int size;
  bool number;
  bool flag;  // a bool, which knows 0 and 1 only
  int text;
};

// Lists the fields of a record.
class RecordSpots : public RecordIo<RecordSpots> {
 public:
  int Position() const { return position_; }
  void MoveTo(int position) { position_ = position; }
  template <class T>
  void Number(const T&, int width, RecordOrder) {
    Add({position_, width, true, std::is_same_v<T, bool>, 0});
  }
  void Block(const void*, int size, int unit) {
    const int each = unit == 1 ? size : unit;
    for (int done = 0; done < size; done += each) Add({position_, each, unit != 1, false, 0});
  }
  void Chars(const char*, int width, int room) { Add({position_, width, false, false, room}); }

  std::vector<RecordSpot> spots;

 private:
  void Add(const RecordSpot& spot) {
    spots.push_back(spot);
    position_ += spot.size;
  }
  int position_ = 0;
};

template <class T>
std::vector<RecordSpot> SpotsOf(T& record) {
  RecordSpots io;
  io.Record(record);
  return io.spots;
}

// The bytes of a record; those that no field owns are 0.
template <class T>
std::string RecordBytes(const T& record) {
  std::string bytes(static_cast<std::size_t>(RecordSize<T>()), '\0');
  RecordPut(record, bytes.data(), RecordSize<T>());
  return bytes;
}

// The same of a table, one record behind the other.
template <class T, std::size_t N>
std::string RecordBytes(const T (&table)[N]) {
  std::string bytes;
  for (const T& record : table) bytes += RecordBytes(record);
  return bytes;
}

// Gives a record, or each record of a table, the values of bytes.
template <class T>
void RecordSet(T& record, const std::string& bytes) {
  if constexpr (std::is_array_v<T>) {
    const std::size_t size = bytes.size() / std::extent_v<T>;
    for (std::size_t i = 0; i < std::extent_v<T>; ++i) RecordSet(record[i], bytes.substr(size * i, size));
  } else {
    EXPECT_EQ(bytes.size(), static_cast<std::size_t>(RecordSize<T>()));
    EXPECT_TRUE(RecordTake(record, bytes.data(), static_cast<int>(bytes.size())));
  }
}
// All bytes of it the same.
template <class T>
void RecordFill(T& record, char byte) {
  if constexpr (std::is_array_v<T>) {
    for (auto& one : record) RecordFill(one, byte);
  } else {
    RecordSet(record, std::string(static_cast<std::size_t>(RecordSize<T>()), byte));
  }
}

// Bytes that differ from those around them; never 0.
std::string RecordPattern(int size, unsigned seed);
// Bytes without any order, the same for the same seed.
std::string RecordNoise(int size, unsigned seed);
// What the fields make of bytes: flags become 1, a text loses the byte that its
// terminator needs, and what no field owns is 0.
std::string RecordTidied(const std::vector<RecordSpot>& spots, const std::string& bytes);
// The bytes that a record has whose reading ended at `cut`: `after` up to there, but
// for a number that was cut, and `before` from there on.
std::string RecordCut(const std::vector<RecordSpot>& spots, const std::string& before,
                      const std::string& after, int cut);
// The cuts to be tried: all of them, of a very long record those near its fields' ends.
std::vector<int> RecordCuts(const std::vector<RecordSpot>& spots, int size);
// Fields and bytes of a record, a line for each field: "   4  2  1f00".
std::string RecordText(const std::vector<RecordSpot>& spots, const std::string& bytes);

// Every field keeps every byte; bytes cut anywhere leave the fields before the cut in
// place and those behind it untouched; no bytes do harm.
template <class T>
void RecordCheck() {
  constexpr int kSize = RecordSize<T>();
  const auto record = std::make_unique<T>();
  const std::vector<RecordSpot> spots = SpotsOf(*record);
  const std::string before = RecordTidied(spots, RecordPattern(kSize, 1));
  const std::string after = RecordTidied(spots, RecordPattern(kSize, 2));

  ASSERT_TRUE(RecordTake(*record, before.data(), kSize));
  ASSERT_EQ(RecordBytes(*record), before) << RecordText(spots, RecordBytes(*record)) << "instead of\n"
                                          << RecordText(spots, before);
  for (const int cut : RecordCuts(spots, kSize)) {
    RecordTake(*record, before.data(), kSize);
    // A copy of its own size, so that reading past the cut is seen.
    const auto bytes = std::make_unique<char[]>(static_cast<std::size_t>(cut));
    std::memcpy(bytes.get(), after.data(), static_cast<std::size_t>(cut));
    ASSERT_EQ(RecordTake(*record, bytes.get(), cut), cut == kSize) << cut;
    ASSERT_EQ(RecordBytes(*record), RecordCut(spots, before, after, cut)) << "cut at " << cut;
  }
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const std::string noise = RecordNoise(kSize, seed);
    ASSERT_TRUE(RecordTake(*record, noise.data(), kSize));
    ASSERT_EQ(RecordBytes(*record), RecordTidied(spots, noise)) << "noise " << seed;
  }
}
