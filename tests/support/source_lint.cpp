#include "tests/support/source_lint.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "tests/support/house_rules.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kBackends[] = {"platform/win32/", "platform/posix/", "platform/headless/"};

// Headers of the language itself.
constexpr const char* kLanguageHeaders[] = {
    "algorithm",        "array",    "bit",    "cctype",  "climits",     "compare", "cstdarg",
    "cstddef",          "cstdint",  "cstdio", "cstdlib", "cstring",     "deque",   "functional",
    "initializer_list", "iterator", "limits", "map",     "memory",      "numeric", "optional",
    "random",           "set",      "span",   "string",  "string_view", "tuple",   "type_traits",
    "utility",          "vector",   "cmath",
};

bool InBackend(const std::string& path) {
  return std::any_of(std::begin(kBackends), std::end(kBackends),
                     [&](const char* folder) { return path.starts_with(folder); });
}

bool IsWord(char c) {
  return c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0;
}

// An apostrophe inside a number, and not one that opens a letter (L'a').
bool SeparatesDigits(const std::string& text, std::size_t at) {
  if (at == 0 || !IsWord(text[at - 1])) return false;
  const char before = text[at - 1];
  const bool prefix = before == 'L' || before == 'u' || before == 'U';
  return !prefix || (at > 1 && IsWord(text[at - 2]));
}

}  // namespace

// Line by line the same length; names in #include stay.
std::string SourceCodeOnly(const std::string& text) {
  std::string code = text;
  enum class In { Code, Line, Block, Text, Letter } in = In::Code;
  bool include = false;
  for (std::size_t i = 0; i < code.size(); ++i) {
    const char c = text[i];
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    if (c == '\n') {
      if (in == In::Line) in = In::Code;
      include = false;
      continue;
    }
    switch (in) {
      case In::Code:
        if (c == '#') include = text.find("include", i) < text.find('\n', i);
        if (c == '/' && (next == '/' || next == '*')) {
          in = next == '/' ? In::Line : In::Block;
          code[i] = ' ';
        } else if (c == '"' && !include) {
          in = In::Text;
        } else if (c == '\'' && !SeparatesDigits(text, i)) {
          in = In::Letter;
        }
        break;
      case In::Line:
        code[i] = ' ';
        break;
      case In::Block:
        code[i] = ' ';
        if (c == '*' && next == '/') {
          code[++i] = ' ';
          in = In::Code;
        }
        break;
      case In::Text:
      case In::Letter:
        if (c == '\\') {
          code[i] = ' ';
          if (next != '\n' && i + 1 < code.size()) code[++i] = ' ';
        } else if (c == (in == In::Text ? '"' : '\'')) {
          in = In::Code;
        } else {
          code[i] = ' ';
        }
        break;
    }
  }
  return code;
}

namespace {

constexpr const char* kForbiddenCalls[] = {"strcpy", "strcat", "sprintf", "vsprintf",
                                           "gets",   "system", "strtok",  "popen"};

bool Calls(const std::string& line, const std::string& name) {
  for (std::size_t at = line.find(name); at != std::string::npos; at = line.find(name, at + 1)) {
    if (at > 0 && IsWord(line[at - 1])) continue;
    const std::size_t next = line.find_first_not_of(" \t", at + name.size());
    if (next != std::string::npos && line[next] == '(') return true;
  }
  return false;
}

// The name in an #include line and the bracket in front of it; empty for any
// other line.
std::string IncludedBy(const std::string& line, char* bracket) {
  const std::size_t hash = line.find_first_not_of(" \t");
  if (hash == std::string::npos || line[hash] != '#') return {};
  const std::size_t word = line.find_first_not_of(" \t", hash + 1);
  if (word == std::string::npos || line.compare(word, 7, "include") != 0) return {};
  const std::size_t open = line.find_first_of("<\"", word);
  if (open == std::string::npos) return {};
  const std::size_t close = line.find_first_of(">\"", open + 1);
  if (close == std::string::npos) return {};
  *bracket = line[open];
  return line.substr(open + 1, close - open - 1);
}

}  // namespace

std::vector<std::string> LintSource(const std::string& path, const std::string& text) {
  std::vector<std::string> findings;
  std::istringstream lines(SourceCodeOnly(text));
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    const auto find = [&](const std::string& what) {
      findings.push_back(path + ":" + std::to_string(number) + ": " + what);
    };
    char bracket = 0;
    const std::string name = IncludedBy(line, &bracket);
    if (!name.empty() && !InBackend(path)) {
      const bool language = std::any_of(std::begin(kLanguageHeaders), std::end(kLanguageHeaders),
                                        [&](const char* header) { return name == header; });
      if (bracket == '<' && !language) find("the system header <" + name + "> outside the backends");
      if (bracket == '"' && InBackend(name))
        find("the backend's header \"" + name + "\" outside the backends");
    }
    for (const char* call : kForbiddenCalls) {
      if (Calls(line, call)) find(std::string("the call ") + call);
    }
  }
  return findings;
}

std::string LintTree(const std::string& folder) {
  std::vector<std::string> paths;
  for (const auto& item : fs::recursive_directory_iterator(folder)) {
    const std::string extension = item.path().extension().string();
    if (extension == ".h" || extension == ".cpp") paths.push_back(item.path().string());
  }
  std::sort(paths.begin(), paths.end());
  std::string text;
  for (const std::string& path : paths) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    for (const std::string& finding : LintSource(fs::relative(path, folder).string(), bytes)) {
      text += finding + "\n";
    }
  }
  return text;
}
