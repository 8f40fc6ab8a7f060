// Looking for groups by the names of their files or by their comments.
#pragma once

#include <cstdint>

#include "filetools/open/open_groups.h"

// Bytes of a search field, and the words that fit into it with blanks between.
inline constexpr int kOpnSearchSize = 300;
inline constexpr int kOpnSearchWordMax = kOpnSearchSize / 2;

struct OpnSearchResultRec {
  int count;
  // kept: a group stands here once for every match.
  std::uint8_t groups[kOpnGroupMax * kOpnGroupFileMax * kOpnSearchWordMax];
};
extern OpnSearchResultRec OpnSearchResult;

// Both cut the text, at most 299 bytes, at half-width blanks into words, look through
// the groups that have files and fill OpnSearchResult with their places, from 0.
// They return how many there are.

// A match is a file name that begins with a word. Half-width letters compare without
// regard to case, double-byte characters exactly.
int OpnSearchNames(const char* text);

// A match is a comment that holds a word, byte for byte. Twenty words of 255 bytes
// are looked at.
int OpnSearchComments(const char* text);
