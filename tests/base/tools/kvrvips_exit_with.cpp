// A helper for the process runner's tests.
//
//   kvrvips_exit_with CODE [COUNT_FILE [ARGUMENTS...]]
//
// Exits with CODE. With COUNT_FILE it first writes there how many arguments
// it was given, so that a test can see how a command line was split.
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc < 2) return 255;
  if (argc >= 3) {
    std::FILE* file = std::fopen(argv[2], "wb");
    if (!file) return 254;
    std::fprintf(file, "%d", argc - 1);
    std::fclose(file);
  }
  return std::atoi(argv[1]);
}
