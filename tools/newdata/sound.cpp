#include "newdata/sound.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <span>
#include <sstream>
#include <stdexcept>

#include "newdata/host_file.h"

namespace {

constexpr double kFadeSeconds = 0.03;   // at the end of every line and of the whole
constexpr double kLengthMax = 20;       // seconds
constexpr unsigned kNoiseSeed = 20250;  // the same noise every time

// One line of a recipe. Numbers that a line may leave out begin below 0 where 0
// would mean something else.
struct Voice {
  double at = 0;
  double duration = -1;
  double from = 0;
  double via = -1;
  double to = -1;
  double gain = 1;
  double attack = 0.005;
  double decay = 0;
  double vibrato = 0;
  double depth = 0;
  double low = kSampleRate / 2.0;
  double high = 0;
};

struct VoiceName {
  const char* name;
  double Voice::*number;
};
constexpr VoiceName kCommonNames[] = {{"at", &Voice::at},
                                      {"for", &Voice::duration},
                                      {"gain", &Voice::gain},
                                      {"attack", &Voice::attack},
                                      {"decay", &Voice::decay}};
constexpr VoiceName kToneNames[] = {{"from", &Voice::from},
                                    {"via", &Voice::via},
                                    {"to", &Voice::to},
                                    {"vibrato", &Voice::vibrato},
                                    {"depth", &Voice::depth}};
constexpr VoiceName kNoiseNames[] = {{"low", &Voice::low}, {"high", &Voice::high}};

double* NumberOf(Voice& voice, const std::string& name, std::span<const VoiceName> names) {
  for (const VoiceName& known : names) {
    if (name == known.name) return &(voice.*known.number);
  }
  return nullptr;
}

// The pairs of a line; besides the common names it may have `names`.
Voice ReadVoice(std::istringstream& line, std::span<const VoiceName> names, double length) {
  Voice voice;
  std::string name;
  while (line >> name) {
    double* number = NumberOf(voice, name, kCommonNames);
    if (!number) number = NumberOf(voice, name, names);
    if (!number) throw std::runtime_error("unknown name \"" + name + "\"");
    if (!(line >> *number)) throw std::runtime_error("no number after \"" + name + "\"");
    if (*number < 0) throw std::runtime_error("\"" + name + "\" is below 0");
  }
  voice.at = std::min(voice.at, length);
  const double rest = length - voice.at;
  voice.duration = voice.duration < 0 ? rest : std::min(voice.duration, rest);
  if (voice.to < 0) voice.to = voice.from;
  if (voice.via < 0) voice.via = (voice.from + voice.to) / 2;
  return voice;
}

// Loudness of a voice `t` seconds after its beginning.
double Envelope(const Voice& voice, double t) {
  double level = voice.gain;
  if (voice.attack > 0 && t < voice.attack) level *= t / voice.attack;
  if (voice.decay > 0) level *= std::exp(-t / voice.decay);
  return level * std::clamp((voice.duration - t) / kFadeSeconds, 0.0, 1.0);
}

std::size_t SampleCount(double seconds) {
  return static_cast<std::size_t>(seconds * kSampleRate);
}

// The pitch at `part` (0 to 1) of a tone: the curve through its three pitches.
double PitchAt(const Voice& voice, double part) {
  const double bend = 2 * voice.via - (voice.from + voice.to) / 2;  // its control point
  return (1 - part) * (1 - part) * voice.from + 2 * part * (1 - part) * bend + part * part * voice.to;
}

void AddTone(const Voice& voice, std::vector<double>& mix) {
  const std::size_t first = SampleCount(voice.at);
  double phase = 0;
  for (std::size_t i = 0; i < SampleCount(voice.duration) && first + i < mix.size(); ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    const double sway = 1 + voice.depth * std::sin(2 * std::numbers::pi * voice.vibrato * t);
    mix[first + i] += Envelope(voice, t) * std::sin(phase);
    phase += 2 * std::numbers::pi * PitchAt(voice, t / voice.duration) * sway / kSampleRate;
  }
}

// How far a one-pole filter follows its input at each sample.
double FollowOf(double hertz) {
  return 1 - std::exp(-2 * std::numbers::pi * hertz / kSampleRate);
}

void AddNoise(const Voice& voice, std::vector<double>& mix) {
  const std::size_t first = SampleCount(voice.at);
  const double lowFollow = FollowOf(voice.low);
  const double highFollow = FollowOf(voice.high);
  std::minstd_rand random(kNoiseSeed);
  constexpr double kHalfRange = static_cast<double>(std::minstd_rand::max()) / 2;
  double low = 0;
  double below = 0;
  for (std::size_t i = 0; i < SampleCount(voice.duration) && first + i < mix.size(); ++i) {
    const double white = static_cast<double>(random()) / kHalfRange - 1;
    low += lowFollow * (white - low);
    below += highFollow * (low - below);
    mix[first + i] += Envelope(voice, static_cast<double>(i) / kSampleRate) * (low - below);
  }
}

void AddLine(const std::string& kind, std::istringstream& line, std::vector<double>& mix, double* peak) {
  if (kind == "peak") {
    if (!(line >> *peak) || *peak <= 0 || *peak > 1)
      throw std::runtime_error("the peak is above 0 and at most 1");
    return;
  }
  if (kind == "length") {
    double length = 0;
    if (!mix.empty() || !(line >> length) || length <= 0 || length > kLengthMax) {
      throw std::runtime_error("the length stands first, once, and is above 0 and at most 20");
    }
    mix.resize(SampleCount(length));
    return;
  }
  if (mix.empty()) throw std::runtime_error("the length stands first");
  const double length = static_cast<double>(mix.size()) / kSampleRate;
  if (kind == "tone") {
    AddTone(ReadVoice(line, kToneNames, length), mix);
  } else if (kind == "noise") {
    AddNoise(ReadVoice(line, kNoiseNames, length), mix);
  } else {
    throw std::runtime_error("unknown word \"" + kind + "\"");
  }
}

Samples Level(const std::vector<double>& mix, double peak) {
  double loudest = 0;
  for (const double value : mix) loudest = std::max(loudest, std::abs(value));
  if (loudest == 0) throw std::runtime_error("the recipe makes no sound");
  Samples samples;
  samples.reserve(mix.size());
  for (std::size_t i = 0; i < mix.size(); ++i) {
    const double left = static_cast<double>(mix.size() - 1 - i) / kSampleRate;
    const double fade = std::min(1.0, left / kFadeSeconds);
    samples.push_back(static_cast<std::int16_t>(std::lround(mix[i] / loudest * peak * kPeak * fade)));
  }
  return samples;
}

}  // namespace

Samples MakeSound(const std::string& recipe) {
  std::vector<double> mix;
  double peak = 1;
  std::istringstream lines(recipe);
  std::string text;
  for (int number = 1; std::getline(lines, text); ++number) {
    std::istringstream line(text.substr(0, text.find('#')));
    std::string kind;
    if (!(line >> kind)) continue;
    try {
      AddLine(kind, line, mix, &peak);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error("line " + std::to_string(number) + ": " + error.what());
    }
  }
  return Level(mix, peak);
}

Bytes WavFile(const Samples& samples) {
  const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
  Bytes file;
  AddText(file, "RIFF");
  AddLE32(file, 36 + dataBytes);
  AddText(file, "WAVE");
  AddText(file, "fmt ");
  AddLE32(file, 16);
  AddLE16(file, 1);  // PCM
  AddLE16(file, 1);  // mono
  AddLE32(file, kSampleRate);
  AddLE32(file, kSampleRate * 2);
  AddLE16(file, 2);
  AddLE16(file, 16);
  AddText(file, "data");
  AddLE32(file, dataBytes);
  for (const std::int16_t sample : samples) AddLE16(file, static_cast<std::uint16_t>(sample));
  return file;
}

Samples MakeSoundOf(const std::filesystem::path& recipeFile) {
  const Bytes recipe = ReadHostFile(recipeFile);
  try {
    return MakeSound(std::string(recipe.begin(), recipe.end()));
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(recipeFile.string() + ": " + error.what());
  }
}
