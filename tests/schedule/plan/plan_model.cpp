#include "tests/schedule/plan/plan_model.h"

#include <algorithm>

namespace {

constexpr int kMonthDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// Every fourth year, 2100 too.
bool IsLeap(int y) {
  return y % 4 == 0;
}

int LengthOf(int y, int m) {
  return kMonthDays[m - 1] + (m == 2 && IsLeap(y) ? 1 : 0);
}

struct ModelDate {
  int y;
  int m;
  int d;  // from 0
};

ModelDate DateOf(std::int64_t days) {
  constexpr int kFourYears = 1461;
  ModelDate date{2000 + 4 * static_cast<int>(days / kFourYears), 1, static_cast<int>(days % kFourYears)};
  while (date.d >= (IsLeap(date.y) ? 366 : 365)) date.d -= IsLeap(date.y++) ? 366 : 365;
  while (date.d >= LengthOf(date.y, date.m)) date.d -= LengthOf(date.y, date.m++);
  return date;
}

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

  // From 2100 on each month is taken to begin a day before a Monday.
  int Row(std::int64_t atDay) const {
    if (atDay >= ModelDay(2100, 1, 1)) return std::max(0, (DateOf(atDay).d - 1) % 7);
    const int weekday = static_cast<int>((atDay + 5) % 7);
    return weekday != 6 && holidays_.contains(static_cast<int>(atDay)) ? 7 : weekday;
  }

  ModelTime Later(ModelTime from, int hours) const {
    int days = 0;
    std::int64_t probe = from.day;
    int hour = from.hour;
    int row = Row(probe);
    if (hour >= end_[row]) {
      days = 1;
      probe += 1;
      row = Row(probe);
      hour = begin_[row];
    }
    while (hour + hours > end_[row]) {
      if (days >= 73000) return from;  // no day that is looked at has hours
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
        const ModelTime before = at;
        at = Later(at, 1);
        const bool lost = before.day == at.day && before.hour == at.hour;
        const std::int64_t placed = lost && !OverFor(at) ? left : 1;
        open.hours += placed;
        left -= placed;
      }
      if (open.hours > 0 && OverFor(at)) left = 0;
    }
    close();
    made_.items.insert(made_.items.end(), items.begin(), items.end());
    now_ = at;
    if (made_.items.size() >= 1000) Full();
  }

  // A workout ends there.
  bool OverFor(ModelTime at) const { return head_.ScpPlanKind == 1 && at.hour >= end_[Row(at.day)]; }
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
  const ModelDate date = DateOf(time.day);
  // An item holds its year in a byte.
  return std::to_string(2000 + (date.y - 2000) % 256) + "/" + std::to_string(date.m) + "/" +
         std::to_string(date.d + 1) + " " + std::to_string(time.hour);
}

}  // namespace

ModelSchedule ModelConvert(const ScpPlanHead& head, const std::vector<ScpPlanRec>& lines,
                           const std::set<int>& holidays) {
  return Converter(head, lines, holidays).Run();
}

int ModelDay(int y, int m, int d) {
  int days = d - 1;
  for (int at = 2000; at < y; ++at) days += IsLeap(at) ? 366 : 365;
  for (int at = 1; at < m; ++at) days += LengthOf(y, at);
  return days;
}

std::string ModelText(const ModelItem& item) {
  return TimeText(item.start) + " - " + TimeText(item.end) + " = " + std::to_string(item.hours) +
         (item.text.empty() ? "" : " ") + item.text;
}
