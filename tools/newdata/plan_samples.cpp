// The plans that a new data set shows its user: one of lessons, one of workouts.
#include "newdata/plan_samples.h"

#include <stdexcept>
#include <string>

#include "schedule/plan/plan.h"
#include "schedule/plan/plan_file.h"
#include "services/program.h"
#include "services/text.h"

namespace {

// A line of a sample.
struct Sample {
  const char* text;
  std::uint32_t hours;
  std::uint8_t repeat;
  std::uint32_t load;
};

constexpr Sample kLessons[] = {
    {"英単語 1～50", 1, 4, 0},   {"英単語 51～100", 1, 4, 0},
    {"英文法 第1章", 2, 3, 0},   {"数学 問題集 1～10ページ", 3, 2, 0},
    {"漢字の書き取り", 1, 2, 0}, {"歴史の本を読む", 5, 0, 0},
};

constexpr Sample kWorkouts[] = {
    {"腕立て伏せ", 1, 10, 1},
    {"スクワット", 1, 8, 2},
    {"ストレッチ", 1, 10, 0},
};

template <std::size_t N>
void Take(const char* title, const Sample (&samples)[N]) {
  TextCopy(Plan.head.title, sizeof Plan.head.title, title);
  Plan.head.start.hour = Plan.head.rows[0].begin;
  for (std::size_t i = 0; i < N; ++i) {
    ScpPlanRec& line = Plan.ScpPlanTable[i];
    TextCopy(line.text, sizeof line.text, samples[i].text);
    line.hours = samples[i].hours;
    line.repeat = samples[i].repeat;
    line.load = samples[i].load;
  }
}

void Save(const char* name) {
  char path[kRootPathSize];
  TextFormat(path, sizeof path, "%s\\計画表\\%s", Program.RootFolder, name);
  if (ScpSaveFile(path) != 0) throw std::runtime_error("a sample of a plan cannot be written");
}

}  // namespace

void WritePlanSamples() {
  ScpStudyDefaults();
  Take("学習計画の見本", kLessons);
  Save("学習計画.GPP");
  ScpTrainDefaults();
  Take("筋トレ計画の見本", kWorkouts);
  Save("筋トレ計画.GPP");
}
