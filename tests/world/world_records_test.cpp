#include "world/world_records.h"

#include "tests/support/record_check.h"

TEST(WorldRecords, LieAsTold) {
  RecordCheck<EdtcHead>();
  RecordCheck<EdtcFigureRec>();
  RecordCheck<EdtcFigureId>();
  RecordCheck<EdtcCharRec>();
  EXPECT_EQ(RecordOffset<&EdtcHead::charaCount>(), 4);
  EXPECT_EQ(RecordOffset<&EdtcHead::figureCount>(), 8);
  EXPECT_EQ(RecordOffset<&EdtcFigureRec::used>(), 0);
  EXPECT_EQ(RecordOffset<&EdtcFigureRec::name>(), 1);
  EXPECT_EQ(RecordOffset<&EdtcCharRec::firstKept>(), 0);
  EXPECT_EQ(RecordOffset<&EdtcCharRec::name>(), 1);
  EXPECT_EQ(RecordOffset<&EdtcCharRec::secondKept>(), 76);
  EXPECT_EQ(RecordOffset<&EdtcCharRec::frameNames>(), 77);
}

// The low 16 bits of each of the twenty numbers from 1440 on.
TEST(WorldRecords, TakesFigureIdsLowByteFirst) {
  std::string bytes(1520, '\0');
  bytes.replace(1440, 8, std::string("\x34\x12\x07\x00\x01\x00\x00\x00", 8));
  EdtcCharRec chara{};
  ASSERT_TRUE(RecordTake(chara, bytes.data(), 1520));
  EXPECT_EQ(chara.figures[0].id, 0x1234);
  EXPECT_EQ(chara.figures[1].id, 1);
}
