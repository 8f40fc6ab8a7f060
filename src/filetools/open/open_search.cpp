#include "filetools/open/open_search.h"

#include "filetools/open/open_groups.h"
#include "filetools/open/open_text.h"
#include "services/text.h"

OpnSearchResultRec OpnSearchResult;

namespace {

constexpr int kCommentWordMax = 20;
constexpr int kCommentWordSize = 255;

struct Word {
  const char* text;
  int length;
};
Word words[kOpnSearchWordMax];
char field[kOpnSearchSize];

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Bytes of the character at `text`.
int Step(const char* text) {
  return IsSjisLead(text[0]) && text[1] != '\0' ? 2 : 1;
}

// Cuts the field into words; their number. A double-byte blank is a character like
// any other.
int Cut(const char* text) {
  TextCopy(field, sizeof field, text);
  int count = 0;
  const char* at = field;
  while (*at != '\0') {
    if (*at == ' ') {
      ++at;
      continue;
    }
    const char* start = at;
    while (*at != '\0' && *at != ' ') at += Step(at);
    if (count < kOpnSearchWordMax) words[count++] = {start, static_cast<int>(at - start)};
  }
  return count;
}

bool BeginsWith(const char* name, const Word& word) {
  if (word.length > kOpnTextUsed) return false;
  for (int i = 0; i < word.length;) {
    const int step = Step(word.text + i);
    const bool same = step == 2 ? name[i] == word.text[i] && name[i + 1] == word.text[i + 1]
                                : Lower(name[i]) == Lower(word.text[i]);
    if (!same) return false;
    i += step;
  }
  return true;
}

// kept: the scan starts anew behind a byte that did not match, so that "aab" is not
// found in "aaab".
bool Holds(const char* comment, const Word& word) {
  const int length = word.length < kCommentWordSize ? word.length : kCommentWordSize;
  int matched = 0;
  for (int i = 0; i < kOpnCommentSize - 1 && comment[i] != '\0'; ++i) {
    matched = comment[i] == word.text[matched] ? matched + 1 : 0;
    if (matched == length) return true;
  }
  return false;
}

void Found(int group) {
  OpnSearchResult.groups[OpnSearchResult.count++] = static_cast<std::uint8_t>(group);
}

}  // namespace

int OpnSearchNames(const char* text) {
  const int count = Cut(text);
  OpnSearchResult.count = 0;
  for (int group = 0; group < kOpnGroupMax; ++group) {
    const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
    for (int word = 0; word < count; ++word) {
      for (int row = 0; row < g.fileCount; ++row) {
        if (BeginsWith(g.fileName[row], words[word])) Found(group);
      }
    }
  }
  return OpnSearchResult.count;
}

int OpnSearchComments(const char* text) {
  const int cut = Cut(text);
  const int count = cut < kCommentWordMax ? cut : kCommentWordMax;
  OpnSearchResult.count = 0;
  for (int group = 0; group < kOpnGroupMax; ++group) {
    const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
    if (g.fileCount == 0) continue;
    for (int word = 0; word < count; ++word) {
      if (Holds(g.comment, words[word])) Found(group);
    }
  }
  return OpnSearchResult.count;
}
