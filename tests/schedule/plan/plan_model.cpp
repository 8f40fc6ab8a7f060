#include "tests/schedule/plan/plan_model.h"

#include <algorithm>
#include <chrono>

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

const sys_days kFirst = sys_days(year{2000} / 1 / 1);  // a Saturday

class Converter {
 public:
  Converter(const ScpPlanHead& head, const std::vector<ScpPlanRec>& lines, const std::set<int>& holidays)
      : head_(head), lines_(lines), holidays_(holidays) {
    for (int row = 0; row < 8; ++row) {
      begin_[row] = head.rows[row].begin;
      length_[row] = head.rows[row].length;
      end_[row] = std::min(begin_[row] + length_[row], 24);
    }
  }

  ModelSchedule Run() {
    now_ = {ModelDay(head_.start.year + 2000, head_.start.month + 1, head_.start.day + 1), head_.start.hour};
    if (now_.hour >= end_[Row(now_.day)]) {
      ++now_.day;
      now_.hour = begin_[Row(now_.day)];
    }
    made_.start = now_;
    for (const ScpPlanRec& line : lines_) states_.push_back({line.hours ? line.repeat + 1 : 0, 0, 0});
    while (!made_.full && Step()) {
    }
    return made_;
  }

 private:
  struct State {
    int remaining;
    int last;
    int wait;
  };

  int Row(int atDay) const {
    const int weekday = (atDay + 5) % 7;
    return weekday != 6 && holidays_.contains(atDay) ? 7 : weekday;
  }

  ModelTime Later(ModelTime from, int hours) const {
    int days = 0;
    int probe = from.day;
    int hour = from.hour;
    int row = Row(probe);
    if (hour >= end_[row]) {
      days = 1;
      probe += 1;
      row = Row(probe);
      hour = begin_[row];
    }
    while (hour + hours > end_[row]) {
      hours -= end_[row] - hour;
      ++days;
      probe += days;
      row = Row(probe);
      hour = begin_[row];
    }
    return {from.day + days, hour + hours};
  }

  // 1 to 3, 0 for none.
  int Rest(ModelTime at) const {
    const auto& rests = head_.ScpRestTable[Row(at.day)];
    for (int i = 0; i < 3; ++i) {
      if (rests[i].length != 0 && rests[i].start == at.hour) return i + 1;
    }
    return 0;
  }

  ModelItem RestItem(ModelTime& at) const {
    static const char* const kNames[] = {"月曜日", "火曜日", "水曜日", "木曜日",
                                         "金曜日", "土曜日", "日曜日", "休日"};
    const int rest = Rest(at);
    const int row = Row(at.day);
    ModelItem item;
    item.start = at;
    item.hours = head_.ScpRestTable[row][rest - 1].length;
    item.end = at = Later(at, static_cast<int>(item.hours));
    item.text = std::string(kNames[row]) + " - 休憩" + std::to_string(rest);
    return item;
  }

  // A placement is counted only when all of it has found room.
  void Place(const ScpPlanRec& line) {
    std::vector<ModelItem> items;
    const auto room = [&] { return made_.items.size() + items.size() < 1000; };
    ModelTime at = now_;
    while (Rest(at)) {
      items.push_back(RestItem(at));
      if (!room()) return Full();
    }
    std::int64_t left = line.hours;
    ModelItem open;
    open.text = line.text;
    const auto close = [&] {
      open.end = at;
      items.push_back(open);
      open = {};
      open.text = line.text;
    };
    while (left > 0) {
      if (Rest(at)) {
        close();
        if (!room()) return Full();
        items.push_back(RestItem(at));
        if (!room()) return Full();
      } else {
        if (open.hours == 0) open.start = at;
        at = Later(at, 1);
        ++open.hours;
        --left;
      }
      if (head_.ScpPlanKind == 1 && open.hours > 0 && at.hour >= end_[Row(at.day)]) left = 0;
    }
    close();
    made_.items.insert(made_.items.end(), items.begin(), items.end());
    now_ = at;
    if (made_.items.size() >= 1000) Full();
  }

  void Full() { made_.full = true; }
  int Today() const { return now_.day - made_.start.day; }

  bool Step() {
    for (std::size_t i = 0; i < states_.size(); ++i) {
      const State& state = states_[i];
      if (state.remaining > 0 && state.wait > 0 && Today() - state.last >= state.wait) return Take(i);
    }
    for (std::size_t i = 0; i < states_.size(); ++i) {
      if (states_[i].remaining > 0 && states_[i].wait == 0) return Take(i);
    }
    return Wait();
  }

  bool Take(std::size_t i) {
    State& state = states_[i];
    const ScpPlanRec& line = lines_[i];
    Place(line);
    if (made_.full) return false;
    state.last = Today();
    if (line.repeat == 0) {
      state.remaining = 0;
    } else {
      --state.remaining;
      const int place = head_.ScpPlanKind == 1 ? static_cast<int>(line.load) : line.repeat - state.remaining;
      state.wait = state.remaining > 0 ? head_.ScpIntervalTable[place] : 0;
    }
    return true;
  }

  bool Wait() {
    int due = 20000;
    for (const State& state : states_) {
      if (state.remaining > 0) due = std::min(due, state.last + state.wait);
    }
    if (due == 20000) return false;
    const int gap = due - Today();
    ModelItem item;
    item.start = now_;
    item.hours = std::max(0, end_[Row(now_.day)] - now_.hour);
    for (int i = 1; i <= gap; ++i) item.hours += length_[Row(now_.day + i)];
    now_ = Later(now_, static_cast<int>(item.hours));
    const int begin = begin_[Row(now_.day)];
    if (gap != 0 && now_.hour > begin) {
      item.hours -= now_.hour - begin;
      now_.hour = begin;
    }
    item.end = now_;
    made_.items.push_back(item);
    if (made_.items.size() >= 1000) Full();
    return true;
  }

  const ScpPlanHead& head_;
  const std::vector<ScpPlanRec>& lines_;
  const std::set<int>& holidays_;
  int begin_[8];
  int length_[8];
  int end_[8];
  std::vector<State> states_;
  ModelTime now_{0, 0};
  ModelSchedule made_;
};

std::string TimeText(ModelTime time) {
  const year_month_day date(kFirst + std::chrono::days(time.day));
  return std::to_string(static_cast<int>(date.year())) + "/" +
         std::to_string(static_cast<unsigned>(date.month())) + "/" +
         std::to_string(static_cast<unsigned>(date.day())) + " " + std::to_string(time.hour);
}

}  // namespace

ModelSchedule ModelConvert(const ScpPlanHead& head, const std::vector<ScpPlanRec>& lines,
                           const std::set<int>& holidays) {
  return Converter(head, lines, holidays).Run();
}

int ModelDay(int y, int m, int d) {
  const sys_days at = sys_days(year{y} / month{static_cast<unsigned>(m)} / day{static_cast<unsigned>(d)});
  return static_cast<int>((at - kFirst).count());
}

std::string ModelText(const ModelItem& item) {
  return TimeText(item.start) + " - " + TimeText(item.end) + " = " + std::to_string(item.hours) +
         (item.text.empty() ? "" : " ") + item.text;
}
