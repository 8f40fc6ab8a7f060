#include "newdata/tables.h"
#include "schedule/model/schedule.h"
#include "schedule/model/scl_items.h"
#include "services/text.h"

namespace {

struct SampleItem {
  std::uint32_t hours;
  bool alarm;
  bool done;
  const char* text;
};
constexpr SampleItem kItems[] = {
    {1, true, true, "机の上を片付ける"},
    {2, true, false, "今週の予定を書き出す"},
    {1, true, false, "カレーの材料を買う"},
    {6, false, false, "写真の整理"},
    {9, true, false, "読書: 地図の歴史 第1章"},
    {9, true, false, "読書: 地図の歴史 第2章"},
    {3, true, false, "英単語の復習"},
    {0, false, false, ""},
    {12, false, false, "部屋の模様替え"},
    {18, true, false, "年賀状の宛名書き"},
    {2, true, false, "大事なファイルの控えを取る"},
    {1, true, false, "来月の予定を立てる"},
};

constexpr SclWorkDayRow kWeekday{9, 9, 18};
constexpr SclWorkDayRow kSaturday{3, 9, 12};
constexpr SclWorkDayRow kDayOff{0, 9, 9};

// Monday to Friday, Saturday, Sunday, holiday.
SclWorkDayRow RowOf(int row) {
  if (row < 5) return kWeekday;
  return row == 5 ? kSaturday : kDayOff;
}

}  // namespace

void FillSchedule(int year, int month, int day) {
  SclKindSet(1);
  SclNewDefaults(year - 2000, month - 1, day - 1);
  SclStart().hour = kWeekday.begin;
  TextCopy(SclTitle(), kSclTitleSize, "見本の予定");
  for (int row = 0; row < kSclRowCount; ++row) SclRows()[row] = RowOf(row);
  int place = 0;
  for (const SampleItem& sample : kItems) {
    SclItemRec& item = SclItem(place++);
    item.hours = sample.hours;
    item.alarmOn = sample.alarm ? 1 : 0;
    item.doneState = sample.done ? 1 : 0;
    TextCopy(item.text, kSclItemTextSize, sample.text);
  }
  SclRecalcAll();
}
