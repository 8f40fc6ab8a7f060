// The rows of list boxes and combo boxes: where they come from, and how they get there.
#pragma once

#include <cstddef>

#include "platform/types.h"

inline constexpr int kRowTextSize = 1100;  // bytes of the longest row, with its terminator

// A table of texts, a function that tells each text, or the numbers from `first` on.
struct Rows {
  int count = 0;
  const char* const* labels = nullptr;
  void (*text)(int row, char* text, int size) = nullptr;
  bool (*some)(int row, char* text, int size) = nullptr;
  int first = 0;
};

template <std::size_t N>
constexpr Rows RowsOf(const char* const (&labels)[N]) {
  return {static_cast<int>(N), labels, nullptr, nullptr, 0};
}
// `text` writes a row into `size` bytes, terminated.
constexpr Rows RowsOf(int count, void (*text)(int row, char* text, int size)) {
  return {count, nullptr, text, nullptr, 0};
}
// The same, but a row for which `some` returns false is left out: for tables with gaps. A
// row on show is found again by counting those that are in use (services/slots.h).
constexpr Rows RowsOf(int count, bool (*some)(int row, char* text, int size)) {
  return {count, nullptr, nullptr, some, 0};
}
// Both in; shown with "%2d".
constexpr Rows RowsOfNumbers(int first, int last) {
  return {last - first + 1, nullptr, nullptr, nullptr, first};
}
inline constexpr Rows kHourRows = RowsOfNumbers(0, 23);
inline constexpr Rows kMinuteRows = RowsOfNumbers(0, 59);

// Writes the text of a row, terminated at `size`. False for a row that is left out.
bool RowText(const Rows& rows, int row, char* text, int size);

// Fills a list anew and chooses the row at a place of the list; -1, and a place that there
// is not, for none. The list draws once, when all is in it.
void RowsShow(WindowHandle dialog, int list, const Rows& rows, int chosen = -1);
