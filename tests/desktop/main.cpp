#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace {

// Given a file with this ending and nothing else, the program plays one that files
// are opened with: it leaves a mark beside the file.
constexpr char kOpened[] = ".opened";

bool MarkLeave(const std::string& file) {
  const std::string ending = kOpened;
  if (file.size() < ending.size() || file.substr(file.size() - ending.size()) != ending) return false;
  std::ofstream(file + ".mark") << "opened";
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 2 && MarkLeave(arguments[1])) return 0;
  testing::InitGoogleTest(&count, arguments);
  const int result = RUN_ALL_TESTS();
  std::fflush(stdout);
  return result;
}
