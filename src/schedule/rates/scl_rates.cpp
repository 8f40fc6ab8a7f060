#include "schedule/rates/scl_rates.h"

#include <tuple>

#include "schedule/model/scl_items.h"
#include "services/text.h"

namespace {

constexpr int kFinished = 1;
constexpr float kHundred = 100;
constexpr float kFractionScale = 100000000;
constexpr int kFractionMost = 99;

float PerCent(std::int64_t part, std::int64_t whole) {
  return static_cast<float>(part) * kHundred / static_cast<float>(whole);
}

}  // namespace

SclRates SclRatesOf(int year, int month, int day) {
  SclRates rates{};
  std::int64_t total = 0;
  std::int64_t done = 0;
  std::int64_t due = 0;
  for (int index = 0; index < Schedule.SclHeader.count; ++index) {
    const SclItemRec& item = Schedule.SclItemTable[index];
    if (item.hours == 0) continue;
    total += item.hours;
    if (item.doneState == kFinished) done += item.hours;
    const std::tuple<int, int, int> end{item.end.year, item.end.month, item.end.day};
    if (end < std::tuple{year, month, day}) due += item.hours;
    rates.any = true;
    rates.end = item.end;
  }
  rates.reached = total != 0;
  if (!rates.reached) return rates;
  rates.done = PerCent(done, total);
  rates.due = PerCent(due, total);
  rates.measured = rates.due != 0;
  if (rates.measured) rates.progress = kHundred * rates.done / rates.due;
  return rates;
}

// kept: the decimals of a rate lose the zeros that they begin with, so that 5.05 reads as 5.5.
void SclRateText(float rate, char* text, int size) {
  const auto whole = static_cast<std::int64_t>(rate);
  auto rest = static_cast<std::int64_t>((rate - static_cast<float>(whole)) * kFractionScale);
  while (rest > kFractionMost) rest /= 100;
  TextFormat(text, static_cast<std::size_t>(size), "%d.%d％", static_cast<int>(whole),
             static_cast<int>(rest));
}

void SclRateDateText(int year, int month, int day, char* text, int size) {
  char digits[16];
  SclYearText(year, digits, sizeof digits);
  TextFormat(text, static_cast<std::size_t>(size), "20%s年 %d月 %d日", digits, month + 1, day + 1);
}
