// Saves a scenario and loads a scene, and does the same with plain calls: the same bytes,
// written and read in pieces of 16384 bytes, then in pieces as large as the program's own.
// Prints the fastest of some rounds, by turns, and how they compare.
//
//   scenario_bench FOLDER [ROUNDS]

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include "platform/file.h"
#include "platform/posix/posix_paths.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_main_file.h"
#include "scenario/storage/snry_reset.h"
#include "scenario/storage/snry_scene_file.h"
#include "scenario/storage/snry_tables.h"
#include "services/record_file.h"
#include "services/text.h"
#include "services/work_blocks.h"

namespace {

constexpr int kSceneLines = 2000;
std::vector<unsigned char> bytes(kSnryMainSize);
char path[kSnryPathSize + 40];
int piece;  // of the plain calls

double Milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

void PlainWrite(int size) {
  const int file = FileOpen(path, OpenMode::ReadWrite);
  for (int at = 0; at < size; at += piece) FileWrite(file, bytes.data() + at, std::min(piece, size - at));
  FileClose(file);
}

int PlainRead() {
  const int file = FileOpen(path, OpenMode::Read);
  int size = 0;
  while (size < kSnryMainSize) {
    const int got = FileRead(file, bytes.data() + size, std::min(piece, kSnryMainSize - size));
    if (got <= 0) break;
    size += got;
  }
  FileClose(file);
  return size;
}

void PlainSave() {
  FileDelete(path);
  FileClose(FileCreate(path));
  PlainWrite(kSnryMainSize);
  PlainRead();
  PlainWrite(kSnryMainSize);
}

template <class Ours, class Plain>
void CompareOnce(const char* what, int rounds, Ours ours, Plain plain) {
  double best[2] = {1e9, 1e9};
  for (int i = 0; i < 2 * rounds; ++i) {
    const double start = Milliseconds();
    i % 2 == 0 ? ours() : plain();
    best[i % 2] = std::min(best[i % 2], Milliseconds() - start);
  }
  std::printf("%s: %.2f ms, plain calls of %d bytes %.2f ms, ratio %.2f\n", what, best[0], piece, best[1],
              best[0] / best[1]);
}

template <class Ours, class Plain>
void Compare(const char* what, int rounds, Ours ours, Plain plain) {
  for (const int size : {16384, kRecordTransfer}) {
    piece = size;
    CompareOnce(what, rounds, ours, plain);
  }
}

void SaveOrStop() {
  if (SnrySaveMain() != 0) std::abort();
}
void LoadOrStop() {
  if (SnrySceneLoad(0, 0) != 0) std::abort();
}

void CompareMain(int rounds) {
  TextFormat(path, sizeof path, "%s\\シナリオメイン.cff", Scenario.mainFolder);
  SnryMainReset();
  SaveOrStop();
  PlainRead();  // the plain calls write what is there
  Compare("save", rounds, SaveOrStop, PlainSave);
}

void CompareScene(int rounds) {
  SnryFolderAdd(Scenario.mainFolder);
  SnrySceneAdd("bench.scd");
  SnrySceneReset();
  SnryLineAt(kSceneLines - 1).used = 1;
  SnryMain.registered[99] = 1;
  SnrySceneNow().castCount = 1;
  SnrySceneNow().cast[0] = 100;
  if (SnrySceneSave(0, 0) != 0) std::abort();
  TextFormat(path, sizeof path, "%s\\bench.scd", Scenario.mainFolder);
  std::printf("a scene of %d bytes\n", PlainRead());
  Compare("load", rounds, LoadOrStop, [] { PlainRead(); });
}

}  // namespace

int main(int argc, char** argv) {
  piece = kRecordTransfer;
  if (argc < 2) {
    std::fprintf(stderr, "usage: scenario_bench FOLDER [ROUNDS]\n");
    return 2;
  }
  WorkBlocksAllocate();
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, PosixToProgram(argv[1]).c_str());
  const int rounds = argc > 2 ? std::max(std::atoi(argv[2]), 1) : 20;
  CompareMain(rounds);
  CompareScene(rounds);
  return 0;
}
