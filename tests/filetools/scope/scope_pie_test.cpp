#include "filetools/scope/scope_pie.h"

#include <array>

#include "filetools/scope/folder_scope.h"
#include "tests/filetools/scope/scope_fixture.h"

namespace {

constexpr int kCx = 160;
constexpr int kCy = 300;
constexpr int kRadius = 100;
constexpr float kTurn = 2 * 3.1415927F;

class ScopePieTest : public ScopeFixture {
 protected:
  // Fills an area with entries of those sizes, named "e0" and so on.
  static void Fill(ScopeArea area, const std::vector<std::uint32_t>& sizes) {
    int n = 0;
    for (const std::uint32_t size : sizes) {
      ScopeEntry entry;
      entry.sizeLow = size;
      TextFormat(entry.name, sizeof entry.name, "e%d", n);
      ScopeEntryPut(area, n++, entry);
    }
    if (area == ScopeArea::Drive) {
      Scope.scopeDriveCount = n;
      ScopeSortDrive();
    } else {
      Scope.scopeFolderCount = n;
      ScopeSortFolder();
    }
  }
  static void BuildDrive(int wanted = 6) { ScopeBuildPieDrive(wanted, kCx, kCy, kRadius); }
  static void BuildFolder(int wanted = 6) { ScopeBuildPieFolder(wanted, kCx, kCy, kRadius); }

  static void Row(const ScopePie& pie, int i, int tag, const char* name, float size) {
    ASSERT_LT(i, pie.count);
    EXPECT_EQ(pie.rows[i].tag, tag) << i;
    EXPECT_EQ(pie.rows[i].kind, tag > 0 ? 1 : 3) << i;
    EXPECT_STREQ(pie.rows[i].name, name) << i;
    EXPECT_EQ(pie.rows[i].size, size) << i;
    EXPECT_EQ(pie.rows[i].sizeHigh, 0U) << i;
    EXPECT_EQ(pie.rows[i].sizeLow, static_cast<std::uint32_t>(size)) << i;
  }
  static void Arc(const ScopePie& pie, int i, Point end, Point start) {
    EXPECT_EQ(pie.rows[i].x1, end.x) << i;
    EXPECT_EQ(pie.rows[i].y1, end.y) << i;
    EXPECT_EQ(pie.rows[i].x2, start.x) << i;
    EXPECT_EQ(pie.rows[i].y2, start.y) << i;
  }
};

// Points of the circle in eighths of a turn from 12 o'clock: 100 x sin 45 is 70.71.
constexpr Point kEighths[] = {{160, 200}, {230, 229}, {260, 300}, {230, 370}, {160, 400}, {89, 370}};

TEST_F(ScopePieTest, OfADriveRootThereIsNoFirstLevelRow) {
  Fill(ScopeArea::Drive, {500, 1500, 1000});
  Scope.driveTotal = 8000;
  Scope.driveFree = 3000;
  BuildDrive(3);
  ASSERT_EQ(Scope.drivePie.count, 5);
  Row(Scope.drivePie, 0, 1, "e1", 1500);
  Row(Scope.drivePie, 1, 2, "e2", 1000);
  Row(Scope.drivePie, 2, 3, "e0", 500);
  Row(Scope.drivePie, 3, -1, "その他", 2000);
  Row(Scope.drivePie, 4, -2, "空き", 3000);
  EXPECT_EQ(Scope.firstLevelTotal, 1.0F);
  BuildFolder();
  EXPECT_EQ(Scope.folderPie.count, 0);
}

TEST_F(ScopePieTest, SlicesFollowEachOtherClockwiseFromTwelve) {
  Fill(ScopeArea::Drive, {1000, 1000, 1000});
  Scope.driveTotal = 8000;
  Scope.driveFree = 3000;
  BuildDrive(3);
  ASSERT_EQ(Scope.drivePie.count, 5);
  EXPECT_EQ(Scope.drivePie.rows[0].sweep, 0.125F * kTurn);
  EXPECT_EQ(Scope.drivePie.rows[3].sweep, 0.25F * kTurn);
  Arc(Scope.drivePie, 0, kEighths[1], kEighths[0]);
  Arc(Scope.drivePie, 1, kEighths[2], kEighths[1]);
  Arc(Scope.drivePie, 2, kEighths[3], kEighths[2]);
  Arc(Scope.drivePie, 3, kEighths[5], kEighths[3]);
  // The last comes back to 12 o'clock, but for the rounding of the angle.
  EXPECT_NEAR(Scope.drivePie.rows[4].x1, 160, 1);
  EXPECT_EQ(Scope.drivePie.rows[4].y1, 200);
  EXPECT_EQ(Scope.drivePie.rows[4].x2, 89);
}

TEST_F(ScopePieTest, OfAFirstLevelFolderTheDriveStartsWithItAndHasNoRowForTheChosen) {
  Fill(ScopeArea::Drive, {500, 2000, 1000});
  Scope.firstLevelIndex = 2;
  Scope.driveTotal = 8000;
  Scope.driveFree = 3000;
  BuildDrive(3);
  ASSERT_EQ(Scope.drivePie.count, 5);
  Row(Scope.drivePie, 0, 2, "e2", 1000);
  Row(Scope.drivePie, 1, 1, "e1", 2000);
  Row(Scope.drivePie, 2, 3, "e0", 500);
  Row(Scope.drivePie, 3, -1, "その他", 1500);
  EXPECT_EQ(Scope.firstLevelTotal, 1000.0F);
  Fill(ScopeArea::Folder, {250, 750});
  BuildFolder(2);
  EXPECT_EQ(Scope.chosenTotal, 1000.0F);
  ASSERT_EQ(Scope.folderPie.count, 3);
  Row(Scope.folderPie, 0, 1, "e1", 750);
  Row(Scope.folderPie, 1, 2, "e0", 250);
  Row(Scope.folderPie, 2, -1, "その他", 0);
}

TEST_F(ScopePieTest, TheChosenFolderShowsInsideTheStartOfItsParentsSlice) {
  Fill(ScopeArea::Drive, {4000, 1000, 500});
  Scope.firstLevelIndex = 0;
  Scope.folderIndex = 7;
  Scope.chosenTotal = 1000;
  Scope.driveTotal = 8000;
  Scope.driveFree = 1000;
  TextCopy(Scope.folderName, sizeof Scope.folderName, "photos");
  BuildDrive(3);
  ASSERT_EQ(Scope.drivePie.count, 5);
  Row(Scope.drivePie, 0, 1, "e0", 4000);
  Row(Scope.drivePie, 1, -4, "photos", 1000);
  Row(Scope.drivePie, 2, 2, "e1", 1000);
  Row(Scope.drivePie, 3, -1, "その他", 2000);
  Arc(Scope.drivePie, 0, kEighths[4], kEighths[0]);
  Arc(Scope.drivePie, 1, kEighths[1], kEighths[0]);
  Arc(Scope.drivePie, 2, kEighths[5], kEighths[4]);
}

TEST_F(ScopePieTest, OfManyEntriesTheLargestAreShownAndTheRestIsOthers) {
  Fill(ScopeArea::Drive, {10, 20, 30, 40, 50, 60, 70, 80});
  Scope.driveTotal = 1000;
  Scope.driveFree = 500;
  BuildDrive(6);
  ASSERT_EQ(Scope.drivePie.count, 8);
  Row(Scope.drivePie, 0, 1, "e7", 80);
  Row(Scope.drivePie, 5, 6, "e2", 30);
  Row(Scope.drivePie, 6, -1, "その他", 170);
  Row(Scope.drivePie, 7, -2, "空き", 500);
}

TEST_F(ScopePieTest, OthersAreAtLeastNothing) {
  Fill(ScopeArea::Drive, {900});
  Fill(ScopeArea::Folder, {900});
  Scope.firstLevelIndex = 0;
  Scope.folderIndex = 0;
  Scope.chosenTotal = 100;
  Scope.driveTotal = 1000;
  Scope.driveFree = 500;
  BuildDrive(1);
  Row(Scope.drivePie, 2, -1, "その他", 0);
  BuildFolder(1);
  Row(Scope.folderPie, 1, -1, "その他", 0);
}

TEST_F(ScopePieTest, WithOneEntryWantedTheChosenFolderTakesNoFurtherRow) {
  Fill(ScopeArea::Drive, {900, 50});
  Scope.firstLevelIndex = 0;
  Scope.folderIndex = 0;
  Scope.driveTotal = 1000;
  BuildDrive(1);
  EXPECT_EQ(Scope.drivePie.count, 4);
}

TEST_F(ScopePieTest, TheTableIsNeverOverrun) {
  Fill(ScopeArea::Drive, std::vector<std::uint32_t>(50, 5));
  Fill(ScopeArea::Folder, std::vector<std::uint32_t>(50, 5));
  Scope.firstLevelIndex = 3;
  Scope.folderIndex = 3;
  Scope.chosenTotal = 250;
  Scope.driveTotal = 1000;
  BuildDrive(50);
  BuildFolder(50);
  EXPECT_EQ(Scope.drivePie.count, kScopePieRows);
  EXPECT_EQ(Scope.drivePie.rows[8].tag, kTagFree);
  EXPECT_EQ(Scope.drivePie.rows[7].tag, kTagOthers);
  EXPECT_EQ(Scope.folderPie.count, kScopePieRows);
  EXPECT_EQ(Scope.folderPie.rows[8].tag, kTagOthers);
}

TEST_F(ScopePieTest, AFolderWithOneFileOfSizeZeroShowsZeros) {
  Fill(ScopeArea::Folder, {0});
  Scope.folderIndex = 0;
  Scope.firstLevelIndex = 0;
  Scope.chosenTotal = 0;
  BuildFolder(1);
  ASSERT_EQ(Scope.folderPie.count, 2);
  for (int i = 0; i < 2; ++i) {
    const ScopePieRow& row = Scope.folderPie.rows[i];
    EXPECT_EQ(row.valueInt, 0);
    EXPECT_EQ(row.valueFrac, 0);
    EXPECT_EQ(row.percentInt, 0);
    EXPECT_EQ(row.percentFrac, 0);
    EXPECT_EQ(row.sweep, 0.0F);
    Arc(Scope.folderPie, i, kEighths[0], kEighths[0]);
  }
}

TEST_F(ScopePieTest, ADriveThatTellsNothingGivesSlicesOfNothing) {
  Fill(ScopeArea::Drive, {5});
  BuildDrive(1);
  ASSERT_EQ(Scope.drivePie.count, 3);
  for (int i = 0; i < 3; ++i) Arc(Scope.drivePie, i, kEighths[0], kEighths[0]);
}

TEST_F(ScopePieTest, RowsKnowTheirShareAndUnit) {
  Fill(ScopeArea::Drive, {2097152, 105});
  Scope.driveTotal = 8388608;
  BuildDrive(2);
  EXPECT_EQ(Scope.drivePie.rows[0].percentInt, 25);
  EXPECT_EQ(Scope.drivePie.rows[0].percentFrac, 0);
  EXPECT_EQ(Scope.drivePie.rows[0].unit, 1);
  EXPECT_EQ(Scope.drivePie.rows[0].valueInt, 2);
  EXPECT_EQ(Scope.drivePie.rows[1].unit, 0);
  EXPECT_EQ(Scope.drivePie.rows[1].valueFrac, 10);  // 105 / 1024
}

TEST_F(ScopePieTest, SizesOverFourGigabytesKeepBothHalves) {
  ScopeEntryPut(ScopeArea::Drive, 0, {0, {}, {}, 2, 512, "big", {}});
  Scope.scopeDriveCount = 1;
  ScopeSortDrive();
  Scope.driveTotal = 4 * 4294967296.0F;
  Scope.driveFree = 4294967296.0F;
  BuildDrive(1);
  EXPECT_EQ(Scope.drivePie.rows[0].sizeHigh, 2U);
  EXPECT_EQ(Scope.drivePie.rows[0].sizeLow, 512U);
  EXPECT_EQ(Scope.drivePie.rows[2].sizeHigh, 1U);
  EXPECT_EQ(Scope.drivePie.rows[2].sizeLow, 0U);
}

TEST_F(ScopePieTest, WithABarChartThereIsNoGeometry) {
  Fill(ScopeArea::Drive, {1000});
  Scope.driveTotal = 8000;
  Scope.scopeBarChart = true;
  BuildDrive(1);
  ASSERT_EQ(Scope.drivePie.count, 3);
  EXPECT_EQ(Scope.drivePie.rows[0].sweep, 0.125F * kTurn);
  Arc(Scope.drivePie, 0, {0, 0}, {0, 0});
}

// --- Leader lines. The disc's corner is (60, 200).

// A slice: its arc's end and start, and how far it goes round.
struct Slice {
  Point end;
  Point start;
  float degrees;
};

ScopePie PieOf(const std::vector<Slice>& slices) {
  ScopePie pie{};
  pie.centre = {kCx, kCy};
  pie.radius = kRadius;
  for (const Slice& slice : slices) {
    ScopePieRow& row = pie.rows[pie.count++];
    row.x1 = slice.end.x;
    row.y1 = slice.end.y;
    row.x2 = slice.start.x;
    row.y2 = slice.start.y;
    row.sweep = slice.degrees / 360 * kTurn;
  }
  return pie;
}

using Leaders = std::array<ScopeLeader, kScopePieRows>;
Leaders LeadersOf(const ScopeLeaderRule& rule, const ScopePie& pie) {
  ScopeLeader leaders[kScopePieRows];
  ScopePieLeaders(pie, rule, leaders);
  return std::to_array(leaders);
}
Leaders LeadersOf(const ScopeLeaderRule& rule, const std::vector<Slice>& slices) {
  return LeadersOf(rule, PieOf(slices));
}

void Leader(const ScopeLeader& leader, int x, int y, int endX, Point number) {
  EXPECT_EQ(leader.x, x);
  EXPECT_EQ(leader.y, y);
  EXPECT_EQ(leader.endX, endX);
  EXPECT_EQ(leader.number.x, number.x);
  EXPECT_EQ(leader.number.y, number.y);
}

TEST(ScopeLeadersTest, CloseLinesStepOutAndTheLeftSideStartsOver) {
  const Leaders leaders = LeadersOf(kDriveLeaders, {{{230, 229}, {160, 200}, 45},
                                                    {{260, 300}, {230, 229}, 45},
                                                    {{240, 310}, {260, 300}, 6},
                                                    {{238, 316}, {240, 310}, 3},
                                                    {{235, 320}, {238, 316}, 3},
                                                    {{89, 370}, {235, 320}, 123},
                                                    {{60, 300}, {89, 370}, 45},
                                                    {{60, 298}, {60, 300}, 1},
                                                    {{60, 296}, {60, 298}, 1}});
  Leader(leaders[0], 195, 214, 270, {272, 210});
  Leader(leaders[1], 245, 264, 270, {272, 260});
  Leader(leaders[2], 250, 305, 270, {272, 301});
  Leader(leaders[3], 239, 313, 280, {282, 309});  // 8 below: out by 10
  Leader(leaders[4], 236, 318, 290, {292, 314});  // 5 below: out by 20
  Leader(leaders[5], 160, 398, 40, {22, 394});    // crosses the axis below
  Leader(leaders[6], 74, 335, 40, {22, 331});
  Leader(leaders[7], 60, 299, 40, {22, 295});
  Leader(leaders[8], 60, 297, 30, {12, 293});  // 2 above: out by 10
}

TEST(ScopeLeadersTest, ADistanceOfTenTakesTheStepBack) {
  const Leaders leaders = LeadersOf(kDriveLeaders, {{{250, 210}, {250, 210}, 0},
                                                    {{250, 215}, {250, 215}, 0},
                                                    {{250, 225}, {250, 225}, 0},
                                                    {{250, 230}, {250, 230}, 0}});
  EXPECT_EQ(leaders[0].endX, 270);
  EXPECT_EQ(leaders[1].endX, 280);
  EXPECT_EQ(leaders[2].endX, 270);
  EXPECT_EQ(leaders[3].endX, 280);
}

TEST(ScopeLeadersTest, TheFirstLineOnTheLeftIsNeverShifted) {
  const Leaders leaders = LeadersOf(
      kDriveLeaders, {{{250, 300}, {250, 300}, 0}, {{250, 395}, {250, 395}, 0}, {{150, 398}, {150, 398}, 0}});
  EXPECT_EQ(leaders[2].endX, 40);
}

TEST(ScopeLeadersTest, OfTheDriveTheFirstTwoRowsGoRightEvenFromTheLeftHalf) {
  const Leaders leaders = LeadersOf(kDriveLeaders, {{{89, 370}, {160, 200}, 225},
                                                    {{80, 340}, {89, 370}, 10},
                                                    {{60, 300}, {80, 340}, 35},
                                                    {{160, 200}, {60, 300}, 90}});
  Leader(leaders[0], 160, 398, 270, {272, 394});
  Leader(leaders[1], 210, 355, 270, {272, 351});
  Leader(leaders[2], 70, 320, 40, {22, 316});
  Leader(leaders[3], 110, 250, 40, {22, 246});
}

TEST(ScopeLeadersTest, OfTheFolderOnlyTheFirstGoesRightAndLinesToTheLeftBeginLeftOfTheCentre) {
  const Leaders leaders = LeadersOf(kFolderLeaders, {{{230, 229}, {160, 200}, 45},
                                                     {{89, 370}, {230, 229}, 180},
                                                     {{160, 200}, {89, 370}, 135},
                                                     {{160, 200}, {160, 200}, 0}});
  Leader(leaders[0], 195, 214, 270, {272, 210});
  Leader(leaders[1], 150, 398, 40, {22, 394});
  Leader(leaders[2], 124, 285, 40, {22, 281});
  Leader(leaders[3], 150, 200, 40, {22, 196});
}

TEST(ScopeLeadersTest, ASliceAcrossTwelveIsMetAtItsTop) {
  const Leaders leaders = LeadersOf(
      kDriveLeaders,
      {{{250, 300}, {250, 300}, 200}, {{250, 280}, {250, 280}, 100}, {{200, 210}, {100, 220}, 120}});
  Leader(leaders[2], 160, 202, 40, {22, 198});
}

// The slice that is left for the free room ends at the top.
TEST(ScopeLeadersTest, ASliceOfMoreThanHalfThatEndsAtTheTopIsMetBelow) {
  const Leaders leaders =
      LeadersOf(kDriveLeaders,
                {{{230, 229}, {160, 200}, 45}, {{230, 370}, {230, 229}, 90}, {{160, 200}, {230, 370}, 225}});
  Leader(leaders[2], 160, 398, 40, {22, 394});
}

TEST(ScopeLeadersTest, ASliceOfMoreThanHalfThatBeginsAtTheTopIsMetBelow) {
  const Leaders leaders =
      LeadersOf(kDriveLeaders, {{{60, 300}, {160, 200}, 270}, {{160, 200}, {60, 300}, 90}});
  Leader(leaders[0], 160, 398, 270, {272, 394});
  Leader(leaders[1], 210, 250, 270, {272, 246});
}

// One degree on either side of six.
TEST(ScopeLeadersTest, ANarrowSliceAcrossSixIsMetBelow) {
  const Leaders leaders =
      LeadersOf(kDriveLeaders,
                {{{260, 300}, {160, 200}, 90}, {{161, 399}, {260, 300}, 89}, {{158, 399}, {161, 399}, 2}});
  Leader(leaders[2], 160, 398, 40, {22, 394});
}

TEST(ScopeLeadersTest, AnEndAtSixOrTwelveIsNoCrossingWhereverItsPixelLies) {
  for (const int pixel : {-1, 0, 1}) {
    const Leaders leaders = LeadersOf(kFolderLeaders, {{{230, 229}, {160, 200}, 45},
                                                       {{160 + pixel, 400}, {230, 229}, 135},
                                                       {{160 + pixel, 200}, {160 + pixel, 400}, 180}});
    EXPECT_EQ(leaders[1].y, 314) << pixel;
    EXPECT_EQ(leaders[2].y, 300) << pixel;
  }
}

// The chosen folder lies over the begin of the first slice and moves no other one.
TEST(ScopeLeadersTest, TheChosenFolderHasAnAngleOfItsOwn) {
  ScopePie pie =
      PieOf({{{89, 370}, {160, 200}, 225}, {{230, 370}, {160, 200}, 135}, {{60, 300}, {89, 370}, 45}});
  pie.rows[1].tag = kTagChosen;
  const Leaders leaders = LeadersOf(kDriveLeaders, pie);
  Leader(leaders[0], 160, 398, 270, {272, 394});
  Leader(leaders[1], 195, 285, 270, {272, 281});
  Leader(leaders[2], 74, 335, 40, {22, 331});
}

}  // namespace
