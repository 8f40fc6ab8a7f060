// The copy that is carried out, and its mark.
#include "schedule/model/scl_exec.h"

#include "schedule/model/scl_file.h"
#include "tests/schedule/schedule_fixture.h"

namespace {

class SclExecTest : public SclModelTest {
 protected:
  static const SclItemRec& Copied(int item) { return Schedule.SclExecTable.items[item]; }
};

TEST_F(SclExecTest, TheCopyHasHeadRowsAndAll1000Items) {
  Items({3, 4});
  TextCopy(SclTitle(), kSclTitleSize, "題");
  SclItem(999).hours = 7;
  SclExecRefresh();
  EXPECT_EQ(Schedule.SclExecTable.count, 2);
  EXPECT_EQ(Shown(Schedule.SclExecTable.start), "26/10/22 8");
  EXPECT_EQ(Schedule.SclExecTable.rows[7], (SclWorkDayRow{10, 8, 18}));
  EXPECT_STREQ(Schedule.SclExecTable.title, "題");
  EXPECT_EQ(Copied(1), SclItem(1));
  EXPECT_EQ(Copied(999).hours, 7U);
}

TEST_F(SclExecTest, TheAlarmFlagWantsAnItemOfTheCountWithHoursAndAlarm) {
  Items({0, 4});
  SclItem(0).alarmOn = 1;
  SclItem(2).alarmOn = 1;
  SclItem(2).hours = 5;
  SclExecRefresh();
  EXPECT_FALSE(Schedule.SclAlarmFlag) << "no hours, no alarm, and behind the count";
  SclItem(1).alarmOn = 1;
  SclExecRefresh();
  EXPECT_TRUE(Schedule.SclAlarmFlag);
}

TEST_F(SclExecTest, StartsAtTheEndOfTheirDayMoveInTheCopyByTheCopysRows) {
  Row(1, 9, 9);
  Items({10, 0, 5});
  SclItem(0).start = {26, 10, 22, 18};
  SclItem(1).start = {26, 10, 22, 18};
  SclExecRefresh();
  EXPECT_EQ(Shown(Copied(0).start), "26/10/23 9");
  EXPECT_EQ(Shown(Copied(1).start), "26/10/22 18") << "a line without hours";
  EXPECT_EQ(Start(0), "26/10/22 18");
}

TEST_F(SclExecTest, AChosenScheduleHasNothingDoneInItsCopy) {
  Items({3, 4});
  SclItem(0).doneState = 1;
  SclItem(999).doneState = 1;
  SclItem(0).alarmOn = 1;
  SclCurrentFileSet("C:\\a.GPI");
  SclExecChoose();
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Chosen);
  EXPECT_TRUE(Schedule.SclExecActive);
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\a.GPI");
  EXPECT_EQ(Schedule.SclDirtyFlags, 3U);
  EXPECT_EQ(Copied(0).doneState, 0);
  EXPECT_EQ(Copied(999).doneState, 0);
  EXPECT_EQ(SclItem(0).doneState, 1);
  EXPECT_TRUE(Schedule.SclAlarmFlag);
}

TEST_F(SclExecTest, TakenBackNothingIsCarriedOut) {
  Items({3});
  SclItem(0).alarmOn = 1;
  SclExecChoose();
  SclDirtyClear(3);
  SclExecUnchoose();
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
  EXPECT_FALSE(Schedule.SclExecActive);
  EXPECT_STREQ(Schedule.SclExecFile, "");
  EXPECT_FALSE(Schedule.SclAlarmFlag);
  EXPECT_EQ(Schedule.SclDirtyFlags, 3U);
}

TEST_F(SclExecTest, ASaveMakesAChosenScheduleTheExecutingOneOfThatName) {
  SclExecChoose();
  SclCurrentFileSet("C:\\new.GPI");
  SclExecSaved();
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\new.GPI");
  SclCurrentFileSet("C:\\copy.GPI");
  SclExecSaved();
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\new.GPI") << "a later save under another name";
}

TEST_F(SclExecTest, ALoadedFileIsMarkedWhenItIsTheExecutingOne) {
  SclExecChoose();
  SclCurrentFileSet("C:\\new.GPI");
  SclExecSaved();
  SclExecLoaded();
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  SclCurrentFileSet("C:\\other.GPI");
  SclExecLoaded();
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
  SclExecUnchoose();
  Schedule.SclExecMark = SclMark::Chosen;
  SclExecLoaded();
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Chosen) << "nothing is carried out";
}

TEST_F(SclExecTest, AScheduleIsLoadedAsTheExecutingOne) {
  Items({3});
  SclItem(0).alarmOn = 1;
  SclItem(0).doneState = 1;
  ASSERT_EQ(SclSaveFile("C:\\mirrell\\a.GPI"), 0);
  SclNewDefaults(26, 0, 0);
  ASSERT_EQ(SclExecLoad("C:\\mirrell\\a.GPI"), 0);
  EXPECT_TRUE(Schedule.SclExecActive);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\mirrell\\a.GPI");
  EXPECT_EQ(Copied(0).hours, 3U);
  EXPECT_EQ(Copied(0).doneState, 1) << "as the file has it";
  EXPECT_TRUE(Schedule.SclAlarmFlag);
}

TEST_F(SclExecTest, AScheduleThatCannotBeLoadedLeavesWhatIsCarriedOut) {
  Items({3});
  ASSERT_EQ(SclSaveFile("C:\\mirrell\\a.GPI"), 0);
  ASSERT_EQ(SclExecLoad("C:\\mirrell\\a.GPI"), 0);
  EXPECT_EQ(SclExecLoad("C:\\mirrell\\none.GPI"), -1);
  PutFile("C:\\mirrell\\bad.GPI", "SCL");
  EXPECT_EQ(SclExecLoad("C:\\mirrell\\bad.GPI"), -2);
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\mirrell\\a.GPI");
  EXPECT_EQ(Copied(0).hours, 3U);
}

TEST_F(SclExecTest, TheExecutingScheduleIsLoadedForEditing) {
  Items({3});
  ASSERT_EQ(SclSaveFile("C:\\mirrell\\a.GPI"), 0);
  ASSERT_EQ(SclExecLoad("C:\\mirrell\\a.GPI"), 0);
  SclNewDefaults(26, 0, 0);
  ASSERT_EQ(SclExecEdit(), 0);
  EXPECT_STREQ(Schedule.SclCurrentFile, "C:\\mirrell\\a.GPI");
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_EQ(SclItem(0).hours, 3U);
  RemoveFile("C:\\mirrell\\a.GPI");
  SclNewDefaults(26, 0, 0);
  EXPECT_EQ(SclExecEdit(), -1);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
}

}  // namespace
