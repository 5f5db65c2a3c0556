// Stands in for kvrvips_convert_gen in the tests of the export.
//
// Writes the arguments that it was given, one per line, to a file named like
// the program (without ".exe" on Windows) with ".arguments" behind, so that
// a test can see how the command line was split, and exits with the code
// that it was built with.
#include <cstdio>
#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
  if (argc > 0) {
    std::string record = argv[0];
#ifdef _WIN32
    if (record.size() > 4 && record.compare(record.size() - 4, 4, ".exe") == 0) {
      record.resize(record.size() - 4);
    }
#endif
    record += ".arguments";
    if (std::FILE* file = std::fopen(record.c_str(), "wb")) {
      for (int i = 1; i < argc; ++i) std::fprintf(file, "%s\n", argv[i]);
      std::fclose(file);
    }
  }
  std::exit(KVRVIPS_CONVERTER_EXIT_CODE);
}
