#include "filetools/scope/scope_bars.h"

#include <bit>

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_tables.h"
#include "tests/support/byte_order.h"
#include "services/work_blocks.h"
#include "tests/filetools/scope/scope_fixture.h"

namespace {

class ScopeBarsTest : public ScopeFixture {
 protected:
  static ScopeBarRow Sized(float size) {
    ScopeBarRow row;
    row.size = size;
    return row;
  }
  static void Expect(int row, std::int32_t percentInt, std::int32_t percentFrac, std::int32_t valueInt,
                     std::int32_t valueFrac, std::int32_t unit, std::int32_t width) {
    const ScopeBarRow bar = ScopeBarGet(row);
    EXPECT_EQ(bar.percentInt, percentInt) << row;
    EXPECT_EQ(bar.percentFrac, percentFrac) << row;
    EXPECT_EQ(bar.valueInt, valueInt) << row;
    EXPECT_EQ(bar.valueFrac, valueFrac) << row;
    EXPECT_EQ(bar.unit, unit) << row;
    EXPECT_EQ(bar.barWidth, width) << row;
  }
};

TEST_F(ScopeBarsTest, ARowLiesAtItsOffsetsInTheSecondArea) {
  ScopeBarPut(3, {0, 1.5F, 2, 3, 4, 5, 6, 7});
  const unsigned char* at = WorkBlocks.ScopeBlock + 2000000 + 3 * 32;
  EXPECT_EQ(GetLE32(at), 0U);
  EXPECT_EQ(GetLE32(at + 4), 0x3FC00000U);
  for (std::uint32_t i = 2; i < 8; ++i) EXPECT_EQ(GetLE32(at + 4 * i), i);
  EXPECT_EQ(ScopeBarGet(3).size, 1.5F);
}

TEST_F(ScopeBarsTest, TheLastRowFitsAndTheOneBehindIsRefused) {
  ScopeBarPut(kScopeLimit, {0, 1.0F, 0, 0, 0, 0, 0, 9});
  EXPECT_EQ(ScopeBarGet(kScopeLimit).barWidth, 9);
  ScopeBarPut(kScopeLimit + 1, {0, 1.0F, 0, 0, 0, 0, 0, 9});
  ScopeBarPut(-1, {0, 1.0F, 0, 0, 0, 0, 0, 9});
  EXPECT_EQ(ScopeBarGet(kScopeLimit + 1).barWidth, 0);
  EXPECT_EQ(GetLE32(WorkBlocks.ScopeBlock + 2000000 + (kScopeLimit + 1) * 32 + 28), 0U);
}

TEST_F(ScopeBarsTest, TheFirstRowIsAShareOfTheDriveAndTheOthersOfTheFolder) {
  Scope.scopeFolderCount = 3;
  Scope.folderTotal = 4096;
  Scope.driveTotal = 40960;
  ScopeBarPut(1, Sized(3072));
  ScopeBarPut(2, Sized(1024));
  ScopeBarPut(3, Sized(0));
  ScopeBuildBars();
  Expect(0, 10, 0, 4, 0, 0, 30);
  Expect(1, 75, 0, 3, 0, 0, 225);
  Expect(2, 25, 0, 1, 0, 0, 75);
  Expect(3, 0, 0, 0, 0, 0, 0);
}

TEST_F(ScopeBarsTest, AFolderTotalOfZeroLeavesAllBarsEmptyWithoutADivision) {
  Scope.scopeFolderCount = 2;
  Scope.driveTotal = 1000;
  ScopeBarPut(1, {0, 0.0F, 1, 2, 3, 4, 5, 6});
  ScopeBarPut(2, {0, 0.0F, 1, 2, 3, 4, 5, 6});
  ScopeBuildBars();
  for (int row = 0; row < 3; ++row) Expect(row, 0, 0, 0, 0, 0, 0);
}

TEST_F(ScopeBarsTest, ADriveThatTellsNothingLeavesTheFirstShareAtZero) {
  Scope.folderTotal = 2048;
  ScopeBuildBars();
  Expect(0, 0, 0, 2, 0, 0, 0);
}

}  // namespace
