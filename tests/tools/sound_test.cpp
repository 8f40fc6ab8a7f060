#include "newdata/sound.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace {

std::string ErrorOf(const std::string& recipe) {
  try {
    MakeSound(recipe);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "";
}

int PeakOf(const Samples& samples) {
  int peak = 0;
  for (const int sample : samples) peak = std::max(peak, std::abs(sample));
  return peak;
}

// Upward passes through 0: the periods of a plain tone.
int PassesUp(const Samples& samples, std::size_t from, std::size_t to) {
  int passes = 0;
  for (std::size_t i = from + 1; i < to; ++i) passes += samples[i - 1] < 0 && samples[i] >= 0;
  return passes;
}

}  // namespace

TEST(WavFile, HeaderOfMono16BitAt22050Hz) {
  const Bytes expected{
      'R', 'I', 'F', 'F', 40,  0,   0,   0,   'W',  'A',  'V', 'E', 'f',  'm',  't',  ' ',
      16,  0,   0,   0,   1,   0,   1,   0,   0x22, 0x56, 0,   0,   0x44, 0xAC, 0,    0,
      2,   0,   16,  0,   'd', 'a', 't', 'a', 4,    0,    0,   0,   1,    0,    0xFE, 0xFF,
  };
  EXPECT_EQ(WavFile({1, -2}), expected);
}

TEST(MakeSound, LengthIsThatOfTheRecipe) {
  EXPECT_EQ(MakeSound("length 0.5\ntone at 0 from 440\n").size(), 11025U);
}

TEST(MakeSound, PitchIsThatOfTheRecipe) {
  const Samples samples = MakeSound("length 2\ntone from 440\n");
  EXPECT_NEAR(PassesUp(samples, 0, 22050), 440, 1);
}

TEST(MakeSound, GlidePassesThroughItsMiddlePitch) {
  const Samples samples = MakeSound("length 2\ntone from 200 via 800 to 200\n");
  // A tenth of a second around the middle holds about 80 periods.
  EXPECT_NEAR(PassesUp(samples, 22050 - 1102, 22050 + 1102), 80, 2);
}

TEST(MakeSound, IsLevelledBelowTheLimitAndEndsInSilence) {
  for (const char* recipe : {"length 0.3\ntone from 300 gain 90\n", "length 0.3\ntone from 300 gain 0.01\n",
                             "length 0.3\nnoise low 900 gain 2\ntone from 80 gain 3\n"}) {
    const Samples samples = MakeSound(recipe);
    EXPECT_GT(PeakOf(samples), kPeak / 2) << recipe;
    EXPECT_LE(PeakOf(samples), kPeak) << recipe;
    EXPECT_EQ(samples.back(), 0) << recipe;
    const Samples tail(samples.end() - 40, samples.end());
    EXPECT_LT(PeakOf(tail), kPeak / 10) << recipe;
  }
}

TEST(MakeSound, PeakIsThatOfTheRecipe) {
  EXPECT_NEAR(PeakOf(MakeSound("length 0.5\npeak 0.25\ntone from 300\n")), kPeak / 4, 20);
}

TEST(MakeSound, DecayBringsTheLoudnessDown) {
  const Samples samples = MakeSound("length 1\ntone from 500 attack 0 decay 0.1\n");
  const Samples first(samples.begin(), samples.begin() + 441);
  const Samples later(samples.begin() + 6615, samples.begin() + 7056);  // 0.3 s on: e to the -3
  EXPECT_NEAR(PeakOf(later) / static_cast<double>(PeakOf(first)), 0.05, 0.01);
}

TEST(MakeSound, SameRecipeGivesTheSameSound) {
  const std::string recipe = "length 0.2\nnoise low 1000 high 100 gain 1\n";
  EXPECT_EQ(MakeSound(recipe), MakeSound(recipe));
}

TEST(MakeSound, CommentsAndEmptyLinesArePassedOver) {
  EXPECT_EQ(MakeSound("# bell\n\nlength 0.1 # short\ntone from 440 # a\n"),
            MakeSound("length 0.1\ntone from 440\n"));
}

TEST(MakeSound, LinesBeyondTheLengthAreCutOff) {
  const Samples samples =
      MakeSound("length 0.2\ntone from 440\ntone at 0.1 for 5 from 220\ntone at 9 from 100\n");
  EXPECT_EQ(samples.size(), 4410U);
}

TEST(MakeSound, BadRecipesNameTheirLine) {
  EXPECT_EQ(ErrorOf("length 1\nbang at 0\n"), "line 2: unknown word \"bang\"");
  EXPECT_EQ(ErrorOf("length 1\ntone colour 3\n"), "line 2: unknown name \"colour\"");
  EXPECT_EQ(ErrorOf("length 1\ntone from\n"), "line 2: no number after \"from\"");
  EXPECT_EQ(ErrorOf("length 1\ntone from -3\n"), "line 2: \"from\" is below 0");
  EXPECT_EQ(ErrorOf("tone from 3\n"), "line 1: the length stands first");
  const std::string length = "the length stands first, once, and is above 0 and at most 20";
  EXPECT_EQ(ErrorOf("length 1\nlength 2\n"), "line 2: " + length);
  EXPECT_EQ(ErrorOf("length 21\n"), "line 1: " + length);
  EXPECT_EQ(ErrorOf("length 0\n"), "line 1: " + length);
  EXPECT_EQ(ErrorOf("length x\n"), "line 1: " + length);
  EXPECT_EQ(ErrorOf("length 1\npeak 1.5\n"), "line 2: the peak is above 0 and at most 1");
  EXPECT_EQ(ErrorOf("peak 0\n"), "line 1: the peak is above 0 and at most 1");
  EXPECT_EQ(ErrorOf(""), "the recipe makes no sound");
  EXPECT_EQ(ErrorOf("length 1\n"), "the recipe makes no sound");
}
