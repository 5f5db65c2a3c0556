// Stands in for kvrvips_convert_gen in the tests of the export.
//
// Writes the arguments that it was given, one per line, to a file named like
// the program with ".arguments" behind, so that a test can see how the
// command line was split, and exits with the code that it was built with.
#include <cstdio>
#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
  if (argc > 0) {
    std::string record = std::string(argv[0]) + ".arguments";
    if (std::FILE* file = std::fopen(record.c_str(), "wb")) {
      for (int i = 1; i < argc; ++i) std::fprintf(file, "%s\n", argv[i]);
      std::fclose(file);
    }
  }
  std::exit(KVRVIPS_CONVERTER_EXIT_CODE);
}
