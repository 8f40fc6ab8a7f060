// Sounds made from recipes.
//
// A recipe is a text file; "#" begins a comment. Each line is a word and pairs of
// a name and a number:
//
//   length SECONDS             of the whole sound; once, first
//   peak PART                  how loud the sound is, above 0 to 1; 1 if not told
//   tone  at .. for .. from .. to .. via .. gain .. attack .. decay ..
//         vibrato .. depth ..
//   noise at .. for .. low .. high .. gain .. attack .. decay ..
//
// at, for       beginning and duration in seconds
// from, via, to pitch in Hz at the beginning, the middle and the end of a tone;
//               without "to" it stays, without "via" it glides straight
// gain          loudness beside the other lines; the whole is levelled to its peak
// attack        seconds of the rise from silence
// decay         seconds in which the loudness falls to about a third; 0 or none: it
//               stays
// vibrato       how often a second the pitch sways; depth: by which part of it
// low, high     noise above "low" Hz and below "high" Hz is taken away
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "newdata/bytes.h"

inline constexpr int kSampleRate = 22050;
// The loudest sample of a sound of peak 1: some room is left below the 16-bit
// limit.
inline constexpr int kPeak = 24000;

using Samples = std::vector<std::int16_t>;

// Makes a recipe's sound. It is levelled to its peak and ends in silence. Throws
// std::runtime_error, which names the line, for a recipe that is not understood
// or that makes no sound.
Samples MakeSound(const std::string& recipe);

// A wave file: 16-bit mono PCM at kSampleRate.
Bytes WavFile(const Samples& samples);

// Reads a recipe's file; std::runtime_error names the file.
Samples MakeSoundOf(const std::filesystem::path& recipeFile);
