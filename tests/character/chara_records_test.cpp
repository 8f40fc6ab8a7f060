#include "character/chara_records.h"

#include "tests/support/record_check.h"

TEST(CharaRecords, LieAsTold) {
  RecordCheck<CharaSetRecord>();
  RecordCheck<MainChara>();
  RecordCheck<ClockDesignRecord>();
}

TEST(CharaRecords, CharaSetHasItsFieldsInTheirPlaces) {
  EXPECT_EQ(RecordOffset<&CharaSetRecord::CharaNo>(), 0);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionA>(), 2);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionB>(), 22);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionC>(), 42);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionD>(), 50);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionE>(), 54);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionF>(), 64);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionG>(), 164);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionH>(), 264);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::MotionI>(), 304);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkRow>(), 324);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkUse>(), 344);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkStartX>(), 354);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkStartY>(), 374);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkStepX>(), 396);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkStepY>(), 436);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkPeriod>(), 476);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkCount>(), 496);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkFrames>(), 516);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::EndFrames>(), 566);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::EndWait>(), 616);
  EXPECT_EQ(RecordOffset<&CharaSetRecord::WalkStartPoint>(), 636);
}

// Its number is big-endian and keeps 16 bits; inside CharaSet the low byte is first.
TEST(CharaRecords, AMainCharacterHasBothOrders) {
  std::string bytes(740, '\0');
  bytes.replace(0, 8, std::string("\xFF\x01\x02\x03\x00\x00\x00\x04", 8));
  bytes.replace(64, 2, std::string("\x05\x06", 2));
  bytes.replace(64 + 396, 4, "\xFE\xFF\xFF\xFF");
  MainChara chara{};
  ASSERT_TRUE(RecordTake(chara, bytes.data(), 740));
  EXPECT_EQ(chara.charaNo, 0x0203);
  EXPECT_EQ(chara.menuFrame, 4);
  EXPECT_EQ(chara.charaSet.CharaNo, 0x0605);
  EXPECT_EQ(chara.charaSet.WalkStepX[0], -2);
  EXPECT_EQ(RecordOffset<&MainChara::blinkFrame>(), 8);
  EXPECT_EQ(RecordOffset<&MainChara::bored1Frames>(), 12);
  EXPECT_EQ(RecordOffset<&MainChara::bored2Frames>(), 32);
  EXPECT_EQ(RecordOffset<&MainChara::boredDelaySel>(), 52);
  EXPECT_EQ(RecordOffset<&MainChara::boredSpeedSel>(), 56);
  EXPECT_EQ(RecordOffset<&MainChara::boredRepeatSel>(), 60);
}

TEST(CharaRecords, AClockDesignHasItsFieldsInTheirPlaces) {
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::hand>(), 0);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::repeat>(), 1);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::strikeMode>(), 2);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::soundOn>(), 3);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::hourLength>(), 4);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::minuteLength>(), 6);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::centreX>(), 8);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::centreY>(), 10);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::handColour>(), 12);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::faceColour>(), 15);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::strikeDelay>(), 18);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::hourFigures>(), 32);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::sound>(), 124);
  EXPECT_EQ(RecordOffset<&ClockDesignRecord::name>(), 380);
}
