#include "filetools/open/open_search.h"

#include <algorithm>
#include <cstring>

#include "services/text.h"

OpnSearchResultRec OpnSearchResult;

namespace {

struct Word {
  const char* text;
  int length;
};

// Bytes of the character at `text`.
int Step(const char* text) {
  return IsSjisLead(text[0]) && text[1] != '\0' ? 2 : 1;
}

// The words of a search field.
// kept: a double-byte blank parts no words of a search.
struct Words {
  explicit Words(const char* text);
  int count = 0;
  Word words[kOpnSearchWordMax];
  char field[kOpnSearchSize];
};

Words::Words(const char* text) {
  TextCopyWhole(field, sizeof field, text);
  const char* at = field;
  while (*at != '\0') {
    if (*at == ' ') {
      ++at;
      continue;
    }
    const char* start = at;
    while (*at != '\0' && *at != ' ') at += Step(at);
    words[count++] = {start, static_cast<int>(at - start)};
  }
}

// What counts of a word that is looked for in comments.
Word CommentWord(const Word& word) {
  return {word.text, std::min(word.length, static_cast<int>(TextPrefix(word.text, kOpnCommentWordSize)))};
}

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
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

// kept: the search of comments starts anew behind a byte that did not match, so that
// "aab" is not found in "aaab".
bool Holds(const char* comment, const Word& word) {
  int matched = 0;
  for (int i = 0; i < kOpnCommentSize - 1 && comment[i] != '\0'; ++i) {
    matched = comment[i] == word.text[matched] ? matched + 1 : 0;
    if (matched == word.length) return true;
  }
  return false;
}

void Found(int group) {
  ++OpnSearchResult.matches[group];
  ++OpnSearchResult.count;
}

}  // namespace

int OpnSearchGroup(int row) {
  int group = 0;
  while (group < kOpnGroupMax - 1 && row >= OpnSearchResult.matches[group]) {
    row -= OpnSearchResult.matches[group++];
  }
  return group;
}

int OpnSearchNames(const char* text) {
  const Words words(text);
  OpnSearchResult = {};
  for (int group = 0; group < kOpnGroupMax; ++group) {
    const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
    for (int word = 0; word < words.count; ++word) {
      for (int row = 0; row < g.fileCount; ++row) {
        if (BeginsWith(g.fileName[row], words.words[word])) Found(group);
      }
    }
  }
  return OpnSearchResult.count;
}

int OpnSearchComments(const char* text) {
  const Words words(text);
  OpnSearchResult = {};
  for (int group = 0; group < kOpnGroupMax; ++group) {
    const OpnGroupRec& g = OpnGroups.OpnGroupTable[group];
    // settled: a group without files is passed over by the search of comments too.
    if (g.fileCount == 0) continue;
    for (int word = 0; word < std::min(words.count, kOpnCommentWordMax); ++word) {
      if (Holds(g.comment, CommentWord(words.words[word]))) Found(group);
    }
  }
  return OpnSearchResult.count;
}
