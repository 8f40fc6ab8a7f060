#include <iconv.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>

#include "platform/posix/posix_paths.h"

namespace {

std::map<char, std::string>& Drives() {
  static std::map<char, std::string> drives;
  return drives;
}

// The drive whose folder holds the path, the innermost of several; Z for none.
char DriveOf(const std::string& path) {
  char found = 'Z';
  std::size_t length = 0;
  for (const auto& [letter, folder] : Drives()) {
    const bool inside = path == folder || path.starts_with(folder + "/");
    if (!inside || folder.size() < length) continue;
    found = letter;
    length = folder.size();
  }
  return found;
}

// The folder of the drive we are on; empty for Z.
std::string CurrentDrive() {
  char current[4096];
  if (!getcwd(current, sizeof current)) return {};
  const char letter = DriveOf(current);
  return letter == 'Z' ? std::string() : Drives()[letter];
}

// A converter that is opened at its first use and kept.
class Converter {
 public:
  Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (IsOpen()) iconv_close(handle_);
  }
  bool IsOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }
  iconv_t Start() {
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    return handle_;
  }

 private:
  iconv_t handle_;
};

bool IsAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return (static_cast<unsigned char>(c) & 0x80U) == 0; });
}

std::string Convert(Converter& direction, bool fromUtf8, const std::string& text) {
  if (IsAscii(text) || !direction.IsOpen()) return text;
  iconv_t converter = direction.Start();
  std::string result;
  std::string source = text;
  char* in = source.data();
  std::size_t inLeft = source.size();
  while (inLeft > 0) {
    char buffer[256];
    char* out = buffer;
    std::size_t outLeft = sizeof buffer;
    const std::size_t done = iconv(converter, &in, &inLeft, &out, &outLeft);
    result.append(buffer, sizeof buffer - outLeft);
    if (done == static_cast<std::size_t>(-1) && outLeft > 16 && inLeft > 0) {
      // One character that has no counterpart, whatever its length.
      result += '_';
      const bool utf8 = fromUtf8 && static_cast<unsigned char>(*in) >= 0xC0;
      do {
        ++in;
        --inLeft;
      } while (utf8 && inLeft > 0 && (static_cast<unsigned char>(*in) & 0xC0U) == 0x80);
    }
  }
  return result;
}

}  // namespace

std::string Cp932ToUtf8(const std::string& bytes) {
  static Converter converter("UTF-8", "CP932");
  return Convert(converter, false, bytes);
}

std::string PosixToCp932(const std::string& utf8) {
  static Converter converter("CP932", "UTF-8");
  return Convert(converter, true, utf8);
}

namespace {

// A path of a drive, told from its root: ".." does not lead out of it.
std::string OnDrive(const std::string& drive, const std::string& rest) {
  const std::string rooted = rest.starts_with('/') ? rest : "/" + rest;
  if (rooted.find("..") == std::string::npos) return drive + rooted;
  return drive + std::filesystem::path(rooted).lexically_normal().string();
}

// A path told from the current folder.
std::string FromCurrent(const std::string& path) {
  char current[4096];
  if (path.find("..") == std::string::npos || !getcwd(current, sizeof current)) return path;
  const std::string drive = CurrentDrive();
  if (drive.empty()) return path;
  return OnDrive(drive, current + drive.size() + ("/" + path));
}

}  // namespace

std::string PosixPath(const char* path) {
  // Backslashes are turned after the conversion: a trail byte may be 0x5C, and
  // in UTF-8 no byte of a Japanese character is.
  std::string text = Cp932ToUtf8(path);
  for (char& c : text) {
    if (c == '\\') c = '/';
  }
  if (text.size() >= 2 && text[1] == ':') {
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    std::string rest = text.substr(2);
    const auto drive = Drives().find(letter);
    if (drive != Drives().end()) return OnDrive(drive->second, rest);
    if (letter == 'Z') return rest.empty() ? "/" : rest;
    return "/nonexistent-drive" + rest;
  }
  // Without a letter, the root is that of the current drive.
  if (text.starts_with('/')) {
    const std::string drive = CurrentDrive();
    return drive.empty() ? text : OnDrive(drive, text);
  }
  return FromCurrent(text);
}

std::string PosixToProgram(const std::string& path) {
  const char letter = DriveOf(path);
  std::string text;
  if (letter == 'Z') {
    text = "Z:" + (path == "/" ? std::string() : path);
  } else {
    text = std::string(1, letter) + ":" + path.substr(Drives()[letter].size());
  }
  if (text.size() == 2) text += '/';
  for (char& c : text) {
    if (c == '/') c = '\\';
  }
  return PosixToCp932(text);
}

void PosixDriveSet(char letter, const std::string& folder) {
  if (folder.empty()) {
    Drives().erase(letter);
  } else {
    Drives()[letter] = folder;
  }
}

std::string PosixDrives() {
  std::string letters;
  for (const auto& drive : Drives()) letters += drive.first;
  if (!Drives().contains('Z')) letters += 'Z';
  return letters;
}
