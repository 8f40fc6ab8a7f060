#include "services/text.h"

#include <gtest/gtest.h>

namespace {

TEST(Text, ACopyOfWholeCharactersSplitsNoPair) {
  char to[6] = "zzzzz";
  EXPECT_EQ(TextCopyWhole(to, sizeof to, "a日本"), 5U);
  EXPECT_STREQ(to, "a日本");
  EXPECT_EQ(TextCopyWhole(to, 5, "a日本"), 3U);
  EXPECT_STREQ(to, "a日");
  EXPECT_EQ(TextCopyWhole(to, 2, "日"), 0U);
  EXPECT_STREQ(to, "");
}

TEST(Text, ACopyOfWholeCharactersNeedsRoom) {
  char to[] = "z";
  EXPECT_EQ(TextCopyWhole(to, 0, "a"), 0U);
  EXPECT_STREQ(to, "z");
  EXPECT_EQ(TextCopyWhole(to, 1, "a"), 0U);
  EXPECT_STREQ(to, "");
}

}  // namespace
