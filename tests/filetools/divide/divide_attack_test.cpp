// Joining files under attack.
#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <random>
#include <set>

#include "filetools/divide/cof_record.h"
#include "filetools/divide/div_key_block.h"
#include "tests/support/byte_order.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

// Thousands of joining files with a few bytes changed, each restored. `keyword`
// empty: the changes reach counts, sizes and names as they are.
class AttackTest : public DivideTest {
 protected:
  void Attack(const std::string& keyword, int rounds, std::uint32_t seed) {
    ASSERT_EQ(Divide(Simple(12, 1, keyword)), 0);
    const std::string cof = FileBytes(kCof);
    const int handle = open(PosixPath(kCof).c_str(), O_RDWR);
    ASSERT_GE(handle, 0);
    std::mt19937 random(seed);
    std::set<int> seen;
    const int files = DiagnosticsLive().files;
    SetKeyword(keyword);
    // Deep enough that no name made of a few changed bytes leads out of it.
    MakeFolder("C:\\mirrell\\1\\2\\3\\4\\5\\6\\7\\8");
    Set(FileDivide.storeDir, sizeof FileDivide.storeDir, "1\\2\\3\\4\\5\\6\\7\\8");
    for (int round = 0; round < rounds; ++round) {
      off_t at[4];
      const int changes = 1 + static_cast<int>(random() % 4);
      for (int i = 0; i < changes; ++i) {
        // Mostly the numbers and names of a record, now and then anything.
        const off_t record = 101 + 308 * static_cast<off_t>(random() % 2);
        at[i] = random() % 4 == 0 ? static_cast<off_t>(random() % cof.size())
                                  : record + static_cast<off_t>(random() % 20);
        const char byte = static_cast<char>(random() % 3 == 0 ? 0xFF * (random() % 2) : random());
        ASSERT_EQ(pwrite(handle, &byte, 1, at[i]), 1);
      }
      const int status = RunSteps(true, "pieces\\part0.cof");
      seen.insert(status);
      ASSERT_TRUE(status == 0 || status == -1 || status == -11 || status == -101) << status;
      ASSERT_EQ(DiagnosticsLive().files, files);
      ASSERT_LT(TextLength(FileDivide.baseName, sizeof FileDivide.baseName), sizeof FileDivide.baseName);
      for (int i = 0; i < changes; ++i)
        ASSERT_EQ(pwrite(handle, &cof[static_cast<std::size_t>(at[i])], 1, at[i]), 1);
    }
    close(handle);
    EXPECT_GE(seen.size(), 3U);  // so that the changes reach more than one way to fail
  }
};

TEST_F(AttackTest, TenThousandMutatedPlainJoiningFilesAreHarmless) {
  Attack("", 10000, 1);
}

TEST_F(AttackTest, TenThousandMutatedScrambledJoiningFilesAreHarmless) {
  Attack("abcde", 10000, 2);
}

// Flag, key block and one record, all of them anything, read a hundred thousand
// times: what comes is what the model says, and the name always ends.
TEST_F(AttackTest, AHundredThousandMutatedRecordsReadAsTheModelSays) {
  PutFile("C:\\mirrell\\r", std::string(308, '\0'));
  const int handle = open(PosixPath("C:\\mirrell\\r").c_str(), O_RDWR);
  const int file = FileOpen("C:\\mirrell\\r", OpenMode::Read);
  ASSERT_GE(handle, 0);
  ASSERT_GE(file, 0);
  std::mt19937 random(3);
  std::string bytes(408, '\0');
  SetKeyword("abcdefg");
  for (int round = 0; round < 100000; ++round) {
    for (int i = 0; i < 8; ++i) bytes[random() % bytes.size()] = static_cast<char>(random());
    std::memcpy(FileDivide.keyBlock, bytes.data(), 100);
    FileDivide.encryptFlag = static_cast<std::uint8_t>(random() % 2);
    FileDivide.recordTableCursor = static_cast<std::int32_t>(random() % 160);
    int cursor = FileDivide.recordTableCursor;
    DivLoadKeyBlock();
    const std::string raw = bytes.substr(100);
    ASSERT_EQ(pwrite(handle, raw.data(), 308, 0), 308);
    ASSERT_EQ(lseek(file, 0, SEEK_SET), 0);
    CofRecord record;
    ASSERT_TRUE(DivReadRecord(file, record));
    const std::string table = FileDivide.encryptFlag == 0 ? "" : ModelTable(bytes);
    const std::string number = ModelScramble(raw.substr(0, 4), "abcdefg", table, 0, cursor, true);
    const std::string value = ModelScramble(raw.substr(4, 4), "abcdefg", table, 4, cursor, true);
    const std::string name = ModelScramble(raw.substr(8), "abcdefg", table, 8, cursor, true);
    ASSERT_EQ(static_cast<std::uint32_t>(record.number), GetBE32(number.data()));
    ASSERT_EQ(static_cast<std::uint32_t>(record.value), GetBE32(value.data()));
    ASSERT_EQ(std::memcmp(record.name, name.data(), 299), 0);
    ASSERT_EQ(record.name[299], '\0');
    ASSERT_EQ(FileDivide.recordTableCursor, cursor);
  }
  FileClose(file);
  close(handle);
}

}  // namespace
