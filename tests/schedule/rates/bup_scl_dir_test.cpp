#include "schedule/rates/bup_scl_dir.h"

#include "services/data_file.h"
#include "services/text.h"
#include "tests/support/failing_writes.h"
#include "tests/support/program.h"
#include "tests/support/record_check.h"

namespace {

class BupSclDirTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
  }
};

const std::string kFile = "C:\\mirrell\\BupSclDir.bsd";

TEST(BupSclDirRecord, LiesAsTold) {
  RecordCheck<BupSclDir>();
}

TEST_F(BupSclDirTest, TwoPathsOf300BytesWithoutAMagic) {
  BupSclDir dirs{};
  TextCopy(dirs.paths[0], sizeof dirs.paths[0], "C:\\元");
  TextCopy(dirs.paths[1], sizeof dirs.paths[1], "D:\\控え");
  EXPECT_EQ(BupSclDirWrite(dirs), 0);
  const std::string bytes = FileBytes(kFile);
  ASSERT_EQ(bytes.size(), 600u);
  EXPECT_EQ(bytes.substr(0, 6), std::string("C:\\元\0", 6));
  EXPECT_EQ(bytes.substr(300, 8), std::string("D:\\控え\0", 8));
  BupSclDir read{};
  EXPECT_EQ(BupSclDirRead(read), 0);
  EXPECT_STREQ(read.paths[0], dirs.paths[0]);
  EXPECT_STREQ(read.paths[1], dirs.paths[1]);
}

TEST_F(BupSclDirTest, AFileThatIsNotThere) {
  BupSclDir dirs{};
  EXPECT_EQ(BupSclDirRead(dirs), -3);
}

TEST_F(BupSclDirTest, EveryShortFileIsAFailure) {
  for (std::size_t size = 0; size < 600; ++size) {
    PutFile(kFile, std::string(size, 'p'));
    BupSclDir dirs{};
    EXPECT_EQ(BupSclDirRead(dirs), -2) << size;
  }
}

TEST_F(BupSclDirTest, EachWriteThatFails) {
  EXPECT_EQ(FailingWrites([] { return BupSclDirWrite({}); }, -2), 1);
}

}  // namespace
