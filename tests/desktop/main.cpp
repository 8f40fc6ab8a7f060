#include <gtest/gtest.h>

#include <cstdio>

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  const int result = RUN_ALL_TESTS();
  std::fflush(stdout);
  return result;
}
