// mirrell_apli_list_file.ali, read and written.
#include "schedule/applications/application_list.h"

#include "platform/posix/faults.h"
#include "services/data_file.h"
#include "tests/support/byte_order.h"
#include "tests/support/records.h"

namespace {

class ApplicationListTest : public RecordsTest {
 protected:
  static std::string Number(std::uint32_t value) {
    char bytes[4];
    PutBE32(bytes, value);
    return std::string(bytes, sizeof bytes);
  }
  static std::string Path(std::string path) {
    path.resize(600);
    return path;
  }
  // Two entries and the executing schedule.
  static std::string List(std::uint32_t second, std::uint32_t selected) {
    return "Mirrell ApliCation List:" + Number(2) + Number(second) + Number(selected) +
           Path("C:\\a\\one.exe") + Path("C:\\b\\two.exe") + Path("C:\\b\\plan.scl");
  }

  const std::string file_ = InProgram("mirrell_apli_list_file.ali");
};

TEST_F(ApplicationListTest, AListIsReadAndWrittenByteForByte) {
  PutFile(file_, List(0, 1));
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_EQ(Applications.ApliCount, 2);
  EXPECT_EQ(Applications.ApliSelected, 1);
  EXPECT_STREQ(ApliPath(0), "C:\\a\\one.exe");
  EXPECT_STREQ(ApliPath(1), "C:\\b\\two.exe");
  EXPECT_STREQ(ApliPath(2), "");
  EXPECT_STREQ(Applications.ApliSchedule.path, "C:\\b\\plan.scl");
  RemoveFile(file_);
  ASSERT_EQ(ApliListSave(), 0);
  EXPECT_EQ(FileBytes(file_), List(0, 1));
}

// Entries are numbered from 1, so that of two the second is the last.
TEST_F(ApplicationListTest, TheLastEntryMayBeTheSelectedOneAndNoneBehindIt) {
  PutFile(file_, List(0, 2));
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(Applications.ApliSelected, 2);
  EXPECT_TRUE(ApliListHasSelected());
  PutFile(file_, List(0, 3));
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(Applications.ApliSelected, 0);
  EXPECT_FALSE(ApliListHasSelected());
}

TEST_F(ApplicationListTest, ASecondListIsReadAndOnlyItsCountWrittenAgain) {
  PutFile(file_, List(1, 2) + Path("C:\\c\\three.exe"));
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(Applications.ApliSecondCount, 1);
  ASSERT_NE(Applications.secondList, nullptr);
  EXPECT_STREQ(Applications.secondList[0].path, "C:\\c\\three.exe");
  ASSERT_EQ(ApliListSave(), 0);
  EXPECT_EQ(FileBytes(file_), List(1, 2));
}

TEST_F(ApplicationListTest, APathThatNamesNoDriveLiesBelowTheProgramFolder) {
  PutFile(file_, "Mirrell ApliCation List:" + Number(4) + Number(0) + Number(1) + Path("予定\\one.exe") +
                     Path("\\two.exe") + Path("") + Path("d:three.exe") + Path("予定\\a.GPI"));
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(ApliPath(0), InProgram("予定\\one.exe"));
  EXPECT_STREQ(ApliPath(1), "\\two.exe");
  EXPECT_STREQ(ApliPath(2), "");
  EXPECT_STREQ(ApliPath(3), "d:three.exe");
  EXPECT_EQ(Applications.ApliSchedule.path, InProgram("予定\\a.GPI"));
}

TEST_F(ApplicationListTest, APathThatFillsItsFieldStaysInside) {
  PutFile(file_, "Mirrell ApliCation List:" + Number(1) + Number(0) + Number(1) + std::string(600, 'x') +
                     std::string(600, 'y'));
  ASSERT_EQ(ApliListRead(), 0);
  EXPECT_EQ(ApliPath(0), InProgram(std::string(600, 'x')).substr(0, 599));
  EXPECT_EQ(Applications.ApliSchedule.path, InProgram(std::string(600, 'y')).substr(0, 599));
}

TEST_F(ApplicationListTest, AnotherMagicIsToldByTheStatusOnlyAndChangesNothing) {
  PutFile(file_, List(0, 2));
  ASSERT_EQ(ApliListRead(), 0);
  PutFile(file_, "M" + List(0, 1));
  EXPECT_EQ(ApliListRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_EQ(Applications.ApliSelected, 2);
  EXPECT_STREQ(ApliPath(1), "C:\\b\\two.exe");
}

TEST_F(ApplicationListTest, AReadThatFailsOnTheWayLeavesTheListAsItWas) {
  PutFile(file_, List(0, 1));
  ASSERT_EQ(ApliListRead(), 0);
  const std::string other = "Mirrell ApliCation List:" + Number(1) + Number(1) + Number(0) +
                            Path("C:\\x\\x.exe") + Path("C:\\x\\x.GPI") + Path("C:\\x\\y.exe");
  const auto stays = [&] {
    EXPECT_EQ(ApliListRead(), -2);
    EXPECT_EQ(Applications.ApliCount, 2);
    EXPECT_EQ(Applications.ApliSecondCount, 0);
    EXPECT_EQ(Applications.ApliSelected, 1);
    EXPECT_STREQ(ApliPath(0), "C:\\a\\one.exe");
    EXPECT_STREQ(ApliPath(1), "C:\\b\\two.exe");
    EXPECT_STREQ(Applications.ApliSchedule.path, "C:\\b\\plan.scl");
  };
  for (std::size_t size = 0; size < other.size(); size += 7) {
    PutFile(file_, other.substr(0, size));
    stays();
  }
  PutFile(file_, other);
  for (const int nth : {1, 2}) {
    FaultArm(FaultKind::Memory, nth);
    stays();
    EXPECT_TRUE(FaultWasMet()) << nth;
  }
  FaultClear();
  EXPECT_EQ(ApliListRead(), 0);
  EXPECT_STREQ(ApliPath(0), "C:\\x\\x.exe");
}

TEST_F(ApplicationListTest, AFileThatEndsEarlyGivesMinus2AndAMissingOneMinus1) {
  const std::string whole = List(0, 2);
  for (const std::size_t size : {std::size_t{0}, std::size_t{23}, std::size_t{24}, std::size_t{35},
                                 std::size_t{36}, whole.size() - 601, whole.size() - 1}) {
    PutFile(file_, whole.substr(0, size));
    EXPECT_EQ(ApliListRead(), -2) << size;
  }
  RemoveFile(file_);
  EXPECT_EQ(ApliListRead(), -1);
}

}  // namespace
