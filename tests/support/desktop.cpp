#include "tests/support/desktop.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/posix/faults.h"
#include "platform/posix/files_opened.h"
#include "platform/posix/posix_paths.h"
#include "platform/posix/test_clock.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/states.h"
#include "tests/support/places.h"

namespace fs = std::filesystem;

namespace {

void DrivesAway() {
  for (char letter = 'A'; letter <= 'Z'; ++letter) PosixDriveSet(letter, "");
}

}  // namespace

void DesktopTest::SetUp() {
  before_ = fs::current_path().string();
  std::string name = (fs::canonical(fs::temp_directory_path()) / "mirrell_XXXXXX").string();
  ASSERT_NE(mkdtemp(name.data()), nullptr) << name;
  drive_ = name;
  folder_ = drive_ + "/mirrell";
  ASSERT_TRUE(fs::create_directory(folder_));
  fs::current_path(folder_);
  DrivesAway();
  PosixDriveSet('C', drive_);
  PosixDesktopSet("");

  StatesReset();
  HeadlessReset();
  HeadlessResourceFile(kResourceFile);
  FaultClear();
  FilesOpenedClear();
  TestClockSet({2026, 11, 21, 6, 9, 30, 15, 0});
  TextCopy(Program.RootFolder, sizeof Program.RootFolder, "C:\\mirrell");
  live_ = DiagnosticsLive();
}

void DesktopTest::TearDown() {
  FaultClear();
  MainWindowDrop();
  for (const std::string& failure : HeadlessFailures()) ADD_FAILURE() << failure;
  for (const WindowHandle window : OpenWindows()) {
    ADD_FAILURE() << "dialog " << TemplateOf(window) << " is still open";
  }
  EXPECT_EQ(StepsLeft(), 0) << "steps of the script that nobody ran";
  EXPECT_EQ(BoxesLeft(), 0) << "boxes that were expected and did not come";
  EXPECT_EQ(DialogsExpected(), 0) << "file dialogs or menus that were expected and did not come";
  EXPECT_EQ(LiveText(DiagnosticsLive()), LiveText(live_)) << "something was left open";

  HeadlessReset();
  TestClockClear();
  DrivesAway();
  PosixDesktopSet("");
  fs::current_path(before_);
  std::error_code error;
  if (!drive_.empty()) fs::remove_all(drive_, error);
  EXPECT_FALSE(error) << drive_;
}

std::string FileBytes(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(PosixPath(path.c_str()), std::ios::binary).rdbuf();
  return bytes.str();
}

bool PutFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(PosixPath(path.c_str()), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.flush();
  return file.good();
}

bool FileThere(const std::string& path) {
  return fs::is_regular_file(PosixPath(path.c_str()));
}

bool FolderThere(const std::string& path) {
  return fs::is_directory(PosixPath(path.c_str()));
}

void RemoveFile(const std::string& path) {
  fs::remove(PosixPath(path.c_str()));
}

void MakeFolder(const std::string& path) {
  fs::create_directories(PosixPath(path.c_str()));
}

std::vector<std::string> FolderNames(const std::string& path) {
  std::vector<std::string> names;
  for (const auto& item : fs::directory_iterator(PosixPath(path.c_str()))) {
    names.push_back(PosixToCp932(item.path().filename().string()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

void SetFileTime(const std::string& path, long long seconds) {
  const timespec times[2] = {{static_cast<std::time_t>(seconds), 0}, {static_cast<std::time_t>(seconds), 0}};
  EXPECT_EQ(utimensat(AT_FDCWD, PosixPath(path.c_str()).c_str(), times, 0), 0) << path;
}

std::string InProgram(const std::string& name) {
  return "C:\\mirrell\\" + name;
}

std::string LiveText(const LiveObjects& live) {
  const std::pair<const char*, int> counts[] = {
      {"brushes", live.brushes}, {"pens", live.pens},         {"fonts", live.fonts},
      {"bitmaps", live.bitmaps}, {"regions", live.regions},   {"canvases", live.canvases},
      {"windows", live.windows}, {"timers", live.timers},     {"blocks", live.blocks},
      {"files", live.files},     {"searches", live.searches},
  };
  std::string text;
  for (const auto& [name, count] : counts) {
    if (count != 0) text += std::string(text.empty() ? "" : ", ") + name + " " + std::to_string(count);
  }
  return text;
}
