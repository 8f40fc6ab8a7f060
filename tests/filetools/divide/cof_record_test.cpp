// The records of a joining file, good ones and absurd ones.
#include "filetools/divide/cof_record.h"

#include "tests/filetools/divide/divide_fixture.h"
#include "tests/support/record_check.h"

namespace {

TEST(CofRecordRecord, LiesAsTold) {
  RecordCheck<FileDivideState>();
  EXPECT_EQ(RecordOffset<&FileDivideState::keyBlock>(), 1);
  RecordCheck<CofRecord>();
  EXPECT_EQ(RecordOffset<&CofRecord::value>(), 4);
  EXPECT_EQ(RecordOffset<&CofRecord::name>(), 8);
}

TEST_F(DivideTest, ARecordTakesTheNameWithoutItsFolder) {
  const int file = FileCreate("C:\\mirrell\\r");
  EXPECT_TRUE(DivWriteRecord(file, 3, -2, "C:\\表\\名前.div"));
  FileClose(file);
  const std::string bytes = FileBytes("C:\\mirrell\\r");
  ASSERT_EQ(bytes.size(), 308U);
  EXPECT_EQ(bytes.substr(0, 8), std::string("\0\0\0\3\xFF\xFF\xFF\xFE", 8));
  EXPECT_EQ(bytes.substr(8), "名前.div" + std::string(292, '\0'));
}

TEST_F(DivideTest, ANameWithoutAnEndIsCut) {
  PutFile("C:\\mirrell\\r", std::string(8, '\0') + std::string(300, 'x') + "yyyy");
  const int file = FileOpen("C:\\mirrell\\r", OpenMode::Read);
  CofRecord record;
  EXPECT_TRUE(DivReadRecord(file, record));
  EXPECT_EQ(std::string(record.name), std::string(299, 'x'));
  EXPECT_FALSE(DivReadRecord(file, record)) << "four bytes are no record";
  EXPECT_EQ(std::string(record.name), std::string(299, 'x')) << "and change nothing";
  FileClose(file);
}

// A joining file in the open, of any numbers and names.
std::string Record(std::uint32_t number, std::uint32_t value, std::string name) {
  std::string bytes;
  for (const std::uint32_t field : {number, value}) {
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(field >> shift);
  }
  name.resize(300, '\0');
  return bytes + name;
}
std::string Head() {
  return std::string(101, '\0');
}

TEST_F(DivideTest, ANegativeOrEmptyCountEndsAtOnceWithAnEmptyFile) {
  for (const std::uint32_t count : {0U, 0x80000000U, 0xFFFFFFFFU}) {
    PutFile(kCof, Head() + Record(0, count, "t"));
    EXPECT_EQ(Restore(), 0);
    EXPECT_TRUE(FileThere("C:\\mirrell\\restored\\t"));
  }
}

TEST_F(DivideTest, AHugeCountFailsAtTheFirstRecordThatIsNotThere) {
  PutFile("C:\\mirrell\\pieces\\p", "abc");
  PutFile(kCof, Head() + Record(0, 0x7FFFFFFF, "t") + Record(1, 3, "p"));
  EXPECT_EQ(Restore(), -11);
  EXPECT_EQ(Target("t"), "abc");
}

TEST_F(DivideTest, APieceSizeThatIsNegativeOrHugeFails) {
  PutFile("C:\\mirrell\\pieces\\p", "abc");
  for (const std::uint32_t size : {0x80000000U, 0xFFFFFFFFU}) {
    PutFile(kCof, Head() + Record(0, 1, "t") + Record(1, size, "p"));
    EXPECT_EQ(Restore(), -11);
    EXPECT_EQ(Target("t"), "");
  }
  PutFile(kCof, Head() + Record(0, 1, "t") + Record(1, 0x7FFFFFFF, "p"));
  EXPECT_EQ(Restore(), -11);
}

TEST_F(DivideTest, LongNamesStayInsideTheirBuffers) {
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, std::string(299, 'd'));
  SetKeyword("");
  PutFile(kCof, Head() + Record(0, 1, std::string(300, 'x')) + Record(1, 0, std::string(300, 'y')));
  EXPECT_EQ(RunSteps(true), -101);
  PutFile(kCof, Head() + Record(0, 1, "t") + Record(1, 0, std::string(300, 'y')));
  EXPECT_EQ(Restore(), -1);
  EXPECT_EQ(std::string(FileDivide.baseName).size(), 299U);
  Prepare(Simple(10, 2));
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, std::string(299, 'd'));
  Set(FileDivide.baseName, sizeof FileDivide.baseName, std::string(299, 'b'));
  EXPECT_EQ(RunSteps(false), -100);
}

}  // namespace
