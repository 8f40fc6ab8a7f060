// A program folder of its own for each test, and the makers of the files of
// characters.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "character/frames.h"
#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"
#include "tests/support/desktop.h"

inline std::string BE16(int value) {
  return {static_cast<char>(value >> 8), static_cast<char>(value)};
}
inline std::string BE32(std::int64_t value) {
  return {static_cast<char>(value >> 24), static_cast<char>(value >> 16), static_cast<char>(value >> 8),
          static_cast<char>(value)};
}
inline std::string LE16(int value) {
  return {static_cast<char>(value), static_cast<char>(value >> 8)};
}
inline std::string LE32(std::int64_t value) {
  return {static_cast<char>(value), static_cast<char>(value >> 8), static_cast<char>(value >> 16),
          static_cast<char>(value >> 24)};
}

// A 24-bit bitmap file of one colour.
inline std::string BmpFile(int width, int height, unsigned char blue = 10, unsigned char green = 20,
                           unsigned char red = 30) {
  const int stride = (width * 3 + 3) / 4 * 4;
  std::string rows;
  for (int y = 0; y < height; ++y) {
    std::string row;
    for (int x = 0; x < width; ++x) {
      row += {static_cast<char>(blue), static_cast<char>(green), static_cast<char>(red)};
    }
    row.resize(static_cast<std::size_t>(stride));
    rows += row;
  }
  std::string info = LE32(40) + LE32(width) + LE32(height) + LE16(1) + LE16(24) + std::string(24, '\0');
  return "BM" + LE32(static_cast<std::int64_t>(14 + info.size() + rows.size())) + LE32(0) +
         LE32(static_cast<std::int64_t>(14 + info.size())) + info + rows;
}

using FilePoints = std::vector<std::pair<int, int>>;

// An outline file of those frames.
inline std::string DwcFile(const std::vector<FilePoints>& frames) {
  std::string file(1, static_cast<char>(frames.size()));
  for (const FilePoints& points : frames) {
    file += BE32(static_cast<std::int64_t>(points.size()));
    for (const auto& [x, y] : points) file += BE16(x) + BE16(y);
  }
  return file;
}

class CharaFiles : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    MakeFolder(InProgram("キャラクタ"));
    FileResult.FileStatus = 0;
  }
  void TearDown() override {
    for (int row = 0; row < kFrameRowCount; ++row) FramesFree(row);
    DesktopTest::TearDown();
  }

  // The file system's name of a file of the program folder ("\\name").
  static std::string Native(const std::string& name) {
    return PosixPath((Program.RootFolder + name).c_str());
  }

  static void Put(const std::string& name, const std::string& content) {
    ASSERT_TRUE(PutFile(Program.RootFolder + name, content));
  }
  static std::string Get(const std::string& name) { return FileBytes(Program.RootFolder + name); }

  // Files of a character, by its number and a frame from 1.
  static void PutDwc(int number, const std::string& content) {
    Put("\\キャラクタ\\Chara" + std::to_string(number) + ".dwc", content);
  }
  static void PutBmp(int number, int frame, const std::string& content) {
    Put("\\キャラクタ\\Chara" + std::to_string(number) + "_" + std::to_string(frame) + ".bmp", content);
  }
  static void PutMask(int number, int frame, const std::string& content) {
    Put("\\キャラクタ\\Chara" + std::to_string(number) + "_" + std::to_string(frame) + "x.bmp", content);
  }
};
