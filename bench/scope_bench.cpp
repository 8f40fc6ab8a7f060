// Walks a folder the way the folder scope does, and prints what it found and how
// long the fastest of some walks took. To be held against
// `du -s --apparent-size` on the same tree.
//
//   scope_bench FOLDER [WALKS]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "filetools/folder_scope.h"
#include "platform/posix/posix_paths.h"

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: scope_bench FOLDER [WALKS]\n");
    return 2;
  }
  const std::string folder = PosixToProgram(argv[1]);
  const int walks = argc > 2 ? std::max(std::atoi(argv[2]), 1) : 1;
  double best = 0;
  for (int i = 0; i < walks; ++i) {
    const auto start = std::chrono::steady_clock::now();
    areaTotal = 0.0F;
    ScopeFolderSize(folder.c_str());
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    if (i == 0 || took.count() < best) best = took.count();
  }
  std::printf("%.0f bytes, %.1f ms\n", static_cast<double>(areaTotal), best);
  return 0;
}
