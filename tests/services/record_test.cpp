#include "services/record.h"

#include "platform/posix/faults.h"
#include "services/record_file.h"
#include "tests/support/desktop.h"
#include "tests/support/record_check.h"

namespace {

enum class Colour2 : std::uint8_t { Red = 0, Green = 7 };

struct Inner {
  std::int16_t x;
  std::uint8_t flags;
};

template <class Io>
constexpr void Fields(Io& io, Inner& inner) {
  io.LE16(inner.x);
  io.U8(inner.flags);
  io.At(4);
}

struct Whole {
  std::uint16_t pair[2];
  char text[3];
};

template <class Io>
constexpr void Fields(Io& io, Whole& whole) {
  io.LE16(whole.pair);
  io.Text(whole.text);
}

// offset  size  field
//      0     1  on
//      1     1  colour
//      4     2  low, signed
//      6     4  high, big-endian, signed
//     10     2  wide, big-endian
//     12  2x 3x1 bytes
//     18     5  name
//     23  2x 4  notes
//     31  3x 4  inner
//     43     2  spare
struct Sample {
  bool on;
  Colour2 colour;
  std::int16_t low;
  std::int32_t high;
  std::uint32_t wide;
  unsigned char bytes[2][3];
  char name[5];
  char notes[2][5];  // four bytes in the file
  Inner inner[3];
};

template <class Io>
constexpr void Fields(Io& io, Sample& sample) {
  io.U8(sample.on);
  io.U8(sample.colour);
  io.At(4);
  io.LE16(sample.low);
  io.BE32(sample.high);
  io.BE16(sample.wide);
  io.Bytes(sample.bytes);
  io.Text(sample.name);
  io.Text(sample.notes, 4);
  io.Record(sample.inner);
  io.At(45);
}
static_assert(RecordSize<Inner>() == 4);
static_assert(RecordSize<Sample>() == 45);
static_assert(RecordOffset<&Sample::on>() == 0);
static_assert(RecordOffset<&Sample::low>() == 4);
static_assert(RecordOffset<&Sample::high>() == 6);
static_assert(RecordOffset<&Sample::bytes>() == 12);
static_assert(RecordOffset<&Sample::notes>() == 23);

constexpr unsigned char kImage[45] = {
    2,    7,    0xAA, 0xAA,          // on, colour, two bytes of nobody
    0xFE, 0xFF,                      // -2
    0xFF, 0xFF, 0xFF, 0xFD,          // -3
    0x80, 0x01,                      // 32769
    1,    2,    3,    4,    5,   6,  // bytes
    'a',  'b',  'c',  'd',  'e',     // a name that fills its field
    'f',  'g',  'h',  'i',           // a note that fills its field
    'j',  0,    'k',  0,             // and one that does not
    0x00, 0x80, 9,    0xBB,          // -32768, flags, a byte of nobody
    1,    0,    8,    0xBB,          //
    2,    0,    7,    0xBB,          //
    0xCC, 0xCC,
};

Sample Taken() {
  Sample sample{};
  EXPECT_TRUE(RecordTake(sample, kImage, sizeof kImage));
  return sample;
}

}  // namespace

TEST(Record, TakesNumbersInTheirOrderAndWithTheirSign) {
  const Sample sample = Taken();
  EXPECT_TRUE(sample.on);
  EXPECT_EQ(sample.colour, Colour2::Green);
  EXPECT_EQ(sample.low, -2);
  EXPECT_EQ(sample.high, -3);
  EXPECT_EQ(sample.wide, 32769U);
  EXPECT_EQ(sample.bytes[1][0], 4);
  EXPECT_EQ(sample.inner[0].x, -32768);
  EXPECT_EQ(sample.inner[2].flags, 7);
}

TEST(Record, EndsTextsInsideTheirArrays) {
  const Sample sample = Taken();
  EXPECT_STREQ(sample.name, "abcd");
  EXPECT_STREQ(sample.notes[0], "fghi");
  EXPECT_STREQ(sample.notes[1], "j");
}

TEST(Record, PutsBackWhatItTookAndLeavesTheRest) {
  unsigned char image[sizeof kImage];
  std::memset(image, 0xEE, sizeof image);
  ASSERT_TRUE(RecordPut(Taken(), image, sizeof image));
  unsigned char wanted[sizeof kImage];
  std::memcpy(wanted, kImage, sizeof wanted);
  wanted[0] = 1;  // a flag is 1
  for (const int nobody : {2, 3, 34, 38, 42, 43, 44}) wanted[nobody] = 0xEE;
  wanted[22] = 0;  // the terminator of the name
  EXPECT_EQ(std::string(reinterpret_cast<char*>(image), sizeof image),
            std::string(reinterpret_cast<char*>(wanted), sizeof wanted));
}

TEST(Record, KeepsEveryFieldAtEveryCut) {
  RecordCheck<Sample>();
  RecordCheck<Inner>();
}

TEST(Record, LeavesACutNumberButKeepsTheBytesThatCame) {
  Sample sample{};
  sample.low = 5;
  EXPECT_FALSE(RecordTake(sample, kImage, 5));
  EXPECT_EQ(sample.low, 5);
  EXPECT_FALSE(RecordTake(sample, kImage, 20));
  EXPECT_EQ(sample.low, -2);
  EXPECT_STREQ(sample.name, "ab");
  EXPECT_STREQ(sample.notes[1], "");
}

TEST(Record, FailsForEverAfterTheFirstFieldThatDoesNotFit) {
  RecordReader io(kImage, 3);
  std::uint32_t four = 4;
  std::uint8_t one = 1;
  io.LE32(four);
  io.U8(one);
  io.At(0);
  io.U8(one);
  EXPECT_TRUE(io.Failed());
  EXPECT_EQ(four, 4U);
  EXPECT_EQ(one, 1);
}

TEST(Record, IsWholeWhenEveryByteBelongsToAField) {
  static_assert(!RecordIsWhole<Sample>());
  static_assert(!RecordIsWhole<Inner>());
  static_assert(RecordIsWhole<Whole>());
}

TEST(Record, DoesNotGoBack) {
  RecordReader io(kImage, 10);
  std::uint32_t four = 0;
  io.LE32(four);
  io.At(3);
  EXPECT_TRUE(io.Failed());
}

TEST(Record, WritesNothingPastTheEnd) {
  const auto room = std::make_unique<unsigned char[]>(22);
  EXPECT_FALSE(RecordPut(Taken(), room.get(), 22));
  EXPECT_EQ(room[11], 1);
  EXPECT_EQ(room[18], 0);  // the name does not fit
}

TEST(Record, IsShownFieldByField) {
  Sample sample = Taken();
  const std::string text = RecordText(SpotsOf(sample), RecordBytes(sample));
  EXPECT_EQ(text.substr(0, text.find('\n', 45)),
            "     0     1  01\n"
            "     1     1  07\n"
            "     4     2  feff");
}

// --- Files

using RecordFileTest = DesktopTest;

namespace {

std::string Image() {
  return std::string(reinterpret_cast<const char*>(kImage), sizeof kImage);
}

}  // namespace

TEST_F(RecordFileTest, ReadsOneRecordBehindTheOther) {
  ASSERT_TRUE(PutFile("a.bin", Image() + Image().substr(0, 12)));
  DataFile data;
  ASSERT_TRUE(DataOpenRead(data, "a.bin", OpenMode::Read));
  Sample sample{};
  EXPECT_TRUE(RecordRead(data, sample));
  EXPECT_EQ(sample.high, -3);
  sample = Sample{};
  EXPECT_FALSE(RecordRead(data, sample));
  EXPECT_TRUE(data.failed);
  EXPECT_EQ(sample.wide, 32769U);
  EXPECT_STREQ(sample.name, "");
  DataClose(data);
}

TEST_F(RecordFileTest, ReadsNothingFromAFileThatHasFailed) {
  ASSERT_TRUE(PutFile("a.bin", Image()));
  DataFile data;
  ASSERT_TRUE(DataOpenRead(data, "a.bin", OpenMode::Read));
  data.failed = true;
  Sample sample{};
  EXPECT_FALSE(RecordRead(data, sample));
  EXPECT_FALSE(RecordsRead(data, &sample, 1));
  EXPECT_FALSE(sample.on);
  DataClose(data);
}

TEST_F(RecordFileTest, WritesARecordInOneTransfer) {
  DataFile data;
  ASSERT_TRUE(DataReplace(data, "a.bin"));
  EXPECT_TRUE(RecordWrite(data, Taken()));
  FaultArm(FaultKind::Write, 1);
  EXPECT_FALSE(RecordWrite(data, Taken()));
  FaultClear();
  EXPECT_FALSE(RecordWrite(data, Taken()));
  DataClose(data);
  // The write that failed is one byte short, and no other follows it.
  EXPECT_EQ(FileBytes("a.bin").size(), 45U + 44U);
}

// A batch holds 1456 samples of 45 bytes, so that 2914 take three.
TEST_F(RecordFileTest, MovesTablesInBatches) {
  static_assert(kRecordBatch<Sample> == 1456);
  std::vector<Sample> table(2914, Taken());
  for (std::size_t i = 0; i < table.size(); ++i) table[i].high = static_cast<std::int32_t>(i);
  DataFile data;
  ASSERT_TRUE(DataReplace(data, "a.bin"));
  EXPECT_TRUE(RecordsWrite(data, table.data(), 2914));
  DataClose(data);
  const std::string bytes = FileBytes("a.bin");
  ASSERT_EQ(bytes.size(), 2914U * 45U);

  for (Sample& sample : table) sample = Sample{};
  ASSERT_TRUE(DataOpenRead(data, "a.bin", OpenMode::Read));
  EXPECT_TRUE(RecordsRead(data, table.data(), 2914));
  DataClose(data);
  EXPECT_EQ(table[0].high, 0);
  EXPECT_EQ(table[2913].high, 2913);
  EXPECT_STREQ(table[1456].name, "abcd");
}

namespace {

// 3000 samples of 45 bytes and 5 of their own behind each hundredth: 135150 bytes.
bool StreamMany(DataFile& data) {
  RecordStream stream(data);
  for (int i = 1; i <= 3000; ++i) {
    stream.Put(Taken());
    if (i % 100 == 0) stream.PutBytes("12345", 5);
  }
  return stream.Finish();
}

}  // namespace

TEST_F(RecordFileTest, AStreamWritesWholePiecesOfWhatIsPutIntoIt) {
  std::string expected;
  for (int i = 1; i <= 3000; ++i) expected += RecordBytes(Taken()) + (i % 100 == 0 ? "12345" : "");
  DataFile data;
  ASSERT_TRUE(DataReplace(data, "a.bin"));
  FaultClear();
  EXPECT_TRUE(StreamMany(data));
  EXPECT_EQ(FaultCalls(FaultKind::Write), 3);  // 65536, 65536 and 4078 bytes
  DataClose(data);
  EXPECT_TRUE(FileBytes("a.bin") == expected);
}

TEST_F(RecordFileTest, AStreamWritesNothingBehindAWriteThatFailed) {
  for (int nth = 1; nth <= 3; ++nth) {
    DataFile data;
    ASSERT_TRUE(DataReplace(data, "a.bin"));
    FaultArm(FaultKind::Write, nth);
    EXPECT_FALSE(StreamMany(data)) << nth;
    EXPECT_EQ(FaultCalls(FaultKind::Write), nth);
    FaultClear();
    DataClose(data);
    // The write that failed is one byte short.
    EXPECT_EQ(FileBytes("a.bin").size(), (nth < 3 ? 65536U * nth : 135150U) - 1U);
  }
}

TEST_F(RecordFileTest, KeepsTheRecordsBeforeACut) {
  ASSERT_TRUE(PutFile("a.bin", Image() + Image() + Image().substr(0, 11)));
  Sample table[4] = {};
  for (Sample& sample : table) sample.wide = 9;
  DataFile data;
  ASSERT_TRUE(DataOpenRead(data, "a.bin", OpenMode::Read));
  EXPECT_FALSE(RecordsRead(data, table));
  DataClose(data);
  EXPECT_EQ(table[1].wide, 32769U);
  EXPECT_EQ(table[2].high, -3);
  EXPECT_EQ(table[2].wide, 9U);
  EXPECT_EQ(table[3].high, 0);
}
