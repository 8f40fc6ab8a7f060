// The entry of every native test program.
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

int main(int argc, char** argv) {
  // File times come out the same on every machine.
  setenv("TZ", "JST-9", 1);
  tzset();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
