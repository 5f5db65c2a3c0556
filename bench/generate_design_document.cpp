// Writes a generated design document:
//   kvrvips_bench_generate_design PATH [SECTIONS]
#include <cstdio>
#include <cstdlib>

#include "bench/bench_design_document.h"

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s PATH [SECTIONS]\n", argv[0]);
    return 2;
  }
  BenchDesignShape shape;
  if (argc > 2) shape.Sections = std::atoi(argv[2]);
  if (shape.Sections < 2) {
    std::fprintf(stderr, "%s: a road needs two sections at least\n", argv[0]);
    return 2;
  }
  if (!boBenchDesignWrite(argv[1], shape)) {
    std::fprintf(stderr, "%s: could not write %s\n", argv[0], argv[1]);
    return 1;
  }
  return 0;
}
