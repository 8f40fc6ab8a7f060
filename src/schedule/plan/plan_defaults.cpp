#include "schedule/plan/plan.h"
#include "services/text.h"
#include "services/today.h"

PlanState Plan;

namespace {

// What a new plan of a kind holds.
struct Defaults {
  ScpKind kind;
  const char* title;
  std::int32_t intervals[kScpIntervalCount];
  SclWorkDayRow row;
  ScpRestPeriod rests[kScpRestCount];
  std::uint8_t repeat;
  std::uint32_t load;
  const char* firstText;
};

constexpr Defaults kStudy{kScpStudy,
                          "Plan to Study",
                          {2, 7, 14, 28, 56, 56, 56, 56, 56, 56},
                          {14, 8, 22},
                          {{12, 13, 1}, {18, 19, 1}, {21, 22, 1}},
                          2,
                          0,
                          // kept: the first line of a new study plan is misspelled.
                          "Instunce: Study English Words Book page 1 1-50words"};

constexpr Defaults kTraining{kScpTraining,
                             "Plan to Train",
                             {2, 3, 4, 5, 6, 7, 8, 9, 10, 11},
                             {3, 17, 20},
                             {{18, 19, 1}, {0, 0, 0}, {0, 0, 0}},
                             10,
                             1,
                             "Training for arm 70per"};

void HeadSet(const Defaults& defaults) {
  ScpPlanHead& head = Plan.head;
  head = {};
  head.ScpPlanKind = defaults.kind;
  head.count = kScpLineMax;
  head.start = SclDateNow();
  for (int i = 0; i < kScpIntervalCount; ++i) head.ScpIntervalTable[i] = defaults.intervals[i];
  for (int row = 0; row < kSclRowCount; ++row) {
    head.rows[row] = defaults.row;
    for (int rest = 0; rest < kScpRestCount; ++rest) head.ScpRestTable[row][rest] = defaults.rests[rest];
  }
  TextCopy(head.title, sizeof head.title, defaults.title);
}

void LinesSet(const Defaults& defaults) {
  for (ScpPlanRec& line : Plan.ScpPlanTable) {
    line = {};
    line.repeat = defaults.repeat;
    line.kind = defaults.kind;
    line.load = defaults.load;
  }
  TextCopy(Plan.ScpPlanTable[0].text, kScpTextSize, defaults.firstText);
}

void Take(const Defaults& defaults) {
  HeadSet(defaults);
  LinesSet(defaults);
  Plan.dirty = false;
}

}  // namespace

void ScpStudyDefaults() {
  Take(kStudy);
}

void ScpTrainDefaults() {
  Take(kTraining);
}

// kept: a line that is inserted into a plan is that of a study plan, in a training plan too.
ScpPlanRec ScpNewLine() {
  ScpPlanRec line{};
  line.repeat = kStudy.repeat;
  line.kind = kStudy.kind;
  return line;
}
