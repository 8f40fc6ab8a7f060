// The sample scenario of a new data set: "どんぐりの森", two scenario folders with five
// scenes, for whoever opens the scenario tools the first time.
#pragma once

#include <filesystem>

// A picture of the scenario's folder of backgrounds and the drawing that it is made from, a
// file of the assets' folder "scenario".
struct SamplePicture {
  const char* file;
  const char* drawing;
};
inline constexpr SamplePicture kSamplePictures[] = {
    {"広場.bmp", "hiroba.svg"}, {"書庫.bmp", "shoko.svg"},     {"川べり.bmp", "kawa.svg"},
    {"丘.bmp", "oka.svg"},      {"星の広場.bmp", "hoshi.svg"}, {"ドア.bmp", "tobira.svg"},
    {"窓.bmp", "mado.svg"},
};

// A sound of the scenario's folder of sounds and its recipe, a file of the assets' folder
// "sounds".
struct SampleSound {
  const char* file;
  const char* recipe;
};
inline constexpr SampleSound kSampleSounds[] = {
    {"小鳥.wav", "tori.txt"}, {"せせらぎ.wav", "seseragi.txt"}, {"とびら.wav", "tobira.txt"}};

inline constexpr const char8_t* kSampleFolder = u8"どんぐりの森";

// Makes the scenario in a program folder that has the world's characters already: its
// pictures and sounds, the scene files, the main file, and the list of scenarios. Throws
// std::runtime_error when a file cannot be written.
void WriteSampleScenario(const std::filesystem::path& folder, const std::filesystem::path& assets);
