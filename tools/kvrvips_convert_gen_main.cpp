// kvrvips_convert_gen DESIGN: validates the design document DESIGN and
// writes it again in the current format version.
#include <cstdio>

#include "tools/convert_gen.h"

int main(int argc, char** argv) {
  // The converter takes no options: anything that looks like one is a
  // mistake rather than a file name.
  if (argc != 2 || argv[1][0] == '-') {
    std::fprintf(stderr,
                 "usage: kvrvips_convert_gen DESIGN\n"
                 "Validates the design document DESIGN and writes it again in the current "
                 "format version.\n"
                 "Exit status: 1001 done, 1000 no such file, 999 not a valid design document, "
                 "1 usage.\n");
    return kConvertGenUsage;
  }
  return iConvertGenRun(argv[1]);
}
