/* A program of another project that converts a design through the
 * installed library: convert_example DESIGN MODEL SETTINGS. */
#include <stdio.h>

#include <kvrvips/kvrvips.h>

int main(int argc, char** argv) {
  char* logFile = NULL;
  int result;
  if (argc != 4) {
    fprintf(stderr, "usage: convert_example DESIGN MODEL SETTINGS\n");
    return 2;
  }
  result = iKvrVipsConvertDatabase(argv[1], argv[2], KVRVIPS_IMPORT_FULL, &logFile, argv[3], 1, 0);
  printf("result %d, log %s\n", result, logFile ? logFile : "(none)");
  return result == 0 ? 0 : 1;
}
