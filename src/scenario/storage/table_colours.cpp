#include "scenario/storage/table_colours.h"

#include <algorithm>
#include <iterator>

namespace {

struct Triple {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
};
constexpr int kTextTriples = 7;  // of text and frame
constexpr int kTitleTriples = 3;
constexpr int kBackTriples = 3;

struct Scheme {
  Triple text;   // the first six
  Triple frame;  // the seventh
  Triple titles;
  Triple back;    // the first
  Triple others;  // the other backs
};
constexpr Triple kWhite{255, 255, 255};
constexpr Triple kBlack{0, 0, 0};
constexpr Triple kBlue{0, 0, 250};
constexpr Triple kGrey{200, 200, 200};
constexpr Triple kDeepBlue{0, 0, 200};
constexpr Scheme kUser{kWhite, kWhite, kGrey, kDeepBlue, kDeepBlue};
constexpr Scheme kSchemes[] = {
    {kWhite, kWhite, kBlue, kBlack, kBlack},
    {kBlack, kBlue, {0, 200, 200}, kGrey, kGrey},
    // kept: only the first back of the third colour scheme of the table form is blue, the others
    // are grey.
    {kWhite, kWhite, kGrey, kDeepBlue, kGrey},
    kUser,
    kUser,
    kUser,
    kUser,
};

void Put(std::uint8_t (&to)[3], const Triple& from) {
  to[0] = from.red;
  to[1] = from.green;
  to[2] = from.blue;
}

}  // namespace

void SnryTableColours(SnryTableRec& table) {
  if (table.colourRow >= std::size(kSchemes)) return;
  const Scheme& scheme = kSchemes[table.colourRow];
  for (int i = 0; i < kTextTriples; ++i) {
    Put(table.colours[i], i + 1 < kTextTriples ? scheme.text : scheme.frame);
  }
  for (int i = 0; i < kTitleTriples; ++i) Put(table.colours[kTextTriples + i], scheme.titles);
  for (int i = 0; i < kBackTriples; ++i) {
    Put(table.colours[kTextTriples + kTitleTriples + i], i == 0 ? scheme.back : scheme.others);
  }
}
