#include "newdata/sample_map.h"
#include "newdata/tables.h"
#include "schedule/model/schedule.h"
#include "schedule/model/scl_items.h"
#include "services/text.h"

namespace {

enum Status { kOpen, kDone, kBegun, kPutOff };

struct SampleItem {
  std::uint32_t hours;
  bool alarm;
  Status status;
  int spot;  // row of kSampleSpots; -1 for none
  const char* text;
};
constexpr SampleItem kItems[] = {
    {1, true, kDone, kHome, "机の上を片付ける"},
    {2, true, kOpen, kHome, "今週の予定を書き出す"},
    {1, true, kDone, kMarket, "カレーの材料を買う"},
    {6, false, kBegun, kStudio, "写真の整理"},
    {9, true, kDone, kLibrary, "読書: 地図の歴史 第1章"},
    {9, true, kBegun, kLibrary, "読書: 地図の歴史 第2章"},
    {3, true, kOpen, kSchool, "英単語の復習"},
    {0, false, kOpen, -1, ""},
    {12, false, kPutOff, kHome, "部屋の模様替え"},
    {18, true, kPutOff, kPost, "年賀状の宛名書き"},
    {2, true, kDone, kStore, "大事なファイルの控えを取る"},
    {1, true, kOpen, -1, "来月の予定を立てる"},
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
  SclMapFileSet(kSampleMapFile);
  int place = 0;
  for (const SampleItem& sample : kItems) {
    if (sample.spot >= 0)
      SclMapPlaceSet(place, kSampleSpots[sample.spot].column, kSampleSpots[sample.spot].row);
    SclItemRec& item = SclItem(place++);
    item.hours = sample.hours;
    item.alarmOn = sample.alarm ? 1 : 0;
    item.doneState = static_cast<std::uint8_t>(sample.status);
    TextCopy(item.text, kSclItemTextSize, sample.text);
  }
  SclRecalcAll();
}
