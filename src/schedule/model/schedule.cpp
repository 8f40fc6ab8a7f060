#include "schedule/model/schedule.h"

#include <algorithm>
#include <limits>

#include "services/text.h"
#include "services/today.h"

ScheduleState Schedule;

namespace {

constexpr int kClearedItems = 200;
constexpr SclWorkDayRow kWorkDay{10, 8, 18};

int Held(int index) {
  return std::clamp(index, 0, kSclItemMax - 1);
}

void DefaultHours(const SclWorkDayRow& day) {
  Schedule.SclHeader.dayLength = day.length;
  Schedule.SclHeader.dayBegin = day.begin;
  Schedule.SclHeader.dayEnd = day.end;
  std::fill_n(Schedule.SclHeader.rows, kSclRowCount, kWorkDay);
  Schedule.SclHeader.count = kSclNewItems;
}

void ForgetFile() {
  Schedule.SclCurrentFile[0] = '\0';
  Schedule.SclExecMark = SclMark::None;
}

}  // namespace

void SclDefaults() {
  DefaultHours(kWorkDay);
}

void SclNewDefaults(int year, int month, int day) {
  DefaultHours(Schedule.SclHeader.kind == 1 ? kWorkDay : SclWorkDayRow{kSclDayHours, 0, kSclDayHours});
  Schedule.SclHeader.title[0] = '\0';
  Schedule.SclHeader.start = {year, month, day, kWorkDay.begin};
  // kept: a new schedule clears the first 200 items only; what stands behind them stays.
  std::fill_n(Schedule.SclItemTable, kClearedItems, SclItemRec{});
  ForgetFile();
}

void SclNew() {
  Schedule.SclHeader.kind = 1;
  const SclDate now = SclDateNow();
  SclNewDefaults(now.year, now.month, now.day);
}

void SclRowEndsRefresh(SclWorkDayRow (&rows)[kSclRowCount]) {
  for (SclWorkDayRow& row : rows) {
    const std::int64_t end = std::int64_t{row.begin} + row.length;
    row.end = static_cast<std::int32_t>(
        std::clamp<std::int64_t>(end, std::numeric_limits<std::int32_t>::min(), kSclDayHours));
  }
}

SclItemRec& SclItem(int index) {
  return Schedule.SclItemTable[Held(index)];
}

void SclKindSet(int kind) {
  Schedule.SclHeader.kind = static_cast<std::uint8_t>(kind);
}

void SclCountSet(int count) {
  Schedule.SclHeader.count = std::clamp(count, 0, kSclItemMax);
}

SclWorkDayRow (&SclRows())[kSclRowCount] {
  return Schedule.SclHeader.rows;
}

SclDate& SclStart() {
  return Schedule.SclHeader.start;
}

char (&SclTitle())[kSclTitleSize] {
  return Schedule.SclHeader.title;
}

void SclCurrentFileSet(const char* path) {
  TextCopy(Schedule.SclCurrentFile, sizeof Schedule.SclCurrentFile, path);
}

void SclDirtyRaise(unsigned bits) {
  Schedule.SclDirtyFlags |= bits;
}

void SclDirtyClear(unsigned bits) {
  Schedule.SclDirtyFlags &= ~bits;
}

void SclConvertedSet(bool converted) {
  Schedule.SclConverted = converted;
}

void SclMapFileSet(const char* path) {
  TextCopy(Schedule.SclMapFile, sizeof Schedule.SclMapFile, path);
}

void SclMapPlaceSet(int index, int column, int row) {
  Schedule.SclMapColumn[Held(index)] = static_cast<std::uint16_t>(column);
  Schedule.SclMapRow[Held(index)] = static_cast<std::uint16_t>(row);
}

void SclConversionBegin(const char* title, const SclWorkDayRow (&rows)[kSclRowCount]) {
  std::fill_n(Schedule.SclItemTable, kSclItemMax, SclItemRec{});
  Schedule.SclHeader.count = 0;
  TextCopy(Schedule.SclHeader.title, kSclTitleSize, title);
  std::copy_n(rows, kSclRowCount, Schedule.SclHeader.rows);
  SclRowEndsRefresh(Schedule.SclHeader.rows);
}

void SclConversionEnd() {
  ForgetFile();
  Schedule.SclConverted = true;
}
