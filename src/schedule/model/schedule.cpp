#include "schedule/model/schedule.h"

#include <algorithm>

#include "platform/time.h"
#include "services/text.h"

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
  SclFileForget();
}

void SclNew() {
  Schedule.SclHeader.kind = 1;
  LocalTime now = {};
  TimeGetLocal(&now);
  SclNewDefaults(now.year - 2000, now.month - 1, now.day - 1);
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

void SclFileForget() {
  Schedule.SclCurrentFile[0] = '\0';
  Schedule.SclExecMark = SclMark::None;
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
