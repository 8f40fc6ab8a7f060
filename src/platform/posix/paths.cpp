#include <iconv.h>

#include <algorithm>
#include <cctype>
#include <map>

#include "platform/posix/posix_paths.h"

namespace {

std::map<char, std::string>& Drives() {
  static std::map<char, std::string> drives;
  return drives;
}

std::string Convert(const char* to, const char* from, const std::string& text) {
  // Both encodings write plain letters alike, and most names have no others.
  if (std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; })) return text;
  iconv_t converter = iconv_open(to, from);
  if (converter == reinterpret_cast<iconv_t>(-1)) return text;
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
      result += '_';
      ++in;
      --inLeft;
    }
  }
  iconv_close(converter);
  return result;
}

}  // namespace

std::string Cp932ToUtf8(const std::string& bytes) {
  return Convert("UTF-8", "CP932", bytes);
}

std::string PosixToCp932(const std::string& utf8) {
  return Convert("CP932", "UTF-8", utf8);
}

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
    if (drive != Drives().end()) return drive->second + (rest.empty() ? "/" : rest);
    if (letter == 'Z') return rest.empty() ? "/" : rest;
    return "/nonexistent-drive" + rest;
  }
  return text;
}

std::string PosixToProgram(const std::string& path) {
  std::string text;
  for (const auto& [letter, folder] : Drives()) {
    if (path == folder || path.rfind(folder + "/", 0) == 0) {
      text = std::string(1, letter) + ":" + path.substr(folder.size());
      break;
    }
  }
  if (text.empty()) text = "Z:" + (path == "/" ? std::string() : path);
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
  letters += 'Z';
  return letters;
}
