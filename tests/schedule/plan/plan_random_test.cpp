// A thousand plans without any order, converted here and by the model.
#include <random>

#include "clock_calendar/calendar/calendar.h"
#include "tests/schedule/plan/plan_fixture.h"
#include "tests/schedule/plan/plan_model.h"

namespace {

class PlanRandom : public PlanTest {
 protected:
  int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  // In some plans there are days of no hours.
  void Rows8() {
    const bool days = Below(8) != 0;
    for (SclWorkDayRow& row : Plan.head.rows) {
      const int begin = Below(20);
      row = {days ? 1 + Below(24 - begin) : Below(5) == 0 ? 0 : Below(25 - begin), begin, Below(25)};
    }
    Plan.head.rows[Below(7)] = {6, 9, 0};  // somebody works some day
    if (Below(3) == 0) {
      for (SclWorkDayRow& row : Plan.head.rows) row = {10, 8, 18};
    }
  }

  void Rests() {
    for (auto& row : Plan.head.ScpRestTable) {
      for (ScpRestPeriod& rest : row) {
        const int start = Below(24);
        rest = {start, 0, Below(2) == 0 ? 0 : 1 + Below(24 - start)};
      }
    }
  }

  void Lines(int count) {
    for (int i = 0; i < count; ++i) {
      const int line = Below(300);
      Line(line, static_cast<std::uint32_t>(Below(4) == 0 ? Below(200) : Below(8)), Below(11),
           ("line " + std::to_string(line)).c_str());
      Plan.ScpPlanTable[line].load = static_cast<std::uint32_t>(Below(3));
    }
  }

  void Calendar() {
    holidays_.clear();
    CalenYearsSet(26);
    CalenSpanSet(26, 1);
    for (int m = 0; m < 12; ++m) {
      for (int d = 0; d < 28; ++d) {
        const bool holiday = Below(9) == 0;
        CalenHolidayFlagSet(0, m, d, holiday);
        if (holiday) holidays_.insert(ModelDay(2026, m + 1, d + 1));
      }
    }
  }

  void Make() {
    Study({Below(30), Below(12), Below(28), Below(25)});
    if (Below(2) == 0) Training({26, Below(12), Below(28), Below(25)});
    Rows8();
    Rests();
    for (std::int32_t& interval : Plan.head.ScpIntervalTable)
      interval = Below(4) == 0 ? Below(70) : Below(11);
    Lines(1 + Below(Below(5) == 0 ? 80 : 8));
    if (Below(20) == 0) Plan.ScpPlanTable[0].hours = 1000;
  }

  std::mt19937 random_{1907};
  std::set<int> holidays_;
};

TEST_F(PlanRandom, AThousandPlansGiveTheModelsItems) {
  int full = 0;
  int many = 0;
  for (int round = 0; round < 1000; ++round) {
    if (round % 50 == 0) Calendar();
    Make();
    const std::vector<ScpPlanRec> lines(Plan.ScpPlanTable, Plan.ScpPlanTable + kScpLineMax);
    const ModelSchedule model = ModelConvert(Plan.head, lines, holidays_);
    const int result = ScpConvertToSchedule();
    ASSERT_EQ(result < 0, model.full) << round;
    ASSERT_EQ(Schedule.SclHeader.count, static_cast<int>(model.items.size())) << round;
    for (int i = 0; i < Schedule.SclHeader.count; ++i) {
      ASSERT_EQ(ItemText(i), ModelText(model.items[static_cast<std::size_t>(i)])) << round << " item " << i;
    }
    full += model.full ? 1 : 0;
    many += model.items.size() > 20 ? 1 : 0;
  }
  // The plans are of all sorts.
  EXPECT_GT(full, 20);
  EXPECT_GT(many, 300);
}

}  // namespace
