// Walks a folder the way the folder scope does, and prints what it found and how
// long the fastest of some walks took. To be held against
// `du -s --apparent-size` on the same tree.
//
//   scope_bench FOLDER [WALKS]

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "filetools/scope/folder_scope.h"
#include "platform/posix/posix_paths.h"

namespace {

double Milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: scope_bench FOLDER [WALKS]\n");
    return 2;
  }
  const std::string folder = PosixToProgram(argv[1]);
  const int walks = argc > 2 ? std::max(std::atoi(argv[2]), 1) : 1;
  double best = 0;
  for (int i = 0; i < walks; ++i) {
    const double start = Milliseconds();
    Scope.areaTotal = 0.0F;
    ScopeFolderSize(folder.c_str());
    const double took = Milliseconds() - start;
    if (i == 0 || took < best) best = took;
  }
  std::printf("%.0f bytes, %.1f ms\n", static_cast<double>(Scope.areaTotal), best);
  return 0;
}
