#include "newdata/sound.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <random>
#include <sstream>
#include <stdexcept>

#include "newdata/host_file.h"

namespace {

constexpr double kFadeSeconds = 0.03;   // at the end of every line and of the whole
constexpr double kLengthMax = 20;       // seconds
constexpr unsigned kNoiseSeed = 20250;  // the same noise every time

using Values = std::map<std::string, double>;

double ValueOf(const Values& values, const std::string& name, double otherwise) {
  const auto at = values.find(name);
  return at == values.end() ? otherwise : at->second;
}

// The pairs of a line, each name one of `names`.
Values ReadPairs(std::istringstream& line, const std::vector<std::string>& names) {
  Values values;
  std::string name;
  while (line >> name) {
    double value = 0;
    if (std::find(names.begin(), names.end(), name) == names.end()) {
      throw std::runtime_error("unknown name \"" + name + "\"");
    }
    if (!(line >> value)) throw std::runtime_error("no number after \"" + name + "\"");
    if (value < 0) throw std::runtime_error("\"" + name + "\" is below 0");
    values[name] = value;
  }
  return values;
}

// Loudness of a line `t` seconds after its beginning.
double Envelope(const Values& values, double t, double duration) {
  const double attack = ValueOf(values, "attack", 0.005);
  const double decay = ValueOf(values, "decay", 0);
  double level = ValueOf(values, "gain", 1);
  if (attack > 0 && t < attack) level *= t / attack;
  if (decay > 0) level *= std::exp(-t / decay);
  return level * std::clamp((duration - t) / kFadeSeconds, 0.0, 1.0);
}

// The samples that a line covers.
struct Span {
  std::size_t first;
  std::size_t count;
  double duration;
};

Span SpanOf(const Values& values, std::size_t total) {
  const double at = ValueOf(values, "at", 0);
  const auto first = std::min(total, static_cast<std::size_t>(at * kSampleRate));
  const double rest = static_cast<double>(total - first) / kSampleRate;
  const double duration = std::min(rest, ValueOf(values, "for", rest));
  return {first, static_cast<std::size_t>(duration * kSampleRate), duration};
}

// The pitch at `part` (0 to 1) of a tone: the curve through its three pitches.
double PitchAt(const Values& values, double part) {
  const double from = ValueOf(values, "from", 0);
  const double to = ValueOf(values, "to", from);
  const double via = ValueOf(values, "via", (from + to) / 2);
  const double bend = 2 * via - (from + to) / 2;  // control point of the curve through `via`
  return (1 - part) * (1 - part) * from + 2 * part * (1 - part) * bend + part * part * to;
}

void AddTone(const Values& values, std::vector<double>& mix) {
  const Span span = SpanOf(values, mix.size());
  const double vibrato = ValueOf(values, "vibrato", 0);
  const double depth = ValueOf(values, "depth", 0);
  double phase = 0;
  for (std::size_t i = 0; i < span.count; ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    const double sway = 1 + depth * std::sin(2 * std::numbers::pi * vibrato * t);
    const double pitch = PitchAt(values, t / span.duration) * sway;
    mix[span.first + i] += Envelope(values, t, span.duration) * std::sin(phase);
    phase += 2 * std::numbers::pi * pitch / kSampleRate;
  }
}

// How far a one-pole filter follows its input at each sample.
double FollowOf(double hertz) {
  return 1 - std::exp(-2 * std::numbers::pi * hertz / kSampleRate);
}

void AddNoise(const Values& values, std::vector<double>& mix) {
  const Span span = SpanOf(values, mix.size());
  const double lowFollow = FollowOf(ValueOf(values, "low", kSampleRate / 2.0));
  const double highFollow = FollowOf(ValueOf(values, "high", 0));
  std::minstd_rand random(kNoiseSeed);
  double low = 0;
  double below = 0;
  for (std::size_t i = 0; i < span.count; ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    const double white =
        static_cast<double>(random()) / (static_cast<double>(std::minstd_rand::max()) / 2) - 1;
    low += lowFollow * (white - low);
    below += highFollow * (low - below);
    mix[span.first + i] += Envelope(values, t, span.duration) * (low - below);
  }
}

void AddLine(const std::string& kind, std::istringstream& line, std::vector<double>& mix) {
  if (kind == "length") {
    double length = 0;
    if (!mix.empty() || !(line >> length) || length <= 0 || length > kLengthMax) {
      throw std::runtime_error("the length stands first, once, and is above 0 and at most 20");
    }
    mix.resize(static_cast<std::size_t>(length * kSampleRate));
  } else if (mix.empty()) {
    throw std::runtime_error("the length stands first");
  } else if (kind == "tone") {
    AddTone(
        ReadPairs(line, {"at", "for", "from", "via", "to", "gain", "attack", "decay", "vibrato", "depth"}),
        mix);
  } else if (kind == "noise") {
    AddNoise(ReadPairs(line, {"at", "for", "low", "high", "gain", "attack", "decay"}), mix);
  } else {
    throw std::runtime_error("unknown word \"" + kind + "\"");
  }
}

Samples Level(const std::vector<double>& mix) {
  double peak = 0;
  for (const double value : mix) peak = std::max(peak, std::abs(value));
  if (peak == 0) throw std::runtime_error("the recipe makes no sound");
  Samples samples;
  samples.reserve(mix.size());
  for (std::size_t i = 0; i < mix.size(); ++i) {
    const double left = static_cast<double>(mix.size() - 1 - i) / kSampleRate;
    const double fade = std::min(1.0, left / kFadeSeconds);
    samples.push_back(static_cast<std::int16_t>(std::lround(mix[i] / peak * kPeak * fade)));
  }
  return samples;
}

}  // namespace

Samples MakeSound(const std::string& recipe) {
  std::vector<double> mix;
  std::istringstream lines(recipe);
  std::string text;
  for (int number = 1; std::getline(lines, text); ++number) {
    std::istringstream line(text.substr(0, text.find('#')));
    std::string kind;
    if (!(line >> kind)) continue;
    try {
      AddLine(kind, line, mix);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error("line " + std::to_string(number) + ": " + error.what());
    }
  }
  return Level(mix);
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
