// How fast files are divided, restored and compared, beside the tools of this
// system that move the same bytes: split, cat and cmp.
//
//   divide_bench [folder [megabytes [rounds]]]
//
// A new source of that many MiB (256) is made in the folder (the temporary one),
// which must have room for four times as much. Each pair is run by turns, with
// its results deleted before every run, and the best time of each counts.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "filetools/back_up/back_up.h"
#include "filetools/divide/file_divide.h"
#include "filetools/stepped_work.h"
#include "platform/posix/posix_paths.h"
#include "services/text.h"

namespace {

namespace fs = std::filesystem;

fs::path room;

constexpr int kPieces = 16;

std::string ProgramPath(const fs::path& path) {
  return PosixToProgram(path.string());
}

void Check(bool good, const char* what) {
  if (good) return;
  std::fprintf(stderr, "failed: %s\n", what);
  std::exit(1);
}

void MakeSource(int megabytes) {
  std::ofstream out(room / "source", std::ios::binary);
  std::mt19937_64 random(1);
  std::vector<std::uint64_t> block(131072);
  for (int i = 0; i < megabytes; ++i) {
    for (auto& word : block) word = random();
    out.write(reinterpret_cast<const char*>(block.data()),
              static_cast<std::streamsize>(block.size() * sizeof block[0]));
  }
  out.close();
  fs::copy_file(room / "source", room / "copy");
  Check(static_cast<bool>(out), "making the source");
}

void Empty(const char* folder) {
  fs::remove_all(room / folder);
  fs::create_directory(room / folder);
}

void SetUp(bool scrambled) {
  TextCopy(FileDivide.sourcePath, sizeof FileDivide.sourcePath, ProgramPath(room / "source").c_str());
  FileDivide.sourceSize = DivFileSize(FileDivide.sourcePath);
  FileDivide.divideCount = kPieces;
  FileDivide.encryptFlag = scrambled ? 1 : 0;
  TextCopy(FileDivide.keyword, sizeof FileDivide.keyword, "mirrel");
  FileDivide.keywordLength = 6;
  TextCopy(FileDivide.storeDir, sizeof FileDivide.storeDir, ProgramPath(room / "pieces").c_str());
  TextCopy(FileDivide.baseName, sizeof FileDivide.baseName, "part");
}

void Divide(bool scrambled) {
  SetUp(scrambled);
  SteppedNext(1);
  while (Stepped.stepCounter != 0) Check(FileDivideStep() == 0, "dividing");
}

void Restore() {
  TextCopy(FileDivide.storeDir, sizeof FileDivide.storeDir, ProgramPath(room / "restored").c_str());
  const std::string cof = ProgramPath(room / "pieces" / "part0.cof");
  SteppedNext(1);
  while (Stepped.stepCounter != 0) Check(FileRestoreStep(cof.c_str()) == 0, "restoring");
}

void Compare() {
  BackUp.fileCount = 1;
  TextCopy(BackUp.sourcePath[0], kBackUpPathSize, ProgramPath(room / "source").c_str());
  TextCopy(BackUp.destPath[0], kBackUpPathSize, ProgramPath(room / "copy").c_str());
  Check(BackUpCompareContent() == 0, "comparing");
}

double Now() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

void Shell(const std::string& command) {
  Check(std::system(("cd '" + room.string() + "' && " + command).c_str()) == 0, command.c_str());
}

struct Contender {
  const char* name;
  std::function<void()> prepare;
  std::function<void()> run;
  double best = 1e9;
};

void Race(const char* title, int rounds, Contender ours, Contender theirs) {
  for (int round = 0; round < rounds; ++round) {
    for (Contender* one : {&ours, &theirs}) {
      one->prepare();
      const double start = Now();
      one->run();
      one->best = std::min(one->best, Now() - start);
    }
  }
  std::printf("%-10s %-18s %7.3f s   %-18s %7.3f s   ratio %.2f\n", title, ours.name, ours.best, theirs.name,
              theirs.best, ours.best / theirs.best);
}

}  // namespace

int main(int argc, char** argv) {
  const fs::path parent = argc > 1 ? fs::path(argv[1]) : fs::temp_directory_path();
  const int megabytes = argc > 2 ? std::atoi(argv[2]) : 256;
  const int rounds = argc > 3 ? std::atoi(argv[3]) : 5;
  std::string name = (parent / "divide_bench_XXXXXX").string();
  Check(mkdtemp(name.data()) != nullptr, "making a folder");
  room = name;
  MakeSource(megabytes);

  const auto emptyPieces = [] { Empty("pieces"); };
  const auto emptyRestored = [] { Empty("restored"); };
  Race("divide", rounds, {"plain", emptyPieces, [] { Divide(false); }},
       {"split -n 16", emptyPieces, [] { Shell("split -n 16 source pieces/x"); }});
  Race("scramble", rounds, {"with a keyword", emptyPieces, [] { Divide(true); }},
       {"plain", emptyPieces, [] { Divide(false); }});
  emptyPieces();
  Divide(false);
  Race("restore", rounds, {"plain", emptyRestored, Restore},
       {"cat", emptyRestored, [] { Shell("cat pieces/part?.div pieces/part??.div > restored/source"); }});
  emptyPieces();
  Divide(true);
  Race("restore", rounds, {"with a keyword", emptyRestored, Restore},
       {"cat", emptyRestored, [] { Shell("cat pieces/*.div > restored/source"); }});
  Race("compare", rounds, {"content", [] {}, Compare}, {"cmp", [] {}, [] { Shell("cmp source copy"); }});

  fs::remove_all(room);
  return 0;
}
