// Looking for groups by the names of their files or by their comments.
#pragma once

#include "filetools/open/open_groups.h"

// A comment is looked for by so many words, of so many bytes.
inline constexpr int kOpnCommentWordMax = 20;
inline constexpr int kOpnCommentWordSize = 255;

// Bytes of a search field: all those words with a blank between, and the terminator.
inline constexpr int kOpnSearchSize = kOpnCommentWordMax * (kOpnCommentWordSize + 1);
inline constexpr int kOpnSearchWordMax = kOpnSearchSize / 2;  // with a blank between

struct OpnSearchResultRec {
  int count;
  // kept: a group stands in a search's result once for every match.
  int matches[kOpnGroupMax];
};
extern OpnSearchResultRec OpnSearchResult;

// The group that stands in a row of the result, 0 up to count - 1.
int OpnSearchGroup(int row);

// Both cut the text at half-width blanks into words, look through the groups that have
// files and fill OpnSearchResult. They return how many matches there are. Of a text that
// is longer than a search field the whole characters that fit into one count.

// A match is a file name that begins with a word. Half-width letters compare without
// regard to case, double-byte characters exactly.
int OpnSearchNames(const char* text);

// A match is a comment that holds a word, byte for byte. Twenty words
// count, and of each the whole characters in its first 255 bytes.
int OpnSearchComments(const char* text);
