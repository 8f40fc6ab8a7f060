#include "tests/desktop/data_set.h"

SettingsChange::SettingsChange(const Companion& companion)
    : path_(companion.File(kSettings)), bytes_(ReadWholeFile(path_)) {}

SettingsChange::~SettingsChange() {
  WriteWholeFile(path_, bytes_);
}

SettingsChange& SettingsChange::Byte(std::size_t at, int value) {
  bytes_.at(at) = static_cast<unsigned char>(value);
  return *this;
}

SettingsChange& SettingsChange::Number(std::size_t at, int value) {
  PutBig(bytes_, at, static_cast<std::uint32_t>(value));
  return *this;
}

SettingsChange& SettingsChange::LowFirst16(std::size_t at, int value) {
  return Byte(at, value & 0xFF).Byte(at + 1, (value >> 8) & 0xFF);
}

SettingsChange& SettingsChange::LowFirst32(std::size_t at, int value) {
  return LowFirst16(at, value & 0xFFFF).LowFirst16(at + 2, (value >> 16) & 0xFFFF);
}

int SettingsNumber(const Companion& companion, std::size_t at) {
  // The companion may be writing the file anew at this moment.
  constexpr std::size_t kSettingsSize = 172720;
  std::vector<unsigned char> bytes;
  const bool whole = WaitFor([&] {
    bytes = ReadWholeFile(companion.File(kSettings));
    return bytes.size() == kSettingsSize;
  });
  return whole ? static_cast<int>(GetBig(bytes, at)) : -1;
}

Picture LoadPicture(const Companion& companion, const std::wstring& name) {
  const std::vector<unsigned char> file = ReadWholeFile(companion.File(L"キャラクタ\\" + name));
  Picture picture;
  if (file.size() < 54) return picture;
  const auto little = [&](std::size_t at) {
    return static_cast<int>(file[at] | (file[at + 1] << 8U) | (file[at + 2] << 16U) | (file[at + 3] << 24U));
  };
  picture.width = little(18);
  picture.height = little(22);
  const auto start = static_cast<std::size_t>(little(10));
  const std::size_t row = (static_cast<std::size_t>(picture.width) * 3 + 3) / 4 * 4;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const std::size_t at =
          start + row * static_cast<std::size_t>(picture.height - 1 - y) + 3 * static_cast<std::size_t>(x);
      picture.pixels.push_back(
          static_cast<std::uint32_t>(file[at] | (file[at + 1] << 8U) | (file[at + 2] << 16U)));
    }
  }
  return picture;
}

int RegionDifference(const Companion& companion, HWND window, const std::wstring& mask, int left, int top) {
  const Picture picture = LoadPicture(companion, mask);
  int width = 0;
  int height = 0;
  const std::vector<bool> region = RegionPixels(window, &width, &height);
  if (region.empty() || picture.pixels.empty()) return -1;
  int differ = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int px = x - left;
      const int py = y - top;
      const bool inside = px >= 0 && py >= 0 && px < picture.width && py < picture.height &&
                          picture.pixels[static_cast<std::size_t>(py * picture.width + px)] == 0;
      if (region[static_cast<std::size_t>(y * width + x)] != inside) ++differ;
    }
  }
  return differ;
}

int StageTop() {
  return 1 + GetSystemMetrics(SM_CYMENU);
}

int StageDifference(const Companion& companion, const std::wstring& mask) {
  return RegionDifference(companion, companion.Window(), mask, kStageLeft, StageTop());
}
