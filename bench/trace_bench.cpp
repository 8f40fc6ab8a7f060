// Traces a parameter through a scenario of 30 folders with 50 scenes each, and reads the
// same files plainly: with calls of the same kind, and with `cat`. The scenario is made in
// a folder, which must have room for some 800 MB, and is taken away again. Time on a core is
// told, the least of some rounds by turns.
//
//   trace_bench [FOLDER [ROUNDS]]

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "platform/file.h"
#include "platform/posix/posix_paths.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_main_file.h"
#include "scenario/storage/snry_paths.h"
#include "scenario/storage/snry_reset.h"
#include "scenario/storage/snry_scene_file.h"
#include "scenario/storage/snry_tables.h"
#include "scenario/trace/snry_walk.h"
#include "services/text.h"
#include "services/work_blocks.h"

namespace {

namespace fs = std::filesystem;

fs::path room;

// Of a scene: a middling one. Every tenth has copies too, and so all the cast's records.
constexpr int kMembers = 20;
constexpr int kCopies = 5;
constexpr int kLinesEach = 15;
constexpr int kTriggers = 10;  // menus, events, randoms, sounds

constexpr int kPara = 1;  // that is looked for; one in ten is it
constexpr int kPlainPiece = 131072;

void Check(bool good, const char* what) {
  if (good) return;
  std::fprintf(stderr, "failed: %s\n", what);
  std::exit(1);
}

// --- The scenario

std::uint16_t NextPara() {
  static int para = 0;
  return static_cast<std::uint16_t>(para++ % 10 + kPara);
}

void FillMember(SnryCastRec& member, int number) {
  member.entry = {NextPara(), 1};
  member.exit = {NextPara(), 2};
  for (int place = 0; place < kLinesEach; ++place) {
    const int slot = number * kLinesEach + place;
    member.lines[place] = static_cast<std::uint16_t>(slot + 1);
    member.lineParameters[place] = NextPara();
    member.motions[place] = 1;
    member.motionParameters[place] = NextPara();
    SnryLineAt(slot).used = 1;
    TextCopy(SnryLineAt(slot).text, sizeof SnryLineAt(slot).text, "長い物語はまだまだ続く");
  }
}

void FillCast(int copies) {
  SnrySceneRec& scene = SnrySceneNow();
  for (int number = 0; number < kMembers + copies; ++number) {
    const bool copy = number >= kMembers;
    const int slot = copy ? kSnryCopyFirst + number - kMembers : number;
    scene.cast[scene.castCount++] = static_cast<std::uint16_t>(slot + 1);
    FillMember(SnryCastAt(slot), number);
    SnryCastAt(slot).master = copy ? 1 : 0;
  }
}

void FillTriggers() {
  for (int i = 0; i < kTriggers; ++i) {
    SnryScene.menus[i].enabled = SnryScene.events[i].enabled = SnryScene.randoms[i].enabled = 1;
    SnryScene.sounds[i].used = 1;
    SnryScene.menus[i].itemCount = 3;
    SnryScene.menus[i].itemParameters[1][0] = NextPara();
    SnryScene.menus[i].start = {NextPara(), 1};
    SnryScene.events[i].start = {NextPara(), 1};
    SnryScene.randoms[i].start = {NextPara(), 1};
    SnryScene.sounds[i].start = {NextPara(), 1};
  }
}

void MakeScene(int folder, int scene) {
  char name[40];
  TextFormat(name, sizeof name, "scene%d.scd", scene + 1);
  Scenario.folderIndex = folder;
  Check(SnrySceneAdd(name), "adding a scene");
  Scenario.sceneIndex = scene;
  SnrySceneReset();
  FillCast(scene % 10 == 0 ? kCopies : 0);
  FillTriggers();
  Check(SnrySceneSave(folder, scene) == 0, "saving a scene");
}

void MakeScenario() {
  SnryMainReset();
  std::fill_n(SnryMain.registered, kMembers, std::uint8_t{1});
  for (int folder = 0; folder < kSnryFolderMax; ++folder) {
    const fs::path path = room / std::to_string(folder + 1);
    fs::create_directory(path);
    Check(SnryFolderAdd(PosixToProgram(path.string()).c_str()), "adding a folder");
    for (int scene = 0; scene < kSnrySceneMax; ++scene) MakeScene(folder, scene);
  }
}

// --- The three

long long lines = 0;

void Trace() {
  lines = 0;
  SnryWalkChange(kPara - 1, {[](void*, const char*) { ++lines; }, nullptr});
}

long long bytes = 0;

void PlainFile(const char* path) {
  static std::vector<unsigned char> piece(kPlainPiece);
  const int file = FileOpen(path, OpenMode::Read);
  Check(file >= 0, path);
  for (int got = 1; got > 0; bytes += got) got = FileRead(file, piece.data(), kPlainPiece);
  FileClose(file);
}

void Plain() {
  bytes = 0;
  for (int folder = 0; folder < kSnryFolderMax; ++folder) {
    for (int scene = 0; scene < kSnrySceneMax; ++scene) {
      char path[kSnryLongPath];
      SnryScenePath(path, sizeof path, folder, scene);
      PlainFile(path);
    }
  }
}

void Cat() {
  Check(std::system(("cat '" + room.string() + "'/*/*.scd > /dev/null").c_str()) == 0, "cat");
}

// Time on a core, of this process and of those that it has waited for.
double CoreTime() {
  double time = 0;
  for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
    rusage usage{};
    getrusage(who, &usage);
    for (const timeval& part : {usage.ru_utime, usage.ru_stime})
      time += static_cast<double>(part.tv_sec) * 1e3 + static_cast<double>(part.tv_usec) * 1e-3;
  }
  return time;
}

double Milliseconds(void (*run)()) {
  const double start = CoreTime();
  run();
  return CoreTime() - start;
}

}  // namespace

int main(int argc, char** argv) {
  const fs::path parent = argc > 1 ? fs::path(argv[1]) : fs::temp_directory_path();
  const int rounds = argc > 2 ? std::max(std::atoi(argv[2]), 1) : 5;
  std::string name = (parent / "trace_bench_XXXXXX").string();
  Check(mkdtemp(name.data()) != nullptr, "making a folder");
  room = name;
  WorkBlocksAllocate();
  MakeScenario();
  void (*const runs[])() = {Trace, Plain, Cat};
  double best[] = {1e9, 1e9, 1e9};
  for (int i = 0; i < 3 * rounds; ++i) best[i % 3] = std::min(best[i % 3], Milliseconds(runs[i % 3]));
  fs::remove_all(room);
  std::printf("%lld bytes in %d scenes, %lld lines\n", bytes, kSnryFolderMax * kSnrySceneMax, lines);
  std::printf("trace %.0f ms, plain calls %.0f ms, cat %.0f ms: %.2f and %.2f times as long\n", best[0],
              best[1], best[2], best[0] / best[1], best[0] / best[2]);
  return 0;
}
