// Writes a generated model file:
//   kvrvips_bench_generate PATH [SECTIONS [LAYERS [POINTS]]]
#include <cstdio>
#include <cstdlib>

#include "bench/bench_model_file.h"

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s PATH [SECTIONS [LAYERS [POINTS]]]\n", argv[0]);
    return 2;
  }
  BenchModelShape shape;
  if (argc > 2) shape.Sections = std::atoi(argv[2]);
  if (argc > 3) shape.LayersPerSection = std::atoi(argv[3]);
  if (argc > 4) shape.PointsPerLayer = std::atoi(argv[4]);
  if (shape.Sections < 0 || shape.LayersPerSection < 0 || shape.PointsPerLayer < 2) {
    std::fprintf(stderr, "%s: the counts must be positive, with two points at least\n", argv[0]);
    return 2;
  }
  if (!boRmBenchModelWrite(argv[1], shape)) {
    std::fprintf(stderr, "%s: could not write %s\n", argv[0], argv[1]);
    return 1;
  }
  return 0;
}
